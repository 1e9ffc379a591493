#include "motor/lectores/DefinicionJet.h"

#include "apoyo/EscritorMdb.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

using prueba::CampoMdb;
using prueba::FallaCon;
using prueba::TipoMdb;

constexpr std::uint32_t primeraTabla = 3; // its page, behind the catalogue's

std::vector<std::byte> ConCampos(int version, std::vector<CampoMdb> campos) {
    return prueba::EscribirMdb({{{"T", std::move(campos), {}}}, version});
}

DefinicionJet Definicion(const std::vector<std::byte>& bytes) {
    return LeerDefinicion(ArchivoJet{bytes}, primeraTabla);
}

std::vector<std::string> Nombres(const DefinicionJet& definicion) {
    std::vector<std::string> nombres;
    for (const auto& columna : definicion.columnas) {
        nombres.push_back(columna.nombre);
    }
    return nombres;
}

/// The bytes with two of a page changed.
std::vector<std::byte> Cambiado(std::vector<std::byte> bytes, std::size_t pagina, std::size_t lugar,
                                unsigned valor) {
    bytes[pagina * 4096 + lugar] = static_cast<std::byte>(valor);
    bytes[pagina * 4096 + lugar + 1] = static_cast<std::byte>(valor >> 8U);
    return bytes;
}

class DeDefinicion : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(DefinicionJet, DeDefinicion, testing::Values(0, 1, 3));

TEST_P(DeDefinicion, LasColumnasVienenConLoSuyo) {
    const auto definicion = Definicion(ConCampos(GetParam(), {{"Árbol", TipoMdb::EnteroLargo},
                                                              {"Especie", TipoMdb::Texto},
                                                              {"CAP", TipoMdb::Doble},
                                                              {"Notas", TipoMdb::Memo}}));
    ASSERT_EQ((std::vector<std::string>{"Árbol", "Especie", "CAP", "Notas"}), Nombres(definicion));
    EXPECT_EQ(primeraTabla, definicion.pagina);
    EXPECT_EQ(2U, definicion.columnasVariables);
    const auto& cap = definicion.columnas[2];
    EXPECT_EQ(TipoJet::Doble, cap.tipo);
    EXPECT_TRUE(cap.fija);
    EXPECT_EQ(4U, cap.lugar);
    EXPECT_EQ(2U, cap.numero);
    EXPECT_FALSE(cap.calculada);
    const auto& notas = definicion.columnas[3];
    EXPECT_EQ(TipoJet::Memo, notas.tipo);
    EXPECT_FALSE(notas.fija);
    EXPECT_EQ(1U, notas.lugar);
}

TEST_P(DeDefinicion, LosCamposVanComoUnaPersonaLosHaOrdenado) {
    const auto bytes = ConCampos(GetParam(), {{.nombre = "a", .orden = 2},
                                              {.nombre = "b", .orden = 0},
                                              {.nombre = "c", .orden = 1},
                                              {.nombre = "d", .orden = 1}});
    EXPECT_EQ((std::vector<std::string>{"b", "c", "d", "a"}), Nombres(Definicion(bytes)));
}

TEST_P(DeDefinicion, LasColumnasBorradasGuardanSuNumero) {
    const auto definicion =
        Definicion(ConCampos(GetParam(), {{.nombre = "a"}, {.nombre = "b", .borradosDelante = 2}}));
    EXPECT_EQ(0U, definicion.columnas[0].numero);
    EXPECT_EQ(3U, definicion.columnas[1].numero);
}

TEST_P(DeDefinicion, UnaDefinicionLargaOcupaVariasPaginas) {
    std::vector<CampoMdb> campos;
    std::vector<std::string> nombres;
    for (int i = 0; i < 255; ++i) {
        nombres.push_back(std::string(50, 'n') + std::to_string(i));
        campos.push_back({.nombre = nombres.back()});
    }
    EXPECT_EQ(nombres, Nombres(Definicion(ConCampos(GetParam(), campos))));
}

TEST(DefinicionJet, DecimalesYCalculadasSeSaben) {
    const auto definicion =
        Definicion(ConCampos(1, {{.nombre = "d", .tipo = TipoMdb::Decimal, .decimales = 7},
                                 {.nombre = "c", .tipo = TipoMdb::Doble, .calculado = true}}));
    EXPECT_EQ(7, definicion.columnas[0].decimales);
    EXPECT_TRUE(definicion.columnas[1].calculada);
}

TEST(DefinicionJet, UnaPaginaQueNoEsDefinicionEstaDanada) {
    const auto bytes = ConCampos(1, {{.nombre = "a"}});
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "la página 1 no es lo que debía",
                         [&] { (void)LeerDefinicion(ArchivoJet{bytes}, 1); }));
}

TEST(DefinicionJet, UnaDefinicionQueDaVueltasEstaDanada) {
    const auto bytes = Cambiado(ConCampos(1, {{.nombre = "a"}}), primeraTabla, 4, primeraTabla);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "da vueltas", [&] { (void)Definicion(bytes); }));
}

TEST(DefinicionJet, MasColumnasDeLasQueCabenEstanDanadas) {
    const auto bytes = ConCampos(1, {{.nombre = "a"}});
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "más columnas de las que puede",
                         [&] { (void)Definicion(Cambiado(bytes, primeraTabla, 45, 256)); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes",
                         [&] { (void)Definicion(Cambiado(bytes, primeraTabla, 45, 255)); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [&] {
        (void)Definicion(Cambiado(bytes, primeraTabla, 53, 0xFFFF));
    })) << "índices sin fin";
}

} // namespace
} // namespace varo
