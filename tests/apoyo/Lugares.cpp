#include "apoyo/Lugares.h"

namespace varo::prueba {

std::filesystem::path Proyecto() {
    return VARO_PROYECTO;
}

std::filesystem::path DatosDePrueba() {
    return Proyecto() / "tests";
}

std::filesystem::path AlLado() {
    return Proyecto().parent_path() / "shared";
}

std::filesystem::path ProgramaLote() {
    return VARO_LOTE;
}

std::filesystem::path ProgramaEscritorio() {
    return VARO_ESCRITORIO;
}

} // namespace varo::prueba
