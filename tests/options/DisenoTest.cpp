// The options window in its design state.
#include "formularios/ServiciosPreparados.h"
#include "options/OpcionesPrograma.h"
#include "options/TablaDeOpciones.h"
#include "shell/Programa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace varo::prueba {

namespace {

class OpcionesDeDiseno : public testing::Test {
protected:
    ServiciosPreparados servicios;
    Programa programa{servicios};
    OpcionesPrograma& opciones = programa.tocar<OpcionesPrograma>();
};

std::string valorDe(const Control& control) {
    switch (control.tipo()) {
    case TipoControl::Casilla:
        return std::to_string(static_cast<const Casilla&>(control).Value());
    case TipoControl::Opcion:
        return static_cast<const Opcion&>(control).Value() ? "sí" : "no";
    case TipoControl::CajaTexto:
        return static_cast<const CajaTexto&>(control).Text();
    case TipoControl::Lista: {
        const int lineas = static_cast<const Lista&>(control).ListCount();
        return lineas == 0 ? "" : std::to_string(lineas) + " líneas";
    }
    default:
        return "";
    }
}

/// All places at once, so that a control on two tabs, or in a frame and on a tab, is not as expected.
std::string lugarDe(const OpcionesPrograma& opciones, const Control& control) {
    std::string lugar = control.contenedor == nullptr ? "" : control.contenedor->nombreCompleto();
    for (int ficha = 0; ficha < opciones.SSTab1.Tabs(); ++ficha) {
        const auto& contenido = opciones.SSTab1.contenido(ficha);
        const auto veces = std::count(contenido.begin(), contenido.end(), &control);
        for (auto vez = veces; vez > 0; --vez) {
            lugar += "ficha " + std::to_string(ficha);
        }
    }
    return lugar;
}

using Nombres = std::set<std::string>;

Nombres nombresDe(const GrupoOpciones& grupo) {
    Nombres nombres;
    for (const Opcion* opcion : grupo) {
        nombres.insert(opcion->nombreCompleto());
    }
    return nombres;
}

} // namespace

TEST_F(OpcionesDeDiseno, CadaControlDeLaTablaEstaComoLaTablaDice) {
    for (const ControlEsperado& esperado : TablaDeOpciones()) {
        SCOPED_TRACE(NombreCompleto(esperado));
        const Control* const control = opciones.buscarControl(esperado.nombre, esperado.indice);
        if (control == nullptr) {
            ADD_FAILURE() << "no está en la ventana";
            continue;
        }
        EXPECT_EQ(NombreTipo(control->tipo()), NombreTipo(esperado.tipo));
        EXPECT_EQ(control->Caption(), esperado.leyenda);
        EXPECT_EQ(valorDe(*control), esperado.valor);
        EXPECT_EQ(control->Enabled(), esperado.habilitado);
        EXPECT_EQ(control->Visible(), esperado.visible);
        EXPECT_EQ(lugarDe(opciones, *control), esperado.lugar);
    }
}

TEST_F(OpcionesDeDiseno, LaVentanaNoTieneMasControlesQueLosDeLaTabla) {
    std::multiset<std::string> deLaTabla;
    for (const ControlEsperado& esperado : TablaDeOpciones()) {
        deLaTabla.insert(NombreCompleto(esperado));
    }
    std::multiset<std::string> deLaVentana;
    for (const Control* control : opciones.controles()) {
        deLaVentana.insert(control->nombreCompleto());
    }
    EXPECT_EQ(deLaVentana, deLaTabla);
}

TEST_F(OpcionesDeDiseno, LaVentanaEsLibreConSuNombreYSuLeyenda) {
    EXPECT_EQ(opciones.nombre(), "OpcionesPrograma");
    EXPECT_EQ(opciones.Caption(), "Opciones del programa");
    EXPECT_EQ(opciones.tipo(), TipoVentana::Libre);
    EXPECT_FALSE(opciones.Visible());
}

TEST_F(OpcionesDeDiseno, LaFichaALaVistaEsLaDeDensidadPuntual) {
    const std::vector<std::string> leyendas{"Unidades",
                                            "IND: Independientes de la distancia",
                                            "IND: Superposición de copas (ISC)",
                                            "IND: Superposición de Areas de Influencia (AOI)",
                                            "IND:Densidad puntual (DP)",
                                            "IND: Distancias ponderadas por dimensiones (DR)",
                                            "IND: Area Potencialmente Disponible (APA)"};
    ASSERT_EQ(opciones.SSTab1.Tabs(), 7);
    for (int ficha = 0; ficha < 7; ++ficha) {
        EXPECT_EQ(opciones.SSTab1.TabCaption(ficha), leyendas[static_cast<std::size_t>(ficha)]);
    }
    EXPECT_EQ(opciones.SSTab1.Tab(), 4);
}

TEST_F(OpcionesDeDiseno, LasOpcionesSeExcluyenDentroDeSuGrupo) {
    const std::multiset<Nombres> esperados{
        {"Optcm", "Optdecim", "Optmetro"},
        {"Opt4R", "Opt2D", "OptRM"},
        {"OptElipse", "Optcirc"},
        {"OptCAP", "OptDAP"},
        {"OptCMDIA", "OptDMDIA", "OptMDIA"},
        {"OptAOIDjDi"},
        {"OptHjHi"},
        {"OptBAF(0)", "OptNumFijo(0)", "OptRadioFijo(0)", "OptFunc(0)"},
        {"OptRichard(0)", "OptHiper(0)"},
        {"OptDRDjDi", "OptDRHjHi"},
        {"OptDistHiper", "OptDistExp"},
        {"OptBAF(1)", "OptNumFijo(1)", "OptRadioFijo(1)", "OptFunc(1)"},
        {"OptRichard(1)", "OptHiper(1)"},
    };
    std::set<const GrupoOpciones*> grupos;
    for (const Control* control : opciones.controles()) {
        if (control->tipo() == TipoControl::Opcion) {
            grupos.insert(&static_cast<const Opcion*>(control)->grupo());
        }
    }
    std::multiset<Nombres> hallados;
    for (const GrupoOpciones* grupo : grupos) {
        hallados.insert(nombresDe(*grupo));
    }
    EXPECT_EQ(hallados, esperados);
}

TEST_F(OpcionesDeDiseno, LasParejasDeCasillasNoSeExcluyen) {
    const std::vector<std::pair<Casilla*, Casilla*>> parejas{
        {&opciones.ChISCBil, &opciones.ChISCUni}, {&opciones.ChAOIBil, &opciones.ChAOIUni},
        {&opciones.ChIDPBil, &opciones.ChIDPUni}, {&opciones.ChIDPSi, &opciones.ChIDPNo},
        {&opciones.ChDRBil, &opciones.ChDRUni},
    };
    for (const auto& [primera, segunda] : parejas) {
        SCOPED_TRACE(primera->Name());
        segunda->Value = 1;
        EXPECT_EQ(primera->Value(), 1);
        primera->Value = 0;
        EXPECT_EQ(segunda->Value(), 1);
        segunda->Value = 0;
        EXPECT_EQ(primera->Value(), 0);
    }
}

TEST_F(OpcionesDeDiseno, LosIntervalosNoTienenMiembros5Ni7) {
    for (const int miembro : {5, 7, 9}) {
        EXPECT_FALSE(opciones.TxtBAF1.tiene(miembro));
        EXPECT_FALSE(opciones.TxtBAF2.tiene(miembro));
        EXPECT_FALSE(opciones.TxtBAF3.tiene(miembro));
    }
}

} // namespace varo::prueba
