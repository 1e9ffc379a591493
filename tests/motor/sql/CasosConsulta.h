// Query cases told by a text: tables first, then queries with the rows or the fault that they give.
//
//   tabla Hoja1$               a table: its name, its fields, its rows
//   Arbol | CAP
//   1 | 12.5
//
//   consulta                   a query with its expected columns and rows
//   SELECT [CAP] FROM [Hoja1$]
//   da
//   CAP
//   12.5
//
//   consulta                   a query with its expected fault and what its message says
//   SELECT [DAP] FROM [Hoja1$]
//   falla 3061
//   dice «DAP»
//
// Blank lines part the blocks, # begins a comment line. Values: nulo, 12.5, 'texto', fecha 45000.5, verdadero
// and falso.
#pragma once

#include "motor/Tabla.h"

#include <string>
#include <string_view>
#include <vector>

namespace varo::prueba {

struct CasoConsulta {
    int linea = 0;
    std::string sql;
    Tabla esperado;
    int fallo = 0; // 0 where rows are expected
    std::vector<std::string> dice;
};

struct CasosConsulta {
    std::vector<Tabla> tablas;
    std::vector<CasoConsulta> casos;
};

/// Whatever is not as above, a text without a single case too, throws std::runtime_error with its line.
CasosConsulta LeerCasosConsulta(std::string_view texto);

} // namespace varo::prueba
