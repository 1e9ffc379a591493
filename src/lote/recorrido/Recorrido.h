// The walk of a job through the windows of the program, from the plot file to its outputs.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"
#include "lote/recorrido/PuestoDeTrabajo.h"
#include "lote/trabajo/Trabajo.h"

#include <string>

namespace varo {

/// What a person wants to know of a finished job.
struct Informe {
    int arboles = 0;
    double superficie = 0; ///< area of the plot, m2 when the coordinates are in m
    int columnas = 0;      ///< of the results file; 0 without one

    /// "60 árboles, superficie de la parcela: 1103,0 m2, 17 columnas -> indices.txt"
    [[nodiscard]] std::string texto(const Trabajo& trabajo) const;
};

/// Does a job as a person would, through the same windows. What ends it early is an ErrorTrabajo; an output
/// that fails leaves the others written. Without a painter a job that asks for a picture is refused; without
/// other threads it computes on its own.
Informe CorrerTrabajo(const Trabajo& trabajo, const Seguimiento& seguimiento = {},
                      PintorDeMapas* pintor = nullptr, Cuadrilla* cuadrilla = nullptr);

} // namespace varo
