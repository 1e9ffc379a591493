#include "desktop/Disposiciones.h"
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
    QTabWidget* const fichas = vinculos.fichas(
        ventana.SSTab1,
        {new Desplazable{PaginaDeUnidades(piezas)}, new Desplazable{PaginaDeIndependientes(piezas)},
         new Desplazable{PaginaDeISC(piezas)}, new Desplazable{PaginaDeAOI(piezas)},
         new Desplazable{PaginaDeDP(piezas)}, new Desplazable{PaginaDeDR(piezas)},
         new Desplazable{PaginaDeAPA(piezas)}});
    PonerFichasAlLado(*fichas);
    columna->addWidget(fichas);

    columna->addLayout(
        contenido->pie(vinculos.boton(ventana.CmdAceptar), vinculos.boton(ventana.CmdCancelar)));
    return contenido;
}

} // namespace varo
