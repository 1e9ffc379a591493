// What looks wrong in the open sheet, on the desktop: how many findings the status bar tells of, their window
// and their place in the grid.
#pragma once

#include "avisos/AvisosDeLaHoja.h"
#include "avisos/HojaPorRevisar.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QToolButton;

namespace varo {

class Escritorio;
class VentanaDeAvisos;
class VistaDeRejilla;

/// Asks nothing and stops nobody. The desktop lives longer.
class AvisosEnPantalla : public QObject {
public:
    using Revision = std::function<std::vector<Hallazgo>(Programa&, const LoPedido&)>;
    using Decir = std::function<void(const QString&)>;

    /// `decir` shows a text in the status bar, where the button stands too.
    AvisosEnPantalla(Escritorio& escritorio, Decir decir, Revision revision = AvisosDeLaHoja);
    ~AvisosEnPantalla() override;

    /// Looks at the sheet again if something has changed that the findings depend on. Not while the options
    /// are on show: their changes count together.
    void seguir();

    /// The window has a place of its own beside the grid, and may stay open.
    void mostrarVentana();

private:
    void olvidar();
    void revisar(const LoPedido& pedido);
    void mostrar();
    void mostrarBoton();
    [[nodiscard]] QString resumen() const;
    void crearVentana();
    void senalar(const Hallazgo& hallazgo);
    void quitarSenal() const;
    void decirQueNoSeVe(int fila);
    void callarLoQueNoSeVe();
    /// Null while there is no grid.
    [[nodiscard]] VistaDeRejilla* rejilla() const;

    Escritorio& escritorio_;
    Programa& programa_;
    Decir decir_;
    Revision revision_;
    std::optional<HojaPorRevisar> revisada_; ///< what the findings are about; nothing without columns
    std::vector<Hallazgo> hallazgos_;
    QString fallo_;               ///< of the revision itself
    bool dichoQueNoSeVe_ = false; ///< the status bar tells of a row that is not in the grid
    QToolButton* boton_;
    QPointer<VentanaDeAvisos> ventana_;
};

} // namespace varo
