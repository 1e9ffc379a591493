// The crown map on the screen: its labels can be dragged, its trees tell what they are.
#pragma once

#include "desktop/widgets/VistaDeLienzo.h"
#include "formularios/Arrastre.h"
#include "formularios/Usuario.h"
#include "map/FrmMapa.h"

#include <QString>

#include <optional>

namespace varo {

/// The labels are painted, and have no widgets: a press on one begins to drag it, a second press in time is
/// its double click. Resting on a tree shows its number, code, size and radii as they were when the map was
/// drawn.
class VistaDeMapa : public VistaDeLienzo {
public:
    VistaDeMapa(FrmMapa& mapa, Usuario& usuario);

    /// The map is about to go.
    void soltar();
    /// Only before soltar().
    [[nodiscard]] FrmMapa& mapa() const { return *mapa_; }

    /// The label under a point of the view, the last one drawn where several are; null when there is none.
    /// One that is not painted because too many are in sight is not there.
    [[nodiscard]] Etiqueta* etiquetaEn(QPointF punto) const;
    /// The tree under a point: of those whose crown covers it, or whose place it is, the nearest one.
    [[nodiscard]] const ArbolDelMapa* arbolEn(QPointF punto) const;

protected:
    bool event(QEvent* suceso) override;
    void mousePressEvent(QMouseEvent* suceso) override;
    void mouseMoveEvent(QMouseEvent* suceso) override;
    void mouseReleaseEvent(QMouseEvent* suceso) override;
    void mouseDoubleClickEvent(QMouseEvent* suceso) override;
    void hideEvent(QHideEvent* suceso) override;

private:
    void terminarArrastre(QPointF punto);

    FrmMapa* mapa_;
    Usuario& usuario_;
    Etiqueta* arrastrada_ = nullptr;
    std::optional<Arrastre> arrastre_;
};

/// What is told of a tree, one thing a line.
QString DescripcionDe(const ArbolDelMapa& arbol);

} // namespace varo
