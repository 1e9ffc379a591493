#include "desktop/ventanas/PaginasDeOpciones.h"

#include "desktop/formulas/Formulas.h"
#include "desktop/ventanas/PiezasDeOpciones.h"

#include <QGridLayout>

namespace varo {

QWidget* CrearPaginaDeUnidades(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    auto* const pagina = new QWidget;
    auto* const rejilla = new QGridLayout{pagina};
    rejilla->setSpacing(piezas.separacion);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame3, v.Optcm, v.Optdecim, v.Optmetro), 0, 0);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame4, v.Opt4R, v.Opt2D, v.OptRM), 0, 1);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame1, v.OptElipse, v.Optcirc), 0, 2);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame6, v.OptCAP, v.OptDAP), 1, 0);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame7, v.OptCMDIA, v.OptDMDIA, v.OptMDIA), 1, 1, 1, 2);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame2, v.ChCodigo), 2, 0, 1, 3);
    rejilla->addWidget(piezas.crearMarcoEnColumna(v.Frame5, v.ChPolExt), 3, 0, 1, 3);
    for (int columna = 0; columna < 3; ++columna) {
        rejilla->setColumnStretch(columna, 1);
    }
    rejilla->setRowStretch(4, 1);
    return pagina;
}

QWidget* CrearPaginaDeIndependientes(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.FrIndep, PiezasDeOpciones::Pie::BajoElContenido);
    auto* const rejilla = new QGridLayout;
    dentro->addLayout(rejilla);
    int fila = 0;
    const auto poner = [&](Casilla& primera, Casilla& segunda, Casilla& tercera) {
        rejilla->addWidget(piezas.crear(primera), fila, 0);
        rejilla->addWidget(piezas.crear(segunda), fila, 1);
        rejilla->addWidget(piezas.crear(tercera), fila, 2);
        ++fila;
    };
    const auto titular = [&](Etiqueta& rotulo) {
        rejilla->setRowMinimumHeight(fila++, piezas.separacion);
        rejilla->addWidget(piezas.crear(rotulo), fila++, 0, 1, 3);
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

QWidget* CrearPaginaDeISC(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.FramICC, PiezasDeOpciones::Pie::BajoElContenido);
    dentro->addWidget(piezas.crear(v.ChSupCopa));
    dentro->addWidget(piezas.crearMarcoEnFila(v.FramISC, v.ChISCBil, v.ChISCUni));
    return pagina;
}

namespace {

QGroupBox* CrearRadioDeInfluencia(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    QGroupBox* const grupo = piezas.crearMarco(v.FramInflu);
    auto* const columna = new QVBoxLayout{grupo};
    columna->addLayout(piezas.crearFila(piezas.crearFormula(v.ImgRm, formula::RadioDeInfluencia()),
                                        2 * piezas.separacion, piezas.conSitioFijo(piezas.crear(v.LbRm))));
    columna->addLayout(piezas.crearParametros({{{v.LbA, v.TxtRm(0)},
                                                {v.LbB, v.TxtRm(1)},
                                                {v.LbC, v.TxtRm(2)},
                                                {v.LbD, v.TxtRm(3)},
                                                {v.LbE, v.TxtRm(4)}}}));
    columna->addLayout(piezas.crearLista(v.LstAOI, {v.CmdAñadir, v.CmdQuitar2, v.CmdQuitarTodo}), 1);
    return grupo;
}

} // namespace

QWidget* CrearPaginaDeAOI(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.FrAOI, PiezasDeOpciones::Pie::AlFondo);
    auto* const cabeza = new QHBoxLayout;
    cabeza->addLayout(piezas.crearFila(piezas.crear(v.ChAOIActivar), 3 * piezas.separacion,
                                       piezas.crearMarcoEnFila(v.FramAOIBilUni, v.ChAOIBil, v.ChAOIUni)));
    cabeza->addWidget(piezas.crearFormula(v.Image1, formula::SuperposicionDeAreas()));
    dentro->addLayout(cabeza);
    auto* const detalle = new QHBoxLayout;
    detalle->addWidget(piezas.crearMarcoEnColumna(v.FramRazon, v.OptAOIDjDi, v.OptHjHi));
    detalle->addWidget(piezas.crearIntervalo(v.FramAOIk, {&v.Label1, &v.Label2, &v.Label3}, {exponenteAOI}),
                       1);
    dentro->addLayout(detalle);
    dentro->addWidget(CrearRadioDeInfluencia(piezas), 1);
    return pagina;
}

QWidget* CrearPaginaDeAPA(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.FramAPA, PiezasDeOpciones::Pie::BajoElContenido);
    dentro->addWidget(piezas.crear(v.ChAPA));
    dentro->addLayout(piezas.crearFila(piezas.crear(v.Label4), piezas.separacion,
                                       piezas.crearFormula(v.ImgAPA, formula::FactorDePonderacion())));
    dentro->addWidget(
        piezas.crearIntervalo(v.FramAPAk, {&v.Label7(3), &v.Label6(3), &v.Label5(3)}, {exponenteAPA}));
    return pagina;
}

} // namespace varo
