// Colours between the models and Qt.
#pragma once

#include "lienzo/Color.h"

#include <QColor>

namespace varo {

/// The low byte of a Color is red, the third one blue.
inline QColor ColorQt(Color color) {
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

inline Color ColorDe(const QColor& color) {
    return color.red() | (color.green() << 8) | (color.blue() << 16);
}

} // namespace varo
