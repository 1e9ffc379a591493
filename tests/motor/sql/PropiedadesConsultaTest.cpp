// Random queries against a second evaluation, written the naive way: a tree walked by recursion, rows sorted
// by counting what goes before them.
#include "motor/BaseDatos.h"
#include "motor/TablasDePrueba.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace varo {

namespace {

using prueba::TablaCon;

/// An operator, a sign, NOT, a field "c0" to "c3" or a number as it is written.
struct Nodo {
    std::string escrito;
    std::shared_ptr<const Nodo> izquierdo;
    std::shared_ptr<const Nodo> derecho;
};
using Arbol = std::shared_ptr<const Nodo>;

/// A number or Null; a truth value is -1 or 0.
using Dato = std::optional<double>;
using Fila = std::vector<Dato>;

struct Fallo {
    int numero = 0;
};

const std::map<std::string, int> niveles{{"OR", 1}, {"AND", 2}, {"=", 4},  {"<>", 4}, {"<", 4},
                                         {">", 4},  {"<=", 4},  {">=", 4}, {"+", 5},  {"-", 5},
                                         {"*", 6},  {"/", 6},   {"^", 8}};

int Nivel(const Arbol& arbol) {
    if (!arbol->izquierdo) {
        return 9;
    }
    if (!arbol->derecho) {
        return arbol->escrito == "NOT" ? 3 : 7;
    }
    return niveles.at(arbol->escrito);
}

std::string Escrito(const Arbol& arbol);

std::string EntreParentesisSi(bool hacenFalta, const Arbol& arbol) {
    return hacenFalta ? "(" + Escrito(arbol) + ")" : Escrito(arbol);
}

/// With no more parentheses than it needs.
std::string Escrito(const Arbol& arbol) {
    const auto& [escrito, izquierdo, derecho] = *arbol;
    if (!izquierdo) {
        return escrito;
    }
    const int nivel = Nivel(arbol);
    if (!derecho) {
        return escrito + " " + EntreParentesisSi(Nivel(izquierdo) < nivel, izquierdo);
    }
    return EntreParentesisSi(Nivel(izquierdo) < nivel, izquierdo) + " " + escrito + " " +
           EntreParentesisSi(Nivel(derecho) <= nivel, derecho);
}

double SinDesbordar(double numero) {
    if (!std::isfinite(numero)) {
        throw Fallo{fallo::desbordamiento};
    }
    return numero;
}

double Potenciado(double base, double exponente) {
    if (base == 0 && exponente < 0) {
        throw Fallo{fallo::divisionPorCero};
    }
    if (base < 0 && exponente != std::floor(exponente)) {
        throw Fallo{fallo::argumentoNoValido};
    }
    return SinDesbordar(std::pow(base, exponente));
}

double Dividido(double a, double b) {
    if (b == 0) {
        throw Fallo{fallo::divisionPorCero};
    }
    return SinDesbordar(a / b);
}

double Verdadero(bool cierto) {
    return cierto ? -1 : 0;
}

/// Kleene's tables: false, unknown and true are 0, 1 and 2; AND is the least, OR the greatest.
Dato TresValores(const std::string& operador, Dato a, Dato b) {
    const auto grado = [](Dato dato) { return !dato ? 1 : *dato == 0 ? 0 : 2; };
    const int dado = operador == "AND" ? std::min(grado(a), grado(b)) : std::max(grado(a), grado(b));
    return dado == 1 ? Dato{} : Dato{Verdadero(dado == 2)};
}

double Operado(const std::string& operador, double a, double b) {
    if (operador == "+") {
        return SinDesbordar(a + b);
    }
    if (operador == "-") {
        return SinDesbordar(a - b);
    }
    if (operador == "*") {
        return SinDesbordar(a * b);
    }
    if (operador == "/") {
        return Dividido(a, b);
    }
    if (operador == "^") {
        return Potenciado(a, b);
    }
    const bool admiteIgual = operador == "=" || operador == "<=" || operador == ">=";
    const bool admiteMenor = operador == "<" || operador == "<=" || operador == "<>";
    const bool admiteMayor = operador == ">" || operador == ">=" || operador == "<>";
    return Verdadero((a == b && admiteIgual) || (a < b && admiteMenor) || (a > b && admiteMayor));
}

double Numero(const std::string& escrito) {
    double numero = 0;
    std::from_chars(escrito.data(), escrito.data() + escrito.size(), numero);
    return numero;
}

Dato Calculado(const Arbol& arbol, const Fila& fila) {
    const auto& [escrito, izquierdo, derecho] = *arbol;
    if (!izquierdo) {
        return escrito.front() == 'c' ? fila.at(static_cast<std::size_t>(escrito[1] - '0'))
                                      : Dato{Numero(escrito)};
    }
    const auto a = Calculado(izquierdo, fila);
    if (!derecho) {
        return !a ? a : escrito == "NOT" ? Verdadero(*a == 0) : escrito == "-" ? -*a : *a;
    }
    const auto b = Calculado(derecho, fila);
    if (escrito == "AND" || escrito == "OR") {
        return TresValores(escrito, a, b);
    }
    return a && b ? Dato{Operado(escrito, *a, *b)} : Dato{};
}

rc::Gen<Arbol> ArbolAlAzar(int hondo) {
    auto hoja = rc::gen::map(rc::gen::elementOf(std::vector<std::string>{
                                 "c0", "c1", "c2", "c3", "0", "1", "2", "3", "0.5", ".25", "1e200", "7."}),
                             [](std::string escrito) {
                                 return std::make_shared<const Nodo>(Nodo{std::move(escrito), {}, {}});
                             });
    if (hondo == 0) {
        return hoja;
    }
    const auto unario = rc::gen::apply(
        [](std::string escrito, Arbol a) {
            return std::make_shared<const Nodo>(Nodo{std::move(escrito), std::move(a), {}});
        },
        rc::gen::elementOf(std::vector<std::string>{"-", "-", "+", "NOT"}),
        rc::gen::lazy([=] { return ArbolAlAzar(hondo - 1); }));
    const auto binario = rc::gen::apply(
        [](std::string escrito, Arbol a, Arbol b) {
            return std::make_shared<const Nodo>(Nodo{std::move(escrito), std::move(a), std::move(b)});
        },
        rc::gen::elementOf(std::vector<std::string>{"+", "-", "*", "/", "^", "+", "*", "=", "<>", "<", ">",
                                                    "<=", ">=", "AND", "OR"}),
        rc::gen::lazy([=] { return ArbolAlAzar(hondo - 1); }),
        rc::gen::lazy([=] { return ArbolAlAzar(hondo - 1); }));
    return rc::gen::weightedOneOf<Arbol>({{2, hoja}, {2, unario}, {6, binario}});
}

rc::Gen<Dato> DatoAlAzar() {
    return rc::gen::oneOf(rc::gen::just(Dato{}),
                          rc::gen::map(rc::gen::inRange(-8, 9), [](int n) { return Dato{n / 2.0}; }));
}

rc::Gen<std::vector<Fila>> FilasAlAzar() {
    return rc::gen::container<std::vector<Fila>>(rc::gen::container<Fila>(4, DatoAlAzar()));
}

Valor Celda(const Dato& dato) {
    return dato ? Valor{*dato} : Valor{Nulo{}};
}

BaseDatos Base(const std::vector<Fila>& filas) {
    std::vector<std::vector<Valor>> celdas;
    for (const auto& fila : filas) {
        auto& nueva = celdas.emplace_back();
        for (const auto& dato : fila) {
            nueva.push_back(Celda(dato));
        }
    }
    return BaseDatos{{TablaCon("t", {"c0", "c1", "c2", "c3"}, std::move(celdas))}};
}

/// Its number, for truth values too.
Dato DatoDe(const Valor& valor) {
    const auto* verdad = std::get_if<bool>(&valor);
    return EsNulo(valor)       ? Dato{}
           : verdad != nullptr ? Dato{Verdadero(*verdad)}
                               : Dato{std::get<double>(valor)};
}

std::vector<Dato> PrimeraColumna(Recordset filas) {
    std::vector<Dato> columna;
    for (; !filas.Eof(); filas.MoveNext()) {
        columna.push_back(DatoDe(filas.Fields(0).Value));
    }
    return columna;
}

/// What comes of it: a list of values or the number of a fault.
struct Desenlace {
    std::vector<Dato> valores;
    int fallo = 0;
    friend bool operator==(const Desenlace&, const Desenlace&) = default;
    friend std::ostream& operator<<(std::ostream& salida, const Desenlace& desenlace) {
        salida << "fallo " << desenlace.fallo << ":";
        for (const auto& valor : desenlace.valores) {
            salida << ' ' << (valor ? std::to_string(*valor) : "nulo");
        }
        return salida;
    }
};

Desenlace DelMotor(const std::vector<Fila>& filas, const std::string& sql) {
    try {
        return {PrimeraColumna(Base(filas).OpenRecordset(sql)), 0};
    } catch (const ErrorEjecucion& error) {
        return {{}, error.numero()};
    }
}

template <class Calculo>
Desenlace Ingenuo(Calculo calculo) {
    try {
        return {calculo(), 0};
    } catch (const Fallo& hallado) {
        return {{}, hallado.numero};
    }
}

RC_GTEST_PROP(PropiedadesConsulta, UnaExpresionValeLoMismoCalculadaAparte, ()) {
    const auto arbol = *ArbolAlAzar(5);
    const auto fila = *rc::gen::container<Fila>(4, DatoAlAzar());
    const auto texto = Escrito(arbol);
    RC_LOG() << texto;
    RC_ASSERT(DelMotor({fila}, "SELECT " + texto + " FROM t") ==
              Ingenuo([&] { return std::vector<Dato>{Calculado(arbol, fila)}; }));
}

std::vector<Fila> Tomadas(const std::vector<Fila>& filas, const Arbol& condicion) {
    std::vector<Fila> tomadas;
    for (const auto& fila : filas) {
        const auto cierto = Calculado(condicion, fila);
        if (cierto && *cierto != 0) {
            tomadas.push_back(fila);
        }
    }
    return tomadas;
}

RC_GTEST_PROP(PropiedadesConsulta, ConLaCondicionQuedanLasFilasEnQueEsCierta, ()) {
    const auto condicion = *ArbolAlAzar(3);
    const auto filas = *FilasAlAzar();
    const auto texto = Escrito(condicion);
    RC_LOG() << texto;
    RC_ASSERT(DelMotor(filas, "SELECT c0 FROM t WHERE " + texto) == Ingenuo([&] {
                  std::vector<Dato> columna;
                  for (const auto& fila : Tomadas(filas, condicion)) {
                      columna.push_back(fila[0]);
                  }
                  return columna;
              }));
}

Dato Resumido(const std::string& funcion, const std::vector<Dato>& datos) {
    double cuenta = 0;
    double suma = 0;
    Dato mayor;
    Dato menor;
    for (const auto& dato : datos) {
        if (!dato) {
            continue;
        }
        ++cuenta;
        suma += *dato;
        mayor = !mayor || *dato > *mayor ? dato : mayor;
        menor = !menor || *dato < *menor ? dato : menor;
    }
    if (funcion == "Count") {
        return cuenta;
    }
    if (cuenta == 0) {
        return {};
    }
    return funcion == "Sum" ? suma : funcion == "Avg" ? suma / cuenta : funcion == "Max" ? mayor : menor;
}

RC_GTEST_PROP(PropiedadesConsulta, LosResumenesSonLosDeUnRecorrido, ()) {
    const auto filas = *FilasAlAzar();
    for (const std::string funcion : {"Sum", "Avg", "Max", "Min", "Count"}) {
        std::vector<Dato> datos;
        for (const auto& fila : filas) {
            if (fila[1] && *fila[1] > 0) {
                datos.push_back(fila[0]);
            }
        }
        RC_ASSERT(DelMotor(filas, "SELECT " + funcion + "(c0) FROM t WHERE c1 > 0") ==
                  (Desenlace{{Resumido(funcion, datos)}, 0}));
    }
}

/// Before: less, Null before all; the other way round when descending.
bool VaAntes(const Dato& a, const Dato& b, bool descendente) {
    return descendente ? VaAntes(b, a, false) : b && (!a || *a < *b);
}

/// A row belongs to the first n, ties included, when fewer than n go before it.
std::vector<Dato> PrimerasIngenuas(const std::vector<Fila>& filas, std::size_t cuantas, bool descendente) {
    std::map<std::pair<std::size_t, std::size_t>, Dato> porLugar;
    for (std::size_t i = 0; i < filas.size(); ++i) {
        std::size_t antes = 0;
        for (const auto& otra : filas) {
            antes += VaAntes(otra[1], filas[i][1], descendente) ? 1 : 0;
        }
        if (antes < cuantas) {
            porLugar[{antes, i}] = filas[i][0];
        }
    }
    std::vector<Dato> primeras;
    primeras.reserve(porLugar.size());
    for (const auto& [lugar, dato] : porLugar) {
        primeras.push_back(dato);
    }
    return primeras;
}

RC_GTEST_PROP(PropiedadesConsulta, TopDaLasFilasQueTienenMenosQueNDelante, ()) {
    const auto filas = *FilasAlAzar();
    const auto cuantas = *rc::gen::inRange<std::size_t>(0, 12);
    const auto descendente = *rc::gen::arbitrary<bool>();
    const auto sql =
        "SELECT TOP " + std::to_string(cuantas) + " c0 FROM t ORDER BY c1" + (descendente ? " DESC" : "");
    RC_ASSERT(DelMotor(filas, sql) == (Desenlace{PrimerasIngenuas(filas, cuantas, descendente), 0}));
}

} // namespace

} // namespace varo
