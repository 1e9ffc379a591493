#include "lote/recorrido/Recorrido.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "lote/recorrido/EscribirDatos.h"
#include "lote/recorrido/EscribirMapa.h"
#include "lote/recorrido/EscribirResultados.h"
#include "lote/recorrido/PasosHastaElMapa.h"
#include "lote/revision/InformeDeRevision.h"
#include "lote/revision/RevisarTrabajo.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

namespace {

/// Refuses pictures where there is nobody to paint them.
void ExigirPintor(const Trabajo& trabajo) {
    for (const auto& mapa : trabajo.mapas) {
        if (EsDeDibujo(ExtensionDe(mapa.ruta))) {
            throw ErrorTrabajo{trabajo.ruta,
                               {"salida.mapa", mapa.linea},
                               "aquí no se escriben mapas .svg, .pdf ni .png: pida un .txt"};
        }
    }
}

/// Writes the outputs one after the other; one that fails leaves the others, and the first fault ends the
/// job once all were tried.
class Salidas {
public:
    explicit Salidas(PuestoDeTrabajo& puesto) : puesto_{puesto} {}

    template <class Escribir>
    void intentar(const Escribir& escribir) {
        try {
            escribir();
        } catch (const ErrorTrabajo& error) {
            if (primera_) {
                puesto_.decir(error.what());
            } else {
                primera_ = error;
            }
        }
    }
    void terminar() const {
        if (primera_) {
            throw ErrorTrabajo{*primera_};
        }
    }

private:
    PuestoDeTrabajo& puesto_;
    std::optional<ErrorTrabajo> primera_;
};

} // namespace

std::string Informe::texto(const Trabajo& trabajo) const {
    std::string texto = ATexto(arboles) + (arboles == 1 ? " árbol" : " árboles") +
                        ", superficie de la parcela: " + Formato(superficie, "###0.0") + " m2";
    for (const auto& mapa : trabajo.mapas) {
        texto += ", mapa -> " + mapa.ruta.string();
    }
    if (trabajo.datos) {
        texto += ", datos de parcela -> " + trabajo.datos->ruta.string();
    }
    if (trabajo.resultados) {
        texto += ", " + ATexto(columnas) + " columnas -> " + trabajo.resultados->ruta.string();
    }
    return texto;
}

Informe CorrerTrabajo(const Trabajo& trabajo, const Seguimiento& seguimiento, PintorDeMapas* pintor,
                      Cuadrilla* cuadrilla) {
    if (pintor == nullptr) {
        ExigirPintor(trabajo);
    }
    PuestoDeTrabajo puesto{trabajo, seguimiento};
    puesto.servicios.ayuda = cuadrilla;
    LlegarAlFormato(puesto);
    for (const auto& aviso : AvisosDeHallazgos(trabajo.ruta, HallazgosDe(puesto))) {
        puesto.decir(aviso);
    }
    DibujarMapa(puesto);
    Informe informe;
    informe.arboles = puesto.programa.tocar<Hojadedatos>().MSFlexGrid1.Rows() - 1;
    informe.superficie = puesto.programa.sesion.SupPoligono;
    AvisarDeLasFuentes(puesto, pintor);
    Salidas salidas{puesto};
    for (const auto& mapa : trabajo.mapas) {
        salidas.intentar([&] { EscribirMapa(puesto, mapa, pintor); });
    }
    if (trabajo.datos) {
        salidas.intentar([&] { EscribirDatos(puesto, *trabajo.datos); });
    }
    if (trabajo.resultados) {
        salidas.intentar([&] { informe.columnas = EscribirResultados(puesto, *trabajo.resultados); });
    }
    salidas.terminar();
    return informe;
}

} // namespace varo
