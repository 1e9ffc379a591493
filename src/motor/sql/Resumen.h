// Sum, Avg, Max, Min and Count over the rows of a query, one row after the other.
#pragma once

#include "basico/Valor.h"
#include "motor/sql/Consulta.h"
#include "motor/sql/Evaluador.h"

#include <cstddef>
#include <vector>

namespace varo::sql {

/// Null passes by. Sums grow in the order of the rows, and a mean is the sum over the count.
class Resumen {
public:
    Resumen(Agregado agregado, Evaluador evaluador);

    /// All but Count take numbers alone: a text that is none throws ErrorMotor 3464; a sum beyond the range
    /// of a 64-bit float throws 6.
    void anadir(FilaDeTabla fila);

    /// Null over nothing, but 0 for Count.
    [[nodiscard]] Valor resultado() const;

private:
    void acumular(double numero);

    Agregado agregado_;
    Evaluador evaluador_;
    std::size_t cuenta_ = 0;
    double acumulado_ = 0; // the sum or the extreme
};

} // namespace varo::sql
