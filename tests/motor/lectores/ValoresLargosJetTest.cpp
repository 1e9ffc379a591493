#include "motor/lectores/ValoresLargosJet.h"

#include "apoyo/BytesDePrueba.h"
#include "apoyo/Fallos.h"
#include "apoyo/PaginasMdb.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace varo {
namespace {

using prueba::FallaCon;
using prueba::MarcaDeFila;
using prueba::PaginasMdb;
using prueba::SitioMdb;

constexpr std::uint32_t enElCampo = 0x80000000;
constexpr std::uint32_t enUnaFila = 0x40000000;
constexpr std::uint32_t enCadena = 0;
constexpr const char* noEstaEntero = "un texto largo no está entero";

PaginasMdb::Contenido EnBytes(std::string_view letras) {
    const auto bytes = std::as_bytes(std::span{letras});
    return {bytes.begin(), bytes.end()};
}

PaginasMdb::Contenido Campo(std::uint32_t longitudYClase, SitioMdb sitio, std::string_view detras = "") {
    PaginasMdb::Contenido campo;
    prueba::AnadirU32(campo, longitudYClase);
    prueba::AnadirU32(campo, prueba::EnlaceMdb(sitio));
    prueba::AnadirU32(campo, 0);
    const auto bytes = EnBytes(detras);
    campo.insert(campo.end(), bytes.begin(), bytes.end());
    return campo;
}

class ValoresLargosJet : public testing::Test {
protected:
    PaginasMdb paginas{1};
    std::uint32_t larga = paginas.nuevaDeValoresLargos();

    SitioMdb eslabon(SitioMdb siguiente, std::string_view letras) {
        PaginasMdb::Contenido fila;
        prueba::AnadirU32(fila, prueba::EnlaceMdb(siguiente));
        const auto bytes = EnBytes(letras);
        fila.insert(fila.end(), bytes.begin(), bytes.end());
        return paginas.anadirFila(larga, fila);
    }
    std::string leer(const PaginasMdb::Contenido& campo) {
        const auto archivo = paginas.cerrar();
        LimitesDeLectura limites{archivo.size()};
        std::string letras;
        for (const auto byte : LeerValorLargo(ArchivoJet{archivo}, campo, limites)) {
            letras += static_cast<char>(byte);
        }
        return letras;
    }
    void falla(const PaginasMdb::Contenido& campo, const char* texto = noEstaEntero) {
        EXPECT_TRUE(FallaCon(fallo::archivoDanado, texto, [&] { leer(campo); }));
    }
};

TEST_F(ValoresLargosJet, UnoCortoEstaEnElCampo) {
    EXPECT_EQ("abeto", leer(Campo(5 | enElCampo, {}, "abeto")));
    EXPECT_EQ("abe", leer(Campo(3 | enElCampo, {}, "abeto")));
    EXPECT_EQ("", leer(Campo(0 | enElCampo, {})));
    EXPECT_EQ("", leer({}));
}

TEST_F(ValoresLargosJet, UnoMayorEstaEnUnaFila) {
    paginas.anadirFila(larga, EnBytes("otra"));
    const auto sitio = paginas.anadirFila(larga, EnBytes("abeto"));
    EXPECT_EQ("abeto", leer(Campo(5 | enUnaFila, sitio)));
}

TEST_F(ValoresLargosJet, UnoMuyLargoEstaEnUnaCadena) {
    const auto tercero = eslabon({}, "to");
    const auto segundo = eslabon(tercero, "be");
    EXPECT_EQ("abeto", leer(Campo(5 | enCadena, eslabon(segundo, "a"))));
}

TEST_F(ValoresLargosJet, UnoMasCortoQueLoQueDiceEstaDanado) {
    falla(Campo(6 | enElCampo, {}, "abeto"));
    falla(Campo(6 | enUnaFila, paginas.anadirFila(larga, EnBytes("abeto"))));
    falla(Campo(7 | enCadena, eslabon(eslabon({}, "be"), "a")), "la página 0 no es lo que debía");
}

TEST_F(ValoresLargosJet, UnaCadenaQueDaVueltasEstaDanada) {
    falla(Campo(500 | enCadena, eslabon({larga, 0}, "")));
    falla(Campo(500 | enCadena, eslabon({larga, 1}, "a")));
}

TEST_F(ValoresLargosJet, UnaFilaDeOtraCosaNoEsUnTexto) {
    falla(Campo(5 | enUnaFila, paginas.anadirFila(paginas.nuevaDeFilas(2), EnBytes("abeto"))));
    falla(Campo(5 | enUnaFila, paginas.anadirFila(larga, EnBytes("abeto"), MarcaDeFila::Borrada)));
    falla(Campo(5 | enUnaFila, {larga, 9}), "no tiene la fila 9");
    falla(Campo(5 | enUnaFila, {99, 0}), "falta la página 99");
}

TEST_F(ValoresLargosJet, UnCampoCortadoEstaDanado) {
    falla(EnBytes("123"), "faltan bytes");
    falla(EnBytes("12345678901"), "faltan bytes");
}

TEST_F(ValoresLargosJet, LaLongitudSeCuentaAntesDeJuntarlo) {
    const SitioMdb propio{larga, 0};
    falla(Campo(0x3FFFFFFF | enCadena, eslabon(propio, "a")), "sus textos ocupan demasiado");
}

} // namespace
} // namespace varo
