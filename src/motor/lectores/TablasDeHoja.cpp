#include "motor/lectores/TablasDeHoja.h"

#include "motor/lectores/CamposDeHoja.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace varo {
namespace {

/// Hands over the cells of a rectangle, by rows. What costs time is counted: each cell, and each row that
/// reaches beyond the rectangle.
template <class Accion>
void EnCadaCelda(const HojaBiff& hoja, const ZonaDeHoja& zona, LimitesDeLectura& limites, Accion accion) {
    using Sitio = std::pair<std::size_t, std::size_t>;
    const auto desde = [&](auto celda, Sitio sitio) {
        return std::lower_bound(celda, hoja.celdas.end(), sitio, [](const CeldaDeHoja& una, Sitio otro) {
            return Sitio{una.fila, una.columna} < otro;
        });
    };
    auto celda = desde(hoja.celdas.begin(), {zona.primeraFila, zona.primeraColumna});
    while (celda != hoja.celdas.end() && celda->fila <= zona.ultimaFila) {
        limites.contarCeldas(1);
        if (celda->columna < zona.primeraColumna) {
            celda = desde(celda, {celda->fila, zona.primeraColumna});
        } else if (celda->columna > zona.ultimaColumna) {
            celda = desde(celda, {celda->fila + 1U, zona.primeraColumna});
        } else {
            if (const auto* texto = std::get_if<std::string>(&celda->valor)) {
                limites.contarTexto(texto->size());
            }
            accion(celda->fila - zona.primeraFila, celda->columna - zona.primeraColumna, celda->valor);
            ++celda;
        }
    }
}

std::vector<Valor> CabeceraDeZona(const HojaBiff& hoja, ZonaDeHoja zona, LimitesDeLectura& limites) {
    zona.ultimaFila = zona.primeraFila;
    const auto columnas = zona.ultimaColumna - zona.primeraColumna + 1;
    limites.contarCeldas(columnas);
    std::vector<Valor> cabecera(columnas);
    EnCadaCelda(hoja, zona, limites,
                [&](std::size_t, std::size_t columna, const Valor& valor) { cabecera[columna] = valor; });
    return cabecera;
}

FilasDeTabla FilasDeZona(const HojaBiff& hoja, ZonaDeHoja zona, LimitesDeLectura& limites) {
    ++zona.primeraFila; // behind the header
    FilasDeTabla filas;
    EnCadaCelda(hoja, zona, limites, [&](std::size_t fila, std::size_t columna, const Valor& valor) {
        filas.poner(fila, columna, valor);
    });
    filas.alargar(zona.ultimaFila + 1 - zona.primeraFila);
    return filas;
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
    tabla.Fields = Coleccion<Campo>{CamposDeHoja(CabeceraDeZona(hoja, cubierta, limites))};
    tabla.filas = FilasDeZona(hoja, cubierta, limites);
    tabla.primerNumero = static_cast<int>(cubierta.primeraFila) + 2; // behind the header, and from 1
    return tabla;
}

} // namespace varo
