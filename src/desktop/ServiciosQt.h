// The platform of the windows, in Qt.
#pragma once

#include "basico/Cuadrilla.h"
#include "desktop/VentanaDeAvance.h"
#include "formularios/Servicios.h"

#include <functional>
#include <string>
#include <utility>

class QString;
class QWidget;

namespace varo {

class ServiciosQt : public Servicios {
public:
    /// Boxes and dialogs stand over this window when none is active.
    void ponerVentana(QWidget* ventana) {
        ventana_ = ventana;
        avance_.ponerVentana(ventana);
    }
    /// The act of a person is over: whatever it shows of its progress goes.
    void acabarActo() { avance_.acabar(); }
    /// The next choice of a file gives this one, and no dialog asks; the empty text takes that back.
    void prepararArchivo(std::string ruta) { preparado_ = std::move(ruta); }

    /// The folder in which the choice of a file begins; where Qt likes without one.
    std::function<std::string()> carpetaAlAbrir;
    /// Told of the text of each box.
    std::function<void(const std::string& texto)> alDecir;
    /// Told of each file that has taken its place.
    std::function<void(const std::string& ruta)> alEscribir;

    int mensaje(const std::string& texto, const std::string& titulo, int opciones) override;
    void fallo(const ErrorEjecucion& error) override;
    void falloFatal(const ErrorEjecucion& error) override;
    void elegirArchivo(DialogoAbrir& dialogo) override;
    std::optional<Fuente> elegirFuente(const Fuente& actual) override;
    std::optional<Color> elegirColor(Color actual) override;
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) override;
    Avance avance() override { return Avance{avance_}; }
    Cuadrilla* cuadrilla() override { return &cuadrilla_; }

private:
    /// Over which a box comes up now. What shows progress gives way to it.
    [[nodiscard]] QWidget* padre();
    void mostrarFallo(const ErrorEjecucion& error, const QString& cierre);

    QWidget* ventana_ = nullptr;
    VentanaDeAvance avance_;
    std::string preparado_;
    Cuadrilla cuadrilla_{Cuadrilla::losDeLaMaquina()};
};

} // namespace varo
