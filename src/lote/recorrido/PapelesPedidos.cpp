#include "lote/recorrido/PapelesPedidos.h"

#include "indices/ResultadosIndices.h"

namespace varo {

namespace {

std::vector<std::string> FamiliasEncendidas(const OpcionesPrograma& opciones) {
    std::vector<const Control*> casillas;
    for (const auto& columna : columnasIndependientes) {
        if (columna.familia != Independiente::N) {
            casillas.push_back(&opciones.control(columna.casilla));
        }
    }
    casillas.insert(casillas.end(), {&opciones.ChSupCopa, &opciones.ChAOIActivar, &opciones.ChIDPActivar,
                                     &opciones.ChDRActivar, &opciones.ChAPA});
    std::vector<std::string> encendidas;
    for (const Control* const casilla : casillas) {
        if (static_cast<const Casilla*>(casilla)->Value() == 1) {
            encendidas.push_back(casilla->Name());
        }
    }
    return encendidas;
}

} // namespace

std::vector<std::string> PidenDAP(const Trabajo& trabajo, const OpcionesPrograma& opciones) {
    std::vector<std::string> piden;
    if (trabajo.resultados) {
        piden = FamiliasEncendidas(opciones);
    }
    if (trabajo.datos) {
        piden.emplace_back("salida.datos");
    }
    return piden;
}

} // namespace varo
