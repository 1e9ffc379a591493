// What the measures in the sheet are: the kind and unit of the stem size, the measures of the crown.
#pragma once

namespace varo {

enum class UnidadLongitud { Centimetros, Decimetros, Metros };

/// The stem size: a girth or a diameter, in its unit.
struct UnidadesTallo {
    bool circunferencia = true;
    UnidadLongitud unidad = UnidadLongitud::Centimetros;
};

/// What the sheet holds of each crown.
enum class DatosDeCopa { CuatroRadios, DosDiametros, RadioMedio };

/// How many columns hold the measures of a crown.
constexpr int MedidasDeCopa(DatosDeCopa datos) {
    switch (datos) {
    case DatosDeCopa::CuatroRadios:
        return 4;
    case DatosDeCopa::DosDiametros:
        return 2;
    case DatosDeCopa::RadioMedio:
        break;
    }
    return 1;
}

} // namespace varo
