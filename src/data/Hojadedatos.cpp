#include "data/Hojadedatos.h"

#include "data/FrmSeleccion.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

namespace varo {

Hojadedatos::Hojadedatos(Programa& programa)
    : Formulario{programa, "Hojadedatos", TipoVentana::Hija, ""}, programa_{programa} {
    Width = 9000;
    Height = 6000;
    MSFlexGrid1.Visible = false;
}

void Hojadedatos::Form_Resize() {
    MSFlexGrid1.Width = Width() - 50.0F;
    MSFlexGrid1.Height = Height() - 400.0F;
}

bool Hojadedatos::Form_QueryUnload() {
    auto& marco = programa_.tocar<VAROMAIN>();
    marco.mnuAbrir.Enabled = true;
    marco.mnuCerrar.Enabled = false;
    marco.mnuMapa.Enabled = false;
    return true;
}

void Hojadedatos::Form_Unload() {
    programa_.tocar<FrmSeleccion>().CboHoja.Clear();
    programa_.descargar<FrmSeleccion>();
    programa_.descargar<FrmFormato>();
    programa_.descargar<OpcionesPrograma>();
    programa_.descargar<FrmMapa>();
    programa_.sesion.reiniciarAlCerrar();
    auto& marco = programa_.tocar<VAROMAIN>();
    marco.mnuOpciones.Enabled = false;
    marco.mnuMapa.Enabled = false;
}

} // namespace varo
