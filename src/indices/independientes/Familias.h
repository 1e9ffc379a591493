// The fifteen families that look at no neighbour, and what sets them apart.
#pragma once

#include <algorithm>
#include <array>

namespace varo {

enum class Independiente {
    N,
    AB,
    ABj,
    Dmed,
    Dmax,
    Ddom,
    Bmed,
    Bmax,
    Bdom,
    APDmed,
    APDmax,
    APDsum,
    APBmed,
    APBmax,
    APBsum
};

enum class ClaseDeFamilia {
    DeParcela,       ///< one value for the whole plot
    AreaDeMayores,   ///< basal area of the larger trees
    Razon,           ///< size ratio
    AreaProporcional ///< area per tree, proportional to its size
};

/// What the ratios compare: the size of a tree or its square.
enum class Dimension { Tamano, Cuadrado };

struct RasgosDeFamilia {
    Independiente familia;
    ClaseDeFamilia clase;
    Dimension dimension = Dimension::Tamano;
};

/// In the order in which a run computes them.
inline constexpr std::array<RasgosDeFamilia, 15> familiasIndependientes{{
    {Independiente::N, ClaseDeFamilia::DeParcela},
    {Independiente::AB, ClaseDeFamilia::DeParcela},
    {Independiente::ABj, ClaseDeFamilia::AreaDeMayores},
    {Independiente::Dmed, ClaseDeFamilia::Razon},
    {Independiente::Dmax, ClaseDeFamilia::Razon},
    {Independiente::Ddom, ClaseDeFamilia::Razon},
    {Independiente::Bmed, ClaseDeFamilia::Razon, Dimension::Cuadrado},
    {Independiente::Bmax, ClaseDeFamilia::Razon, Dimension::Cuadrado},
    {Independiente::Bdom, ClaseDeFamilia::Razon, Dimension::Cuadrado},
    {Independiente::APDmed, ClaseDeFamilia::AreaProporcional},
    {Independiente::APDmax, ClaseDeFamilia::AreaProporcional},
    {Independiente::APDsum, ClaseDeFamilia::AreaProporcional},
    {Independiente::APBmed, ClaseDeFamilia::AreaProporcional, Dimension::Cuadrado},
    {Independiente::APBmax, ClaseDeFamilia::AreaProporcional, Dimension::Cuadrado},
    {Independiente::APBsum, ClaseDeFamilia::AreaProporcional, Dimension::Cuadrado},
}};

constexpr const RasgosDeFamilia& RasgosDe(Independiente familia) {
    return *std::find_if(familiasIndependientes.begin(), familiasIndependientes.end(),
                         [familia](const RasgosDeFamilia& rasgos) { return rasgos.familia == familia; });
}

} // namespace varo
