// The colour at a point, found through the grid, against the literal walk from the last shape to the first.
#include "lienzo/Lienzo.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo::prueba {
namespace {

Color PointLiteral(const Lienzo& lienzo, double x, double y) {
    const Escala& e = lienzo.escala();
    const bool conLimites = e.ancho() != 0 && e.alto() != 0;
    if (conLimites && (x < e.izquierda || x > e.derecha || y < e.abajo || y > e.arriba)) {
        return -1;
    }
    const auto& figuras = lienzo.figuras();
    for (auto figura = figuras.rbegin(); figura != figuras.rend(); ++figura) {
        if (Cubre(*figura, x, y)) {
            return *RellenoDe(*figura);
        }
    }
    return lienzo.BackColor;
}

/// Coordinates on a coarse net, so that points fall on outlines, or anywhere; some radii are far larger or
/// smaller than the others.
struct Azar {
    double origenX = 0, origenY = 0;
    bool enRed = false;

    [[nodiscard]] double desvio() const {
        return enRed ? *rc::gen::inRange(-16, 17) * 0.5 : *rc::gen::inRange(-800000, 800001) * 1E-5;
    }
    [[nodiscard]] double x() const { return origenX + desvio(); }
    [[nodiscard]] double y() const { return origenY + desvio(); }
    [[nodiscard]] static double radio() {
        const bool enorme = *rc::gen::inRange(0, 100) == 0;
        return enorme ? 60 : *rc::gen::elementOf(std::vector<double>{0, 0.5, 0.5, 1, 1, 1.5, 2, 0.001, -1});
    }
};

void PonerUnaFigura(Lienzo& lienzo, const Azar& azar) {
    lienzo.ForeColor = *rc::gen::inRange(0, 100);
    lienzo.FillColor = *rc::gen::inRange(0, 4) == 0 ? Relleno{} : Relleno{*rc::gen::inRange(100, 200)};
    switch (*rc::gen::inRange(0, 6)) {
    case 0:
        lienzo.circulo(azar.x(), azar.y(), Azar::radio());
        break;
    case 1: {
        const double inicio = *rc::gen::inRange(0, 7);
        const double fin = *rc::gen::inRange(0, 7);
        lienzo.arco(azar.x(), azar.y(), Azar::radio(), inicio, fin, *rc::gen::element(0.5, 1.0, 3.0));
        break;
    }
    case 2:
        lienzo.punto(azar.x(), azar.y());
        break;
    default:
        lienzo.copa({azar.x(), azar.y(), Azar::radio(), Azar::radio(), Azar::radio(), Azar::radio()});
        break;
    }
}

RC_GTEST_PROP(Reticula, DaElColorQueDaElRecorridoDeTodas, ()) {
    Azar azar;
    azar.enRed = *rc::gen::arbitrary<bool>();
    if (*rc::gen::arbitrary<bool>()) {
        azar.origenX = 452133.25;
        azar.origenY = 4481207.5;
    }
    Lienzo lienzo;
    if (*rc::gen::inRange(0, 4) > 0) {
        lienzo.escala({azar.origenX - 7, azar.origenX + 7, azar.origenY - 6, azar.origenY + 6});
    }
    const int tandas = *rc::gen::inRange(1, 6);
    for (int tanda = 0; tanda < tandas; ++tanda) {
        if (*rc::gen::inRange(0, 8) == 0) {
            lienzo.Cls();
        }
        const int nuevas = *rc::gen::inRange(5, 60);
        for (int i = 0; i < nuevas; ++i) {
            PonerUnaFigura(lienzo, azar);
        }
        for (int i = 0; i < 30; ++i) {
            const double x = azar.x();
            const double y = azar.y();
            RC_ASSERT(lienzo.Point(x, y) == PointLiteral(lienzo, x, y));
        }
    }
}

TEST(Reticula, UnaPreguntaMiraPocasDeMuchasCopas) {
    Reticula reticula;
    for (int i = 0; i < 100; ++i) {
        for (int j = 0; j < 100; ++j) {
            reticula.anadir({i * 3.0, j * 3.0, i * 3.0 + 4, j * 3.0 + 4});
        }
    }
    reticula.anadir({0, 0, 300, 300});
    int miradas = 0;
    const auto numero = reticula.ultimaEn(150.5, 150.5, [&](Reticula::Numero) {
        ++miradas;
        return false;
    });
    EXPECT_FALSE(numero);
    EXPECT_GT(miradas, 1);
    EXPECT_LT(miradas, 20);
}

TEST(Reticula, SinRectangulosNoHayNinguno) {
    Reticula reticula;
    EXPECT_FALSE(reticula.ultimaEn(0, 0, [](Reticula::Numero) { return true; }));
    reticula.anadir({0, 0, 0, 0});
    EXPECT_EQ(reticula.ultimaEn(0, 0, [](Reticula::Numero) { return true; }), 0U);
    reticula.vaciar();
    EXPECT_FALSE(reticula.ultimaEn(0, 0, [](Reticula::Numero) { return true; }));
}

} // namespace
} // namespace varo::prueba
