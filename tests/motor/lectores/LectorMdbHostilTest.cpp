// Cut and mutated databases: each table whole or with its defect, or an error; never anything between.
#include "apoyo/EscritorMdb.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorMdb.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace varo {
namespace {

using prueba::TablaMdb;
using prueba::TipoMdb;

/// Rows of most types, some of them deleted or moved, on several pages.
TablaMdb Arboles() {
    TablaMdb tabla{"Árboles",
                   {{"Id", TipoMdb::EnteroLargo},
                    {"Especie", TipoMdb::Texto},
                    {"CAP", TipoMdb::Doble},
                    {"Viva", TipoMdb::Booleano},
                    {.nombre = "Notas", .tipo = TipoMdb::Memo, .borradosDelante = 3},
                    {"Precio", TipoMdb::Moneda},
                    {"Fecha", TipoMdb::FechaHora}},
                   {}};
    for (int i = 0; i < 30; ++i) {
        tabla.filas.push_back(
            {static_cast<double>(i), i % 5 == 0 ? Valor{} : Valor{"piñón " + std::to_string(i)}, i / 4.0,
             i % 2 == 0, std::string(i % 10 == 9 ? 5000 : 50, 'm'), i * 1.5, Fecha{43831.0 + i}});
    }
    tabla.borradas = {2, 7};
    tabla.trasladadas = {4, 20};
    tabla.filasPorPagina = 9;
    return tabla;
}

std::vector<std::vector<std::byte>> BasesPropias() {
    std::vector<std::vector<std::byte>> bases;
    for (const auto& [version, clave] :
         {std::pair{0, 0U}, {0, 0x1234567U}, {1, 0U}, {1, 0x89ABCDEU}, {3, 0U}}) {
        auto enPaginas = Arboles();
        enPaginas.nombre = "Con mapa en páginas";
        enPaginas.mapaEnPaginas = true;
        bases.push_back(prueba::EscribirMdb(
            {{Arboles(), {"Fija", {{"x", TipoMdb::Doble}}, {{1.0}, {2.0}}}, enPaginas}, version, clave}));
    }
    return bases;
}

/// Those of the project and, where they are, those of other programs.
std::vector<std::vector<std::byte>> BasesBuenas() {
    auto bases = BasesPropias();
    for (const std::string carpeta : {"mdb-made", "mdb-real"}) {
        const auto muestras = prueba::Muestras(carpeta);
        std::transform(muestras.begin(), muestras.end(), std::back_inserter(bases), prueba::BytesDe);
    }
    return bases;
}

std::size_t TamanoDePagina(const std::vector<std::byte>& base) {
    return base[0x14] == std::byte{0} ? 2048 : 4096;
}

TEST(LectorMdbHostil, DeUnaBaseCortadaCadaTablaEstaEnteraODiceSuDefecto) {
    for (const auto& base : BasesPropias()) {
        const auto enteras = LeerMdb(base, "mutada.mdb");
        std::size_t errores = 0;
        for (std::size_t corte = 0; corte < base.size(); corte += TamanoDePagina(base) / 2) {
            const std::span trozo{base.data(), corte};
            if (prueba::BaseEnteraOError(trozo).enteras == 0) {
                ++errores;
                continue;
            }
            for (const auto& tabla : LeerMdb(trozo, "mutada.mdb")) {
                const auto entera = std::ranges::find(enteras, tabla.Name, &Tabla::Name);
                EXPECT_TRUE(tabla.defecto || prueba::Lineas(*entera) == prueba::Lineas(tabla)) << corte;
            }
        }
        EXPECT_GT(errores, 2U);
    }
}

/// What a page says of itself stands at its beginning: half of the copies are changed there.
std::vector<std::byte> Mutada(std::vector<std::byte> base, std::mt19937& azar) {
    if (azar() % 2 == 0) {
        return prueba::Mutado(std::move(base), azar);
    }
    const std::size_t tamano = TamanoDePagina(base);
    const std::size_t pagina = (1 + azar() % (base.size() / tamano - 1)) * tamano;
    const auto primero = base.begin() + static_cast<std::ptrdiff_t>(pagina);
    const auto comienzo = prueba::Mutado({primero, primero + 96}, azar);
    std::ranges::copy(comienzo, primero);
    return base;
}

TEST(LectorMdbHostil, UnaBaseMutadaDaTablasEnterasODiceLoQueTiene) {
    std::mt19937 azar{20000229}; // NOLINT(cert-msc51-cpp): the same mutations every time
    std::size_t enteras = 0;
    std::size_t conDefecto = 0;
    std::size_t sinNada = 0;
    for (const auto& base : BasesBuenas()) {
        for (int vez = 0; vez < 150; ++vez) {
            const auto cuenta = prueba::BaseEnteraOError(Mutada(base, azar));
            enteras += cuenta.enteras;
            conDefecto += cuenta.conDefecto;
            sinNada += cuenta.enteras + cuenta.conDefecto == 0 ? 1 : 0;
        }
    }
    // All of it happens: the mutations neither miss the file nor wreck it all.
    EXPECT_GT(enteras, 500U);
    EXPECT_GT(conDefecto, 50U);
    EXPECT_GT(sinNada, 2U);
}

TEST(LectorMdbHostil, UnaBaseConOtraCosaDetrasDeSuCabeceraEstaDanada) {
    std::mt19937 azar{19990101}; // NOLINT(cert-msc51-cpp): the same bytes every time
    for (auto base : BasesBuenas()) {
        std::generate(base.begin() + 512, base.end(), [&] { return static_cast<std::byte>(azar()); });
        const auto cuenta = prueba::BaseEnteraOError(base);
        EXPECT_EQ(0U, cuenta.enteras + cuenta.conDefecto);
    }
}

} // namespace
} // namespace varo
