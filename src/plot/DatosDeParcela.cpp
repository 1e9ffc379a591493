#include "plot/DatosDeParcela.h"

#include "basico/AlSalir.h"
#include "basico/EnLugar.h"
#include "basico/Saltando.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "data/Papeles.h"
#include "formularios/Reloj.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/Unidades.h"
#include "plot/CamposDeLaHoja.h"
#include "plot/CausasDeFallos.h"
#include "plot/FrmResultados.h"
#include "plot/ReunirCopas.h"
#include "plot/calculo/ConsultaDeCopas.h"
#include "plot/calculo/CubiertaDeCopas.h"
#include "plot/calculo/Elipses.h"
#include "plot/calculo/PorHectarea.h"
#include "plot/calculo/RecortarCirculos.h"
#include "shell/Programa.h"

#include <span>
#include <string>
#include <vector>

namespace varo {

namespace {

class CorridaDeDatos {
public:
    explicit CorridaDeDatos(Programa& programa)
        : programa_{programa}, sesion_{programa.sesion}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()},
          superficie_{programa.tocar<FrmMapa2>()}, avance_{programa.servicios().avance()},
          conCodigos_{opciones_.ChCodigo.Value() == 1}, circulos_{opciones_.Optcirc.Value()} {}

    void correr() {
        const AlSalir avisar{[this] { superficie_.avisarDibujo(); }};
        AlFallar(
            [this](ErrorEjecucion& error) {
                ExplicarSuperficie(error, programa_);
                PonerArbol(error, programa_);
            },
            [this] {
                EnLugar("pies por hectárea", [this] { contarPies(); });
                EnLugar("área basimétrica", [this] { sumarAreaBasimetrica(); });
                EnLugar("superficie de las copas", [this] { consultarCopas(); });
            });
        sumarCopas();
        recortar();
        solapar();
        cubrir();
        mostrar();
    }

private:
    void contarPies() {
        if (!conCodigos_) {
            mapa_.Npies_ha();
            return;
        }
        const AlSalir guardar{[this] { sesion_.PiesHaActual = pies_.total; }};
        const FilasPorCodigo filas = filasPorCodigo();
        AlFallar(
            [&](ErrorEjecucion& error) { ExplicarCabecera(error, "los pies se cuentan", {filas.campo}); },
            [&] {
                PiesDeCodigos(filas, sesion_.Poligono, sesion_.NumPuntosPoligono.valor(), sesion_.SupPoligono,
                              pies_);
            });
    }

    void sumarAreaBasimetrica() {
        if (!conCodigos_) {
            mapa_.Ab_ha();
            return;
        }
        const AlSalir guardar{[this] { sesion_.AbHaActual = area_.total; }};
        AreaBasimetricaDeCodigos(filasPorCodigo(), CampoDelTallo(programa_), UnidadesDelTallo(opciones_),
                                 sesion_.Poligono, sesion_.NumPuntosPoligono.valor(), sesion_.AnguloInterior,
                                 sesion_.SupPoligono, area_);
    }

    [[nodiscard]] FilasPorCodigo filasPorCodigo() {
        return {base(), CampoDePapel(programa_, sesion_.UltimaColumna.valor()), hoja(), codigos()};
    }

    void consultarCopas() {
        sesion_.CampoSupCopa = CampoDeSuperficie(circulos_);
        const std::vector<std::string> campos = camposDeCopa();
        std::string consulta =
            ConsultaDeCopas({DatosDeLaCopa(opciones_), circulos_, FactorDeRadios(opciones_), campos, hoja()});
        if (consulta.empty()) {
            consulta = ultimaConsultaDeArea();
        }
        AlFallar([&](ErrorEjecucion& error) { ExplicarCabecera(error, "las copas se calculan", campos); },
                 [&] {
                     const auto filas = base().OpenRecordset(consulta);
                     for (std::size_t fila = 0; fila < filas.filas().filas.size(); ++fila) {
                         copas_.push_back(filas.filas().filas[fila][0]);
                     }
                 });
    }

    /// The fields of the measures of the crown, which the session keeps.
    std::vector<std::string> camposDeCopa() {
        const auto campo = [this](int medida) { return CampoDePapel(programa_, PapelDeCopa(medida)); };
        switch (DatosDeLaCopa(opciones_)) {
        case DatosDeCopa::CuatroRadios:
            return {sesion_.CampoRadioN = campo(0), sesion_.CampoRadioE = campo(1),
                    sesion_.CampoRadioS = campo(2), sesion_.CampoRadioO = campo(3)};
        case DatosDeCopa::DosDiametros:
            return {sesion_.CampoDiamNS = campo(0), sesion_.CampoDiamEO = campo(1)};
        case DatosDeCopa::RadioMedio:
            break;
        }
        return {campo(0)};
    }

    /// Meant: ellipses of mean radii have no query, and the one before it stands.
    [[nodiscard]] std::string ultimaConsultaDeArea() {
        const std::string tallo = CampoDelTallo(programa_);
        const UnidadesTallo unidades = UnidadesDelTallo(opciones_);
        if (!conCodigos_ || codigos().empty()) {
            return ConsultaAreaBasimetrica(tallo, hoja(), unidades) + "] ";
        }
        return ConsultaAreaBasimetrica(tallo, hoja(), unidades,
                                       CondicionDeCodigo(filasPorCodigo().campo, codigos().back()));
    }

    void sumarCopas() {
        sesion_.AreaTotalCopas = 0;
        for (const Valor& copa : copas_) {
            Saltando([&] { sesion_.AreaTotalCopas = ExigirFinito(sesion_.AreaTotalCopas + ANumero(copa)); });
        }
    }

    void recortar() {
        avance_.etapa("Datos de parcela: recorte de las copas");
        if (circulos_) {
            sesion_.FactorRadios = FactorDeRadios(opciones_);
            recorte_ = RecortarCirculos(ReunirCopas(programa_), sesion_.Poligono, sesion_.AnguloInterior,
                                        conCodigos_, avance_);
        } else {
            recorte_.SupFuera = RecortarElipses(ReunirCopas(programa_), sesion_.Poligono.contorno(),
                                                superficie_.lienzo, copas_, avance_);
        }
    }

    void solapar() {
        avance_.etapa("Datos de parcela: solape de las copas");
        if (!circulos_) {
            SolaparElipses(ReunirCopas(programa_), sesion_.Poligono.contorno(), superficie_.lienzo,
                           mapa_.solape, avance_);
            return;
        }
        // A pair too many ends the procedure alone.
        Saltando([this] { mapa_.AreaTotalIntersCopas(); });
    }

    void cubrir() {
        avance_.etapa("Datos de parcela: cubierta de las copas");
        FilasDeCopas copas = ReunirCopas(programa_);
        copas.FactorRadios = FactorDeRadios(opciones_);
        copas.datos = DatosDeLaCopa(opciones_); // Meant: a mean radius is a circle here, in ellipses too.
        PintarCopas(copas, !circulos_, superficie_.lienzo, avance_);
        const ContornoXY contorno = sesion_.Poligono.contorno();
        // A fault ends the measuring of the cover: what it has set by then stays.
        Saltando([&] {
            sesion_.XMaxPoligono = MaximoXPoligono(contorno);
            sesion_.YMaxPoligono = MaximoYPoligono(contorno);
            sesion_.YMinPoligono = MinimoYPoligono(contorno);
            sesion_.Fcc = CalcularFcc(
                contorno, [this](double x, double y) { return superficie_.lienzo.Point(x, y); }, avance_);
        });
    }

    void mostrar() {
        CifrasDeParcela cifras;
        cifras.numCodigos = sesion_.NumCodigos;
        cifras.codigos = sesion_.Codigos;
        cifras.piesHaCodigo = pies_.porHectarea;
        cifras.abHaCodigo = area_.porHectarea;
        cifras.piesHa = sesion_.PiesHaActual;
        cifras.abHa = sesion_.AbHaActual;
        cifras.superficie = sesion_.SupPoligono;
        cifras.areaCopas = sesion_.AreaTotalCopas;
        Saltando([&] {
            cifras.areaCopasInterior =
                ExigirFinito((sesion_.AreaTotalCopas - recorte_.SupFuera) - recorte_.SupVertices);
        });
        cifras.areaIntersecCopas = mapa_.solape.AreaIntersecCopas;
        cifras.fcc = sesion_.Fcc;
        auto& ventana = programa_.tocar<FrmResultados>();
        conCodigos_ ? ventana.tablasConCodigos(cifras) : ventana.tablasSinCodigos(cifras);
        // The format window is loaded anew where it is gone.
        Saltando([&] { cifras.titulo = programa_.tocar<FrmFormato>().TxtTitName.Text(); });
        ventana.resumen(cifras);
        ventana.Show();
    }

    [[nodiscard]] const BaseDatos& base() const { return programa_.tocar<Hojadedatos>().Data1.Database(); }
    [[nodiscard]] std::string hoja() const { return programa_.tocar<FrmSeleccion>().CboHoja.Text; }
    [[nodiscard]] std::span<const std::string> codigos() const {
        return std::span{sesion_.Codigos}.first(static_cast<std::size_t>(sesion_.NumCodigos.valor()));
    }

    Programa& programa_;
    Sesion& sesion_;
    const OpcionesPrograma& opciones_;
    FrmMapa& mapa_;
    FrmMapa2& superficie_;
    Avance avance_;
    bool conCodigos_;
    bool circulos_;

    CifrasPorCodigo pies_, area_;
    std::vector<Valor> copas_; ///< crown areas in m2, in the order of the sheet; Null without measures
    RecorteDeCopas recorte_;
};

} // namespace

void CalcularDatosDeParcela(Programa& programa) {
    const auto reloj = PonerReloj(programa.tocar<FrmMapa>());
    CorridaDeDatos{programa}.correr();
}

} // namespace varo
