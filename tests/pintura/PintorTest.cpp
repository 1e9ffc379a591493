#include "pintura/Pintor.h"

#include "map/DibujarCopa.h"
#include "pintura/Colores.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace varo::prueba {

namespace {

constexpr Color fondo = 0x00C0E0FF;
constexpr Color verde = 0x0000FF00;
constexpr Color rojo = 0x000000FF;

const Escala diezMetros{0, 10, 0, 10};

AspectoDeEtiqueta SinEtiquetas(const EtiquetaMostrada& etiqueta) {
    ADD_FAILURE() << "no hay etiqueta " << etiqueta.nombre;
    return {};
}

/// A canvas of 10 m by 10 m, painted at 20 pixels a metre.
struct Cuadro {
    Lienzo lienzo;
    LeerAspecto aspecto = SinEtiquetas;
    Pluma pluma{};

    explicit Cuadro(const Escala& escala = diezMetros) {
        lienzo.escala(escala);
        lienzo.BackColor = fondo;
    }
    [[nodiscard]] QImage imagen(QSize medidas = {200, 200}) const {
        QImage imagen{medidas, QImage::Format_RGB32};
        imagen.fill(Qt::black);
        QPainter pintor{&imagen};
        Pintar(pintor, {lienzo, aspecto}, Encuadre::entero(lienzo.escala(), medidas), pluma,
               QRectF{{}, QSizeF{medidas}});
        return imagen;
    }
    /// The colour at a point in metres.
    [[nodiscard]] Color en(const QImage& imagen, double x, double y) const {
        const QPointF punto = Encuadre::entero(lienzo.escala(), imagen.size()).enPapel(x, y);
        return ColorDe(imagen.pixelColor(punto.toPoint()));
    }
};

TEST(Pintor, ElFondoEsElDelLienzoTambienFueraDeLaSuperficie) {
    const Cuadro cuadro;
    const QImage imagen = cuadro.imagen({400, 200});
    EXPECT_EQ(ColorDe(imagen.pixelColor(1, 1)), fondo);
    EXPECT_EQ(ColorDe(imagen.pixelColor(398, 198)), fondo);
}

TEST(Pintor, UnMetroMideLoMismoEnXYEnY) {
    Cuadro cuadro;
    cuadro.lienzo.ForeColor = rojo;
    cuadro.lienzo.linea(0, 5, 10, 5);
    cuadro.lienzo.linea(5, 0, 5, 10);
    const QImage imagen = cuadro.imagen({400, 200}); // the surface lies between 100 and 300
    int enFila = 0;
    int enColumna = 0;
    for (int x = 0; x < 400; ++x) {
        enFila +=
            ColorDe(imagen.pixelColor(x, 99)) != fondo || ColorDe(imagen.pixelColor(x, 100)) != fondo ? 1 : 0;
    }
    for (int y = 0; y < 200; ++y) {
        enColumna += ColorDe(imagen.pixelColor(199, y)) != fondo ? 1 : 0;
    }
    EXPECT_NEAR(enFila, 200, 2);
    EXPECT_NEAR(enColumna, 200, 2);
}

TEST(Pintor, LasYCrecenHaciaArriba) {
    Cuadro cuadro;
    cuadro.lienzo.ForeColor = rojo;
    cuadro.pluma.grosor = 4;
    cuadro.lienzo.linea(0, 9, 10, 9);
    const QImage imagen = cuadro.imagen();
    EXPECT_EQ(ColorDe(imagen.pixelColor(100, 20)), rojo);
    EXPECT_EQ(ColorDe(imagen.pixelColor(100, 180)), fondo);
}

/// A crown with four different radii about (5, 5).
void DibujarDesigual(Lienzo& lienzo) {
    lienzo.ForeColor = rojo;
    DibujarCopa(lienzo, {5, 5, 4, 3, 2, 1});
}

TEST(Pintor, CadaCuartoDeUnaCopaTieneSusRadios) {
    for (const bool conCurvas : {true, false}) {
        Cuadro cuadro;
        cuadro.pluma = {.grosor = 4, .conCurvas = conCurvas};
        DibujarDesigual(cuadro.lienzo);
        const QImage imagen = cuadro.imagen();
        // The diagonal of a quarter with semi-axes a and b lies at (a, b) / sqrt(2).
        EXPECT_EQ(cuadro.en(imagen, 5 + 3 * 0.7071, 5 + 4 * 0.7071), rojo) << conCurvas;
        EXPECT_EQ(cuadro.en(imagen, 5 + 3 * 0.7071, 5 - 2 * 0.7071), rojo) << conCurvas;
        EXPECT_EQ(cuadro.en(imagen, 5 - 1 * 0.7071, 5 - 2 * 0.7071), rojo) << conCurvas;
        EXPECT_EQ(cuadro.en(imagen, 5 - 1 * 0.7071, 5 + 4 * 0.7071), rojo) << conCurvas;
        EXPECT_EQ(cuadro.en(imagen, 6, 6), fondo) << "una copa sin relleno queda hueca";
        EXPECT_EQ(cuadro.en(imagen, 5 - 3 * 0.7071, 5 + 4 * 0.7071), fondo);
    }
}

/// How far apart two colours are in the channel in which they differ most, of 255.
int Distancia(Color uno, Color otro) {
    int mayor = 0;
    for (const int bits : {0, 8, 16}) {
        mayor = std::max(mayor, std::abs(((uno >> bits) & 0xFF) - ((otro >> bits) & 0xFF)));
    }
    return mayor;
}

TEST(Pintor, UnaCopaRellenaNoDejaRendijasEntreSusCuartos) {
    constexpr int redondeo = 4; // of the antialiasing
    for (const bool conCurvas : {true, false}) {
        Cuadro cuadro;
        cuadro.pluma.conCurvas = conCurvas;
        cuadro.lienzo.FillColor = verde;
        cuadro.lienzo.ForeColor = rojo;
        DibujarCopa(cuadro.lienzo, {5, 5, 4, 4, 4, 4});
        const QImage imagen = cuadro.imagen();
        for (double d = 0.5; d < 3.5; d += 0.05) {
            for (const auto& [dx, dy] : {std::pair{d, 0.0}, {-d, 0.0}, {0.0, d}, {0.0, -d}}) {
                EXPECT_LE(Distancia(cuadro.en(imagen, 5 + dx, 5 + dy), verde), redondeo) << dx << " " << dy;
            }
        }
        EXPECT_EQ(cuadro.en(imagen, 1.2, 1.2), fondo);
    }
}

TEST(Pintor, LoPosteriorTapaLoAnterior) {
    Cuadro cuadro;
    cuadro.lienzo.FillColor = verde;
    cuadro.lienzo.circulo(4, 5, 3);
    cuadro.lienzo.FillColor = rojo;
    cuadro.lienzo.circulo(6, 5, 3);
    const QImage imagen = cuadro.imagen();
    EXPECT_EQ(cuadro.en(imagen, 2, 5), verde);
    EXPECT_EQ(cuadro.en(imagen, 5, 5), rojo);
}

TEST(Pintor, ConCoordenadasDeMillonesElDibujoEsElMismo) {
    Cuadro cerca;
    DibujarDesigual(cerca.lienzo);
    Cuadro lejos{{452130, 452140, 4481200, 4481210}};
    lejos.lienzo.ForeColor = rojo;
    DibujarCopa(lejos.lienzo, {452135, 4481205, 4, 3, 2, 1});
    EXPECT_EQ(cerca.imagen(), lejos.imagen());
}

TEST(Pintor, LaCopaLlenaDeLaSuperficieDeMuestrasCubreLoQueResponde) {
    Cuadro cuadro;
    cuadro.pluma.grosor = 0.1;
    cuadro.lienzo.ForeColor = rojo;
    cuadro.lienzo.copa({5, 5, 4, 3, 2, 1});
    const QImage imagen = cuadro.imagen();
    for (double x = 0.35; x < 10; x += 0.5) {
        for (double y = 0.35; y < 10; y += 0.5) {
            const double borde = 0.3; // no sample near the outline
            const bool dentro = cuadro.lienzo.Point(x, y) == rojo;
            bool claro = true;
            for (const auto& [dx, dy] : {std::pair{borde, 0.0}, {-borde, 0.0}, {0.0, borde}, {0.0, -borde}}) {
                claro = claro && (cuadro.lienzo.Point(x + dx, y + dy) == rojo) == dentro;
            }
            if (claro) {
                EXPECT_EQ(cuadro.en(imagen, x, y), dentro ? rojo : fondo) << x << " " << y;
            }
        }
    }
}

struct Etiquetado : Cuadro {
    AspectoDeEtiqueta una{2, 8, rojo, "MMMM"};

    Etiquetado() {
        pluma.porPunto = 2;
        lienzo.etiqueta("LbTitulo");
        aspecto = [this](const EtiquetaMostrada&) { return una; };
    }
    /// The columns of the picture in which the label has left something.
    [[nodiscard]] std::pair<int, int> columnas() const {
        const QImage pintada = imagen();
        int primera = pintada.width();
        int ultima = -1;
        for (int x = 0; x < pintada.width(); ++x) {
            for (int y = 0; y < pintada.height(); ++y) {
                if (ColorDe(pintada.pixelColor(x, y)) != fondo) {
                    primera = std::min(primera, x);
                    ultima = std::max(ultima, x);
                }
            }
        }
        return {primera, ultima};
    }
};

TEST(Pintor, UnaEtiquetaEmpiezaEnSuSitio) {
    const Etiquetado cuadro;
    const auto [primera, ultima] = cuadro.columnas();
    EXPECT_NEAR(primera, 40, 3);
    EXPECT_GT(ultima, 60);
    const QRectF lugar = LugarDeEtiqueta(cuadro.una, Encuadre::entero(diezMetros, {200, 200}), cuadro.pluma);
    EXPECT_EQ(lugar.topLeft(), QPointF(40, 40));
    EXPECT_NEAR(lugar.right(), ultima, 3);
}

TEST(Pintor, NingunaCopaTapaUnaEtiqueta) {
    Etiquetado cuadro;
    const auto [primera, ultima] = cuadro.columnas();
    cuadro.lienzo.FillColor = verde;
    cuadro.lienzo.circulo(5, 5, 20); // after the label, over all of it
    const QImage imagen = cuadro.imagen();
    int deLetra = 0;
    for (int x = primera; x <= ultima; ++x) {
        for (int y = 40; y < 60; ++y) {
            deLetra += ColorDe(imagen.pixelColor(x, y)) == verde ? 0 : 1;
        }
    }
    EXPECT_GT(deLetra, 20);
}

TEST(Pintor, UnaEtiquetaCentradaTieneElTextoEnSuMitad) {
    Etiquetado cuadro;
    cuadro.una.centrada = true;
    cuadro.una.ancho = 6; // from 2 m to 8 m, whatever the text takes
    const auto [primera, ultima] = cuadro.columnas();
    EXPECT_NEAR((primera + ultima) / 2.0, 100, 2);
}

TEST(Pintor, ElFondoDeUnaEtiquetaCubreSuTextoEntero) {
    Etiquetado cuadro;
    cuadro.una.fondo = verde;
    const QImage imagen = cuadro.imagen();
    const QRectF lugar = LugarDeEtiqueta(cuadro.una, Encuadre::entero(diezMetros, {200, 200}), cuadro.pluma);
    EXPECT_EQ(ColorDe(imagen.pixelColor(lugar.topLeft().toPoint() + QPoint{0, 1})), verde);
    EXPECT_EQ(ColorDe(imagen.pixelColor(lugar.bottomRight().toPoint() - QPoint{2, 2})), verde);
    EXPECT_EQ(ColorDe(imagen.pixelColor(lugar.bottomRight().toPoint() + QPoint{2, -2})), fondo);
}

TEST(Pintor, DeUnNombreConDemasiadasEtiquetasALaVistaNoSePintaNinguna) {
    Etiquetado cuadro; // the title at the left; the legend in the middle, the trees at the right
    cuadro.lienzo.etiqueta("LbLeyenda", 0);
    for (int i = 0; i < 3; ++i) {
        cuadro.lienzo.etiqueta("Lbcodigo", i);
    }
    cuadro.aspecto = [&](const EtiquetaMostrada& etiqueta) {
        AspectoDeEtiqueta suyo = cuadro.una;
        suyo.izquierda = etiqueta.nombre == "LbTitulo" ? 0 : etiqueta.nombre == "LbLeyenda" ? 4 : 7.5;
        return suyo;
    };
    const auto hayTexto = [](const QImage& imagen, int desde, int hasta) {
        for (int x = desde; x < hasta; ++x) {
            for (int y = 40; y < 60; ++y) {
                if (ColorDe(imagen.pixelColor(x, y)) != fondo) {
                    return true;
                }
            }
        }
        return false;
    };
    for (const int caben : {3, 2}) {
        cuadro.pluma.masEtiquetas = caben;
        const QImage imagen = cuadro.imagen();
        EXPECT_TRUE(hayTexto(imagen, 0, 20)) << caben;
        EXPECT_TRUE(hayTexto(imagen, 80, 100)) << caben;
        EXPECT_EQ(hayTexto(imagen, 150, 170), caben == 3);
    }
}

TEST(Pintor, FueraDeLoVisibleNoSePintaNada) {
    Cuadro cuadro;
    cuadro.lienzo.FillColor = verde;
    cuadro.lienzo.circulo(5, 5, 4);
    QImage imagen{200, 200, QImage::Format_RGB32};
    imagen.fill(Qt::black);
    QPainter pintor{&imagen};
    Pintar(pintor, {cuadro.lienzo, cuadro.aspecto}, Encuadre::entero(diezMetros, {200, 200}), {},
           QRectF{0, 0, 10, 10});
    EXPECT_EQ(imagen.pixelColor(100, 100), QColor{Qt::black});
    EXPECT_EQ(ColorDe(imagen.pixelColor(5, 5)), fondo);
}

TEST(Encuadre, IdaYVueltaDanElMismoPunto) {
    const Encuadre encuadre = Encuadre::entero({452130, 452140, 4481200, 4481207}, {1000, 700});
    for (const auto& [x, y] : {std::pair{452130.0, 4481200.0}, {452139.5, 4481203.25}}) {
        const QPointF papel = encuadre.enPapel(x, y);
        EXPECT_NEAR(encuadre.xDe(papel), x, 1e-9);
        EXPECT_NEAR(encuadre.yDe(papel), y, 1e-9);
    }
}

} // namespace

} // namespace varo::prueba
