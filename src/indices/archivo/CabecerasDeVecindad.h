// The labels that the results file gives to the columns of the families of neighbours.
#pragma once

#include "indices/ResultadosIndices.h"

#include <array>
#include <string>
#include <vector>

namespace varo {

class OpcionesPrograma;

/// A family of neighbours as the file writes it.
struct GrupoDeVecindad {
    const char* casilla; ///< its switch
    /// The labels of its columns, from the options as they stand now and the counts of the last run, so they
    /// may not agree with what was computed. With a list of functions the sweep is raised by 1 for good.
    std::vector<std::string> (*rotulos)(const OpcionesPrograma&, ResultadosIndices&);
    int (*columnas)(const ResultadosIndices&);
    ResultadosIndices::Columnas ResultadosIndices::*indice;
    const char* formato;
};

/// In the order of the file.
extern const std::array<GrupoDeVecindad, 5> gruposDeVecindad;

} // namespace varo
