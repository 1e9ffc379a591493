#include "lote/revision/RevisarTrabajo.h"

#include "avisos/AvisosDeLaHoja.h"
#include "lote/recorrido/PasosHastaElMapa.h"

#include <algorithm>

namespace varo {

void AnadirFalloDelDibujo(std::vector<Hallazgo>& hallazgos, const ErrorTrabajo& error) {
    if (std::ranges::find(hallazgos, Gravedad::Fallo, &Hallazgo::gravedad) != hallazgos.end()) {
        return;
    }
    Hallazgo hallazgo;
    hallazgo.gravedad = Gravedad::Fallo;
    hallazgo.sospecha = Sospecha::DibujoConFallo;
    hallazgo.que = std::string{"El mapa no se puede dibujar: "} + error.motivo() + ".";
    hallazgo.efecto = "Sin el mapa no se calcula nada.";
    hallazgo.remedio = "Corrija en la hoja lo que dice el fallo.";
    hallazgos.insert(hallazgos.begin(), hallazgo);
}

std::vector<Hallazgo> HallazgosDe(PuestoDeTrabajo& puesto) {
    return AvisosDeLaHoja(puesto.programa, {.indices = puesto.trabajo.resultados.has_value(),
                                            .datosDeParcela = puesto.trabajo.datos.has_value()});
}

std::vector<Hallazgo> RevisarTrabajo(const Trabajo& trabajo, const Seguimiento& seguimiento) {
    PuestoDeTrabajo puesto{trabajo, seguimiento};
    LlegarAlFormato(puesto);
    std::vector<Hallazgo> hallazgos = HallazgosDe(puesto);
    try {
        DibujarMapa(puesto);
    } catch (const ErrorTrabajo& error) {
        AnadirFalloDelDibujo(hallazgos, error);
    }
    return hallazgos;
}

} // namespace varo
