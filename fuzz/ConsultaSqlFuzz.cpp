// Any text as a query over fixed tables: an answer with one value for each of its columns, or a fault.
#include "motor/BaseDatos.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using varo::Fecha;
using varo::Nulo;
using varo::Tabla;
using varo::Valor;

Tabla TablaCon(std::string nombre, const std::vector<std::string>& campos,
               std::vector<std::vector<Valor>> filas) {
    std::vector<varo::Campo> cabecera;
    for (const auto& campo : campos) {
        cabecera.push_back({campo});
    }
    return {std::move(nombre), varo::Coleccion<varo::Campo>{std::move(cabecera)}, std::move(filas)};
}

varo::BaseDatos Base() {
    constexpr double inmenso = std::numeric_limits<double>::max();
    constexpr double diminuto = std::numeric_limits<double>::denorm_min();
    Tabla danada{"Rota", {}, {}};
    danada.defecto.emplace(varo::fallo::archivoDanado, "No se puede leer la tabla «Rota»");
    return varo::BaseDatos{
        {TablaCon("P$", {"a", "b", "N 1", "ñ"},
                  {{1.0, "Ps", Fecha{43831.5}, true},
                   {2.5, "12,5", Nulo{}, false},
                   {Nulo{}, "", Fecha{-0.25}, Nulo{}},
                   {-3.0, Nulo{}, Fecha{0.75}, true},
                   {1.0, "ps", Fecha{43831.0}, false}}),
         TablaCon("Extremos", {"x", "F2"},
                  {{inmenso, "1E+308"}, {-inmenso, "-,5"}, {diminuto, "1.234,5"}, {-0.0, "31/12/2025"}}),
         TablaCon("Vacía", {"a"}, {}), std::move(danada)}};
}

/// As many rows as the table at most, each with its number unless they are summed up, and with finite
/// numbers.
void Comprobar(const Tabla& respuesta) {
    constexpr std::size_t filasDeLaMayor = 5;
    const auto filas = respuesta.filas.size();
    bool bien = filas <= filasDeLaMayor && respuesta.Fields.Count() > 0 &&
                (respuesta.numeros.size() == filas || (respuesta.numeros.empty() && filas == 1));
    for (std::size_t fila = 0; fila < filas; ++fila) {
        for (std::size_t columna = 0; columna < static_cast<std::size_t>(respuesta.Fields.Count());
             ++columna) {
            const Valor valor = respuesta.filas[fila][columna];
            bien = bien && (!std::holds_alternative<double>(valor) || std::isfinite(std::get<double>(valor)));
        }
    }
    if (!bien) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t tamano) {
    static const auto base = Base();
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes are the letters
    const std::string_view consulta{reinterpret_cast<const char*>(datos), tamano};
    try {
        Comprobar(base.OpenRecordset(consulta).filas());
    } catch (const varo::ErrorEjecucion& error) {
        if (error.descripcion().empty()) {
            std::abort();
        }
    }
    return 0;
}
