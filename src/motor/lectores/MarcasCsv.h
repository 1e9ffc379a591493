// What the decimal mark of each column of a text file is.
#pragma once

#include "motor/lectores/NumerosCsv.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// A cell that speaks for a mark.
struct PruebaDeMarca {
    std::size_t fila = 0;
    std::string celda;
};

/// What the cells of one column say. The pairs are for the point and for the comma.
class IndiciosDeColumna {
public:
    using Pruebas = std::array<std::optional<PruebaDeMarca>, 2>;

    void mirar(std::string_view celda, std::size_t fila);

    [[nodiscard]] const Pruebas& decimal() const { return decimal_; }
    [[nodiscard]] const Pruebas& grupos() const { return grupos_; }
    [[nodiscard]] const Pruebas& dudosa() const { return dudosa_; }
    /// True when the mark is decimal and a cell has groups of thousands too, or alone.
    [[nodiscard]] bool agrupa(std::size_t marca) const { return agrupa_.at(marca) || grupos_.at(marca); }
    /// True when all its numbers have decimals and count on and past nine as codes do, 1.9 and 1.10, and as
    /// no measures do; where there is no nine, 1.8 and 1.10, they must be several.
    [[nodiscard]] bool sonCodigos() const {
        constexpr std::size_t noEsPorAzar = 5;
        return (pasaDeNueve_ || (saltaElDiez_ && numeros_ >= noEsPorAzar)) && sube_ && conMarca_ == numeros_;
    }
    /// True when a number has digits behind its mark, which an ordinal, 1., has not.
    [[nodiscard]] bool conDecimales() const { return masDecimales_ > 0; }
    /// True when most of its cells are no numbers.
    [[nodiscard]] bool esDeTextos() const { return textos_ > numeros_; }
    /// A cell with a zero at its end, in a column whose decimals are not equally many: a measure written by
    /// hand, or a code.
    [[nodiscard]] const std::optional<PruebaDeMarca>& ceroDeMas() const;
    /// A cell that is no number and yet counts as one once its points are left out: 12..5
    [[nodiscard]] const std::optional<PruebaDeMarca>& malEscrita() const { return malEscrita_; }
    /// True when it has whole numbers below a thousand and none above that is written without groups: then
    /// 1.234 may be the next of them.
    [[nodiscard]] bool puedeAgrupar() const { return conEnterosCortos_ && !conEnterosLargos_; }

private:
    void mirarDecimales(const HuellaDeMarca& huella, std::string_view celda, std::size_t fila);

    Pruebas decimal_;
    Pruebas grupos_;
    Pruebas dudosa_;
    std::array<bool, 2> agrupa_{};
    std::optional<PruebaDeMarca> conCero_;
    std::optional<PruebaDeMarca> malEscrita_;
    bool conEnterosCortos_ = false;
    bool conEnterosLargos_ = false;
    std::size_t conMarca_ = 0; ///< numbers with a point or a comma
    std::string enteras_;      ///< of the last cell with decimals
    std::string decimales_;
    std::size_t menosDecimales_ = 0; ///< none seen yet
    std::size_t masDecimales_ = 0;
    bool pasaDeNueve_ = false;
    bool saltaElDiez_ = false;
    bool sube_ = true; ///< as pairs of whole numbers
    std::size_t numeros_ = 0;
    std::size_t textos_ = 0;
};

/// The decimal mark of each column. A number that may be two (1.234 beside commas) throws ErrorMotor with its
/// row and its column, whose names are given.
std::vector<char> MarcasDeColumnas(const std::vector<IndiciosDeColumna>& columnas,
                                   const std::vector<std::string>& nombres, char separador);

} // namespace varo
