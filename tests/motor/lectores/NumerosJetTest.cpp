#include "motor/lectores/NumerosJet.h"

#include "apoyo/BytesDePrueba.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

namespace varo {
namespace {

using namespace std::string_view_literals;

double Moneda(std::uint64_t diezmilesimas) {
    std::vector<std::byte> campo;
    prueba::AnadirEntero(campo, diezmilesimas, 8);
    return LeerMoneda(campo);
}

/// A decimal of these four words, the highest one first.
double Decimal(bool negativo, const std::vector<std::uint32_t>& palabras, int decimales) {
    std::vector<std::byte> campo{negativo ? std::byte{0x80} : std::byte{0}};
    for (const auto palabra : palabras) {
        prueba::AnadirU32(campo, palabra);
    }
    return LeerDecimal(campo, decimales);
}

double Simple(std::uint32_t bits) {
    std::vector<std::byte> campo;
    prueba::AnadirU32(campo, bits);
    return LeerSimple(campo);
}

TEST(NumerosJet, UnaMonedaEsElNumeroMasCercano) {
    EXPECT_EQ(0.0, Moneda(0));
    EXPECT_EQ(0.0001, Moneda(1));
    EXPECT_EQ(12.5, Moneda(125'000));
    EXPECT_EQ(-0.0001, Moneda(static_cast<std::uint64_t>(-1)));
    EXPECT_EQ(922337203685477.5807, Moneda(0x7FFF'FFFF'FFFF'FFFF));
    EXPECT_EQ(-922337203685477.5808, Moneda(0x8000'0000'0000'0000));
    // Over 2^53: a division of doubles would round twice.
    EXPECT_EQ(900719925474.0993, Moneda(9'007'199'254'740'993));
}

TEST(NumerosJet, UnDecimalTieneSuComa) {
    EXPECT_EQ(-12.3456, Decimal(true, {0, 0, 0, 123'456}, 4));
    EXPECT_EQ(0.0, Decimal(false, {0, 0, 0, 0}, 4));
    EXPECT_EQ(7.0, Decimal(false, {0, 0, 0, 7}, 0));
    EXPECT_EQ(1e-28, Decimal(false, {0, 0, 0, 1}, 28));
    EXPECT_EQ(79228162514264337593543950335.0, Decimal(false, {0, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, 0));
    EXPECT_EQ(18446744073709551616.0, Decimal(false, {0, 1, 0, 0}, 0)) << "2^64";
    EXPECT_EQ(340282366920938463463374607431768211455.0,
              Decimal(false, {0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}, 0));
}

TEST(NumerosJet, UnSimpleSeLeeComoSeEscribio) {
    EXPECT_EQ(0.1, Simple(0x3DCCCCCD));
    EXPECT_EQ(12.3, Simple(0x4144CCCD));
    EXPECT_EQ(-1.5, Simple(0xBFC00000));
    EXPECT_EQ(0.33333334, Simple(0x3EAAAAAB));
    EXPECT_EQ(16777216.0, Simple(0x4B800000));
    EXPECT_EQ(3.4028235e38, Simple(0x7F7FFFFF));
    EXPECT_TRUE(std::isnan(Simple(0x7F800000)));
    EXPECT_TRUE(std::isnan(Simple(0x7FC00000)));
}

TEST(NumerosJet, UnGuidTieneSusGrupos) {
    const auto campo = "\xE0\x04\x25\x3F\x89\x4F\xD3\x11\x9A\x0C\x03\x05\xE8\x2C\x33\x01"sv;
    EXPECT_EQ("{3F2504E0-4F89-11D3-9A0C-0305E82C3301}", LeerGuid(std::as_bytes(std::span{campo})));
}

} // namespace
} // namespace varo
