// The trees of a run as the families of neighbours read them: the texts of their cells, their numbers, and
// which of them stand on a vertex of the plot boundary. One element per tree, in the order of the grid.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "plot/calculo/Module1.h"
#include "plot/calculo/Padron.h"
#include "plot/calculo/Unidades.h"

#include <cmath>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace varo {

/// One column of the grid without its header. A cell is converted once; one that is no number throws when,
/// and only when, its number is asked for.
class ColumnaDeCeldas {
public:
    ColumnaDeCeldas() = default;
    ColumnaDeCeldas(std::string nombre, std::vector<std::string> textos,
                    std::shared_ptr<const Padron> padron = std::make_shared<const Padron>());

    [[nodiscard]] std::size_t cuantas() const { return textos_.size(); }
    [[nodiscard]] const std::string& texto(std::size_t i) const { return textos_[i]; }
    [[nodiscard]] bool vacia(std::size_t i) const { return textos_[i].empty(); }
    /// False where `numero` throws.
    [[nodiscard]] bool legible(std::size_t i) const { return !std::isnan(numeros_[i]); }

    /// No number, the empty cell too, throws 13 and one out of range 6, with the column and the row of the
    /// tree in its place.
    [[nodiscard]] double numero(std::size_t i) const {
        if (!legible(i)) {
            fallar(i);
        }
        return numeros_[i];
    }

    /// Of all cells, with a NaN where `numero` throws.
    [[nodiscard]] std::span<const double> numeros() const { return numeros_; }

    [[nodiscard]] const Padron& padron() const { return *padron_; }
    /// Adds the column and the row of the tree to a fault.
    void situar(ErrorEjecucion& error, std::size_t i) const;

private:
    [[noreturn]] void fallar(std::size_t i) const;

    std::string nombre_;
    std::vector<std::string> textos_;
    std::shared_ptr<const Padron> padron_;
    std::vector<double> numeros_; ///< NaN where the text is no number
};

/// The cells that the families of neighbours read.
struct CeldasDeArboles {
    ColumnaDeCeldas x, y; ///< m
    ColumnaDeCeldas tamano;
    std::vector<ColumnaDeCeldas> copa; ///< four radii (N, E, S, W), two diameters or the mean radius
};

/// Trees are numbered from 0; tree i stands in row i + 1 of the grid, and in the sheet where
/// `padron` says.
class Arboles {
public:
    /// All columns have the same length. The last row of the boundary repeats the first.
    Arboles(CeldasDeArboles celdas, const UnidadesTallo& unidades, const ContornoXY& contorno);

    [[nodiscard]] std::size_t cuantos() const { return celdas_.tamano.cuantas(); }
    [[nodiscard]] const CeldasDeArboles& celdas() const { return celdas_; }
    /// Where the trees stand in the sheet.
    [[nodiscard]] const Padron& padron() const { return celdas_.tamano.padron(); }

    [[nodiscard]] double x(std::size_t i) const { return celdas_.x.numero(i); }
    [[nodiscard]] double y(std::size_t i) const { return celdas_.y.numero(i); }

    /// An empty size cell: there is no tree.
    [[nodiscard]] bool sinTamano(std::size_t i) const { return celdas_.tamano.vacia(i); }
    /// The same, or a cell with the text "0"; "0,0" is a size.
    [[nodiscard]] bool sinTamanoOCero(std::size_t i) const {
        return sinTamano(i) || celdas_.tamano.texto(i) == "0";
    }
    /// The size as the cell has it.
    [[nodiscard]] double tamano(std::size_t i) const { return celdas_.tamano.numero(i); }
    /// Diameter in centimetres. A cell that is no number throws 13, overflow 6.
    [[nodiscard]] double diametro(std::size_t i) const {
        if (std::isnan(diametro_[i])) {
            fallarDiametro(i);
        }
        return diametro_[i];
    }
    /// Diameter in metres; faults as `diametro`.
    [[nodiscard]] double d(std::size_t i) const {
        if (std::isnan(d_[i])) {
            fallarDiametro(i);
        }
        return d_[i];
    }

    /// Whether the texts of both coordinates equal those of a vertex of the boundary. It converts nothing.
    [[nodiscard]] bool esVertice(std::size_t i) const { return vertice_[i]; }

private:
    [[noreturn]] void fallarDiametro(std::size_t i) const;

    CeldasDeArboles celdas_;
    std::vector<double> diametro_, d_; ///< NaN where asking for it faults
    std::vector<bool> vertice_;
};

/// From a size in the unit of the sheet to a diameter in centimetres: size * dap * unidad.
struct FactoresDeTamano {
    float dap = 1;
    float unidad = 1;
};
FactoresDeTamano FactoresDe(const UnidadesTallo& unidades);

} // namespace varo
