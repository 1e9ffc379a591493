#include "desktop/comodidades/AvisosEnPantalla.h"

#include "avisos/FilaDeLaRejilla.h"
#include "data/Hojadedatos.h"
#include "desktop/Escritorio.h"
#include "desktop/Texto.h"
#include "desktop/comodidades/PuntoDeGravedad.h"
#include "desktop/comodidades/VentanaDeAvisos.h"
#include "desktop/widgets/Pista.h"
#include "desktop/widgets/VentanasReales.h"
#include "desktop/widgets/VistaDeRejilla.h"
#include "options/OpcionesPrograma.h"
#include "revision/CuentaDeHallazgos.h"

#include <QScreen>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace varo {

namespace {

/// The screen above the status bar, which goes on telling things; all of it where that is too low.
QRect PantallaSobreLaBarra(const QMainWindow& marco, int alto) {
    constexpr int borde = 40; // of a window
    const QWidget& barra = *marco.statusBar();
    const QRect entera = marco.screen()->availableGeometry();
    QRect sitio = entera;
    sitio.setBottom(std::min(entera.bottom(), barra.mapToGlobal(QPoint{}).y() - 1));
    return sitio.height() < alto + borde ? entera : sitio;
}

} // namespace

AvisosEnPantalla::AvisosEnPantalla(Escritorio& escritorio, Decir decir, Revision revision)
    : escritorio_{escritorio}, programa_{escritorio.programa()}, decir_{std::move(decir)},
      revision_{std::move(revision)}, boton_{new QToolButton} {
    boton_->setObjectName(QStringLiteral("EstadoAvisos"));
    boton_->setAutoRaise(true);
    boton_->setFocusPolicy(Qt::NoFocus); // the focus is the program's
    boton_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    boton_->hide();
    connect(boton_, &QToolButton::clicked, this, [this] { mostrarVentana(); });
    escritorio_.marco().statusBar()->addPermanentWidget(boton_);
    boton_->hide();
}

AvisosEnPantalla::~AvisosEnPantalla() {
    delete ventana_;
    delete boton_;
}

void AvisosEnPantalla::seguir() {
    if (!HayColumnasElegidas(programa_)) {
        if (revisada_) {
            olvidar();
        }
        return;
    }
    const auto* const opciones = programa_.cargada<OpcionesPrograma>();
    if (opciones != nullptr && opciones->Visible()) {
        return;
    }
    const LoPedido pedido{.indices = true, .datosDeParcela = programa_.sesion.ColumnaDAP > 0};
    HojaPorRevisar hoja = LaHojaPorRevisar(programa_, pedido);
    if (revisada_ != hoja) {
        revisada_ = std::move(hoja);
        revisar(pedido);
    }
}

void AvisosEnPantalla::olvidar() {
    revisada_.reset();
    hallazgos_.clear();
    fallo_.clear();
    mostrar();
}

void AvisosEnPantalla::revisar(const LoPedido& pedido) {
    hallazgos_.clear();
    fallo_.clear();
    try {
        hallazgos_ = revision_(programa_, pedido);
    } catch (const ErrorEjecucion& error) {
        fallo_ = QStringLiteral("La hoja no se ha podido revisar. ") + AQt(error.what());
        decir_(fallo_);
    }
    mostrar();
}

void AvisosEnPantalla::mostrar() {
    quitarSenal();
    mostrarBoton();
    if (ventana_ != nullptr) {
        ventana_->poner(resumen(), hallazgos_);
    }
}

void AvisosEnPantalla::mostrarBoton() {
    boton_->setVisible(revisada_.has_value());
    boton_->setText(fallo_.isEmpty() ? AQt(CuantosAvisos(hallazgos_.size())) : QStringLiteral("sin revisar"));
    boton_->setToolTip(TextoDePista(resumen()));
    boton_->setAccessibleName(resumen());
    const Gravedad peor = hallazgos_.empty() ? Gravedad::Mirar : hallazgos_.front().gravedad;
    boton_->setIcon(PuntoDeGravedad(peor));
    QFont letra = escritorio_.marco().statusBar()->font();
    letra.setBold(peor == Gravedad::Fallo);
    boton_->setFont(letra);
}

QString AvisosEnPantalla::resumen() const {
    if (!revisada_) {
        return QStringLiteral("Elija las columnas: después se revisa la hoja.");
    }
    if (!fallo_.isEmpty()) {
        return fallo_;
    }
    return hallazgos_.empty() ? QStringLiteral("No hay nada que avisar.")
                              : AQt(CuentaDeHallazgos(hallazgos_));
}

void AvisosEnPantalla::crearVentana() {
    ventana_ = new VentanaDeAvisos{escritorio_.marco()};
    ventana_->alElegir = [this](const Hallazgo& hallazgo) { senalar(hallazgo); };
    ventana_->alDecir = decir_;
    connect(ventana_, &QDialog::finished, this, [this] {
        quitarSenal();
        callarLoQueNoSeVe();
    });
    ventana_->poner(resumen(), hallazgos_);
    const QMainWindow& marco = escritorio_.marco();
    ventana_->resize(ventana_->size().boundedTo(SitioEnPantalla(marco)));
    const VistaDeRejilla* const vista = rejilla();
    const QRect aLaVista =
        vista == nullptr ? marco.frameGeometry() : QRect{vista->mapToGlobal(QPoint{}), vista->size()};
    ventana_->move(LugarAlLado(ventana_->size(), marco.frameGeometry(), aLaVista,
                               PantallaSobreLaBarra(marco, ventana_->height())));
}

void AvisosEnPantalla::mostrarVentana() {
    if (ventana_ == nullptr) {
        crearVentana();
    }
    if (!ventana_->isVisible()) {
        ventana_->show();
        ventana_->elegirElPrimero();
    }
    ventana_->raise();
    ventana_->activateWindow();
}

void AvisosEnPantalla::senalar(const Hallazgo& hallazgo) {
    VistaDeRejilla* const vista = rejilla();
    if (vista == nullptr) {
        return;
    }
    callarLoQueNoSeVe();
    LugarSenalado lugar;
    if (hallazgo.fila > 0) {
        lugar.fila = FilaDeLaRejilla(programa_, hallazgo.fila);
    }
    if (hallazgo.numeroDeColumna > 0) {
        lugar.columna = hallazgo.numeroDeColumna - 1;
    }
    if (hallazgo.fila > 0 && !lugar.fila) {
        vista->quitarSenal();
        decirQueNoSeVe(hallazgo.fila);
        return;
    }
    vista->senalar(lugar);
    if (lugar != LugarSenalado{}) {
        escritorio_.alzar(*programa_.cargada<Hojadedatos>());
    }
}

void AvisosEnPantalla::decirQueNoSeVe(int fila) {
    dichoQueNoSeVe_ = true;
    decir_(QStringLiteral("La fila %1 ya no se ve en la hoja: al dibujar el mapa se quitan las filas sin "
                          "coordenadas.")
               .arg(fila));
}

void AvisosEnPantalla::callarLoQueNoSeVe() {
    if (dichoQueNoSeVe_) {
        dichoQueNoSeVe_ = false;
        decir_({});
    }
}

void AvisosEnPantalla::quitarSenal() const {
    if (VistaDeRejilla* const vista = rejilla()) {
        vista->quitarSenal();
    }
}

VistaDeRejilla* AvisosEnPantalla::rejilla() const {
    const auto* const hoja = programa_.cargada<Hojadedatos>();
    return hoja == nullptr ? nullptr : dynamic_cast<VistaDeRejilla*>(escritorio_.widgetDe(hoja->MSFlexGrid1));
}

} // namespace varo
