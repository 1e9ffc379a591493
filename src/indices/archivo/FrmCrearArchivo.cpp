#include "indices/archivo/FrmCrearArchivo.h"

#include "basico/Saltando.h"
#include "indices/archivo/ArchivoDeTexto.h"
#include "indices/archivo/TextoResultados.h"
#include "shell/Programa.h"

#include <filesystem>
#include <system_error>

namespace varo {

namespace {

constexpr char separador = static_cast<char>(std::filesystem::path::preferred_separator);
constexpr int rutaDeRedNoValida = 64;

} // namespace

FrmCrearArchivo::FrmCrearArchivo(Programa& programa)
    : Formulario{programa, "FrmCrearArchivo", TipoVentana::Libre, "Crear archivo"}, programa_{programa} {
    FilLista.Click = [this] { FilLista_Click(); };
    DirLista.Change = [this] { DirLista_Change(); };
    DrvLista.Change = [this] { DrvLista_Change(); };
    CmdAceptar.Click = [this] { CmdAceptar_Click(); };
    CmdCancelar.Click = [this] { CmdCancelar_Click(); };
}

void FrmCrearArchivo::Form_Load() {
    TxtLista.Text = "*.txt";
}

void FrmCrearArchivo::FilLista_Click() {
    TxtLista.Text = FilLista.FileName();
}

void FrmCrearArchivo::DirLista_Change() {
    FilLista.Path(DirLista.Path());
}

void FrmCrearArchivo::DrvLista_Change() {
    while (Saltando([&] { DirLista.Path(DrvLista.Drive); })) {
        const int respuesta =
            programa_.servicios().mensaje("Cierra la puerta de la unidad", "Disco no preparado",
                                          mensaje::reintentarCancelar + mensaje::critico);
        if (respuesta != mensaje::respondeReintentar) {
            return;
        }
    }
}

void FrmCrearArchivo::CmdCancelar_Click() {
    programa_.descargar(*this);
}

std::string FrmCrearArchivo::rutaElegida() const {
    std::string ruta = FilLista.Path();
    if (ruta.empty() || ruta.back() != separador) {
        ruta += separador;
    }
    return ruta + TxtLista.Text();
}

/// Runs one statement of the writing under its trap: a bad file name is told, any fault is passed over.
void FrmCrearArchivo::sentencia(const std::function<void()>& acto) {
    const auto fallado = Saltando(acto);
    if (!fallado) {
        return;
    }
    programa_.fallosAlGuardar.push_back(*fallado);
    if (fallado->numero() == fallo::nombreDeArchivo || fallado->numero() == rutaDeRedNoValida) {
        programa_.servicios().mensaje(TxtLista.Text() + " no es un nombre correcto", "Archivo incorrecto",
                                      mensaje::critico);
    }
}

void FrmCrearArchivo::CmdAceptar_Click() {
    const std::string ruta = rutaElegida();
    std::error_code sinAcceso;
    if (!TxtLista.Text().empty() && std::filesystem::exists(ruta, sinAcceso)) {
        const int respuesta = programa_.servicios().mensaje(
            TxtLista.Text() + " ya existe. ¿Desea escribir sobre él?", "El archivo ya existe",
            mensaje::siNoCancelar + mensaje::informacion);
        if (respuesta == mensaje::respondeNo) {
            return; // Meant: only No ends here; Cancel goes on like Yes.
        }
    }
    MousePointer = relojDeArena;
    programa_.fallosAlGuardar.clear();
    const TextoResultados texto{programa_};
    ArchivoDeTexto archivo;
    std::string cabecera;
    std::string filas;
    sentencia([&] { archivo.abrir(ruta); });
    texto.componerCabecera(cabecera, [this](const auto& acto) { sentencia(acto); });
    texto.componerFilas(filas, [this](const auto& acto) { sentencia(acto); });
    sentencia([&] { archivo.Print(cabecera); });
    sentencia([&] { archivo.Print(filas); });
    sentencia([&] { programa_.descargar(*this); });
    MousePointer = punteroNormal;
    sentencia([&] {
        programa_.servicios().mensaje(ruta + " fue creado correctamente", "Creado archivo", mensaje::aceptar);
    });
    sentencia([&] { archivo.cerrar(); });
}

} // namespace varo
