#include "revision/RevisarOpciones.h"

#include "basico/Texto.h"
#include "revision/Barrido.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo {

namespace {

std::size_t Pasadas(bool una, bool otra) {
    return una && otra ? 2 : 1;
}

std::size_t Pasadas(const LadosPorRevisar& lados) {
    return Pasadas(lados.bilateral, lados.unilateral);
}

std::string Dicho(const BarridoPorRevisar& barrido) {
    return "de " + Cita(barrido.desde) + " a " + Cita(barrido.hasta) + " con intervalo " + Cita(barrido.paso);
}

class RevisorDeOpciones {
public:
    RevisorDeOpciones(const Lectura& lectura, Cuaderno& cuaderno)
        : lectura_{lectura}, cuaderno_{cuaderno}, opciones_{lectura.opciones()} {}

    void revisar() {
        revisarColumnaDelTamano();
        revisarBarridos();
        revisarListas();
        revisarRotulos();
        revisarColumnasIguales();
    }

private:
    void anotar(Gravedad gravedad, Sospecha sospecha, const std::string& opcion, const std::string& que,
                const std::string& efecto, const std::string& remedio) {
        Hallazgo hallazgo;
        hallazgo.gravedad = gravedad;
        hallazgo.sospecha = sospecha;
        hallazgo.columna = opcion;
        hallazgo.que = que;
        hallazgo.efecto = efecto;
        hallazgo.remedio = remedio;
        cuaderno_.anotar(std::move(hallazgo));
    }

    void revisarColumnaDelTamano() {
        Indices consultas = IndicesDelTamano(opciones_);
        if (opciones_.independientes.areaDeMayores) {
            consultas.emplace_back(elAreaDeMayores);
        }
        const Indices vecinos = FamiliasDeVecinos(opciones_);
        if (lectura_.tamano().existe() || (consultas.empty() && vecinos.empty())) {
            return;
        }
        const bool falla = !consultas.empty();
        anotar(falla ? Gravedad::Fallo : Gravedad::Numeros, Sospecha::SinColumnaDelTamano, "",
               "No se ha elegido la columna del tamaño del tronco.",
               falla ? "Hace falta en " + EnLista(consultas) + ", y el cálculo termina en un fallo."
                     : "Se tomará por tamaño el número de la fila, y saldrá mal " + EnLista(vecinos) + ".",
               "Elija la columna en el diálogo de columnas.");
    }

    void revisarBarridos() {
        if (opciones_.AOI.activa && !opciones_.AOI.funciones.empty()) {
            const auto& aoi = opciones_.AOI;
            revisarFamilia("AOI", {aoi.k}, aoi.funciones.size() * Pasadas(aoi.lados));
        }
        if (opciones_.IDP.activa) {
            const auto& idp = opciones_.IDP;
            const bool conFunciones = idp.regla == ReglaDeCompetidores::Funcion;
            const std::size_t pasadas =
                Pasadas(idp.lados) * Pasadas(idp.conArbolCentral, idp.sinArbolCentral);
            revisarFamilia("IDP", conFunciones ? Barridos{} : Barridos{idp.parametro},
                           conFunciones ? pasadas * idp.limites.size() : pasadas);
            revisarBAF("IDP", idp.regla, idp.parametro);
        }
        if (opciones_.DR.activa) {
            const auto& dr = opciones_.DR;
            const bool conFunciones = dr.regla == ReglaDeCompetidores::Funcion;
            const std::size_t pasadas = Pasadas(dr.lados) * dr.distancias.size();
            revisarFamilia("DR", conFunciones ? Barridos{dr.k} : Barridos{dr.parametro, dr.k},
                           conFunciones ? pasadas * dr.limites.size() : pasadas);
            revisarBAF("DR", dr.regla, dr.parametro);
        }
        if (opciones_.APA.activa) {
            revisarFamilia("APA", {opciones_.APA.k}, 1);
        }
    }

    using Barridos = std::vector<BarridoPorRevisar>;

    /// `veces` columns for each combination of values.
    void revisarFamilia(const std::string& familia, const Barridos& barridos, std::size_t veces) {
        double caben = static_cast<double>(veces);
        double recorridas = caben;
        bool correctos = veces > 0; // an empty list has its own finding
        const BarridoPorRevisar* masLargo = nullptr;
        const BarridoPorRevisar* desigual = nullptr;
        std::size_t masValores = 0;
        for (const auto& barrido : barridos) {
            const auto leido = revisarBarrido(familia, barrido);
            correctos = correctos && leido;
            caben *= leido ? leido->caben : 0;
            recorridas *= leido ? static_cast<double>(leido->valores) : 0;
            if (leido && leido->valores > masValores) {
                masValores = leido->valores;
                masLargo = &barrido;
            }
            if (leido && leido->caben != static_cast<double>(leido->valores)) {
                desigual = &barrido;
            }
        }
        if (correctos && masLargo != nullptr) {
            compararColumnas(familia, std::nearbyint(caben), recorridas, *masLargo,
                             desigual != nullptr ? *desigual : *masLargo);
        }
    }

    void compararColumnas(const std::string& familia, double columnas, double recorridas,
                          const BarridoPorRevisar& masLargo, const BarridoPorRevisar& desigual) {
        constexpr double masColumnas = 32'767;
        if (columnas > masColumnas) {
            anotar(Gravedad::Fallo, Sospecha::BarridoQueNoCabe, masLargo.campo,
                   "Los valores de " + familia + ", " + Dicho(masLargo) + ", piden más de 32.767 columnas.",
                   "No caben, y el cálculo termina en un fallo.",
                   "Ponga intervalos mayores, o un último valor menor.");
        } else if (columnas != recorridas) {
            anotar(
                Gravedad::Numeros, Sospecha::BarridoConColumnaDeSobra, desigual.campo,
                "En los valores de " + familia + ", " + Dicho(desigual) +
                    ", no hay un número exacto de intervalos, o por el redondeo no se llega al último.",
                "Los resultados llevan alguna columna de ceros sin cabecera, y los títulos no caen sobre sus "
                "números.",
                "Ponga un intervalo que quepa un número exacto de veces, o haga un cálculo para cada valor.");
        }
    }

    /// Tells what is wrong with one sweep; gives it where nothing is.
    std::optional<BarridoLeido> revisarBarrido(const std::string& familia, const BarridoPorRevisar& barrido) {
        auto leido = LeerBarrido(barrido);
        if (!leido) {
            anotar(Gravedad::Fallo, Sospecha::BarridoIlegible, barrido.campo,
                   "En los valores de " + familia + ", " + Dicho(barrido) + ", hay algo que no es un número.",
                   "El cálculo termina en un fallo al leerlo.",
                   "Escriba los tres números, con coma decimal.");
            return std::nullopt;
        }
        if (leido->paso == 0 || leido->caben <= 0.5 || leido->valores == 0) {
            anotar(Gravedad::Fallo, Sospecha::BarridoSinValores, barrido.campo,
                   "Los valores de " + familia + ", " + Dicho(barrido) + ", no son ninguno.",
                   "No hay columna que calcular, y el cálculo termina en un fallo.",
                   "Ponga un último valor mayor que el primero y un intervalo mayor que 0.");
            return std::nullopt;
        }
        if (!leido->avanza) {
            anotar(Gravedad::Fallo, Sospecha::BarridoQueNoCabe, barrido.campo,
                   "En los valores de " + familia + ", " + Dicho(barrido) +
                       ", el intervalo es tan pequeño que se pierde en el redondeo.",
                   "El cálculo termina en un fallo.", "Ponga un intervalo mayor.");
            return std::nullopt;
        }
        return leido;
    }

    void revisarBAF(const std::string& familia, ReglaDeCompetidores regla, const BarridoPorRevisar& barrido) {
        const auto leido = LeerBarrido(barrido);
        if (regla != ReglaDeCompetidores::BAF || !leido || leido->valores == 0) {
            return;
        }
        const double menor = std::min(leido->desde, leido->valor(leido->valores - 1));
        if (menor > 0) {
            return;
        }
        anotar(Gravedad::Fallo, Sospecha::BafNoPositivo, barrido.campo,
               "El factor de área basimétrica (BAF) de " + familia + " es 0 o negativo: " + Dicho(barrido) +
                   ".",
               "Los competidores se eligen dividiendo por su raíz, y el cálculo termina en un fallo.",
               "Ponga un primer valor mayor que 0, por ejemplo 2.");
    }

    void revisarListas() {
        const auto vacia = [&](bool pedida, const std::vector<std::string>& lista, Gravedad gravedad,
                               const std::string& nombre, const std::string& familia) {
            if (!pedida || !lista.empty()) {
                return;
            }
            anotar(gravedad, Sospecha::FamiliaSinFuncion, nombre,
                   familia + " está activado y no tiene ninguna función en su lista.",
                   gravedad == Gravedad::Fallo
                       ? "No hay columna que calcular, y el cálculo termina en un fallo."
                       : "Se pasa por alto: los resultados no llevarán ninguna columna de " + familia + ".",
                   "Añada una función a la lista, o desactive " + familia + ".");
        };
        const auto& idp = opciones_.IDP;
        const auto& dr = opciones_.DR;
        vacia(opciones_.AOI.activa, opciones_.AOI.funciones, Gravedad::Numeros, "LstAOI", "AOI");
        vacia(idp.activa && idp.regla == ReglaDeCompetidores::Funcion, idp.limites, Gravedad::Fallo,
              "LstRich(0)", "IDP");
        vacia(dr.activa, dr.distancias, Gravedad::Fallo, "LstDist", "DR");
        vacia(dr.activa && dr.regla == ReglaDeCompetidores::Funcion, dr.limites, Gravedad::Fallo,
              "LstRich(1)", "DR");
    }

    /// The labels of the file ask other checks than the computation does.
    void revisarRotulos() {
        const auto revisarLados = [&](bool activa, const LadosPorRevisar& lados, const std::string& familia) {
            if (activa && !lados.bilateral && !lados.unilateral) {
                anotarRotulo(familia,
                             "No está marcada ni la forma bilateral ni la unilateral de " + familia + ".",
                             "Se calcula la bilateral, pero su cabecera dice unilateral.",
                             "Marque la forma que quiere.");
            }
        };
        revisarLados(opciones_.ISC.activa, opciones_.ISC.lados, "ISC");
        revisarLados(opciones_.AOI.activa && !opciones_.AOI.funciones.empty(), opciones_.AOI.lados, "AOI");
        revisarLados(opciones_.IDP.activa, opciones_.IDP.lados, "IDP");
        const auto& idp = opciones_.IDP;
        if (idp.activa && !idp.conArbolCentral && !idp.sinArbolCentral) {
            anotarRotulo("IDP", "No está marcado si IDP incluye al árbol central o no.",
                         "Se calcula con él, pero su cabecera dice que no.", "Marque Sí o No.");
        }
        const auto& lados = opciones_.DR.lados;
        const bool bilateral = !lados.unilateral;
        if (opciones_.DR.activa && Pasadas(lados) == 1 && bilateral != idp.lados.bilateral) {
            anotarRotulo(
                "DR",
                "La casilla «Bilateral» de IDP no está como la de DR, y la cabecera de DR se escribe según "
                "la de IDP.",
                bilateral ? "Se calcula la forma bilateral de DR, pero su cabecera dice unilateral."
                          : "Se calcula la forma unilateral de DR, pero su cabecera dice bilateral.",
                "Deje la casilla «Bilateral» de IDP como la de DR.");
        }
    }

    void anotarRotulo(const std::string& familia, const std::string& que, const std::string& efecto,
                      const std::string& remedio) {
        anotar(Gravedad::Numeros, Sospecha::RotuloEquivocado, familia, que, efecto, remedio);
    }

    void revisarColumnasIguales() {
        revisarTamanosIguales();
        const auto deNumeroFijo = [&](bool activa, ReglaDeCompetidores regla,
                                      const BarridoPorRevisar& barrido, const std::string& familia) {
            const auto leido = LeerBarrido(barrido);
            if (!activa || regla != ReglaDeCompetidores::NumeroFijo || !leido || leido->valores < 2) {
                return;
            }
            const auto otros = static_cast<double>(conTamano()) - 1;
            if (leido->valor(leido->valores - 2) >= otros) {
                anotar(Gravedad::Mirar, Sospecha::ColumnasIguales, barrido.campo,
                       "Los valores de " + familia + " llegan a " +
                           NumeroDicho(leido->valor(leido->valores - 1)) + " competidores, y solo hay " +
                           NumeroDicho(otros) + " árboles con tamaño además del sujeto.",
                       "Las últimas columnas saldrán iguales.", "Ponga un último valor menor.");
            }
        };
        deNumeroFijo(opciones_.IDP.activa, opciones_.IDP.regla, opciones_.IDP.parametro, "IDP");
        deNumeroFijo(opciones_.DR.activa, opciones_.DR.regla, opciones_.DR.parametro, "DR");
    }

    [[nodiscard]] std::size_t conTamano() const {
        return static_cast<std::size_t>(
            std::ranges::count_if(lectura_.arboles(), [&](std::size_t i) { return lectura_.conTamano(i); }));
    }

    /// With one size for all trees no exponent counts, and nobody is smaller than anybody.
    void revisarTamanosIguales() {
        const auto& tamano = lectura_.tamano();
        std::optional<double> primero;
        std::size_t cuantos = 0;
        for (const std::size_t i : lectura_.arboles()) {
            if (!lectura_.conTamano(i) || !tamano.esNumero(i)) {
                continue;
            }
            if (primero.value_or(tamano.numero(i)) != tamano.numero(i)) {
                return;
            }
            primero = tamano.numero(i);
            ++cuantos;
        }
        const auto barre = [](const BarridoPorRevisar& barrido) {
            const auto leido = LeerBarrido(barrido);
            return leido && leido->valores > 1;
        };
        const auto& o = opciones_;
        const Indices iguales =
            Juntos(Juntos(o.ISC.activa && Pasadas(o.ISC.lados) == 2 ? Indices{"ISC"} : Indices{},
                          o.AOI.activa && (Pasadas(o.AOI.lados) == 2 || barre(o.AOI.k)) ? Indices{"AOI"}
                                                                                        : Indices{}),
                   Juntos(o.IDP.activa && Pasadas(o.IDP.lados) == 2 ? Indices{"IDP"} : Indices{},
                          Juntos(o.DR.activa && (Pasadas(o.DR.lados) == 2 || barre(o.DR.k)) ? Indices{"DR"}
                                                                                            : Indices{},
                                 o.APA.activa && barre(o.APA.k) ? Indices{"APA"} : Indices{})));
        if (cuantos < 2 || iguales.empty()) {
            return;
        }
        anotar(Gravedad::Mirar, Sospecha::ColumnasIguales, tamano.columna().cabecera,
               "Todos los árboles tienen el mismo tamaño, " + NumeroDicho(*primero) + ".",
               "Las columnas que solo se distinguen por el exponente o por la forma saldrán iguales en " +
                   EnLista(iguales) + ".",
               "Compruebe que es la columna que quería elegir.");
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    const OpcionesPorRevisar& opciones_;
};

} // namespace

void RevisarOpciones(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeOpciones{lectura, cuaderno}.revisar();
}

} // namespace varo
