// The grid of a window as an item model of Qt.
#pragma once

#include "formularios/Rejilla.h"

#include <QAbstractTableModel>

#include <optional>

namespace varo {

/// A place of the grid that is pointed out: a cell, or the whole row or column where the other one is
/// missing.
struct LugarSenalado {
    std::optional<int> fila; ///< of the grid, from 1
    std::optional<int> columna;

    bool operator==(const LugarSenalado&) const = default;
};

/// Row 0 of the grid is the header, the others are the rows of the model. A cell is read each time it shows.
class ModeloDeRejilla : public QAbstractTableModel {
public:
    explicit ModeloDeRejilla(const Rejilla& rejilla, QObject* padre = nullptr)
        : QAbstractTableModel{padre}, rejilla_{rejilla} {}

    /// Tells the views that the shape, the order or the texts of the grid may have changed.
    void ponerAlDia();

    /// Gives the place a background of its own, its row a faint one.
    void senalar(const LugarSenalado& lugar);
    [[nodiscard]] const LugarSenalado& senalado() const { return senalado_; }
    /// Whether it is the one cell that is pointed out.
    [[nodiscard]] bool esLaSenalada(const QModelIndex& celda) const;

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& celda, int papel) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation sentido, int papel) const override;

private:
    [[nodiscard]] QVariant fondo(const QModelIndex& celda) const;

    const Rejilla& rejilla_;
    LugarSenalado senalado_;
    int filas_ = 0;
    int columnas_ = 0;
};

} // namespace varo
