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
        FramFunc(seleccionIDP).Visible = false;
    } else {
        OptBAF(seleccionIDP).Value = true;
        habilitar(controlesIDP(), false);
        mostrar(controlesDeFuncion(seleccionIDP), false);
    }
}

void OpcionesPrograma::ChDRActivar_Click() {
    const bool encender = !ChDRUni.Enabled();
    if (encender) {
        habilitar(controlesDR(), true);
    } else {
        OptDistHiper.Value = true;
        OptBAF(seleccionDR).Value = true;
        habilitar(controlesDR(), false);
        mostrar(controlesDeFuncion(seleccionDR), false);
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
    constexpr int k = exponenteAPA;
    return {&Label4,     &ImgAPA,    &FramAPAk,  &TxtBAF1(k), &TxtBAF2(k),
            &TxtBAF3(k), &Label5(3), &Label6(3), &Label7(3)};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesAOI() {
    constexpr int k = exponenteAOI;
    return {&FramRazon, &OptAOIDjDi, &FramAOIBilUni, &ChAOIBil,   &ChAOIUni,   &FramAOIk,     &Label1,
            &Label2,    &Label3,     &TxtBAF1(k),    &TxtBAF2(k), &TxtBAF3(k), &FramInflu,    &LstAOI,
            &TxtRm(0),  &TxtRm(1),   &TxtRm(2),      &TxtRm(3),   &TxtRm(4),   &LbA,          &LbB,
            &LbC,       &LbD,        &LbE,           &CmdAñadir,  &CmdQuitar2, &CmdQuitarTodo};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesIDP() {
    constexpr int i = seleccionIDP;
    constexpr int p = parametroIDP;
    return {&FramSelCom(i), &OptBAF(i), &OptNumFijo(i), &OptRadioFijo(i), &OptFunc(i), &FramBAF(i),
            &Label5(i),     &Label6(i), &Label7(i),     &TxtBAF1(p),      &TxtBAF2(p), &TxtBAF3(p),
            &FramIDPBilUni, &ChIDPBil,  &ChIDPUni,      &Label8,          &ChIDPNo,    &ChIDPSi};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesDR() {
    constexpr int k = exponenteDR;
    constexpr int i = seleccionDR;
    constexpr int p = parametroDR;
    return {&FramRsij,   &OptDRDjDi,     &FramDRBilUni,    &ChDRBil,       &ChDRUni,       &FramDRk,
            &Label5(2),  &Label6(2),     &Label7(2),       &TxtBAF1(k),    &TxtBAF2(k),    &TxtBAF3(k),
            &FramDist,   &OptDistHiper,  &OptDistExp,      &LstDist,       &TxtEXP(0),     &TxtEXP(1),
            &TxtEXP(2),  &TxtEXP(3),     &TxtEXP(4),       &Label14(2),    &Label15(2),    &Label16(2),
            &Label17(2), &Label18(2),    &CmdAñadirDist,   &CmdQuitarDist, &CmdVaciarDist, &FramSelCom(i),
            &OptBAF(i),  &OptNumFijo(i), &OptRadioFijo(i), &OptFunc(i),    &FramBAF(i),    &Label5(i),
            &Label6(i),  &Label7(i),     &TxtBAF1(p),      &TxtBAF2(p),    &TxtBAF3(p)};
}

} // namespace varo
