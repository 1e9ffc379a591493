// The wheel against the search that it stands in for.
#include "indices/apa/APARueda.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <numeric>
#include <optional>
#include <random>

namespace varo {
namespace {

using Vecino = RuedaAPA::Vecino;

using Fila = RuedaAPA::Fila;

/// Looks at all neighbours that are left for the smallest turn from a direction; of a tie the first row.
class Busqueda {
public:
    Busqueda(const std::vector<double>& angulos, const std::vector<Fila>& filas, Vecino primero)
        : angulos_{angulos}, filas_{filas}, visitado_(angulos.size()), desde_{angulos[primero]} {
        visitado_[primero] = true;
    }

    std::optional<Vecino> sacar() {
        double menor = 370;
        ultimo_.reset();
        for (Vecino v = 0; v < angulos_.size(); ++v) {
            const double a = angulos_[v];
            const double giro = a < desde_ ? 360.0 - (desde_ - a) : a - desde_;
            const bool primeraFila = ultimo_ && filas_[v] < filas_[*ultimo_];
            if (!visitado_[v] && (giro < menor || (giro == menor && primeraFila))) {
                menor = giro;
                ultimo_ = v;
            }
        }
        if (ultimo_) {
            visitado_[*ultimo_] = true;
        }
        return ultimo_;
    }

    void tomar() { desde_ = angulos_[ultimo_.value()]; }

private:
    const std::vector<double>& angulos_;
    const std::vector<Fila>& filas_;
    std::vector<bool> visitado_;
    double desde_;
    std::optional<Vecino> ultimo_;
};

RC_GTEST_PROP(APARueda, SacaLosVecinosEnElOrdenDeLaBusqueda, ()) {
    const auto cuartos = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 1440)));
    std::vector<double> angulos;
    for (const int cuarto : cuartos) {
        angulos.push_back(cuarto * 0.25);
        if (cuarto % 5 == 0) {
            // Too little to survive the difference from another direction.
            angulos.push_back(cuarto * 0.25 + 1E-14);
        }
    }
    const auto primero = *rc::gen::inRange<Vecino>(0, static_cast<Vecino>(angulos.size()));
    std::vector<Fila> filas(angulos.size());
    std::iota(filas.begin(), filas.end(), Fila{0});
    std::shuffle(filas.begin(), filas.end(), std::mt19937{*rc::gen::arbitrary<unsigned>()});
    RuedaAPA rueda;
    rueda.llenar(angulos, filas, primero);
    Busqueda busqueda{angulos, filas, primero};
    while (!rueda.vacia()) {
        RC_ASSERT(rueda.sacar() == busqueda.sacar());
        if (*rc::gen::arbitrary<bool>()) {
            rueda.tomar();
            busqueda.tomar();
        }
    }
    RC_ASSERT(!busqueda.sacar());
}

TEST(APARueda, ConUnSoloVecinoEstaVacia) {
    const std::vector<double> angulos{45};
    const std::vector<Fila> filas{7};
    RuedaAPA rueda;
    rueda.llenar(angulos, filas, 0);
    EXPECT_TRUE(rueda.vacia());
}

} // namespace
} // namespace varo
