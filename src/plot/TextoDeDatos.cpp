#include "plot/TextoDeDatos.h"

#include "basico/Texto.h"
#include "plot/FrmResultados.h"

namespace varo {

namespace {

void Anotar(std::string& texto, const Etiqueta& etiqueta) {
    texto += etiqueta.nombreCompleto() + '\t' + EnUnaLinea(etiqueta.Caption()) + '\n';
}

void AnotarTabla(std::string& texto, const Matriz<Etiqueta>& codigos, const Matriz<Etiqueta>& valores) {
    for (const auto& [columna, codigo] : codigos.miembros()) {
        Anotar(texto, *codigo);
        Anotar(texto, valores(columna));
    }
}

} // namespace

std::string TextoDeDatos(const FrmResultados& ventana) {
    std::string texto;
    AnotarTabla(texto, ventana.LbPiesHaCodigo, ventana.LbPiesHaValor);
    AnotarTabla(texto, ventana.LbAbHaCodigo, ventana.LbAbHaValor);
    for (const Etiqueta* const etiqueta :
         {&ventana.LbParcela, &ventana.LbAreaTotal, &ventana.LbAreaCopas, &ventana.LbAreaCopasInterior,
          &ventana.LbAreaIntersecCopas, &ventana.LbFcc}) {
        Anotar(texto, *etiqueta);
    }
    return texto;
}

} // namespace varo
