#include "indices/vecinos/Seleccion.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

namespace varo {

namespace {

constexpr double sinLimite = std::numeric_limits<double>::infinity();

constexpr Veredicto rechazado{Veredicto::Clase::Rechazado};
constexpr Veredicto borde{Veredicto::Clase::Borde};

} // namespace

Seleccion::Seleccion(Vecindad& vecindad, ReglaDeSeleccion regla, OrdenDeRango orden)
    : vecindad_{vecindad}, arboles_{vecindad.arboles}, regla_{regla}, orden_{orden} {}

void Seleccion::poner(std::string entrada) {
    entrada_ = std::move(entrada);
    funcion_.reset();
}

void Seleccion::empezar(std::size_t i, bool unilateral) {
    sujeto_ = i;
    limite_.reset();
    clavesListas_ = false;
    const auto& vecindario = vecindad_.vecindario;
    pasoAPaso_ = !vecindario.fiable() || (orden_ == OrdenDeRango::PorAngulo && vecindario.comparteSitio(i));
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
        empezarPorLimite(unilateral);
        break;
    }
}

/// A tree looks too small from farther away than so many times its diameter.
void Seleccion::empezarPorAngulo() {
    if (!(p_ > 0)) {
        proponer(sinLimite);
        return;
    }
    // The nearest ones are all taken, so that whatever is left out stands at a distance.
    alcance_ = vecindad_.vecindario.lado();
    vecindad_.vecindario.buscarPorTamano(sujeto_, 50 / std::sqrt(p_), alcance_, cercanas_);
    candidatos_ = cercanas_;
}

/// Looks round in wider and wider circles, until no tree outside can come among the first p.
void Seleccion::empezarPorNumero() {
    const auto& vecindario = vecindad_.vecindario;
    const double puesto = std::max(1.0, std::floor(p_));
    const auto mejorDeFuera = [&](double radio) {
        return orden_ == OrdenDeRango::PorDistancia ? -radio
                                                    : std::max(vecindario.mayorD(), 0.0) / radio * (1 + 1E-9);
    };
    const double abundantes = std::min(2 * puesto + 6, static_cast<double>(vecindario.cuantos()));
    double radio = vecindario.lado() * std::sqrt(abundantes / (2 * Pi));
    for (;; radio *= 1.5) {
        proponer(radio);
        ordenarClaves();
        if (radio >= vecindario.extension()) {
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

/// The first competitor settles whether the subject is a border tree, however far it stands.
void Seleccion::empezarPorLimite(bool unilateral) {
    cercanas_.clear();
    candidatos_ = cercanas_;
    alcance_ = sinLimite;
    const auto primero = vecindad_.primero.value().de(sujeto_, unilateral);
    if (!primero) {
        return;
    }
    bool sigue = false;
    saltando([&] { sigue = !vecindad_.borde.algunaAlturaMenor(sujeto_, limite()); });
    if (sigue) {
        proponer(std::max(limite(), vecindad_.vecindario.lado()));
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
    vecindad_.vecindario.buscar(sujeto_, alcance, cercanas_);
    candidatos_ = cercanas_;
}

Veredicto Seleccion::juzgar(std::size_t j) {
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
    return vecindad_.borde.algunaAlturaMenor(sujeto_, Rl) ? borde : aceptar(j);
}

Veredicto Seleccion::juzgarPorNumero(std::size_t j) {
    const int suyo = rango(j);
    // The first in rank is not asked: with p = 0 it is taken all the same.
    if (suyo > 1 && suyo > p_) {
        return rechazado;
    }
    if (vecindad_.borde.algunaAlturaMenor(sujeto_, L(j))) {
        return borde;
    }
    return {Veredicto::Clase::Aceptado, suyo};
}

Veredicto Seleccion::juzgarPorLimite(std::size_t j) {
    // Before the distance is looked at: a candidate that is too far makes a border tree too, which is meant.
    if (vecindad_.borde.algunaAlturaMenor(sujeto_, limite())) {
        return borde;
    }
    return L(j) <= limite() ? aceptar(j) : rechazado;
}

Veredicto Seleccion::aceptar(std::size_t j) {
    return {Veredicto::Clase::Aceptado, orden_ == OrdenDeRango::PorAngulo ? rango(j) : 1};
}

double Seleccion::L(std::size_t j) const {
    const double xi = arboles_.x(sujeto_);
    const double yi = arboles_.y(sujeto_);
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
        limite_ = funcion_->en(arboles_.d(sujeto_));
    }
    return *limite_;
}

double Seleccion::razon(std::size_t j) const {
    const double d = arboles_.d(j);
    return Dividir(d, L(j));
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

/// Tree by tree, and no farther than a fixed number asks for: for a subject with which some step may fault.
int Seleccion::rangoPasoAPaso(std::size_t j) {
    int suyo = 1;
    for (std::size_t m = 0; m < arboles_.cuantos(); ++m) {
        if (m == sujeto_ || m == j || arboles_.sinTamano(m)) {
            continue;
        }
        try {
            if (limita() && !(L(m) <= limite())) {
                continue;
            }
            const double otra = clave(m);
            suyo += otra > clave(j) ? 1 : 0;
        } catch (ErrorEjecucion& error) {
            error.en("frente al de la fila " + std::to_string(m + 1));
            throw;
        }
        if (regla_ == ReglaDeSeleccion::NumeroFijo && suyo > 1 && suyo > p_) {
            break;
        }
    }
    return suyo;
}

} // namespace varo
