#include "indices/archivo/FrmCrearArchivo.h"

#include "basico/Saltando.h"
#include "data/Hojadedatos.h"
#include "indices/archivo/ArchivoDeTexto.h"
#include "indices/archivo/TextoResultados.h"
#include "shell/Programa.h"

#include <filesystem>
#include <system_error>

namespace varo {

namespace {

namespace fs = std::filesystem;

constexpr char separador = static_cast<char>(fs::path::preferred_separator);
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

/// Runs one statement of the writing under its trap: a bad file name is told, any fault is passed over and
/// handed back.
std::optional<ErrorEjecucion> FrmCrearArchivo::sentencia(const std::function<void()>& acto) {
    auto fallado = Saltando(acto);
    if (!fallado) {
        return fallado;
    }
    programa_.fallosAlGuardar.push_back(*fallado);
    if (fallado->numero() == fallo::nombreDeArchivo || fallado->numero() == rutaDeRedNoValida) {
        programa_.servicios().mensaje(TxtLista.Text() + " no es un nombre correcto", "Archivo incorrecto",
                                      mensaje::critico);
    }
    return fallado;
}

void FrmCrearArchivo::abrir(ArchivoDeTexto& archivo, const std::string& ruta) const {
    const auto* const hoja = programa_.cargada<Hojadedatos>();
    std::error_code ninguno;
    if (hoja != nullptr && fs::equivalent(ruta, hoja->Data1.DatabaseName(), ninguno)) {
        throw ErrorEjecucion{fallo::permisoDenegado,
                             "No se ha escrito «" + ruta + "»: es la parcela que está abierta"};
    }
    archivo.abrir(ruta);
}

void FrmCrearArchivo::decirNoEscrito(const ErrorEjecucion& causa, const std::string& ruta) const {
    std::error_code sinAcceso;
    const bool quedaElAnterior = fs::is_regular_file(ruta, sinAcceso);
    programa_.servicios().mensaje(causa.descripcion() + "." +
                                      (quedaElAnterior ? " El archivo anterior queda como estaba." : ""),
                                  "Archivo no escrito", mensaje::critico);
}

void FrmCrearArchivo::CmdAceptar_Click() {
    const std::string ruta = rutaElegida();
    std::error_code sinAcceso;
    if (!TxtLista.Text().empty() && fs::exists(ruta, sinAcceso)) {
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
    ArchivoDeTexto archivo{programa_.servicios()};
    std::string cabecera;
    std::string filas;
    std::optional<ErrorEjecucion> noEscrito;
    const auto delArchivo = [&](const std::function<void()>& acto) {
        const auto fallado = sentencia(acto);
        noEscrito = noEscrito ? noEscrito : fallado;
    };
    delArchivo([&] { abrir(archivo, ruta); });
    texto.componerCabecera(cabecera, [this](const auto& acto) { sentencia(acto); });
    texto.componerFilas(filas, [this](const auto& acto) { sentencia(acto); });
    delArchivo([&] { archivo.Print(cabecera); });
    delArchivo([&] { archivo.Print(filas); });
    delArchivo([&] { archivo.cerrar(); });
    sentencia([&] { programa_.descargar(*this); });
    MousePointer = punteroNormal;
    // Meant: the farewell comes whatever has failed; who has no file is told so behind it.
    programa_.servicios().mensaje(ruta + " fue creado correctamente", "Creado archivo", mensaje::aceptar);
    if (noEscrito) {
        decirNoEscrito(*noEscrito, ruta);
    }
}

} // namespace varo
