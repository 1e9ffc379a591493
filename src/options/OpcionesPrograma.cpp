#include "options/OpcionesPrograma.h"

#include "data/SelColumnas.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

namespace varo {

OpcionesPrograma::OpcionesPrograma(Programa& programa)
    : Formulario{programa, "OpcionesPrograma", TipoVentana::Libre, "Opciones del programa"}, programa_{
                                                                                                 programa} {
    disponerUnidades();
    disponerIndependientes();
    disponerISC();
    disponerAOI();
    disponerIDP();
    disponerDR();
    disponerAPA();
    conectar();
}

void OpcionesPrograma::conectar() {
    CmdAceptar.Click = [this] { CmdAceptar_Click(); };
    CmdCancelar.Click = [this] { CmdCancelar_Click(); };
    ChCodigo.Click = [this] { ChCodigo_Click(); };
    OptRM.Click = [this] { OptRM_Click(); };
    Opt2D.Click = [this] { Opt2D_Click(); };
    Opt4R.Click = [this] { Opt4R_Click(); };
    conectarCampos();
    conectarCompetidores();
    conectarFunciones();
    conectarInterruptores();
}

void OpcionesPrograma::CmdAceptar_Click() {
    cerrar();
}

void OpcionesPrograma::CmdCancelar_Click() {
    // Meant: it undoes nothing.
    cerrar();
}

void OpcionesPrograma::cerrar() {
    habilitarMenus();
    Hide();
}

void OpcionesPrograma::habilitarMenus() {
    auto& principal = programa_.tocar<VAROMAIN>();
    principal.mnuMapa.Enabled = true;
    principal.mnuOpciones.Enabled = true;
}

void OpcionesPrograma::ChCodigo_Click() {
    ++programa_.sesion.CambiosCodigo;
    programa_.sesion.NumCodigos = 0;
}

void OpcionesPrograma::OptRM_Click() {
    Optcirc.Value = true;
    OptElipse.Enabled = false; // a mean radius gives only circles
}

void OpcionesPrograma::Opt2D_Click() {
    OptElipse.Enabled = true; // Meant: Optcirc stays as it is.
}

void OpcionesPrograma::Opt4R_Click() {
    OptElipse.Enabled = true; // Meant: Optcirc stays as it is.
}

void OpcionesPrograma::Form_Activate() {
    TipoRMAlActivar = OptRM.Value;
    Tipo4RAlActivar = Opt4R.Value;
    Tipo2DAlActivar = Opt2D.Value;
}

void OpcionesPrograma::Form_Deactivate() {
    TipoRMAlDesactivar = OptRM.Value;
    Tipo4RAlDesactivar = Opt4R.Value;
    Tipo2DAlDesactivar = Opt2D.Value;
    habilitarBotonesDeCodigo();
    const bool hayColumnas = programa_.sesion.UltimaColumna != 0;
    if (!hayColumnas || !cambioElTipoDeDatos()) {
        return;
    }
    programa_.servicios().mensaje("Cambiaste el tipo de datos de entrada. Debes seleccionar de nuevo las "
                                  "columnas de entrada",
                                  "Cambiaste el tipo de datos de entrada", mensaje::exclamacion);
    Hide();
    descargarSeleccionAntigua();
    habilitarMenus();
}

void OpcionesPrograma::habilitarBotonesDeCodigo() {
    const bool hayCodigo = ChCodigo.Value() == 1;
    programa_.tocar<SelCol4R>().botonCodigo().Enabled = hayCodigo;
    programa_.tocar<SelCol2D>().botonCodigo().Enabled = hayCodigo;
    programa_.tocar<SelColRM>().botonCodigo().Enabled = hayCodigo;
}

bool OpcionesPrograma::cambioElTipoDeDatos() const {
    return TipoRMAlActivar != TipoRMAlDesactivar || Tipo4RAlActivar != Tipo4RAlDesactivar ||
           Tipo2DAlActivar != Tipo2DAlDesactivar;
}

void OpcionesPrograma::descargarSeleccionAntigua() {
    if (TipoRMAlActivar) {
        programa_.descargar<SelColRM>();
    }
    if (Tipo2DAlActivar) {
        programa_.descargar<SelCol2D>();
    }
    if (Tipo4RAlActivar) {
        programa_.descargar<SelCol4R>();
    }
}

} // namespace varo
