#include "pintura/Imagenes.h"

#include "map/DibujarCopa.h"
#include "pintura/Colores.h"

#include <gtest/gtest.h>

#include <QImage>

#include <sstream>
#include <string_view>

namespace varo::prueba {

namespace {

AspectoDeEtiqueta Titulo(const EtiquetaMostrada& /*etiqueta*/) {
    return {20, 65, 0x00400040, "Parcela ñ 12", 40, {}, Fuente{.nombre = "DejaVu Sans", .tamano = 14}, true};
}

/// 100 m by 72.34 m, with a filled crown and a title.
Lienzo Muestra() {
    Lienzo lienzo;
    lienzo.escala({0, 100, 0, 72.34});
    lienzo.BackColor = 0x00C0E0FF;
    lienzo.ForeColor = 0x000000FF;
    lienzo.FillColor = 0x0000FF00;
    DibujarCopa(lienzo, {50, 30, 10, 10, 10, 10});
    lienzo.etiqueta("LbTitulo");
    return lienzo;
}

TEST(Imagenes, LaExtensionDiceElFormato) {
    EXPECT_EQ(FormatoDe("mapa.svg"), FormatoDeImagen::Svg);
    EXPECT_EQ(FormatoDe("un.mapa.PDF"), FormatoDeImagen::Pdf);
    EXPECT_EQ(FormatoDe("C/mapa.Png"), FormatoDeImagen::Png);
    EXPECT_EQ(FormatoDe("mapa.txt"), std::nullopt);
    EXPECT_EQ(FormatoDe("svg"), std::nullopt);
}

TEST(Imagenes, ElPngTiene3508PuntosDeAnchoYLoQueSeDibujo) {
    const Lienzo lienzo = Muestra();
    const std::string bytes = ImagenDe({lienzo, Titulo}, FormatoDeImagen::Png);
    const QImage imagen =
        QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    EXPECT_EQ(imagen.size(), QSize(3508, 2538));
    const auto en = [&](double x, double y) {
        return ColorDe(imagen.pixelColor(static_cast<int>(x * 35.08), static_cast<int>((72.34 - y) * 35.08)));
    };
    EXPECT_EQ(en(50.5, 34), 0x0000FF00);
    EXPECT_EQ(en(1, 1), 0x00C0E0FF);
}

TEST(Imagenes, ElPdfMide297Por215Milimetros) {
    const Lienzo lienzo = Muestra();
    const std::string bytes = ImagenDe({lienzo, Titulo}, FormatoDeImagen::Pdf);
    EXPECT_TRUE(bytes.starts_with("%PDF-"));
    const auto hoja = bytes.find("/MediaBox [0 0 ");
    ASSERT_NE(hoja, std::string::npos);
    std::istringstream medidas{bytes.substr(hoja + std::string_view{"/MediaBox [0 0 "}.size(), 40)};
    double ancho = 0;
    double alto = 0;
    medidas >> ancho >> alto;
    EXPECT_NEAR(ancho, 297 / 25.4 * 72, 1);
    EXPECT_NEAR(alto, 215 / 25.4 * 72, 1);
}

TEST(Imagenes, ElSvgLlevaFormasYTextosYNoPuntos) {
    const Lienzo lienzo = Muestra();
    const std::string bytes = ImagenDe({lienzo, Titulo}, FormatoDeImagen::Svg);
    EXPECT_NE(bytes.find("<svg width=\"297"), std::string::npos) << bytes.substr(0, 400);
    EXPECT_NE(bytes.find("Parcela ñ 12"), std::string::npos);
    EXPECT_NE(bytes.find("DejaVu Sans"), std::string::npos);
    EXPECT_NE(bytes.find("#00ff00"), std::string::npos);
    EXPECT_EQ(bytes.find("<image"), std::string::npos);
}

TEST(Imagenes, UnLienzoSinExtensionTambienTieneImagen) {
    Lienzo lienzo;
    lienzo.escala({5, 5, 5, 5});
    lienzo.linea(5, 5, 5, 5);
    for (const FormatoDeImagen formato : {FormatoDeImagen::Svg, FormatoDeImagen::Pdf, FormatoDeImagen::Png}) {
        EXPECT_FALSE(ImagenDe({lienzo, Titulo}, formato).empty());
    }
}

TEST(Imagenes, UnaFuenteEstaInstaladaSiElSistemaNoPoneOtraEnSuLugar) {
    EXPECT_TRUE(EstaInstalada("DejaVu Sans"));
    EXPECT_TRUE(EstaInstalada("dejavu sans"));
    EXPECT_FALSE(EstaInstalada("Letra que no existe"));
}

} // namespace

} // namespace varo::prueba
