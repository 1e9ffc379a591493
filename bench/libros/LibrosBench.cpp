// Reading the largest plot the program takes, 32,766 rows of 100 columns, from zipped workbooks.
#include "libros/LectorDeLibros.h"
#include "libros/Referencias.h"

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

/// Species and measures of two decimals.
std::string Texto(int fila, int columna) {
    return fila == 0       ? "Medida " + std::to_string(columna)
           : fila % 3 == 0 ? "Pinus pinaster"
                           : "Quercus robur";
}

std::string Numero(int fila, int columna) {
    const int centesimas = 1000 + (fila * 7919 + columna * 104729) % 9000;
    return std::to_string(centesimas / 100) + "." + std::to_string(100 + centesimas % 100).substr(1);
}

/// The header and the rows, by cells. `enCelda` gets whether a text stands there, it, and where.
template <class EnCelda>
std::string Filas(const std::string& abrir, const std::string& cerrar, EnCelda enCelda) {
    std::string todas;
    for (int fila = 0; fila <= filas; ++fila) {
        todas += abrir;
        for (int columna = 0; columna < columnas; ++columna) {
            const bool esTexto = fila == 0 || columna == 0;
            const varo::SitioDeCelda sitio{static_cast<std::size_t>(fila), static_cast<std::size_t>(columna)};
            todas += enCelda(esTexto, esTexto ? Texto(fila, columna) : Numero(fila, columna), sitio);
        }
        todas += cerrar;
    }
    return todas;
}

/// With all that LibreOffice writes around each value, because that takes most of the time.
std::vector<std::byte> ParcelaXlsx() {
    varo::prueba::LibroXlsxDePrueba libro;
    libro.estilos = R"(<cellXfs count="1"><xf numFmtId="0"/></cellXfs>)";
    int textos = 0;
    const auto enCelda = [&](bool esTexto, const std::string& valor, const varo::SitioDeCelda& sitio) {
        if (esTexto) {
            libro.textos += "<si><t xml:space=\"preserve\">" + valor + "</t></si>";
        }
        return "<c r=\"" + varo::NombreDeCelda(sitio) + R"(" s="0" t=")" +
               (esTexto ? R"(s"><v>)" + std::to_string(textos++) : R"(n"><v>)" + valor) + "</v></c>";
    };
    libro.hojas = {
        {"Parcela", Filas(R"(<row customFormat="false" ht="12.8" hidden="false" customHeight="false">)",
                          "</row>", enCelda)}};
    return varo::prueba::EscribirXlsx(libro);
}

std::vector<std::byte> ParcelaOds() {
    const auto enCelda = [](bool esTexto, const std::string& valor, const varo::SitioDeCelda&) {
        const std::string clase = esTexto ? "string" : "float";
        return R"(<table:table-cell table:style-name="ce1" office:value-type=")" + clase +
               (esTexto ? "" : R"(" office:value=")" + valor) + R"(" calcext:value-type=")" + clase +
               R"("><text:p>)" + valor + "</text:p></table:table-cell>";
    };
    return varo::prueba::EscribirOds(
        R"(<table:table table:name="Parcela">)" +
        Filas(R"(<table:table-row table:style-name="ro1">)", "</table:table-row>", enCelda) +
        "</table:table>");
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
    Leer(estado, Empaquetado(ParcelaXlsx()));
}
BENCHMARK(LeerXlsx)->Unit(benchmark::kMillisecond);

void LeerOds(benchmark::State& estado) {
    Leer(estado, Empaquetado(ParcelaOds()));
}
BENCHMARK(LeerOds)->Unit(benchmark::kMillisecond);

} // namespace
