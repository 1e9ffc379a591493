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
    : vecindad_{vecindad}, arboles_{vecindad.arboles}, regla_{regla}, orden_{orden} {}

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
    limite_.reset();
    clavesListas_ = false;
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
        empezarPorLimite(lado);
        break;
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
    candidatos_ = cercanas_;
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
}

void Seleccion::dejarLosPrimeros(double puesto) {
    const double umbral = claves_[static_cast<std::size_t>(puesto) - 1];
    std::erase_if(cercanas_, [&](Fila j) { return clave(j) < umbral; });
    candidatos_ = cercanas_;
    alcance_ = orden_ == OrdenDeRango::PorDistancia ? -umbral : 0;
}

/// The first competitor decides whether the subject is a border tree, however far it stands.
void Seleccion::empezarPorLimite(Lado lado) {
    cercanas_.clear();
    candidatos_ = cercanas_;
    alcance_ = sinLimite;
    assert(vecindad_.primero);
    const auto primero = vecindad_.primero->de(*sujeto_, lado);
    if (!primero) {
        return;
    }
    bool sigue = false;
    Saltando([&] { sigue = !vecindad_.borde.algunaAlturaMenor(*sujeto_, limite()); });
    if (sigue) {
        proponer(std::max(limite(), vecindad_.buscador.lado()));
    }
    const auto j = static_cast<Fila>(*primero);
    const auto sitio = std::lower_bound(cercanas_.begin(), cercanas_.end(), j);
    if (sitio == cercanas_.end() || *sitio != j) {
        cercanas_.insert(sitio, j);
    }
    candidatos_ = cercanas_;
}

void Seleccion::proponer(double alcance) {
    alcance_ = alcance;
    vecindad_.buscador.buscar(*sujeto_, alcance, cercanas_);
    candidatos_ = cercanas_;
}

std::optional<Seleccion::Distancias> Seleccion::distanciasDeApartados() const {
    assert(sujeto_);
    if (pasoAPaso_ || alcance_ >= vecindad_.buscador.extension()) {
        return std::nullopt;
    }
    return Distancias{alcance_, vecindad_.buscador.extension()};
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

int Seleccion::rango(std::size_t j) {
    if (pasoAPaso_) {
        return rangoPasoAPaso(j);
    }
    if (!clavesListas_) {
        ordenarClaves();
    }
    const auto noMejor = std::lower_bound(claves_.begin(), claves_.end(), clave(j), std::greater<>{});
    return static_cast<int>(noMejor - claves_.begin()) + 1;
}

void Seleccion::ordenarClaves() {
    claves_.clear();
    for (const Fila m : cercanas_) {
        if (!limita() || L(m) <= limite()) {
            claves_.push_back(clave(m));
        }
    }
    std::sort(claves_.begin(), claves_.end(), std::greater<>{});
    clavesListas_ = true;
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
