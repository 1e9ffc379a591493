// The grid of a window on the screen: header, rows and selected column.
#pragma once

#include "desktop/widgets/ModeloDeRejilla.h"

#include <QTableView>

#include <functional>
#include <vector>

namespace varo {

/// A click on a header or a cell selects the whole column, and so do the arrow keys.
class VistaDeRejilla : public QTableView {
public:
    explicit VistaDeRejilla(const Rejilla& rejilla);

    /// Told when a person moves to another column.
    std::function<void(int)> alElegirColumna;

    /// Brings the cells, the widths and the selected column up to date.
    void mostrar();

protected:
    /// Whatever a person presses, one column is selected.
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& celda,
                                                                       const QEvent* suceso) const override;

private:
    void medirSiHaCambiado();
    void mostrarAnchos();
    void mostrarSeleccion();

    const Rejilla& rejilla_;
    ModeloDeRejilla* modelo_;
    std::vector<int> anchos_; ///< of the columns with the texts that they hold, in pixels
    int filasMedidas_ = 0;
};

} // namespace varo
