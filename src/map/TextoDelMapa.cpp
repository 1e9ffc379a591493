#include "map/TextoDelMapa.h"

#include "lienzo/TextoDeLienzo.h"
#include "map/FrmMapa.h"

namespace varo {

std::string TextoDelMapa(const FrmMapa& mapa) {
    return TextoDeLienzo(mapa.lienzo, mapa.lectorDeAspectos());
}

} // namespace varo
