// The command varo-lote: jobs in the order of the command line, several at once when asked.
#pragma once

#include "lote/recorrido/PintorDeMapas.h"
#include "lote/trabajo/ErrorTrabajo.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace varo {

/// Where the command writes. Everything is UTF-8.
struct Consola {
    std::ostream& salida;  ///< the answer: a line for each job that is done
    std::ostream& errores; ///< errors and warnings, one line each
    std::size_t ancho = 0; ///< of the terminal behind `errores`, which tells how far the jobs are; 0 for none
};

/// Runs the command with these arguments, without the program's name. Pictures of maps are made by `pintor`;
/// without one the jobs that ask for them are refused.
Estado EjecutarLote(const std::vector<std::string>& argumentos, const Consola& consola,
                    PintorDeMapas* pintor = nullptr);

} // namespace varo
