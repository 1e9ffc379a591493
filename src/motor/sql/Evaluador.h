// An expression bound to the fields of one table, evaluated row by row.
#pragma once

#include "basico/ErrorEjecucion.h"
#include "motor/Tabla.h"
#include "motor/sql/Consulta.h"
#include "motor/sql/Operando.h"

#include <cstddef>
#include <string>
#include <vector>

namespace varo::sql {

/// The expression and the table must outlive it: it looks at both.
class Evaluador {
public:
    /// A name that is no field of the table throws ErrorMotor 3061.
    Evaluador(const ExpresionPostfija& expresion, const Tabla& tabla);

    /// The value on one row of the table. Faults tell the field.
    Operando operator()(FilaDeTabla fila);

    /// The value for a result: a bare field keeps its kind, so a date stays a date.
    Valor entero(FilaDeTabla fila);

    /// Adds the fields of the expression to a fault that tells no place yet.
    void situar(ErrorEjecucion& error) const;

private:
    struct Columna {
        std::size_t posicion = 0;
        const std::string* nombre = nullptr;
    };
    Operando calculado(FilaDeTabla fila);

    const ExpresionPostfija& expresion_;
    std::vector<Columna> columnas_; // one for each of the expression's names
    std::vector<Operando> constantes_;
    std::vector<Operando> pila_; // never higher than the number of steps
};

} // namespace varo::sql
