// A part of a window that is moved about where the screen is too small for it.
#pragma once

#include <QScrollArea>

namespace varo {

/// Takes the room of its content when there is room.
class Desplazable : public QScrollArea {
public:
    explicit Desplazable(QWidget* contenido);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

} // namespace varo
