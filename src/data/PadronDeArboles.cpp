#include "data/PadronDeArboles.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "data/FilasDeArboles.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "options/OpcionesPrograma.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <cstddef>
#include <string>

namespace varo {

namespace {

constexpr int sinColumna = -1;

/// The column of the grid that holds the numbers of the trees. The options may have changed since it was
/// chosen, and then ask for a role that nobody has.
int ColumnaDelNumero(Programa& programa) {
    const auto& columnas = programa.sesion.Columnas;
    const int papel = PapelIndice(DatosDeLaCopa(programa.tocar<OpcionesPrograma>()));
    return papel <= columnas.limite() ? columnas(papel).valor() : sinColumna;
}

std::string TextoDelNumero(const Tabla& tabla, std::size_t fila, int columna) {
    if (columna == 0) {
        return ATexto(static_cast<int>(fila) + 1);
    }
    if (columna < 0 || columna > tabla.Fields.Count()) {
        return {};
    }
    const Valor& valor = tabla.filas[fila][static_cast<std::size_t>(columna) - 1];
    return EsNulo(valor) ? std::string{} : ATexto(valor);
}

} // namespace

Padron PadronDeLaRejilla(Programa& programa) {
    auto& hoja = programa.tocar<Hojadedatos>();
    const auto& rejilla = hoja.MSFlexGrid1;
    const Tabla& tabla = hoja.Data1.Recordset().filas();
    const int columna = ColumnaDelNumero(programa);
    const bool conNumero = columna >= 0 && columna < rejilla.Cols();
    Padron padron;
    padron.hoja = tabla.Name;
    padron.filas = PorArbol(rejilla, [&](int fila) {
        const auto registro = static_cast<std::size_t>(ANumero(rejilla.TextMatrix(fila, 0)));
        return tabla.numeroDeFila(registro - 1);
    });
    padron.numeros = PorArbol(
        rejilla, [&](int fila) { return conNumero ? rejilla.TextMatrix(fila, columna) : std::string{}; });
    return padron;
}

void PonerArbol(ErrorEjecucion& error, Programa& programa) {
    if (!error.fila()) {
        return;
    }
    const Tabla& tabla = programa.tocar<Hojadedatos>().Data1.Recordset().filas();
    const auto fila = tabla.filaConNumero(*error.fila());
    if (!fila) {
        return;
    }
    const std::string numero = TextoDelNumero(tabla, *fila, ColumnaDelNumero(programa));
    if (!numero.empty()) {
        error.precisarFila("árbol " + numero);
    }
}

} // namespace varo
