// Where labels stand so that real letters can be read: near their design, and never one over another.
#pragma once

#include <QRect>
#include <QSize>

#include <vector>

namespace varo {

struct EtiquetaPorRepartir {
    QRect diseno; ///< in pixels
    QSize texto;  ///< what its text takes, in pixels; none for an empty one
    int indice = -1;
    bool centrada = false; ///< in the middle of what is in sight
};

struct Reparto {
    std::vector<QRect> lugares; ///< of each label
    QSize total;                ///< what all of them take, with a margin
};

/// Rows are the labels of one height. Where a row has several labels it is a row of the table, and labels of
/// one left edge and one index are a column of it. A row or a column stands in its place by design or just
/// behind the one before, whichever is further; so columns stay straight over all rows, and each text is
/// whole. `anchoALaVista` is in pixels.
Reparto Repartir(const std::vector<EtiquetaPorRepartir>& etiquetas, int anchoALaVista);

} // namespace varo
