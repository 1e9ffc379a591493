// Widgets that ask the model before they change, or tell what those of the toolkit keep to themselves.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include <functional>

namespace varo {

/// A list that tells each click on a line, also on the one that is selected already, and each double click or
/// Enter. Enter goes no further than the list then.
class ListaDeLineas : public QListWidget {
public:
    std::function<void()> alElegir;
    std::function<void()> alActivar;

protected:
    void keyPressEvent(QKeyEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseDoubleClickEvent(QMouseEvent* suceso) override;
    void selectionChanged(const QItemSelection& nueva, const QItemSelection& antigua) override;

private:
    bool elegidaConElRaton_ = false; ///< a press of the mouse is on its way and tells at its end
};

/// A drop-down whose opening may be an act of its own, a choice in a dialog instead of a list.
class Combo : public QComboBox {
public:
    std::function<void()> alDesplegar;

    void showPopup() override;
};

/// An option that leaves its group to the model; the arrows move to the next one of it.
class BotonDeOpcion : public QRadioButton {
public:
    BotonDeOpcion() { setAutoExclusive(false); }

    std::function<void(int paso)> alMover;

protected:
    void keyPressEvent(QKeyEvent* suceso) override;
};

/// A tabbed dialog whose tabs are asked for, by mouse or keyboard, before they are shown.
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
