// The two families that select competitors: point density and distance-weighted size ratios.
#include "desktop/formulas/Formulas.h"
#include "desktop/ventanas/PaginasDeOpciones.h"
#include "desktop/ventanas/PiezasDeOpciones.h"

#include <QGridLayout>

namespace varo {

namespace {

QGroupBox* CrearFuncionDeRichards(const PiezasDeOpciones& piezas, int i) {
    auto& v = piezas.ventana();
    QGroupBox* const grupo = piezas.crearMarco(v.FramRICH(i));
    auto* const fila = new QHBoxLayout{grupo};
    fila->addWidget(piezas.crearFormula(v.Image5(i), formula::DistanciaDeRichards()));
    fila->addSpacing(piezas.separacion);
    fila->addLayout(piezas.crearParametros({{{v.Label9(i), v.TxtRich(3 * i)},
                                             {v.Label10(i), v.TxtRich(3 * i + 1)},
                                             {v.Label11(i), v.TxtRich(3 * i + 2)}}}));
    return grupo;
}

QGroupBox* CrearFuncionHiperbolica(const PiezasDeOpciones& piezas, int i) {
    auto& v = piezas.ventana();
    const int primero = 7 * i;
    QGroupBox* const grupo = piezas.crearMarco(v.FramHIPER(i));
    auto* const columna = new QVBoxLayout{grupo};
    auto* const fila = new QHBoxLayout;
    fila->addWidget(piezas.crearFormula(v.Image6(i), formula::DistanciaHiperbolica()));
    fila->addSpacing(piezas.separacion);
    fila->addLayout(
        piezas.crearParametros({{{v.Label12(i), v.TxtHIP(primero)}, {v.Label13(i), v.TxtHIP(primero + 1)}}}));
    columna->addLayout(fila);
    columna->addLayout(piezas.crearParametros({{{v.Label14(i), v.TxtHIP(primero + 2)},
                                                {v.Label15(i), v.TxtHIP(primero + 3)},
                                                {v.Label16(i), v.TxtHIP(primero + 4)},
                                                {v.Label17(i), v.TxtHIP(primero + 5)},
                                                {v.Label18(i), v.TxtHIP(primero + 6)}}}));
    return grupo;
}

QGroupBox* CrearCriterios(const PiezasDeOpciones& piezas, int i, int columnas) {
    auto& v = piezas.ventana();
    QGroupBox* const grupo = piezas.crearMarco(v.FramSelCom(i));
    auto* const rejilla = new QGridLayout{grupo};
    int lugar = 0;
    for (Opcion* const opcion : v.seleccionDeCompetidores.at(static_cast<std::size_t>(i))) {
        rejilla->addWidget(piezas.crear(*opcion), lugar / columnas, lugar % columnas);
        ++lugar;
    }
    return grupo;
}

/// How the competitors are chosen: an interval of values and functions of stem size share a place.
QLayout* CrearSeleccionDeCompetidores(const PiezasDeOpciones& piezas, int i, int columnas) {
    auto& v = piezas.ventana();
    auto* const rejilla = new QGridLayout;
    rejilla->addWidget(CrearCriterios(piezas, i, columnas), 0, 0);
    const auto enElMismoSitio = [&](QWidget* widget, int fila, int columna, int ancho) {
        rejilla->addWidget(piezas.conSitioFijo(widget), fila, columna, 1, ancho);
    };
    enElMismoSitio(piezas.crearIntervalo(v.FramBAF(i), {&v.Label7(i), &v.Label6(i), &v.Label5(i)},
                                         {ParametroDe(i), PiesDe(i)}),
                   0, 1, 1);
    enElMismoSitio(piezas.crearMarcoEnColumna(v.FramFunc(i), v.OptRichard(i), v.OptHiper(i)), 0, 1, 1);
    enElMismoSitio(CrearFuncionDeRichards(piezas, i), 1, 0, 2);
    enElMismoSitio(CrearFuncionHiperbolica(piezas, i), 1, 0, 2);
    rejilla->addLayout(
        piezas.crearLista(v.LstRich(i), {v.CmdAñadirRich(i), v.CmdQuitarRich(i), v.CmdVaciarRich(i)}), 2, 0,
        1, 2);
    rejilla->setColumnStretch(1, 1);
    rejilla->setRowStretch(2, 1);
    return rejilla;
}

} // namespace

QWidget* CrearPaginaDeDP(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.Frame11, PiezasDeOpciones::Pie::AlFondo);
    dentro->addLayout(piezas.crearFila(piezas.crear(v.ChIDPActivar), 3 * piezas.separacion,
                                       piezas.crearMarcoEnFila(v.FramIDPBilUni, v.ChIDPBil, v.ChIDPUni)));
    auto* const central = new QGridLayout;
    central->addWidget(piezas.crear(v.Label8), 0, 0);
    central->addWidget(piezas.crear(v.ChIDPSi), 0, 1);
    central->addWidget(piezas.crearFormula(v.Image4, formula::DensidadConCentral()), 0, 2, Qt::AlignLeft);
    central->addWidget(piezas.crear(v.ChIDPNo), 1, 1);
    central->addWidget(piezas.crearFormula(v.Image3, formula::DensidadSinCentral()), 1, 2, Qt::AlignLeft);
    central->setHorizontalSpacing(piezas.separacion);
    central->setColumnStretch(3, 1);
    dentro->addLayout(central);
    dentro->addLayout(CrearSeleccionDeCompetidores(piezas, seleccionIDP, 1), 1);
    return pagina;
}

namespace {

QGroupBox* CrearFuncionDeDistancia(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    QGroupBox* const grupo = piezas.crearMarco(v.FramDist);
    auto* const columna = new QVBoxLayout{grupo};
    auto* const fila = new QHBoxLayout;
    auto* const clases = new QVBoxLayout;
    clases->addWidget(piezas.crear(v.OptDistHiper));
    clases->addWidget(piezas.crear(v.OptDistExp));
    fila->addLayout(clases);
    fila->addSpacing(piezas.separacion);
    auto* const formulas = new QGridLayout;
    formulas->addWidget(piezas.crearFormula(v.ImgHiper2, formula::PesoHiperbolico()), 0, 0, Qt::AlignLeft);
    formulas->addWidget(piezas.crearFormula(v.ImgExp2, formula::PesoExponencial()), 0, 0, Qt::AlignLeft);
    fila->addLayout(formulas);
    fila->addStretch(1);
    columna->addLayout(fila);
    columna->addLayout(piezas.crearParametros({{{v.Label14(2), v.TxtEXP(0)},
                                                {v.Label15(2), v.TxtEXP(1)},
                                                {v.Label16(2), v.TxtEXP(2)},
                                                {v.Label17(2), v.TxtEXP(3)},
                                                {v.Label18(2), v.TxtEXP(4)}}}));
    columna->addLayout(piezas.crearLista(v.LstDist, {v.CmdAñadirDist, v.CmdQuitarDist, v.CmdVaciarDist}), 1);
    return grupo;
}

} // namespace

QWidget* CrearPaginaDeDR(const PiezasDeOpciones& piezas) {
    auto& v = piezas.ventana();
    const auto [pagina, dentro] = piezas.crearPagina(v.FramDR, PiezasDeOpciones::Pie::AlFondo);
    dentro->addLayout(piezas.crearFila(piezas.crear(v.ChDRActivar), 3 * piezas.separacion,
                                       piezas.crearMarcoEnFila(v.FramDRBilUni, v.ChDRBil, v.ChDRUni)));
    auto* const cabeza = new QHBoxLayout;
    cabeza->addWidget(piezas.crearFormula(v.Image7, formula::RazonPonderada()));
    cabeza->addWidget(piezas.crearMarcoEnColumna(v.FramRsij, v.OptDRDjDi, v.OptDRHjHi));
    cabeza->addWidget(
        piezas.crearIntervalo(v.FramDRk, {&v.Label7(2), &v.Label6(2), &v.Label5(2)}, {exponenteDR}), 1);
    dentro->addLayout(cabeza);
    dentro->addWidget(CrearFuncionDeDistancia(piezas), 1);
    dentro->addLayout(CrearSeleccionDeCompetidores(piezas, seleccionDR, 2), 1);
    return pagina;
}

} // namespace varo
