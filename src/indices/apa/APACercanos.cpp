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
constexpr double senoDesmedido = 0.05;
constexpr double desmedido = 1E+100;
constexpr double medidaMaxima = 1E+12; // m

} // namespace

CercanosAPA::CercanosAPA(const PesosAPA& pesos)
    : pesos_{pesos}, cuadricula_{pesos}, lineas_{pesos.arboles(), cuadricula_.filas()},
      medida_{cuadricula_.mayorCoordenada() + 2 * cuadricula_.extension()},
      dudoso_(pesos.arboles().cuantos()), presente_(pesos.arboles().cuantos()) {
    marcarDudosos();
    buscarEsquinas();
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

/// Andrew's walk over the trees by x, once above and once below. A corner that rounding hides or adds costs
/// time alone: no ring closes about it, and without it some rings close late.
void CercanosAPA::buscarEsquinas() {
    const Arboles& arboles = pesos_.arboles();
    std::vector<Fila> porX = cuadricula_.filas();
    std::sort(porX.begin(), porX.end(), [&](Fila a, Fila b) { return arboles.x(a) < arboles.x(b); });
    for (const double signo : {1.0, -1.0}) {
        std::vector<Fila> lado;
        for (const Fila c : porX) {
            const auto sobra = [&] {
                const Fila a = lado[lado.size() - 2];
                const Fila b = lado.back();
                const double cruz = (arboles.x(b) - arboles.x(a)) * (arboles.y(c) - arboles.y(a)) -
                                    (arboles.y(b) - arboles.y(a)) * (arboles.x(c) - arboles.x(a));
                return cruz * signo <= 0;
            };
            while (lado.size() > 1 && sobra()) {
                lado.pop_back();
            }
            lado.push_back(c);
        }
        esquinas_.insert(esquinas_.end(), lado.begin(), lado.end());
    }
    for (const Fila esquina : esquinas_) {
        dudoso_[esquina] = true;
    }
}

bool CercanosAPA::girar(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro) {
    const std::size_t i = pareja.sujeto;
    assert(!pesos_.arboles().sinTamano(i));
    if (dudoso_[i] || medida_ > medidaMaxima) {
        return false;
    }
    empezar(i);
    while (girarEntreEllas(pareja, vecinos, giro)) {
        halladas_.clear();
        if (!CerrarAnillo(vecinos, giro, medida_, anillo_)) {
            alejarse(i);
            anadirHalladas();
            continue;
        }
        // The lines go through the whole plot, so they are looked along only for a ring that stands so far.
        cuadricula_.enLosCirculos(i, anillo_, halladas_);
        if (anadirHalladas()) {
            continue;
        }
        if (!buscarEnLineas(i)) {
            return false;
        }
        if (!anadirHalladas()) {
            return true;
        }
    }
    return false;
}

void CercanosAPA::empezar(std::size_t i) {
    for (const Fila fila : filas_) {
        presente_[fila] = false;
    }
    filas_.clear();
    halladas_.clear();
    medioLado_ = 2 * cuadricula_.lado();
    cuadricula_.cuadro(i, medioLado_, halladas_);
    anadirHalladas();
}

void CercanosAPA::alejarse(std::size_t i) {
    if (medioLado_ > 3 * cuadricula_.lado()) {
        halladas_ = esquinas_;
    }
    medioLado_ *= 2;
    cuadricula_.cuadro(i, medioLado_, halladas_);
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

bool CercanosAPA::buscarEnLineas(std::size_t i) {
    halladas_.clear();
    const double senoEjes = senoDeLosEjes();
    if (!(senoEjes < senoDesmedido)) {
        return false;
    }
    lineas_.enLosEjes(i, 2 * senoEjes, halladas_);
    for (const auto& [vecino, distancia, inclinacion, seno] : anillo_.lados) {
        if (!(seno < senoDesmedido)) {
            return false;
        }
        lineas_.enfiladas(i, {vecino.x / distancia, vecino.y / distancia}, 2 * seno, halladas_);
    }
    return true;
}

/// docs/apa.md, "Directions near an axis".
double CercanosAPA::senoDeLosEjes() const {
    const auto termino = [](double L) { return (L + 1) * (L + 1) / L; };
    const double peor = std::max(termino(anillo_.vecinoMasCercano), termino(2 * cuadricula_.extension()));
    return std::sqrt(512 * u * (peor + medida_));
}

} // namespace varo
