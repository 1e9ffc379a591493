// The grid of a window on the screen: header, rows and selected column.
#pragma once

#include "desktop/widgets/ModeloDeRejilla.h"

#include <QTableView>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace varo {

/// A click on a header or a cell selects the whole column, and so do the arrow keys. Ctrl+C copies the
/// selected column, right behind Ctrl+A all of them; a status tip tells what was copied. A column can be made
/// wider by hand, until the grid is filled anew; the model does not hear of it.
class VistaDeRejilla : public QTableView {
public:
    explicit VistaDeRejilla(const Rejilla& rejilla);

    /// Told when a person moves to another column.
    std::function<void(int)> alElegirColumna;

    /// Brings the cells, the widths and the selected column up to date.
    void mostrar();

    /// Scrolls to a place and points it out, until the grid changes or a person chooses a column. The chosen
    /// column stays, and so does the current cell.
    void senalar(const LugarSenalado& lugar);
    void quitarSenal();

protected:
    /// Whatever a person presses, one column is selected.
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& celda,
                                                                       const QEvent* suceso) const override;
    void keyPressEvent(QKeyEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void focusOutEvent(QFocusEvent* suceso) override;

private:
    /// What has to stay as it is for a place to stay pointed out.
    struct Apoyo {
        int filas = 0, columnas = 0, elegida = 0;
        std::string registro; ///< in column 0 of the row
        bool operator==(const Apoyo&) const = default;
    };
    [[nodiscard]] Apoyo apoyoDeLaSenal() const;
    void copiar();
    void decir(const QString& texto);
    void seguirLosAnchosAMano();
    [[nodiscard]] int anchoDe(int columna) const;
    void medirSiHaCambiado();
    void mostrarAnchos();
    void mostrarSeleccion();

    const Rejilla& rejilla_;
    ModeloDeRejilla* modelo_;
    std::vector<int> anchos_; ///< of the columns with the texts that they hold, in pixels
    int filasMedidas_ = 0;
    std::map<int, int> aMano_;   ///< the widths that a person gave, in pixels
    Apoyo apoyo_;                ///< of the place that is pointed out
    bool ponemosAnchos_ = false; ///< the widths that change now are ours
    bool todoElegido_ = false;   ///< Ctrl+A was the last key
};

} // namespace varo
