#include "data/Hojadedatos.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"

#include <QTableView>
#include <QVBoxLayout>

namespace varo {

QWidget* DisponerHoja(Hojadedatos& ventana, Vinculos& vinculos) {
    auto* const contenido = new QWidget;
    auto* const columna = new QVBoxLayout{contenido};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(vinculos.crearRejilla(ventana.MSFlexGrid1));
    return contenido;
}

} // namespace varo
