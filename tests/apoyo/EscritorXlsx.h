// Writes minimal .xlsx workbooks: whole tables, or any XML in the place of a part.
#pragma once

#include "apoyo/EscritorXls.h"
#include "apoyo/EscritorZip.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace varo::prueba {

/// The pieces of XML of a workbook; what is empty is left out.
struct LibroXlsxDePrueba {
    struct Hoja {
        std::string nombre;
        std::string filas;               ///< inside <sheetData>
        std::string clase = "worksheet"; ///< of its relationship
        std::string estado = {};
    };

    std::vector<Hoja> hojas;
    std::string textos = {};      ///< inside <sst>
    std::string estilos = {};     ///< inside <styleSheet>
    std::string nombres = {};     ///< inside <definedNames>
    std::string propiedades = {}; ///< attributes of <workbookPr>
    std::string calculo = {};     ///< attributes of <calcPr>
};

/// In the order of the package; the sheets are xl/worksheets/sheet1.xml and so on.
std::vector<ParteZip> PartesDe(const LibroXlsxDePrueba& libro);

std::vector<std::byte> EscribirXlsx(const LibroXlsxDePrueba& libro);

/// The same tables as EscribirXls writes, with shared texts.
std::vector<std::byte> EscribirXlsx(const std::vector<Hoja>& hojas);

/// Text as XML takes it.
std::string EnXml(const std::string& texto);

} // namespace varo::prueba
