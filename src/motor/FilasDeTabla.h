// The rows of a table, of which only the cells that hold something take room.
#pragma once

#include "basico/Valor.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace varo {

struct CeldaDeFila {
    std::uint16_t columna = 0;
    Valor valor;

    friend bool operator==(const CeldaDeFila&, const CeldaDeFila&) = default;
};

/// One row of a table, which must outlive it.
class FilaDeTabla {
public:
    explicit FilaDeTabla(std::span<const CeldaDeFila> celdas) : celdas_{celdas} {}

    /// The value of a column, counted from 0; null where the row has no cell.
    const Valor& operator[](std::size_t columna) const;

    [[nodiscard]] std::span<const CeldaDeFila> celdas() const { return celdas_; }

private:
    std::span<const CeldaDeFila> celdas_;
};

/// A note in row 60000 makes a sheet that long and takes the room of one cell.
class FilasDeTabla {
public:
    FilasDeTabla() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): rows that are written out are rows
    FilasDeTabla(std::vector<std::vector<Valor>> filas);

    [[nodiscard]] std::size_t size() const { return cuantas_; }
    [[nodiscard]] bool empty() const { return cuantas_ == 0; }
    [[nodiscard]] FilaDeTabla operator[](std::size_t fila) const;
    /// How many rows hold anything.
    [[nodiscard]] std::size_t conContenido() const { return llenas_.size(); }

    /// Adds empty rows behind the last one, up to so many in all.
    void alargar(std::size_t cuantas);
    /// Adds a row behind the last one.
    void anadir(std::vector<Valor> valores);
    /// Puts a cell into the last row that has one, or into a row below, and to the right of what stands
    /// there. The same place again replaces the value.
    void poner(std::size_t fila, std::size_t columna, Valor valor);

    friend bool operator==(const FilasDeTabla& una, const FilasDeTabla& otra);

private:
    struct FilaLlena {
        std::size_t fila = 0;
        std::size_t comienzo = 0; // in celdas_
    };

    std::vector<CeldaDeFila> celdas_;
    std::vector<FilaLlena> llenas_;
    std::size_t cuantas_ = 0;
};

} // namespace varo
