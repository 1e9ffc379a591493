#include "desktop/ventanas/PaginasDeOpciones.h"

#include "desktop/formulas/Formulas.h"
#include "desktop/ventanas/PiezasDeOpciones.h"

#include <QGridLayout>

namespace varo {

QWidget* PaginaDeUnidades(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    auto* const pagina = new QWidget;
    auto* const rejilla = new QGridLayout{pagina};
    rejilla->setSpacing(piezas.separacion);
    rejilla->addWidget(piezas.enColumna(v.Frame3, v.Optcm, v.Optdecim, v.Optmetro), 0, 0);
    rejilla->addWidget(piezas.enColumna(v.Frame4, v.Opt4R, v.Opt2D, v.OptRM), 0, 1);
    rejilla->addWidget(piezas.enColumna(v.Frame1, v.OptElipse, v.Optcirc), 0, 2);
    rejilla->addWidget(piezas.enColumna(v.Frame6, v.OptCAP, v.OptDAP), 1, 0);
    rejilla->addWidget(piezas.enColumna(v.Frame7, v.OptCMDIA, v.OptDMDIA, v.OptMDIA), 1, 1, 1, 2);
    rejilla->addWidget(piezas.enColumna(v.Frame2, v.ChCodigo), 2, 0, 1, 3);
    rejilla->addWidget(piezas.enColumna(v.Frame5, v.ChPolExt), 3, 0, 1, 3);
    for (int columna = 0; columna < 3; ++columna) {
        rejilla->setColumnStretch(columna, 1);
    }
    rejilla->setRowStretch(4, 1);
    return pagina;
}

QWidget* PaginaDeIndependientes(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.pagina(v.FrIndep, PiezasDeOpciones::Pie::BajoElContenido);
    auto* const rejilla = new QGridLayout;
    dentro->addLayout(rejilla);
    int fila = 0;
    const auto poner = [&](Casilla& primera, Casilla& segunda, Casilla& tercera) {
        rejilla->addWidget(piezas.widget(primera), fila, 0);
        rejilla->addWidget(piezas.widget(segunda), fila, 1);
        rejilla->addWidget(piezas.widget(tercera), fila, 2);
        ++fila;
    };
    const auto titular = [&](Etiqueta& rotulo) {
        rejilla->setRowMinimumHeight(fila++, piezas.separacion);
        rejilla->addWidget(piezas.widget(rotulo), fila++, 0, 1, 3);
    };
    poner(v.ChN, v.ChAB, v.ChABj);
    titular(v.LbDiam);
    poner(v.ChDmed, v.ChDmax, v.ChDdom);
    titular(v.LbAB);
    poner(v.ChBmed, v.ChBmax, v.ChBdom);
    titular(v.LbAreaPropD);
    poner(v.ChAPDmed, v.ChAPDmax, v.ChAPDsum);
    titular(v.LbAreaPropB);
    poner(v.ChAPBmed, v.ChAPBmax, v.ChAPBsum);
    for (int lugar = 0; lugar < 3; ++lugar) {
        rejilla->setColumnStretch(lugar, 1);
    }
    return pagina;
}

QWidget* PaginaDeISC(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.pagina(v.FramICC, PiezasDeOpciones::Pie::BajoElContenido);
    dentro->addWidget(piezas.widget(v.ChSupCopa));
    dentro->addWidget(piezas.enFila(v.FramISC, v.ChISCBil, v.ChISCUni));
    return pagina;
}

namespace {

QGroupBox* RadioDeInfluencia(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    QGroupBox* const grupo = piezas.marco(v.FramInflu);
    auto* const columna = new QVBoxLayout{grupo};
    auto* const enunciado = new QHBoxLayout;
    enunciado->addWidget(piezas.formula(v.ImgRm, formula::RadioDeInfluencia()));
    enunciado->addSpacing(2 * piezas.separacion);
    enunciado->addWidget(piezas.conSitioFijo(piezas.widget(v.LbRm)));
    enunciado->addStretch();
    columna->addLayout(enunciado);
    columna->addLayout(piezas.parametros({{{v.LbA, v.TxtRm(0)},
                                           {v.LbB, v.TxtRm(1)},
                                           {v.LbC, v.TxtRm(2)},
                                           {v.LbD, v.TxtRm(3)},
                                           {v.LbE, v.TxtRm(4)}}}));
    columna->addLayout(piezas.lista(v.LstAOI, {&v.CmdAñadir, &v.CmdQuitar2, &v.CmdQuitarTodo}), 1);
    return grupo;
}

} // namespace

QWidget* PaginaDeAOI(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.pagina(v.FrAOI, PiezasDeOpciones::Pie::AlFondo);
    auto* const cabeza = new QHBoxLayout;
    cabeza->addWidget(piezas.widget(v.ChAOIActivar));
    cabeza->addSpacing(3 * piezas.separacion);
    cabeza->addWidget(piezas.formula(v.Image1, formula::SuperposicionDeAreas()));
    cabeza->addStretch();
    dentro->addLayout(cabeza);
    auto* const detalle = new QHBoxLayout;
    detalle->addLayout(piezas.bajoTitulo(piezas.enColumna(v.FramAOIBilUni, v.ChAOIBil, v.ChAOIUni)));
    detalle->addWidget(piezas.enColumna(v.FramRazon, v.OptAOIDjDi, v.OptHjHi));
    detalle->addWidget(piezas.intervalo(v.FramAOIk, {&v.Label1, &v.Label2, &v.Label3}, {6}), 1);
    dentro->addLayout(detalle);
    dentro->addWidget(RadioDeInfluencia(piezas), 1);
    return pagina;
}

QWidget* PaginaDeAPA(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.pagina(v.FramAPA, PiezasDeOpciones::Pie::BajoElContenido);
    dentro->addWidget(piezas.widget(v.ChAPA));
    auto* const factor = new QHBoxLayout;
    factor->addWidget(piezas.widget(v.Label4));
    factor->addSpacing(piezas.separacion);
    factor->addWidget(piezas.formula(v.ImgAPA, formula::FactorDePonderacion()));
    factor->addStretch();
    dentro->addLayout(factor);
    dentro->addWidget(piezas.intervalo(v.FramAPAk, {&v.Label7(3), &v.Label6(3), &v.Label5(3)}, {8}));
    return pagina;
}

} // namespace varo
