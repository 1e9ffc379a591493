// A workbook of Excel 97-2003 record by record, for the ones that no program writes.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {

class LibroAMano {
public:
    using Contenido = std::vector<std::byte>;

    /// A record of the whole workbook.
    LibroAMano& global(int tipo, const Contenido& contenido);
    /// The table of shared texts, whose cells know them by their place; one byte a letter.
    LibroAMano& textos(const std::vector<std::string>& textos);
    /// A sheet with these records, made by AnadirRegistro.
    LibroAMano& hoja(std::string nombre, Contenido registros);

    /// The stream, which is a workbook without its compound file.
    [[nodiscard]] Contenido flujo() const;

private:
    struct HojaDeRegistros {
        std::string nombre;
        Contenido registros;
    };

    Contenido globales_;
    std::vector<HojaDeRegistros> hojas_;
};

/// A MULRK record: a row of whole numbers from the first column on.
void AnadirMulRk(LibroAMano::Contenido& registros, std::size_t fila, std::size_t columnas);
/// A LABELSST record: a cell with a shared text.
void AnadirLabelSst(LibroAMano::Contenido& registros, std::size_t fila, std::size_t columna,
                    std::size_t texto);

} // namespace varo::prueba
