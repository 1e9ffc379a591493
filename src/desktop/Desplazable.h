// A part of a window that is moved up and down where the screen is too small for it.
#pragma once

#include <QScrollArea>

namespace varo {

/// Takes the room of its content when there is room, and never less than its width.
class Desplazable : public QScrollArea {
public:
    explicit Desplazable(QWidget* contenido);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace varo
