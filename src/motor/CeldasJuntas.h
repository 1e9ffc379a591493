// The cells of a sheet or of a table, sixteen bytes each, long texts apart.
#pragma once

#include "motor/TextosGuardados.h"
#include "motor/ValorDeCelda.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <memory>
#include <optional>

namespace varo {

/// A cell and where it stands, counted from 0.
struct CeldaConSitio {
    std::uint32_t fila = 0;
    std::uint16_t columna = 0;
    ValorDeCelda valor;
};

/// Cells in the order they came in. A copy shares the long texts.
class CeldasJuntas {
public:
    [[nodiscard]] std::size_t size() const { return celdas_ ? celdas_->size() : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] CeldaConSitio operator[](std::size_t i) const { return {fila(i), columna(i), valor(i)}; }
    [[nodiscard]] std::uint32_t fila(std::size_t i) const { return (*celdas_)[i].fila; }
    [[nodiscard]] std::uint16_t columna(std::size_t i) const { return (*celdas_)[i].columna; }
    [[nodiscard]] ValorDeCelda valor(std::size_t i) const;

    void anadir(std::size_t fila, std::size_t columna, const ValorDeCelda& valor);
    void cambiarUltima(const ValorDeCelda& valor);
    void quitarUltima() { celdas_->pop_back(); }

    /// By rows and within a row by columns; those of one place keep their order.
    void ordenar();
    /// The first cell, from `desde` on, that stands at this place or behind it. The cells are in order.
    [[nodiscard]] std::size_t buscar(std::size_t desde, std::size_t fila, std::size_t columna) const;

private:
    struct Guardada {
        std::uint32_t fila = 0;
        std::uint16_t columna = 0;
        ValorDeCelda::Clase clase = ValorDeCelda::Clase::Vacia;
        std::uint8_t longitud = 0;       // of a short text
        std::array<char, 8> contenido{}; // a number, a short text, or where a long one stands
    };
    static_assert(sizeof(Guardada) == 16);

    void guardar(Guardada& celda, const ValorDeCelda& valor);

    // A deque neither moves what it has nor keeps room for as much again. An empty one takes half a kilobyte.
    std::optional<std::deque<Guardada>> celdas_;
    std::shared_ptr<TextosGuardados> textos_;
};

} // namespace varo
