// What the measures in the sheet are: the kind and unit of the stem size, the unit and form of the crown.
#pragma once

namespace varo {

enum class UnidadLongitud { Centimetros, Decimetros, Metros };

/// The stem size: a girth or a diameter, in its unit.
struct UnidadesTallo {
    bool circunferencia = true;
    UnidadLongitud unidad = UnidadLongitud::Centimetros;
};

enum class FormaDeCopa { CuatroRadios, DosDiametros, RadioMedio };

} // namespace varo
