#include "motor/FormatosDeArchivo.h"

#include <algorithm>
#include <utility>

namespace varo {

namespace {

/// What the readers of the core open.
constexpr const char* propios = ".xls, .mdb, .accdb, .csv";

std::vector<FormatoDeArchivo>& Registrados() {
    static std::vector<FormatoDeArchivo> formatos;
    return formatos;
}

} // namespace

void RegistrarFormato(FormatoDeArchivo formato) {
    if (std::ranges::find(Registrados(), formato.nombre, &FormatoDeArchivo::nombre) == Registrados().end()) {
        Registrados().push_back(std::move(formato));
    }
}

const FormatoDeArchivo* FormatoRegistrado(std::span<const std::byte> bytes) {
    const auto hallado = std::ranges::find_if(
        Registrados(), [bytes](const FormatoDeArchivo& formato) { return formato.parece(bytes); });
    return hallado == Registrados().end() ? nullptr : &*hallado;
}

std::string FormatosQueSeAbren() {
    std::string nombres = propios;
    for (const auto& formato : Registrados()) {
        nombres += ", " + formato.nombre;
    }
    return nombres;
}

} // namespace varo
