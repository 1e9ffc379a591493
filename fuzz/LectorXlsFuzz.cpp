// Any bytes as a workbook: tables or ErrorMotor. A good corpus to start from is tests/datos/libros.
#include "motor/lectores/LectorXls.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    try {
        for (const auto& tabla : varo::LeerXls(std::as_bytes(std::span{datos, tamano}), "fuzz.xls")) {
            for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
                const auto celdas = tabla.filas[fila];
                if (celdas.celdas() > 0 && celdas.ultima().columna >= tabla.Fields.Count()) {
                    std::abort();
                }
            }
        }
    } catch (
        const varo::ErrorMotor&) { // NOLINT(bugprone-empty-catch): the answer to bytes that are no workbook
    }
    return 0;
}
