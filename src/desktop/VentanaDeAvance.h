// The small window of a long act: what is computed, how far it is, the time left, and "Cancelar".
#pragma once

#include "basico/Avance.h"

#include <QProgressDialog>

#include <chrono>
#include <memory>
#include <optional>

class QWidget;

namespace varo {

/// It shows itself half a second after the first step of an act. From then on the program repaints between
/// steps, and nothing but this window takes what a person does.
class VentanaDeAvance : public OyenteDeAvance {
public:
    /// It stands over this window.
    void ponerVentana(QWidget* ventana) { ventana_ = ventana; }

    /// Goes out of sight until the next step, so that a box can be answered.
    void ocultar();
    /// The act is over.
    void acabar();

protected:
    bool oir(const Marcha& marcha) override;

private:
    using Reloj = std::chrono::steady_clock;

    void mostrar(const Marcha& marcha, Reloj::time_point ahora);

    QWidget* ventana_ = nullptr;
    std::unique_ptr<QProgressDialog> dialogo_;
    std::optional<Reloj::time_point> comienzo_; ///< of the act
    Reloj::time_point ultimaMirada_;
};

} // namespace varo
