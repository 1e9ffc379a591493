// The sheets of a workbook and the names over its rectangles, as tables.
#pragma once

#include "motor/Tabla.h"
#include "motor/lectores/HojaDeCalculo.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace varo {

/// A rectangle of one sheet, which the workbook names.
struct ZonaEscrita {
    std::string hoja;
    ZonaDeHoja zona;
};

struct ZonaConNombre {
    std::string nombre;
    ZonaEscrita zona;
};

/// What is wrong with a workbook and, for a damaged one, what its owner can do.
std::string DefectoConRemedio(const ErrorMotor& error);

/// A sheet that cannot be read is a table that tells why, and so are the names over it; the others are not
/// touched.
class TablasDeLibro {
public:
    /// `archivo` is the name that the faults tell.
    TablasDeLibro(std::string archivo, std::vector<ZonaConNombre> nombres, LimitesDeLectura& limites);

    /// The next sheet of the workbook, which `leer` gives.
    void anadirHoja(const std::string& nombre, const std::function<HojaDeCalculo()>& leer);
    /// The sheets, and behind them the names in their order. Where no sheet can be read it throws what was
    /// wrong with the first.
    [[nodiscard]] std::vector<Tabla> acabar();

private:
    using NombresPorHoja = std::multimap<std::string, std::size_t>;

    [[nodiscard]] Tabla conDefecto(const std::string& tabla, const std::string& hoja,
                                   const ErrorMotor& error) const;

    std::string archivo_;
    std::vector<ZonaConNombre> nombres_;
    LimitesDeLectura& limites_;
    NombresPorHoja nombresPorHoja_;
    std::vector<Tabla> tablas_;
    std::map<std::size_t, Tabla> tablasDeNombres_;
    std::optional<ErrorMotor> primerFallo_;
};

} // namespace varo
