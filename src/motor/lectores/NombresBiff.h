// Names of a workbook that stand for one rectangle of cells of one of its own sheets.
#pragma once

#include "motor/lectores/CadenasBiff.h"
#include "motor/lectores/HojaDeCalculo.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo {

struct NombreDeZona {
    std::string nombre;
    std::size_t hoja = 0; // its place in the workbook
    ZonaDeHoja zona;
};

/// Gathers the records that tell where references between sheets lead, and the names.
class NombresBiff {
public:
    void anadirLibroExterno(Bytes supBook);
    void anadirReferencias(LectorContinuo externSheet);
    void anadirNombre(LectorContinuo registro, const CadenasBiff& cadenas);

    /// The names that cover a rectangle, in the workbook's order. Call when all records are in. Left out:
    /// names that belong to one sheet, built-in ones and those that stand for anything else.
    [[nodiscard]] std::vector<NombreDeZona> zonas(bool biff8) const;

private:
    struct Referencia {
        std::size_t libro = 0;
        std::size_t primeraHoja = 0;
        std::size_t ultimaHoja = 0;
    };
    struct Nombre {
        std::string texto;
        std::vector<std::byte> formula;
    };

    [[nodiscard]] std::optional<std::size_t> hojaPropia(std::size_t numero) const;
    [[nodiscard]] std::optional<NombreDeZona> zonaBiff8(Bytes formula) const;

    std::vector<bool> libroEsPropio_;
    std::vector<Referencia> referencias_;
    std::vector<Nombre> nombres_;
};

} // namespace varo
