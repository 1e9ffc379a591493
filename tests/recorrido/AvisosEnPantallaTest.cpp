// A journey through the findings about a spoilt plot: the count in the status bar, the window, the grid.
#include "apoyo/EscritorXls.h"
#include "recorrido/Pasos.h"

#include <QAbstractButton>
#include <QTableView>
#include <QTableWidget>
#include <QTextEdit>

#include <gtest/gtest.h>

namespace varo::prueba {

namespace {

using Fila = std::vector<Valor>;

/// Sixty trees, and below them what a spreadsheet adds up. One girth is a text with a point and one a word,
/// one tree has no code, and two stand in one place.
std::vector<Fila> ParcelaEstropeadaAMano() {
    using T = std::string;
    std::vector<Fila> filas(1);
    for (const char* nombre : {"Arbol", "X", "Y", "Especie", "CAP", "RN", "RE", "RS", "RO", "Nota"}) {
        filas[0].emplace_back(T{nombre});
    }
    constexpr int arboles = 60;
    for (int arbol = 1; arbol <= arboles; ++arbol) {
        const double x = (arbol * 37 % 61) * 0.53;
        const double y = (arbol * 53 % 67) * 0.47;
        const double radio = 11 + arbol % 13;
        filas.push_back({double(arbol), x, y, T{arbol % 3 == 0 ? "encina" : "pino"}, 30.0 + arbol * 7 % 50,
                         radio, radio + 1, radio - 1, radio + 2, T{"nota"}});
    }
    filas[41][4] = T{"12.5"};
    filas[45][4] = T{"doce"};
    filas[52][3] = Valor{};
    filas[30][1] = filas[12][1];
    filas[30][2] = filas[12][2];
    filas.emplace_back(
        Fila{T{"Total"}, Valor{}, Valor{}, Valor{}, 3270.0, Valor{}, Valor{}, Valor{}, Valor{}, Valor{}});
    return filas;
}

// Rows of the sheet.
constexpr int filaDelTexto = 42;
constexpr int filaSinCodigo = 53;
constexpr int filaDelTotal = 62;

QTableWidget* Tabla() {
    return qobject_cast<QTableWidget*>(ControlDe("Avisos", "TablaDeAvisos"));
}

/// The line of the list about a row of the sheet.
Manos::Sitio EnElAvisoDe(int filaDeLaHoja) {
    return [filaDeLaHoja](QWidget& widget) {
        auto& tabla = dynamic_cast<QTableWidget&>(widget);
        for (int linea = 0; linea < tabla.rowCount(); ++linea) {
            if (tabla.item(linea, 1)->text() == QString::number(filaDeLaHoja)) {
                tabla.scrollToItem(tabla.item(linea, 1));
                return tabla.viewport()->mapTo(&tabla, tabla.visualItemRect(tabla.item(linea, 1)).center());
            }
        }
        throw std::runtime_error{"no hay aviso de la fila " + std::to_string(filaDeLaHoja)};
    };
}

void EsperarSenalada(const Manos& manos, int fila) {
    manos.esperar("la fila " + std::to_string(fila) + " señalada", [fila] {
        const auto* const tabla = qobject_cast<QTableView*>(ControlDe("Hojadedatos", "MSFlexGrid1"));
        return tabla != nullptr && tabla->model()->index(fila - 2, 1).data(Qt::BackgroundRole).isValid();
    });
}

/// As `ElegirColumnas`, but for the drawing.
void DarPapeles(const Manos& manos) {
    manos.tecla("alt+m");
    manos.esperarVentana("SelCol4R");
    int papel = 0;
    for (const char* cabecera : {"X", "Y", "RN", "RE", "RS", "RO", "Arbol", "Especie"}) {
        manos.clic("Hojadedatos", "MSFlexGrid1", EnLaColumna(cabecera));
        manos.clic("SelCol4R", QStringLiteral("Command1(%1)").arg(papel++));
    }
    manos.clic("Hojadedatos", "MSFlexGrid1", EnLaColumna("CAP"));
    manos.clic("SelCol4R", "CmdDAP");
}

void MirarLosAvisos(const Manos& manos) {
    manos.esperar("los avisos en la barra de estado", [] {
        const auto* const boton =
            qobject_cast<QAbstractButton*>(ControlDe("VAROMAIN", QStringLiteral("EstadoAvisos")));
        return boton != nullptr && boton->isVisible() && boton->text().endsWith(QStringLiteral(" avisos"));
    });
    manos.foto("a1-barra");
    manos.clic("VAROMAIN", "EstadoAvisos");
    manos.esperarVentana("Avisos");
    manos.esperar("una lista con avisos", [] { return Tabla() != nullptr && Tabla()->rowCount() >= 3; });
    manos.foto("a2-avisos");
    manos.clic("Avisos", "TablaDeAvisos", EnElAvisoDe(filaDelTexto));
    EsperarSenalada(manos, filaDelTexto);
    manos.foto("a3-texto-con-punto");
    manos.clic("Avisos", "TablaDeAvisos", EnElAvisoDe(filaDelTotal));
    EsperarSenalada(manos, filaDelTotal);
    manos.foto("a4-total");
    manos.tecla("Up");
    manos.foto("a5-con-las-flechas");
    manos.tecla("Escape");
    manos.esperarQueSeVaya("Avisos");
}

/// Asks for a ratio of diameters, which the word among them ends.
void PedirUnIndice(const Manos& manos) {
    manos.esperarVentana("VAROMAIN");
    manos.tecla("alt+o");
    manos.esperarVentana("OpcionesPrograma");
    manos.clic("OpcionesPrograma", "SSTab1", EnLaFicha(1));
    manos.clic("OpcionesPrograma", "ChDmed", EnLaMarca);
    manos.esperar("ChDmed encendida", [] {
        return dynamic_cast<QAbstractButton&>(*ControlDe("OpcionesPrograma", "ChDmed")).isChecked();
    });
    manos.tecla("Return");
    manos.esperarQueSeVaya("OpcionesPrograma");
    manos.esperarVentana("VAROMAIN");
    manos.tecla("alt+y");
    manos.tecla("v");
    manos.esperarVentana("Avisos");
    manos.esperar("que el aviso cuente con el índice", [] {
        const auto* const frases = dynamic_cast<QTextEdit*>(ControlDe("Avisos", "FrasesDelAviso"));
        return frases->toPlainText().contains(QStringLiteral("las razones con la media"));
    });
    manos.foto("a6-fallo-desde-el-menu");
    manos.tecla("Escape");
    manos.esperarQueSeVaya("Avisos");
}

void MirarConElMapa(const Manos& manos) {
    manos.esperarVentana("VAROMAIN");
    manos.tecla("alt+m");
    manos.esperarVentana("SelCol4R");
    manos.clic("SelCol4R", "CmdDibujar");
    manos.esperarVentana("FrmFormato");
    manos.clic("FrmFormato", "CmdAceptar");
    manos.esperarVentana("FrmMapa");
    manos.foto("a7-mapa");
    manos.clic("VAROMAIN", "EstadoAvisos");
    manos.esperarVentana("Avisos");
    manos.clic("Avisos", "TablaDeAvisos", EnElAvisoDe(filaDelTotal));
    manos.foto("a8-fila-que-se-fue");
    manos.clic("Avisos", "TablaDeAvisos", EnElAvisoDe(filaSinCodigo));
    manos.foto("a9-celda-sobre-el-mapa");
    manos.tecla("Escape");
    manos.esperarQueSeVaya("Avisos");
}

} // namespace

TEST(AvisosEnPantalla, DeLaBarraALaCelda) {
    const CarpetaTemporal carpeta;
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = ParcelaEstropeadaAMano();
    EscribirArchivoXls(carpeta / "parcela.xls", {hoja});
    const Programado programado;
    ConLasManos([&](const Manos& manos) {
        AbrirArchivo(manos, carpeta / "parcela.xls");
        ElegirHoja(manos);
        DarPapeles(manos);
        MirarLosAvisos(manos);
        PedirUnIndice(manos);
        MirarConElMapa(manos);
    });
}

} // namespace varo::prueba
