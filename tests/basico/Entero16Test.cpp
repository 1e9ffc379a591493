#include "basico/Entero16.h"
#include "apoyo/Fallos.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

using namespace varo;

// A float is rounded on its way in: that has to be seen where it happens.
static_assert(!std::is_convertible_v<double, Entero16>);
static_assert(!std::is_convertible_v<Entero16, int>);

TEST(Entero16, EmpiezaEnCero) {
    EXPECT_EQ(Entero16{}.valor(), 0);
}

TEST(Entero16, GuardaSuIntervaloYDesbordaFuera) {
    EXPECT_EQ(Entero16{32767}.valor(), 32767);
    EXPECT_EQ(Entero16{-32768}.valor(), -32768);
    EXPECT_EQ(FalloDe([] { (void)Entero16{32768}; }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Entero16{-32769}; }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Entero16{65536}; }), fallo::desbordamiento);
}

TEST(Entero16, UnaCuentaSinSignoDemasiadoGrandeDesborda) {
    EXPECT_EQ(Entero16{std::size_t{12}}.valor(), 12);
    EXPECT_EQ(FalloDe([] { (void)Entero16{std::numeric_limits<std::size_t>::max()}; }),
              fallo::desbordamiento);
    EXPECT_EQ(FalloDe([] { (void)Entero16{std::uint32_t{4294967295U}}; }), fallo::desbordamiento);
}

TEST(Entero16, UnNumeroSeRedondeaConLasMitadesAlPar) {
    EXPECT_EQ(Entero16{2.5}.valor(), 2);
    EXPECT_EQ(Entero16{3.5}.valor(), 4);
    EXPECT_EQ(Entero16{-0.4}.valor(), 0);
    EXPECT_EQ(Entero16{32767.4}.valor(), 32767);
    EXPECT_EQ(Entero16{-32768.5}.valor(), -32768);
}

TEST(Entero16, UnNumeroQueNoCabeDesborda) {
    for (const double numero : {32767.5, -32768.6, 1e300, std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(FalloDe([&] { (void)Entero16{numero}; }), fallo::desbordamiento) << numero;
    }
}

TEST(Entero16, LasOperacionesDesbordanDondeElResultadoNoCabe) {
    Entero16 n = 32767;
    EXPECT_EQ(FalloDe([&] { ++n; }), fallo::desbordamiento);
    EXPECT_EQ(n, 32767); // what overflowed is not stored
    EXPECT_EQ(FalloDe([&] { (void)(n + 1); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)(n * 2); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)(Entero16{-32768} - 1); }), fallo::desbordamiento);
    EXPECT_EQ(FalloDe([&] { (void)(Entero16{-32768} * Entero16{-32768}); }), fallo::desbordamiento);
    EXPECT_EQ((n -= 7), 32760);
    EXPECT_EQ(--n, 32759);
    EXPECT_EQ((n += 8), 32767);
    EXPECT_LT(Entero16{-1}, Entero16{0});
    EXPECT_EQ(static_cast<int>(Entero16{-5}), -5);
}

RC_GTEST_PROP(Entero16, OperaComoLosEnterosMientrasCabe, ()) {
    const int a = *rc::gen::inRange(-32768, 32768);
    const int b = *rc::gen::oneOf(rc::gen::inRange(-32768, 32768), rc::gen::inRange(-200, 201));
    const auto comprobar = [](int esperado, auto operacion) {
        int resultado = 0;
        const int error = FalloDe([&] { resultado = operacion().valor(); });
        const bool cabe = esperado >= -32768 && esperado <= 32767;
        RC_ASSERT(error == (cabe ? 0 : fallo::desbordamiento));
        RC_ASSERT(!cabe || resultado == esperado);
    };
    comprobar(a + b, [&] { return Entero16{a} + Entero16{b}; });
    comprobar(a - b, [&] { return Entero16{a} - Entero16{b}; });
    comprobar(a * b, [&] { return Entero16{a} * Entero16{b}; });
    RC_ASSERT((Entero16{a} < Entero16{b}) == (a < b));
    RC_ASSERT((Entero16{a} == Entero16{b}) == (a == b));
}
