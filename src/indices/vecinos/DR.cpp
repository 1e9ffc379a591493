#include "indices/vecinos/DR.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/vecinos/Marcas.h"

namespace varo {

namespace {

/// A column under work.
struct ColumnaDR {
    const Arboles& arboles;
    double extension; ///< a distance that no two trees exceed
    Seleccion& seleccion;
    bool unilateral;
    EntradaDeDistancia& entrada;
    double k;
};

double IndiceDe(Pareja& pareja, const ColumnaDR& columna) {
    const auto& [arboles, extension, seleccion, unilateral, entrada, k] = columna;
    const std::size_t i = pareja.sujeto;
    if (arboles.sinTamano(i) || arboles.celdas().tamano.texto(i) == "0") {
        return SinArbol;
    }
    const double di = arboles.d(i);
    if (arboles.esVertice(i)) {
        return ArbolDeContorno;
    }
    seleccion.empezar(i, unilateral);
    if (seleccion.alcance() < extension && !entrada.sinFallosEntre(seleccion.alcance(), extension)) {
        seleccion.mirarTodos();
    }
    double suma = 0;
    for (const std::size_t j : seleccion.candidatos()) {
        if (j == i || arboles.sinTamano(j)) {
            continue;
        }
        pareja.vecino = j;
        const double dj = arboles.d(j);
        if (unilateral && dj < di) {
            continue;
        }
        // Before the rule, which is meant: a fault in it counts for a candidate that would be rejected.
        const double f = entrada.funcion().en(seleccion.L(j));
        const Veredicto veredicto = seleccion.juzgar(j);
        if (veredicto.clase == Veredicto::Clase::Rechazado) {
            continue;
        }
        if (veredicto.clase == Veredicto::Clase::Borde) {
            return EfectoBorde;
        }
        suma = ExigirFinito(suma + f * Potencia(Dividir(dj, di), k));
    }
    return suma;
}

} // namespace

const FuncionDeDistancia& EntradaDeDistancia::funcion() {
    if (!funcion_) {
        funcion_ = LeerFuncionDeDistancia(texto_);
    }
    return *funcion_;
}

bool EntradaDeDistancia::sinFallosEntre(double desde, double hasta) {
    if (sinFallosDesde_ && desde >= *sinFallosDesde_) {
        return true;
    }
    bool sinFallos = false;
    saltando([&] { sinFallos = funcion().sinFallosEntre(desde, hasta); });
    if (sinFallos) {
        sinFallosDesde_ = desde;
    }
    return sinFallos;
}

std::vector<double> CalcularDR(const Vecindad& vecindad, Seleccion& seleccion, bool unilateral,
                               EntradaDeDistancia& entrada, double k) {
    const Arboles& arboles = vecindad.arboles;
    const ColumnaDR columna{arboles, vecindad.vecindario.extension(), seleccion, unilateral, entrada, k};
    return ParaCadaArbol(arboles.cuantos(), [&](Pareja& pareja) { return IndiceDe(pareja, columna); });
}

} // namespace varo
