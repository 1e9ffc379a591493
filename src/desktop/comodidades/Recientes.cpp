#include "desktop/comodidades/Recientes.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace varo {

namespace {

const char* const claveDeArchivos = "archivos";
const char* const claveDeResultados = "resultados"; ///< the folder of the plot, that of its results

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

void Recientes::anotarResultados(const QString& deLaParcela, const QString& carpeta) {
    ajustes_.setValue(claveDeResultados, QStringList{deLaParcela, carpeta});
    ajustes_.sync();
}

QString Recientes::carpetaDeResultados(const QString& deLaParcela) const {
    const QStringList carpetas = ajustes_.value(claveDeResultados).toStringList();
    return carpetas.value(0) == deLaParcela ? carpetas.value(1) : QString{};
}

} // namespace varo
