#include "desktop/Escritorio.h"

#include "desktop/Disposiciones.h"
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "formularios/Usuario.h"
#include "shell/VAROMAIN.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace varo {

namespace {

constexpr QSize medidasAlEmpezar{1180, 800};
constexpr int plazoDePedida = 1000; ///< in milliseconds: what has not become active by then will not
constexpr int estadoMinimizado = 1;
constexpr int estadoMaximizado = 2;

QRect Medidas(const Formulario& modelo) {
    return {static_cast<int>(modelo.Left()), static_cast<int>(modelo.Top()), static_cast<int>(modelo.Width()),
            static_cast<int>(modelo.Height())};
}

/// What a window may take of its screen, its frame and the panels of the system left aside.
QSize SitioEnPantalla(const QWidget& ventana) {
    constexpr QSize marcos{40, 80};
    return ventana.screen()->availableGeometry().size() - marcos;
}

/// Whatever closes it goes the way of its close box.
class Dialogo : public QDialog {
public:
    using QDialog::QDialog;
    void reject() override { close(); }
};

int EstadoDe(const QWidget& ventana) {
    if (ventana.isMinimized()) {
        return estadoMinimizado;
    }
    return ventana.isMaximized() ? estadoMaximizado : 0;
}

} // namespace

Escritorio::Escritorio(ServiciosQt& servicios)
    : servicios_{servicios}, programa_{servicios}, zona_{new QMdiArea{&marco_}} {
    servicios_.ponerVentana(&marco_);
    marco_.setCentralWidget(zona_);
    zona_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    zona_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    zona_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    marco_.resize(medidasAlEmpezar.boundedTo(SitioEnPantalla(marco_)));
    esperaDePedida_.setSingleShot(true);
    connect(&esperaDePedida_, &QTimer::timeout, this, [this] { pedida_ = nullptr; });
    programa_.alCargar = [this](Formulario& modelo) { alCargar(modelo); };
    programa_.alDescargar = [this](Formulario& modelo) { alDescargar(modelo); };
    programa_.alActivar = [this](Formulario& modelo) {
        cambioDeActiva_ = true;
        ponerEncima(modelo);
    };
    programa_.alTerminarActo = [this] { alTerminarActo(); };
    connect(zona_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* subventana) {
        Formulario* const modelo = modeloDe(subventana);
        if (modelo != nullptr && marco_.isActiveWindow()) {
            activarModelo(*modelo);
        }
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*antes*/, QWidget* ahora) { alEnfocarse(ahora); });
    qApp->installEventFilter(this);
    programa_.atender([this] { programa_.tocar<VAROMAIN>().Show(); });
}

Escritorio::~Escritorio() {
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(zona_, nullptr, this, nullptr);
    for (auto& [modelo, vista] : vistas_) {
        modelo->dejarDeObservar(vista.observador);
        vista.vinculos->soltar();
        if (modelo->tipo() == TipoVentana::Libre) {
            delete vista.ventana;
        }
    }
}

// --- From the model to the real windows -----------------------------------------------------------------

void Escritorio::alCargar(Formulario& modelo) {
    Vista& vista = vistas_[&modelo];
    vista.vinculos = std::make_unique<Vinculos>(programa_);
    vista.ventana = crearVentana(modelo, *vista.vinculos);
    vista.ventana->setObjectName(AQt(modelo.nombre()));
    if (modelo.tipo() == TipoVentana::Marco) {
        medir(modelo);
    }
    vista.observador = modelo.observar([this, &modelo] { mostrar(modelo); });
    mostrar(modelo);
}

QWidget* Escritorio::crearVentana(Formulario& modelo, Vinculos& vinculos) {
    switch (modelo.tipo()) {
    case TipoVentana::Marco:
        vinculos.menus(*marco_.menuBar(), modelo);
        return &marco_;
    case TipoVentana::Hija:
        return crearHija(*Disponer(modelo, vinculos), modelo);
    case TipoVentana::Libre:
        return crearDialogo(*Disponer(modelo, vinculos));
    }
    return nullptr;
}

QWidget* Escritorio::crearHija(QWidget& contenido, const Formulario& modelo) {
    auto* const subventana = new QMdiSubWindow;
    subventana->setWidget(&contenido);
    if (!SePuedeAgrandar(modelo)) {
        subventana->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    }
    zona_->addSubWindow(subventana, subventana->windowFlags());
    subventana->hide();
    return subventana;
}

QWidget* Escritorio::crearDialogo(QWidget& contenido) {
    auto* const dialogo = new Dialogo{&marco_};
    dialogo->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                            Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    auto* const columna = new QVBoxLayout{dialogo};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(&contenido);
    dialogo->resize(dialogo->sizeHint().boundedTo(SitioEnPantalla(marco_)));
    return dialogo;
}

void Escritorio::alDescargar(Formulario& modelo) {
    const auto lugar = vistas_.find(&modelo);
    Vista vista = std::move(lugar->second);
    vistas_.erase(lugar);
    modelo.dejarDeObservar(vista.observador);
    vista.vinculos->soltar();
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    if (pedida_ == vista.ventana) {
        pedida_ = nullptr;
    }
    vista.ventana->hide();
    if (modelo.tipo() == TipoVentana::Hija) {
        zona_->removeSubWindow(vista.ventana);
    }
    retiradas_.push_back(std::move(vista)); // one of its own signals may still be on the way up
}

void Escritorio::soltarRetiradas() {
    for (Vista& vista : retiradas_) {
        vista.vinculos.release()->deleteLater();
        if (vista.ventana != &marco_) {
            vista.ventana->deleteLater();
        }
    }
    retiradas_.clear();
}

void Escritorio::mostrar(Formulario& modelo) {
    Vista& vista = vistas_.at(&modelo);
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    vista.ventana->setWindowTitle(AQt(modelo.Caption()));
    if (modelo.MousePointer() == Formulario::relojDeArena) {
        vista.ventana->setCursor(Qt::WaitCursor);
    } else {
        vista.ventana->unsetCursor();
    }
    aplicarEstado(modelo, vista);
    aplicarMedidas(modelo, vista);
    vista.ventana->setVisible(modelo.Visible());
}

void Escritorio::aplicarEstado(Formulario& modelo, Vista& vista) {
    if (modelo.WindowState() == vista.estado) {
        return;
    }
    vista.estado = modelo.WindowState();
    if (vista.estado == 0) {
        vista.ventana->showNormal();
        medir(modelo); // what the window measures now is what it measured before
    }
}

void Escritorio::aplicarMedidas(const Formulario& modelo, Vista& vista) {
    const QRect medidas = Medidas(modelo);
    if (modelo.tipo() != TipoVentana::Hija || medidas == vista.medidas || EstadoDe(*vista.ventana) != 0) {
        return;
    }
    vista.medidas = medidas;
    // As wide as what lies in it, and within the frame as long as that has room.
    const QSize sitio = zona_->viewport()->size();
    const int ancho = std::max(APuntos(medidas.width()), vista.ventana->sizeHint().width());
    const QSize tamano =
        QSize{ancho, APuntos(medidas.height())}.boundedTo(sitio).expandedTo(vista.ventana->minimumSizeHint());
    const QPoint lugar{std::clamp(APuntos(medidas.x()), 0, std::max(0, sitio.width() - tamano.width())),
                       std::clamp(APuntos(medidas.y()), 0, std::max(0, sitio.height() - tamano.height()))};
    vista.ventana->setGeometry(QRect{lugar, tamano});
}

/// Each one over the others in its turn, not the last one of an act alone. A child has to be active for it:
/// the toolkit raises once more the one that it takes the activation from.
void Escritorio::ponerEncima(Formulario& modelo) {
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    QWidget* const ventana = vistas_.at(&modelo).ventana;
    if (modelo.tipo() == TipoVentana::Hija) {
        zona_->setActiveSubWindow(static_cast<QMdiSubWindow*>(ventana));
    }
    ventana->raise();
}

void Escritorio::alTerminarActo() {
    soltarRetiradas();
    if (programa_.terminado()) {
        if (alTerminar) {
            alTerminar();
        }
        return;
    }
    if (cambioDeActiva_) {
        cambioDeActiva_ = false;
        darActivacion();
    }
    darFoco();
}

void Escritorio::darActivacion() {
    Formulario* const activa = programa_.activa();
    if (activa == nullptr) {
        return;
    }
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    QWidget* const ventana = vistas_.at(activa).ventana;
    QWidget* superior = ventana;
    if (activa->tipo() == TipoVentana::Hija) {
        zona_->setActiveSubWindow(static_cast<QMdiSubWindow*>(ventana));
        superior = &marco_;
    }
    pedida_ = nullptr;
    if (QApplication::activeWindow() != superior) {
        pedida_ = superior;
        esperaDePedida_.start(plazoDePedida);
        superior->raise();
        superior->activateWindow();
    }
}

void Escritorio::darFoco() {
    Control* const foco = programa_.foco();
    if (foco == nullptr) {
        // The act left the focus nowhere: it is where the toolkit has put it.
        QMetaObject::invokeMethod(
            this, [this] { alEnfocarse(QApplication::focusWidget()); }, Qt::QueuedConnection);
        return;
    }
    QWidget* const widget = widgetDe(*foco);
    if (widget != nullptr && controlDe(widget->window()->focusWidget()) != foco) {
        widget->setFocus();
    }
}

// --- From the real windows to the model -----------------------------------------------------------------

void Escritorio::actuar(const std::function<void()>& acto) {
    if (desdeElModelo_ || programa_.atendiendo()) {
        return;
    }
    try {
        acto();
    } catch (const ActoImposible& imposible) {
        qWarning("%s", imposible.what());
    }
}

void Escritorio::alEnfocarse(QWidget* widget) {
    Control* const control = controlDe(widget);
    if (control == nullptr || control == programa_.foco() || !control->ventana().Visible()) {
        return;
    }
    if (pedida_ != nullptr && pedida_ != widget->window()) {
        return; // a window on the way to the one that the model asked for
    }
    actuar([&] {
        programa_.atender([&] {
            programa_.activar(control->ventana());
            if (programa_.activa() == &control->ventana()) {
                programa_.darFoco(*control);
            }
        });
    });
}

void Escritorio::activarModelo(Formulario& modelo) {
    if (modelo.Visible() && programa_.activa() != &modelo) {
        actuar([&] { Usuario{programa_}.activar(modelo); });
    }
}

void Escritorio::alActivarse(const QObject* ventana) {
    Formulario* const modelo = ventana == &marco_ ? modeloActivoDelMarco() : modeloDe(ventana);
    // The toolkit tells every widget of a frame that comes up, all its children too.
    if (modelo == nullptr || (ventana != &marco_ && modelo->tipo() == TipoVentana::Hija)) {
        return;
    }
    if (pedida_ != nullptr && pedida_ != ventana) {
        return; // on the way to the window that the model asked for
    }
    pedida_ = nullptr;
    activarModelo(*modelo);
}

void Escritorio::cerrar(Formulario& modelo) {
    if (modelo.Visible()) {
        actuar([&] { Usuario{programa_}.cerrar(modelo); });
    }
}

void Escritorio::medir(Formulario& modelo) {
    Vista& vista = vistas_.at(&modelo);
    const QRect puntos = vista.ventana->geometry();
    const QRect medidas{ATwips(puntos.x()), ATwips(puntos.y()), ATwips(puntos.width()),
                        ATwips(puntos.height())};
    if (medidas == Medidas(modelo)) {
        return;
    }
    vista.medidas = medidas; // the real window is so already
    const bool otroTamano = medidas.size() != Medidas(modelo).size();
    programa_.atender([&] {
        modelo.Left = static_cast<float>(medidas.x());
        modelo.Top = static_cast<float>(medidas.y());
        if (otroTamano) {
            modelo.redimensionar(static_cast<float>(medidas.width()), static_cast<float>(medidas.height()));
        }
    });
    vista.medidas = medidas;
}

void Escritorio::anotarEstado(Formulario& modelo) {
    Vista& vista = vistas_.at(&modelo);
    vista.estado = EstadoDe(*vista.ventana);
    modelo.WindowState = vista.estado;
}

bool Escritorio::eventFilter(QObject* objeto, QEvent* suceso) {
    switch (suceso->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
        pedida_ = nullptr; // from here on it is the person who says which window is active
        break;
    case QEvent::Close:
        if (Formulario* const modelo = modeloDe(objeto)) {
            // The model decides, and its unloading takes the real window with it.
            suceso->ignore();
            cerrar(*modelo);
            return true;
        }
        break;
    case QEvent::WindowActivate:
        alActivarse(objeto);
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (Formulario* const modelo = modeloDe(objeto);
            modelo != nullptr && modelo->Visible() && !desdeElModelo_ &&
            EstadoDe(*vistas_.at(modelo).ventana) != estadoMinimizado) {
            medir(*modelo);
        }
        break;
    case QEvent::WindowStateChange:
        if (Formulario* const modelo = modeloDe(objeto); modelo != nullptr && !desdeElModelo_) {
            anotarEstado(*modelo);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(objeto, suceso);
}

// --- Which belongs to which -----------------------------------------------------------------------------

QWidget* Escritorio::ventanaDe(const Formulario& modelo) const {
    const auto vista = vistas_.find(const_cast<Formulario*>(&modelo));
    return vista == vistas_.end() ? nullptr : vista->second.ventana;
}

QWidget* Escritorio::widgetDe(const Control& control) const {
    const auto vista = vistas_.find(&control.ventana());
    return vista == vistas_.end() ? nullptr : vista->second.vinculos->widgetDe(control);
}

Formulario* Escritorio::modeloDe(const QObject* ventana) const {
    const auto vista = std::find_if(vistas_.begin(), vistas_.end(),
                                    [&](const auto& par) { return par.second.ventana == ventana; });
    return ventana == nullptr || vista == vistas_.end() ? nullptr : vista->first;
}

/// The control whose widget it is, or lies around it: the field of a drop-down, the bar of a tabbed dialog.
Control* Escritorio::controlDe(QWidget* widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
        for (const auto& [modelo, vista] : vistas_) {
            Control* const control = vista.vinculos->controlDe(*widget);
            if (control != nullptr) {
                return control->tipo() == TipoControl::Marco ? nullptr : control;
            }
        }
    }
    return nullptr;
}

/// A click on the frame activates the child that was active last in it; null once the frame is closed.
Formulario* Escritorio::modeloActivoDelMarco() const {
    const auto subventanas = zona_->subWindowList(QMdiArea::ActivationHistoryOrder);
    const auto hija =
        std::find_if(subventanas.rbegin(), subventanas.rend(), [this](const QObject* subventana) {
            const Formulario* const modelo = modeloDe(subventana);
            return modelo != nullptr && modelo->Visible();
        });
    return modeloDe(hija == subventanas.rend() ? static_cast<const QObject*>(&marco_) : *hija);
}

} // namespace varo
