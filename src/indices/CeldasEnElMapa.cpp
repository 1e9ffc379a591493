#include "indices/CeldasEnElMapa.h"

#include "map/FrmMapa.h"
#include "map/TituloYLeyenda.h"
#include "shell/Programa.h"

namespace varo {

void CeldasEnElMapa::dibujar(std::span<const TrazoAPA> trazos) {
    constexpr Color negro = 0;
    auto& superficie = programa_.tocar<FrmMapa2>();
    Lienzo& lienzo = superficie.lienzo;
    lienzo.ForeColor = negro;
    for (const TrazoAPA& trazo : trazos) {
        lienzo.linea(trazo.x1, trazo.y1, trazo.x2, trazo.y2);
    }
    if (!conContorno_) {
        conContorno_ = true;
        DibujarContorno(lienzo, programa_.sesion.Poligono.contorno());
        superficie.Show();
    }
    superficie.avisarDibujo();
}

} // namespace varo
