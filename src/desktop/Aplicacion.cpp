#include "desktop/Aplicacion.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QMessageBox>

#include <exception>

namespace varo {

Aplicacion::Aplicacion(int& argc, char** argv) : QApplication{argc, argv} {
    setApplicationName("varo");
    setDesktopFileName("varo");
    setWindowIcon(QIcon{":/iconos/varo.svg"});
    setQuitOnLastWindowClosed(false); // the program says when it is over
    // The texts of the toolkit's own dialogs.
    if (textosDelSistema_.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&textosDelSistema_);
    }
}

bool Aplicacion::notify(QObject* objeto, QEvent* suceso) {
    if (objeto->thread() != thread()) {
        return QApplication::notify(objeto, suceso); // a worker of the toolkit, where no box can be shown
    }
    try {
        return QApplication::notify(objeto, suceso);
    } catch (const std::exception& error) {
        QMessageBox::critical(activeWindow(), "VARO 1.0",
                              QString::fromUtf8("Error inesperado: %1").arg(error.what()));
        return true;
    }
}

} // namespace varo
