#include "motor/lectores/HojaBiff.h"

#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/RegistrosBiff.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <limits>
#include <string_view>

namespace varo {
namespace {

using prueba::AnadirReal;
using prueba::AnadirRegistro;
using prueba::AnadirU16;
using prueba::AnadirU32;
using prueba::AnadirU8;
using prueba::FallaCon;
using Contenido = std::vector<std::byte>;

constexpr int formatoGeneral = 0;
constexpr int formatoFecha = 1;
constexpr std::uint64_t resultadoTexto = 0xFFFF'0000'0000'0000;
constexpr std::uint64_t resultadoVacio = 0xFFFF'0000'0000'0003;

Contenido Comienzo(int fila, int columna, int formato = formatoGeneral) {
    Contenido contenido;
    for (const int palabra : {fila, columna, formato}) {
        AnadirU16(contenido, palabra);
    }
    return contenido;
}

Contenido Formula(int fila, int columna, std::uint64_t resultado, int formato = formatoGeneral) {
    auto contenido = Comienzo(fila, columna, formato);
    prueba::AnadirEntero(contenido, resultado, 8);
    contenido.resize(contenido.size() + 8);
    return contenido;
}

Contenido Texto(std::string_view texto, Contenido contenido = {}) {
    AnadirU16(contenido, texto.size());
    AnadirU8(contenido, 0);
    for (const char letra : texto) {
        AnadirU8(contenido, letra);
    }
    return contenido;
}

/// The records of a sheet, between its BOF and its EOF.
class HojaAMano {
public:
    HojaAMano() { anadirBof(biff::hojaDeCalculo); }

    HojaAMano& registro(int tipo, const Contenido& contenido = {}) {
        AnadirRegistro(flujo_, tipo, contenido);
        return *this;
    }

    HojaAMano& anadirBof(int clase) {
        Contenido contenido;
        AnadirU16(contenido, biff::version8);
        AnadirU16(contenido, clase);
        return registro(biff::bof, contenido);
    }

    HojaAMano& numero(int fila, int columna, double numero, int formato = formatoGeneral) {
        auto contenido = Comienzo(fila, columna, formato);
        AnadirReal(contenido, numero);
        return registro(biff::numero, contenido);
    }

    HojaAMano& rk(std::uint32_t rk) {
        auto contenido = Comienzo(0, 0);
        AnadirU32(contenido, rk);
        return registro(biff::rk, contenido);
    }

    HojaDeCalculo leer(bool calendario1904 = false) const {
        auto flujo = flujo_;
        AnadirRegistro(flujo, biff::eof, {});
        LibroBiff libro{CadenasBiff{true}, calendario1904, {}, {}, {false, true}, {}};
        libro.textos.anadir("uno");
        libro.textos.anadir("dos");
        LimitesDeLectura limites{flujo.size()};
        Subflujo registros{flujo, 0};
        return LeerHoja(registros, libro, limites);
    }

    /// The cells as "row,column=value", parted by blanks.
    std::string celdas(bool calendario1904 = false) const {
        std::string celdas;
        const auto hoja = leer(calendario1904);
        for (std::size_t i = 0; i < hoja.celdas.size(); ++i) {
            const auto celda = hoja.celdas[i];
            celdas += (celdas.empty() ? "" : " ") + std::to_string(celda.fila) + "," +
                      std::to_string(celda.columna) + "=" + prueba::Escrito(Valor{celda.valor});
        }
        return celdas;
    }

private:
    Contenido flujo_;
};

TEST(HojaBiff, LeeLosNumerosCortos) {
    EXPECT_EQ("0,0=1", HojaAMano{}.rk(0x3FF00000).celdas());
    EXPECT_EQ("0,0=0.01", HojaAMano{}.rk(0x3FF00001).celdas());
    EXPECT_EQ("0,0=1234", HojaAMano{}.rk(1234U << 2 | 2).celdas());
    EXPECT_EQ("0,0=12.34", HojaAMano{}.rk(1234U << 2 | 3).celdas());
    EXPECT_EQ("0,0=-5", HojaAMano{}.rk(static_cast<std::uint32_t>(-5) << 2 | 2).celdas());
    EXPECT_EQ("0,0=-536870912", HojaAMano{}.rk(0x80000002).celdas());
    EXPECT_EQ("0,0=536870911", HojaAMano{}.rk(0x7FFFFFFE).celdas());
}

/// A sheet whose only record is this one ends in a damaged file that tells this.
testing::AssertionResult RegistroDanado(int tipo, const Contenido& contenido, std::string_view texto) {
    return FallaCon(fallo::archivoDanado, texto, [&] { HojaAMano{}.registro(tipo, contenido).celdas(); });
}

TEST(HojaBiff, LeeUnaFilaDeNumerosCortos) {
    Contenido contenido;
    for (const int palabra : {4, 2}) {
        AnadirU16(contenido, palabra);
    }
    for (const unsigned numero : {7U, 43831U}) {
        AnadirU16(contenido, numero == 7 ? formatoGeneral : formatoFecha);
        AnadirU32(contenido, numero << 2 | 2);
    }
    AnadirU16(contenido, 3);
    EXPECT_EQ("4,2=7 4,3=#43831", HojaAMano{}.registro(biff::mulRk, contenido).celdas());

    contenido.back() = std::byte{1};
    EXPECT_TRUE(RegistroDanado(biff::mulRk, contenido, "una fila de números no es válida"));
    contenido.resize(contenido.size() - 3);
    EXPECT_TRUE(RegistroDanado(biff::mulRk, contenido, "una fila de números no es válida"));
    contenido.resize(5);
    EXPECT_TRUE(RegistroDanado(biff::mulRk, contenido, "una fila de números no es válida"));
}

TEST(HojaBiff, LosNumerosConFormatoDeFechaSonFechas) {
    EXPECT_EQ("0,0=#43831.5", HojaAMano{}.numero(0, 0, 43831.5, formatoFecha).celdas());
    EXPECT_EQ("0,0=#45293.5", HojaAMano{}.numero(0, 0, 43831.5, formatoFecha).celdas(true));
    EXPECT_EQ("0,0=43831.5", HojaAMano{}.numero(0, 0, 43831.5).celdas());
}

TEST(HojaBiff, UnFormatoQueNoEstaEnElLibroEsElGeneral) {
    EXPECT_EQ("0,0=5", HojaAMano{}.numero(0, 0, 5, 999).celdas());
}

TEST(HojaBiff, LoQueNoEsUnNumeroFinitoEsNulo) {
    EXPECT_EQ("0,0=- 0,1=-", HojaAMano{}
                                 .numero(0, 0, std::numeric_limits<double>::infinity())
                                 .numero(0, 1, std::numeric_limits<double>::quiet_NaN())
                                 .celdas());
}

TEST(HojaBiff, LeeTextosPropiosYCompartidos) {
    auto compartido = Comienzo(0, 1);
    AnadirU32(compartido, 1);
    EXPECT_EQ("0,0='a' 0,1='dos' 0,2='b'", HojaAMano{}
                                               .registro(biff::label, Texto("a", Comienzo(0, 0)))
                                               .registro(biff::labelSst, compartido)
                                               .registro(biff::rString, Texto("b", Comienzo(0, 2)))
                                               .celdas());
    compartido[6] = std::byte{2};
    EXPECT_TRUE(RegistroDanado(biff::labelSst, compartido, "una celda pide un texto que no hay"));
}

TEST(HojaBiff, LosErroresSonNulosYLasVerdadesVerdades) {
    HojaAMano hoja;
    for (const auto& [columna, valor, esError] : {std::tuple{0, 1, 0}, {1, 0, 0}, {2, 7, 1}, {3, 0, 1}}) {
        auto contenido = Comienzo(0, columna);
        AnadirU8(contenido, valor);
        AnadirU8(contenido, esError);
        hoja.registro(biff::boolErr, contenido);
    }
    EXPECT_EQ("0,0=V 0,1=F 0,2=- 0,3=-", hoja.celdas());
}

TEST(HojaBiff, LasFormulasDanSuResultadoGuardado) {
    EXPECT_EQ("0,0=2.5 0,1=V 0,2=F 0,3=- 0,4='' 0,5=#43831",
              HojaAMano{}
                  .registro(biff::formula, Formula(0, 0, std::bit_cast<std::uint64_t>(2.5)))
                  .registro(biff::formula, Formula(0, 1, 0xFFFF'0000'0001'0001))
                  .registro(biff::formula, Formula(0, 2, 0xFFFF'0000'0000'0001))
                  .registro(biff::formula, Formula(0, 3, 0xFFFF'0000'0007'0002))
                  .registro(biff::formula, Formula(0, 4, resultadoVacio))
                  .registro(biff::formula, Formula(0, 5, std::bit_cast<std::uint64_t>(43831.0), formatoFecha))
                  .celdas());
    EXPECT_TRUE(RegistroDanado(biff::formula, Formula(0, 0, 0xFFFF'0000'0000'0004),
                               "el resultado de una fórmula no es válido"));
}

TEST(HojaBiff, ElTextoDeUnaFormulaVieneDetras) {
    for (const int enMedio : {biff::shrFmla, biff::array, biff::table}) {
        EXPECT_EQ("3,1='abc' 3,2=1", HojaAMano{}
                                         .registro(biff::formula, Formula(3, 1, resultadoTexto))
                                         .registro(enMedio, Comienzo(3, 1))
                                         .registro(biff::cadena, Texto("abc"))
                                         .numero(3, 2, 1)
                                         .celdas());
    }
    auto continua = Texto("abc");
    continua[0] = std::byte{5};
    EXPECT_EQ("3,1='abcde'", HojaAMano{}
                                 .registro(biff::formula, Formula(3, 1, resultadoTexto))
                                 .registro(biff::cadena, continua)
                                 .registro(biff::continuacion, {std::byte{0}, std::byte{'d'}, std::byte{'e'}})
                                 .celdas());
}

TEST(HojaBiff, UnaFormulaSinSuTextoEstaDanada) {
    HojaAMano hoja;
    hoja.registro(biff::formula, Formula(3, 1, resultadoTexto));
    const std::string falta = "falta el resultado de una fórmula";
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, falta, [&] { hoja.celdas(); }));
    hoja.numero(3, 2, 1).registro(biff::cadena, Texto("abc"));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, falta, [&] { hoja.celdas(); }));
}

TEST(HojaBiff, UnTextoDeFormulaSueltoNoCambiaNada) {
    EXPECT_EQ("0,0=1", HojaAMano{}.numero(0, 0, 1).registro(biff::cadena, Texto("abc")).celdas());
}

TEST(HojaBiff, LasCeldasDeUnGraficoIncrustadoNoSonDeLaHoja) {
    EXPECT_EQ("0,0=1 0,1=3", HojaAMano{}
                                 .numero(0, 0, 1)
                                 .anadirBof(0x20)
                                 .numero(5, 5, 2)
                                 .registro(biff::eof)
                                 .numero(0, 1, 3)
                                 .celdas());
}

TEST(HojaBiff, LasCeldasSalenOrdenadasYLaUltimaDeUnSitioVaDetras) {
    EXPECT_EQ("0,1=3 2,0=2 2,3=1 2,3=4",
              HojaAMano{}.numero(2, 3, 1).numero(2, 0, 2).numero(0, 1, 3).numero(2, 3, 4).celdas());
}

TEST(HojaBiff, LaZonaUsadaRodeaLoQueTieneContenido) {
    const int blank = 0x0201;
    const int mulBlank = 0x00BE;
    const auto zona = HojaAMano{}
                          .registro(blank, Comienzo(90, 9))
                          .registro(mulBlank, Contenido(10))
                          .numero(3, 7, 1)
                          .numero(5, 2, 1)
                          .leer()
                          .zonaUsada;
    ASSERT_TRUE(zona);
    EXPECT_EQ(3U, zona->primeraFila);
    EXPECT_EQ(5U, zona->ultimaFila);
    EXPECT_EQ(2U, zona->primeraColumna);
    EXPECT_EQ(7U, zona->ultimaColumna);
    EXPECT_FALSE(HojaAMano{}.registro(blank, Comienzo(90, 9)).leer().zonaUsada);
}

TEST(HojaBiff, LaZonaUsadaNoLlegaALoQueNoSeVe) {
    const auto division = Contenido{std::byte{7}, std::byte{1}}; // an error
    auto error = Comienzo(80, 1);
    error.insert(error.end(), division.begin(), division.end());
    const auto hoja = HojaAMano{}
                          .numero(3, 2, 1)
                          .registro(biff::label, Texto("", Comienzo(3, 90)))
                          .registro(biff::label, Texto(" ", Comienzo(4, 2)))
                          .registro(biff::formula, Formula(70, 2, resultadoVacio))
                          .registro(biff::boolErr, error);
    const auto zona = hoja.leer().zonaUsada;
    ASSERT_TRUE(zona);
    EXPECT_EQ(3U, zona->primeraFila);
    EXPECT_EQ(4U, zona->ultimaFila);
    EXPECT_EQ(2U, zona->primeraColumna);
    EXPECT_EQ(2U, zona->ultimaColumna);
    EXPECT_FALSE(HojaAMano{}.registro(biff::formula, Formula(70, 2, resultadoVacio)).leer().zonaUsada);
}

TEST(HojaBiff, UnaColumnaFueraDeLaHojaEstaDanada) {
    EXPECT_EQ("65535,255=1", HojaAMano{}.numero(65535, 255, 1).celdas());
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "una celda está fuera de la hoja",
                         [] { HojaAMano{}.numero(0, 256, 1).celdas(); }));
}

TEST(HojaBiff, UnRegistroCortoEstaDanado) {
    const std::string faltan = "faltan bytes";
    for (const auto& [tipo, conSieteBytes] : {std::pair{biff::numero, faltan},
                                              {biff::rk, faltan},
                                              {biff::labelSst, faltan},
                                              {biff::label, "un texto está cortado"},
                                              {biff::boolErr, faltan},
                                              {biff::formula, faltan},
                                              {biff::mulRk, "una fila de números no es válida"}}) {
        EXPECT_TRUE(RegistroDanado(tipo, Contenido(7), conSieteBytes)) << tipo;
        EXPECT_TRUE(RegistroDanado(tipo, {}, faltan)) << tipo;
    }
}

TEST(HojaBiff, UnSubflujoDeOtraClaseEstaDanado) {
    std::vector<std::byte> flujo;
    AnadirRegistro(flujo, biff::bof, {std::byte{0}, std::byte{6}, std::byte{0x20}, std::byte{0}});
    AnadirRegistro(flujo, biff::eof, {});
    LimitesDeLectura limites{flujo.size()};
    const LibroBiff libro{CadenasBiff{true}, false, {}, {}, {}, {}};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "una hoja no es de la clase que el libro dice", [&] {
        Subflujo registros{flujo, 0};
        LeerHoja(registros, libro, limites);
    }));
}

} // namespace
} // namespace varo
