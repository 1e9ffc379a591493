#include "revision/RevisarOpciones.h"

#include "basico/Texto.h"
#include "revision/Funcion.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo {

namespace {

/// A list of functions, and its names in the options and in words.
struct ListaPorRevisar {
    const std::vector<std::string>& lineas;
    const char* nombre;
    std::string familia;
};

class RevisorDeFunciones {
public:
    RevisorDeFunciones(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {}

    void revisar() {
        const auto& opciones = lectura_.opciones();
        if (opciones.AOI.activa) {
            revisarRadios({opciones.AOI.funciones, "LstAOI", "AOI"});
        }
        if (opciones.IDP.activa && opciones.IDP.regla == ReglaDeCompetidores::Funcion) {
            revisarLimites({opciones.IDP.limites, "LstRich(0)", "IDP"});
        }
        if (opciones.DR.activa) {
            revisarPesos({opciones.DR.distancias, "LstDist", "DR"});
        }
        if (opciones.DR.activa && opciones.DR.regla == ReglaDeCompetidores::Funcion) {
            revisarLimites({opciones.DR.limites, "LstRich(1)", "DR"});
        }
    }

private:
    void anotar(Gravedad gravedad, Sospecha sospecha, const ListaPorRevisar& lista, const std::string& linea,
                const std::string& que, const std::string& efecto, const std::string& remedio) {
        Hallazgo hallazgo;
        hallazgo.gravedad = gravedad;
        hallazgo.sospecha = sospecha;
        hallazgo.columna = lista.nombre;
        hallazgo.texto = linea;
        hallazgo.que = que;
        hallazgo.efecto = efecto;
        hallazgo.remedio = remedio;
        cuaderno_.anotar(std::move(hallazgo));
    }

    /// The functions of a list by line, as far as they can be read; tells the others and those that are
    /// equal.
    std::vector<std::optional<FuncionEscrita>> leer(const ListaPorRevisar& lista) {
        std::vector<std::optional<FuncionEscrita>> funciones;
        for (const auto& linea : lista.lineas) {
            funciones.push_back(LeerFuncionEscrita(linea));
            if (!funciones.back() || Recortar(linea).empty()) {
                funciones.back().reset();
                anotar(Gravedad::Fallo, Sospecha::FuncionQueFalla, lista, linea,
                       "La línea " + std::to_string(funciones.size()) + " de la lista de " + lista.familia +
                           " no es una función" + (Recortar(linea).empty() ? ": está en blanco." : "."),
                       "El cálculo termina en un fallo al leerla.",
                       "Quite esa línea de la lista de funciones de " + lista.familia + " en las opciones.");
                continue;
            }
            revisarRepetida(lista, funciones, linea);
        }
        return funciones;
    }

    void revisarRepetida(const ListaPorRevisar& lista,
                         const std::vector<std::optional<FuncionEscrita>>& funciones,
                         const std::string& linea) {
        for (std::size_t otra = 0; otra + 1 < funciones.size(); ++otra) {
            if (funciones[otra] && Simplificada(*funciones[otra]) == Simplificada(*funciones.back())) {
                anotar(Gravedad::Mirar, Sospecha::ColumnasIguales, lista, linea,
                       "Las líneas " + std::to_string(otra + 1) + " y " + std::to_string(funciones.size()) +
                           " de la lista de " + lista.familia + " son la misma función.",
                       "Sus columnas saldrán iguales.", "Quite una de las dos.");
                return;
            }
        }
    }

    void revisarRadios(const ListaPorRevisar& lista) {
        const auto funciones = leer(lista);
        for (std::size_t n = 0; n < funciones.size(); ++n) {
            if (funciones[n]) {
                revisarRadio(lista, *funciones[n], lista.lineas[n]);
            }
        }
    }

    void revisarRadio(const ListaPorRevisar& lista, const FuncionEscrita& funcion, const std::string& linea) {
        for (const std::size_t i : lectura_.arboles()) {
            if (!lectura_.conTamano(i) || !lectura_.tamano().esNumero(i)) {
                continue;
            }
            const auto radio = ValorDeSuma(funcion.suma, lectura_.diametro(i));
            const bool noEsSujeto = lectura_.tamano().texto(i) == "0";
            if (!radio || (*radio == 0 && !noEsSujeto)) {
                anotar(Gravedad::Fallo, Sospecha::FuncionQueFalla, lista, linea,
                       "El radio de influencia d" + lectura_.nombrar(i) +
                           (radio ? " sale 0 con esta función." : " no se puede calcular con esta función."),
                       "AOI divide por él, y puede terminar en un fallo.",
                       "Cambie los parámetros de la función.");
                return;
            }
            if (*radio < 0) {
                anotar(Gravedad::Numeros, Sospecha::FuncionQueFalla, lista, linea,
                       "El radio de influencia d" + lectura_.nombrar(i) + " sale negativo con esta función.",
                       "Los solapes de ese árbol no valen.", "Cambie los parámetros de la función.");
                return;
            }
        }
    }

    void revisarLimites(const ListaPorRevisar& lista) {
        const auto funciones = leer(lista);
        for (std::size_t n = 0; n < funciones.size(); ++n) {
            if (funciones[n]) {
                revisarLimite(lista, *funciones[n], lista.lineas[n]);
            }
        }
    }

    void revisarLimite(const ListaPorRevisar& lista, const FuncionEscrita& funcion,
                       const std::string& linea) {
        const auto coma = funcion.textoDeA.find(',');
        if (!funcion.hiperbolica && coma != std::string::npos &&
            funcion.textoDeA.find_first_not_of('0', coma + 1) != std::string::npos) {
            anotar(Gravedad::Numeros, Sospecha::FuncionCortada, lista, linea,
                   "La A de la función de Richards, " + funcion.textoDeA +
                       ", se calcula sin sus decimales: " + funcion.textoDeA.substr(0, coma) + ".",
                   "La distancia a los competidores sale más corta de lo que se pide.",
                   "Ponga una A entera, o use la función hiperbólica.");
        }
        bool algunoPositivo = false;
        bool alguno = false;
        for (const std::size_t i : lectura_.arboles()) {
            if (!lectura_.conTamano(i) || !lectura_.tamano().esNumero(i)) {
                continue;
            }
            constexpr double cmPorMetro = 100;
            const auto limite = ValorDeLimite(funcion, lectura_.diametro(i) / cmPorMetro);
            if (!limite) {
                anotar(
                    Gravedad::Fallo, Sospecha::FuncionQueFalla, lista, linea,
                    "La distancia límite d" + lectura_.nombrar(i) + " no se puede calcular con esta función.",
                    lista.familia + " puede terminar en un fallo.", "Cambie los parámetros de la función.");
                return;
            }
            alguno = true;
            algunoPositivo = algunoPositivo || *limite > 0;
        }
        if (alguno && !algunoPositivo) {
            anotar(Gravedad::Numeros, Sospecha::FuncionQueFalla, lista, linea,
                   "La distancia límite no es mayor que 0 para ningún árbol con esta función.",
                   "Ningún árbol tendrá competidores, " + std::string{lista.familia == "IDP" ? "e " : "y "} +
                       lista.familia + " dará 0 a todos.",
                   "Cambie los parámetros de la función; el diámetro entra en metros.");
        }
    }

    void revisarPesos(const ListaPorRevisar& lista) {
        const auto funciones = leer(lista);
        for (std::size_t n = 0; n < funciones.size(); ++n) {
            // A weight that fails at two distances fails at all of them.
            if (funciones[n] && !ValorDePeso(*funciones[n], 1) && !ValorDePeso(*funciones[n], 10)) {
                anotar(Gravedad::Fallo, Sospecha::FuncionQueFalla, lista, lista.lineas[n],
                       "El peso por la distancia no se puede calcular con esta función.",
                       "DR termina en un fallo.", "Cambie los parámetros de la función.");
            }
        }
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
};

} // namespace

void RevisarFunciones(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeFunciones{lectura, cuaderno}.revisar();
}

} // namespace varo
