// Ties the controls of one window to widgets: one binding for each kind of control.
#pragma once

#include "formularios/Control.h"
#include "formularios/Rejilla.h"
#include "formularios/Usuario.h"

#include <QObject>
#include <QPointer>

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

/// A widget shows its control and follows every change of it. What a person does with the widget goes to the
/// control by Usuario, as without a screen. A widget is named after its control, "TxtBAF1(6)". A control has
/// one widget at most, made before soltar().
class Vinculos : public QObject {
public:
    explicit Vinculos(Ventanas& ventanas);
    ~Vinculos() override;

    QLabel* crearEtiqueta(Etiqueta& control);
    QPushButton* crearBoton(Boton& control);
    QCheckBox* crearCasilla(Casilla& control);
    QRadioButton* crearOpcion(Opcion& control);
    /// A frame with its title, without a layout.
    QGroupBox* crearMarco(Marco& control);
    QLineEdit* crearCaja(CajaTexto& control);
    /// Ties a field that is there already, such as one of a dialog of Qt.
    void enlazarCaja(QLineEdit& widget, CajaTexto& control);
    QListWidget* crearLista(Lista& control);
    QComboBox* crearDesplegable(Desplegable& control);
    QTableView* crearRejilla(Rejilla& control);
    /// One page for each tab.
    QTabWidget* crearFichas(Fichas& control, const std::vector<QWidget*>& paginas);
    /// All the menus of a window, in the order in which the window made them: a menu before its entries.
    void crearMenus(QMenuBar& barra, const Formulario& ventana);
    /// Ties a widget that shows nothing of the control but its visible and enabled state.
    void seguirEstado(QWidget& widget, Control& control);

    /// Shows something of a control now and at every change of it.
    void seguir(Observable& observado, const std::function<void()>& mostrar);

    /// The hands that do what a person does with the widgets.
    [[nodiscard]] Usuario& usuario() { return usuario_; }

    /// The widget of a control, null when it has none.
    [[nodiscard]] QWidget* widgetDe(const Control& control) const;
    /// The control of a widget, null when it has none.
    [[nodiscard]] Control* controlDe(const QWidget& widget) const;

    /// Told of each control that the window gets after it was laid out, to give it a widget.
    std::function<void(Control&)> alCrearControl;

    /// Lets go of one control, which is about to go; its widget goes too.
    void soltar(const Control& control);
    /// Lets go of all controls: the window is about to go. The widgets stay as they are and do nothing more.
    void soltar();
    /// Told once, when the controls are let go: for widgets that read the window itself. A widget that is
    /// gone by then is told nothing.
    void alSoltar(QWidget& widget, std::function<void()> aviso);

private:
    struct Vinculo {
        QWidget* widget;
        std::function<void()> mostrar; ///< brings the widget in line with its control
    };

    void enlazar(QWidget& widget, Control& control, const std::function<void()>& mostrar);
    void enlazarBoton(QAbstractButton& widget, Control& control, const std::function<void()>& mostrar);
    void crearMenu(Menu& menu, bool tieneEntradas, std::map<const Menu*, QWidget*>& sitios);
    /// Hands on what a person did with the widget of a control, and shows the control anew: the model has the
    /// last word.
    void actuar(const Control& control, const std::function<void(Usuario&)>& acto);
    void pulsar(Control& control);

    Ventanas& ventanas_;
    Usuario usuario_;
    std::vector<std::pair<Observable*, int>> observados_;
    std::map<const Control*, Vinculo> vinculos_;
    std::map<const QWidget*, Control*> controles_;
    std::vector<std::pair<QPointer<QWidget>, std::function<void()>>> alSoltar_;
    bool suelto_ = false;
};

} // namespace varo
