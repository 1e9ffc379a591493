#include "indices/vecinos/Seleccion.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/Saltando.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace varo {

namespace {

constexpr double sinLimite = std::numeric_limits<double>::infinity();

constexpr Veredicto rechazado{Veredicto::Juicio::Rechazado};
constexpr Veredicto borde{Veredicto::Juicio::Borde};

} // namespace

Seleccion::Seleccion(Vecindad& vecindad, ReglaDeSeleccion regla, OrdenDeRango orden)
    : vecindad_{vecindad}, arboles_{vecindad.arboles}, regla_{regla}, orden_{orden}, cercanas_{arboles_} {}

void Seleccion::poner(double p) {
    assert(regla_ != ReglaDeSeleccion::Funcion);
    p_ = p;
    puesta_ = true;
    sujeto_.reset();
}

void Seleccion::poner(std::string entrada) {
    assert(regla_ == ReglaDeSeleccion::Funcion);
    entrada_ = std::move(entrada);
    funcion_.reset();
    puesta_ = true;
    sujeto_.reset();
}

void Seleccion::empezar(std::size_t i, Lado lado) {
    assert(puesta_ && !arboles_.sinTamano(i));
    sujeto_ = i;
    lado_ = lado;
    limite_.reset();
    clavesListas_ = false;
    sinFallos_ = false;
    const auto& buscador = vecindad_.buscador;
    pasoAPaso_ = !buscador.fiable() || (orden_ == OrdenDeRango::PorAngulo && buscador.comparteSitio(i));
    if (pasoAPaso_) {
        alcance_ = sinLimite;
        candidatos_ = vecindad_.todas;
        return;
    }
    switch (regla_) {
    case ReglaDeSeleccion::BAF:
        empezarPorAngulo();
        break;
    case ReglaDeSeleccion::NumeroFijo:
        empezarPorNumero();
        break;
    case ReglaDeSeleccion::Funcion:
    case ReglaDeSeleccion::Distancia:
        empezarPorLimite();
        break;
    }
}

/// What is left to fault, once nothing about the pairs can: the heights of the subject.
void Seleccion::confiar() {
    if (const auto altura = vecindad_.borde.alturaMinima(*sujeto_)) {
        alturaMinima_ = *altura;
        sinFallos_ = true;
    }
}

/// A tree is seen under too small an angle from farther than 50 / sqrt(p) times its diameter.
void Seleccion::empezarPorAngulo() {
    if (!(p_ > 0)) {
        proponer(sinLimite);
        return;
    }
    // All trees within one cell's side are candidates, so that those left out stand at a distance.
    alcance_ = vecindad_.buscador.lado();
    vecindad_.buscador.buscarPorTamano(*sujeto_, 50 / std::sqrt(p_), alcance_, cercanas_);
    candidatos_ = cercanas_.filas;
    if (!vecindad_.buscador.comparteSitio(*sujeto_)) {
        confiar();
    }
}

/// Searches wider and wider circles, until no tree outside can rank among the first p.
void Seleccion::empezarPorNumero() {
    const auto& buscador = vecindad_.buscador;
    const double puesto = std::max(1.0, std::floor(p_));
    const auto mejorDeFuera = [&](double radio) {
        return orden_ == OrdenDeRango::PorDistancia ? -radio
                                                    : std::max(buscador.mayorD(), 0.0) / radio * (1 + 1E-9);
    };
    const double abundantes = std::min(2 * puesto + 6, static_cast<double>(buscador.cuantos()));
    double radio = buscador.lado() * std::sqrt(abundantes / (2 * numeroPi));
    for (;; radio *= 1.5) {
        proponer(radio);
        reunirClaves();
        ordenarClaves();
        if (radio >= buscador.extension()) {
            break;
        }
        const bool bastan = static_cast<double>(claves_.size()) >= puesto;
        if (bastan && claves_[static_cast<std::size_t>(puesto) - 1] > mejorDeFuera(radio)) {
            break;
        }
    }
    if (static_cast<double>(claves_.size()) > puesto) {
        dejarLosPrimeros(puesto);
    }
    confiar();
}

void Seleccion::dejarLosPrimeros(double puesto) {
    const double umbral = claves_[static_cast<std::size_t>(puesto) - 1];
    std::erase_if(cercanas_.filas, [&](Fila j) { return clave(j) < umbral; });
    candidatos_ = cercanas_.filas;
    alcance_ = orden_ == OrdenDeRango::PorDistancia ? -umbral : 0;
}

/// The heights and the limit are the same for all candidates: the first one decides whether the subject is a
/// border tree, however far it stands.
void Seleccion::empezarPorLimite() {
    bool sigue = false;
    Saltando([&] { sigue = !vecindad_.borde.algunaAlturaMenor(*sujeto_, limite()); });
    if (sigue) {
        proponer(std::max(limite(), vecindad_.buscador.lado()));
        sinFallos_ = true;
    } else {
        dejarElPrimero();
    }
}

/// The one that ends the subject, if there is one.
void Seleccion::dejarElPrimero() {
    assert(vecindad_.primero);
    cercanas_.filas.clear();
    if (const auto primero = vecindad_.primero->de(*sujeto_, lado_)) {
        cercanas_.filas.push_back(static_cast<Fila>(*primero));
    }
    candidatos_ = cercanas_.filas;
    alcance_ = sinLimite;
}

void Seleccion::proponer(double alcance) {
    alcance_ = alcance;
    vecindad_.buscador.buscar(*sujeto_, alcance, cercanas_);
    candidatos_ = cercanas_.filas;
}

std::optional<Seleccion::Distancias> Seleccion::distanciasDeApartados() const {
    assert(sujeto_);
    if (pasoAPaso_ || alcance_ >= vecindad_.buscador.extension()) {
        return std::nullopt;
    }
    return Distancias{alcance_, vecindad_.buscador.extension()};
}

std::span<const Juzgado> Seleccion::juzgados() {
    assert(sinFallos());
    medirCercanas();
    const auto& filas = cercanas_.filas;
    juzgados_.resize(filas.size());
    std::size_t cuantos = 0;
    const double suya = arboles_.d(*sujeto_);
    for (std::size_t n = 0; n < filas.size(); ++n) {
        const double d = arboles_.d(filas[n]);
        if (!PuedeCompetir(lado_, d, suya)) {
            continue;
        }
        const Veredicto veredicto = juzgarSinFallos(d, distancias_[n]);
        juzgados_[cuantos++] = {filas[n], d, distancias_[n], veredicto};
        if (veredicto.juicio == Veredicto::Juicio::Borde) {
            break;
        }
    }
    return {juzgados_.data(), cuantos};
}

Seleccion::Medidas Seleccion::medidas() {
    assert(bastaLaDistancia());
    medirCercanas();
    const auto& filas = cercanas_.filas;
    tamanos_.resize(filas.size());
    std::size_t cuantas = 0;
    const double suya = arboles_.d(*sujeto_);
    for (std::size_t n = 0; n < filas.size(); ++n) {
        const double d = arboles_.d(filas[n]);
        tamanos_[cuantas] = d;
        distancias_[cuantas] = distancias_[n];
        cuantas += PuedeCompetir(lado_, d, suya) ? 1 : 0;
    }
    return {{tamanos_.data(), cuantas}, {distancias_.data(), cuantas}, limite()};
}

/// The roots apart, so that they are taken side by side.
void Seleccion::medirCercanas() {
    const std::span<const double> x = arboles_.celdas().x.numeros();
    const std::span<const double> y = arboles_.celdas().y.numeros();
    const double xi = x[*sujeto_];
    const double yi = y[*sujeto_];
    const auto& filas = cercanas_.filas;
    distancias_.resize(filas.size());
    for (std::size_t n = 0; n < filas.size(); ++n) {
        const double dx = x[filas[n]] - xi;
        const double dy = y[filas[n]] - yi;
        distancias_[n] = dx * dx + dy * dy;
    }
    for (double& L : distancias_) {
        L = std::sqrt(L);
    }
}

/// As `juzgar`, step by step.
Veredicto Seleccion::juzgarSinFallos(double d, double L) {
    constexpr auto aceptado = Veredicto::Juicio::Aceptado;
    const auto rangoPorAngulo = [&] { return orden_ == OrdenDeRango::PorAngulo ? rangoDe(d / L) : 1; };
    switch (regla_) {
    case ReglaDeSeleccion::BAF: {
        const double raiz = std::sqrt(p_);
        if (!(d / L > raiz / 50)) {
            return rechazado;
        }
        return alturaMinima_ < d * 50 / raiz ? borde : Veredicto{aceptado, rangoPorAngulo()};
    }
    case ReglaDeSeleccion::NumeroFijo: {
        const int suyo = rangoDe(claveDe(d, L));
        if (pasaDelNumero(suyo)) {
            return rechazado;
        }
        return alturaMinima_ < L ? borde : Veredicto{aceptado, suyo};
    }
    case ReglaDeSeleccion::Funcion:
    case ReglaDeSeleccion::Distancia:
        break;
    }
    return L <= limite() ? Veredicto{aceptado, rangoPorAngulo()} : rechazado;
}

Veredicto Seleccion::juzgar(std::size_t j) {
    assert(sujeto_);
    switch (regla_) {
    case ReglaDeSeleccion::BAF:
        return juzgarPorAngulo(j);
    case ReglaDeSeleccion::NumeroFijo:
        return juzgarPorNumero(j);
    case ReglaDeSeleccion::Funcion:
    case ReglaDeSeleccion::Distancia:
        break;
    }
    return juzgarPorLimite(j);
}

Veredicto Seleccion::juzgarPorAngulo(std::size_t j) {
    const double vista = razon(j);
    const double raiz = Raiz(p_);
    if (!(vista > raiz / 50)) {
        return rechazado;
    }
    const double Rl = Dividir(arboles_.d(j) * 50, raiz);
    return vecindad_.borde.algunaAlturaMenor(*sujeto_, Rl) ? borde : aceptar(j);
}

Veredicto Seleccion::juzgarPorNumero(std::size_t j) {
    const int suyo = rango(j);
    if (pasaDelNumero(suyo)) {
        return rechazado;
    }
    if (vecindad_.borde.algunaAlturaMenor(*sujeto_, L(j))) {
        return borde;
    }
    return {Veredicto::Juicio::Aceptado, suyo};
}

Veredicto Seleccion::juzgarPorLimite(std::size_t j) {
    // Meant: before the distance is compared, so that a candidate that is too far makes a border tree too.
    if (vecindad_.borde.algunaAlturaMenor(*sujeto_, limite())) {
        return borde;
    }
    return L(j) <= limite() ? aceptar(j) : rechazado;
}

Veredicto Seleccion::aceptar(std::size_t j) {
    return {Veredicto::Juicio::Aceptado, orden_ == OrdenDeRango::PorAngulo ? rango(j) : 1};
}

double Seleccion::L(std::size_t j) const {
    assert(sujeto_);
    const double xi = arboles_.x(*sujeto_);
    const double yi = arboles_.y(*sujeto_);
    const double xj = arboles_.x(j);
    const double yj = arboles_.y(j);
    return Distancia(xi, yi, xj, yj);
}

double Seleccion::limite() {
    if (regla_ == ReglaDeSeleccion::Distancia) {
        return p_;
    }
    if (!limite_) {
        if (!funcion_) {
            funcion_ = LeerFuncionDeLimite(entrada_);
        }
        limite_ = funcion_->en(arboles_.d(*sujeto_));
    }
    return *limite_;
}

double Seleccion::razon(std::size_t j) const {
    const double d = arboles_.d(j);
    return Porque(
        fallo::divisionPorCero, [] { return "los dos árboles están en el mismo sitio"; },
        [&] { return Dividir(d, L(j)); });
}

/// What ranks compare: the greater, the better.
double Seleccion::clave(std::size_t j) const {
    return orden_ == OrdenDeRango::PorAngulo ? razon(j) : -L(j);
}

double Seleccion::claveDe(double d, double L) const {
    return orden_ == OrdenDeRango::PorAngulo ? d / L : -L;
}

int Seleccion::rango(std::size_t j) {
    return pasoAPaso_ ? rangoPasoAPaso(j) : rangoDe(clave(j));
}

/// Of a few keys the better ones are sooner counted than the keys sorted.
int Seleccion::rangoDe(double clave) {
    constexpr std::size_t pocas = 128;
    if (!clavesListas_) {
        reunirClaves();
        if (claves_.size() > pocas) {
            ordenarClaves();
        }
    }
    if (clavesEnOrden_) {
        const auto noMejor = std::lower_bound(claves_.begin(), claves_.end(), clave, std::greater<>{});
        return static_cast<int>(noMejor - claves_.begin()) + 1;
    }
    std::size_t mejores = 0;
    for (const double otra : claves_) {
        mejores += otra > clave ? 1 : 0;
    }
    return static_cast<int>(mejores) + 1;
}

void Seleccion::reunirClaves() {
    claves_.clear();
    for (const Fila m : cercanas_.filas) {
        if (!limita() || L(m) <= limite()) {
            claves_.push_back(clave(m));
        }
    }
    clavesListas_ = true;
    clavesEnOrden_ = false;
}

void Seleccion::ordenarClaves() {
    std::sort(claves_.begin(), claves_.end(), std::greater<>{});
    clavesEnOrden_ = true;
}

/// The rank counted tree by tree, for a subject with which some step may fault. Under a fixed number the
/// count ends where the candidate is out.
int Seleccion::rangoPasoAPaso(std::size_t j) {
    int suyo = 1;
    for (std::size_t m = 0; m < arboles_.cuantos(); ++m) {
        if (m == *sujeto_ || m == j || arboles_.sinTamano(m)) {
            continue;
        }
        const auto situar = [&](ErrorEjecucion& error) {
            if (!error.fila()) {
                error.en("frente al árbol de la " + arboles_.padron().breve(m));
            }
        };
        suyo += AlFallar(situar, [&] { return adelanta(m, j); }) ? 1 : 0;
        if (regla_ == ReglaDeSeleccion::NumeroFijo && pasaDelNumero(suyo)) {
            break;
        }
    }
    return suyo;
}

/// Whether tree m counts in ranks and is strictly better than tree j.
bool Seleccion::adelanta(std::size_t m, std::size_t j) {
    if (limita() && !(L(m) <= limite())) {
        return false;
    }
    const double otra = clave(m);
    return otra > clave(j);
}

/// The first in rank is within every number: even p = 0 takes it.
bool Seleccion::pasaDelNumero(int rango) const {
    return rango > 1 && rango > p_;
}

} // namespace varo
