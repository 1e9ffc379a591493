// Any bytes as a text of cells: a table or ErrorMotor.
#include "motor/lectores/LectorCsv.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    try {
        for (const auto& tabla : varo::LeerCsv(std::as_bytes(std::span{datos, tamano}), "fuzz.csv", "fuzz")) {
            for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
                const auto celdas = tabla.filas[fila];
                if (celdas.celdas() > 0 && celdas.ultima().columna >= tabla.Fields.Count()) {
                    std::abort();
                }
            }
        }
    } catch (const varo::ErrorMotor&) { // NOLINT(bugprone-empty-catch): the answer to bytes that are no table
    }
    return 0;
}
