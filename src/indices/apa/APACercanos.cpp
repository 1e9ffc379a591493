#include "indices/apa/APACercanos.h"

#include "basico/Saltando.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace varo {

namespace {

constexpr double redondeo = std::numeric_limits<double>::epsilon() / 2;
constexpr double masAllaDelRadio = 1.025;  // a circle is surely larger than R
constexpr double masAllaDelAlcance = 1.05; // a neighbour is surely farther than 2 R
constexpr double senoDesmedido = 0.05;

} // namespace

CercanosAPA::CercanosAPA(const PesosAPA& pesos)
    : pesos_{pesos}, malla_{pesos}, medida_{malla_.mayorCoordenada() + 2 * malla_.extension()},
      dudoso_(pesos.arboles().cuantos()) {
    marcarDudosos();
}

/// A subject without a weight to divide by, or with a tree of the same x, or almost: no search by distance
/// knows what happens there.
void CercanosAPA::marcarDudosos() {
    constexpr double desmedido = 1E+100;
    const Arboles& arboles = pesos_.arboles();
    std::vector<Fila> porX;
    for (Fila i = 0; i < arboles.cuantos(); ++i) {
        if (!arboles.sinTamano(i)) {
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
    if (dudoso_[i] || medida_ > 1E+12) {
        return false;
    }
    double medioLado = 2 * malla_.lado();
    filas_.clear();
    malla_.cuadro(i, medioLado, filas_);
    while (true) {
        enOrden(filas_);
        if (filas_.size() > malla_.cuantos() / 2) {
            return false;
        }
        // A fault among some of the trees may not be the fault among all of them.
        if (saltando([&] {
                ReunirVecinos(pesos_, filas_, pareja, vecinos);
                giro.dar(vecinos, pareja);
            })) {
            return false;
        }
        const auto anillo = cerrar(vecinos, giro.lados());
        if (!anillo || giro.mayorRadio() > anillo->radio * masAllaDelRadio) {
            medioLado *= 2;
            malla_.cuadro(i, medioLado, filas_);
            continue;
        }
        if (!buscarNecesarias(i, *anillo, vecinos, giro.lados())) {
            return false;
        }
        if (std::includes(filas_.begin(), filas_.end(), necesarias_.begin(), necesarias_.end())) {
            return true;
        }
        filas_.insert(filas_.end(), necesarias_.begin(), necesarias_.end());
    }
}

std::optional<CercanosAPA::Anillo> CercanosAPA::cerrar(const VecinosAPA& vecinos,
                                                       const std::vector<LadoAPA>& lados) {
    constexpr double senoMinimo = 1E-6;
    constexpr double holgura = 1 + 1E-6;
    Anillo anillo{0, std::numeric_limits<double>::infinity()};
    for (std::size_t v = 0; v < lados.size(); ++v) {
        const std::size_t a = lados[v].vecino;
        const std::size_t b = lados[v + 1 < lados.size() ? v + 1 : 0].vecino;
        const double ax = vecinos.x[a] - vecinos.xSujeto;
        const double ay = vecinos.y[a] - vecinos.ySujeto;
        const double bx = vecinos.x[b] - vecinos.xSujeto;
        const double by = vecinos.y[b] - vecinos.ySujeto;
        const double distanciaA = std::hypot(ax, ay);
        const double distancias = distanciaA * std::hypot(bx, by);
        const double cruz = ax * by - ay * bx;
        if (!(cruz > senoMinimo * distancias)) {
            return std::nullopt; // half a turn or more, or two in line
        }
        const double radio = distancias * std::hypot(bx - ax, by - ay) / (2 * cruz);
        anillo.radio = std::max(anillo.radio, radio * holgura);
        anillo.vecinoMasCercano = std::min(anillo.vecinoMasCercano, distanciaA);
    }
    return anillo;
}

bool CercanosAPA::buscarNecesarias(std::size_t i, const Anillo& anillo, const VecinosAPA& vecinos,
                                   const std::vector<LadoAPA>& lados) {
    if (!(anillo.vecinoMasCercano > 1E-4 * anillo.radio)) {
        return false;
    }
    necesarias_.clear();
    malla_.alAlcance(i, 2 * anillo.radio * masAllaDelAlcance, necesarias_);
    const double senoEjes = senoDeLosEjes(anillo.radio);
    if (!(senoEjes < senoDesmedido)) {
        return false;
    }
    malla_.enfiladas(i, {1, 0}, 2 * senoEjes, necesarias_);
    malla_.enfiladas(i, {0, 1}, 2 * senoEjes, necesarias_);
    for (const LadoAPA& lado : lados) {
        const double x = vecinos.x[lado.vecino] - vecinos.xSujeto;
        const double y = vecinos.y[lado.vecino] - vecinos.ySujeto;
        const double distancia = std::hypot(x, y);
        const double seno = senoDelLado(anillo, std::abs(y) / distancia);
        if (!(seno < senoDesmedido)) {
            return false;
        }
        malla_.enfiladas(i, {x / distancia, y / distancia}, 2 * seno, necesarias_);
    }
    enOrden(necesarias_);
    return true;
}

/// Farther than this from both axes, Heron's formula keeps the sign of its factors and the sine stays below
/// 1: with u the rounding and L the distance, the factors are right to 24 u (L + 1)^2 / (L sin^2), and the
/// base of length 1 to 2 u times the coordinate.
double CercanosAPA::senoDeLosEjes(double radio) const {
    const auto termino = [](double L) { return (L + 1) * (L + 1) / L; };
    const double peor = std::max(termino(2 * radio), termino(2 * malla_.extension()));
    return std::sqrt(512 * redondeo * (peor + medida_));
}

/// Farther than this from the line of a side's neighbour, the centre of the circle is found to less than
/// 100 u (M / R + 1) / (inclinacion * seno) of its distance, M the largest coordinate. The ring needs to
/// know it well enough not to take that neighbour for one within the circle, and near enough for
/// the roundings of the distances not to matter.
double CercanosAPA::senoDelLado(const Anillo& anillo, double inclinacion) const {
    const auto [R, cercano] = anillo;
    const double error = (masAllaDelRadio - 1) * cercano / (4 * R);
    const double centro = 512 * redondeo * (1 + medida_ / R) / (inclinacion * error);
    const double mayorCirculo = cercano * cercano / (64 * redondeo * R);
    return std::max(centro, 2 * (malla_.extension() + R) / mayorCirculo);
}

void CercanosAPA::enOrden(std::vector<Fila>& filas) {
    std::sort(filas.begin(), filas.end());
    filas.erase(std::unique(filas.begin(), filas.end()), filas.end());
}

} // namespace varo
