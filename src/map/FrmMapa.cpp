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
#include "plot/CamposDeLaHoja.h"
#include "plot/CausasDeFallos.h"
#include "plot/DatosDeParcela.h"
#include "plot/ReunirCopas.h"
#include "plot/calculo/PorHectarea.h"
#include "plot/calculo/SolaparCirculos.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <algorithm>
#include <utility>

namespace varo {

namespace {

// Pictures of the pointer, among the resources of the program.
constexpr const char* alMover = "dragmove.cur";
constexpr const char* alNegar = "nodrop01.cur";

/// A label of the map by design: hidden and empty, and a person can drag it.
void Disenar(Etiqueta& etiqueta) {
    etiqueta.Visible = false;
    etiqueta.Caption = "";
    etiqueta.Font = Fuente{};
    etiqueta.ForeColor = FrmMapa::colorDeTrazo;
    etiqueta.Left = 0;
    etiqueta.Top = 0;
    etiqueta.arrastrable = true;
    etiqueta.DragIcon = alMover;
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
    : Superficie{programa, "FrmMapa", TipoVentana::Hija, ""}, programa_{programa} {
    Disenar(lienzo);
    Disenar(LbTitulo);
    crearLeyenda(0);
    crearCodigo(0);
    mnuDatos.Click = [this] { mnuDatos_Click(); };
    mnuIndices.Click = [this] { mnuIndices_Click(); };
}

Etiqueta& FrmMapa::crearLeyenda(int codigo) {
    Etiqueta& etiqueta = LbLeyenda.crear(codigo);
    Disenar(etiqueta);
    etiqueta.DblClick = [this] { LbLeyenda_DblClick(); };
    return etiqueta;
}

Etiqueta& FrmMapa::crearCodigo(int fila) {
    Etiqueta& etiqueta = Lbcodigo.crear(fila);
    Disenar(etiqueta);
    etiqueta.DragOver = [fila](Control& origen, PasoDeArrastre paso) {
        Lbcodigo_DragOver(fila, origen, paso);
    };
    return etiqueta;
}

void FrmMapa::empezar(const Escala& escala) {
    Disenar(lienzo);
    lienzo.escala(escala);
    arboles.clear();
    aviso.clear();
    Lbcodigo.quitarDesde(1);
    LbLeyenda.quitarDesde(1);
    for (Etiqueta* const etiqueta : {&LbTitulo, &LbLeyenda(0), &Lbcodigo(0)}) {
        Disenar(*etiqueta);
        etiqueta->ajustar();
    }
}

void FrmMapa::mostrar(Etiqueta& etiqueta) {
    etiqueta.Visible = true;
    lienzo.etiqueta(etiqueta.Name(), etiqueta.Index());
}

const Etiqueta& FrmMapa::etiqueta(const EtiquetaMostrada& mostrada) const {
    if (mostrada.indice == EtiquetaMostrada::sinIndice) {
        return LbTitulo;
    }
    return mostrada.nombre == LbLeyenda(0).Name() ? LbLeyenda(mostrada.indice) : Lbcodigo(mostrada.indice);
}

Etiqueta& FrmMapa::etiqueta(const EtiquetaMostrada& mostrada) {
    return const_cast<Etiqueta&>(std::as_const(*this).etiqueta(mostrada)); // NOLINT(*-const-cast): its own
}

AspectoDeEtiqueta FrmMapa::aspecto(const EtiquetaMostrada& mostrada) const {
    const Etiqueta& suya = etiqueta(mostrada);
    return {suya.Left,  suya.Top,       suya.ForeColor, suya.Caption,
            suya.Width, suya.BackColor, suya.Font,      &suya == &LbTitulo};
}

LeerAspecto FrmMapa::lectorDeAspectos() const {
    return [this](const EtiquetaMostrada& mostrada) { return aspecto(mostrada); };
}

void FrmMapa::decirQueNoHayDibujo() {
    aviso = "todos los árboles están en el mismo punto: no hay nada que dibujar en el mapa";
    LbTitulo.Caption = "Todos los árboles están en el mismo punto";
    LbTitulo.Left = lienzo.escala().izquierda;
    LbTitulo.Top = lienzo.escala().arriba;
    mostrar(LbTitulo);
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
    CalcularDatosDeParcela(programa_);
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
    const std::string campo =
        CampoDePapel(programa_, conCodigo ? sesion.UltimaColumna.valor() : PapelDeCopa(0));
    sesion.PiesHaActual =
        AlFallar([&](ErrorEjecucion& error) { ExplicarCabecera(error, "los pies se cuentan", {campo}); },
                 [&] {
                     return PiesPorHectarea(programa_.tocar<Hojadedatos>().Data1.Database(), campo,
                                            programa_.tocar<FrmSeleccion>().CboHoja.Text,
                                            sesion.NumPuntosPoligono.valor(), sesion.SupPoligono);
                 });
}

void FrmMapa::Ab_ha() {
    auto& sesion = programa_.sesion;
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    const std::string campo = CampoDelTallo(programa_);
    const Valor suma =
        SumaAreaBasimetrica(programa_.tocar<Hojadedatos>().Data1.Database(), campo,
                            programa_.tocar<FrmSeleccion>().CboHoja.Text, UnidadesDelTallo(opciones));
    const int columnaArea = opciones.ChCodigo.Value() == 1 ? 3 : 2;
    const auto situar = [](ErrorEjecucion& error) {
        if (error.numero() == fallo::tiposDistintos) {
            error.en("contorno de un mapa que se dibujó con códigos, y ahora no se piden: dibújelo de nuevo");
        }
    };
    const double quitar = AlFallar(situar, [&] {
        return AreaBasimetricaDeBorde(sesion.Poligono, columnaArea, sesion.NumPuntosPoligono.valor(),
                                      sesion.AnguloInterior);
    });
    sesion.AbHaActual = Porque(
        fallo::usoDeNulo, [&] { return "ningún árbol tiene tamaño en la columna «" + campo + "»"; },
        [&] { return AreaBasimetricaPorHectarea(suma, quitar, sesion.SupPoligono); });
}

void FrmMapa::AreaTotalIntersCopas() {
    SolaparCirculos(ReunirCopas(programa_), solape, programa_.servicios().avance());
}

FrmMapa2::FrmMapa2(Programa& programa)
    : Superficie{programa, "FrmMapa2", TipoVentana::Hija, ""}, programa_{programa} {
    Disenar(lienzo);
}

void FrmMapa2::empezar(const Escala& escala) {
    Disenar(lienzo);
    lienzo.escala(escala);
}

void FrmMapa2::pulsarCierre() {
    Hide();
}

void FrmMapa2::Form_Load() {
    TomarMedidasDelMarco(*this, programa_);
}

} // namespace varo
