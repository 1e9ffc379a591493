// The files that were opened last, below the entries of the menu Archivo.
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QAction;
class QMenu;

namespace varo {

class Recientes;

class MenuDeRecientes : public QObject {
public:
    MenuDeRecientes(QMenu& menu, const Recientes& recientes);

    /// Told of the file that a person chooses.
    std::function<void(const QString&)> alElegir;

    /// Brings the entries up to date; `sePuedeAbrir` as for opening any file.
    void mostrar(bool sePuedeAbrir);

private:
    const Recientes& recientes_;
    QAction* raya_;
    std::vector<QAction*> entradas_;
};

} // namespace varo
