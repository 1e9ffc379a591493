// A guess at the roles of the fields of a table, by the headers that are usual in field sheets.
#pragma once

#include "motor/Tabla.h"
#include "plot/calculo/Unidades.h"

#include <map>
#include <string>

namespace varo {

struct Propuesta {
    /// Role ("X", "DAP") to the header of its field. The last field of a table is never proposed: the
    /// program does not get its data.
    std::map<std::string, std::string, std::less<>> papeles;
    DatosDeCopa copa = DatosDeCopa::CuatroRadios;
    bool esCircunferencia = true; ///< what the proposed stem size is: a girth or a diameter
};

Propuesta ProponerPapeles(const Tabla& tabla);

} // namespace varo
