// The first steps of every journey at the screen, and the places where a person presses controls.
#pragma once

#include "apoyo/CarpetaTemporal.h"
#include "desktop/Aplicacion.h"
#include "desktop/Escritorio.h"
#include "desktop/comodidades/Comodidades.h"
#include "desktop/comodidades/Recientes.h"
#include "recorrido/Manos.h"

#include <filesystem>
#include <string>

namespace varo::prueba {

/// The folder of the example plot.
std::filesystem::path Ejemplos();

/// A cell of a column of the grid, and its header.
Manos::Sitio EnLaColumna(const QString& cabecera);
Manos::Sitio EnLaCabecera(const QString& cabecera);
/// The mark of a check or an option.
QPoint EnLaMarca(QWidget& widget);
Manos::Sitio EnLaFicha(int ficha);

/// Opens a plot file from the menu.
void AbrirArchivo(const Manos& manos, const std::filesystem::path& archivo);
/// Accepts "(ninguna)", answers the box about it, and then chooses the first sheet.
void ElegirHoja(const Manos& manos);

/// Gives the columns of the example plot, by their headers, their roles and presses "Dibujar".
void ElegirColumnas(const Manos& manos);

/// The visible parts of a window that cannot show their whole content.
QString LoQueNoCabe(QWidget& ventana);

/// The program, started as main() starts it.
struct Programado {
    Programado();

    CarpetaTemporal ajustes; ///< instead of the settings of the person who runs the test
    const bool apartado = qputenv("XDG_CONFIG_HOME", ajustes.ruta().c_str());
    int argc = 1;
    std::string nombre = "varo";
    char* argv[2] = {nombre.data(), nullptr};
    Aplicacion aplicacion{argc, argv};
    ServiciosQt servicios;
    Escritorio escritorio{servicios};
    Recientes recientes;
    Comodidades comodidades{escritorio, servicios, recientes};
    bool terminado = false;
};

} // namespace varo::prueba
