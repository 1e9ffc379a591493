// The menu Ayuda: the manual, the findings about the sheet and what program this is.
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QPointer>

#include <functional>

class QDialog;

namespace varo {

class Ayuda : public QObject {
public:
    /// Puts the menu at the end of the bar of the window.
    explicit Ayuda(QMainWindow& marco);

    /// Told when a person asks for the findings.
    std::function<void()> alPedirAvisos;

    /// The manual has a window of its own beside the others, which may stay open.
    void mostrarManual();
    void mostrarAcercaDe();

private:
    QMainWindow& marco_;
    QPointer<QDialog> manual_;
};

} // namespace varo
