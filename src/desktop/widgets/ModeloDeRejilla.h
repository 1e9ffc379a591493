// The grid of a window as an item model of the toolkit.
#pragma once

#include "formularios/Rejilla.h"

#include <QAbstractTableModel>

namespace varo {

/// Row 0 of the grid is the header; the others are the rows of the model. The cells are read when they are
/// shown.
class ModeloDeRejilla : public QAbstractTableModel {
public:
    explicit ModeloDeRejilla(const Rejilla& rejilla, QObject* padre = nullptr)
        : QAbstractTableModel{padre}, rejilla_{rejilla} {}

    /// The shape, the order or the texts of the grid may be others.
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
