#include "lote/recorrido/Recorrido.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "lote/recorrido/AplicarFormato.h"
#include "lote/recorrido/AplicarOpciones.h"
#include "lote/recorrido/ElegirColumnas.h"
#include "lote/recorrido/EscribirDatos.h"
#include "lote/recorrido/EscribirMapa.h"
#include "lote/recorrido/EscribirResultados.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

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

void DibujarMapa(PuestoDeTrabajo& puesto) {
    puesto.empezar("dibujando el mapa");
    const Lugar lugar{"dibujo del mapa"};
    puesto.hacer(lugar, [&] { puesto.usuario.clic(puesto.programa.tocar<FrmFormato>().CmdAceptar); });
    if (const std::string& aviso = puesto.programa.tocar<FrmMapa>().aviso; !aviso.empty()) {
        puesto.avisar(lugar, aviso);
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
    puesto.empezar("abriendo " + trabajo.archivo.string());
    AbrirParcela(puesto);
    AceptarHoja(puesto);
    CambiarOpciones(puesto);
    ElegirColumnas(puesto);
    AplicarFormato(puesto);
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
