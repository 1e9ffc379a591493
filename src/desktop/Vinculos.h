// Ties the controls of one window to widgets: one binding for each kind of control.
#pragma once

#include "formularios/Control.h"
#include "formularios/Rejilla.h"
#include "formularios/Usuario.h"

#include <QObject>

#include <functional>
#include <map>
#include <utility>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableView;
class QWidget;

namespace varo {

/// A widget shows its control and follows every change of it; what a person does with the widget goes to the
/// control by Usuario, as without a screen. A widget is named after its control: "TxtBAF1(6)".
class Vinculos : public QObject {
public:
    explicit Vinculos(Ventanas& ventanas);
    ~Vinculos() override;

    QLabel* etiqueta(Etiqueta& control);
    QPushButton* boton(Boton& control);
    QLineEdit* caja(CajaTexto& control);
    QCheckBox* casilla(Casilla& control);
    QRadioButton* opcion(Opcion& control);
    QListWidget* lista(Lista& control);
    QComboBox* desplegable(Desplegable& control);
    /// A frame of its caption, without a layout yet.
    QGroupBox* marco(Marco& control);
    QTabWidget* fichas(Fichas& control, const std::vector<QWidget*>& paginas);
    QTableView* rejilla(Rejilla& control);
    /// All the menus of a window, in the order of their making.
    void menus(QMenuBar& barra, const Formulario& ventana);
    /// A widget made elsewhere that only follows the visible and enabled state.
    void seguirEstado(QWidget& widget, Control& control);

    /// Shows something of a control now and at every change of it.
    void seguir(Observable& observado, const std::function<void()>& mostrar);

    /// The widget of a control, null when it has none.
    [[nodiscard]] QWidget* widgetDe(const Control& control) const;
    /// The control of a widget, null when it has none.
    [[nodiscard]] Control* controlDe(const QWidget& widget) const;

    /// Follows no control any more and hands nothing on: the window is about to go.
    void soltar();

private:
    void noHundir(QAbstractButton& widget, const Control& control);
    void enlazar(QWidget& widget, Control& control, const std::function<void()>& mostrar);
    /// Hands on what a person did. The widget shows the control anew afterwards: the model has the last word.
    void actuar(
        const std::function<void(Usuario&)>& acto, const std::function<void()>& mostrar = [] {});

    Ventanas& ventanas_;
    Usuario usuario_;
    std::vector<std::pair<Observable*, int>> observados_;
    std::map<const Control*, QWidget*> widgets_;
    std::map<const QWidget*, Control*> controles_;
    bool suelto_ = false;
};

} // namespace varo
