// What an .xlsx says for all its sheets: where they are, shared texts, formats, calendar and names.
#pragma once

#include "libros/ArchivoZip.h"
#include "motor/TextosGuardados.h"
#include "motor/lectores/TablasDeLibro.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

struct LibroXlsx {
    struct Hoja {
        std::string nombre;
        std::string parte;     // empty where the workbook does not say where it is
        bool deCalculo = true; // neither a chart nor a dialogue nor a macro sheet
    };

    std::vector<Hoja> hojas;
    std::vector<ZonaConNombre> nombres;
    bool calendario1904 = false;
    bool porCalcular = false; ///< the results of formulas hold nothing yet: programs wrote them as zeros
    ListaDeTextos textos;
    /// By the style of a cell: whether its numbers are dates.
    std::vector<bool> estiloEsFecha;
};

/// The part that the package says is its document; nothing where it is no package of that kind.
std::optional<std::string> PartePrincipal(const ArchivoZip& archivo);

/// `parte` is the main one. Damaged, or no workbook: ErrorMotor.
LibroXlsx LeerLibroXlsx(const ArchivoZip& archivo, const std::string& parte);

} // namespace varo
