// Where the trees stand: the boundary and its area, trees in one place, trees far away, trees in line.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

void RevisarContorno(const Lectura& lectura, Cuaderno& cuaderno);

void RevisarSitios(const Lectura& lectura, Cuaderno& cuaderno);

/// Trees of one x or y, or almost, and trees in line: what ends APA.
void RevisarAlineados(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
