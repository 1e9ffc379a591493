#include "motor/lectores/TablasDeHoja.h"

#include "motor/lectores/CamposDeHoja.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace varo {
namespace {

/// Hands over the cells of a rectangle, by rows. What costs time is counted: each cell, and each row that
/// reaches beyond the rectangle.
template <class Accion>
void EnCadaCelda(const HojaDeCalculo& hoja, const ZonaDeHoja& zona, LimitesDeLectura& limites,
                 Accion accion) {
    const auto& celdas = hoja.celdas;
    std::size_t i = celdas.buscar(0, zona.primeraFila, zona.primeraColumna);
    while (i < celdas.size() && celdas.fila(i) <= zona.ultimaFila) {
        limites.contarCeldas(1);
        if (celdas.columna(i) < zona.primeraColumna) {
            i = celdas.buscar(i, celdas.fila(i), zona.primeraColumna);
        } else if (celdas.columna(i) > zona.ultimaColumna) {
            i = celdas.buscar(i, celdas.fila(i) + 1U, zona.primeraColumna);
        } else {
            const auto celda = celdas[i];
            limites.contarTextoDeCelda(celda.valor.texto().size());
            accion(celda.fila - zona.primeraFila, celda.columna - zona.primeraColumna, celda.valor);
            ++i;
        }
    }
}

std::vector<Valor> CabeceraDeZona(const HojaDeCalculo& hoja, ZonaDeHoja zona, LimitesDeLectura& limites) {
    zona.ultimaFila = zona.primeraFila;
    const auto columnas = zona.ultimaColumna - zona.primeraColumna + 1;
    limites.contarCeldas(columnas);
    std::vector<Valor> cabecera(columnas);
    EnCadaCelda(hoja, zona, limites, [&](std::size_t, std::size_t columna, const ValorDeCelda& valor) {
        cabecera[columna] = valor;
    });
    return cabecera;
}

FilasDeTabla FilasDeZona(const HojaDeCalculo& hoja, ZonaDeHoja zona, LimitesDeLectura& limites) {
    ++zona.primeraFila; // behind the header
    FilasDeTabla filas;
    EnCadaCelda(hoja, zona, limites, [&](std::size_t fila, std::size_t columna, const ValorDeCelda& valor) {
        filas.poner(fila, columna, valor);
    });
    filas.alargar(zona.ultimaFila + 1 - zona.primeraFila);
    return filas;
}

} // namespace

Tabla TablaDeHoja(const HojaDeCalculo& hoja, const std::string& nombre, LimitesDeLectura& limites) {
    return TablaDeZona(hoja, hoja.zonaUsada.value_or(ZonaDeHoja{}), nombre, limites);
}

Tabla TablaDeZona(const HojaDeCalculo& hoja, const ZonaDeHoja& zona, const std::string& nombre,
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
