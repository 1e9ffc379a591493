#include "data/FrmSeleccion.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace varo {

QWidget* DisponerSeleccion(FrmSeleccion& ventana, Vinculos& vinculos) {
    constexpr int letrasDeHoja = 32;
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    columna->addWidget(vinculos.crearEtiqueta(ventana.Label1));
    QComboBox* const hojas = vinculos.crearDesplegable(ventana.CboHoja);
    hojas->setMinimumContentsLength(letrasDeHoja);
    columna->addWidget(hojas);
    columna->addStretch();
    columna->addLayout(contenido->crearPie(vinculos.crearBoton(ventana.CmdAceptar),
                                           vinculos.crearBoton(ventana.CmdCancelar)));
    return contenido;
}

} // namespace varo
