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
      calles_{cuadricula_.cuantos()}, medida_{cuadricula_.mayorCoordenada() + 2 * cuadricula_.extension()},
      dudoso_(pesos.arboles().cuantos()), presente_(cuadricula_.cuantos()) {
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
        for (const Fila esquina : lado) {
            esquinas_.push_back(cuadricula_.lugar(esquina));
            dudoso_[esquina] = true;
        }
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
        hallados_.clear();
        if (!CerrarAnillo(vecinos, giro, medida_, anillo_)) {
            alejarse(i);
            anadirHallados();
            continue;
        }
        // The lines go through the whole plot, so they are looked along only for a ring that stands so far.
        cuadricula_.enLosCirculos(i, anillo_, hallados_);
        if (anadirHallados()) {
            continue;
        }
        if (!buscarEnLineas(i)) {
            return false;
        }
        if (!anadirHallados()) {
            return true;
        }
    }
    return false;
}

void CercanosAPA::empezar(std::size_t i) {
    for (const LugarAPA lugar : lugares_) {
        presente_[lugar] = false;
    }
    lugares_.clear();
    hallados_.clear();
    medioLado_ = 2 * cuadricula_.lado();
    cuadricula_.cuadro(i, medioLado_, hallados_);
    anadirHallados();
}

void CercanosAPA::alejarse(std::size_t i) {
    if (medioLado_ > 3 * cuadricula_.lado()) {
        hallados_ = esquinas_;
    }
    medioLado_ *= 2;
    cuadricula_.cuadro(i, medioLado_, hallados_);
}

bool CercanosAPA::anadirHallados() {
    const std::size_t habia = lugares_.size();
    for (const LugarAPA lugar : hallados_) {
        if (!presente_[lugar]) {
            presente_[lugar] = true;
            lugares_.push_back(lugar);
        }
    }
    return lugares_.size() > habia;
}

bool CercanosAPA::girarEntreEllas(Pareja& pareja, VecinosAPA& vecinos, GiroAPA& giro) {
    if (lugares_.size() > cuadricula_.cuantos() / 2) {
        return false;
    }
    // A fault among some of the trees may not be the fault among all of them: the whole turn tells.
    return !Saltando([&] {
        cuadricula_.reunirVecinos(pareja.sujeto, lugares_, vecinos);
        giro.dar(vecinos, pareja);
    });
}

bool CercanosAPA::buscarEnLineas(std::size_t i) {
    hallados_.clear();
    enfiladas_.clear();
    const double senoEjes = senoDeLosEjes();
    if (!(senoEjes < senoDesmedido)) {
        return false;
    }
    lineas_.enLosEjes(i, 2 * senoEjes, enfiladas_);
    for (const auto& lado : anillo_.lados) {
        if (!(lado.seno < senoDesmedido)) {
            return false;
        }
        buscarHacia(i, lado);
    }
    for (const Fila fila : enfiladas_) {
        hallados_.push_back(cuadricula_.lugar(fila));
    }
    return true;
}

/// docs/apa.md, "Streets".
void CercanosAPA::buscarHacia(std::size_t i, const AnilloAPA::LadoDelAnillo& lado) {
    const LugarAPA aqui = cuadricula_.lugar(static_cast<Fila>(i));
    const LugarAPA alli = cuadricula_.lugar(lado.arbol);
    const DireccionAPA direccion{lado.vecino.x / lado.distancia, lado.vecino.y / lado.distancia};
    const double semiancho = 2 * lado.seno * cuadricula_.extension();
    const double deLaCalle = lineas_.semianchoDeBalde();
    if (semiancho < 0.9 * deLaCalle && calles_.vacia(alli, aqui)) {
        return;
    }
    // The tree and that of the side.
    if (lineas_.cuantosCerca(i, direccion, std::max(semiancho, deLaCalle)) <= 2) {
        calles_.anotar(aqui, alli);
        return;
    }
    lineas_.enfiladas(i, direccion, 2 * lado.seno, enfiladas_);
}

/// docs/apa.md, "Directions near an axis".
double CercanosAPA::senoDeLosEjes() const {
    const auto termino = [](double L) { return (L + 1) * (L + 1) / L; };
    const double peor = std::max(termino(anillo_.vecinoMasCercano), termino(2 * cuadricula_.extension()));
    return std::sqrt(512 * u * (peor + medida_));
}

} // namespace varo
