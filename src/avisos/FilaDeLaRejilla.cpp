#include "avisos/FilaDeLaRejilla.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "shell/Programa.h"

#include <cstddef>
#include <string>

namespace varo {

std::optional<int> FilaDeLaRejilla(Programa& programa, int filaDeLaHoja) {
    auto& hoja = programa.tocar<Hojadedatos>();
    const Rejilla& rejilla = hoja.MSFlexGrid1;
    const Tabla& tabla = hoja.Data1.Recordset().filas();
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        // Column 0 numbers the records of the sheet; rows may have left the grid, or changed their order.
        const std::string& registro = rejilla.TextMatrix(fila, 0);
        if (!registro.empty() &&
            tabla.numeroDeFila(static_cast<std::size_t>(ANumero(registro)) - 1) == filaDeLaHoja) {
            return fila;
        }
    }
    return std::nullopt;
}

} // namespace varo
