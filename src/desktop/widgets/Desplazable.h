// A part of a window that scrolls on a small screen.
#pragma once

#include <QPointer>
#include <QScrollArea>

#include <vector>

namespace varo {

/// Asks for the room of its content, which is never wider than the part: it scrolls up and down alone. What
/// comes up in it while a person looks is scrolled into view.
class Desplazable : public QScrollArea {
public:
    explicit Desplazable(QWidget* contenido);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    void llevarALaVista();

    std::vector<QPointer<QWidget>> aparecidos_;
};

} // namespace varo
