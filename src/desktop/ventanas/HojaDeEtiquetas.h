// A window of labels that follow their place by design.
#pragma once

#include "desktop/widgets/RepartoDeEtiquetas.h"
#include "formularios/Control.h"

#include <QScrollArea>

class QLabel;

namespace varo {

class Vinculos;

/// All labels of a window, those that it gets later too, in the fonts of their models. Where they ask for
/// more than the window has, it scrolls. The text of each can be selected.
class HojaDeEtiquetas : public QScrollArea {
public:
    /// `titulo` stays centred in sight.
    HojaDeEtiquetas(Formulario& ventana, Vinculos& vinculos, const Etiqueta& titulo);

    /// The text that a person has selected, empty when there is none.
    [[nodiscard]] QString seleccion() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// A double click takes the whole text: Qt would stop at the decimal comma.
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

protected:
    void resizeEvent(QResizeEvent* suceso) override;

private:
    void anadir(Etiqueta& etiqueta);
    /// Once what goes on now is over.
    void pedirReparto();
    void repartir();
    [[nodiscard]] std::vector<Etiqueta*> etiquetas() const;
    [[nodiscard]] Reparto reparto(int anchoALaVista) const;
    [[nodiscard]] QLabel& widgetDe(const Etiqueta& etiqueta) const;

    Formulario* ventana_; ///< null once it is gone
    Vinculos& vinculos_;
    const Etiqueta* titulo_;
    bool pedido_ = false;
};

} // namespace varo
