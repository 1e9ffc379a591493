// The application object of the toolkit: name, icon and language of the program.
#pragma once

#include <QApplication>
#include <QTranslator>

namespace varo {

/// What no handler expects does not end the program: the person is told and may save what there is.
class Aplicacion : public QApplication {
public:
    Aplicacion(int& argc, char** argv);

    bool notify(QObject* objeto, QEvent* suceso) override;

private:
    QTranslator textosDelSistema_;
};

} // namespace varo
