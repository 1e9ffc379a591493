#include "motor/CeldasJuntas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

Valor En(const CeldasJuntas& celdas, std::size_t i) {
    return celdas.valor(i);
}

TEST(CeldasJuntas, CadaClaseDeValorVuelveComoEntro) {
    const std::vector<Valor> valores{
        Nulo{},
        -0.1,
        std::string{},
        std::string{"Pinus p"},
        std::string{"Pinus pi"}, // eight letters: the longest that stays in the cell
        std::string{"Pinus pin"},
        std::string(300, 'n'),
        Fecha{45000.25},
        true,
        false,
        std::string{"con\0nulo", 8}};
    CeldasJuntas celdas;
    for (const auto& valor : valores) {
        celdas.anadir(3, 7, ValorDeCelda{valor});
    }
    ASSERT_EQ(celdas.size(), valores.size());
    for (std::size_t i = 0; i < valores.size(); ++i) {
        EXPECT_EQ(En(celdas, i), valores[i]) << i;
        EXPECT_EQ(celdas.valor(i), valores[i]) << i;
    }
}

TEST(CeldasJuntas, ElSitioLlegaHastaElFinalDeUnaHoja) {
    CeldasJuntas celdas;
    celdas.anadir(1048575, 16383, ValorDeCelda{std::string_view{"x"}});
    EXPECT_EQ(celdas[0].fila, 1048575U);
    EXPECT_EQ(celdas[0].columna, 16383U);
}

TEST(CeldasJuntas, LosTextosNoSeMuevenAlCrecer) {
    CeldasJuntas celdas;
    celdas.anadir(0, 0, ValorDeCelda{std::string_view{"corto"}});
    celdas.anadir(0, 1, ValorDeCelda{std::string_view{"uno más largo"}});
    const auto corto = celdas.valor(0);
    const auto largo = celdas.valor(1);
    for (int i = 0; i < 10000; ++i) {
        celdas.anadir(1, 0, ValorDeCelda{"texto número " + std::to_string(i)});
    }
    EXPECT_EQ(corto.texto(), "corto");
    EXPECT_EQ(largo.texto(), "uno más largo");
    EXPECT_EQ(celdas.valor(10001).texto(), "texto número 9999");
}

TEST(CeldasJuntas, UnaCopiaNoCambiaConLaOtra) {
    CeldasJuntas una;
    una.anadir(0, 0, ValorDeCelda{std::string_view{"Quercus pyrenaica"}});
    CeldasJuntas otra = una;
    otra.cambiarUltima(ValorDeCelda{std::string_view{"Quercus faginea"}});
    otra.anadir(0, 1, ValorDeCelda{std::string_view{"Quercus robur"}});
    EXPECT_EQ(una.size(), 1U);
    EXPECT_EQ(una.valor(0).texto(), "Quercus pyrenaica");
    EXPECT_EQ(otra.valor(0).texto(), "Quercus faginea");
}

TEST(CeldasJuntas, SeOrdenanPorFilasYLasDeUnSitioSiguenEnSuOrden) {
    CeldasJuntas celdas;
    const auto numero = [](double n) { return ValorDeCelda{ValorDeCelda::Clase::Numero, n}; };
    celdas.anadir(2, 3, numero(1));
    celdas.anadir(2, 0, numero(2));
    celdas.anadir(0, 9, numero(3));
    celdas.anadir(2, 3, numero(4));
    celdas.ordenar();
    std::vector<double> numeros;
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        numeros.push_back(celdas.valor(i).numero());
    }
    EXPECT_EQ(numeros, (std::vector<double>{3, 2, 1, 4}));
    EXPECT_EQ(celdas.buscar(0, 0, 0), 0U);
    EXPECT_EQ(celdas.buscar(0, 2, 1), 2U);
    EXPECT_EQ(celdas.buscar(3, 2, 3), 3U);
    EXPECT_EQ(celdas.buscar(0, 2, 4), 4U);
}

TEST(TextosGuardados, UnTextoLargoSeGuardaUnaVez) {
    TextosGuardados textos;
    const std::string largo(1000, 'm');
    const auto sitio = textos.guardar(largo);
    EXPECT_EQ(textos.guardar(largo), sitio);
    EXPECT_NE(textos.guardar(largo + "m"), sitio);
    EXPECT_EQ(textos[sitio], largo);
}

TEST(TextosGuardados, CabenTextosMayoresQueSusBloques) {
    TextosGuardados textos;
    const std::string enorme(3'000'000, 'e');
    const auto uno = textos.guardar("uno");
    const auto dos = textos.guardar(enorme);
    const auto tres = textos.guardar("");
    EXPECT_EQ(textos[uno], "uno");
    EXPECT_EQ(textos[dos], enorme);
    EXPECT_EQ(textos[tres], "");
}

TEST(ListaDeTextos, CuentaDesdeCero) {
    ListaDeTextos lista;
    lista.anadir("uno");
    lista.anadir("");
    lista.anadir("uno");
    ASSERT_EQ(lista.size(), 3U);
    EXPECT_EQ(lista[0], "uno");
    EXPECT_EQ(lista[1], "");
    EXPECT_EQ(lista[2], "uno");
}

} // namespace
} // namespace varo
