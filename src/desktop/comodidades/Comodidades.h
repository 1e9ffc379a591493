// What stands on the desktop beside the windows of the program: files by other ways, recent files, status
// bar, findings about the sheet.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <string>

class QUrl;

namespace varo {

class AvisosEnPantalla;
class Ayuda;
class BarraDeEstado;
class Escritorio;
class Formulario;
class FrmCrearArchivo;
class MenuDeRecientes;
class Programa;
class Recientes;
class ServiciosQt;

/// Follows the program at the end of each act and decides nothing in it: whatever a person does here goes to
/// the entries of the menus. All that is handed in lives longer.
class Comodidades : public QObject {
public:
    Comodidades(Escritorio& escritorio, ServiciosQt& servicios, Recientes& recientes);
    ~Comodidades() override;

    /// Does what Archivo, Abrir does with this file chosen. While that entry is off the status bar says why
    /// nothing is opened.
    void abrir(const QString& archivo);

    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    void atenderServicios();
    void seguirAlPrograma();
    void alTerminarActo();
    void llevarASuCarpeta(FrmCrearArchivo& ventana) const;
    void ponerTeclas() const;
    void soltar(const QList<QUrl>& lugares);
    [[nodiscard]] QString porQueNoSeAbre() const;

    Escritorio& escritorio_;
    ServiciosQt& servicios_;
    Recientes& recientes_;
    Programa& programa_;
    std::unique_ptr<BarraDeEstado> barra_;
    std::unique_ptr<MenuDeRecientes> menuDeRecientes_;
    std::unique_ptr<Ayuda> ayuda_;
    std::unique_ptr<AvisosEnPantalla> avisos_;
    std::string abierto_;             ///< the plot file that was open at the end of the last act
    std::string carpetaDeResultados_; ///< of the last results file of this session
    std::function<void(Formulario&)> alCargarAntes_;
    std::function<void()> alTerminarActoAntes_;
};

} // namespace varo
