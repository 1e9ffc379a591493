#include "desktop/widgets/ModeloDeRejilla.h"

#include "desktop/Texto.h"
#include "desktop/widgets/Pista.h"

namespace varo {

void ModeloDeRejilla::ponerAlDia() {
    if (filas_ != rejilla_.Rows() - 1 || columnas_ != rejilla_.Cols()) {
        beginResetModel();
        filas_ = rejilla_.Rows() - 1;
        columnas_ = rejilla_.Cols();
        endResetModel();
    } else if (filas_ > 0) {
        emit dataChanged(index(0, 0), index(filas_ - 1, columnas_ - 1));
        emit headerDataChanged(Qt::Horizontal, 0, columnas_ - 1);
    }
}

int ModeloDeRejilla::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : filas_;
}

int ModeloDeRejilla::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : columnas_;
}

QVariant ModeloDeRejilla::data(const QModelIndex& celda, int papel) const {
    // The grid may have shrunk since ponerAlDia announced its size.
    if (papel != Qt::DisplayRole || !celda.isValid() || celda.row() + 1 >= rejilla_.Rows() ||
        celda.column() >= rejilla_.Cols()) {
        return {};
    }
    return AQt(rejilla_.TextMatrix(celda.row() + 1, celda.column()));
}

QVariant ModeloDeRejilla::headerData(int seccion, Qt::Orientation sentido, int papel) const {
    const bool conTexto = papel == Qt::DisplayRole || papel == Qt::ToolTipRole;
    if (!conTexto || sentido != Qt::Horizontal || seccion < 0 || seccion >= rejilla_.Cols()) {
        return {};
    }
    const QString cabecera = AQt(rejilla_.TextMatrix(0, seccion));
    return papel == Qt::ToolTipRole ? TextoDePista(cabecera) : cabecera;
}

} // namespace varo
