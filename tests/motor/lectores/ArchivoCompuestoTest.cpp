#include "motor/lectores/ArchivoCompuesto.h"

#include "apoyo/EscritorCompuesto.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string_view>
#include <utility>

namespace varo {
namespace {

std::vector<std::byte> Contenido(std::size_t cuantos) {
    std::vector<std::byte> bytes;
    for (std::size_t i = 0; i < cuantos; ++i) {
        bytes.push_back(static_cast<std::byte>((i * 7 + i / 256) % 251));
    }
    return bytes;
}

void Poner32(std::vector<std::byte>& bytes, std::size_t lugar, std::uint32_t valor) {
    for (std::size_t i = 0; i < 4; ++i) {
        bytes.at(lugar + i) = static_cast<std::byte>(valor >> (8 * i));
    }
}

/// Reading the stream "Libro" ends in a damaged file that tells this.
testing::AssertionResult Danado(const std::vector<std::byte>& archivo, std::string_view defecto) {
    return prueba::FallaCon(fallo::archivoDanado, defecto,
                            [&] { (void)ArchivoCompuesto{archivo}.flujo("Libro"); });
}

constexpr const char* cadenaRota = "una cadena de sectores está rota";

// In a file of 512-byte sectors with one stream of 5,000 bytes: ten sectors of stream, one of directory, one
// of FAT.
constexpr std::size_t sector = 512;
constexpr std::size_t lugarDelDirectorio = 11 * sector;
constexpr std::size_t lugarDeLaFat = 12 * sector;

/// Where the FAT tells which sector follows this one.
constexpr std::size_t Enlace(std::size_t numero) {
    return lugarDeLaFat + 4 * numero;
}

std::vector<std::byte> Grande() {
    return prueba::EscribirCompuesto({{"Libro", Contenido(5000)}});
}

TEST(ArchivoCompuesto, DevuelveLosFlujosGrandesYLosPequenos) {
    for (const std::size_t tamanoSector : {512U, 4096U}) {
        for (const std::size_t tamano : {1U, 63U, 64U, 65U, 512U, 4095U, 4096U, 4097U, 100'000U}) {
            const auto archivo = prueba::EscribirCompuesto(
                {{"Otro", Contenido(777)}, {"Libro", Contenido(tamano)}, {"Ultimo", Contenido(9000)}},
                tamanoSector);
            EXPECT_EQ(Contenido(tamano), ArchivoCompuesto{archivo}.flujo("Libro")) << tamano;
            EXPECT_EQ(Contenido(777), ArchivoCompuesto{archivo}.flujo("Otro")) << tamano;
        }
    }
}

TEST(ArchivoCompuesto, LeeUnArchivoCuyaFatNoCabeEnLaCabecera) {
    const std::size_t tamano = 20'000'000; // some 39,000 sectors: 306 sectors of FAT
    const auto archivo = prueba::EscribirCompuesto({{"Libro", Contenido(tamano)}});
    EXPECT_EQ(Contenido(tamano), ArchivoCompuesto{archivo}.flujo("Libro"));
}

TEST(ArchivoCompuesto, ElNombreNoDistingueMayusculas) {
    const auto archivo = Grande();
    EXPECT_TRUE(ArchivoCompuesto{archivo}.flujo("LIBRO"));
    EXPECT_FALSE(ArchivoCompuesto{archivo}.flujo("Libros"));
}

TEST(ArchivoCompuesto, NoMiraDentroDeLosAlmacenesInteriores) {
    auto archivo = prueba::EscribirCompuesto({{"Objeto", Contenido(5000)}, {"Libro", Contenido(5000)}});
    // The first entry becomes a storage that holds the second one.
    const std::size_t directorio = 21 * sector;
    archivo[directorio + 128 + 66] = std::byte{1};
    Poner32(archivo, directorio + 128 + 72, 0xFFFFFFFF);
    Poner32(archivo, directorio + 128 + 76, 2);
    EXPECT_FALSE(ArchivoCompuesto{archivo}.flujo("Libro"));
}

TEST(ArchivoCompuesto, ElUltimoSectorPuedeEstarSinRellenar) {
    auto archivo = Grande();
    // The chain ends in a sector that is moved to the end of the file, without its padding.
    const auto ultimo = Trozo(archivo, 10 * sector, 5000 - 9 * sector);
    const std::vector<std::byte> copia(ultimo.begin(), ultimo.end());
    Poner32(archivo, Enlace(8), 12);
    Poner32(archivo, Enlace(12), 0xFFFFFFFE);
    archivo.insert(archivo.end(), copia.begin(), copia.end());
    EXPECT_EQ(Contenido(5000), ArchivoCompuesto{archivo}.flujo("Libro"));
    archivo.pop_back();
    EXPECT_TRUE(Danado(archivo, "faltan bytes"));
}

TEST(ArchivoCompuesto, UnaCadenaQueDaVueltasEstaDanada) {
    auto archivo = Grande();
    Poner32(archivo, Enlace(3), 1);
    EXPECT_TRUE(Danado(archivo, cadenaRota));
}

TEST(ArchivoCompuesto, UnaCadenaCortaEstaDanada) {
    auto archivo = Grande();
    Poner32(archivo, Enlace(3), 0xFFFFFFFE);
    EXPECT_TRUE(Danado(archivo, cadenaRota));
}

TEST(ArchivoCompuesto, UnaCadenaFueraDelArchivoEstaDanada) {
    for (const auto& [siguiente, defecto] : {std::pair{13U, "le faltan sectores"},
                                             {127U, "le faltan sectores"},
                                             {128U, cadenaRota},
                                             {0xFFFFFFFAU, cadenaRota}}) {
        auto archivo = Grande();
        Poner32(archivo, Enlace(3), siguiente);
        EXPECT_TRUE(Danado(archivo, defecto)) << siguiente;
    }
}

TEST(ArchivoCompuesto, UnDirectorioQueDaVueltasEstaDanado) {
    auto cadena = Grande();
    Poner32(cadena, Enlace(10), 10);
    EXPECT_TRUE(Danado(cadena, cadenaRota));

    auto arbol = Grande();
    arbol[lugarDelDirectorio + 128] = std::byte{'X'};
    Poner32(arbol, lugarDelDirectorio + 128 + 68, 1);
    EXPECT_TRUE(Danado(arbol, "su directorio da vueltas"));
}

TEST(ArchivoCompuesto, UnaDifatQueDaVueltasEstaDanada) {
    auto archivo = Grande();
    Poner32(archivo, 68, 12);
    Poner32(archivo, 72, 1);
    std::vector<std::byte> difat(sector, std::byte{0xFF});
    Poner32(difat, 508, 12);
    archivo.insert(archivo.end(), difat.begin(), difat.end());
    EXPECT_TRUE(Danado(archivo, cadenaRota));
}

TEST(ArchivoCompuesto, UnNombreDemasiadoLargoEstaDanado) {
    auto archivo = Grande();
    archivo[lugarDelDirectorio + 128 + 64] = std::byte{66};
    EXPECT_TRUE(Danado(archivo, "un nombre de su directorio es demasiado largo"));
}

TEST(ArchivoCompuesto, UnTamanoMayorQueElArchivoEstaDanado) {
    const char* const larga = "una secuencia es más larga que el archivo";
    for (const auto& [tamano, defecto] :
         {std::pair{5121U, cadenaRota}, {100'000U, larga}, {0xFFFFFFFFU, larga}}) {
        auto archivo = Grande();
        Poner32(archivo, lugarDelDirectorio + 128 + 120, tamano);
        EXPECT_TRUE(Danado(archivo, defecto)) << tamano;
    }
}

TEST(ArchivoCompuesto, UnTamanoDeSectorDesconocidoEstaDanado) {
    for (const std::size_t lugar : {30U, 32U}) {
        auto archivo = Grande();
        archivo[lugar] = std::byte{60};
        EXPECT_TRUE(Danado(archivo, "el tamaño de sus sectores no es válido")) << lugar;
    }
}

TEST(ArchivoCompuesto, SinRaizEstaDanado) {
    auto archivo = Grande();
    archivo[lugarDelDirectorio + 66] = std::byte{2};
    EXPECT_TRUE(Danado(archivo, "su directorio no tiene raíz"));
}

} // namespace
} // namespace varo
