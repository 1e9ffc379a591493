#include "motor/lectores/ArchivoJet.h"

#include "apoyo/Fallos.h"
#include "apoyo/PaginasMdb.h"

#include <gtest/gtest.h>

#include <string_view>

namespace varo {
namespace {

using prueba::FallaCon;
using prueba::PaginasMdb;

std::vector<std::byte> ConUnaPagina(int version, std::uint32_t clave = 0) {
    PaginasMdb paginas{version};
    paginas.clave = clave;
    paginas[paginas.nueva(5)].back() = std::byte{77};
    return paginas.cerrar();
}

TEST(ArchivoJet, SeConocePorSuComienzo) {
    using namespace std::string_view_literals;
    const auto esJet = [](std::string_view bytes) {
        return ArchivoJet::esJet(std::as_bytes(std::span{bytes}));
    };
    EXPECT_TRUE(esJet("\0\1\0\0Standard Jet DB\0"sv));
    EXPECT_TRUE(esJet("\0\1\0\0Standard ACE DB\0"sv));
    EXPECT_FALSE(esJet("\0\1\0\0Standard Jet"sv)) << "cortado";
    EXPECT_FALSE(esJet("\0\2\0\0Standard Jet DB\0"sv));
    EXPECT_FALSE(esJet("\0\1\0\0MSISAM Database\0"sv));
    EXPECT_FALSE(esJet(""));
}

TEST(ArchivoJet, LaCabeceraDiceLaVersionYLaPaginaDeCodigos) {
    PaginasMdb viejas{0};
    viejas.paginaDeCodigos = 1250;
    const auto bytes = viejas.cerrar();
    const ArchivoJet viejo{bytes};
    EXPECT_TRUE(viejo.esJet3());
    EXPECT_EQ(2048U, viejo.tamanoDePagina());
    EXPECT_EQ(1250, viejo.paginaDeCodigos());
    EXPECT_EQ(2U, viejo.paginas());
    for (const int version : {1, 2, 3, 4, 5, 6}) {
        const auto otros = ConUnaPagina(version);
        const ArchivoJet nuevo{otros};
        EXPECT_FALSE(nuevo.esJet3());
        EXPECT_EQ(4096U, nuevo.tamanoDePagina());
        EXPECT_EQ(3U, nuevo.paginas());
    }
}

TEST(ArchivoJet, UnaVersionQueNadieConoceSeDice) {
    const auto bytes = ConUnaPagina(7);
    EXPECT_TRUE(FallaCon(fallo::formatoNoReconocido, "una versión de Access que no se conoce",
                         [&] { const ArchivoJet archivo{bytes}; }));
}

TEST(ArchivoJet, UnaContrasenaSeDice) {
    for (const int version : {0, 1, 3}) {
        PaginasMdb paginas{version};
        paginas.contrasena = {std::byte{'s'}, std::byte{0}, std::byte{'i'}};
        const auto bytes = paginas.cerrar();
        EXPECT_TRUE(FallaCon(fallo::archivoCifrado, "está protegida con una contraseña: quítesela", [&] {
            const ArchivoJet archivo{bytes};
        })) << version;
    }
}

TEST(ArchivoJet, LaFechaDeCreacionNoEsUnaContrasena) {
    for (const double fecha : {0.0, 38143.5, -3.0}) {
        PaginasMdb paginas{1};
        paginas.fechaDeCreacion = fecha;
        const auto bytes = paginas.cerrar();
        EXPECT_EQ(2U, ArchivoJet{bytes}.paginas()) << fecha;
    }
}

TEST(ArchivoJet, UnaBaseCifradaDeAccess2007SeDice) {
    const auto bytes = ConUnaPagina(2, 0x1234);
    EXPECT_TRUE(FallaCon(fallo::archivoCifrado, "base de datos de Access cifrada con una contraseña",
                         [&] { const ArchivoJet archivo{bytes}; }));
}

TEST(ArchivoJet, LasPaginasCodificadasSeDescodifican) {
    for (const int version : {0, 1}) {
        const auto bytes = ConUnaPagina(version, 0xA1B2C3D4);
        const ArchivoJet archivo{bytes};
        const auto pagina = archivo.pagina(2, ClasePaginaJet::MapaDePaginas);
        EXPECT_EQ(std::byte{77}, pagina.back());
        EXPECT_NE(std::byte{77}, bytes.back());
    }
}

TEST(ArchivoJet, UnaPaginaQueNoEstaEnteraFalta) {
    const auto bytes = ConUnaPagina(1);
    const ArchivoJet entero{bytes};
    EXPECT_EQ(4096U, entero.pagina(2).size());
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "falta la página 3; el archivo acaba tras la 3",
                         [&] { (void)entero.pagina(3); }));
    const ArchivoJet cortado{std::span{bytes}.first(bytes.size() - 1)};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "falta la página 2", [&] { (void)cortado.pagina(2); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "falta la página 4294967295",
                         [&] { (void)entero.pagina(0xFFFFFFFF); }));
}

TEST(ArchivoJet, UnaPaginaDeOtraClaseNoEsLoQueDebia) {
    const auto bytes = ConUnaPagina(1);
    const ArchivoJet archivo{bytes};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "la página 2 no es lo que debía",
                         [&] { (void)archivo.pagina(2, ClasePaginaJet::Datos); }));
}

TEST(ArchivoJet, UnaCabeceraCortadaEstaDanada) {
    const auto bytes = ConUnaPagina(1);
    for (const std::size_t cuantos : {20U, 21U, 151U}) {
        EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes",
                             [&] { const ArchivoJet archivo{std::span{bytes}.first(cuantos)}; }));
    }
}

} // namespace
} // namespace varo
