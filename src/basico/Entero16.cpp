#include "basico/Entero16.h"

#include "basico/Aritmetica.h"

#include <limits>

namespace varo {

Entero16::Entero16(double valor) {
    const double entero = RedondearPar(valor);
    // Written so that a NaN is out of range too.
    if (!(entero >= std::numeric_limits<std::int16_t>::min() &&
          entero <= std::numeric_limits<std::int16_t>::max())) {
        throw ErrorEjecucion{fallo::desbordamiento};
    }
    valor_ = static_cast<std::int16_t>(entero);
}

} // namespace varo
