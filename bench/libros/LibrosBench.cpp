// Reading the largest plot the program takes, 32,766 rows of 100 columns, from zipped workbooks.
#include "libros/LectorDeLibros.h"

#include "apoyo/EscritorOds.h"
#include "apoyo/EscritorXlsx.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>
#include <zip.h>

namespace {

constexpr int filas = 32766;
constexpr int columnas = 100;

/// A header, a species as text and measures of two decimals.
varo::prueba::Hoja Parcela() {
    varo::prueba::Hoja hoja{"Parcela", {{"Especie"}}};
    for (int columna = 1; columna < columnas; ++columna) {
        hoja.celdas.front().emplace_back("Medida " + std::to_string(columna));
    }
    for (int fila = 0; fila < filas; ++fila) {
        auto& celdas = hoja.celdas.emplace_back();
        celdas.emplace_back(fila % 3 == 0 ? "Pinus pinaster" : "Quercus robur");
        for (int columna = 1; columna < columnas; ++columna) {
            celdas.emplace_back((1000 + (fila * 7919 + columna * 104729) % 9000) / 100.0);
        }
    }
    return hoja;
}

/// The archive with its parts packed, as programs write them.
std::vector<std::byte> Empaquetado(const std::vector<std::byte>& suelto) {
    zip_source_t* const fuente = zip_source_buffer_create(suelto.data(), suelto.size(), 0, nullptr);
    zip_source_keep(fuente);
    zip_t* const archivo = zip_open_from_source(fuente, 0, nullptr);
    for (zip_int64_t i = 0; i < zip_get_num_entries(archivo, 0); ++i) {
        zip_set_file_compression(archivo, static_cast<zip_uint64_t>(i), ZIP_CM_DEFLATE, 0);
    }
    zip_stat_t datos{};
    if (zip_close(archivo) != 0 || zip_source_stat(fuente, &datos) != 0 || zip_source_open(fuente) != 0) {
        throw std::runtime_error{"no se puede comprimir el libro"};
    }
    std::vector<std::byte> bytes(datos.size);
    zip_source_read(fuente, bytes.data(), bytes.size());
    zip_source_close(fuente);
    zip_source_free(fuente);
    return bytes;
}

void Leer(benchmark::State& estado, const std::vector<std::byte>& bytes) {
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::LeerLibroComprimido(bytes, "parcela"));
    }
    estado.SetBytesProcessed(estado.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void LeerXlsx(benchmark::State& estado) {
    Leer(estado, Empaquetado(varo::prueba::EscribirXlsx({Parcela()})));
}
BENCHMARK(LeerXlsx)->Unit(benchmark::kMillisecond);

void LeerOds(benchmark::State& estado) {
    Leer(estado, Empaquetado(varo::prueba::EscribirOds({Parcela()})));
}
BENCHMARK(LeerOds)->Unit(benchmark::kMillisecond);

} // namespace
