#include "indices/vecinos/IDP.h"

#include "basico/Aritmetica.h"
#include "indices/vecinos/Marcas.h"

namespace varo {

namespace {

double IndiceDe(Pareja& pareja, const Arboles& arboles, Seleccion& seleccion, bool unilateral, double h) {
    const std::size_t i = pareja.sujeto;
    if (arboles.sinTamano(i)) {
        return SinArbol;
    }
    const double di = arboles.d(i);
    if (arboles.esVertice(i)) {
        return ArbolDeContorno;
    }
    seleccion.empezar(i, unilateral);
    double suma = 0;
    int m = 0;
    for (const std::size_t j : seleccion.candidatos()) {
        if (j == i || arboles.sinTamano(j)) {
            continue;
        }
        pareja.vecino = j;
        const double dj = arboles.d(j);
        if (unilateral && dj < di) {
            continue;
        }
        const Veredicto veredicto = seleccion.juzgar(j);
        if (veredicto.clase == Veredicto::Clase::Rechazado) {
            continue;
        }
        if (veredicto.clase == Veredicto::Clase::Borde) {
            return EfectoBorde;
        }
        const double razon = Dividir(dj, seleccion.L(j));
        suma = ExigirFinito(suma + (veredicto.rango + h) * (razon * razon));
        ++m;
    }
    pareja.vecino = i;
    return m > 0 ? ExigirFinito(Dividir(2500, m) * suma) : 0;
}

} // namespace

std::vector<double> CalcularIDP(const Arboles& arboles, Seleccion& seleccion, bool unilateral,
                                FormaIDP forma) {
    const double h = forma == FormaIDP::ConArbolCentral ? 0.5 : -0.5;
    return ParaCadaArbol(arboles.cuantos(),
                         [&](Pareja& pareja) { return IndiceDe(pareja, arboles, seleccion, unilateral, h); });
}

} // namespace varo
