// The grammar of the queries:
//   SELECT [TOP n] item {, item} FROM table [WHERE expr] [ORDER BY expr [ASC|DESC]]
//   item = (expr | Sum(expr) | Avg(expr) | Max(expr) | Min(expr) | Count(expr) | Count(*)) [AS name]
#pragma once

#include "motor/sql/Consulta.h"

#include <string_view>

namespace varo::sql {

/// Operators from loose to tight: OR; AND; NOT; comparisons; + -; * /; the signs; ^. Equals go left to right.
/// Anything outside the grammar, nesting over 100 levels too, throws ErrorMotor 3075.
Consulta Analizar(std::string_view texto);

} // namespace varo::sql
