// The window with what looks wrong in the open sheet.
#pragma once

#include "revision/Hallazgo.h"

#include <QDialog>
#include <QString>

#include <functional>
#include <vector>

class QLabel;
class QTableWidget;
class QTextEdit;

namespace varo {

/// A list, the gravest first, and the sentences of the one that is chosen in it. It stands beside the other
/// windows, which go on.
class VentanaDeAvisos : public QDialog {
public:
    explicit VentanaDeAvisos(QWidget& marco);

    /// Told when a person chooses a finding, be it once more.
    std::function<void(const Hallazgo&)> alElegir;
    /// Told what the status bar has to say.
    std::function<void(const QString&)> alDecir;

    /// Shows these in the place of what it showed. The finding that was chosen stays so if it is among them,
    /// and nobody is told.
    void poner(const QString& resumen, std::vector<Hallazgo> hallazgos);
    /// Chooses the first finding.
    void elegirElPrimero();

private:
    void crearTabla();
    void llenarTabla();
    void alCambiarDeFila();
    void avisarDelElegido() const;
    void copiar() const;
    /// Null where there is none.
    [[nodiscard]] const Hallazgo* elegido() const;

    QLabel* resumen_;
    QTableWidget* tabla_;
    QTextEdit* frases_;
    std::vector<Hallazgo> hallazgos_;
    bool poniendo_ = false; ///< what changes in the list now is not a person's doing
};

} // namespace varo
