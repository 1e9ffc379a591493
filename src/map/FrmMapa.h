// The crown map: the surface, its labels, and the menus that lead to the computations.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "lienzo/Lienzo.h"

namespace varo {

class Programa;

class FrmMapa : public Formulario {
public:
    explicit FrmMapa(Programa& programa);

    Menu mnuDatos{*this, "mnuDatos", "&Datos de parcela"};
    Menu mnuIndices{*this, "mnuIndices", "&Indices de rivanza"};
    Etiqueta LbTitulo{*this, "LbTitulo"};
    Matriz<Etiqueta> LbLeyenda{*this, "LbLeyenda"};
    Matriz<Etiqueta> Lbcodigo{*this, "Lbcodigo"};

    Lienzo lienzo;

    void mnuDatos_Click();
    void mnuIndices_Click();
    void LbLeyenda_DblClick();

    /// Stems per hectare, corrected for the trees on the boundary, into Sesion::PiesHaActual.
    void Npies_ha();
    /// Basal area per hectare (m2/ha), corrected likewise, into Sesion::AbHaActual.
    void Ab_ha();

    void Form_Load() override;
    void Form_Unload() override;

private:
    Programa& programa_;
};

/// The second surface of the same map, on which areas are sampled.
class FrmMapa2 : public Formulario {
public:
    explicit FrmMapa2(Programa& programa);

    Lienzo lienzo;

    void Form_Load() override;

private:
    Programa& programa_;
};

} // namespace varo
