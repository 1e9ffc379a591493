#include "formularios/MedidaDeTexto.h"

#include "basico/Texto.h"

namespace varo {

MedidaDeTexto MedirTexto(std::string_view texto, const Fuente& fuente) {
    constexpr double anchoSinTexto = 300;
    const double tamano = fuente.tamano;
    const double ancho =
        texto.empty() ? anchoSinTexto : static_cast<double>(Longitud(texto)) * (75 * tamano / 8);
    return {ancho, 24 * tamano};
}

} // namespace varo
