// The labels that the results file gives to the columns of the families of neighbours.
#pragma once

#include "indices/ResultadosIndices.h"
#include "options/Miembros.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varo {

class OpcionesPrograma;

/// The sweep of a selection parameter.
struct BarridoDeSeleccion {
    FamiliaConSeleccion familia;
    Intervalo ResultadosIndices::*intervalo;
};

/// A family of neighbours as the file writes it.
struct GrupoDeVecindad {
    const char* casilla; ///< its switch
    /// The labels of its columns, from the options as they stand now and the counts of the last run; they may
    /// disagree with what was computed.
    std::vector<std::string> (*rotulos)(const OpcionesPrograma&, const ResultadosIndices&);
    int (*columnas)(const ResultadosIndices&);
    ResultadosIndices::IndicePorColumnas ResultadosIndices::*indice;
    const char* formato;
    std::optional<BarridoDeSeleccion> barrido; ///< only of the families that choose their competitors
};

/// Raises by 1 the sweep over a list of functions, which a run counts from 0 and the labels from 1; it leaves
/// other sweeps alone.
/// Meant: nothing lowers the sweep again, so the labels of a second saving count from 2.
void ContarDesdeUno(const GrupoDeVecindad& grupo, const OpcionesPrograma& opciones, ResultadosIndices& r);

/// In the order of the file.
extern const std::array<GrupoDeVecindad, 5> gruposDeVecindad;

} // namespace varo
