#include "shell/VAROMAIN.h"

#include "basico/Avance.h"
#include "basico/Entero16.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/SelColumnas.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"

#include <filesystem>

namespace varo {

namespace {

constexpr int elArchivoDebeExistir = 4096;

/// The column dialog that serves the kind of crown data chosen in the options.
SelColumnas* DialogoDeColumnas(Programa& programa) {
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    if (opciones.Opt4R.Value) {
        return &programa.tocar<SelCol4R>();
    }
    if (opciones.Opt2D.Value) {
        return &programa.tocar<SelCol2D>();
    }
    if (opciones.OptRM.Value) {
        return &programa.tocar<SelColRM>();
    }
    return nullptr;
}

/// Hides the first visible column dialog and does not look at the others.
void OcultarDialogoDeColumnas(Programa& programa) {
    const std::initializer_list<SelColumnas*> dialogos{
        programa.cargada<SelCol4R>(), programa.cargada<SelCol2D>(), programa.cargada<SelColRM>()};
    for (SelColumnas* const dialogo : dialogos) {
        if (dialogo != nullptr && dialogo->Visible()) {
            dialogo->Hide();
            return;
        }
    }
}

} // namespace

const char* const tituloDelPrograma = "VARO " VARO_VERSION;

VAROMAIN::VAROMAIN(Programa& programa)
    : Formulario{programa, "VAROMAIN", TipoVentana::Marco, tituloDelPrograma}, programa_{programa} {
    Width = 15000;
    Height = 10851;
    mnuCerrar.Enabled = false;
    mnuMapa.Enabled = false;
    mnuOpciones.Enabled = false;
    mnuAbrir.Click = [this] { mnuAbrir_Click(); };
    mnuCerrar.Click = [this] { mnuCerrar_Click(); };
    mnuSalir.Click = [this] { mnuSalir_Click(); };
    mnuMapa.Click = [this] { mnuMapa_Click(); };
    mnuOpciones.Click = [this] { mnuOpciones_Click(); };
}

void VAROMAIN::mnuAbrir_Click() {
    MousePointer = relojDeArena;
    programa_.sesion.NombreArchivoDatos.clear();
    DlogoAbrir.FileName.clear();
    DlogoAbrir.DefaultExt = "xls";
    DlogoAbrir.Filter = "Hoja de cálculo (*.xls)|*.xls|Base de datos (*.mdb)|*.mdb|";
    DlogoAbrir.Flags = elArchivoDebeExistir;
    programa_.tocar<Hojadedatos>().Hide();
    programa_.servicios().elegirArchivo(DlogoAbrir);
    if (DlogoAbrir.FileName.empty()) {
        return; // Meant: the hourglass stays until a later opening succeeds.
    }
    AbrirArchivoDeDatos(DlogoAbrir.FileName);
    programa_.tocar<FrmSeleccion>().Show();
    MousePointer = punteroNormal;
}

void VAROMAIN::AbrirArchivoDeDatos(const std::string& ruta) {
    auto& datos = programa_.tocar<Hojadedatos>().Data1;
    const auto dejarloCerrado = [&, antes = datos] {
        datos = antes;
        DlogoAbrir.FileName.clear();
    };
    const auto leer = [&] {
        const Avance avance = programa_.servicios().avance();
        avance.etapa("Lectura de «" + std::filesystem::path{ruta}.filename().string() + "»");
        // Whatever the name says: the engine recognises the file by its content.
        datos.Connect = "Excel 8.0";
        datos.DatabaseName(ruta);
        datos.Refresh(avance);
    };
    try {
        AlCancelar(dejarloCerrado, leer);
        auto& lista = programa_.tocar<FrmSeleccion>().CboHoja;
        const auto& tablas = datos.Database().TableDefs();
        const Entero16 cuantas = tablas.Count();
        for (int i = 0; i < cuantas.valor(); ++i) {
            lista.AddItem(tablas(i).Name);
        }
    } catch (const ErrorEjecucion& error) {
        throw ErrorFatal{error};
    }
    programa_.tocar<FrmSeleccion>().CboHoja.Text = "(ninguna)";
}

void VAROMAIN::mnuCerrar_Click() {
    programa_.descargar<Hojadedatos>();
}

void VAROMAIN::mnuMapa_Click() {
    auto& hoja = programa_.tocar<Hojadedatos>();
    hoja.WindowState = 0;
    hoja.redimensionar(hoja.Width, 3300);
    hoja.Top = 100;
    hoja.Left = 1500;
    hoja.Show();
    if (SelColumnas* const dialogo = DialogoDeColumnas(programa_)) {
        dialogo->Top = 3500;
        dialogo->Left = 3000;
        dialogo->Show();
    }
    mnuMapa.Enabled = false;
}

void VAROMAIN::mnuOpciones_Click() {
    OcultarDialogoDeColumnas(programa_);
    programa_.tocar<OpcionesPrograma>().Show();
    mnuOpciones.Enabled = false;
    mnuMapa.Enabled = false;
}

void VAROMAIN::mnuSalir_Click() {
    programa_.descargar(*this);
}

bool VAROMAIN::Form_QueryUnload() {
    const int respuesta = programa_.servicios().mensaje("¿Realmente quieres salir del programa?", Caption(),
                                                        mensaje::siNo + mensaje::pregunta);
    return respuesta != mensaje::respondeNo;
}

} // namespace varo
