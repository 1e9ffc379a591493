#include "plot/TextoDeResultados.h"

#include "basico/Texto.h"
#include "plot/FrmResultados.h"

namespace varo {

namespace {

/// A caption as one cell: it breaks neither its line nor its column. Spreadsheets take a quote at the start
/// for the first of a pair, so such a cell is quoted.
std::string Celda(const std::string& texto) {
    const std::string celda = Recortar(EnUnaLinea(texto));
    return celda.starts_with('"') ? '"' + Reemplazar(celda, "\"", "\"\"") + '"' : celda;
}

void PonerRenglon(std::string& texto, const Etiqueta& etiqueta) {
    if (etiqueta.Visible()) {
        texto += Celda(etiqueta.Caption) + "\n";
    }
}

/// "Area: 12,5 m2" in three cells.
void PonerCifra(std::string& texto, const Etiqueta& etiqueta) {
    if (!etiqueta.Visible()) {
        return;
    }
    const std::string celda = Celda(etiqueta.Caption);
    const auto nombre = celda.find(": ");
    if (nombre == std::string::npos) {
        texto += celda + "\n";
        return;
    }
    texto += celda.substr(0, nombre + 1) + "\t" + Reemplazar(celda.substr(nombre + 2), " ", "\t") + "\n";
}

void PonerFila(std::string& texto, const Etiqueta& rotulo, const Matriz<Etiqueta>& etiquetas) {
    texto += Celda(rotulo.Caption);
    for (const auto& [indice, etiqueta] : etiquetas.miembros()) {
        if (etiqueta->Visible()) {
            texto += "\t" + Celda(etiqueta->Caption);
        }
    }
    texto += "\n";
}

} // namespace

std::string TextoDeResultados(const FrmResultados& ventana) {
    std::string texto;
    PonerRenglon(texto, ventana.LbParcela);
    PonerCifra(texto, ventana.LbAreaTotal);
    PonerRenglon(texto, ventana.LbPiesHa);
    PonerFila(texto, ventana.LbCodPha, ventana.LbPiesHaCodigo);
    PonerFila(texto, ventana.LbValorPha, ventana.LbPiesHaValor);
    PonerRenglon(texto, ventana.LbAbHa);
    PonerFila(texto, ventana.LbCodAbha, ventana.LbAbHaCodigo);
    PonerFila(texto, ventana.LbValorAbha, ventana.LbAbHaValor);
    PonerCifra(texto, ventana.LbAreaCopas);
    PonerCifra(texto, ventana.LbAreaCopasInterior);
    PonerCifra(texto, ventana.LbAreaIntersecCopas);
    PonerCifra(texto, ventana.LbFcc);
    return texto;
}

} // namespace varo
