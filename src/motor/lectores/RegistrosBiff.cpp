#include "motor/lectores/RegistrosBiff.h"

namespace varo {

Subflujo::Subflujo(Bytes flujo, std::size_t comienzo) : flujo_{flujo}, comienzo_{comienzo}, lugar_{comienzo} {
    const auto bof = leer();
    if (bof.tipo != biff::bof) {
        ArchivoDanado("una hoja no está donde el libro dice");
    }
    version_ = LeerU16(bof.datos, 0);
    clase_ = LeerU16(bof.datos, 2);
}

Registro Subflujo::leer() {
    const int tipo = LeerU16(flujo_, lugar_);
    const std::size_t longitud = LeerU16(flujo_, lugar_ + 2);
    const auto datos = Trozo(flujo_, lugar_ + 4, longitud);
    lugar_ += 4 + longitud;
    return {tipo, datos};
}

std::optional<Registro> Subflujo::siguiente() {
    for (int profundidad = 0;;) {
        const auto registro = leer();
        if (registro.tipo == biff::bof) {
            ++profundidad;
        } else if (registro.tipo == biff::eof) {
            if (profundidad == 0) {
                return std::nullopt;
            }
            --profundidad;
        } else if (profundidad == 0) {
            return registro;
        }
    }
}

std::vector<Bytes> Subflujo::conContinuaciones(const Registro& registro) {
    std::size_t cuantos = 1;
    for (auto lugar = lugar_; LeerU16(flujo_, lugar) == biff::continuacion; ++cuantos) {
        lugar += 4U + LeerU16(flujo_, lugar + 2);
    }
    std::vector<Bytes> fragmentos;
    fragmentos.reserve(cuantos);
    fragmentos.push_back(registro.datos);
    while (LeerU16(flujo_, lugar_) == biff::continuacion) {
        fragmentos.push_back(leer().datos);
    }
    return fragmentos;
}

} // namespace varo
