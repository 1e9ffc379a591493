#include "desktop/widgets/FichasLaterales.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOptionTab>
#include <QTabBar>
#include <QTabWidget>

namespace varo {

namespace {

/// The style of the program, except that the text of tabs at the side is not turned by a quarter.
class EstiloDeFichas : public QProxyStyle {
public:
    EstiloDeFichas() : QProxyStyle{QApplication::style()->name()} {}

    QSize sizeFromContents(ContentsType clase, const QStyleOption* opcion, const QSize& medida,
                           const QWidget* widget) const override {
        const auto* const ficha = qstyleoption_cast<const QStyleOptionTab*>(opcion);
        if (clase != CT_TabBarTab || ficha == nullptr) {
            return QProxyStyle::sizeFromContents(clase, opcion, medida, widget);
        }
        const int ancho = caracteres * ficha->fontMetrics.averageCharWidth();
        const QRect texto = ficha->fontMetrics.boundingRect(QRect{0, 0, ancho, 0}, alineacion, ficha->text);
        return {ancho + 2 * margenLateral, texto.height() + 2 * margen};
    }

    void drawControl(ControlElement parte, const QStyleOption* opcion, QPainter* pintor,
                     const QWidget* widget) const override {
        const auto* const ficha = qstyleoption_cast<const QStyleOptionTab*>(opcion);
        if (parte != CE_TabBarTabLabel || ficha == nullptr) {
            QProxyStyle::drawControl(parte, opcion, pintor, widget);
            if (parte == CE_TabBarTabShape && opcion->state.testFlag(State_Selected)) {
                pintor->fillRect(
                    opcion->rect.adjusted(0, borde, 0, -borde)
                        .intersected({opcion->rect.topLeft(), QSize{borde, opcion->rect.height()}}),
                    opcion->palette.highlight());
            }
            return;
        }
        const QRect lugar = ficha->rect.adjusted(margenLateral, 0, -margenLateral, 0);
        drawItemText(pintor, lugar, alineacion, ficha->palette, ficha->state.testFlag(State_Enabled),
                     ficha->text, QPalette::WindowText);
        if (ficha->state.testFlag(State_HasFocus)) {
            QStyleOptionFocusRect foco;
            foco.QStyleOption::operator=(*ficha);
            foco.rect = ficha->rect.adjusted(borde, borde, -borde, -borde);
            drawPrimitive(PE_FrameFocusRect, &foco, pintor, widget);
        }
    }

private:
    static constexpr int caracteres = 26; ///< width of a caption, in average letters
    static constexpr int alineacion = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    static constexpr int margenLateral = 12; ///< in pixels, like the two below
    static constexpr int margen = 9;
    static constexpr int borde = 4;
};

} // namespace

void PonerFichasAlLado(QTabWidget& fichas) {
    auto* const estilo = new EstiloDeFichas;
    estilo->setParent(&fichas);
    fichas.setTabPosition(QTabWidget::West);
    fichas.setUsesScrollButtons(false);
    fichas.setElideMode(Qt::ElideNone);
    fichas.tabBar()->setStyle(estilo);
}

} // namespace varo
