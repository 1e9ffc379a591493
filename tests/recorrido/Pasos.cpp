#include "recorrido/Pasos.h"

#include "apoyo/Lugares.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QPalette>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>

#include <stdexcept>

namespace varo::prueba {

std::filesystem::path Ejemplos() {
    return Proyecto() / "ejemplos";
}

Programado::Programado() {
    if (qEnvironmentVariableIsSet("VARO_OSCURO")) {
        QPalette oscura{QColor{50, 50, 50}, QColor{45, 45, 45}};
        oscura.setColor(QPalette::Highlight, QColor{70, 130, 200});
        QApplication::setPalette(oscura);
    }
    escritorio.alTerminar = [this] { terminado = true; };
}

Manos::Sitio EnLaColumna(const QString& cabecera) {
    return [cabecera](QWidget& widget) {
        auto& tabla = dynamic_cast<QTableView&>(widget);
        for (int columna = 0; columna < tabla.model()->columnCount(); ++columna) {
            if (tabla.model()->headerData(columna, Qt::Horizontal).toString() == cabecera) {
                tabla.scrollTo(tabla.model()->index(0, columna));
                return tabla.viewport()->mapTo(&tabla,
                                               tabla.visualRect(tabla.model()->index(1, columna)).center());
            }
        }
        throw std::runtime_error{"no hay columna " + cabecera.toStdString()};
    };
}

Manos::Sitio EnLaCabecera(const QString& cabecera) {
    return [cabecera](QWidget& widget) {
        auto& tabla = dynamic_cast<QTableView&>(widget);
        const QPoint celda = EnLaColumna(cabecera)(widget);
        return QPoint{celda.x(), tabla.horizontalHeader()->geometry().center().y()};
    };
}

QPoint EnLaMarca(QWidget& widget) {
    return {8, widget.height() / 2};
}

Manos::Sitio EnLaFicha(int ficha) {
    return [ficha](QWidget& widget) {
        auto* const barra = widget.findChild<QTabBar*>();
        return barra->mapTo(&widget, barra->tabRect(ficha).center());
    };
}

QString LoQueNoCabe(QWidget& ventana) {
    QStringList partes;
    for (const QScrollArea* const zona : ventana.findChildren<QScrollArea*>()) {
        const bool cabe =
            !zona->horizontalScrollBar()->isVisible() && !zona->verticalScrollBar()->isVisible();
        if (zona->isVisible() && !cabe) {
            partes << zona->widget()->metaObject()->className();
        }
    }
    return partes.join(' ');
}

void AbrirArchivo(const Manos& manos, const std::filesystem::path& archivo) {
    manos.esperarVentana("VAROMAIN");
    manos.foto("01-inicio");
    manos.tecla("alt+a");
    manos.tecla("a");
    manos.esperarVentana("DlogoAbrir");
    manos.foto("02-abrir");
    manos.escribir("DlogoAbrir", "fileNameEdit", archivo.string());
    manos.tecla("Return");
}

void ElegirHoja(const Manos& manos) {
    manos.esperarVentana("FrmSeleccion");
    manos.foto("03-seleccion");
    manos.clic("FrmSeleccion", "CmdAceptar");
    manos.esperarVentana("CajaDeMensaje");
    manos.foto("04-hoja-no-encontrada");
    manos.tecla("Return");
    manos.esperarVentana("FrmSeleccion");
    manos.clic("FrmSeleccion", "CboHoja", [](QWidget& combo) { return QPoint{combo.width() - 10, 10}; });
    const auto esperarLista = [&](bool abierta) {
        manos.esperar("que la lista de hojas se abra o se cierre", [&] {
            return dynamic_cast<QComboBox&>(*ControlDe("FrmSeleccion", "CboHoja")).view()->isVisible() ==
                   abierta;
        });
    };
    esperarLista(true);
    manos.tecla("Down");
    manos.tecla("Return");
    esperarLista(false);
    manos.tecla("Return");
    manos.esperarVentana("Hojadedatos");
    manos.foto("05-hoja");
}

void ElegirColumnas(const Manos& manos) {
    manos.tecla("alt+m");
    manos.esperarVentana("SelCol4R");
    manos.foto("08-columnas");
    const auto asignar = [&](const Manos::Sitio& sitio, const QString& boton) {
        manos.clic("Hojadedatos", "MSFlexGrid1", sitio);
        manos.clic("SelCol4R", boton);
    };
    asignar(EnLaColumna("X"), "Command1(0)");
    asignar(EnLaCabecera("Y"), "Command1(1)");
    asignar(EnLaColumna("RN"), "Command1(2)");
    asignar(EnLaCabecera("RE"), "Command1(3)");
    asignar(EnLaColumna("RS"), "Command1(4)");
    asignar(EnLaColumna("RO"), "Command1(5)");
    asignar(EnLaColumna("Arbol"), "Command1(6)");
    asignar(EnLaColumna("Especie"), "Command1(7)");
    asignar(EnLaColumna("CAP"), "CmdDAP");
    manos.foto("09-columnas-elegidas");
    manos.clic("SelCol4R", "CmdDibujar");
}

} // namespace varo::prueba
