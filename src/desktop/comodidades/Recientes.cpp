#include "desktop/comodidades/Recientes.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace varo {

namespace {

const char* const claveDeArchivos = "archivos";

QString ArchivoDeLaPersona() {
    return QDir{QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)}.filePath(
        QStringLiteral("varo/recientes.ini"));
}

} // namespace

Recientes::Recientes(const QString& archivo)
    : ajustes_{archivo.isEmpty() ? ArchivoDeLaPersona() : archivo, QSettings::IniFormat} {}

QStringList Recientes::archivos() const {
    return ajustes_.value(claveDeArchivos).toStringList().mid(0, cuantos);
}

void Recientes::anotar(const QString& archivo) {
    ajustes_.sync(); // another window of the program may have opened files meanwhile
    QStringList lista = archivos();
    lista.removeAll(archivo);
    lista.prepend(archivo);
    ajustes_.setValue(claveDeArchivos, lista.mid(0, cuantos));
    ajustes_.sync();
}

QString Recientes::carpeta() const {
    const QStringList lista = archivos();
    return lista.isEmpty() ? QString{} : QFileInfo{lista.front()}.path();
}

} // namespace varo
