// The cell grid: texts in rows and columns, one fixed header row, one current cell.
#pragma once

#include "formularios/Control.h"

#include <string>
#include <vector>

namespace varo {

/// Row 0 is fixed. Growing adds empty cells, shrinking drops the last ones; the other cells keep their text.
/// A row or column out of bounds throws 9. Writing a cell tells no observer: a view reads the cells anew when
/// the grid's shape, order or visibility changes.
class Rejilla : public Control {
public:
    Rejilla(Formulario& ventana, Identidad identidad)
        : Control{ventana, std::move(identidad), TipoControl::Rejilla} {}

    [[nodiscard]] int Rows() const { return static_cast<int>(filas_.size()); }
    [[nodiscard]] int Cols() const { return static_cast<int>(anchos_.size()); }
    void Rows(int filas);
    void Cols(int columnas);

    [[nodiscard]] const std::string& TextMatrix(int fila, int columna) const;
    void TextMatrix(int fila, int columna, std::string texto);

    /// The current cell, and its text.
    [[nodiscard]] int Row() const { return fila_; }
    [[nodiscard]] int Col() const { return columna_; }
    void Row(int fila);
    void Col(int columna);
    [[nodiscard]] const std::string& Text() const { return TextMatrix(fila_, columna_); }
    void Text(std::string texto) { TextMatrix(fila_, columna_, std::move(texto)); }

    /// Width in twips; 0 hides the column.
    [[nodiscard]] int ColWidth(int columna) const;
    void ColWidth(int columna, int ancho);

    /// The column that a person selected.
    Propiedad<int> ColSel{*this, 0};

    /// All that it shows, to be put back as it was.
    struct Contenido {
        std::vector<std::vector<std::string>> filas;
        std::vector<int> anchos;
        int fila = 0, columna = 0; ///< the current cell
        int ColSel = 0;
    };
    [[nodiscard]] Contenido contenido() const { return {filas_, anchos_, fila_, columna_, ColSel}; }
    void reponer(Contenido contenido);

    /// Removes a row; the header and the last remaining row refuse (30015).
    void RemoveItem(int fila);

    /// The rows below the header in the ascending order of a column, those that are equal as they stand:
    /// empty cells first, then numbers by value, then texts by code point.
    [[nodiscard]] std::vector<int> filasEnOrden(int columna) const;
    /// Puts the rows in that order of the current column.
    void ordenarAscendente();

private:
    static constexpr int filasFijas = 1;

    [[nodiscard]] std::size_t filaComprobada(int fila) const;
    [[nodiscard]] std::size_t columnaComprobada(int columna) const;

    /// A row takes the room of its cells up to the last one that was ever written: a sheet may be very long
    /// and hold next to nothing.
    std::vector<std::vector<std::string>> filas_ = std::vector<std::vector<std::string>>(2);
    std::vector<int> anchos_ = std::vector<int>(2, 960);
    int fila_ = 1;
    int columna_ = 0;
};

} // namespace varo
