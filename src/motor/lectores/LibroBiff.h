// What a workbook says for all its sheets: the list of them, shared texts, formats, calendar and names.
#pragma once

#include "motor/TextosGuardados.h"
#include "motor/lectores/CadenasBiff.h"
#include "motor/lectores/NombresBiff.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo {

struct LibroBiff {
    struct Hoja {
        std::string nombre;
        std::size_t comienzo = 0; // the place of its BOF in the stream
        bool deCalculo = false;   // neither a chart nor a macro sheet
    };

    CadenasBiff cadenas;
    bool calendario1904 = false;
    std::vector<Hoja> hojas;
    ListaDeTextos textos;
    /// By a cell's format number: whether its numbers are dates.
    std::vector<bool> formatoEsFecha;
    std::vector<NombreDeZona> nombres;
};

/// Reads the globals at the beginning of a workbook stream. Damaged, encrypted or older than BIFF5:
/// ErrorMotor.
LibroBiff LeerLibro(Bytes flujo);

} // namespace varo
