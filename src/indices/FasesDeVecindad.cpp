#include "indices/FasesDeVecindad.h"

#include "data/Hojadedatos.h"
#include "indices/OpcionesDeVecindad.h"
#include "indices/apa/APA.h"
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "map/FrmMapa.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <functional>
#include <optional>

namespace varo {

namespace {

/// The cells of one role, under the name of their field.
ColumnaDeCeldas LeerColumna(const Rejilla& rejilla, int columna) {
    std::vector<std::string> textos;
    textos.reserve(static_cast<std::size_t>(rejilla.Rows()));
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        textos.push_back(rejilla.TextMatrix(fila, columna));
    }
    return {rejilla.TextMatrix(0, columna), std::move(textos)};
}

int MedidasDeCopa(FormaDeCopa forma) {
    switch (forma) {
    case FormaDeCopa::CuatroRadios:
        return 4;
    case FormaDeCopa::DosDiametros:
        return 2;
    case FormaDeCopa::RadioMedio:
        break;
    }
    return 1;
}

Arboles ReunirArboles(Programa& programa) {
    const auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    const auto& sesion = programa.sesion;
    const auto papel = [&](int numero) { return LeerColumna(rejilla, sesion.Columnas(numero).valor()); };
    CeldasDeArboles celdas;
    celdas.x = papel(0);
    celdas.y = papel(1);
    celdas.tamano = LeerColumna(rejilla, sesion.ColumnaDAP.valor());
    if (opciones.ChSupCopa.Value() == 1) {
        for (int medida = 0; medida < MedidasDeCopa(FormaDeLaCopa(opciones)); ++medida) {
            celdas.copa.push_back(papel(2 + medida));
        }
    }
    return {std::move(celdas), UnidadesDelTallo(opciones), sesion.Poligono.contorno()};
}

/// The side rule: of two passes the second one is unilateral; a single one, by its check.
Lado LadoDe(int pasada, const Casilla& bilateral, const Casilla& unilateral) {
    const bool esUnilateral = Pasadas(bilateral, unilateral) == 2 ? pasada == 2 : unilateral.Value() == 1;
    return esUnilateral ? Lado::Unilateral : Lado::Bilateral;
}

class FasesDeVecindad {
public:
    explicit FasesDeVecindad(Programa& programa)
        : programa_{programa}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()}, resultados_{programa.resultados} {}

    void correr() {
        fase(opciones_.ChSupCopa, "ISC", [this] { faseISC(); });
        if (opciones_.LstAOI.ListCount() > 0) {
            fase(opciones_.ChAOIActivar, "AOI", [this] { faseAOI(); });
        }
        fase(opciones_.ChIDPActivar, "IDP", [this] { faseIDP(); });
        fase(opciones_.ChDRActivar, "DR", [this] { faseDR(); });
        fase(opciones_.ChAPA, "APA", [this] { faseAPA(); });
    }

private:
    using Columnas = ResultadosIndices::Columnas;

    void fase(const Casilla& casilla, const char* familia, const std::function<void()>& cuerpo) {
        if (casilla.Value() != 1) {
            return;
        }
        mapa_.MousePointer = Formulario::relojDeArena;
        try {
            cuerpo();
        } catch (ErrorEjecucion& error) {
            mapa_.MousePointer = Formulario::punteroNormal;
            error.en(std::string{"familia "} + familia);
            throw;
        }
    }

    void faseISC() {
        resultados_.NumISC = Pasadas(opciones_.ChISCBil, opciones_.ChISCUni);
        const int variantes = static_cast<int>(resultados_.NumISC);
        resultados_.IndISC.redimensionar(variantes - 1, cuantosArboles());
        const RadiosDeCopa radios{arboles(), FormaDeLaCopa(opciones_), programa_.sesion.FactorRadios.valor()};
        for (int variante = 0; variante < variantes; ++variante) {
            const Lado lado = LadoDe(variante + 1, opciones_.ChISCBil, opciones_.ChISCUni);
            columna(resultados_.IndISC, variante, RotuloISC(lado),
                    [&] { return CalcularISC(vecindad(), radios, lado == Lado::Unilateral); });
        }
    }

    void faseAOI() {
        auto& r = resultados_;
        r.AOIk = LeerIntervalo(opciones_, 6);
        r.NumFuncAOI = opciones_.LstAOI.ListCount();
        r.NumLadosAOI = Pasadas(opciones_.ChAOIBil, opciones_.ChAOIUni);
        r.NumColAOI = Entero16{CuantosCaben(r.AOIk) * r.NumFuncAOI.valor() * r.NumLadosAOI.valor()};
        r.IndAOI.redimensionar(r.NumColAOI.valor() - 1, cuantosArboles() - 1);
        int numero = -1;
        for (int pasada = 1; pasada <= r.NumLadosAOI.valor(); ++pasada) {
            const Lado lado = LadoDe(pasada, opciones_.ChAOIBil, opciones_.ChAOIUni);
            for (int entrada = 1; entrada <= r.NumFuncAOI.valor(); ++entrada) {
                const RadiosDeInfluencia radios{arboles(), leerRadio(entrada)};
                for (const double k : ValoresDe(r.AOIk)) {
                    columna(r.IndAOI, ++numero, RotuloAOI(k, entrada, lado),
                            [&] { return CalcularAOI(vecindad(), radios, lado == Lado::Unilateral, k); });
                }
            }
        }
    }

    SumaDePotencias leerRadio(int entrada) const {
        try {
            return LeerRadioDeInfluencia(opciones_.LstAOI.List(entrada - 1));
        } catch (ErrorEjecucion& error) {
            error.en("línea " + std::to_string(entrada) + " de LstAOI");
            throw;
        }
    }

    void faseIDP() {
        auto& r = resultados_;
        r.IDP = IntervaloDeSeleccion(opciones_, 0);
        r.NumParamIDP = CuantosParametros(opciones_, 0, r.IDP);
        r.NumLadosIDP = Pasadas(opciones_.ChIDPBil, opciones_.ChIDPUni);
        r.NumCentralIDP = Pasadas(opciones_.ChIDPSi, opciones_.ChIDPNo);
        r.NumColIDP = Entero16{r.NumLadosIDP.valor() * r.NumParamIDP * r.NumCentralIDP.valor()};
        r.IndIDP.redimensionar(r.NumColIDP.valor() - 1, cuantosArboles() - 1);
        const ReglaDeSeleccion regla = ReglaElegida(opciones_, 0);
        Seleccion seleccion{vecindad(), regla, OrdenDeRango::PorAngulo};
        int numero = -1;
        for (int pasada = 1; pasada <= r.NumLadosIDP.valor(); ++pasada) {
            const Lado lado = LadoDe(pasada, opciones_.ChIDPBil, opciones_.ChIDPUni);
            for (int central = 1; central <= r.NumCentralIDP.valor(); ++central) {
                const FormaIDP forma = formaCentral(central);
                for (const double p : ValoresDe(r.IDP)) {
                    poner(seleccion, regla, 0, p);
                    const std::string rotulo = RotuloIDP(PrefijoDeRegla(regla), enRotulo(regla, p), lado,
                                                         forma == FormaIDP::ConArbolCentral);
                    columna(r.IndIDP, ++numero, rotulo, [&] {
                        return CalcularIDP(arboles(), seleccion, lado == Lado::Unilateral, forma);
                    });
                }
            }
        }
    }

    /// The first of two passes takes the central tree in; a single one, unless the check of No is on.
    [[nodiscard]] FormaIDP formaCentral(int central) const {
        const bool sinArbolCentral =
            resultados_.NumCentralIDP == 2 ? central == 2 : opciones_.ChIDPNo.Value() == 1;
        return sinArbolCentral ? FormaIDP::SinArbolCentral : FormaIDP::ConArbolCentral;
    }

    void faseDR() {
        auto& r = resultados_;
        r.DR = IntervaloDeSeleccion(opciones_, 1);
        r.DRk = LeerIntervalo(opciones_, 4);
        r.NumParamDR = CuantosParametros(opciones_, 1, r.DR);
        r.NumLadosDR = Pasadas(opciones_.ChDRBil, opciones_.ChDRUni);
        r.NumFuncDR = opciones_.LstDist.ListCount();
        r.NumColDR =
            Entero16{r.NumLadosDR.valor() * r.NumParamDR * r.NumFuncDR.valor() * CuantosCaben(r.DRk)};
        r.IndDR.redimensionar(r.NumColDR.valor() - 1, cuantosArboles() - 1);
        const ReglaDeSeleccion regla = ReglaElegida(opciones_, 1);
        Seleccion seleccion{vecindad(), regla, OrdenDeRango::PorDistancia};
        std::vector<EntradaDeDistancia> entradas = entradasDeDistancia();
        int numero = -1;
        for (int pasada = 1; pasada <= r.NumLadosDR.valor(); ++pasada) {
            const Lado lado = LadoDe(pasada, opciones_.ChDRBil, opciones_.ChDRUni);
            for (const double k : ValoresDe(r.DRk)) {
                for (int e = 0; e < r.NumFuncDR.valor(); ++e) {
                    for (const double p : ValoresDe(r.DR)) {
                        poner(seleccion, regla, 1, p);
                        const std::string rotulo =
                            RotuloDR(k, PrefijoDeRegla(regla), enRotulo(regla, p), e + 1, lado);
                        columna(r.IndDR, ++numero, rotulo, [&] {
                            return CalcularDR(vecindad(), seleccion, lado == Lado::Unilateral,
                                              entradas[static_cast<std::size_t>(e)], k);
                        });
                    }
                }
            }
        }
    }

    [[nodiscard]] std::vector<EntradaDeDistancia> entradasDeDistancia() const {
        const int cuantas = opciones_.LstDist.ListCount();
        std::vector<EntradaDeDistancia> entradas;
        entradas.reserve(static_cast<std::size_t>(cuantas));
        for (int linea = 0; linea < cuantas; ++linea) {
            entradas.emplace_back(opciones_.LstDist.List(linea));
        }
        return entradas;
    }

    void faseAPA() {
        auto& r = resultados_;
        r.APAk = LeerIntervalo(opciones_, 8);
        r.NumColAPA = Entero16{CuantosCaben(r.APAk)};
        r.IndAPA.redimensionar(r.NumColAPA.valor() - 1, cuantosArboles() - 1);
        int numero = -1;
        for (const double k : ValoresDe(r.APAk)) {
            columna(r.IndAPA, ++numero, RotuloAPA(k),
                    [&] { return CalcularAPA(arboles(), programa_.sesion.Poligono.contorno(), k); });
        }
    }

    void poner(Seleccion& seleccion, ReglaDeSeleccion regla, int familia, double p) const {
        if (regla == ReglaDeSeleccion::Funcion) {
            seleccion.poner(opciones_.LstRich(familia).List(static_cast<int>(p)));
        } else {
            seleccion.poner(p);
        }
    }

    /// Lines of a list count from 1 in a label.
    static double enRotulo(ReglaDeSeleccion regla, double p) {
        return regla == ReglaDeSeleccion::Funcion ? p + 1 : p;
    }

    static void columna(Columnas& indice, int numero, const std::string& rotulo,
                        const std::function<std::vector<double>()>& calcular) {
        try {
            const std::vector<double> valores = calcular();
            for (int i = 0; i < static_cast<int>(valores.size()); ++i) {
                indice(numero, i) = valores[static_cast<std::size_t>(i)];
            }
        } catch (ErrorEjecucion& error) {
            error.en("columna " + rotulo);
            throw;
        }
    }

    [[nodiscard]] int cuantosArboles() { return static_cast<int>(arboles().cuantos()); }

    const Arboles& arboles() {
        if (!arboles_) {
            arboles_.emplace(ReunirArboles(programa_));
        }
        return *arboles_;
    }

    Vecindad& vecindad() {
        if (!vecindad_) {
            vecindad_.emplace(arboles(), programa_.sesion.Poligono.contorno());
        }
        return *vecindad_;
    }

    Programa& programa_;
    const OpcionesPrograma& opciones_;
    FrmMapa& mapa_;
    ResultadosIndices& resultados_;
    std::optional<Arboles> arboles_;
    std::optional<Vecindad> vecindad_;
};

} // namespace

void CorrerFasesDeVecindad(Programa& programa) {
    FasesDeVecindad{programa}.correr();
}

void RechazarVecindadPendiente(const OpcionesPrograma& opciones) {
    if (opciones.ChSupCopa.Value() == 1 && !opciones.Optcirc.Value()) {
        throw ErrorEjecucion{fallo::accionNoAdmitida,
                             "La superposición de copas elípticas (ChSupCopa con OptElipse) todavía no se "
                             "calcula en esta versión"};
    }
}

} // namespace varo
