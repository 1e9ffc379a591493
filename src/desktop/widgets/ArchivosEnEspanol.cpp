#include "desktop/widgets/ArchivosEnEspanol.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QTreeView>

namespace varo {

QVariant ArchivosEnEspanol::data(const QModelIndex& celda, int papel) const {
    constexpr int tamano = 1; // the columns of QFileSystemModel
    constexpr int clase = 2;
    constexpr int fecha = 3;
    const auto* const archivos = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (archivos == nullptr || papel != Qt::DisplayRole || celda.column() < tamano) {
        return QIdentityProxyModel::data(celda, papel);
    }
    const QFileInfo archivo = archivos->fileInfo(mapToSource(celda));
    switch (celda.column()) {
    case tamano:
        return archivo.isDir() ? QString{} : QLocale{}.formattedDataSize(archivo.size());
    case clase:
        return archivo.isDir() ? QStringLiteral("Carpeta")
                               : QStringLiteral("Archivo ") + archivo.suffix().toUpper();
    case fecha:
        return QLocale{}.toString(archivo.lastModified(), QLocale::ShortFormat);
    default:
        return QIdentityProxyModel::data(celda, papel);
    }
}

void PonerArchivosEnEspanol(QFileDialog& dialogo) {
    dialogo.setProxyModel(new ArchivosEnEspanol{&dialogo});
    QHeaderView& cabeceras = *dialogo.findChild<QTreeView*>(QStringLiteral("treeView"))->header();
    cabeceras.setSectionResizeMode(QHeaderView::ResizeToContents);
    cabeceras.setSectionResizeMode(0, QHeaderView::Stretch);
}

} // namespace varo
