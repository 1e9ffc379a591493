// The crown map: the surface, its labels, and the menus that lead to the computations.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "lienzo/AspectoDeEtiqueta.h"
#include "lienzo/Lienzo.h"
#include "map/ArbolDelMapa.h"
#include "motor/Recordset.h"
#include "plot/calculo/SolapeDeCopas.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

class Programa;

/// What both surfaces are. Observers of the window hear when something was drawn.
class Superficie : public Formulario {
public:
    using Formulario::Formulario;

    Lienzo lienzo;

    void avisarDibujo() { avisar(); }
};

class FrmMapa : public Superficie {
public:
    explicit FrmMapa(Programa& programa);

    Menu mnuDatos{*this, "mnuDatos", "&Datos de parcela"};
    Menu mnuIndices{*this, "mnuIndices", "&Indices de rivanza"};
    Etiqueta LbTitulo{*this, "LbTitulo"};
    Matriz<Etiqueta> LbLeyenda{*this, "LbLeyenda"};
    Matriz<Etiqueta> Lbcodigo{*this, "Lbcodigo"};

    /// Of both surfaces, by design; lines and texts share the second one.
    static constexpr Color colorDeFondo = 0x00C0E0FF;
    static constexpr Color colorDeTrazo = 0x00400040;

    /// Members of the legend and of the labels of the trees, in their design state.
    Etiqueta& crearLeyenda(int codigo);
    Etiqueta& crearCodigo(int fila);

    /// The trees that are drawn, in the order of the grid at that moment.
    std::vector<ArbolDelMapa> arboles;
    /// Why there is no drawing; empty when there is one.
    std::string aviso;

    /// The window as if it were new, with this scale: nothing is drawn, and no label is out of its place.
    void empezar(const Escala& escala);
    /// Shows a label, at its place in the order of drawing.
    void mostrar(Etiqueta& etiqueta);
    /// The label that an entry of the display list names.
    [[nodiscard]] Etiqueta& etiqueta(const EtiquetaMostrada& mostrada);
    [[nodiscard]] const Etiqueta& etiqueta(const EtiquetaMostrada& mostrada) const;
    /// What it looks like now, for whoever paints or writes the list.
    [[nodiscard]] AspectoDeEtiqueta aspecto(const EtiquetaMostrada& mostrada) const;
    /// Asks `aspecto`, for as long as the window lives.
    [[nodiscard]] LeerAspecto lectorDeAspectos() const;
    /// Trees that are all in one place give a scale without extent: the map says so, and shows nothing else.
    void decirQueNoHayDibujo();

    /// Metres, the same in x and in y: the window shows the whole of the canvas.
    [[nodiscard]] double enUnidades(double twips) const override;

    void mnuDatos_Click();
    void mnuIndices_Click();
    void LbLeyenda_DblClick();
    /// Moves the label to the right of the point, by half its width.
    void Form_DragDrop(Control& Source, double X, double Y) override;
    /// Over another tree's label the pointer refuses.
    static void Lbcodigo_DragOver(int Index, Control& Source, PasoDeArrastre State);

    /// Stems per hectare, corrected for the trees on the boundary, into Sesion::PiesHaActual.
    void Npies_ha();
    /// Basal area per hectare (m2/ha), corrected likewise, into Sesion::AbHaActual.
    void Ab_ha();

    /// The pairs of crowns that overlap as circles, and their area, into `solape`.
    void AreaTotalIntersCopas();
    SolapeDeCopas solape;

    /// Where the open file has a copy of the sheet, runs GrabarEncima. No command asks for either.
    void ComprobarRepeticionDeHoja();
    /// Queries the crown areas for a copy of the sheet. Nothing is written, and it ends in a fault.
    void GrabarEncima();
    /// The rows that it has opened.
    std::optional<Recordset> filasDeLaCopia;

    void Form_Load() override;
    void Form_Unload() override;

private:
    Programa& programa_;
};

/// The second surface of the same map, on which areas are sampled.
class FrmMapa2 : public Superficie {
public:
    explicit FrmMapa2(Programa& programa);

    /// An empty surface with this scale.
    void empezar(const Escala& escala);

    void Form_Load() override;
    /// It hides: its scale and its shapes stay until the next drawing.
    void pulsarCierre() override;

private:
    Programa& programa_;
};

} // namespace varo
