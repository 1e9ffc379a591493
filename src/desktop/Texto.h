// Texts and measures between the models and Qt.
#pragma once

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

} // namespace varo
