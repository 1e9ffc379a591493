#include "motor/lectores/TablasDeHoja.h"

#include "motor/lectores/CamposDeHoja.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace varo {
namespace {

/// One row of the rectangle, null where the sheet has no cell.
std::vector<Valor> FilaDeZona(const HojaBiff& hoja, std::size_t fila, const ZonaDeHoja& zona,
                              LimitesDeLectura& limites) {
    std::vector<Valor> valores(zona.ultimaColumna - zona.primeraColumna + 1);
    auto celda =
        std::lower_bound(hoja.celdas.begin(), hoja.celdas.end(), std::pair{fila, zona.primeraColumna},
                         [](const CeldaDeHoja& una, const auto& lugar) {
                             return std::pair<std::size_t, std::size_t>{una.fila, una.columna} < lugar;
                         });
    for (; celda != hoja.celdas.end() && celda->fila == fila && celda->columna <= zona.ultimaColumna;
         ++celda) {
        if (const auto* texto = std::get_if<std::string>(&celda->valor)) {
            limites.contarTexto(texto->size());
        }
        valores[celda->columna - zona.primeraColumna] = celda->valor;
    }
    return valores;
}

} // namespace

Tabla TablaDeHoja(const HojaBiff& hoja, const std::string& nombre, LimitesDeLectura& limites) {
    if (!hoja.zonaUsada) {
        return {nombre, {}, {}};
    }
    return TablaDeZona(hoja, *hoja.zonaUsada, nombre, limites);
}

Tabla TablaDeZona(const HojaBiff& hoja, const ZonaDeHoja& zona, const std::string& nombre,
                  LimitesDeLectura& limites) {
    Tabla tabla{nombre, {}, {}};
    if (!hoja.zonaUsada || zona.primeraFila > hoja.zonaUsada->ultimaFila ||
        zona.primeraColumna > hoja.zonaUsada->ultimaColumna) {
        return tabla;
    }
    ZonaDeHoja cubierta = zona;
    cubierta.ultimaFila = std::min(zona.ultimaFila, hoja.zonaUsada->ultimaFila);
    cubierta.ultimaColumna = std::min(zona.ultimaColumna, hoja.zonaUsada->ultimaColumna);
    limites.contarCeldas((cubierta.ultimaFila - cubierta.primeraFila + 1) *
                         (cubierta.ultimaColumna - cubierta.primeraColumna + 1));
    tabla.Fields = Coleccion<Campo>{CamposDeHoja(FilaDeZona(hoja, cubierta.primeraFila, cubierta, limites))};
    tabla.filas.reserve(cubierta.ultimaFila - cubierta.primeraFila);
    for (std::size_t fila = cubierta.primeraFila + 1; fila <= cubierta.ultimaFila; ++fila) {
        tabla.filas.push_back(FilaDeZona(hoja, fila, cubierta, limites));
        tabla.numeros.push_back(static_cast<int>(fila) + 1);
    }
    return tabla;
}

} // namespace varo
