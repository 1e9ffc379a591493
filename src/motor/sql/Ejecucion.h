// Runs a query over its table.
#pragma once

#include "motor/Tabla.h"
#include "motor/sql/Consulta.h"

namespace varo::sql {

/// The rows that the query gives, as a table without a name. TOP n keeps every row that ties with the n-th in
/// the order asked for; without an order it takes the first n. A column is called by its alias, else as its
/// field, else Expr1000, Expr1001 and so on. An unknown field throws ErrorMotor 3061; faults of the
/// evaluation tell the field and the row, counted from 1.
Tabla Ejecutar(const Consulta& consulta, const Tabla& tabla);

} // namespace varo::sql
