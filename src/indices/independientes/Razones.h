// Size ratios: the size of each tree against a statistic of the whole table, and the area per tree under the
// assumption of an area proportional to size. They ignore the positions of the trees.
//
// d is the stem size in the unit of the sheet; a ratio has no unit, and the ratios of girths equal those of
// diameters. The relative diameter and basal area follow Glover and Hool (1979); an area proportional to size
// is 10000 / N, in m2, times the ratio.
#pragma once

#include "indices/independientes/Familias.h"
#include "motor/BaseDatos.h"
#include "plot/calculo/Padron.h"

#include <span>
#include <string>
#include <vector>

namespace varo {

/// The size of a tree as these families read its cell: every comma a point, then the leading number.
double TamanoDeCelda(const std::string& celda);

/// The query for the statistic of a family; not for the dominant trees.
std::string ConsultaEstadistico(Independiente familia, const std::string& campo, const std::string& tabla);

/// The dominant trees are the 100 thickest per hectare, or all trees where there are fewer; ties at the last
/// size come in too. The quadratic mean of their sizes, or without the root the mean of the squares.
/// `supPoligono` in m2. No tree with a size throws 3021; an area of 3,276,750 m2 or more throws 6.
double TamanoDominante(const BaseDatos& base, const std::string& campo, const std::string& tabla,
                       double supPoligono, int arboles, bool conRaiz);

/// The ratios of one family for every tree, from their sizes. The areas proportional to size use `piesHa`,
/// the number of stems per hectare. A statistic of 0, or no stems, throws 11; a statistic of nothing
/// throws 94. `padron` says where the trees stand in the sheet, for the places of faults.
std::vector<double> CalcularRazones(Independiente familia, const BaseDatos& base, const std::string& campo,
                                    const std::string& tabla, std::span<const double> tamanos,
                                    double supPoligono, double piesHa, const Padron& padron = {});

} // namespace varo
