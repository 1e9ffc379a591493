#include "lote/plantilla/Tablas.h"

#include "basico/Numeros.h"
#include "lote/trabajo/ErrorTrabajo.h"
#include "motor/BaseDatos.h"

namespace varo {

namespace {

std::string BloqueDe(const Tabla& tabla) {
    if (tabla.defecto) {
        return EnUnaLinea(tabla.Name) + " (no se puede abrir)\n      " +
               EnUnaLinea(tabla.defecto->descripcion()) + "\n";
    }
    const auto filas = static_cast<int>(tabla.filas.size());
    std::string bloque =
        EnUnaLinea(tabla.Name) + " (" + ATexto(filas) + (filas == 1 ? " fila" : " filas") + ")\n";
    int columna = 0;
    for (const auto& campo : tabla.Fields) {
        ++columna;
        const std::string numero = ATexto(columna);
        bloque += std::string(numero.size() < 4 ? 4 - numero.size() : 0, ' ') + numero + "  " +
                  EnUnaLinea(campo.Name);
        bloque += columna == tabla.Fields.Count() ? " (última: sus datos no llegan a la rejilla)\n" : "\n";
    }
    return bloque;
}

} // namespace

std::string ListaDeTablas(const std::filesystem::path& archivo) {
    const auto base = BaseDatos::abrir(archivo);
    std::string lista;
    for (const auto& tabla : base.TableDefs()) {
        lista += BloqueDe(tabla);
    }
    return lista;
}

} // namespace varo
