// Whoever hears a long computation in a test.
#pragma once

#include "basico/Avance.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo::prueba {

/// Notes each stage once, counts the calls over all of them, and cancels at the one that is told.
struct OyenteDePrueba : OyenteDeAvance {
    std::optional<std::size_t> cancelarEn; ///< from 1
    std::size_t oidos = 0;
    std::vector<std::string> etapas;
    Marcha ultima;

    bool oir(const Marcha& marcha) override {
        ++oidos;
        if (etapas.empty() || etapas.back() != marcha.etapa) {
            etapas.push_back(marcha.etapa);
        }
        ultima = marcha;
        return oidos == cancelarEn;
    }
};

} // namespace varo::prueba
