#include "map/TextoDelMapa.h"

#include "lienzo/TextoDeLienzo.h"
#include "map/FrmMapa.h"

namespace varo {

std::string TextoDelMapa(const FrmMapa& mapa) {
    return TextoDeLienzo(mapa.lienzo, [&mapa](const EtiquetaMostrada& mostrada) -> AspectoDeEtiqueta {
        const Etiqueta& etiqueta = mapa.etiqueta(mostrada);
        return {etiqueta.Left, etiqueta.Top, etiqueta.ForeColor, etiqueta.Caption};
    });
}

} // namespace varo
