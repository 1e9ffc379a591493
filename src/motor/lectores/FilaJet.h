// A row of a table, cut into its fields.
#pragma once

#include "motor/lectores/DefinicionJet.h"

#include <cstddef>
#include <vector>

namespace varo {

class FilaJet {
public:
    /// A row too short for what it says of itself throws ErrorMotor.
    FilaJet(Bytes bytes, const DefinicionJet& definicion, bool jet3);

    /// The bit of a column: whether the field holds something; of a truth value, the value itself. A column
    /// that came after the row has none.
    [[nodiscard]] bool marcado(const ColumnaJet& columna) const;
    /// The bytes of a marked field.
    [[nodiscard]] Bytes campo(const ColumnaJet& columna) const;

private:
    void leerLugaresJet3(std::size_t fin);
    void leerLugaresJet4(std::size_t fin);
    void comprobarLugares(std::size_t fin) const;
    [[nodiscard]] Bytes campoFijo(const ColumnaJet& columna) const;
    [[nodiscard]] std::size_t fijosHasta() const { return lugares_.empty() ? mascara_ : lugares_.front(); }

    Bytes bytes_;
    std::size_t cabecera_; // the count of columns
    std::size_t columnas_; // that the table had when the row was written
    std::size_t mascara_;  // where the bits begin
    /// Where the fields of any length begin, and where the last one ends.
    std::vector<std::size_t> lugares_;
};

} // namespace varo
