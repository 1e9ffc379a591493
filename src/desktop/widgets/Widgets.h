// Widgets that ask the model before they change, or tell what those of Qt do not tell.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include <functional>

namespace varo {

/// Tells each click on a line, even on a selected one.
class ListaDeLineas : public QListWidget {
public:
    std::function<void()> alElegir;

protected:
    void mousePressEvent(QMouseEvent* suceso) override;
    void selectionChanged(const QItemSelection& nueva, const QItemSelection& antigua) override;

private:
    bool elegidaConElRaton_ = false; ///< a press of the mouse goes on, and tells at its end
};

/// A drop-down that may open something else than its list, such as a dialog.
class Combo : public QComboBox {
public:
    std::function<void()> alDesplegar;

    void showPopup() override;
};

/// An option that leaves its group to the model. An arrow key moves to the next option of the group.
class BotonDeOpcion : public QRadioButton {
public:
    BotonDeOpcion() { setAutoExclusive(false); }

    std::function<void(int paso)> alMover;

protected:
    void keyPressEvent(QKeyEvent* suceso) override;
};

/// A tabbed dialog in which mouse and keyboard ask for a tab; `alPedir` decides whether it shows.
class FichasPedidas : public QTabWidget {
public:
    FichasPedidas();

    std::function<void(int ficha)> alPedir;

protected:
    void keyPressEvent(QKeyEvent* suceso) override;

private:
    class Barra;

    void pedir(int ficha) const;
    void pedirLaSiguiente(int paso) const;
};

} // namespace varo
