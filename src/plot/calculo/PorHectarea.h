// Stems and basal area per hectare, with the trees on the boundary counted only in part.
#pragma once

#include "basico/MatrizDinamica.h"
#include "basico/Valor.h"
#include "motor/BaseDatos.h"
#include "plot/calculo/AreaBasimetrica.h"
#include "plot/calculo/Poligono.h"

#include <string>

namespace varo {

/// Stems per hectare: the rows of the table whose `campo` holds something, less one half for each vertex. The
/// area is in m2; 0 throws 11. `campo` enters the query without brackets.
double PiesPorHectarea(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                       int numPuntosPoligono, double supPoligono);

/// Sum of the basal areas of the table in m2; Null when no row has a stem size.
Valor SumaAreaBasimetrica(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                          const UnidadesTallo& unidades);

/// The part of the vertices' basal area (m2, in column `columna` of the boundary) that lies outside the plot:
/// a vertex with interior angle A counts with A / 360. A vertex without an angle throws 9.
double AreaBasimetricaDeBorde(const TablaPoligono& poligono, int columna, int numPuntosPoligono,
                              const MatrizDinamica<double>& anguloInterior);

/// Basal area per hectare (m2/ha). A Null sum throws 94, an area of 0 throws 11.
double AreaBasimetricaPorHectarea(const Valor& suma, double quitar, double supPoligono);

} // namespace varo
