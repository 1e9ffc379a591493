// Databases that somebody has spoilt in one place.
#include "motor/lectores/LectorMdb.h"

#include "apoyo/EscritorMdb.h"
#include "apoyo/Fallos.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace varo {
namespace {

using prueba::FallaCon;
using prueba::TipoMdb;

constexpr std::size_t tamanoDePagina = 4096;
// Pages of the databases below: header, a page of no table, catalogue, and then, for each table, its
// definition, its rows and its maps; those of the catalogue come last.
constexpr std::size_t definicion = 3;
constexpr std::size_t deFilas = 4;
constexpr std::size_t deMapas = 5;

std::vector<std::byte> Buena() {
    const std::vector<prueba::CampoMdb> campos{{"a", TipoMdb::EnteroLargo}, {"b", TipoMdb::Texto}};
    return prueba::EscribirMdb({{{"Una", campos, {{1.0, "x"}, {2.0, "y"}}}, {"Otra", campos, {{3.0, "z"}}}}});
}

std::vector<std::byte> Con(std::size_t pagina, std::size_t lugar, unsigned valor) {
    auto bytes = Buena();
    bytes[pagina * tamanoDePagina + lugar] = static_cast<std::byte>(valor);
    return bytes;
}

/// The first table says this of itself, and the second one is whole.
void FallaLaPrimera(const std::vector<std::byte>& bytes, const std::string& dice) {
    const auto tablas = LeerMdb(bytes, "parcela.mdb");
    ASSERT_EQ(2U, tablas.size());
    ASSERT_TRUE(tablas[0].defecto);
    EXPECT_EQ(fallo::archivoDanado, tablas[0].defecto->numero());
    EXPECT_EQ("No se puede leer la tabla «Una» de «parcela.mdb»: el archivo está dañado (" + dice +
                  "): ábralo en Access y use «Compactar y reparar base de datos», o tome otra copia",
              tablas[0].defecto->descripcion());
    EXPECT_EQ((std::vector<std::string>{"[Otra]", "a | b", "3 | 'z'"}), prueba::Lineas(tablas[1]));
}

TEST(LectorMdbDanado, SinTocarSeLee) {
    EXPECT_EQ(
        (std::vector<std::string>{"[Una]", "a | b", "1 | 'x'", "2 | 'y'", "[Otra]", "a | b", "3 | 'z'"}),
        prueba::Lineas(LeerMdb(Buena(), "parcela.mdb")));
}

TEST(LectorMdbDanado, UnaPaginaDeOtraTablaNoSeLee) {
    FallaLaPrimera(Con(deFilas, 4, 6), "la página 4 es de otra tabla");
}

TEST(LectorMdbDanado, UnaPaginaQueYaNoEsDeFilasSeDice) {
    FallaLaPrimera(Con(deFilas, 0, 4), "la página 4 no es lo que debía");
}

TEST(LectorMdbDanado, UnaDefinicionQueNoLoEsSeDice) {
    FallaLaPrimera(Con(definicion, 0, 1), "la página 3 no es lo que debía");
}

TEST(LectorMdbDanado, UnMapaSinSentidoSeDice) {
    FallaLaPrimera(Con(deMapas, 4096 - 69, 9), "el mapa de páginas de una tabla no es válido");
}

TEST(LectorMdbDanado, UnMapaConUnaPaginaDeMasSeDice) {
    FallaLaPrimera(Con(deMapas, 4096 - 69 + 5 + 60, 0x80), "falta la página 487 de una tabla");
}

TEST(LectorMdbDanado, UnaSenalAUnaFilaQueNadieHaTrasladadoSeDice) {
    // The first row becomes a pointer: to the second one, to itself.
    for (const unsigned otra : {0U, 1U}) {
        auto bytes = Buena();
        auto* const pagina = &bytes[deFilas * tamanoDePagina];
        pagina[15] |= std::byte{0x40};
        const auto lugar =
            (std::to_integer<unsigned>(pagina[15]) & 0x1FU) << 8U | std::to_integer<unsigned>(pagina[14]);
        pagina[lugar] = static_cast<std::byte>(otra);
        pagina[lugar + 1] = std::byte{deFilas};
        pagina[lugar + 2] = pagina[lugar + 3] = std::byte{0};
        FallaLaPrimera(bytes, "una fila no está donde debía");
    }
}

TEST(LectorMdbDanado, UnArchivoCortadoSeLeeHastaDondeEstanSusTablas) {
    const auto entera = Buena();
    // The catalogue's own pages come last here: without them nothing is known.
    EXPECT_TRUE(FallaCon(fallo::archivoDanado,
                         "No se puede leer «parcela.mdb»: el archivo está dañado (falta la",
                         [&] { LeerMdb(std::span{entera}.first(entera.size() - 1), "parcela.mdb"); }));
}

TEST(LectorMdbDanado, UnCatalogoSinSusColumnasEstaDanado) {
    auto bytes = Buena();
    // The first letter of "Id": 63 bytes of header, six columns of 25, and the length of the name.
    bytes[2 * tamanoDePagina + std::size_t{63 + 6 * 25 + 2}] = std::byte{'i'};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "no tiene la lista de sus tablas",
                         [&] { LeerMdb(bytes, "parcela.mdb"); }));
}

TEST(LectorMdbDanado, MuchasFilasConElMismoMemoPasanDelLimite) {
    constexpr std::size_t cuantas = 170;
    prueba::TablaMdb tabla{"T", {{"m", TipoMdb::Memo}}, {{std::string(1'000'000, 'm')}}};
    tabla.filas.resize(cuantas, {std::string(100, 'n')});
    auto bytes = prueba::EscribirMdb({{tabla}});
    std::size_t pagina = 0; // the first one of the table with more than one row
    while (bytes[pagina * tamanoDePagina] != std::byte{1} ||
           bytes[pagina * tamanoDePagina + 12] < std::byte{100}) {
        ++pagina;
    }
    auto* const filas = &bytes[pagina * tamanoDePagina];
    const auto campo = [&](std::size_t fila) {
        const auto* const lugar = filas + 14 + 2 * fila;
        return filas + (std::to_integer<unsigned>(lugar[0]) | std::to_integer<unsigned>(lugar[1]) << 8U) + 2;
    };
    for (std::size_t fila = 1; fila < std::to_integer<std::size_t>(filas[12]); ++fila) {
        std::copy_n(campo(0), 12, campo(fila));
    }
    const auto tablas = LeerMdb(bytes, "parcela.mdb");
    ASSERT_TRUE(tablas.at(0).defecto);
    EXPECT_NE(std::string::npos, tablas[0].defecto->descripcion().find("sus textos ocupan demasiado"));
}

} // namespace
} // namespace varo
