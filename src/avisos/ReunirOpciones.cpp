#include "avisos/ReunirOpciones.h"

#include "indices/OpcionesDeVecindad.h"
#include "options/Unidades.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace varo {

namespace {

double Centimetros(UnidadLongitud unidad) {
    switch (unidad) {
    case UnidadLongitud::Centimetros:
        return 1;
    case UnidadLongitud::Decimetros:
        return 10;
    case UnidadLongitud::Metros:
        break;
    }
    return 100;
}

class LectorDeOpciones {
public:
    LectorDeOpciones(const OpcionesPrograma& opciones, const LoPedido& pedido)
        : opciones_{opciones}, pedido_{pedido} {}

    [[nodiscard]] OpcionesPorRevisar leer() const {
        const UnidadesTallo tallo = UnidadesDelTallo(opciones_);
        OpcionesPorRevisar leidas;
        leidas.radiosPorMetro = FactorDeRadios(opciones_);
        leidas.cmPorTamano = Centimetros(tallo.unidad);
        leidas.circunferencia = tallo.circunferencia;
        leidas.copasCirculares = opciones_.Optcirc.Value;
        leidas.datosDeParcela = pedido_.datosDeParcela;
        leidas.independientes = independientes();
        leidas.ISC = {activa(opciones_.ChSupCopa), lados(opciones_.ChISCBil, opciones_.ChISCUni)};
        leidas.AOI = {activa(opciones_.ChAOIActivar), lados(opciones_.ChAOIBil, opciones_.ChAOIUni),
                      barrido(exponenteAOI), lineas(opciones_.LstAOI)};
        leidas.IDP = {activa(opciones_.ChIDPActivar),
                      lados(opciones_.ChIDPBil, opciones_.ChIDPUni),
                      marcada(opciones_.ChIDPSi),
                      marcada(opciones_.ChIDPNo),
                      regla(seleccionIDP),
                      seleccion(seleccionIDP),
                      lineas(opciones_.LstRich(seleccionIDP))};
        leidas.DR = {activa(opciones_.ChDRActivar),
                     lados(opciones_.ChDRBil, opciones_.ChDRUni),
                     barrido(exponenteDR),
                     lineas(opciones_.LstDist),
                     regla(seleccionDR),
                     seleccion(seleccionDR),
                     lineas(opciones_.LstRich(seleccionDR))};
        leidas.APA = {activa(opciones_.ChAPA), barrido(exponenteAPA)};
        return leidas;
    }

private:
    static bool marcada(const Casilla& casilla) { return casilla.Value() == 1; }
    [[nodiscard]] bool activa(const Casilla& casilla) const { return pedido_.indices && marcada(casilla); }
    [[nodiscard]] bool alguna(const std::vector<const Casilla*>& casillas) const {
        return std::ranges::any_of(casillas, [this](const Casilla* casilla) { return activa(*casilla); });
    }

    static LadosPorRevisar lados(const Casilla& bilateral, const Casilla& unilateral) {
        return {marcada(bilateral), marcada(unilateral)};
    }

    [[nodiscard]] IndependientesPorRevisar independientes() const {
        const auto& o = opciones_;
        IndependientesPorRevisar pedidas;
        pedidas.pies = activa(o.ChN);
        pedidas.areaBasimetrica = activa(o.ChAB);
        pedidas.areaDeMayores = activa(o.ChABj);
        pedidas.medias = alguna({&o.ChDmed, &o.ChBmed, &o.ChAPDmed, &o.ChAPBmed});
        pedidas.maximos = alguna({&o.ChDmax, &o.ChBmax, &o.ChAPDmax, &o.ChAPBmax});
        pedidas.dominantes = alguna({&o.ChDdom, &o.ChBdom});
        pedidas.sumas = alguna({&o.ChAPDsum, &o.ChAPBsum});
        pedidas.areasProporcionales =
            alguna({&o.ChAPDmed, &o.ChAPDmax, &o.ChAPDsum, &o.ChAPBmed, &o.ChAPBmax, &o.ChAPBsum});
        return pedidas;
    }

    [[nodiscard]] ReglaDeCompetidores regla(FamiliaConSeleccion familia) const {
        switch (ReglaElegida(opciones_, familia)) {
        case ReglaDeSeleccion::BAF:
            return ReglaDeCompetidores::BAF;
        case ReglaDeSeleccion::NumeroFijo:
            return ReglaDeCompetidores::NumeroFijo;
        case ReglaDeSeleccion::Distancia:
            return ReglaDeCompetidores::Distancia;
        case ReglaDeSeleccion::Funcion:
            break;
        }
        return ReglaDeCompetidores::Funcion;
    }

    [[nodiscard]] BarridoPorRevisar barrido(int miembro) const {
        const auto& desde = opciones_.TxtBAF1(miembro);
        return {desde.nombreCompleto(), desde.Text, opciones_.TxtBAF2(miembro).Text,
                opciones_.TxtBAF3(miembro).Text};
    }
    [[nodiscard]] BarridoPorRevisar seleccion(FamiliaConSeleccion familia) const {
        return barrido(MiembroDeSeleccion(opciones_, familia));
    }

    static std::vector<std::string> lineas(const Lista& lista) {
        std::vector<std::string> textos;
        textos.reserve(static_cast<std::size_t>(lista.ListCount()));
        for (int linea = 0; linea < lista.ListCount(); ++linea) {
            textos.push_back(lista.List(linea));
        }
        return textos;
    }

    const OpcionesPrograma& opciones_;
    const LoPedido& pedido_;
};

} // namespace

OpcionesPorRevisar ReunirOpciones(const OpcionesPrograma& opciones, const LoPedido& pedido) {
    return LectorDeOpciones{opciones, pedido}.leer();
}

} // namespace varo
