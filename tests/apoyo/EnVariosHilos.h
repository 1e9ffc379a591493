// The same computation on one thread and on several.
#pragma once

#include "basico/Cuadrilla.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Reparto.h"

#include <functional>
#include <string>
#include <vector>

namespace varo::prueba {

/// Two threads and seven; they live as long as the tests.
inline const std::vector<Cuadrilla*>& Cuadrillas() {
    static Cuadrilla dos{2};
    static Cuadrilla siete{7};
    static const std::vector<Cuadrilla*> todas{&dos, &siete};
    return todas;
}

/// What a column came to: its values, or its fault with all its places.
struct FinDeColumna {
    std::vector<double> valores;
    std::string fallo;

    friend bool operator==(const FinDeColumna&, const FinDeColumna&) = default;
};

inline FinDeColumna FinDe(const std::function<std::vector<double>(const Faena&)>& calcular,
                          Cuadrilla* cuadrilla) {
    try {
        return {calcular({{}, cuadrilla}), {}};
    } catch (const ErrorEjecucion& error) {
        return {{}, error.what()};
    }
}

/// Whether all numbers of threads give what one gives.
inline bool LoMismoEnVariosHilos(const std::function<std::vector<double>(const Faena&)>& calcular) {
    const FinDeColumna enUno = FinDe(calcular, nullptr);
    for (Cuadrilla* const cuadrilla : Cuadrillas()) {
        if (FinDe(calcular, cuadrilla) != enUno) {
            return false;
        }
    }
    return true;
}

} // namespace varo::prueba
