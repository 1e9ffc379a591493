// Any text as a job that is read and not run: a job, or the line that says what is wrong with it.
#include "lote/trabajo/Salidas.h"
#include "lote/trabajo/TextoDeToml.h"
#include "lote/trabajo/Trabajo.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void Exigir(bool bien) {
    if (!bien) {
        std::abort();
    }
}

/// What a job that was taken always has.
void Comprobar(const varo::Trabajo& trabajo) {
    Exigir(!trabajo.archivo.empty() && !trabajo.hoja.empty());
    for (const auto& opcion : trabajo.opciones) {
        const auto tecleado = varo::TextoTecleado(opcion.valor);
        const bool seTeclea = !std::holds_alternative<bool>(opcion.valor) &&
                              !std::holds_alternative<std::vector<varo::FuncionPedida>>(opcion.valor);
        Exigir(tecleado.has_value() == seTeclea && opcion.linea > 0);
    }
    for (const auto& mapa : trabajo.mapas) {
        Exigir(mapa.ruta.has_filename() && mapa.linea > 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes are the letters
    const std::string_view texto{reinterpret_cast<const char*>(datos), tamano};
    try {
        const auto trabajo = varo::InterpretarTrabajo(texto, "carpeta/fuzz.toml");
        Comprobar(trabajo);
        varo::RechazarSalidasEnConflicto({trabajo});
    } catch (const varo::ErrorTrabajo& error) {
        const std::string_view linea = error.what();
        Exigir(linea.find('\n') == std::string_view::npos && !varo::LineaSinUtf8(linea));
    }
    return 0;
}
