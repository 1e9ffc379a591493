// The five families of indices that have a switch: the controls that go on and off with it. A family starts
// off. OptHjHi and OptDRHjHi are in no list: height ratios are offered, never available. Which way a switch
// works is asked of one of its controls: where that one is enabled the family goes off.
#include "options/OpcionesPrograma.h"

namespace varo {

void OpcionesPrograma::conectarInterruptores() {
    ChSupCopa.Click = [this] { ChSupCopa_Click(); };
    ChAOIActivar.Click = [this] { ChAOIActivar_Click(); };
    ChIDPActivar.Click = [this] { ChIDPActivar_Click(); };
    ChDRActivar.Click = [this] { ChDRActivar_Click(); };
    ChAPA.Click = [this] { ChAPA_Click(); };
}

void OpcionesPrograma::ChSupCopa_Click() {
    habilitar(controlesISC(), !FramISC.Enabled());
}

void OpcionesPrograma::ChAPA_Click() {
    habilitar(controlesAPA(), !FramAPAk.Enabled());
}

void OpcionesPrograma::ChAOIActivar_Click() {
    const bool encender = !CmdAñadir.Enabled();
    habilitar(controlesAOI(), encender);
    mostrar({&ImgRm, &LbRm}, encender);
}

void OpcionesPrograma::ChIDPActivar_Click() {
    const bool encender = !ChIDPUni.Enabled();
    if (encender) {
        habilitar(controlesIDP(), true);
        FramFunc(0).Visible = false;
    } else {
        OptBAF(0).Value = true;
        habilitar(controlesIDP(), false);
        mostrar(controlesDeFuncion(0), false);
    }
}

void OpcionesPrograma::ChDRActivar_Click() {
    const bool encender = !ChDRUni.Enabled();
    if (encender) {
        habilitar(controlesDR(), true);
    } else {
        OptDistHiper.Value = true;
        OptBAF(1).Value = true;
        habilitar(controlesDR(), false);
        mostrar(controlesDeFuncion(1), false);
    }
    ImgHiper2.Visible = encender;
}

void OpcionesPrograma::habilitar(const Controles& controles, bool habilitados) {
    for (Control* control : controles) {
        control->Enabled = habilitados;
    }
}

OpcionesPrograma::Controles OpcionesPrograma::controlesISC() {
    return {&ChISCUni, &ChISCBil, &FramISC};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesAPA() {
    return {&Label4,     &ImgAPA,    &FramAPAk,  &TxtBAF1(8), &TxtBAF2(8),
            &TxtBAF3(8), &Label5(3), &Label6(3), &Label7(3)};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesAOI() {
    return {&FramRazon, &OptAOIDjDi, &FramAOIBilUni, &ChAOIBil,   &ChAOIUni,   &FramAOIk,     &Label1,
            &Label2,    &Label3,     &TxtBAF1(6),    &TxtBAF2(6), &TxtBAF3(6), &FramInflu,    &LstAOI,
            &TxtRm(0),  &TxtRm(1),   &TxtRm(2),      &TxtRm(3),   &TxtRm(4),   &LbA,          &LbB,
            &LbC,       &LbD,        &LbE,           &CmdAñadir,  &CmdQuitar2, &CmdQuitarTodo};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesIDP() {
    return {&FramSelCom(0), &OptBAF(0), &OptNumFijo(0), &OptRadioFijo(0), &OptFunc(0), &FramBAF(0),
            &Label5(0),     &Label6(0), &Label7(0),     &TxtBAF1(0),      &TxtBAF2(0), &TxtBAF3(0),
            &FramIDPBilUni, &ChIDPBil,  &ChIDPUni,      &Label8,          &ChIDPNo,    &ChIDPSi};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesDR() {
    return {&FramRsij,   &OptDRDjDi,     &FramDRBilUni,    &ChDRBil,       &ChDRUni,       &FramDRk,
            &Label5(2),  &Label6(2),     &Label7(2),       &TxtBAF1(4),    &TxtBAF2(4),    &TxtBAF3(4),
            &FramDist,   &OptDistHiper,  &OptDistExp,      &LstDist,       &TxtEXP(0),     &TxtEXP(1),
            &TxtEXP(2),  &TxtEXP(3),     &TxtEXP(4),       &Label14(2),    &Label15(2),    &Label16(2),
            &Label17(2), &Label18(2),    &CmdAñadirDist,   &CmdQuitarDist, &CmdVaciarDist, &FramSelCom(1),
            &OptBAF(1),  &OptNumFijo(1), &OptRadioFijo(1), &OptFunc(1),    &FramBAF(1),    &Label5(1),
            &Label6(1),  &Label7(1),     &TxtBAF1(2),      &TxtBAF2(2),    &TxtBAF3(2)};
}

} // namespace varo
