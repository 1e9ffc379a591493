#include "data/SelColumnas.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace varo {

namespace {

/// The crown buttons under the list; four radii stand as on a compass.
QLayout* CrearBotonesDeCopa(SelColumnas& ventana, Vinculos& vinculos) {
    auto* const copa = new QGridLayout;
    const DatosDeCopa datos = ventana.papeles().copa;
    const auto poner = [&](int medida, int fila, int columna) {
        copa->addWidget(vinculos.crearBoton(ventana.Command1(PapelDeCopa(medida))), fila, columna);
    };
    if (datos == DatosDeCopa::CuatroRadios) {
        poner(0, 0, 1); // north
        poner(3, 1, 0); // west
        poner(1, 1, 2); // east
        poner(2, 2, 1); // south
    } else {
        for (int medida = 0; medida < MedidasDeCopa(datos); ++medida) {
            poner(medida, 0, medida);
        }
    }
    return copa;
}

} // namespace

QWidget* DisponerColumnas(SelColumnas& ventana, Vinculos& vinculos) {
    constexpr QSize listaMinima{300, 90};
    auto* const contenido = new ContenidoDeDialogo;
    auto* const rejilla = new QGridLayout{contenido};
    rejilla->addWidget(vinculos.crearEtiqueta(ventana.Label1), 0, 0, 1, 3);

    auto* const izquierda = new QVBoxLayout;
    const DatosDeCopa datos = ventana.papeles().copa;
    for (const int papel : {PapelIndice(datos), papelX, papelY, PapelCodigo(datos)}) {
        izquierda->addWidget(vinculos.crearBoton(ventana.Command1(papel)));
    }
    izquierda->addStretch();
    rejilla->addLayout(izquierda, 1, 0);

    QListWidget* const lista = vinculos.crearLista(ventana.List1);
    lista->setMinimumSize(listaMinima);
    rejilla->addWidget(lista, 1, 1);
    rejilla->addLayout(CrearBotonesDeCopa(ventana, vinculos), 2, 1);

    auto* const derecha = new QVBoxLayout;
    for (Boton* const boton :
         {&ventana.CmdQuitar, &ventana.CmdQuitarTodo, &ventana.CmdDibujar, &ventana.CmdDAP}) {
        derecha->addWidget(vinculos.crearBoton(*boton));
    }
    derecha->addStretch();
    rejilla->addLayout(derecha, 1, 2);
    rejilla->setColumnStretch(1, 1);
    return contenido;
}

} // namespace varo
