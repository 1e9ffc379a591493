// Which tree stands where in the sheet, for the places of faults.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace varo {

class ErrorEjecucion;

/// One element for each tree of a run. Without rows, as for a plot that comes from no sheet, trees count
/// from 1.
struct Padron {
    std::string hoja;                 ///< name of the table
    std::vector<int> filas;           ///< the rows, as the spreadsheet numbers them
    std::vector<std::string> numeros; ///< the numbers of the trees, as the sheet has them

    [[nodiscard]] int fila(std::size_t i) const;
    /// "fila 12, árbol 7"
    [[nodiscard]] std::string breve(std::size_t i) const;
    /// Adds "fila 12 de «Parcela1$», árbol 7" to a fault.
    void situar(ErrorEjecucion& error, std::size_t i) const;
};

} // namespace varo
