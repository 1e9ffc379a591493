// Cut and mutated workbooks: whole tables or an error, never anything between.
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "apoyo/LibroAMano.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/LectorXls.h"
#include "motor/lectores/RegistrosBiff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <span>
#include <vector>

namespace varo {
namespace {

/// The workbooks of the project and, where they are, those of other programs.
std::vector<std::vector<std::byte>> LibrosBuenos() {
    auto archivos = prueba::LibrosPropios();
    const auto muestras = prueba::Muestras("xls");
    archivos.insert(archivos.end(), muestras.begin(), muestras.end());
    std::vector<std::vector<std::byte>> libros;
    std::transform(archivos.begin(), archivos.end(), std::back_inserter(libros), prueba::BytesDe);
    return libros;
}

TEST(LectorXlsHostil, UnLibroCortadoSeLeeEnteroONoSeLee) {
    for (const auto& libro : LibrosBuenos()) {
        const auto entero = prueba::Lineas(LeerXls(libro, "libro.xls"));
        for (std::size_t corte = 0; corte < libro.size(); corte += 512) {
            const std::span trozo{libro.data(), corte};
            if (prueba::TablasEnterasOError(trozo)) {
                EXPECT_EQ(entero, prueba::Lineas(LeerXls(trozo, "libro.xls"))) << corte;
            }
        }
    }
}

/// Reading it ends in a damaged file with its name.
testing::AssertionResult EstaDanado(std::span<const std::byte> libro) {
    return prueba::FallaCon(fallo::archivoDanado, "«libro.xls»: el archivo está dañado (",
                            [&] { LeerXls(libro, "libro.xls"); });
}

TEST(LectorXlsHostil, MedioLibroEstaDanado) {
    for (const auto& libro : LibrosBuenos()) {
        for (const std::size_t corte : {std::size_t{300}, std::size_t{600}, libro.size() / 2}) {
            EXPECT_TRUE(EstaDanado(std::span{libro.data(), corte})) << corte << " bytes de " << libro.size();
        }
    }
}

TEST(LectorXlsHostil, UnLibroConOtraCosaDetrasDeSuComienzoEstaDanado) {
    std::mt19937 azar{19990101}; // NOLINT(cert-msc51-cpp): the same bytes every time
    for (auto libro : LibrosBuenos()) {
        std::generate(libro.begin() + 512, libro.end(), [&] { return static_cast<std::byte>(azar()); });
        EXPECT_TRUE(EstaDanado(libro));
    }
}

/// How many tables are there and can be read; none of a file that is refused whole.
std::size_t TablasSinDefecto(std::span<const std::byte> libro) {
    try {
        const auto tablas = LeerXls(libro, "l.xls");
        return static_cast<std::size_t>(
            std::ranges::count_if(tablas, [](const Tabla& tabla) { return !tabla.defecto; }));
    } catch (const ErrorMotor& error) {
        EXPECT_EQ(error.descripcion().find("No se puede leer «l.xls»: "), 0U) << error.descripcion();
        return 0;
    }
}

TEST(LectorXlsHostil, UnFlujoCortadoEnCualquierByteNoDaTodasSusTablas) {
    const auto libro = prueba::EscribirFlujoXls(
        {{"Uno", {{"X", "Y"}, {1.5, "año €"}}}, {"Dos", {{"X"}, {Fecha{43831}}, {true}}, false, true}});
    EXPECT_EQ(TablasSinDefecto(libro), 2U);
    std::size_t conLaPrimera = 0;
    for (std::size_t corte = 0; corte < libro.size(); ++corte) {
        const auto quedan = TablasSinDefecto(std::span{libro.data(), corte});
        EXPECT_LT(quedan, 2U) << corte;
        conLaPrimera += quedan;
    }
    EXPECT_GT(conLaPrimera, 0U);
}

TEST(LectorXlsHostil, UnLibroMutadoSeLeeEnteroODaError) {
    std::mt19937 azar{20040229}; // NOLINT(cert-msc51-cpp): the same mutations every time
    std::size_t leidos = 0;
    std::size_t conError = 0;
    for (const auto& libro : LibrosBuenos()) {
        for (int vez = 0; vez < 400; ++vez) {
            ++(prueba::TablasEnterasOError(prueba::Mutado(libro, azar)) ? leidos : conError);
        }
    }
    // Both happen: the mutations neither miss the file nor wreck it all.
    EXPECT_GT(leidos, 100U);
    EXPECT_GT(conError, 100U);
}

testing::AssertionResult EstaDanadoPorque(const std::string& motivo, const prueba::LibroAMano& libro) {
    return prueba::FallaCon(fallo::archivoDanado, "el archivo está dañado (" + motivo + ")",
                            [&] { LeerXls(libro.flujo(), "libro.xls"); });
}

TEST(LectorXlsHostil, LoQueSeConocePorUnNumeroDe16BitsNoPasaDe65535) {
    constexpr int deMas = 0x10000;
    prueba::LibroAMano hojas;
    prueba::LibroAMano nombres;
    const std::vector<std::byte> nombreVacio(15);
    for (int i = 0; i < deMas; ++i) {
        hojas.hoja("H", {});
        nombres.global(biff::nombre, nombreVacio);
    }
    EXPECT_TRUE(EstaDanadoPorque("tiene demasiadas hojas", hojas));
    EXPECT_TRUE(EstaDanadoPorque("tiene demasiados nombres", nombres));

    prueba::LibroAMano referencias;
    std::vector<std::byte> mil(2 + 6 * 1000);
    mil[0] = std::byte{0xE8};
    mil[1] = std::byte{0x03};
    for (int i = 0; i < 66; ++i) {
        referencias.global(biff::externSheet, mil);
    }
    EXPECT_TRUE(EstaDanadoPorque("tiene demasiadas referencias entre hojas", referencias));
}

} // namespace
} // namespace varo
