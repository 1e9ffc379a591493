// The rows of a table, of which only the cells that hold something take room.
#pragma once

#include "basico/Valor.h"
#include "motor/CeldasJuntas.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

namespace varo {

/// One row of a table, which must outlive it.
class FilaDeTabla {
public:
    FilaDeTabla(const CeldasJuntas& celdas, std::size_t comienzo, std::size_t fin)
        : celdas_{&celdas}, comienzo_{comienzo}, fin_{fin} {}

    /// The value of a column, counted from 0; null where the row has no cell.
    [[nodiscard]] ValorDeCelda operator[](std::size_t columna) const;

    /// The cells that hold something, by columns.
    [[nodiscard]] std::size_t celdas() const { return fin_ - comienzo_; }
    [[nodiscard]] CeldaConSitio celda(std::size_t i) const { return (*celdas_)[comienzo_ + i]; }
    /// The last of them; there must be one.
    [[nodiscard]] CeldaConSitio ultima() const { return (*celdas_)[fin_ - 1]; }

private:
    const CeldasJuntas* celdas_;
    std::size_t comienzo_;
    std::size_t fin_;
};

/// A note in row 60000 makes a sheet that long and takes the room of one cell.
class FilasDeTabla {
public:
    FilasDeTabla() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): rows that are written out are rows
    FilasDeTabla(const std::vector<std::vector<Valor>>& filas);

    [[nodiscard]] std::size_t size() const { return cuantas_; }
    [[nodiscard]] bool empty() const { return cuantas_ == 0; }
    [[nodiscard]] FilaDeTabla operator[](std::size_t fila) const;
    /// How many rows hold anything.
    [[nodiscard]] std::size_t conContenido() const { return comienzos_ ? comienzos_->size() : 0; }

    /// Adds empty rows behind the last one, up to so many in all.
    void alargar(std::size_t cuantas);
    /// Adds a row behind the last one.
    void anadir(const std::vector<Valor>& valores);
    /// Puts a cell into the last row that has one, or into a row below, and to the right of what stands
    /// there. The same place again replaces the value.
    void poner(std::size_t fila, std::size_t columna, const ValorDeCelda& valor);
    void poner(std::size_t fila, std::size_t columna, const Valor& valor) {
        poner(fila, columna, ValorDeCelda{valor});
    }

    friend bool operator==(const FilasDeTabla& una, const FilasDeTabla& otra);

private:
    CeldasJuntas celdas_;
    std::optional<std::deque<std::uint32_t>> comienzos_; // in celdas_, of each row that holds anything
    std::size_t cuantas_ = 0;
};

} // namespace varo
