#include "pintura/Imagenes.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QString>
#include <QSvgGenerator>

#include <array>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace varo {

namespace {

constexpr double proporcion = 0.7234; ///< height / width of every canvas
constexpr double anchoDePagina = 297; ///< in millimetres
constexpr double milimetrosPorPulgada = 25.4;

std::string EnTexto(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray EnSvg(const Dibujo& dibujo) {
    QBuffer bytes;
    QSvgGenerator generador;
    generador.setOutputDevice(&bytes);
    generador.setTitle(QStringLiteral("Mapa de copas"));
    generador.setDescription(QStringLiteral("VARO"));
    constexpr int porPulgada = 96;
    generador.setResolution(porPulgada);
    const int ancho = static_cast<int>(std::lround(anchoDePagina / milimetrosPorPulgada * porPulgada));
    const QSize papel{ancho, static_cast<int>(std::lround(ancho * proporcion))};
    generador.setSize(papel);
    generador.setViewBox(QRect{{}, papel});
    QPainter pintor{&generador};
    PintarEntero(pintor, dibujo, papel);
    pintor.end();
    return bytes.data();
}

QByteArray EnPdf(const Dibujo& dibujo) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    {
        QPdfWriter hoja{&bytes};
        constexpr int porPulgada = 1200;
        hoja.setTitle(QStringLiteral("Mapa de copas"));
        hoja.setCreator(QStringLiteral("VARO"));
        hoja.setResolution(porPulgada);
        hoja.setPageSize(
            QPageSize{QSizeF{anchoDePagina, std::round(anchoDePagina * proporcion)}, QPageSize::Millimeter});
        hoja.setPageMargins({});
        QPainter pintor{&hoja};
        PintarEntero(pintor, dibujo, QSizeF{QSize{hoja.width(), hoja.height()}});
    }
    return bytes.data();
}

QByteArray EnPng(const Dibujo& dibujo) {
    constexpr int ancho = 3508;
    constexpr int puntosPorMetro = 11811; // 300 dpi
    QImage imagen{ancho, static_cast<int>(std::lround(ancho * proporcion)), QImage::Format_RGB32};
    imagen.setDotsPerMeterX(puntosPorMetro);
    imagen.setDotsPerMeterY(puntosPorMetro);
    QPainter pintor{&imagen};
    PintarEntero(pintor, dibujo, imagen.size());
    pintor.end();
    constexpr int conPocoEsfuerzo = 80; // nearly as small as it can be, in a third of the time
    QBuffer bytes;
    if (!imagen.save(&bytes, "PNG", conPocoEsfuerzo)) {
        throw std::runtime_error{"no se pudo codificar la imagen PNG"};
    }
    return bytes.data();
}

} // namespace

void PintarEntero(QPainter& pintor, const Dibujo& dibujo, QSizeF papel) {
    const Encuadre encuadre = Encuadre::entero(dibujo.lienzo.escala(), papel);
    Pintar(pintor, dibujo, encuadre, Pluma::para(papel.width()), QRectF{{}, papel});
}

std::optional<FormatoDeImagen> FormatoDe(std::string_view archivo) {
    constexpr std::array<std::pair<const char*, FormatoDeImagen>, 3> formatos{
        {{".svg", FormatoDeImagen::Svg}, {".pdf", FormatoDeImagen::Pdf}, {".png", FormatoDeImagen::Png}}};
    const QString nombre = QString::fromUtf8(archivo.data(), static_cast<qsizetype>(archivo.size()));
    for (const auto& [extension, formato] : formatos) {
        if (nombre.endsWith(QLatin1String{extension}, Qt::CaseInsensitive)) {
            return formato;
        }
    }
    return std::nullopt;
}

std::string ImagenDe(const Dibujo& dibujo, FormatoDeImagen formato) {
    switch (formato) {
    case FormatoDeImagen::Svg:
        return EnTexto(EnSvg(dibujo));
    case FormatoDeImagen::Pdf:
        return EnTexto(EnPdf(dibujo));
    case FormatoDeImagen::Png:
        break;
    }
    return EnTexto(EnPng(dibujo));
}

bool EstaInstalada(const std::string& fuente) {
    return QFontDatabase::families().contains(QString::fromStdString(fuente), Qt::CaseInsensitive);
}

} // namespace varo
