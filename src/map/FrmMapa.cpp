#include "map/FrmMapa.h"

#include "basico/EnLugar.h"
#include "basico/Texto.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "indices/CorridaIndices.h"
#include "map/FrmFormato.h"
#include "options/OpcionesPrograma.h"
#include "options/Unidades.h"
#include "plot/calculo/PorHectarea.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <algorithm>

namespace varo {

namespace {

// Pictures of the pointer, among the resources of the program.
constexpr const char* alMover = "dragmove.cur";
constexpr const char* alNegar = "nodrop01.cur";

/// What the labels of the map share: they lie on the surface and can be dragged, and are hidden at first.
void PrepararEtiqueta(Etiqueta& etiqueta) {
    etiqueta.ForeColor = FrmMapa::colorDeTrazo;
    etiqueta.arrastrable = true;
    etiqueta.DragIcon = alMover;
    etiqueta.Visible = false;
    etiqueta.AutoSize = true;
}

/// An empty surface in the colours of the design.
void Disenar(Lienzo& lienzo) {
    lienzo.Cls();
    lienzo.BackColor = FrmMapa::colorDeFondo;
    lienzo.ForeColor = FrmMapa::colorDeTrazo;
    lienzo.FillColor.reset();
}

/// Gives a surface the size of the main window.
void TomarMedidasDelMarco(Formulario& superficie, Programa& programa) {
    const auto& marco = programa.tocar<VAROMAIN>();
    superficie.Height = marco.Height();
    superficie.Width = marco.Width();
}

} // namespace

FrmMapa::FrmMapa(Programa& programa)
    : Formulario{programa, "FrmMapa", TipoVentana::Hija, ""}, programa_{programa} {
    Disenar(lienzo);
    PrepararEtiqueta(LbTitulo);
    crearLeyenda(0);
    crearCodigo(0);
    mnuDatos.Click = [this] { mnuDatos_Click(); };
    mnuIndices.Click = [this] { mnuIndices_Click(); };
}

Etiqueta& FrmMapa::crearLeyenda(int codigo) {
    Etiqueta& etiqueta = LbLeyenda.crear(codigo);
    PrepararEtiqueta(etiqueta);
    etiqueta.DblClick = [this] { LbLeyenda_DblClick(); };
    return etiqueta;
}

Etiqueta& FrmMapa::crearCodigo(int fila) {
    Etiqueta& etiqueta = Lbcodigo.crear(fila);
    PrepararEtiqueta(etiqueta);
    etiqueta.DragOver = [fila](Control& origen, PasoDeArrastre paso) {
        Lbcodigo_DragOver(fila, origen, paso);
    };
    return etiqueta;
}

double FrmMapa::enUnidades(double twips) const {
    if (Width() <= 0 || Height() <= 0) {
        return 0;
    }
    // Meant: in a window of another shape a margin stays beside the canvas.
    return twips * std::max(lienzo.escala().ancho() / Width(), -lienzo.escala().alto() / Height());
}

void FrmMapa::Form_Load() {
    TomarMedidasDelMarco(*this, programa_);
    const std::string& hoja = programa_.tocar<FrmSeleccion>().CboHoja.Text;
    const std::size_t letras = Longitud(hoja);
    Caption = "Mapa de la parcela " + Izquierda(hoja, letras == 0 ? 0 : letras - 1);
    mnuIndices.Enabled = true;
}

void FrmMapa::Form_Unload() {
    programa_.tocar<VAROMAIN>().mnuMapa.Enabled = true;
}

void FrmMapa::mnuDatos_Click() {
    throw ErrorEjecucion{fallo::accionNoAdmitida,
                         "Los datos de parcela todavía no se calculan en esta versión"};
}

void FrmMapa::mnuIndices_Click() {
    CorrerIndices(programa_);
}

void FrmMapa::LbLeyenda_DblClick() {
    programa_.tocar<FrmFormato>().Show();
    programa_.descargar(*this);
}

void FrmMapa::Form_DragDrop(Control& Source, double X, double Y) {
    // Meant: added, not taken off; the label lands to the right of the point.
    Source.Left = X + Source.Width() / 2;
    Source.Top = Y;
}

void FrmMapa::Lbcodigo_DragOver(int /*Index*/, Control& Source, PasoDeArrastre State) {
    Source.DragIcon = State == PasoDeArrastre::Entra ? alNegar : alMover;
}

void FrmMapa::Npies_ha() {
    auto& sesion = programa_.sesion;
    const bool conCodigo = programa_.tocar<OpcionesPrograma>().ChCodigo.Value() == 1;
    const int papel = conCodigo ? sesion.UltimaColumna.valor() : PapelDeCopa(0);
    auto& datos = programa_.tocar<Hojadedatos>().Data1;
    const auto& campo = datos.Recordset().campos()(sesion.Columnas(papel).valor() - 1).Name;
    const auto explicar = [&](ErrorEjecucion& error) {
        if (error.numero() == fallo::sintaxisDeConsulta || error.numero() == fallo::nombreDesconocido) {
            error.porque("los pies se cuentan por la columna «" + campo +
                         "», y su cabecera no es una palabra: cambie la cabecera a una sola palabra, sin "
                         "blancos ni signos");
        }
    };
    sesion.PiesHaActual = AlFallar(explicar, [&] {
        return PiesPorHectarea(datos.Database(), campo, programa_.tocar<FrmSeleccion>().CboHoja.Text,
                               sesion.NumPuntosPoligono.valor(), sesion.SupPoligono);
    });
}

void FrmMapa::Ab_ha() {
    auto& sesion = programa_.sesion;
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    auto& datos = programa_.tocar<Hojadedatos>().Data1;
    const auto& campo = datos.Recordset().campos()(sesion.ColumnaDAP.valor() - 1).Name;
    const Valor suma = SumaAreaBasimetrica(
        datos.Database(), campo, programa_.tocar<FrmSeleccion>().CboHoja.Text, UnidadesDelTallo(opciones));
    const int columnaArea = opciones.ChCodigo.Value() == 1 ? 3 : 2;
    const double quitar = AreaBasimetricaDeBorde(sesion.Poligono, columnaArea,
                                                 sesion.NumPuntosPoligono.valor(), sesion.AnguloInterior);
    sesion.AbHaActual = Porque(
        fallo::usoDeNulo, [&] { return "ningún árbol tiene tamaño en la columna «" + campo + "»"; },
        [&] { return AreaBasimetricaPorHectarea(suma, quitar, sesion.SupPoligono); });
}

FrmMapa2::FrmMapa2(Programa& programa)
    : Formulario{programa, "FrmMapa2", TipoVentana::Hija, ""}, programa_{programa} {
    Disenar(lienzo);
}

void FrmMapa2::Form_Load() {
    TomarMedidasDelMarco(*this, programa_);
}

} // namespace varo
