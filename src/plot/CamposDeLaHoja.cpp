#include "plot/CamposDeLaHoja.h"

#include "basico/EnLugar.h"
#include "data/Hojadedatos.h"
#include "shell/Programa.h"

namespace varo {

namespace {

std::string CampoDeColumna(Programa& programa, Entero16 columna) {
    return programa.tocar<Hojadedatos>().Data1.Recordset().campos()(columna.valor() - 1).Name;
}

} // namespace

std::string CampoDePapel(Programa& programa, int papel) {
    return CampoDeColumna(programa, programa.sesion.Columnas(papel));
}

std::string CampoDelTallo(Programa& programa) {
    return Porque(
        fallo::elementoNoEncontrado,
        [] {
            return "no se ha elegido la columna DAP, la del tamaño del tronco: elíjala en el diálogo de "
                   "columnas";
        },
        [&] { return CampoDeColumna(programa, programa.sesion.ColumnaDAP); });
}

} // namespace varo
