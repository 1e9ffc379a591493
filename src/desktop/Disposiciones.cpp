#include "desktop/Disposiciones.h"

#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/SelColumnas.h"
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "desktop/widgets/Desplazable.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/OpcionesPrograma.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <array>

namespace varo {

QWidget* Disponer(Formulario& ventana, Vinculos& vinculos) {
    if (auto* const seleccion = dynamic_cast<FrmSeleccion*>(&ventana)) {
        return DisponerSeleccion(*seleccion, vinculos);
    }
    if (auto* const hoja = dynamic_cast<Hojadedatos*>(&ventana)) {
        return DisponerHoja(*hoja, vinculos);
    }
    if (auto* const columnas = dynamic_cast<SelColumnas*>(&ventana)) {
        return DisponerColumnas(*columnas, vinculos);
    }
    if (auto* const opciones = dynamic_cast<OpcionesPrograma*>(&ventana)) {
        return DisponerOpciones(*opciones, vinculos);
    }
    if (auto* const formato = dynamic_cast<FrmFormato*>(&ventana)) {
        return DisponerFormato(*formato, vinculos);
    }
    if (auto* const mapa = dynamic_cast<FrmMapa*>(&ventana)) {
        return DisponerMapa(*mapa, vinculos);
    }
    if (auto* const mapa2 = dynamic_cast<FrmMapa2*>(&ventana)) {
        return DisponerMapa2(*mapa2, vinculos);
    }
    return DisponerCrearArchivo(dynamic_cast<FrmCrearArchivo&>(ventana), vinculos);
}

bool SePuedeAgrandar(const Formulario& ventana) {
    return dynamic_cast<const SelColumnas*>(&ventana) == nullptr;
}

QWidget* DisponerSeleccion(FrmSeleccion& ventana, Vinculos& vinculos) {
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    columna->addWidget(vinculos.etiqueta(ventana.Label1));
    auto* const hojas = vinculos.desplegable(ventana.CboHoja);
    hojas->setMinimumContentsLength(32);
    columna->addWidget(hojas);
    columna->addStretch();
    columna->addLayout(
        contenido->pie(vinculos.boton(ventana.CmdAceptar), vinculos.boton(ventana.CmdCancelar)));
    return contenido;
}

QWidget* DisponerHoja(Hojadedatos& ventana, Vinculos& vinculos) {
    auto* const contenido = new QWidget;
    auto* const columna = new QVBoxLayout{contenido};
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(vinculos.rejilla(ventana.MSFlexGrid1));
    return contenido;
}

namespace {

/// The crown buttons under the list; four radii stand as on a compass.
QLayout* BotonesDeCopa(SelColumnas& ventana, Vinculos& vinculos) {
    auto* const copa = new QGridLayout;
    const int primero = SelColumnas::primerPapelDeCopa;
    const int medidas = ventana.papelIndice() - primero;
    const auto poner = [&](int medida, int fila, int columna) {
        copa->addWidget(vinculos.boton(ventana.Command1(primero + medida)), fila, columna);
    };
    if (medidas == 4) {
        poner(0, 0, 1); // north
        poner(3, 1, 0); // west
        poner(1, 1, 2); // east
        poner(2, 2, 1); // south
    } else {
        for (int medida = 0; medida < medidas; ++medida) {
            poner(medida, 0, medida);
        }
    }
    return copa;
}

} // namespace

QWidget* DisponerColumnas(SelColumnas& ventana, Vinculos& vinculos) {
    auto* const contenido = new ContenidoDeDialogo;
    auto* const rejilla = new QGridLayout{contenido};
    rejilla->addWidget(vinculos.etiqueta(ventana.Label1), 0, 0, 1, 3);

    auto* const izquierda = new QVBoxLayout;
    for (const int papel :
         {ventana.papelIndice(), SelColumnas::papelX, SelColumnas::papelY, ventana.papelCodigo()}) {
        izquierda->addWidget(vinculos.boton(ventana.Command1(papel)));
    }
    izquierda->addStretch();
    rejilla->addLayout(izquierda, 1, 0);

    auto* const lista = vinculos.lista(ventana.List1);
    lista->setMinimumSize(300, 180);
    rejilla->addWidget(lista, 1, 1);
    rejilla->addLayout(BotonesDeCopa(ventana, vinculos), 2, 1);

    auto* const derecha = new QVBoxLayout;
    derecha->addWidget(vinculos.boton(ventana.CmdQuitar));
    derecha->addWidget(vinculos.boton(ventana.CmdQuitarTodo));
    derecha->addWidget(vinculos.boton(ventana.CmdDibujar));
    derecha->addWidget(vinculos.boton(ventana.CmdDAP));
    derecha->addStretch();
    rejilla->addLayout(derecha, 1, 2);
    rejilla->setColumnStretch(1, 1);
    return contenido;
}

namespace {

QComboBox* Eleccion(Vinculos& vinculos, Desplegable& control, int letras) {
    QComboBox* const combo = vinculos.desplegable(control);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(letras);
    return combo;
}

} // namespace

QWidget* DisponerFormato(FrmFormato& ventana, Vinculos& vinculos) {
    constexpr int letrasDeFuente = 18;
    constexpr int letrasDeColor = 8;
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    auto* const campos = new QGridLayout;
    const auto cabeceras = [&](int fila, const std::array<Etiqueta*, 5>& etiquetas) {
        int lugar = 0;
        for (Etiqueta* const etiqueta : etiquetas) {
            if (etiqueta != nullptr) {
                campos->addWidget(vinculos.etiqueta(*etiqueta), fila, lugar);
            }
            ++lugar;
        }
    };
    const auto renglon = [&](int fila, CajaTexto& texto, Desplegable& fuente, Desplegable& color,
                             Desplegable& fondo) {
        campos->addWidget(vinculos.caja(texto), fila, 1);
        campos->addWidget(Eleccion(vinculos, fuente, letrasDeFuente), fila, 2);
        campos->addWidget(Eleccion(vinculos, color, letrasDeColor), fila, 3);
        campos->addWidget(Eleccion(vinculos, fondo, letrasDeColor), fila, 4);
    };
    campos->addWidget(vinculos.etiqueta(ventana.Label1), 0, 0);
    cabeceras(1, {nullptr, &ventana.Label2, &ventana.Label3, &ventana.Label4, &ventana.Label8});
    renglon(2, ventana.TxtTitName, ventana.CboTitFont, ventana.CboTitColor, ventana.CboTitBackColor);
    campos->addWidget(vinculos.etiqueta(ventana.LbCod), 3, 0);
    cabeceras(4, {&ventana.Label10, &ventana.Label7, &ventana.Label6, &ventana.Label5, &ventana.Label9});
    for (const auto& [codigo, etiqueta] : ventana.LbCodigo.miembros()) {
        campos->addWidget(vinculos.etiqueta(*etiqueta), 5 + codigo, 0);
        renglon(5 + codigo, ventana.TxtCodigo(codigo), ventana.CboCodFont(codigo),
                ventana.CboCodColor(codigo), ventana.CboCodBackColor(codigo));
    }
    campos->setColumnMinimumWidth(1, 220);
    campos->setColumnStretch(1, 1);
    auto* const filas = new QWidget;
    auto* const hoja = new QVBoxLayout{filas};
    hoja->setContentsMargins(0, 0, 0, 0);
    hoja->addLayout(campos);
    hoja->addStretch();
    columna->addWidget(new Desplazable{filas});
    columna->addLayout(
        contenido->pie(vinculos.boton(ventana.CmdAceptar), vinculos.boton(ventana.CmdCancelar)));
    return contenido;
}

QWidget* DisponerMapa(FrmMapa& ventana, Vinculos& vinculos) {
    auto* const contenido = new QWidget;
    auto* const columna = new QVBoxLayout{contenido};
    columna->setContentsMargins(0, 0, 0, 0);
    auto* const barra = new QMenuBar;
    barra->setNativeMenuBar(false); // the one of the frame may stand at the top of the screen
    vinculos.menus(*barra, ventana);
    columna->setMenuBar(barra);
    columna->addStretch();
    contenido->setMinimumSize(480, 320);
    return contenido;
}

QWidget* DisponerMapa2(FrmMapa2& /*ventana*/, Vinculos& /*vinculos*/) {
    return new QWidget;
}

QWidget* DisponerCrearArchivo(FrmCrearArchivo& ventana, Vinculos& vinculos) {
    auto* const contenido = new ContenidoDeDialogo;
    auto* const rejilla = new QGridLayout{contenido};
    auto* const nombre = vinculos.caja(ventana.TxtLista);
    auto* const archivos = vinculos.lista(ventana.FilLista);
    auto* const carpetas = vinculos.lista(ventana.DirLista);
    auto* const unidades = vinculos.lista(ventana.DrvLista);
    auto* const carpeta = new QLabel;
    carpeta->setTextFormat(Qt::PlainText);
    carpeta->setTextInteractionFlags(Qt::TextSelectableByMouse);
    carpeta->setWordWrap(true);
    vinculos.seguir(ventana.FilLista,
                    [carpeta, &ventana] { carpeta->setText(AQt(ventana.FilLista.Path())); });

    const auto rotulo = [&](const QString& texto, QWidget* campo, int fila, int lugar) {
        auto* const etiqueta = new QLabel{texto};
        etiqueta->setBuddy(campo);
        rejilla->addWidget(etiqueta, fila, lugar);
        rejilla->addWidget(campo, fila + 1, lugar);
    };
    rotulo(QStringLiteral("&Nombre del archivo:"), nombre, 0, 0);
    rotulo(QStringLiteral("A&rchivos:"), archivos, 2, 0);
    rotulo(QStringLiteral("&Unidades:"), unidades, 0, 1);
    rotulo(QStringLiteral("&Carpetas:"), carpetas, 2, 1);
    unidades->setFixedHeight(nombre->sizeHint().height());
    rejilla->addWidget(carpeta, 4, 0, 1, 2);
    rejilla->setRowStretch(3, 1);
    contenido->setMinimumSize(520, 380);
    nombre->setFocus();
    rejilla->addLayout(
        contenido->pie(vinculos.boton(ventana.CmdAceptar), vinculos.boton(ventana.CmdCancelar)), 5, 0, 1, 2);
    return contenido;
}

} // namespace varo
