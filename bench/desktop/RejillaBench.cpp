// What a large sheet costs at the desktop: the width of each cell as it loads, and each picture of the grid.
#include "desktop/widgets/MedidaDeTextos.h"
#include "desktop/widgets/VistaDeRejilla.h"
#include "formularios/ServiciosPreparados.h"
#include "formularios/Ventanas.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QPixmap>
#include <QScrollBar>

#include <memory>
#include <string>

namespace {

constexpr int filas = 32'766;
constexpr int columnas = 100;

std::string Celda(int fila, int columna) {
    return std::to_string((fila * 7919 + columna * 104'729) % 10'000) + "," + std::to_string(fila % 100);
}

/// Makes the application object of widgets, which lives as long as the process.
void ExigirAplicacion() {
    static int argc = 1;
    static std::string nombre = "medida_desktop";
    static char* argv[] = {nombre.data(), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QApplication aplicacion{argc, argv};
}

struct Hoja {
    varo::ServiciosPreparados servicios;
    varo::Ventanas ventanas{servicios};
    varo::Formulario ventana{ventanas, "Hojadedatos", varo::TipoVentana::Hija, "Hoja"};
    varo::Rejilla rejilla{ventana, "MSFlexGrid1"};

    Hoja() {
        rejilla.Rows(filas + 1);
        rejilla.Cols(columnas);
        for (int fila = 0; fila <= filas; ++fila) {
            for (int columna = 0; columna < columnas; ++columna) {
                rejilla.TextMatrix(fila, columna, Celda(fila, columna));
            }
        }
    }
};

/// The widths of all columns, as the sheet comes to view.
void MedirLaHoja(benchmark::State& estado) {
    ExigirAplicacion();
    const Hoja hoja;
    const QFontMetricsF letra{QApplication::font()};
    for (auto _ : estado) {
        benchmark::DoNotOptimize(varo::MedirColumnas(hoja.rejilla, letra));
    }
}
BENCHMARK(MedirLaHoja)->Unit(benchmark::kMillisecond);

/// One turn of the wheel: the grid moves on and is painted.
void DesplazarYPintar(benchmark::State& estado) {
    ExigirAplicacion();
    const Hoja hoja;
    varo::VistaDeRejilla vista{hoja.rejilla};
    vista.resize(1000, 700);
    vista.mostrar();
    vista.show();
    QPixmap imagen{vista.size()};
    int lugar = 0;
    for (auto _ : estado) {
        lugar = (lugar + 3) % (filas - 100);
        vista.verticalScrollBar()->setValue(lugar);
        vista.render(&imagen);
    }
}
BENCHMARK(DesplazarYPintar)->Unit(benchmark::kMillisecond);

/// A click on a column: the selection moves and the grid shows anew.
void ElegirColumna(benchmark::State& estado) {
    ExigirAplicacion();
    Hoja hoja;
    varo::VistaDeRejilla vista{hoja.rejilla};
    vista.resize(1000, 700);
    vista.alElegirColumna = [&](int columna) { hoja.rejilla.ColSel = columna; };
    hoja.rejilla.observar([&] { vista.mostrar(); });
    vista.mostrar();
    vista.show();
    int columna = 0;
    for (auto _ : estado) {
        columna = (columna + 1) % columnas;
        vista.selectColumn(columna);
    }
}
BENCHMARK(ElegirColumna)->Unit(benchmark::kMicrosecond);

} // namespace
