// What it costs at most to read a workbook: ten times its size and 64 MB, whatever its bytes say.
#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/LibroAMano.h"
#include "memoria/MemoriaContada.h"
#include "memoria/MemoriaPermitida.h"
#include "motor/lectores/LectorXls.h"
#include "motor/lectores/RegistrosBiff.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo::prueba {
namespace {

using Contenido = LibroAMano::Contenido;

constexpr std::size_t columnas = 256;

testing::AssertionResult LibroCabe(const Contenido& libro) {
    return CabeEnLaMemoria(libro.size(), [&] { return LeerXls(libro, "libro.xls"); });
}

TEST(MemoriaDeLectorXls, UnaHojaLlenaDeNumeros) {
    Contenido hoja;
    for (std::size_t fila = 0; fila < 20'000; ++fila) {
        AnadirMulRk(hoja, fila, columnas);
    }
    EXPECT_TRUE(LibroCabe(LibroAMano{}.hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, UnaFilaDeNumerosEscritaMuchasVeces) {
    Contenido hoja;
    for (int vez = 0; vez < 20'000; ++vez) {
        AnadirMulRk(hoja, 0, columnas);
    }
    EXPECT_TRUE(LibroCabe(LibroAMano{}.hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, UnaHojaConSusFilasAlReves) {
    Contenido hoja;
    for (std::size_t fila = 20'000; fila > 0; --fila) {
        AnadirMulRk(hoja, fila, columnas);
    }
    EXPECT_TRUE(LibroCabe(LibroAMano{}.hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, MuchosTextosVacios) {
    const std::vector<std::string> vacios(10'000'000);
    EXPECT_TRUE(LibroCabe(LibroAMano{}.textos(vacios).hoja("H", {}).flujo()));
}

TEST(MemoriaDeLectorXls, MuchosTextosDeUnaLetra) {
    const std::vector<std::string> letras(7'500'000, "a");
    EXPECT_TRUE(LibroCabe(LibroAMano{}.textos(letras).hoja("H", {}).flujo()));
}

TEST(MemoriaDeLectorXls, UnTextoLargoEnMuchasCeldas) {
    Contenido hoja;
    for (std::size_t fila = 0; fila < 8'000; ++fila) {
        for (std::size_t columna = 0; columna < columnas; ++columna) {
            AnadirLabelSst(hoja, fila, columna, 0);
        }
    }
    for (const std::size_t letras : {15U, 16U, 100U, 200U, 7'000U}) {
        const auto libro = LibroAMano{}.textos({std::string(letras, 'x')}).hoja("H", hoja).flujo();
        EXPECT_TRUE(LibroCabe(libro)) << letras << " letras";
    }
}

/// Twelve letters of two bytes each in UTF-8.
std::string DoceLetras(std::size_t numero) {
    std::string letras(12, '\xD1');
    for (auto letra = letras.begin(); numero > 0; ++letra, numero /= 64) {
        *letra = static_cast<char>(0xC0 + numero % 64);
    }
    return letras;
}

TEST(MemoriaDeLectorXls, MuchosTextosDistintos) {
    std::vector<std::string> textos;
    Contenido hoja;
    for (std::size_t i = 0; i < 1'000'000; ++i) {
        textos.push_back(DoceLetras(i));
        AnadirLabelSst(hoja, i / columnas, i % columnas, i);
    }
    EXPECT_TRUE(LibroCabe(LibroAMano{}.textos(textos).hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, MuchasHojas) {
    LibroAMano libro;
    for (int hoja = 0; hoja < 500'000; ++hoja) {
        libro.hoja("H", {});
    }
    EXPECT_TRUE(LibroCabe(libro.flujo()));
}

TEST(MemoriaDeLectorXls, MuchasHojasDeUnaCelda) {
    Contenido celda;
    AnadirMulRk(celda, 0, 2);
    LibroAMano libro;
    for (int hoja = 0; hoja < 500'000; ++hoja) {
        libro.hoja("H", celda);
    }
    EXPECT_TRUE(LibroCabe(libro.flujo()));
}

TEST(MemoriaDeLectorXls, MuchasHojasDanadas) {
    Contenido sinCelda;
    AnadirRegistro(sinCelda, biff::numero, {});
    for (const int hojas : {9'000, 60'000}) {
        LibroAMano libro;
        for (int hoja = 0; hoja < hojas; ++hoja) {
            libro.hoja("H", sinCelda);
        }
        EXPECT_TRUE(LibroCabe(libro.hoja("Buena", {}).flujo()));
    }
}

/// A name in ASCII for the first columns of all the rows of the only sheet.
Contenido NombreDeTodo() {
    Contenido contenido;
    AnadirU16(contenido, 0);
    AnadirU8(contenido, 0);
    AnadirU8(contenido, 1);
    AnadirU16(contenido, 11); // bytes of what it stands for
    AnadirEntero(contenido, 0, 8);
    AnadirU8(contenido, 0);
    AnadirU8(contenido, 'n');
    AnadirU8(contenido, 0x3B);
    for (const int palabra : {0, 0, 0xFFFF, 0, 255}) {
        AnadirU16(contenido, palabra);
    }
    return contenido;
}

Contenido LibroPropio() {
    Contenido contenido;
    AnadirU16(contenido, 1);
    AnadirU16(contenido, 0x0401);
    return contenido;
}

Contenido UnaReferencia() {
    Contenido contenido;
    for (const int palabra : {1, 0, 0, 0}) {
        AnadirU16(contenido, palabra);
    }
    return contenido;
}

LibroAMano LibroConNombres(int nombres) {
    LibroAMano libro;
    libro.global(biff::supBook, LibroPropio()).global(biff::externSheet, UnaReferencia());
    for (int i = 0; i < nombres; ++i) {
        libro.global(biff::nombre, NombreDeTodo());
    }
    return libro;
}

TEST(MemoriaDeLectorXls, MuchosNombresDeLaMismaZona) {
    Contenido hoja;
    for (std::size_t fila = 0; fila < 10'000; ++fila) {
        AnadirMulRk(hoja, fila, columnas);
    }
    EXPECT_TRUE(LibroCabe(LibroConNombres(20).hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, MuchosNombresDeLosMismosTextos) {
    Contenido hoja;
    for (std::size_t fila = 0; fila < 8'000; ++fila) {
        for (std::size_t columna = 0; columna < columnas; ++columna) {
            AnadirLabelSst(hoja, fila, columna, 0);
        }
    }
    EXPECT_TRUE(LibroCabe(LibroConNombres(20).textos({std::string(23, 'x')}).hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, MuchosNombresDeUnaZonaPequena) {
    Contenido hoja;
    AnadirMulRk(hoja, 0, 1);
    EXPECT_TRUE(LibroCabe(LibroConNombres(500'000).hoja("H", hoja).flujo()));
}

TEST(MemoriaDeLectorXls, MuchasContinuacionesVacias) {
    LibroAMano libro;
    libro.textos({});
    for (int i = 0; i < 7'500'000; ++i) {
        libro.global(biff::continuacion, {});
    }
    EXPECT_TRUE(LibroCabe(libro.hoja("H", {}).flujo()));
}

TEST(MemoriaDeLectorXls, MuchosFormatos) {
    LibroAMano libro;
    const Contenido general(4);
    for (int i = 0; i < 3'000'000; ++i) {
        libro.global(biff::xf, general);
    }
    EXPECT_TRUE(LibroCabe(libro.hoja("H", {}).flujo()));
}

} // namespace
} // namespace varo::prueba
