#include "indices/vecinos/IDP.h"

#include "basico/Aritmetica.h"
#include "indices/vecinos/Competidores.h"

namespace varo {

namespace {

double IndiceDe(Pareja& pareja, const Arboles& arboles, Seleccion& seleccion, Lado lado, double h) {
    const std::size_t i = pareja.sujeto;
    if (arboles.sinTamano(i)) {
        return sinArbol;
    }
    static_cast<void>(arboles.d(i)); // a size that is no number faults even at a vertex
    if (arboles.esVertice(i)) {
        return arbolDeContorno;
    }
    seleccion.empezar(i, lado);
    double suma = 0;
    int m = 0;
    const auto sumar = [&](double dj, const Veredicto& veredicto, auto distancia) {
        if (veredicto.juicio == Veredicto::Juicio::Aceptado) {
            const double razon = Porque(
                fallo::divisionPorCero, [] { return "los dos árboles están en el mismo sitio"; },
                [&] { return Dividir(dj, distancia()); });
            suma = ExigirFinito(suma + (veredicto.rango + h) * (razon * razon));
            ++m;
        }
        return veredicto.juicio != Veredicto::Juicio::Borde;
    };
    const bool hastaElFinal =
        seleccion.sinFallos()
            ? RecorrerJuzgados(seleccion.juzgados(), pareja,
                               [&](const Juzgado& j) { return sumar(j.d, j.veredicto, [&] { return j.L; }); })
            : RecorrerCompetidores<&Arboles::d>(
                  arboles, seleccion.candidatos(), lado, pareja, [&](std::size_t j, double dj) {
                      return sumar(dj, seleccion.juzgar(j), [&] { return seleccion.L(j); });
                  });
    if (!hastaElFinal) {
        return efectoBorde;
    }
    return m > 0 ? ExigirFinito(Dividir(2500, m) * suma) : 0;
}

/// A state of its own, for one thread.
struct ColumnaIDP {
    const Arboles& arboles;
    Seleccion seleccion;
    Lado lado;
    double h; ///< added to the rank

    double indice(Pareja& pareja) { return IndiceDe(pareja, arboles, seleccion, lado, h); }
};

} // namespace

std::vector<double> CalcularIDP(const Arboles& arboles, const Seleccion& seleccion, Lado lado, FormaIDP forma,
                                const Faena& faena) {
    const double h = forma == FormaIDP::ConArbolCentral ? 0.5 : -0.5;
    return ParaCadaArbol(arboles, faena, ColumnaIDP{arboles, seleccion, lado, h});
}

} // namespace varo
