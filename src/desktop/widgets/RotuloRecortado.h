// A line of text that never asks for more room than it is given.
#pragma once

#include <QString>
#include <QWidget>

namespace varo {

/// Cuts a text that is too long in its middle; a tooltip tells the whole. Without text it takes no room.
class RotuloRecortado : public QWidget {
public:
    /// As wide as its text, up to so many letters; as wide as there is room, for 0.
    explicit RotuloRecortado(int letras = 0);

    /// The tooltip is the text itself unless another one is given.
    void poner(const QString& texto, const QString& detalle = {});
    [[nodiscard]] const QString& texto() const { return texto_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* suceso) override;

private:
    int letras_;
    QString texto_;
};

} // namespace varo
