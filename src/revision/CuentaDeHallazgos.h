// How many findings there are, in words.
#pragma once

#include "revision/Hallazgo.h"

#include <cstddef>
#include <span>
#include <string>

namespace varo {

/// "fallo", "cifras" or "mirar".
std::string PalabraDe(Gravedad gravedad);

/// "3 avisos", "1 aviso", "sin avisos".
std::string CuantosAvisos(std::size_t cuantos);

/// "6 avisos: 1 de fallo, 2 de cifras equivocadas, 3 por mirar"; "sin avisos" for none.
std::string CuentaDeHallazgos(std::span<const Hallazgo> hallazgos);

} // namespace varo
