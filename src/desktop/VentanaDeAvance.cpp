#include "desktop/VentanaDeAvance.h"

#include "desktop/Texto.h"
#include "shell/VAROMAIN.h"

#include <QCoreApplication>

namespace varo {

namespace {

using namespace std::chrono_literals;

constexpr auto esperaDeLaVentana = 500ms;
constexpr auto entreMiradas = 40ms;
constexpr int rayas = 1000; ///< of the bar
constexpr int anchoDeVentana = 380;

QString Texto(const Marcha& marcha, std::chrono::steady_clock::time_point ahora) {
    QString texto = AQt(marcha.etapa);
    if (const auto queda = marcha.queda(ahora)) {
        texto += QStringLiteral("\nQueda: ") + AQt(TextoDeDuracion(*queda));
    } else {
        texto += QStringLiteral("\n ");
    }
    return texto;
}

std::unique_ptr<QProgressDialog> CrearDialogo(QWidget* ventana) {
    auto dialogo = std::make_unique<QProgressDialog>(ventana);
    dialogo->setObjectName("VentanaDeAvance");
    dialogo->setWindowTitle(tituloDelPrograma);
    dialogo->setCancelButtonText("Cancelar");
    dialogo->setWindowModality(Qt::ApplicationModal);
    dialogo->setAutoClose(false);
    dialogo->setAutoReset(false);
    dialogo->setMinimumDuration(0);
    dialogo->setMinimumWidth(anchoDeVentana);
    return dialogo;
}

} // namespace

void VentanaDeAvance::ocultar() {
    dialogo_.reset();
}

void VentanaDeAvance::acabar() {
    ocultar();
    comienzo_.reset();
}

bool VentanaDeAvance::oir(const Marcha& marcha) {
    const auto ahora = Reloj::now();
    if (!comienzo_) {
        comienzo_ = ahora;
        ultimaMirada_ = ahora;
    }
    if (ahora - *comienzo_ < esperaDeLaVentana || ahora - ultimaMirada_ < entreMiradas) {
        return false;
    }
    mostrar(marcha, ahora);
    QCoreApplication::processEvents();
    ultimaMirada_ = Reloj::now();
    return dialogo_->wasCanceled();
}

void VentanaDeAvance::mostrar(const Marcha& marcha, Reloj::time_point ahora) {
    if (dialogo_ == nullptr) {
        dialogo_ = CrearDialogo(ventana_);
    }
    // Without a count the bar only moves.
    dialogo_->setRange(0, marcha.pasos == 0 ? 0 : rayas);
    dialogo_->setLabelText(Texto(marcha, ahora));
    dialogo_->setValue(static_cast<int>(marcha.parte() * rayas));
    dialogo_->show();
}

} // namespace varo
