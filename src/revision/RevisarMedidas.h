// Stems and crowns whose size is hardly true, and crowns that lie on each other.
#pragma once

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"

namespace varo {

void RevisarTroncos(const Lectura& lectura, Cuaderno& cuaderno);

void RevisarCopas(const Lectura& lectura, Cuaderno& cuaderno);

/// Circles, crowns or areas of influence, whose common area faults, and too many of them.
void RevisarSolapes(const Lectura& lectura, Cuaderno& cuaderno);

} // namespace varo
