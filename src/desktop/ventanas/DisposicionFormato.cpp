#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "desktop/widgets/Desplazable.h"
#include "map/FrmFormato.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <vector>

namespace varo {

namespace {

constexpr int letrasDeFuente = 18;
constexpr int letrasDeColor = 8;
constexpr int anchoDeTexto = 220; ///< of the column of text boxes, in pixels

QComboBox* CrearEleccion(Desplegable& control, int letras, Vinculos& vinculos) {
    QComboBox* const combo = vinculos.crearDesplegable(control);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(letras);
    return combo;
}

/// The title of the map and its tree codes, one row each, under their headings.
QGridLayout* CrearCampos(FrmFormato& ventana, Vinculos& vinculos) {
    auto* const campos = new QGridLayout;
    const auto cabeceras = [&](int fila, int primeraColumna, const std::vector<Etiqueta*>& etiquetas) {
        int columna = primeraColumna;
        for (Etiqueta* const etiqueta : etiquetas) {
            campos->addWidget(vinculos.crearEtiqueta(*etiqueta), fila, columna++);
        }
    };
    const auto renglon = [&](int fila, CajaTexto& texto, Desplegable& fuente, Desplegable& color,
                             Desplegable& fondo) {
        campos->addWidget(vinculos.crearCaja(texto), fila, 1);
        campos->addWidget(CrearEleccion(fuente, letrasDeFuente, vinculos), fila, 2);
        campos->addWidget(CrearEleccion(color, letrasDeColor, vinculos), fila, 3);
        campos->addWidget(CrearEleccion(fondo, letrasDeColor, vinculos), fila, 4);
    };
    cabeceras(0, 0, {&ventana.Label1});
    cabeceras(1, 1, {&ventana.Label2, &ventana.Label3, &ventana.Label4, &ventana.Label8});
    renglon(2, ventana.TxtTitName, ventana.CboTitFont, ventana.CboTitColor, ventana.CboTitBackColor);
    cabeceras(3, 0, {&ventana.LbCod});
    cabeceras(4, 0, {&ventana.Label10, &ventana.Label7, &ventana.Label6, &ventana.Label5, &ventana.Label9});
    for (const auto& [codigo, etiqueta] : ventana.LbCodigo.miembros()) {
        const int fila = 5 + codigo;
        cabeceras(fila, 0, {etiqueta.get()});
        renglon(fila, ventana.TxtCodigo(codigo), ventana.CboCodFont(codigo), ventana.CboCodColor(codigo),
                ventana.CboCodBackColor(codigo));
    }
    campos->setColumnMinimumWidth(1, anchoDeTexto);
    campos->setColumnStretch(1, 1);
    return campos;
}

} // namespace

QWidget* DisponerFormato(FrmFormato& ventana, Vinculos& vinculos) {
    auto* const filas = new QWidget;
    auto* const hoja = new QVBoxLayout{filas};
    hoja->setContentsMargins(0, 0, 0, 0);
    hoja->addLayout(CrearCampos(ventana, vinculos));
    hoja->addStretch();
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    columna->addWidget(new Desplazable{filas});
    columna->addLayout(contenido->crearPie(vinculos.crearBoton(ventana.CmdAceptar),
                                           vinculos.crearBoton(ventana.CmdCancelar)));
    return contenido;
}

} // namespace varo
