#include "indices/vecinos/DR.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/vecinos/Competidores.h"

#include <cassert>

namespace varo {

namespace {

/// A column under work.
struct ColumnaDR {
    const Arboles& arboles;
    Seleccion& seleccion;
    Lado lado;
    EntradaDeDistancia& entrada;
    double k;

    /// What an accepted competitor adds.
    [[nodiscard]] double sumando(double f, double dj, double di) const {
        const double razon = Porque(
            fallo::divisionPorCero, [] { return "el tamaño del árbol es 0"; },
            [&] { return Dividir(dj, di); });
        return f * Potencia(razon, k);
    }
};

/// The index of a subject none of whose candidates can fault, but for the function of the distance and the
/// sum: the cause of that fault is given once about them all.
double IndiceSinFallos(Pareja& pareja, const ColumnaDR& columna, double di) {
    const FuncionDeDistancia* funcion = nullptr;
    double suma = 0;
    const auto sumar = [&](const Juzgado& j) {
        funcion = funcion != nullptr ? funcion : &columna.entrada.funcion();
        const double f = funcion->en(j.L);
        if (j.veredicto.juicio == Veredicto::Juicio::Aceptado) {
            suma = ExigirFinito(suma + columna.sumando(f, j.d, di));
        }
        return j.veredicto.juicio != Veredicto::Juicio::Borde;
    };
    const bool hastaElFinal = FuncionDeDistancia::explicando(
        [&] { return RecorrerJuzgados(columna.seleccion.juzgados(), pareja, sumar); });
    return hastaElFinal ? suma : efectoBorde;
}

double IndiceDe(Pareja& pareja, const ColumnaDR& columna) {
    const Arboles& arboles = columna.arboles;
    Seleccion& seleccion = columna.seleccion;
    EntradaDeDistancia& entrada = columna.entrada;
    const std::size_t i = pareja.sujeto;
    if (arboles.sinTamanoOCero(i)) {
        return sinArbol;
    }
    const double di = arboles.d(i);
    if (arboles.esVertice(i)) {
        return arbolDeContorno;
    }
    seleccion.empezar(i, columna.lado);
    const auto apartados = seleccion.distanciasDeApartados();
    if (apartados && !entrada.sinFallosEntre(apartados->desde, apartados->hasta)) {
        seleccion.mirarTodos();
    }
    if (seleccion.sinFallos()) {
        return IndiceSinFallos(pareja, columna, di);
    }
    double suma = 0;
    const auto sumar = [&](std::size_t j, double dj) {
        // Meant: before the rule, so that a fault in f counts for a candidate that would be rejected.
        const double f = FuncionDeDistancia::explicando([&] { return entrada.funcion().en(seleccion.L(j)); });
        const Veredicto veredicto = seleccion.juzgar(j);
        if (veredicto.juicio == Veredicto::Juicio::Aceptado) {
            suma = ExigirFinito(suma + columna.sumando(f, dj, di));
        }
        return veredicto.juicio != Veredicto::Juicio::Borde;
    };
    if (!RecorrerCompetidores<&Arboles::d>(arboles, seleccion.candidatos(), columna.lado, pareja, sumar)) {
        return efectoBorde;
    }
    return suma;
}

/// The same with a state of its own, for one thread.
struct ColumnaDeHilo {
    const Arboles& arboles;
    Seleccion seleccion;
    Lado lado;
    EntradaDeDistancia entrada;
    double k;

    double indice(Pareja& pareja) { return IndiceDe(pareja, {arboles, seleccion, lado, entrada, k}); }
};

} // namespace

bool EntradaDeDistancia::sinFallosEntre(double desde, double hasta) {
    assert(desde <= hasta);
    if (sinFallosDesde_ && desde >= *sinFallosDesde_) {
        return true;
    }
    bool sinFallos = false;
    Saltando([&] { sinFallos = funcion().sinFallosEntre(desde, hasta); });
    if (sinFallos) {
        sinFallosDesde_ = desde;
    }
    return sinFallos;
}

std::vector<double> CalcularDR(const Arboles& arboles, const Seleccion& seleccion, Lado lado,
                               const EntradaDeDistancia& entrada, double k, const Faena& faena) {
    return ParaCadaArbol(arboles, faena, ColumnaDeHilo{arboles, seleccion, lado, entrada, k});
}

} // namespace varo
