// Stems and basal area per hectare, with the trees on the boundary counted only in part.
#pragma once

#include "basico/MatrizDinamica.h"
#include "basico/Valor.h"
#include "motor/BaseDatos.h"
#include "plot/calculo/AreaBasimetrica.h"
#include "plot/calculo/Poligono.h"

#include <span>
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

/// The rows of a sheet by their tree code. `campo` enters the queries without brackets.
struct FilasPorCodigo {
    const BaseDatos& base;
    std::string campo;
    std::string hoja;
    std::span<const std::string> codigos;
};

/// "campo = 12" for a code that reads as a number, "campo = 'PS'" for another one. A quote or a decimal comma
/// in a code breaks the query.
std::string CondicionDeCodigo(const std::string& campo, const std::string& codigo);

/// What the stems or the basal area of each code come to per hectare. Faults tell the code.
struct CifrasPorCodigo {
    MatrizDinamica<double> porHectarea; ///< in the order of the codes, unallocated without any
    double total = 0;                   ///< their sum
};

/// Stems per hectare of each code. Meant: half a stem is taken off for each vertex of the code and of all
/// codes before it. The figures grow as they are worked out, so a fault leaves those of the codes before.
void PiesDeCodigos(const FilasPorCodigo& filas, const TablaPoligono& poligono, int numPuntosPoligono,
                   double supPoligono, CifrasPorCodigo& cifras);

/// Basal area per hectare (m2/ha) of each code, likewise: the part of the vertices that lies outside is taken
/// off for the code and for all before it. A code without sizes throws 94.
void AreaBasimetricaDeCodigos(const FilasPorCodigo& filas, const std::string& campoTamano,
                              const UnidadesTallo& unidades, const TablaPoligono& poligono,
                              int numPuntosPoligono, const MatrizDinamica<double>& anguloInterior,
                              double supPoligono, CifrasPorCodigo& cifras);

} // namespace varo
