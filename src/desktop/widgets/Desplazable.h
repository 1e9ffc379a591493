// A part of a window that scrolls on a small screen.
#pragma once

#include <QScrollArea>

namespace varo {

/// Asks for the room of its content.
class Desplazable : public QScrollArea {
public:
    explicit Desplazable(QWidget* contenido);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace varo
