#include "desktop/widgets/SelectorDeArchivo.h"

#include "desktop/widgets/ArchivosEnEspanol.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace varo {

namespace {

void Avisar(const std::function<void()>& aviso) {
    if (aviso) {
        aviso();
    }
}

} // namespace

SelectorDeArchivo::SelectorDeArchivo(const QStringList& filtros) {
    setWindowFlags(Qt::Widget);
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    setAcceptMode(AcceptSave);
    setNameFilters(filtros);
    setLabelText(LookIn, QStringLiteral("Carpeta:"));
    setLabelText(FileName, QStringLiteral("&Nombre del archivo:"));
    setLabelText(FileType, QStringLiteral("Tipo:"));
    setSizeGripEnabled(false);
    PonerArchivosEnEspanol(*this);
    findChild<QDialogButtonBox*>()->hide();
    archivos_ = findChild<QFileSystemModel*>();
    nombre_ = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    lista_ = findChild<QWidget*>(QStringLiteral("stackedWidget"));
    connect(
        archivos_, &QFileSystemModel::rootPathChanged, this, [this] { Avisar(alCambiarDeCarpeta); },
        Qt::QueuedConnection);
}

QString SelectorDeArchivo::carpeta() const {
    const QString ruta = archivos_->rootPath();
    return ruta.isEmpty() ? QDir::rootPath() : QDir::cleanPath(ruta);
}

void SelectorDeArchivo::carpeta(const QString& ruta) {
    if (archivos_->rootPath() != ruta) {
        setDirectory(ruta);
    }
}

void SelectorDeArchivo::accept() {
    Avisar(alAceptar);
}

void SelectorDeArchivo::reject() {
    Avisar(alRechazar);
}

/// As any part of a window: a dialog would place itself and take the focus.
void SelectorDeArchivo::setVisible(bool visible) {
    QWidget::setVisible(visible); // NOLINT(bugprone-parent-virtual-call)
}

QSize SelectorDeArchivo::sizeHint() const {
    return {800, 460};
}

void SelectorDeArchivo::keyPressEvent(QKeyEvent* suceso) {
    const bool esEnter = suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter;
    suceso->setAccepted(esEnter && qobject_cast<QAbstractItemView*>(focusWidget()) != nullptr);
}

} // namespace varo
