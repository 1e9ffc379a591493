// The main window: the menu, the opening of a plot file and the end of the program.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "formularios/Servicios.h"

#include <string>

namespace varo {

class Programa;

/// The name of the program with its version, as the main window and the boxes about the program have it.
extern const char* const tituloDelPrograma;

class VAROMAIN : public Formulario {
public:
    explicit VAROMAIN(Programa& programa);

    Menu mnuArchivo{*this, "mnuArchivo", "&Archivo"};
    Menu mnuAbrir{*this, "mnuAbrir", "&Abrir", &mnuArchivo};
    Menu mnuCerrar{*this, "mnuCerrar", "&Cerrar", &mnuArchivo};
    Menu mnuSalir{*this, "mnuSalir", "&Salir", &mnuArchivo};
    Menu mnuMapa{*this, "mnuMapa", "&Mapa de copas"};
    Menu mnuOpciones{*this, "mnuOpciones", "&Opciones"};

    DialogoAbrir DlogoAbrir{"Abrir fichero de datos", {}, {}, {}, 0};

    void mnuAbrir_Click();
    void mnuCerrar_Click();
    void mnuSalir_Click();
    void mnuMapa_Click();
    void mnuOpciones_Click();

    /// Connects the data window to a plot file and lists its tables in FrmSeleccion. A fault of the data
    /// engine here ends the process. One that is cancelled leaves the connection as it was and names no file.
    void AbrirArchivoDeDatos(const std::string& ruta);

    bool Form_QueryUnload() override;

private:
    Programa& programa_;
};

} // namespace varo
