// Any bytes as an .ods, or as its parts: tables or ErrorMotor.
#include "ComprimirPartes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    return varo::prueba::LeerLibroEscrito(std::as_bytes(std::span{datos, tamano}));
}
