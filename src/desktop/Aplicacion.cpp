#include "desktop/Aplicacion.h"

#include "shell/VAROMAIN.h"

#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>

#include <exception>

namespace varo {

Aplicacion::Aplicacion(int& argc, char** argv) : QApplication{argc, argv} {
    setApplicationName("varo");
    setDesktopFileName("varo");
    setWindowIcon(QIcon{":/iconos/varo.svg"});
    setQuitOnLastWindowClosed(false);          // the model decides when the program is over
    setAttribute(Qt::AA_DontUseNativeDialogs); // those of the system speak its language
    QLocale::setDefault({QLocale::Spanish, QLocale::Spain});
    if (textosDeQt_.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&textosDeQt_);
    }
}

bool Aplicacion::notify(QObject* objeto, QEvent* suceso) {
    if (objeto->thread() != thread()) {
        return QApplication::notify(objeto, suceso); // a worker thread of Qt cannot show a box
    }
    try {
        return QApplication::notify(objeto, suceso);
    } catch (const std::exception& error) {
        QMessageBox::critical(activeWindow(), tituloDelPrograma,
                              QString::fromUtf8("Error inesperado: %1").arg(error.what()));
        return true;
    }
}

} // namespace varo
