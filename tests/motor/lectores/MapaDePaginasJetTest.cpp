#include "motor/lectores/MapaDePaginasJet.h"

#include "apoyo/Fallos.h"
#include "apoyo/PaginasMdb.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

using prueba::FallaCon;
using prueba::MarcaDeFila;
using prueba::PaginasMdb;
using Numeros = std::vector<std::uint32_t>;

class DeMapa : public testing::TestWithParam<int> {
protected:
    PaginasMdb paginas{GetParam()};
    std::uint32_t deMapas = paginas.nuevaDeFilas(2);

    Numeros leer(const PaginasMdb::Contenido& fila, MarcaDeFila marca = MarcaDeFila::Ninguna) {
        const auto sitio = paginas.anadirFila(deMapas, fila, marca);
        const auto bytes = paginas.cerrar();
        return PaginasDelMapa(ArchivoJet{bytes}, {sitio.pagina, sitio.fila});
    }
    void crecerHasta(std::size_t cuantas) {
        while (paginas.cuantas() < cuantas) {
            paginas.nuevaDeFilas(2);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(MapaDePaginasJet, DeMapa, testing::Values(0, 1));

TEST_P(DeMapa, LosBitsDeLaFilaCuentanDesdeSuPrimeraPagina) {
    crecerHasta(40);
    EXPECT_EQ((Numeros{3, 7, 8, 39}), leer(paginas.mapa({3, 7, 8, 39}, false)));
    EXPECT_EQ((Numeros{33, 38}), leer(paginas.mapa({33, 38}, false)));
    EXPECT_EQ(Numeros{}, leer(paginas.mapa({}, false)));
}

TEST_P(DeMapa, LasPaginasDeBitsSiguenUnasAOtras) {
    const auto porPagina = static_cast<std::uint32_t>(8 * (paginas.tamano() - 4));
    crecerHasta(porPagina + 10);
    const Numeros esperadas{4, 5, porPagina - 1, porPagina, porPagina + 9};
    EXPECT_EQ(esperadas, leer(paginas.mapa(esperadas, true)));
    EXPECT_EQ((Numeros{porPagina + 3}), leer(paginas.mapa({porPagina + 3}, true))) << "la primera falta";
    EXPECT_EQ(Numeros{}, leer(paginas.mapa({}, true)));
}

TEST_P(DeMapa, UnaPaginaMasAllaDelFinalEsUnFallo) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "falta la página 17 de una tabla", [&] {
        leer(paginas.mapa({2, 17}, false));
    }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "falta la página 17 de una tabla", [&] {
        leer(paginas.mapa({2, 17}, true));
    }));
}

TEST_P(DeMapa, UnaPaginaDeBitsMasAllaDelFinalEsUnFallo) {
    PaginasMdb::Contenido fila{std::byte{1}};
    fila.resize(5 + 4);
    fila[5] = static_cast<std::byte>(paginas.nueva(5)); // without any bits
    const auto dicha = "falta la página " + std::to_string(8 * (paginas.tamano() - 4));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, dicha, [&] { leer(fila); }));
}

TEST_P(DeMapa, UnMapaSinSentidoEstaDanado) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "no es válido", [&] { leer({std::byte{2}}); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [&] { leer({}); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [&] { leer({std::byte{0}}); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "no está en su sitio",
                         [&] { leer(paginas.mapa({}, false), MarcaDeFila::Borrada); }));
}

TEST_P(DeMapa, UnaPaginaDeBitsDeOtraClaseEstaDanada) {
    const PaginasMdb::Contenido fila{std::byte{1}, std::byte{1}, std::byte{0}, std::byte{0}, std::byte{0}};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "la página 1 no es lo que debía", [&] { leer(fila); }));
}

} // namespace
} // namespace varo
