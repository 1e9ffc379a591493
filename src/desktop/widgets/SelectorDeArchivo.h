// Qt's own chooser of where to save, as a part of a window.
#pragma once

#include <QFileDialog>
#include <QFileSystemModel>

#include <functional>

class QLineEdit;

namespace varo {

/// Places, folders to go into or to make, sorting and completion, without buttons: the window around has
/// them. It asks nothing about a file that exists. Enter in a list opens what is marked; elsewhere it goes to
/// the window around, and so does Escape.
class SelectorDeArchivo : public QFileDialog {
public:
    /// The first filter is on.
    explicit SelectorDeArchivo(const QStringList& filtros);

    /// Told when another folder shows, once Qt is done with it.
    std::function<void()> alCambiarDeCarpeta;
    /// Told of a double click on a file, and of Enter in the name.
    std::function<void()> alAceptar;
    std::function<void()> alRechazar;

    [[nodiscard]] QLineEdit& nombre() const { return *nombre_; }
    /// Where the folders and files stand.
    [[nodiscard]] QWidget& lista() const { return *lista_; }
    /// An absolute path. The page of all drives counts as the root.
    [[nodiscard]] QString carpeta() const;
    void carpeta(const QString& ruta);

    void accept() override;
    void reject() override;
    void setVisible(bool visible) override;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* suceso) override;

private:
    QFileSystemModel* archivos_;
    QLineEdit* nombre_;
    QWidget* lista_;
};

} // namespace varo
