#include "motor/lectores/RegistrosBiff.h"

#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

using prueba::FallaCon;

const std::vector<std::byte> comienzo{std::byte{0}, std::byte{6}, std::byte{0x10}, std::byte{0}};

/// The types that a substream made of these records gives, each record with one byte of content.
std::vector<int> Tipos(const std::vector<int>& tipos) {
    std::vector<std::byte> flujo;
    prueba::AnadirRegistro(flujo, biff::bof, comienzo);
    for (const int tipo : tipos) {
        prueba::AnadirRegistro(flujo, tipo, tipo == biff::bof ? comienzo : std::vector{std::byte{1}});
    }
    Subflujo registros{flujo, 0};
    std::vector<int> dados;
    while (const auto registro = registros.siguiente()) {
        dados.push_back(registro->tipo);
    }
    return dados;
}

TEST(RegistrosBiff, DaLosRegistrosHastaElFinalDelSubflujo) {
    EXPECT_EQ((std::vector{biff::numero, biff::rk}), Tipos({biff::numero, biff::rk, biff::eof, biff::label}));
}

TEST(RegistrosBiff, SaltaLosGraficosIncrustados) {
    EXPECT_EQ((std::vector{biff::numero, biff::rk}),
              Tipos({biff::numero, biff::bof, biff::label, biff::bof, biff::label, biff::eof, biff::label,
                     biff::eof, biff::rk, biff::eof}));
}

TEST(RegistrosBiff, SinFinalEstaDanado) {
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [] { Tipos({biff::numero}); }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [] { Tipos({biff::bof, biff::eof}); }));
}

TEST(RegistrosBiff, UnRegistroMasLargoQueElFlujoEstaDanado) {
    std::vector<std::byte> flujo;
    prueba::AnadirRegistro(flujo, biff::bof, comienzo);
    prueba::AnadirRegistro(flujo, biff::numero, comienzo);
    flujo.pop_back();
    Subflujo registros{flujo, 0};
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [&] { registros.siguiente(); }));
}

TEST(RegistrosBiff, DiceSuVersionSuClaseYSuLongitud) {
    std::vector<std::byte> flujo(3);
    prueba::AnadirRegistro(flujo, biff::bof, comienzo);
    prueba::AnadirRegistro(flujo, biff::eof, {});
    Subflujo registros{flujo, 3};
    EXPECT_EQ(biff::version8, registros.version());
    EXPECT_EQ(biff::hojaDeCalculo, registros.clase());
    EXPECT_FALSE(registros.siguiente());
    EXPECT_EQ(12U, registros.leidos());
}

TEST(RegistrosBiff, DondeNoHayComienzoEstaDanado) {
    std::vector<std::byte> flujo;
    prueba::AnadirRegistro(flujo, biff::eof, comienzo);
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "una hoja no está donde el libro dice", [&] {
        Subflujo{flujo, 0};
    }));
    EXPECT_TRUE(FallaCon(fallo::archivoDanado, "faltan bytes", [&] { Subflujo{flujo, 1000}; }));
}

TEST(RegistrosBiff, JuntaUnRegistroConSusContinuaciones) {
    std::vector<std::byte> flujo;
    prueba::AnadirRegistro(flujo, biff::bof, comienzo);
    prueba::AnadirRegistro(flujo, biff::sst, {std::byte{1}});
    prueba::AnadirRegistro(flujo, biff::continuacion, {std::byte{2}});
    prueba::AnadirRegistro(flujo, biff::continuacion, {std::byte{3}, std::byte{4}});
    prueba::AnadirRegistro(flujo, biff::rk, {});
    prueba::AnadirRegistro(flujo, biff::eof, {});
    Subflujo registros{flujo, 0};
    const auto sst = registros.siguiente();
    ASSERT_TRUE(sst);
    const auto fragmentos = registros.conContinuaciones(*sst);
    ASSERT_EQ(3U, fragmentos.size());
    EXPECT_EQ(std::byte{2}, fragmentos[1][0]);
    EXPECT_EQ(2U, fragmentos[2].size());
    EXPECT_EQ(biff::rk, registros.siguiente()->tipo);
}

} // namespace
} // namespace varo
