// A person before the real windows of the program: the mouse and the keyboard, and the steps of a session.
#pragma once

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Jornada.h"
#include "desktop/Contestador.h"
#include "desktop/Escritorio.h"
#include "desktop/ServiciosQt.h"
#include "desktop/comodidades/Comodidades.h"
#include "desktop/comodidades/Recientes.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QPoint>
#include <QTableView>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace varo::prueba {

/// Lets Qt do all that is waiting, deferred deletions too.
void Reposar();

/// Brings the window of the widget to the front, as a window manager does, and presses the widget: a check or
/// an option on its mark, anything else in its middle.
void Clic(QWidget& widget);
void Clic(QWidget& widget, QPoint punto);

/// Clicks a field and replaces its text by typing.
void Escribir(QWidget& campo, const QString& texto);

/// The stages of a session.
enum class Etapa { Inicio, Seleccion, Hoja, Opciones, Columnas, Formato, Mapa, CrearArchivo };

/// The program on its desktop. Windows and controls go by the names of their models. A missing one throws
/// std::runtime_error.
struct Puesto {
    Puesto();

    Filas filas = CuadradoConCentro(); ///< of the sheet that `abrirArchivo` opens
    CarpetaTemporal carpeta;
    Contestador contestador;
    ServiciosQt servicios;
    Escritorio escritorio{servicios};
    Programa& programa = escritorio.programa();
    Recientes recientes{QString::fromStdString(carpeta.archivo("recientes.ini"))};
    Comodidades comodidades{escritorio, servicios, recientes};
    int terminaciones = 0; ///< how often the desktop has told that the program is over

    [[nodiscard]] Formulario* modelo(const std::string& ventana) const; ///< null while it is not loaded
    [[nodiscard]] bool alaVista(const std::string& ventana) const;
    [[nodiscard]] std::vector<std::string> ventanasALaVista() const;
    [[nodiscard]] QWidget& ventana(const std::string& ventana) const;
    [[nodiscard]] QAction& menu(const std::string& nombre) const;
    /// The menus of the main window that a person can choose: "mnuAbrir mnuOpciones".
    [[nodiscard]] std::string menusHabilitados() const;

    template <class W = QWidget>
    [[nodiscard]] W& widget(const std::string& ventana, const std::string& control) const {
        auto* const hallado = this->ventana(ventana).findChild<W*>(QString::fromStdString(control));
        if (hallado == nullptr) {
            throw std::runtime_error{"no hay " + ventana + "." + control};
        }
        return *hallado;
    }

    /// Presses a control with the mouse.
    void clic(const std::string& ventana, const std::string& control) const {
        Clic(widget(ventana, control));
    }
    /// Chooses a menu entry with the mouse; opens its menu first.
    void clicMenu(const std::string& ventana, const std::string& menu) const;
    void clicFicha(int ficha) const;
    /// Clicks on the title of a window.
    void activar(const std::string& ventana) const;
    /// Presses the close box of a window.
    void cerrar(const std::string& ventana) const;

    /// Opens the plot up to the choice of its sheet, "Parcela1$".
    void abrirArchivo();
    void aceptarHoja() const;
    [[nodiscard]] QTableView& rejilla() const { return widget<QTableView>("Hojadedatos", "MSFlexGrid1"); }
    /// Clicks on a cell of a column of the grid.
    void clicColumna(int columna) const;
    /// Gives the columns their roles in the dialog for four radii.
    void darPapeles() const;
    /// Goes from the column dialog for four radii to the format of the map.
    void elegirColumnas() const;
    /// Goes from the start of a session to that stage.
    void llegarA(Etapa etapa);
};

class Pantalla : public testing::Test, protected Puesto {};

} // namespace varo::prueba
