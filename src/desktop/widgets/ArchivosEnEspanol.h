// What the file dialog tells of each file, in Spanish on any system.
#pragma once

#include <QIdentityProxyModel>

class QFileDialog;

namespace varo {

/// Over the files of a QFileDialog: size, kind and date by the locale of the program, not by that of the
/// system, which is what Qt takes.
class ArchivosEnEspanol : public QIdentityProxyModel {
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex& celda, int papel) const override;
};

/// Gives the dialog these texts, in columns as wide as they are.
void PonerArchivosEnEspanol(QFileDialog& dialogo);

} // namespace varo
