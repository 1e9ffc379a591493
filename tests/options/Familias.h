// The five families of indices with a switch, and the names of the controls that go on and off with each.
#pragma once

#include "options/OpcionesPrograma.h"

#include <array>
#include <sstream>
#include <string>
#include <vector>

namespace varo::prueba {

struct Familia {
    const char* interruptor;
    int ficha;
    const char* controles; ///< full names with blanks between
};

inline constexpr std::array<Familia, 5> familias{{
    {"ChSupCopa", 2, "ChISCUni ChISCBil FramISC"},
    {"ChAOIActivar", 3,
     "FramRazon OptAOIDjDi FramAOIBilUni ChAOIBil ChAOIUni FramAOIk Label1 Label2 Label3 TxtBAF1(6) "
     "TxtBAF2(6) "
     "TxtBAF3(6) FramInflu LstAOI TxtRm(0) TxtRm(1) TxtRm(2) TxtRm(3) TxtRm(4) LbA LbB LbC LbD LbE CmdAñadir "
     "CmdQuitar2 CmdQuitarTodo"},
    {"ChIDPActivar", 4,
     "FramSelCom(0) OptBAF(0) OptNumFijo(0) OptRadioFijo(0) OptFunc(0) FramBAF(0) Label5(0) Label6(0) "
     "Label7(0) "
     "TxtBAF1(0) TxtBAF2(0) TxtBAF3(0) FramIDPBilUni ChIDPBil ChIDPUni Label8 ChIDPNo ChIDPSi"},
    {"ChDRActivar", 5,
     "FramRsij OptDRDjDi FramDRBilUni ChDRBil ChDRUni FramDRk Label5(2) Label6(2) Label7(2) TxtBAF1(4) "
     "TxtBAF2(4) TxtBAF3(4) FramDist OptDistHiper OptDistExp LstDist TxtEXP(0) TxtEXP(1) TxtEXP(2) TxtEXP(3) "
     "TxtEXP(4) Label14(2) Label15(2) Label16(2) Label17(2) Label18(2) CmdAñadirDist CmdQuitarDist "
     "CmdVaciarDist FramSelCom(1) OptBAF(1) OptNumFijo(1) OptRadioFijo(1) OptFunc(1) FramBAF(1) Label5(1) "
     "Label6(1) Label7(1) TxtBAF1(2) TxtBAF2(2) TxtBAF3(2)"},
    {"ChAPA", 6, "Label4 ImgAPA FramAPAk TxtBAF1(8) TxtBAF2(8) TxtBAF3(8) Label5(3) Label6(3) Label7(3)"},
}};

/// The control of this full name; its absence throws.
inline Control& ControlDe(const OpcionesPrograma& opciones, const std::string& nombre) {
    const auto abre = nombre.find('(');
    return abre == std::string::npos
               ? opciones.control(nombre)
               : opciones.control(nombre.substr(0, abre), std::stoi(nombre.substr(abre + 1)));
}

inline std::vector<Control*> ControlesDe(const OpcionesPrograma& opciones, const Familia& familia) {
    std::vector<Control*> controles;
    std::istringstream nombres{familia.controles};
    for (std::string nombre; nombres >> nombre;) {
        controles.push_back(&ControlDe(opciones, nombre));
    }
    return controles;
}

inline Casilla& InterruptorDe(const OpcionesPrograma& opciones, const Familia& familia) {
    return static_cast<Casilla&>(opciones.control(familia.interruptor));
}

/// True for a control that lies on a tab, in a frame or not.
inline bool EstaEnFicha(const OpcionesPrograma& opciones, const Control& control, int ficha) {
    const Control* arriba = &control;
    while (arriba->contenedor != nullptr) {
        arriba = arriba->contenedor;
    }
    for (const Control* suelto : opciones.SSTab1.contenido(ficha)) {
        if (suelto == arriba) {
            return true;
        }
    }
    return false;
}

} // namespace varo::prueba
