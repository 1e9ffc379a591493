// Tree numbers and tree codes.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

void RevisarNumerosDeArbol(const Lectura& lectura, Cuaderno& cuaderno);

void RevisarCodigos(const Lectura& lectura, Cuaderno& cuaderno);

/// The headers that enter a query.
void RevisarCabeceras(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
