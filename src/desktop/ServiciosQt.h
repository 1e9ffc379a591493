// The platform of the windows, in Qt.
#pragma once

#include "formularios/Servicios.h"

class QString;
class QWidget;

namespace varo {

class ServiciosQt : public Servicios {
public:
    /// Boxes and dialogs stand over this window when none is active.
    void ponerVentana(QWidget* ventana) { ventana_ = ventana; }

    int mensaje(const std::string& texto, const std::string& titulo, int opciones) override;
    void fallo(const ErrorEjecucion& error) override;
    void falloFatal(const ErrorEjecucion& error) override;
    void elegirArchivo(DialogoAbrir& dialogo) override;
    std::optional<Fuente> elegirFuente(const Fuente& actual) override;
    std::optional<Color> elegirColor(Color actual) override;
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) override;

private:
    [[nodiscard]] QWidget* padre() const;
    void mostrarFallo(const ErrorEjecucion& error, const QString& cierre) const;

    QWidget* ventana_ = nullptr;
};

} // namespace varo
