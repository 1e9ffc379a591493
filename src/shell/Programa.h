// The one instance of everything: the windows, the shared variables and the results of the last run.
#pragma once

#include "formularios/Ventanas.h"
#include "indices/ResultadosIndices.h"
#include "shell/Sesion.h"

namespace varo {

class Programa : public Ventanas {
public:
    explicit Programa(Servicios& servicios) : Ventanas{servicios} {}

    Sesion sesion;
    ResultadosIndices resultados;
    /// The faults that the last saving of a results file passed over.
    std::vector<ErrorEjecucion> fallosAlGuardar;

    /// The window F; touching it creates it hidden, in its design state, when it is not loaded.
    template <class F>
    F& tocar() {
        return tocarEn<F>(*this);
    }
};

} // namespace varo
