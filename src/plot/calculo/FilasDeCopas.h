// What the figures of the crowns read of the rows of the grid.
#pragma once

#include "basico/Numeros.h"
#include "plot/calculo/Unidades.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varo {

/// A cell as its text and, where it reads as one, its number, which is worked out once.
class CeldaLeida {
public:
    CeldaLeida() = default;
    explicit CeldaLeida(std::string texto) : texto_{std::move(texto)} {
        if (EsNumerico(texto_)) {
            numero_ = ANumero(texto_);
        }
    }

    [[nodiscard]] const std::string& texto() const { return texto_; }
    [[nodiscard]] bool vacia() const { return texto_.empty(); }
    [[nodiscard]] bool esNumero() const { return numero_.has_value(); }
    /// Faults as ANumero does on its text: 13 where it is no number, an empty one too.
    [[nodiscard]] double numero() const { return numero_ ? *numero_ : ANumero(texto_); }

private:
    std::string texto_;
    std::optional<double> numero_;
};

/// One row of the grid below the header.
struct FilaDeCopa {
    CeldaLeida x, y;                   ///< in metres
    bool sinTamano = false;            ///< the cell of the stem size is empty
    std::array<CeldaLeida, 4> medidas; ///< in the unit of the sheet, as many as the kind of data has
};

/// All rows in the order of the grid; row 1 of the grid is element 0.
struct FilasDeCopas {
    DatosDeCopa datos = DatosDeCopa::CuatroRadios;
    int FactorRadios = 1; ///< divisor from the unit of the measures to metres
    std::vector<FilaDeCopa> filas;
};

} // namespace varo
