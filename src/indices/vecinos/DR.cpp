#include "indices/vecinos/DR.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/vecinos/Competidores.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>
#include <span>

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

/// The sum over candidates that the distance alone judges, some at a time. Each step is the one that
/// IndiceSinFallos takes, but that no test stands between them: where one of them may have given no number,
/// there is no sum.
class SumaSinPruebas {
public:
    SumaSinPruebas(const FuncionDeDistancia& funcion, double k, double di, double limite)
        : funcion_{funcion}, k_{k}, di_{di}, limite_{limite} {}

    [[nodiscard]] std::optional<double> de(std::span<const double> d, std::span<const double> L) {
        std::size_t n = 0;
        CuatroNumeros deD;
        CuatroNumeros deL;
        for (; n + deL.size() <= L.size(); n += deL.size()) {
            std::copy_n(d.data() + n, deD.size(), deD.begin());
            std::copy_n(L.data() + n, deL.size(), deL.begin());
            sumar(deD, deL, deL.size());
        }
        if (n < L.size()) { // the last ones, filled up with one of them
            deD.fill(d[n]);
            deL.fill(L[n]);
            std::copy(d.begin() + static_cast<std::ptrdiff_t>(n), d.end(), deD.begin());
            std::copy(L.begin() + static_cast<std::ptrdiff_t>(n), L.end(), deL.begin());
            sumar(deD, deL, L.size() - n);
        }
        const bool sinFallo =
            std::all_of(nulos_.begin(), nulos_.end(), [](double nulo) { return nulo == 0; });
        return sinFallo && std::isfinite(suma_) ? std::optional{suma_} : std::nullopt;
    }

private:
    /// Adds the first ones of a block.
    void sumar(const CuatroNumeros& d, const CuatroNumeros& L, std::size_t cuantos) {
        CuatroNumeros razones;
        for (std::size_t n = 0; n < razones.size(); ++n) {
            razones[n] = d[n] / di_;
        }
        const CuatroNumeros f = funcion_.sinPruebas(L);
        const CuatroNumeros potencias = PotenciasSinPruebas(razones, k_);
        CuatroNumeros sumandos;
        for (std::size_t n = 0; n < sumandos.size(); ++n) {
            nulos_[n] += (f[n] + razones[n]) * 0.0;
            sumandos[n] = L[n] <= limite_ ? f[n] * potencias[n] : 0.0;
        }
        for (std::size_t n = 0; n < cuantos; ++n) {
            suma_ += sumandos[n];
        }
    }

    const FuncionDeDistancia& funcion_;
    double k_, di_, limite_;
    double suma_ = 0;
    CuatroNumeros nulos_{}; ///< no number, once a step gave none
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
    if (entrada.leida() && seleccion.bastaLaDistancia()) {
        const auto [d, L, limite] = seleccion.medidas();
        if (const auto suma = SumaSinPruebas{*entrada.leida(), columna.k, di, limite}.de(d, L)) {
            return *suma;
        }
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
