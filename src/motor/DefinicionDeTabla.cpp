#include "motor/DefinicionDeTabla.h"

#include <algorithm>

namespace varo {

void DefinicionDeTabla::Append(CampoDefinido campo) {
    if (std::ranges::any_of(campos_,
                            [&](const CampoDefinido& otro) { return MismoNombre(otro.Name, campo.Name); })) {
        throw ErrorMotor{fallo::elementoRepetido,
                         "La tabla «" + Name + "» ya tiene un campo «" + campo.Name + "»"};
    }
    campos_.push_back(std::move(campo));
}

} // namespace varo
