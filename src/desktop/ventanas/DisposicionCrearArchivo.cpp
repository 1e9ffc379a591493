#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "indices/archivo/FrmCrearArchivo.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace varo {

namespace {

/// The path of the folder whose files are listed.
QLabel* CrearRutaDeCarpeta(ListaArchivos& archivos, Vinculos& vinculos) {
    auto* const ruta = new QLabel;
    ruta->setTextFormat(Qt::PlainText);
    ruta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    ruta->setWordWrap(true);
    vinculos.seguir(archivos, [ruta, &archivos] { ruta->setText(AQt(archivos.Path())); });
    return ruta;
}

} // namespace

QWidget* DisponerCrearArchivo(FrmCrearArchivo& ventana, Vinculos& vinculos) {
    constexpr QSize minimo{520, 380};
    auto* const contenido = new ContenidoDeDialogo;
    auto* const rejilla = new QGridLayout{contenido};
    QLineEdit* const nombre = vinculos.crearCaja(ventana.TxtLista);
    QListWidget* const unidades = vinculos.crearLista(ventana.DrvLista);
    const auto poner = [&](const QString& texto, QWidget* campo, int fila, int columna) {
        auto* const rotulo = new QLabel{texto};
        rotulo->setBuddy(campo);
        rejilla->addWidget(rotulo, fila, columna);
        rejilla->addWidget(campo, fila + 1, columna);
    };
    poner(QStringLiteral("&Nombre del archivo:"), nombre, 0, 0);
    poner(QStringLiteral("A&rchivos:"), vinculos.crearLista(ventana.FilLista), 2, 0);
    poner(QStringLiteral("&Unidades:"), unidades, 0, 1);
    poner(QStringLiteral("&Carpetas:"), vinculos.crearLista(ventana.DirLista), 2, 1);
    unidades->setFixedHeight(nombre->sizeHint().height());
    rejilla->addWidget(CrearRutaDeCarpeta(ventana.FilLista, vinculos), 4, 0, 1, 2);
    rejilla->setRowStretch(3, 1);
    rejilla->addLayout(contenido->crearPie(vinculos.crearBoton(ventana.CmdAceptar),
                                           vinculos.crearBoton(ventana.CmdCancelar)),
                       5, 0, 1, 2);
    contenido->setMinimumSize(minimo);
    nombre->setFocus();
    nombre->selectAll(); // typing replaces what is proposed
    return contenido;
}

} // namespace varo
