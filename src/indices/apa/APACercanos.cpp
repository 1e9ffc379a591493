#include "indices/apa/APACercanos.h"

#include "basico/Saltando.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <limits>

namespace varo {

namespace {

// docs/apa.md derives these, each under the name that it has here.
constexpr double u = std::numeric_limits<double>::epsilon() / 2; // the unit roundoff, 2^-53
constexpr double masAllaDelAlcance = 1.05;
constexpr double senoDesmedido = 0.05;
constexpr double desmedido = 1E+100;
constexpr double medidaMaxima = 1E+12; // m
constexpr double cercaniaMinima = 1E-4;

} // namespace

CercanosAPA::CercanosAPA(const PesosAPA& pesos)
    : pesos_{pesos}, cuadricula_{pesos}, medida_{cuadricula_.mayorCoordenada() + 2 * cuadricula_.extension()},
      dudoso_(pesos.arboles().cuantos()), presente_(pesos.arboles().cuantos()) {
    marcarDudosos();
}

/// The subjects that no search by distance serves: those that are not in the grid, those without a weight to
/// divide by, and those that share their x, or almost, with another tree.
void CercanosAPA::marcarDudosos() {
    const Arboles& arboles = pesos_.arboles();
    std::vector<Fila> porX;
    for (Fila i = 0; i < arboles.cuantos(); ++i) {
        if (!arboles.sinTamano(i)) {
            assert(arboles.d(i) >= 0);
            porX.push_back(i);
            const double peso = pesos_.de(i);
            dudoso_[i] = arboles.d(i) == 0 || peso < 1 / desmedido || peso > desmedido;
        }
    }
    std::sort(porX.begin(), porX.end(), [&](Fila a, Fila b) { return arboles.x(a) < arboles.x(b); });
    for (std::size_t n = 1; n < porX.size(); ++n) {
        if (arboles.x(porX[n]) - arboles.x(porX[n - 1]) < 1 / desmedido) {
            dudoso_[porX[n - 1]] = true;
            dudoso_[porX[n]] = true;
        }
    }
}

bool CercanosAPA::girar(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro) {
    const std::size_t i = pareja.sujeto;
    assert(!pesos_.arboles().sinTamano(i));
    if (dudoso_[i] || medida_ > medidaMaxima) {
        return false;
    }
    double medioLado = 2 * cuadricula_.lado();
    empezar(i, medioLado);
    while (girarEntreEllas(pareja, vecinos, giro)) {
        const auto anillo = CerrarAnillo(vecinos, giro);
        halladas_.clear();
        if (!anillo) {
            medioLado *= 2;
            cuadricula_.cuadro(i, medioLado, halladas_);
            anadirHalladas();
            continue;
        }
        if (!(anillo->vecinoMasCercano > cercaniaMinima * anillo->radio)) {
            return false;
        }
        // The lines go through the whole plot, so they are looked along only for a ring that stands so far.
        cuadricula_.alAlcance(i, 2 * anillo->radio * masAllaDelAlcance, halladas_);
        if (anadirHalladas()) {
            continue;
        }
        if (!buscarEnLineas(i, *anillo, vecinos, giro.lados())) {
            return false;
        }
        if (!anadirHalladas()) {
            return true;
        }
    }
    return false;
}

void CercanosAPA::empezar(std::size_t i, double medioLado) {
    for (const Fila fila : filas_) {
        presente_[fila] = false;
    }
    filas_.clear();
    halladas_.clear();
    cuadricula_.cuadro(i, medioLado, halladas_);
    anadirHalladas();
}

bool CercanosAPA::anadirHalladas() {
    const std::size_t habia = filas_.size();
    for (const Fila fila : halladas_) {
        if (!presente_[fila]) {
            presente_[fila] = true;
            filas_.push_back(fila);
        }
    }
    if (filas_.size() == habia) {
        return false;
    }
    std::sort(filas_.begin(), filas_.end());
    return true;
}

bool CercanosAPA::girarEntreEllas(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro) {
    if (filas_.size() > cuadricula_.cuantos() / 2) {
        return false;
    }
    // A fault among some of the trees may not be the fault among all of them: the whole turn tells.
    return !Saltando([&] {
        ReunirVecinos(pesos_, filas_, pareja, vecinos);
        giro.dar(vecinos, pareja);
    });
}

bool CercanosAPA::buscarEnLineas(std::size_t i, const AnilloAPA& anillo, const VecinosAPA& vecinos,
                                 const std::vector<LadoAPA>& lados) {
    halladas_.clear();
    const double senoEjes = senoDeLosEjes(anillo.radio);
    bool medible = buscarEnLinea(i, {1, 0}, senoEjes) && buscarEnLinea(i, {0, 1}, senoEjes);
    for (std::size_t v = 0; medible && v < lados.size(); ++v) {
        const auto [x, y] = vecinos.desdeElSujeto(lados[v].vecino);
        const double distancia = std::hypot(x, y);
        medible =
            buscarEnLinea(i, {x / distancia, y / distancia}, senoDelLado(anillo, std::abs(y) / distancia));
    }
    return medible;
}

bool CercanosAPA::buscarEnLinea(std::size_t i, const DireccionAPA& direccion, double seno) {
    if (!(seno < senoDesmedido)) {
        return false;
    }
    cuadricula_.enfiladas(i, direccion, 2 * seno, halladas_);
    return true;
}

/// docs/apa.md, "Directions near an axis".
double CercanosAPA::senoDeLosEjes(double radio) const {
    const auto termino = [](double L) { return (L + 1) * (L + 1) / L; };
    const double peor = std::max(termino(2 * radio), termino(2 * cuadricula_.extension()));
    return std::sqrt(512 * u * (peor + medida_));
}

/// docs/apa.md, "Circles through a far neighbour".
double CercanosAPA::senoDelLado(const AnilloAPA& anillo, double inclinacion) const {
    const auto [R, m] = anillo;
    const double error = (AnilloAPA::masAllaDelRadio - 1) * m / (4 * R);
    const double centro = 512 * u * (1 + medida_ / R) / (inclinacion * error);
    const double mayorCirculo = m * m / (64 * u * R);
    return std::max(centro, 2 * (cuadricula_.extension() + R) / mayorCirculo);
}

} // namespace varo
