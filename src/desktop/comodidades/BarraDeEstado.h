// The status bar of the main window: what is open, and what the last act had to say.
#pragma once

#include <QObject>
#include <QString>

class QStatusBar;

namespace varo {

class Programa;
class RotuloRecortado;

class BarraDeEstado : public QObject {
public:
    explicit BarraDeEstado(QStatusBar& barra);

    /// Shows this until the next message, or until a sheet opens or closes; a text of several lines in one.
    void decir(const QString& texto);
    /// Shows what the program has open now.
    void mostrar(const Programa& programa);

private:
    void mostrarUltimaColumna(const QString& cabecera);
    RotuloRecortado* crearRotulo(const QString& nombre, int letras);

    QStatusBar& barra_;
    RotuloRecortado* mensaje_;
    RotuloRecortado* archivo_;
    RotuloRecortado* hoja_;
    RotuloRecortado* arboles_;
    RotuloRecortado* ultimaColumna_;
};

} // namespace varo
