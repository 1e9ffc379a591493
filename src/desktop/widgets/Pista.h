// Texts of tooltips.
#pragma once

#include <QString>
#include <QTextDocument>

namespace varo {

/// A text as a tooltip shows it letter by letter, even one that looks like markup.
inline QString TextoDePista(const QString& texto) {
    return Qt::mightBeRichText(texto) ? QStringLiteral("<p>") + texto.toHtmlEscaped() + QStringLiteral("</p>")
                                      : texto;
}

} // namespace varo
