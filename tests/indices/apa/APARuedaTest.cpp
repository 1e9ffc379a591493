// The wheel against the search that it stands in for.
#include "indices/apa/APARueda.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <optional>

namespace varo {
namespace {

using Vecino = RuedaAPA::Vecino;

/// Looks at all neighbours that are left for the smallest turn from a direction; of a tie the first one.
class Busqueda {
public:
    Busqueda(const std::vector<double>& angulos, Vecino primero)
        : angulos_{angulos}, visitado_(angulos.size()), desde_{angulos[primero]} {
        visitado_[primero] = true;
    }

    std::optional<Vecino> sacar() {
        double menor = 370;
        ultimo_.reset();
        for (Vecino v = 0; v < angulos_.size(); ++v) {
            const double a = angulos_[v];
            const double giro = a < desde_ ? 360.0 - (desde_ - a) : a - desde_;
            if (!visitado_[v] && giro < menor) {
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
    RuedaAPA rueda;
    rueda.llenar(angulos, primero);
    Busqueda busqueda{angulos, primero};
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
    RuedaAPA rueda;
    rueda.llenar(angulos, 0);
    EXPECT_TRUE(rueda.vacia());
}

} // namespace
} // namespace varo
