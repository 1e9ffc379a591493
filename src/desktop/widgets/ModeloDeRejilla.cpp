#include "desktop/widgets/ModeloDeRejilla.h"

#include "desktop/Texto.h"
#include "desktop/widgets/Pista.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

namespace varo {

namespace {

/// The background of cells with some of the colour of a selection: the text stays readable on it.
QColor FondoTenido(double parte) {
    const QPalette paleta = QGuiApplication::palette();
    const QColor base = paleta.color(QPalette::Base);
    const QColor tinte = paleta.color(QPalette::Highlight);
    const auto mezcla = [parte](int desde, int hasta) {
        return static_cast<int>(desde + (hasta - desde) * parte);
    };
    return {mezcla(base.red(), tinte.red()), mezcla(base.green(), tinte.green()),
            mezcla(base.blue(), tinte.blue())};
}

} // namespace

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
    if (papel == Qt::BackgroundRole) {
        return fondo(celda);
    }
    // The grid may have shrunk since ponerAlDia announced its size.
    if (papel != Qt::DisplayRole || !celda.isValid() || celda.row() + 1 >= rejilla_.Rows() ||
        celda.column() >= rejilla_.Cols()) {
        return {};
    }
    return AQt(rejilla_.TextMatrix(celda.row() + 1, celda.column()));
}

void ModeloDeRejilla::senalar(const LugarSenalado& lugar) {
    if (lugar == senalado_) {
        return;
    }
    senalado_ = lugar;
    if (filas_ > 0) {
        emit dataChanged(index(0, 0), index(filas_ - 1, columnas_ - 1), {Qt::BackgroundRole});
    }
}

bool ModeloDeRejilla::esLaSenalada(const QModelIndex& celda) const {
    return senalado_.fila == celda.row() + 1 && senalado_.columna == celda.column();
}

QVariant ModeloDeRejilla::fondo(const QModelIndex& celda) const {
    constexpr double fuerte = 0.6;
    constexpr double tenue = 0.3;
    if (esLaSenalada(celda)) {
        return FondoTenido(fuerte);
    }
    const bool suya =
        senalado_.fila ? senalado_.fila == celda.row() + 1 : senalado_.columna == celda.column();
    return suya ? FondoTenido(tenue) : QVariant{};
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
