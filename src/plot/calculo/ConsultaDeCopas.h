// The query that gives the crown area of each row of a sheet.
#pragma once

#include "plot/calculo/Unidades.h"

#include <string>
#include <vector>

namespace varo {

/// What the query is made of. The fields hold the measures of the crown, as many as the kind of data has, and
/// enter the query without brackets.
struct CopasDeConsulta {
    DatosDeCopa datos = DatosDeCopa::CuatroRadios;
    bool circulos = true; ///< otherwise ellipses
    int factor = 1;       ///< divisor from the unit of the fields to metres: 1, 10 or 100
    std::vector<std::string> campos;
    std::string tabla;
};

/// The name of the column of areas: "SupCirc" or "SupElipse".
std::string CampoDeSuperficie(bool circulos);

/// The areas in m2, one column of the name above. Meant: a mean radius counts as a diameter. There is no
/// query for ellipses of mean radii: the text is empty.
std::string ConsultaDeCopas(const CopasDeConsulta& copas);

/// The same for the copy of a sheet, which takes a mean radius for what it is, and the two diameters of an
/// ellipse for radii.
std::string ConsultaDeLaCopia(const CopasDeConsulta& copas);

} // namespace varo
