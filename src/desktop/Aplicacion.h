// The Qt application object: name, icon and language of the program.
#pragma once

#include <QApplication>
#include <QTranslator>

namespace varo {

/// An exception that no handler expects does not end the program: a box tells it, and the person may save.
class Aplicacion : public QApplication {
public:
    Aplicacion(int& argc, char** argv);

    bool notify(QObject* objeto, QEvent* suceso) override;

private:
    QTranslator textosDeQt_;
};

} // namespace varo
