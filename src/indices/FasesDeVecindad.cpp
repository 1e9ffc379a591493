#include "indices/FasesDeVecindad.h"

#include "basico/AlSalir.h"
#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "data/FilasDeArboles.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "data/Papeles.h"
#include "indices/CeldasEnElMapa.h"
#include "indices/OpcionesDeVecindad.h"
#include "indices/apa/APA.h"
#include "indices/vecinos/AOI.h"
#include "indices/vecinos/DR.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/ISC.h"
#include "indices/vecinos/ISCDeElipses.h"
#include "map/FrmMapa.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <functional>
#include <memory>
#include <optional>

namespace varo {

namespace {

Arboles ReunirArboles(Programa& programa) {
    const auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    const auto& sesion = programa.sesion;
    const auto padron = std::make_shared<const Padron>(PadronDeLaRejilla(programa));
    const auto celdasDe = [&](int columna) {
        return ColumnaDeCeldas{rejilla.TextMatrix(0, columna), TextosDeColumna(rejilla, columna), padron};
    };
    const auto papel = [&](int numero) { return celdasDe(sesion.Columnas(numero).valor()); };
    CeldasDeArboles celdas;
    celdas.x = papel(papelX);
    celdas.y = papel(papelY);
    celdas.tamano = celdasDe(sesion.ColumnaDAP.valor());
    if (opciones.ChSupCopa.Value() == 1) {
        for (int medida = 0; medida < MedidasDeCopa(DatosDeLaCopa(opciones)); ++medida) {
            celdas.copa.push_back(papel(PapelDeCopa(medida)));
        }
    }
    return {std::move(celdas), UnidadesDelTallo(opciones), sesion.Poligono.contorno()};
}

/// The passes that two checks ask for: both in their order, or a single one, which is `otra` only if its
/// check is on.
template <class Pasada>
std::vector<Pasada> PasadasDe(const Casilla& casillaUna, Pasada una, const Casilla& casillaOtra,
                              Pasada otra) {
    if (casillaOtra.Value() != 1) {
        return {una};
    }
    return casillaUna.Value() == 1 ? std::vector{una, otra} : std::vector{otra};
}

std::vector<Lado> LadosDe(const Casilla& bilateral, const Casilla& unilateral) {
    return PasadasDe(bilateral, Lado::Bilateral, unilateral, Lado::Unilateral);
}

/// "TxtBAF1(0)": where the first value of a sweep is typed.
std::string CampoDeBarrido(int miembro) {
    return "TxtBAF1(" + std::to_string(miembro) + ")";
}

/// Why a sweep has no value, or nothing when it has some.
std::optional<std::string> BarridoSinValores(const Intervalo& barrido, int miembro) {
    if (CuantosCaben(barrido) >= 1) {
        return std::nullopt;
    }
    return "el barrido que empieza en " + CampoDeBarrido(miembro) + " va de " + ATexto(barrido.Desde) +
           " a " + ATexto(barrido.Hasta) + " con paso " + ATexto(barrido.Paso) +
           " y no pasa por ningún valor";
}

std::string ListaVacia(const Control& lista) {
    return "la lista " + lista.nombreCompleto() + " está vacía: añádale una función";
}

/// Makes room for the columns of a family, one at least. `causa` tells why there is none.
template <class Causa>
void Dimensionar(ResultadosIndices::IndicePorColumnas& indice, Entero16 columnas, int arboles,
                 const Causa& causa) {
    const auto explicar = [&](ErrorEjecucion& error) {
        if (const std::optional<std::string> motivo = causa()) {
            error.porque(*motivo);
        }
    };
    AlFallar(explicar, [&] { indice.redimensionar(columnas.valor() - 1, arboles - 1); });
}

/// The number of the columns of a family, rounded.
Entero16 CuantasColumnas(double columnas) {
    return Porque(
        fallo::desbordamiento,
        [] { return "los barridos piden más de 32.767 columnas: ponga pasos mayores"; },
        [&] { return Entero16{columnas}; });
}

/// A column of IDP to compute.
struct PedidaIDP {
    Lado lado;
    FormaIDP forma;
    double p; ///< the selection parameter, or the line of the list of functions
};

/// A column of DR to compute.
struct PedidaDR {
    Lado lado;
    double k;
    std::size_t entrada; ///< of the list of distance functions
    double p;            ///< as in IDP
};

class FasesDeVecindad {
public:
    explicit FasesDeVecindad(Programa& programa)
        : programa_{programa}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()}, resultados_{programa.resultados},
          faena_{programa.servicios().avance(), programa.servicios().cuadrilla()} {}

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
    using IndicePorColumnas = ResultadosIndices::IndicePorColumnas;
    using Rotulo = std::function<std::string()>;

    void fase(const Casilla& casilla, const char* familia, const std::function<void()>& cuerpo) {
        if (casilla.Value() != 1) {
            return;
        }
        mapa_.MousePointer = Formulario::relojDeArena;
        familia_ = familia;
        const auto soltarReloj = [&](ErrorEjecucion& error) {
            mapa_.MousePointer = Formulario::punteroNormal;
            error.en("familia " + familia_);
        };
        AlFallar(soltarReloj, cuerpo);
    }

    void faseISC() {
        auto& r = resultados_;
        const auto lados = LadosDe(opciones_.ChISCBil, opciones_.ChISCUni);
        r.NumISC = static_cast<double>(lados.size());
        r.IndISC.redimensionar(static_cast<int>(lados.size()) - 1, cuantosArboles());
        esperarColumnas(static_cast<int>(lados.size()));
        const auto calcular = opciones_.Optcirc.Value() ? iscDeCirculos() : iscDeElipses();
        int numero = -1;
        for (const Lado lado : lados) {
            columna(
                r.IndISC, ++numero, [&] { return RotuloISC(lado); }, [&] { return calcular(lado); });
        }
    }

    using CalculoISC = std::function<std::vector<double>(Lado)>;

    CalculoISC iscDeCirculos() {
        return [this, radios = RadiosDeCopa{arboles(), DatosDeLaCopa(opciones_), factorDeRadios()}](
                   Lado lado) { return CalcularISC(vecindad(), radios, lado, faena_); };
    }

    CalculoISC iscDeElipses() {
        return
            [this, copas = CopasDeArboles{arboles(), DatosDeLaCopa(opciones_), factorDeRadios()}](Lado lado) {
                auto& superficie = programa_.tocar<FrmMapa2>();
                const AlSalir avisar{[&superficie] { superficie.avisarDibujo(); }};
                return CalcularISCDeElipses(vecindad(), copas, lado, superficie.lienzo, faena_.avance);
            };
    }

    [[nodiscard]] int factorDeRadios() const { return programa_.sesion.FactorRadios.valor(); }

    void faseAOI() {
        auto& r = resultados_;
        const auto lados = LadosDe(opciones_.ChAOIBil, opciones_.ChAOIUni);
        r.AOIk = LeerIntervalo(opciones_, exponenteAOI);
        r.NumFuncAOI = opciones_.LstAOI.ListCount();
        r.NumLadosAOI = static_cast<int>(lados.size());
        r.NumColAOI = CuantasColumnas(CuantosCaben(r.AOIk) * r.NumFuncAOI.valor() * r.NumLadosAOI.valor());
        Dimensionar(r.IndAOI, r.NumColAOI, cuantosArboles(),
                    [&] { return BarridoSinValores(r.AOIk, exponenteAOI); });
        esperarColumnas(r.NumColAOI.valor());
        int numero = -1;
        for (const Lado lado : lados) {
            for (int entrada = 1; entrada <= r.NumFuncAOI.valor(); ++entrada) {
                const RadiosDeInfluencia radios{arboles(), leerRadio(entrada)};
                for (const double k : ValoresDe(r.AOIk)) {
                    columna(
                        r.IndAOI, ++numero, [&] { return RotuloAOI(k, entrada, lado); },
                        [&] { return CalcularAOI(vecindad(), radios, lado, k, faena_); });
                }
            }
        }
    }

    [[nodiscard]] SumaDePotencias leerRadio(int entrada) const {
        return EnLugar([&] { return "línea " + std::to_string(entrada) + " de LstAOI"; },
                       [&] { return LeerRadioDeInfluencia(opciones_.LstAOI.List(entrada - 1)); });
    }

    void faseIDP() {
        auto& r = resultados_;
        const auto lados = LadosDe(opciones_.ChIDPBil, opciones_.ChIDPUni);
        const auto formas = PasadasDe(opciones_.ChIDPSi, FormaIDP::ConArbolCentral, opciones_.ChIDPNo,
                                      FormaIDP::SinArbolCentral);
        r.IDP = IntervaloDeSeleccion(opciones_, seleccionIDP);
        r.NumParamIDP = CuantosParametros(opciones_, seleccionIDP, r.IDP);
        r.NumLadosIDP = static_cast<int>(lados.size());
        r.NumCentralIDP = static_cast<int>(formas.size());
        r.NumColIDP = CuantasColumnas(r.NumLadosIDP.valor() * r.NumParamIDP * r.NumCentralIDP.valor());
        Dimensionar(r.IndIDP, r.NumColIDP, cuantosArboles(),
                    [&] { return sinParametros(seleccionIDP, r.IDP); });
        esperarColumnas(r.NumColIDP.valor());
        const ReglaDeSeleccion regla = ReglaElegida(opciones_, seleccionIDP);
        Seleccion seleccion{vecindad(), regla, OrdenDeRango::PorAngulo};
        int numero = -1;
        for (const PedidaIDP& pedida : pedidasIDP(lados, formas)) {
            poner(seleccion, regla, seleccionIDP, pedida.p);
            const auto rotulo = [&] {
                return RotuloIDP(PrefijoDeRegla(regla), enRotulo(regla, pedida.p), pedida.lado,
                                 pedida.forma == FormaIDP::ConArbolCentral);
            };
            columna(r.IndIDP, ++numero, rotulo, [&] {
                return explicandoElBAF(regla, seleccionIDP, pedida.p, [&] {
                    return CalcularIDP(arboles(), seleccion, pedida.lado, pedida.forma, faena_);
                });
            });
        }
    }

    [[nodiscard]] std::vector<PedidaIDP> pedidasIDP(const std::vector<Lado>& lados,
                                                    const std::vector<FormaIDP>& formas) const {
        std::vector<PedidaIDP> pedidas;
        for (const Lado lado : lados) {
            for (const FormaIDP forma : formas) {
                for (const double p : ValoresDe(resultados_.IDP)) {
                    pedidas.push_back({lado, forma, p});
                }
            }
        }
        return pedidas;
    }

    void faseDR() {
        auto& r = resultados_;
        const auto lados = LadosDe(opciones_.ChDRBil, opciones_.ChDRUni);
        r.DR = IntervaloDeSeleccion(opciones_, seleccionDR);
        r.DRk = LeerIntervalo(opciones_, exponenteDR);
        r.NumParamDR = CuantosParametros(opciones_, seleccionDR, r.DR);
        r.NumLadosDR = static_cast<int>(lados.size());
        r.NumFuncDR = opciones_.LstDist.ListCount();
        r.NumColDR =
            CuantasColumnas(r.NumLadosDR.valor() * r.NumParamDR * r.NumFuncDR.valor() * CuantosCaben(r.DRk));
        Dimensionar(r.IndDR, r.NumColDR, cuantosArboles(), [&]() -> std::optional<std::string> {
            if (opciones_.LstDist.ListCount() == 0) {
                return ListaVacia(opciones_.LstDist);
            }
            const auto motivo = sinParametros(seleccionDR, r.DR);
            return motivo ? motivo : BarridoSinValores(r.DRk, exponenteDR);
        });
        esperarColumnas(r.NumColDR.valor());
        const ReglaDeSeleccion regla = ReglaElegida(opciones_, seleccionDR);
        Seleccion seleccion{vecindad(), regla, OrdenDeRango::PorDistancia};
        std::vector<EntradaDeDistancia> entradas = entradasDeDistancia();
        int numero = -1;
        for (const PedidaDR& pedida : pedidasDR(lados, entradas.size())) {
            poner(seleccion, regla, seleccionDR, pedida.p);
            const auto rotulo = [&] {
                return RotuloDR(pedida.k, PrefijoDeRegla(regla), enRotulo(regla, pedida.p),
                                static_cast<int>(pedida.entrada) + 1, pedida.lado);
            };
            columna(r.IndDR, ++numero, rotulo, [&] {
                return explicandoElBAF(regla, seleccionDR, pedida.p, [&] {
                    return CalcularDR(arboles(), seleccion, pedida.lado, entradas[pedida.entrada], pedida.k,
                                      faena_);
                });
            });
        }
    }

    [[nodiscard]] std::vector<PedidaDR> pedidasDR(const std::vector<Lado>& lados,
                                                  std::size_t entradas) const {
        std::vector<PedidaDR> pedidas;
        for (const Lado lado : lados) {
            for (const double k : ValoresDe(resultados_.DRk)) {
                for (std::size_t entrada = 0; entrada < entradas; ++entrada) {
                    for (const double p : ValoresDe(resultados_.DR)) {
                        pedidas.push_back({lado, k, entrada, p});
                    }
                }
            }
        }
        return pedidas;
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
        r.APAk = LeerIntervalo(opciones_, exponenteAPA);
        r.NumColAPA = CuantasColumnas(CuantosCaben(r.APAk));
        Dimensionar(r.IndAPA, r.NumColAPA, cuantosArboles(),
                    [&] { return BarridoSinValores(r.APAk, exponenteAPA); });
        esperarColumnas(r.NumColAPA.valor());
        int numero = -1;
        CeldasEnElMapa celdas{programa_};
        const auto dibujo = [&](std::size_t, std::span<const TrazoAPA> trazos) { celdas.dibujar(trazos); };
        for (const double k : ValoresDe(r.APAk)) {
            columna(
                r.IndAPA, ++numero, [&] { return RotuloAPA(k); },
                [&] {
                    return CalcularAPA(arboles(), programa_.sesion.Poligono.contorno(), k, dibujo, faena_);
                });
        }
        if (const auto exponentes = ValoresDe(r.APAk); !exponentes.empty()) {
            guardarCentro(exponentes.back());
        }
    }

    void guardarCentro(double ultimoExponente) {
        if (const auto circulo = UltimoCirculoAPA(arboles(), ultimoExponente)) {
            programa_.sesion.CentroCircX = circulo->CentroCircX;
            programa_.sesion.CentroCircY = circulo->CentroCircY;
        }
    }

    /// Why the choice of competitors has no parameter, or nothing when it has some.
    [[nodiscard]] std::optional<std::string> sinParametros(FamiliaConSeleccion familia,
                                                           const Intervalo& barrido) const {
        if (ReglaElegida(opciones_, familia) == ReglaDeSeleccion::Funcion) {
            const auto& lista = opciones_.LstRich(familia);
            return lista.ListCount() == 0 ? std::optional{ListaVacia(lista)} : std::nullopt;
        }
        return BarridoSinValores(barrido, MiembroDeSeleccion(opciones_, familia));
    }

    /// A basal area factor of 0 divides, and a negative one has no root: the fault that nobody nearer has
    /// explained is its own.
    template <class Calcular>
    static std::vector<double> explicandoElBAF(ReglaDeSeleccion regla, FamiliaConSeleccion familia, double p,
                                               const Calcular& calcular) {
        const auto explicar = [&](ErrorEjecucion& error) {
            const bool esCero = p == 0 && error.numero() == fallo::divisionPorCero;
            const bool esNegativo = p < 0 && error.numero() == fallo::argumentoNoValido;
            if (regla == ReglaDeSeleccion::BAF && (esCero || esNegativo)) {
                error.porque(std::string{esCero ? "el BAF es 0" : "el BAF es negativo"} +
                             ": ponga un valor mayor en " + CampoDeBarrido(ParametroDe(familia)));
            }
        };
        return AlFallar(explicar, calcular);
    }

    void poner(Seleccion& seleccion, ReglaDeSeleccion regla, FamiliaConSeleccion familia, double p) const {
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

    /// Begins to count the trees of all columns of the family.
    void esperarColumnas(int columnas) {
        columnas_ = columnas;
        faena_.avance.empezar(static_cast<std::size_t>(columnas) * arboles().cuantos());
    }

    void columna(IndicePorColumnas& indice, int numero, const Rotulo& rotulo,
                 const std::function<std::vector<double>()>& calcular) const {
        faena_.avance.etapa(familia_ + ", columna " + std::to_string(numero + 1) + " de " +
                            std::to_string(columnas_));
        EnLugar([&] { return "columna " + rotulo(); },
                [&] {
                    const std::vector<double> valores = calcular();
                    for (int i = 0; i < static_cast<int>(valores.size()); ++i) {
                        indice(numero, i) = valores[static_cast<std::size_t>(i)];
                    }
                });
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
    Faena faena_;
    std::string familia_; ///< the one at work
    int columnas_ = 0;    ///< and how many it has
    std::optional<Arboles> arboles_;
    std::optional<Vecindad> vecindad_;
};

} // namespace

void CorrerFasesDeVecindad(Programa& programa) {
    FasesDeVecindad{programa}.correr();
}

} // namespace varo
