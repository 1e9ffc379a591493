// The data window: the grid with the working copy of the open sheet, and the connection behind it.
#pragma once

#include "formularios/Formulario.h"
#include "formularios/Rejilla.h"
#include "motor/ControlDatos.h"

namespace varo {

class Programa;

class Hojadedatos : public Formulario {
public:
    explicit Hojadedatos(Programa& programa);

    ControlDatos Data1;
    Rejilla MSFlexGrid1{*this, "MSFlexGrid1"};

    void Form_Resize() override;
    /// Never refuses.
    bool Form_QueryUnload() override;
    /// The rest of the closing of a file: the windows that hang on it go, the session is reset.
    void Form_Unload() override;

private:
    Programa& programa_;
};

} // namespace varo
