// Fonts between the models and Qt.
#pragma once

#include "desktop/Texto.h"
#include "lienzo/Fuente.h"

#include <QFont>

namespace varo {

inline QFont FuenteQt(const Fuente& fuente) {
    QFont letra{AQt(fuente.nombre)};
    letra.setPointSizeF(static_cast<double>(fuente.tamano));
    letra.setBold(fuente.negrita);
    letra.setItalic(fuente.cursiva);
    letra.setStrikeOut(fuente.tachado);
    letra.setUnderline(fuente.subrayado);
    return letra;
}

} // namespace varo
