// Texts, measures and colours between the models and Qt.
#pragma once

#include "formularios/Servicios.h"

#include <QColor>
#include <QString>

#include <string>

namespace varo {

inline QString AQt(const std::string& texto) {
    return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}

inline std::string DeQt(const QString& texto) {
    return texto.toStdString();
}

/// An inch is 1440 twips, or 96 logical pixels.
inline constexpr double twipsPorPunto = 1440.0 / 96.0;

inline int APuntos(int twips) {
    return static_cast<int>(twips / twipsPorPunto);
}

inline int ATwips(int puntos) {
    return static_cast<int>(puntos * twipsPorPunto);
}

/// The low byte of a Color is red, the third one blue.
inline QColor ColorQt(Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

inline Color ColorDe(const QColor& color) {
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

} // namespace varo
