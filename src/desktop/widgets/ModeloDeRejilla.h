// The grid of a window as an item model of Qt.
#pragma once

#include "formularios/Rejilla.h"

#include <QAbstractTableModel>

namespace varo {

/// Row 0 of the grid is the header, the others are the rows of the model. A cell is read each time it shows.
class ModeloDeRejilla : public QAbstractTableModel {
public:
    explicit ModeloDeRejilla(const Rejilla& rejilla, QObject* padre = nullptr)
        : QAbstractTableModel{padre}, rejilla_{rejilla} {}

    /// Tells the views that the shape, the order or the texts of the grid may have changed.
    void ponerAlDia();

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& celda, int papel) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation sentido, int papel) const override;

private:
    const Rejilla& rejilla_;
    int filas_ = 0;
    int columnas_ = 0;
};

} // namespace varo
