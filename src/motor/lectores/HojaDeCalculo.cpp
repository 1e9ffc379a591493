#include "motor/lectores/HojaDeCalculo.h"

#include <algorithm>

namespace varo {
namespace {

/// Formulas that give an empty text, or an error, are often filled down far below the last tree.
bool SeVe(const ValorDeCelda& valor) {
    return !EsNulo(valor) && (valor.clase() != ValorDeCelda::Clase::Texto || !valor.texto().empty());
}

std::optional<ZonaDeHoja> ZonaConContenido(const CeldasJuntas& celdas) {
    std::optional<ZonaDeHoja> zona;
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        if (SeVe(celdas.valor(i))) {
            zona = zona.value_or(
                ZonaDeHoja{celdas.fila(0), celdas.fila(i), celdas.columna(0), celdas.columna(i)});
            zona->ultimaFila = celdas.fila(i);
            zona->ultimaColumna = std::max<std::size_t>(zona->ultimaColumna, celdas.columna(i));
        }
    }
    for (std::size_t i = 0; zona && i < celdas.size() && celdas.fila(i) <= zona->ultimaFila; ++i) {
        zona->primeraColumna = std::min<std::size_t>(zona->primeraColumna, celdas.columna(i));
    }
    return zona;
}

} // namespace

void HojaDeCalculo::cerrar() {
    celdas.ordenar();
    zonaUsada = ZonaConContenido(celdas);
}

} // namespace varo
