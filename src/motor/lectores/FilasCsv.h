// A text of cells between separators, row by row.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// Lines end in CR LF, LF or CR. A cell that begins with a quote goes on to the next one, separators and ends
/// of lines included; two quotes in it are one, and what stands behind it belongs to it. Blanks around a cell
/// outside its quotes are left out.
class FilasCsv {
public:
    static constexpr std::size_t celdasDeUnaHoja = 16'384;

    /// The text must outlive it.
    FilasCsv(std::string_view texto, char separador) : texto_{texto}, separador_{separador} {}

    /// Goes on to the next row, the first time to the first one; false when there is none.
    bool siguiente();

    /// The cells of the row, until the next one; at least one. A row with more than a sheet has is the last
    /// one, and holds one too many.
    [[nodiscard]] const std::vector<std::string_view>& celdas() const { return celdas_; }
    /// The number of the row, from 1. Lines within quotes are no rows.
    [[nodiscard]] std::size_t numero() const { return numero_; }
    /// How many bytes are behind.
    [[nodiscard]] std::size_t leidos() const { return lugar_; }
    /// True when the quotes that the last cell opens are not closed: then it holds all the rest.
    [[nodiscard]] bool sinCerrar() const { return sinCerrar_; }
    /// How many cells a line has that stands inside a quoted cell of several lines, at most; very many where
    /// something stands behind such a cell. A note has few, and rows that a lost quote has swallowed have
    /// theirs.
    [[nodiscard]] std::size_t celdasTragadas() const { return celdasTragadas_; }
    /// True when the first line of a quoted cell, with the cells before it, and its last one, with those
    /// behind it, have so many cells or more each: two rows that a lost quote has joined in their middles.
    [[nodiscard]] bool juntaFilas(std::size_t celdasDeUna) const;
    /// True when something stands behind the closing quote of a cell that holds a separator: then it is not
    /// where the cell ends.
    [[nodiscard]] bool cierraEnMedio() const { return cierraEnMedio_; }

private:
    /// A quoted cell of several lines.
    struct DeVariasLineas {
        std::size_t antes = 0; ///< cells of its row
        std::size_t enLaPrimera = 0;
        std::size_t enLaUltima = 0;
    };

    void leerCelda();
    std::string_view leerEntreComillas();
    void mirarSusLineas(std::string_view celda, bool sigue);
    [[nodiscard]] std::size_t celdasDe(std::string_view linea) const;
    /// As far as the cell ends, without blanks behind it.
    std::string_view leerSuelta();
    void pasarBlancos();
    [[nodiscard]] bool esBlanco(char letra) const {
        return (letra == ' ' || letra == '\t') && letra != separador_;
    }

    std::string_view texto_;
    char separador_;
    std::size_t lugar_ = 0;
    std::size_t numero_ = 0;
    bool sinCerrar_ = false;
    bool cierraEnMedio_ = false;
    std::size_t celdasTragadas_ = 0;
    std::vector<DeVariasLineas> deVariasLineas_;
    std::vector<std::string_view> celdas_;
    std::deque<std::string> compuestas_; ///< the cells that do not stand in the text as they are
};

} // namespace varo
