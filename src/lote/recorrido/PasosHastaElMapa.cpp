#include "lote/recorrido/PasosHastaElMapa.h"

#include "basico/Texto.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "lote/recorrido/AplicarFormato.h"
#include "lote/recorrido/AplicarOpciones.h"
#include "lote/recorrido/ElegirColumnas.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <string>
#include <vector>

namespace varo {

namespace {

void AbrirParcela(PuestoDeTrabajo& puesto) {
    auto& marco = puesto.programa.tocar<VAROMAIN>();
    marco.Show();
    puesto.servicios.prepararArchivo(puesto.trabajo.archivo.string());
    puesto.hacer(
        {"archivo"}, [&] { puesto.usuario.clic(marco.mnuAbrir); }, Estado::ErrorDeArchivo);
}

void ExigirTabla(const PuestoDeTrabajo& puesto, const FrmSeleccion& seleccion) {
    std::vector<std::string> tablas;
    for (int i = 0; i < seleccion.CboHoja.ListCount(); ++i) {
        tablas.push_back(seleccion.CboHoja.List(i));
        if (MismoNombre(tablas.back(), puesto.trabajo.hoja)) {
            return;
        }
    }
    puesto.rechazar({"hoja"}, "el archivo no tiene ninguna hoja " + CitaLarga(puesto.trabajo.hoja) +
                                  "; tiene " + Enumerar(tablas));
}

/// A table that is there and cannot be read is a fault of the file, not of a computation.
void ExigirTablaLegible(PuestoDeTrabajo& puesto) {
    const auto& tabla =
        puesto.programa.tocar<Hojadedatos>().Data1.Database().TableDefs()(puesto.trabajo.hoja);
    if (tabla.defecto) {
        throw ErrorTrabajo{puesto.trabajo.ruta,
                           {"hoja"},
                           tabla.defecto->descripcion(),
                           Estado::ErrorDeArchivo,
                           tabla.defecto->numero()};
    }
}

void AceptarHoja(PuestoDeTrabajo& puesto) {
    auto& seleccion = puesto.programa.tocar<FrmSeleccion>();
    ExigirTabla(puesto, seleccion);
    ExigirTablaLegible(puesto);
    puesto.hacer({"hoja"}, [&] {
        puesto.usuario.escribir(seleccion.CboHoja, puesto.trabajo.hoja);
        try {
            puesto.usuario.clic(seleccion.CmdAceptar);
        } catch (const MensajeInesperado&) {
            // One message serves every cause; the fault behind it tells which.
            if (!seleccion.ultimoFallo()) {
                throw;
            }
            throw ErrorEjecucion{*seleccion.ultimoFallo()};
        }
    });
}

void CambiarOpciones(PuestoDeTrabajo& puesto) {
    auto& marco = puesto.programa.tocar<VAROMAIN>();
    puesto.hacer({"opciones"}, [&] { puesto.usuario.clic(marco.mnuOpciones); });
    AplicarOpciones(puesto);
    puesto.hacer({"opciones"},
                 [&] { puesto.usuario.clic(puesto.programa.tocar<OpcionesPrograma>().CmdAceptar); });
}

} // namespace

void LlegarAlFormato(PuestoDeTrabajo& puesto) {
    puesto.empezar("abriendo " + puesto.trabajo.archivo.string());
    AbrirParcela(puesto);
    AceptarHoja(puesto);
    CambiarOpciones(puesto);
    ElegirColumnas(puesto);
    AplicarFormato(puesto);
}

void DibujarMapa(PuestoDeTrabajo& puesto) {
    puesto.empezar("dibujando el mapa");
    const Lugar lugar{"dibujo del mapa"};
    puesto.hacer(lugar, [&] { puesto.usuario.clic(puesto.programa.tocar<FrmFormato>().CmdAceptar); });
    if (const std::string& aviso = puesto.programa.tocar<FrmMapa>().aviso; !aviso.empty()) {
        puesto.avisar(lugar, aviso);
    }
}

} // namespace varo
