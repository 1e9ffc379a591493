#include "desktop/comodidades/Comodidades.h"

#include "basico/Saltando.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "desktop/Escritorio.h"
#include "desktop/Intentar.h"
#include "desktop/ServiciosQt.h"
#include "desktop/Texto.h"
#include "desktop/comodidades/AvisosEnPantalla.h"
#include "desktop/comodidades/Ayuda.h"
#include "desktop/comodidades/BarraDeEstado.h"
#include "desktop/comodidades/MenuDeRecientes.h"
#include "desktop/comodidades/Recientes.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "shell/VAROMAIN.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QUrl>

#include <filesystem>

namespace varo {

namespace {

QAction& AccionDe(const QMainWindow& marco, const Menu& menu) {
    return *marco.findChild<QAction*>(AQt(menu.nombreCompleto()));
}

/// What the status bar keeps of a message: the cause, where one message serves them all.
std::string ParaLaBarra(const std::string& mensaje, const Programa& programa) {
    const auto* const seleccion = programa.cargada<FrmSeleccion>();
    if (mensaje != FrmSeleccion::hojaNoEncontrada || seleccion == nullptr || !seleccion->ultimoFallo()) {
        return mensaje;
    }
    const ErrorEjecucion& fallo = *seleccion->ultimoFallo();
    return "Hoja no encontrada. " + fallo.descripcion() + (fallo.causa().empty() ? "" : ": ") + fallo.causa();
}

std::string CarpetaDe(const std::string& archivo) {
    return std::filesystem::path{archivo}.parent_path().string();
}

} // namespace

Comodidades::Comodidades(Escritorio& escritorio, ServiciosQt& servicios, Recientes& recientes)
    : escritorio_{escritorio}, servicios_{servicios}, recientes_{recientes}, programa_{escritorio.programa()},
      barra_{std::make_unique<BarraDeEstado>(*escritorio.marco().statusBar())},
      menuDeRecientes_{std::make_unique<MenuDeRecientes>(
          *AccionDe(escritorio.marco(), programa_.tocar<VAROMAIN>().mnuArchivo).menu(), recientes)},
      ayuda_{std::make_unique<Ayuda>(escritorio.marco())}, avisos_{std::make_unique<AvisosEnPantalla>(
                                                               escritorio, [this](const QString& texto) {
                                                                   barra_->decir(texto);
                                                               })} {
    ayuda_->alPedirAvisos = [this] { avisos_->mostrarVentana(); };
    menuDeRecientes_->alElegir = [this](const QString& archivo) { abrir(archivo); };
    escritorio_.marco().setAcceptDrops(true);
    escritorio_.marco().installEventFilter(this);
    ponerTeclas();
    atenderServicios();
    seguirAlPrograma();
    alTerminarActo();
}

Comodidades::~Comodidades() {
    programa_.alCargar = alCargarAntes_;
    programa_.alTerminarActo = alTerminarActoAntes_;
    servicios_.carpetaAlAbrir = {};
    servicios_.alDecir = {};
    servicios_.alEscribir = {};
}

/// A child closes with Ctrl+F4, so Ctrl+W is free for the file. In a free window it would be taken for the
/// key that closes that window, and lose what the file holds. No key acts below a question.
void Comodidades::ponerTeclas() const {
    const auto& marco = *programa_.cargada<VAROMAIN>();
    const auto poner = [this](const Menu& menu, Qt::Key tecla, Qt::ShortcutContext donde) {
        QAction& accion = AccionDe(escritorio_.marco(), menu);
        accion.setShortcut(Qt::CTRL | tecla);
        accion.setShortcutContext(donde);
    };
    poner(marco.mnuAbrir, Qt::Key_O, Qt::ApplicationShortcut);
    poner(marco.mnuCerrar, Qt::Key_W, Qt::WindowShortcut);
    poner(marco.mnuSalir, Qt::Key_Q, Qt::ApplicationShortcut);
}

void Comodidades::atenderServicios() {
    servicios_.carpetaAlAbrir = [this] { return DeQt(recientes_.carpeta()); };
    servicios_.alDecir = [this](const std::string& texto) {
        barra_->decir(AQt(ParaLaBarra(texto, programa_)));
    };
    servicios_.alEscribir = [this](const std::string& ruta) {
        carpetaDeResultados_ = CarpetaDe(ruta);
        recientes_.anotarResultados(AQt(CarpetaDe(abierto_)), AQt(carpetaDeResultados_));
    };
}

void Comodidades::seguirAlPrograma() {
    alCargarAntes_ = programa_.alCargar;
    programa_.alCargar = [this](Formulario& modelo) {
        if (auto* const crear = dynamic_cast<FrmCrearArchivo*>(&modelo)) {
            llevarASuCarpeta(*crear);
        }
        alCargarAntes_(modelo);
    };
    alTerminarActoAntes_ = programa_.alTerminarActo;
    programa_.alTerminarActo = [this] {
        alTerminarActoAntes_();
        alTerminarActo();
    };
}

void Comodidades::alTerminarActo() {
    if (programa_.terminado()) {
        return;
    }
    const auto* const datos = programa_.cargada<Hojadedatos>();
    const std::string abierto = datos == nullptr ? std::string{} : datos->Data1.DatabaseName();
    if (abierto != abierto_) {
        abierto_ = abierto;
        if (!abierto.empty()) {
            recientes_.anotar(QFileInfo{AQt(abierto)}.absoluteFilePath());
        }
    }
    barra_->mostrar(programa_);
    menuDeRecientes_->mostrar(programa_.tocar<VAROMAIN>().mnuAbrir.Enabled());
    avisos_->seguir();
}

/// A folder that cannot be listed any more leaves the window where it is.
void Comodidades::llevarASuCarpeta(FrmCrearArchivo& ventana) const {
    const std::string deLaParcela = CarpetaDe(abierto_);
    const std::string deOtraSesion = DeQt(recientes_.carpetaDeResultados(AQt(deLaParcela)));
    for (const std::string& carpeta : {carpetaDeResultados_, deOtraSesion, deLaParcela}) {
        if (!carpeta.empty() && !Saltando([&] { ventana.DirLista.Path(carpeta); })) {
            return;
        }
    }
}

QString Comodidades::porQueNoSeAbre() const {
    if (programa_.atendiendo() || QApplication::activeModalWidget() != nullptr) {
        return QStringLiteral("hay una pregunta sin contestar o un cálculo en marcha.");
    }
    if (Usuario::impedimento(programa_.cargada<VAROMAIN>()->mnuAbrir)) {
        return QStringLiteral("ya hay un archivo abierto; ciérrelo antes (Archivo, Cerrar).");
    }
    return {};
}

void Comodidades::abrir(const QString& archivo) {
    if (programa_.terminado()) {
        return;
    }
    const QFileInfo info{archivo};
    const QString nombre = QStringLiteral("«%1»").arg(info.absoluteFilePath());
    const QString impedimento = porQueNoSeAbre();
    if (!impedimento.isEmpty()) {
        barra_->decir(QStringLiteral("No se abre ") + nombre + QStringLiteral(": ") + impedimento);
        return;
    }
    if (!info.isFile()) {
        const QString texto =
            info.exists()
                ? nombre + QStringLiteral(" no es un archivo. Elija el de la parcela.")
                : QStringLiteral("No se encuentra ") + nombre +
                      QStringLiteral(".\nPuede que haya cambiado de nombre o de carpeta, o que esté en "
                                     "un disco que no está conectado.");
        programa_.atender(
            [&] { servicios_.mensaje(DeQt(texto), "Abrir fichero de datos", mensaje::exclamacion); });
        return;
    }
    servicios_.prepararArchivo(DeQt(info.absoluteFilePath()));
    Intentar([this] { Usuario{programa_}.clic(programa_.tocar<VAROMAIN>().mnuAbrir); });
    servicios_.prepararArchivo({}); // a field that keeps the focus may have refused the act
}

void Comodidades::soltar(const QList<QUrl>& lugares) {
    if (lugares.size() == 1 && lugares.front().isLocalFile()) {
        abrir(lugares.front().toLocalFile());
    } else {
        barra_->decir(QStringLiteral("Suelte un solo archivo de este equipo: se abre uno cada vez."));
    }
}

bool Comodidades::eventFilter(QObject* objeto, QEvent* suceso) {
    const auto tipo = suceso->type();
    if (tipo == QEvent::StatusTip) {
        const QString texto = static_cast<QStatusTipEvent*>(suceso)->tip();
        if (!texto.isEmpty()) {
            barra_->decir(texto);
        }
        return true; // the bar keeps what it says when the pointer leaves a menu
    }
    if (tipo != QEvent::DragEnter && tipo != QEvent::DragMove && tipo != QEvent::Drop) {
        return QObject::eventFilter(objeto, suceso);
    }
    auto& arrastre = *static_cast<QDropEvent*>(suceso);
    if (!arrastre.mimeData()->hasUrls()) {
        return false;
    }
    arrastre.setDropAction(Qt::CopyAction);
    arrastre.accept();
    if (tipo == QEvent::Drop) {
        // What opens may ask: let the program that the file comes from go first.
        QMetaObject::invokeMethod(
            this, [this, lugares = arrastre.mimeData()->urls()] { soltar(lugares); }, Qt::QueuedConnection);
    }
    return true;
}

} // namespace varo
