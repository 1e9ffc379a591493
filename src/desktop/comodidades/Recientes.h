// The plot files that a person opened last, kept from one session to the next.
#pragma once

#include <QSettings>
#include <QString>
#include <QStringList>

namespace varo {

/// Files and folders are all that is kept, never an option, a column or a format.
class Recientes {
public:
    /// Keeps them in this file; without one, among the settings of the person.
    explicit Recientes(const QString& archivo = {});

    static constexpr int cuantos = 8;

    /// Absolute paths, the last one first.
    [[nodiscard]] QStringList archivos() const;
    /// A file was opened: it is the first one now.
    void anotar(const QString& archivo);
    /// The folder of the file that was opened last; empty when there is none.
    [[nodiscard]] QString carpeta() const;

    /// Results of a plot of one folder were saved in another one.
    void anotarResultados(const QString& deLaParcela, const QString& carpeta);
    /// Where the last results went, if their plot was of this folder; empty otherwise.
    [[nodiscard]] QString carpetaDeResultados(const QString& deLaParcela) const;

private:
    QSettings ajustes_;
};

} // namespace varo
