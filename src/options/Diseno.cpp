// The design state: what lies where, and what starts disabled or hidden.
#include "options/OpcionesPrograma.h"

#include <initializer_list>
#include <utility>

namespace varo {

namespace {

void Meter(Marco& marco, std::initializer_list<Control*> controles) {
    for (Control* control : controles) {
        control->contenedor = &marco;
    }
}

void PonerEnFicha(Fichas& fichas, int ficha, std::initializer_list<Control*> controles) {
    for (Control* control : controles) {
        fichas.poner(ficha, *control);
    }
}

/// Makes a member of an array inside a frame.
template <class C, class... Argumentos>
C& CrearEn(Marco& marco, Matriz<C>& matriz, int indice, Argumentos&&... argumentos) {
    C& control = matriz.crear(indice, std::forward<Argumentos>(argumentos)...);
    control.contenedor = &marco;
    return control;
}

} // namespace

void OpcionesPrograma::disponerUnidades() {
    // The two crown shapes lie over their frame, not in it.
    PonerEnFicha(SSTab1, 0,
                 {&Frame3, &Frame4, &Frame1, &Optcirc, &OptElipse, &Frame6, &Frame7, &Frame2, &Frame5});
    Meter(Frame3, {&Optcm, &Optdecim, &Optmetro});
    Meter(Frame4, {&Opt4R, &Opt2D, &OptRM});
    Meter(Frame6, {&OptCAP, &OptDAP});
    Meter(Frame7, {&OptCMDIA, &OptDMDIA, &OptMDIA});
    Meter(Frame2, {&ChCodigo});
    Meter(Frame5, {&ChPolExt});
}

void OpcionesPrograma::disponerIndependientes() {
    PonerEnFicha(SSTab1, 1, {&FrIndep});
    Meter(FrIndep,
          {&ChN, &ChAB, &ChABj, &LbDiam, &ChDmed, &ChDmax, &ChDdom, &LbAB, &ChBmed, &ChBmax, &ChBdom,
           &LbAreaPropD, &ChAPDmed, &ChAPDmax, &ChAPDsum, &LbAreaPropB, &ChAPBmed, &ChAPBmax, &ChAPBsum});
}

void OpcionesPrograma::disponerISC() {
    PonerEnFicha(SSTab1, 2, {&FramICC});
    Meter(FramICC, {&ChSupCopa, &FramISC});
    Meter(FramISC, {&ChISCBil, &ChISCUni});
    habilitar(controlesISC(), false);
}

void OpcionesPrograma::disponerAOI() {
    PonerEnFicha(SSTab1, 3, {&FrAOI, &ChAOIActivar});
    Meter(FrAOI, {&Image1, &FramAOIBilUni, &FramRazon, &OptHjHi, &FramAOIk, &FramInflu});
    Meter(FramAOIBilUni, {&ChAOIBil, &ChAOIUni});
    Meter(FramRazon, {&OptAOIDjDi});
    Meter(FramAOIk, {&Label1, &Label2, &Label3});
    crearIntervalo(exponenteAOI, "0,00", FramAOIk);
    for (int i = 0; i < 5; ++i) {
        CrearEn(FramInflu, TxtRm, i, "0,0000");
    }
    Meter(FramInflu,
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
    PonerEnFicha(SSTab1, fichaIDP, {&Frame11, &ChIDPUni, &ChIDPBil, &FramBAF(seleccionIDP)});
    Meter(Frame11, {&ChIDPActivar, &FramIDPBilUni, &Label8, &ChIDPSi, &ChIDPNo, &Image4, &Image3});
    habilitar(controlesIDP(), false);
    mostrar(camposDeIntervalo(piesIDP), false);
}

void OpcionesPrograma::disponerDR() {
    PonerEnFicha(SSTab1, 5, {&FramDR});
    Meter(FramDR, {&ChDRActivar, &Image7, &FramDRBilUni, &FramRsij, &FramDRk, &FramDist});
    Meter(FramDRBilUni, {&ChDRBil, &ChDRUni});
    Meter(FramRsij, {&OptDRDjDi, &OptDRHjHi});
    crearIntervalo(exponenteDR, "0,00", FramDRk);
    crearRotulosDeIntervalo(2, "Intervalo:", FramDRk);
    disponerDistancia();
    crearSeleccion(seleccionDR, {"BAF", "Num de pies", "Distancia fija", "Función de dbh"}, FramDR);
    Meter(FramDR, {&FramBAF(seleccionDR)});
    habilitar(controlesDR(), false);
    OptDRHjHi.Enabled = false;
}

void OpcionesPrograma::disponerDistancia() {
    crearRotulosDeFuncion(2, FramDist);
    for (int i = 0; i < 5; ++i) {
        CrearEn(FramDist, TxtEXP, i, "0,00");
    }
    Meter(FramDist, {&OptDistHiper, &OptDistExp, &ImgHiper2, &ImgExp2, &LstDist, &CmdAñadirDist,
                     &CmdQuitarDist, &CmdVaciarDist});
    mostrar({&ImgHiper2, &ImgExp2}, false);
}

void OpcionesPrograma::disponerAPA() {
    PonerEnFicha(SSTab1, 6, {&FramAPA});
    Meter(FramAPA, {&ChAPA, &Label4, &ImgAPA, &FramAPAk});
    crearIntervalo(exponenteAPA, "0,00", FramAPAk);
    crearRotulosDeIntervalo(3, "Intervalo:", FramAPAk);
    habilitar(controlesAPA(), false);
}

void OpcionesPrograma::crearSeleccion(int i, const std::array<const char*, 4>& leyendas, Marco& marco) {
    auto& grupo = seleccionDeCompetidores.at(static_cast<std::size_t>(i));
    Marco& seleccion = CrearEn(marco, FramSelCom, i, "Selección de competidores");
    CrearEn(seleccion, OptBAF, i, leyendas[0], grupo, true);
    CrearEn(seleccion, OptNumFijo, i, leyendas[1], grupo);
    CrearEn(seleccion, OptRadioFijo, i, leyendas[2], grupo);
    CrearEn(seleccion, OptFunc, i, leyendas[3], grupo);

    Marco& intervalo = FramBAF.crear(i, " BAF (m2/ha)");
    crearRotulosDeIntervalo(i, "Intervalos de:", intervalo);
    crearIntervalo(ParametroDe(i), "0,00", intervalo);
    crearIntervalo(PiesDe(i), "1", intervalo);
    habilitar(camposDeIntervalo(PiesDe(i)), false);
    crearFunciones(i, marco);
}

void OpcionesPrograma::crearFunciones(int i, Marco& marco) {
    auto& grupo = claseDeFuncion.at(static_cast<std::size_t>(i));
    Marco& clase = CrearEn(marco, FramFunc, i, "Función");
    CrearEn(clase, OptRichard, i, "Richards", grupo, true);
    CrearEn(clase, OptHiper, i, "Hiperbólica", grupo);
    CrearEn(marco, FramRICH, i, "Función de Richards");
    crearRichards(i);
    CrearEn(marco, FramHIPER, i, "Función hiperbólica");
    crearHiperbolica(i);
    CrearEn(marco, LstRich, i);
    CrearEn(marco, CmdAñadirRich, i, "Añadir");
    CrearEn(marco, CmdQuitarRich, i, "Quitar");
    CrearEn(marco, CmdVaciarRich, i, "Vaciar");
    mostrar(controlesDeFuncion(i), false);
}

void OpcionesPrograma::crearRichards(int i) {
    Marco& marco = FramRICH(i);
    CrearEn(marco, Image5, i);
    CrearEn(marco, Label9, i, "A:");
    CrearEn(marco, Label10, i, "k:");
    CrearEn(marco, Label11, i, "m:");
    for (int parametro = 0; parametro < 3; ++parametro) {
        CrearEn(marco, TxtRich, 3 * i + parametro, "0,00");
    }
}

void OpcionesPrograma::crearHiperbolica(int i) {
    Marco& marco = FramHIPER(i);
    CrearEn(marco, Image6, i);
    CrearEn(marco, Label12, i, "A:");
    CrearEn(marco, Label13, i, "k");
    crearRotulosDeFuncion(i, marco);
    for (int parametro = 0; parametro < 7; ++parametro) {
        CrearEn(marco, TxtHIP, 7 * i + parametro, "0,00");
    }
}

void OpcionesPrograma::crearRotulosDeFuncion(int indice, Marco& marco) {
    CrearEn(marco, Label14, indice, "a");
    CrearEn(marco, Label15, indice, "b");
    CrearEn(marco, Label16, indice, "c");
    CrearEn(marco, Label17, indice, "d");
    CrearEn(marco, Label18, indice, "e");
}

void OpcionesPrograma::crearIntervalo(int miembro, const char* texto, Marco& marco) {
    CrearEn(marco, TxtBAF1, miembro, texto);
    CrearEn(marco, TxtBAF2, miembro, texto);
    CrearEn(marco, TxtBAF3, miembro, texto);
}

void OpcionesPrograma::crearRotulosDeIntervalo(int indice, const char* leyendaPaso, Marco& marco) {
    CrearEn(marco, Label7, indice, "De");
    CrearEn(marco, Label6, indice, "a");
    CrearEn(marco, Label5, indice, leyendaPaso);
}

} // namespace varo
