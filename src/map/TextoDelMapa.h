// The map as text: its display list with what its labels show.
#pragma once

#include <string>

namespace varo {

class FrmMapa;

/// The lines of TextoDeLienzo.
std::string TextoDelMapa(const FrmMapa& mapa);

} // namespace varo
