#include "desktop/ventanas/Disposiciones.h"
#include "desktop/ventanas/PaginasDeOpciones.h"
#include "desktop/ventanas/PiezasDeOpciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "desktop/widgets/Desplazable.h"
#include "desktop/widgets/FichasLaterales.h"

#include <QPushButton>
#include <QTabWidget>

namespace varo {

QWidget* DisponerOpciones(OpcionesPrograma& ventana, Vinculos& vinculos) {
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    const PiezasDeOpciones piezas{ventana, vinculos};
    QTabWidget* const fichas = vinculos.crearFichas(
        ventana.SSTab1,
        {new Desplazable{CrearPaginaDeUnidades(piezas)}, new Desplazable{CrearPaginaDeIndependientes(piezas)},
         new Desplazable{CrearPaginaDeISC(piezas)}, new Desplazable{CrearPaginaDeAOI(piezas)},
         new Desplazable{CrearPaginaDeDP(piezas)}, new Desplazable{CrearPaginaDeDR(piezas)},
         new Desplazable{CrearPaginaDeAPA(piezas)}});
    PonerFichasAlLado(*fichas);
    columna->addWidget(fichas);

    columna->addLayout(contenido->crearPie(vinculos.crearBoton(ventana.CmdAceptar),
                                           vinculos.crearBoton(ventana.CmdCancelar)));
    return contenido;
}

} // namespace varo
