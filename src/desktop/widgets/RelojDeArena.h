// The hourglass over a whole window.
#pragma once

#include <QCursor>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <map>
#include <optional>

namespace varo {

/// While it lives, the pointer is the hourglass on the window, on its title bar where Qt draws it, and on
/// each widget in it, even one that has or asks for a pointer of its own; afterwards each has its own again.
/// The children of a main window are other windows.
class RelojDeArena : public QObject {
public:
    explicit RelojDeArena(QWidget& ventana);
    ~RelojDeArena() override;

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    void cubrir(QWidget& widget);

    struct Cubierto {
        QPointer<QWidget> widget;
        std::optional<QCursor> propio; ///< its own pointer, if it has one
    };
    std::map<const QObject*, Cubierto> cubiertos_;
    bool poniendo_ = false;
};

} // namespace varo
