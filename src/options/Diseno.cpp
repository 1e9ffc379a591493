// The design state: what lies where, and what starts disabled or hidden.
#include "options/OpcionesPrograma.h"

#include <initializer_list>
#include <utility>

namespace varo {

namespace {

void meter(Marco& marco, std::initializer_list<Control*> controles) {
    for (Control* control : controles) {
        control->contenedor = &marco;
    }
}

void ponerEnFicha(Fichas& fichas, int ficha, std::initializer_list<Control*> controles) {
    for (Control* control : controles) {
        fichas.poner(ficha, *control);
    }
}

/// Makes a member of an array inside a frame.
template <class C, class... Argumentos>
C& crearEn(Marco& marco, Matriz<C>& matriz, int indice, Argumentos&&... argumentos) {
    C& control = matriz.crear(indice, std::forward<Argumentos>(argumentos)...);
    control.contenedor = &marco;
    return control;
}

} // namespace

void OpcionesPrograma::disponerUnidades() {
    // The two crown shapes lie over their frame, not in it.
    ponerEnFicha(SSTab1, 0,
                 {&Frame3, &Frame4, &Frame1, &Optcirc, &OptElipse, &Frame6, &Frame7, &Frame2, &Frame5});
    meter(Frame3, {&Optcm, &Optdecim, &Optmetro});
    meter(Frame4, {&Opt4R, &Opt2D, &OptRM});
    meter(Frame6, {&OptCAP, &OptDAP});
    meter(Frame7, {&OptCMDIA, &OptDMDIA, &OptMDIA});
    meter(Frame2, {&ChCodigo});
    meter(Frame5, {&ChPolExt});
}

void OpcionesPrograma::disponerIndependientes() {
    ponerEnFicha(SSTab1, 1, {&FrIndep});
    meter(FrIndep,
          {&ChN, &ChAB, &ChABj, &LbDiam, &ChDmed, &ChDmax, &ChDdom, &LbAB, &ChBmed, &ChBmax, &ChBdom,
           &LbAreaPropD, &ChAPDmed, &ChAPDmax, &ChAPDsum, &LbAreaPropB, &ChAPBmed, &ChAPBmax, &ChAPBsum});
}

void OpcionesPrograma::disponerISC() {
    ponerEnFicha(SSTab1, 2, {&FramICC});
    meter(FramICC, {&ChSupCopa, &FramISC});
    meter(FramISC, {&ChISCBil, &ChISCUni});
    habilitar(controlesISC(), false);
}

void OpcionesPrograma::disponerAOI() {
    ponerEnFicha(SSTab1, 3, {&FrAOI, &ChAOIActivar});
    meter(FrAOI, {&Image1, &FramAOIBilUni, &FramRazon, &OptHjHi, &FramAOIk, &FramInflu});
    meter(FramAOIBilUni, {&ChAOIBil, &ChAOIUni});
    meter(FramRazon, {&OptAOIDjDi});
    meter(FramAOIk, {&Label1, &Label2, &Label3});
    crearIntervalo(exponenteAOI, "0,00", FramAOIk);
    for (int i = 0; i < 5; ++i) {
        crearEn(FramInflu, TxtRm, i, "0,0000");
    }
    meter(FramInflu,
          {&LbA, &LbB, &LbC, &LbD, &LbE, &ImgRm, &LbRm, &LstAOI, &CmdAñadir, &CmdQuitar2, &CmdQuitarTodo});
    habilitar(controlesAOI(), false);
    OptHjHi.Enabled = false;
    mostrar({&ImgRm, &LbRm}, false);
}

void OpcionesPrograma::disponerIDP() {
    crearSeleccion(seleccionIDP,
                   {"Factor de Area Basimétrica (BAF)", "Número de pies fijo", "Distancia fija",
                    "Distancia función de dbh"},
                   Frame11);
    // The interval and the two checks lie over Frame11, not in it.
    ponerEnFicha(SSTab1, fichaIDP, {&Frame11, &ChIDPUni, &ChIDPBil, &FramBAF(seleccionIDP)});
    meter(Frame11, {&ChIDPActivar, &FramIDPBilUni, &Label8, &ChIDPSi, &ChIDPNo, &Image4, &Image3});
    habilitar(controlesIDP(), false);
    mostrar(camposDeIntervalo(piesIDP), false);
}

void OpcionesPrograma::disponerDR() {
    ponerEnFicha(SSTab1, 5, {&FramDR});
    meter(FramDR, {&ChDRActivar, &Image7, &FramDRBilUni, &FramRsij, &FramDRk, &FramDist});
    meter(FramDRBilUni, {&ChDRBil, &ChDRUni});
    meter(FramRsij, {&OptDRDjDi, &OptDRHjHi});
    crearIntervalo(exponenteDR, "0,00", FramDRk);
    crearRotulosDeIntervalo(2, "Intervalo:", FramDRk);
    disponerDistancia();
    crearSeleccion(seleccionDR, {"BAF", "Num de pies", "Distancia fija", "Función de dbh"}, FramDR);
    meter(FramDR, {&FramBAF(seleccionDR)});
    habilitar(controlesDR(), false);
    OptDRHjHi.Enabled = false;
}

void OpcionesPrograma::disponerDistancia() {
    crearRotulosDeFuncion(2, FramDist);
    for (int i = 0; i < 5; ++i) {
        crearEn(FramDist, TxtEXP, i, "0,00");
    }
    meter(FramDist, {&OptDistHiper, &OptDistExp, &ImgHiper2, &ImgExp2, &LstDist, &CmdAñadirDist,
                     &CmdQuitarDist, &CmdVaciarDist});
    mostrar({&ImgHiper2, &ImgExp2}, false);
}

void OpcionesPrograma::disponerAPA() {
    ponerEnFicha(SSTab1, 6, {&FramAPA});
    meter(FramAPA, {&ChAPA, &Label4, &ImgAPA, &FramAPAk});
    crearIntervalo(exponenteAPA, "0,00", FramAPAk);
    crearRotulosDeIntervalo(3, "Intervalo:", FramAPAk);
    habilitar(controlesAPA(), false);
}

void OpcionesPrograma::crearSeleccion(int i, const std::array<const char*, 4>& leyendas, Marco& marco) {
    auto& grupo = seleccionDeCompetidores.at(static_cast<std::size_t>(i));
    Marco& seleccion = crearEn(marco, FramSelCom, i, "Selección de competidores");
    crearEn(seleccion, OptBAF, i, leyendas[0], grupo, true);
    crearEn(seleccion, OptNumFijo, i, leyendas[1], grupo);
    crearEn(seleccion, OptRadioFijo, i, leyendas[2], grupo);
    crearEn(seleccion, OptFunc, i, leyendas[3], grupo);

    Marco& intervalo = FramBAF.crear(i, " BAF (m2/ha)");
    crearRotulosDeIntervalo(i, "Intervalos de:", intervalo);
    crearIntervalo(ParametroDe(i), "0,00", intervalo);
    crearIntervalo(PiesDe(i), "1", intervalo);
    habilitar(camposDeIntervalo(PiesDe(i)), false);
    crearFunciones(i, marco);
}

void OpcionesPrograma::crearFunciones(int i, Marco& marco) {
    auto& grupo = claseDeFuncion.at(static_cast<std::size_t>(i));
    Marco& clase = crearEn(marco, FramFunc, i, "Función");
    crearEn(clase, OptRichard, i, "Richards", grupo, true);
    crearEn(clase, OptHiper, i, "Hiperbólica", grupo);
    crearEn(marco, FramRICH, i, "Función de Richards");
    crearRichards(i);
    crearEn(marco, FramHIPER, i, "Función hiperbólica");
    crearHiperbolica(i);
    crearEn(marco, LstRich, i);
    crearEn(marco, CmdAñadirRich, i, "Añadir");
    crearEn(marco, CmdQuitarRich, i, "Quitar");
    crearEn(marco, CmdVaciarRich, i, "Vaciar");
    mostrar(controlesDeFuncion(i), false);
}

void OpcionesPrograma::crearRichards(int i) {
    Marco& marco = FramRICH(i);
    crearEn(marco, Image5, i);
    crearEn(marco, Label9, i, "A:");
    crearEn(marco, Label10, i, "k:");
    crearEn(marco, Label11, i, "m:");
    for (int parametro = 0; parametro < 3; ++parametro) {
        crearEn(marco, TxtRich, 3 * i + parametro, "0,00");
    }
}

void OpcionesPrograma::crearHiperbolica(int i) {
    Marco& marco = FramHIPER(i);
    crearEn(marco, Image6, i);
    crearEn(marco, Label12, i, "A:");
    crearEn(marco, Label13, i, "k");
    crearRotulosDeFuncion(i, marco);
    for (int parametro = 0; parametro < 7; ++parametro) {
        crearEn(marco, TxtHIP, 7 * i + parametro, "0,00");
    }
}

void OpcionesPrograma::crearRotulosDeFuncion(int indice, Marco& marco) {
    crearEn(marco, Label14, indice, "a");
    crearEn(marco, Label15, indice, "b");
    crearEn(marco, Label16, indice, "c");
    crearEn(marco, Label17, indice, "d");
    crearEn(marco, Label18, indice, "e");
}

void OpcionesPrograma::crearIntervalo(int miembro, const char* texto, Marco& marco) {
    crearEn(marco, TxtBAF1, miembro, texto);
    crearEn(marco, TxtBAF2, miembro, texto);
    crearEn(marco, TxtBAF3, miembro, texto);
}

void OpcionesPrograma::crearRotulosDeIntervalo(int indice, const char* leyendaPaso, Marco& marco) {
    crearEn(marco, Label7, indice, "De");
    crearEn(marco, Label6, indice, "a");
    crearEn(marco, Label5, indice, leyendaPaso);
}

} // namespace varo
