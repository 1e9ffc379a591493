#include "data/CodigosDeLaRejilla.h"

#include "formularios/Rejilla.h"

namespace varo {

std::vector<std::string> CodigosDeLaRejilla(const Rejilla& rejilla, int columna) {
    std::vector<std::string> codigos;
    // Meant: the first row is compared with the header, so a code equal to it is not taken there.
    int anterior = 0;
    for (const int fila : rejilla.filasEnOrden(columna)) {
        const std::string& codigo = rejilla.TextMatrix(fila, columna);
        if (codigo != rejilla.TextMatrix(anterior, columna) && !codigo.empty()) {
            codigos.push_back(codigo);
        }
        anterior = fila;
    }
    return codigos;
}

} // namespace varo
