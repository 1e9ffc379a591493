#include "indices/archivo/CabecerasDeVecindad.h"

#include "indices/OpcionesDeVecindad.h"
#include "indices/archivo/Rotulos.h"
#include "options/OpcionesPrograma.h"

namespace varo {

namespace {

using Rotulos = std::vector<std::string>;

/// Of two passes the first one is bilateral. Meant: a single one goes by the bilateral check alone; with both
/// checks off a bilateral column is labelled unilateral.
Lado LadoEnRotulo(int pasada, int pasadas, const Casilla& bilateral) {
    const bool esBilateral = pasadas == 2 ? pasada == 1 : bilateral.Value() == 1;
    return esBilateral ? Lado::Bilateral : Lado::Unilateral;
}

Rotulos RotulosISC(const OpcionesPrograma& opciones, const ResultadosIndices& r) {
    Rotulos rotulos;
    for (int v = 1; v <= static_cast<int>(r.NumISC); ++v) {
        rotulos.push_back(RotuloISC(LadoEnRotulo(v, static_cast<int>(r.NumISC), opciones.ChISCBil)));
    }
    return rotulos;
}

Rotulos RotulosAOI(const OpcionesPrograma& opciones, const ResultadosIndices& r) {
    Rotulos rotulos;
    for (int pasada = 1; pasada <= r.NumLadosAOI.valor(); ++pasada) {
        const Lado lado = LadoEnRotulo(pasada, r.NumLadosAOI.valor(), opciones.ChAOIBil);
        for (int entrada = 1; entrada <= r.NumFuncAOI.valor(); ++entrada) {
            for (const double k : ValoresDe(r.AOIk)) {
                rotulos.push_back(RotuloAOI(k, entrada, lado));
            }
        }
    }
    return rotulos;
}

Rotulos RotulosIDP(const OpcionesPrograma& opciones, const ResultadosIndices& r) {
    const std::string prefijo = PrefijoDeRegla(ReglaElegida(opciones, seleccionIDP));
    Rotulos rotulos;
    for (int pasada = 1; pasada <= r.NumLadosIDP.valor(); ++pasada) {
        const Lado lado = LadoEnRotulo(pasada, r.NumLadosIDP.valor(), opciones.ChIDPBil);
        for (int central = 1; central <= r.NumCentralIDP.valor(); ++central) {
            const bool conArbolCentral = r.NumCentralIDP == 2 ? central == 1 : opciones.ChIDPSi.Value() == 1;
            for (const double p : ValoresDe(r.IDP)) {
                rotulos.push_back(RotuloIDP(prefijo, p, lado, conArbolCentral));
            }
        }
    }
    return rotulos;
}

Rotulos RotulosDR(const OpcionesPrograma& opciones, const ResultadosIndices& r) {
    const std::string prefijo = PrefijoDeRegla(ReglaElegida(opciones, seleccionDR));
    Rotulos rotulos;
    for (int pasada = 1; pasada <= r.NumLadosDR.valor(); ++pasada) {
        // Meant: the check of IDP, whatever the one of DR says.
        const Lado lado = LadoEnRotulo(pasada, r.NumLadosDR.valor(), opciones.ChIDPBil);
        for (const double k : ValoresDe(r.DRk)) {
            for (int entrada = 1; entrada <= r.NumFuncDR.valor(); ++entrada) {
                for (const double p : ValoresDe(r.DR)) {
                    rotulos.push_back(RotuloDR(k, prefijo, p, entrada, lado));
                }
            }
        }
    }
    return rotulos;
}

Rotulos RotulosAPA(const OpcionesPrograma& /*opciones*/, const ResultadosIndices& r) {
    Rotulos rotulos;
    for (const double k : ValoresDe(r.APAk)) {
        rotulos.push_back(RotuloAPA(k));
    }
    return rotulos;
}

} // namespace

void ContarDesdeUno(const GrupoDeVecindad& grupo, const OpcionesPrograma& opciones, ResultadosIndices& r) {
    const auto& barrido = grupo.barrido;
    if (barrido && ReglaElegida(opciones, barrido->familia) == ReglaDeSeleccion::Funcion) {
        Intervalo& intervalo = r.*barrido->intervalo;
        intervalo.Desde += 1;
        intervalo.Hasta += 1;
    }
}

const std::array<GrupoDeVecindad, 5> gruposDeVecindad{{
    {"ChSupCopa",
     RotulosISC,
     [](const ResultadosIndices& r) { return static_cast<int>(r.NumISC); },
     &ResultadosIndices::IndISC,
     "##0.0000",
     {}},
    {"ChAOIActivar",
     RotulosAOI,
     [](const ResultadosIndices& r) { return r.NumColAOI.valor(); },
     &ResultadosIndices::IndAOI,
     "##0.00",
     {}},
    {"ChIDPActivar", RotulosIDP, [](const ResultadosIndices& r) { return r.NumColIDP.valor(); },
     &ResultadosIndices::IndIDP, "##0.00", BarridoDeSeleccion{seleccionIDP, &ResultadosIndices::IDP}},
    {"ChDRActivar", RotulosDR, [](const ResultadosIndices& r) { return r.NumColDR.valor(); },
     &ResultadosIndices::IndDR, "##0.00", BarridoDeSeleccion{seleccionDR, &ResultadosIndices::DR}},
    {"ChAPA",
     RotulosAPA,
     [](const ResultadosIndices& r) { return r.NumColAPA.valor(); },
     &ResultadosIndices::IndAPA,
     "##0.00",
     {}},
}};

} // namespace varo
