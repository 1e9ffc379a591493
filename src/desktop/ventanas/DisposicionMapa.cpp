#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "map/FrmMapa.h"

#include <QMenuBar>
#include <QVBoxLayout>

namespace varo {

QWidget* DisponerMapa(FrmMapa& ventana, Vinculos& vinculos) {
    constexpr QSize minimo{480, 320};
    auto* const contenido = new QWidget;
    auto* const columna = new QVBoxLayout{contenido};
    columna->setContentsMargins(0, 0, 0, 0);
    auto* const barra = new QMenuBar;
    barra->setNativeMenuBar(false); // a system-wide bar has room for the menus of the frame alone
    vinculos.crearMenus(*barra, ventana);
    columna->setMenuBar(barra);
    columna->addStretch();
    contenido->setMinimumSize(minimo);
    return contenido;
}

QWidget* DisponerMapa2(FrmMapa2& /*ventana*/, Vinculos& /*vinculos*/) {
    return new QWidget;
}

} // namespace varo
