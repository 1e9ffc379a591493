#include "desktop/Escritorio.h"

#include "desktop/Intentar.h"
#include "desktop/Texto.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/VentanasReales.h"
#include "formularios/Usuario.h"
#include "shell/VAROMAIN.h"

#include <QApplication>
#include <QEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScopedValueRollback>

#include <algorithm>
#include <cassert>
#include <utility>

namespace varo {

namespace {

constexpr QSize medidasAlEmpezar{1180, 800}; ///< of the main window, in pixels
constexpr int plazoDePedida = 1000;          ///< in milliseconds; a window not active by then never will be

constexpr int estadoNormal = 0;
constexpr int estadoMinimizado = 1;
constexpr int estadoMaximizado = 2;

int EstadoDe(const QWidget& ventana) {
    if (ventana.isMinimized()) {
        return estadoMinimizado;
    }
    return ventana.isMaximized() ? estadoMaximizado : estadoNormal;
}

/// The geometry of a model, in twips.
QRect Medidas(const Formulario& modelo) {
    return {static_cast<int>(modelo.Left()), static_cast<int>(modelo.Top()), static_cast<int>(modelo.Width()),
            static_cast<int>(modelo.Height())};
}

/// The geometry of a real window, in twips.
QRect Medidas(const QWidget& ventana) {
    const QRect puntos = ventana.geometry();
    return {ATwips(puntos.x()), ATwips(puntos.y()), ATwips(puntos.width()), ATwips(puntos.height())};
}

/// The height of a child whose model asks for none, in pixels: that of its content, or what is left of the
/// frame below its place.
int AltoDeHija(const QRect& medidas, const QWidget& hija, QSize sitio) {
    return std::min(hija.sizeHint().height(), sitio.height() - APuntos(medidas.y()));
}

/// The geometry of a child, in pixels, whose model asks for `medidas`, in twips: not narrower than its
/// content, and within the frame if that has room.
QRect LugarDeHija(const QRect& medidas, const QWidget& hija, QSize sitio) {
    const int ancho = std::max(APuntos(medidas.width()), hija.sizeHint().width());
    const int alto = medidas.height() > 0 ? APuntos(medidas.height()) : AltoDeHija(medidas, hija, sitio);
    const QSize tamano = QSize{ancho, alto}.boundedTo(sitio).expandedTo(hija.minimumSizeHint());
    const QPoint lugar{std::clamp(APuntos(medidas.x()), 0, std::max(0, sitio.width() - tamano.width())),
                       std::clamp(APuntos(medidas.y()), 0, std::max(0, sitio.height() - tamano.height()))};
    return {lugar, tamano};
}

/// A free window comes back where it stood: Qt would place it anew each time, beside its former place.
void RecordarLugar(const Formulario& modelo, Vista& vista) {
    if (!modelo.Visible() && vista.ventana->isVisible()) {
        vista.lugar = vista.ventana->pos();
    } else if (modelo.Visible() && !vista.ventana->isVisible() && vista.lugar) {
        vista.ventana->move(*vista.lugar);
    }
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
    seguirAlModelo();
    seguirALaPersona();
    programa_.atender([this] { programa_.tocar<VAROMAIN>().Show(); });
}

Escritorio::~Escritorio() {
    qApp->removeEventFilter(this);
    disconnect(qApp, nullptr, this, nullptr);
    disconnect(zona_, nullptr, this, nullptr);
    for (auto& [modelo, vista] : vistas_.todas()) {
        modelo->dejarDeObservar(vista.observador);
        vista.vinculos->soltar();
        if (modelo->tipo() == TipoVentana::Libre) {
            delete vista.ventana;
        }
    }
}

void Escritorio::seguirAlModelo() {
    programa_.alCargar = [this](Formulario& modelo) { alCargar(modelo); };
    programa_.alDescargar = [this](Formulario& modelo) { alDescargar(modelo); };
    programa_.alCrearControl = [this](Control& control) {
        const Vinculos* const vinculos = vistas_.vinculosDe(control);
        if (vinculos != nullptr && vinculos->alCrearControl) {
            vinculos->alCrearControl(control);
        }
    };
    programa_.alQuitarControl = [this](const Control& control) {
        if (Vinculos* const vinculos = vistas_.vinculosDe(control)) {
            vinculos->soltar(control);
        }
    };
    programa_.alActivar = [this](Formulario& modelo) {
        cambioDeActiva_ = true;
        ponerEncima(modelo);
    };
    programa_.alTerminarActo = [this] { alTerminarActo(); };
}

void Escritorio::seguirALaPersona() {
    connect(zona_, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow* subventana) {
        Formulario* const modelo = vistas_.modeloDe(subventana);
        if (modelo != nullptr && marco_.isActiveWindow()) {
            activarModelo(*modelo);
        }
    });
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* /*antes*/, const QWidget* ahora) { alEnfocarse(ahora); });
    qApp->installEventFilter(this);
}

// --- From the model to the real windows -----------------------------------------------------------------

void Escritorio::alCargar(Formulario& modelo) {
    auto vinculos = std::make_unique<Vinculos>(programa_);
    QWidget* const ventana = crearVentana(modelo, *vinculos);
    ventana->setObjectName(AQt(modelo.nombre()));
    Vista& vista = vistas_.poner(modelo, *ventana, std::move(vinculos));
    if (modelo.tipo() == TipoVentana::Marco) {
        medir(modelo);
    }
    vista.observador = modelo.observar([this, &modelo] { mostrar(modelo); });
    mostrar(modelo);
}

QWidget* Escritorio::crearVentana(Formulario& modelo, Vinculos& vinculos) {
    if (modelo.tipo() == TipoVentana::Marco) {
        vinculos.crearMenus(*marco_.menuBar(), modelo);
        return &marco_;
    }
    QWidget* const contenido = Disponer(modelo, vinculos);
    if (modelo.tipo() == TipoVentana::Hija) {
        return CrearHija(*zona_, *contenido, SePuedeAgrandar(modelo));
    }
    assert(!SePuedeAgrandar(modelo));
    return CrearDialogo(marco_, *contenido);
}

void Escritorio::alDescargar(Formulario& modelo) {
    Vista vista = vistas_.sacar(modelo);
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
    retiradas_.push_back(std::move(vista)); // a signal of the window may still be on its way
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
    Vista& vista = vistas_.de(modelo);
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    vista.ventana->setWindowTitle(AQt(modelo.Caption()));
    if (modelo.MousePointer() != Formulario::relojDeArena) {
        vista.reloj.reset();
    } else if (vista.reloj == nullptr) {
        vista.reloj = std::make_unique<RelojDeArena>(*vista.ventana);
    }
    aplicarEstado(modelo, vista);
    aplicarMedidas(modelo, vista);
    if (modelo.tipo() == TipoVentana::Libre) {
        RecordarLugar(modelo, vista);
    }
    vista.ventana->setVisible(modelo.Visible());
}

void Escritorio::aplicarEstado(Formulario& modelo, Vista& vista) {
    if (modelo.WindowState() == vista.estado) {
        return;
    }
    vista.estado = modelo.WindowState();
    if (vista.estado == estadoNormal) {
        vista.ventana->showNormal();
        medir(modelo); // the real window is back at its former measures
    }
}

void Escritorio::aplicarMedidas(const Formulario& modelo, Vista& vista) {
    const QRect medidas = Medidas(modelo);
    if (modelo.tipo() != TipoVentana::Hija || medidas == vista.medidas ||
        EstadoDe(*vista.ventana) != estadoNormal) {
        return;
    }
    vista.medidas = medidas;
    vista.ventana->setGeometry(LugarDeHija(medidas, *vista.ventana, zona_->viewport()->size()));
    recolocadas_ = true;
}

/// On a small screen a child is moved up to be within the frame. The one that the model puts above it gives
/// way: neither covers the other.
void Escritorio::separarHijas() {
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    for (const auto& [arriba, superior] : vistas_.todas()) {
        for (const auto& [abajo, inferior] : vistas_.todas()) {
            const bool sonHijas = arriba->tipo() == TipoVentana::Hija && abajo->tipo() == TipoVentana::Hija &&
                                  arriba->Visible() && abajo->Visible();
            const QRect lugar = superior.ventana->geometry();
            const QRect suyo = inferior.ventana->geometry();
            if (sonHijas && Medidas(*arriba).bottom() < Medidas(*abajo).top() && lugar.intersects(suyo) &&
                EstadoDe(*superior.ventana) == estadoNormal && EstadoDe(*inferior.ventana) == estadoNormal) {
                const int alto =
                    std::max(suyo.top() - lugar.top(), superior.ventana->minimumSizeHint().height());
                superior.ventana->resize(lugar.width(), alto);
            }
        }
    }
}

/// Runs for each window that an act activates, not only for the last one: the order on the screen is theirs.
/// A child becomes active here because Qt raises the child that it takes the activation from.
void Escritorio::ponerEncima(Formulario& modelo) {
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    QWidget* const ventana = vistas_.de(modelo).ventana;
    if (modelo.tipo() == TipoVentana::Hija) {
        zona_->setActiveSubWindow(static_cast<QMdiSubWindow*>(ventana));
    }
    ventana->raise();
}

void Escritorio::alTerminarActo() {
    servicios_.acabarActo();
    soltarRetiradas();
    if (programa_.terminado()) {
        if (alTerminar) {
            alTerminar();
        }
        return;
    }
    if (recolocadas_) {
        recolocadas_ = false;
        separarHijas();
    }
    if (cambioDeActiva_) {
        cambioDeActiva_ = false;
        darActivacion();
    }
    darFoco();
}

void Escritorio::alzar(Formulario& modelo) {
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    vistas_.de(modelo).ventana->raise();
}

void Escritorio::darActivacion() {
    Formulario* const activa = programa_.activa();
    if (activa == nullptr) {
        return;
    }
    const QScopedValueRollback desdeElModelo{desdeElModelo_, true};
    QWidget* const ventana = vistas_.de(*activa).ventana;
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
    QWidget* const widget = foco == nullptr ? nullptr : widgetDe(*foco);
    if (widget == nullptr || !widget->isEnabled() || !widget->isVisible()) {
        // The act left the focus nowhere, or on what can no longer hold it: take it from where Qt has put it,
        // once Qt is done.
        QMetaObject::invokeMethod(
            this, [this] { alEnfocarse(QApplication::focusWidget()); }, Qt::QueuedConnection);
        return;
    }
    if (vistas_.controlDe(widget->window()->focusWidget()) != foco) {
        widget->setFocus();
    }
}

// --- From the real windows to the model -----------------------------------------------------------------

void Escritorio::actuar(const std::function<void()>& acto) {
    if (!desdeElModelo_ && !programa_.atendiendo()) {
        Intentar(acto);
    }
}

void Escritorio::alEnfocarse(const QWidget* widget) {
    Control* const control = vistas_.controlDe(widget);
    if (control == nullptr || control == programa_.foco() || !control->ventana().Visible() ||
        esperaOtra(widget->window())) {
        return;
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
    Formulario* const modelo = ventana == &marco_ ? modeloActivoDelMarco() : vistas_.modeloDe(ventana);
    // Qt tells every widget of a frame that comes up, the children too; the frame speaks for them.
    const bool esHija = ventana != &marco_ && modelo != nullptr && modelo->tipo() == TipoVentana::Hija;
    if (modelo == nullptr || esHija || esperaOtra(ventana)) {
        return;
    }
    pedida_ = nullptr;
    activarModelo(*modelo);
}

/// True while a window comes up on the way to the one that the model asked for.
bool Escritorio::esperaOtra(const QObject* ventana) const {
    return pedida_ != nullptr && pedida_ != ventana;
}

/// The model decides whether it closes, and its unloading takes the real window with it. False when no model
/// shows there: Qt closes the window.
bool Escritorio::alPedirCierre(const QObject* ventana) {
    Formulario* const modelo = vistas_.modeloDe(ventana);
    if (modelo == nullptr) {
        return false;
    }
    if (modelo->Visible()) {
        actuar([&] { Usuario{programa_}.cerrar(*modelo); });
    }
    return true;
}

void Escritorio::alMoverse(const QObject* ventana) {
    Formulario* const modelo = vistas_.modeloDe(ventana);
    if (modelo != nullptr && modelo->Visible() && !desdeElModelo_ &&
        EstadoDe(*vistas_.de(*modelo).ventana) != estadoMinimizado) {
        medir(*modelo);
    }
}

void Escritorio::alCambiarEstado(const QObject* ventana) {
    Formulario* const modelo = vistas_.modeloDe(ventana);
    if (modelo != nullptr && !desdeElModelo_) {
        Vista& vista = vistas_.de(*modelo);
        vista.estado = EstadoDe(*vista.ventana);
        modelo->WindowState = vista.estado;
    }
}

void Escritorio::medir(Formulario& modelo) {
    Vista& vista = vistas_.de(modelo);
    const QRect medidas = Medidas(*vista.ventana);
    if (medidas == Medidas(modelo)) {
        return;
    }
    vista.medidas = medidas; // the real window has them: the model asks for nothing
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

bool Escritorio::eventFilter(QObject* objeto, QEvent* suceso) {
    switch (suceso->type()) {
    case QEvent::MouseButtonPress:
        alzarLaActiva(objeto);
        [[fallthrough]];
    case QEvent::KeyPress:
        pedida_ = nullptr; // from now on the person decides which window is active
        break;
    case QEvent::Close:
        if (alPedirCierre(objeto)) {
            suceso->ignore();
            return true;
        }
        break;
    case QEvent::WindowActivate:
        alActivarse(objeto);
        break;
    case QEvent::Move:
    case QEvent::Resize:
        alMoverse(objeto);
        break;
    case QEvent::WindowStateChange:
        alCambiarEstado(objeto);
        break;
    default:
        break;
    }
    return QObject::eventFilter(objeto, suceso);
}

/// Qt raises a child that becomes active, and one that is active already only here.
void Escritorio::alzarLaActiva(const QObject* pulsado) const {
    QMdiSubWindow* const activa = zona_->activeSubWindow();
    const auto* const widget = qobject_cast<const QWidget*>(pulsado);
    if (activa != nullptr && widget != nullptr && (widget == activa || activa->isAncestorOf(widget))) {
        activa->raise();
    }
}

/// A click on the frame activates the child that was active last in it; null once the frame is closed.
Formulario* Escritorio::modeloActivoDelMarco() const {
    const auto subventanas = zona_->subWindowList(QMdiArea::ActivationHistoryOrder);
    const auto hija =
        std::find_if(subventanas.rbegin(), subventanas.rend(), [this](const QObject* subventana) {
            const Formulario* const modelo = vistas_.modeloDe(subventana);
            return modelo != nullptr && modelo->Visible();
        });
    return vistas_.modeloDe(hija == subventanas.rend() ? static_cast<const QObject*>(&marco_) : *hija);
}

} // namespace varo
