#include "desktop/widgets/GrupoEnmarcado.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionGroupBox>

namespace varo {

/// The style draws its line in a shade of the background, which a dark one swallows; this one is in a shade
/// of the text, around the content.
void GrupoEnmarcado::paintEvent(QPaintEvent* suceso) {
    constexpr int hastaLaLinea = 3;
    constexpr double esquina = 2;
    constexpr float parteDelTexto = 0.4F;
    QGroupBox::paintEvent(suceso);
    QStyleOptionGroupBox opcion;
    initStyleOption(&opcion);
    const QRect dentro =
        style()->subControlRect(QStyle::CC_GroupBox, &opcion, QStyle::SC_GroupBoxContents, this);
    QColor linea = palette().color(QPalette::WindowText);
    linea.setAlphaF(parteDelTexto);
    QPainter pintor{this};
    pintor.setPen(linea);
    const QRect marco = dentro.adjusted(-hastaLaLinea, -hastaLaLinea, hastaLaLinea - 1, hastaLaLinea - 1);
    pintor.drawRoundedRect(marco.intersected(rect().adjusted(0, 0, -1, -1)), esquina, esquina);
}

} // namespace varo
