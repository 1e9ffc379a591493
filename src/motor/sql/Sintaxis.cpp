#include "motor/sql/Sintaxis.h"

#include "basico/Texto.h"
#include "motor/sql/Lexico.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varo::sql {

namespace {

using Clase = Pieza::Clase;

constexpr int anidamientoMaximo = 100;
constexpr double topMaximo = 2147483647;

// How tight an operator binds.
constexpr int nivelAlguno = 1;
constexpr int nivelAmbos = 2;
constexpr int nivelNo = 3;
constexpr int nivelComparacion = 4;
constexpr int nivelSuma = 5;
constexpr int nivelProducto = 6;
constexpr int nivelSigno = 7;
constexpr int nivelPotencia = 8;

struct Binario {
    std::string_view escrito;
    Operacion operacion;
    int nivel;
};

constexpr std::array<Binario, 13> binarios{{
    {"OR", Operacion::Alguno, nivelAlguno},
    {"AND", Operacion::Ambos, nivelAmbos},
    {"=", Operacion::Igual, nivelComparacion},
    {"<>", Operacion::Distinto, nivelComparacion},
    {"<", Operacion::Menor, nivelComparacion},
    {">", Operacion::Mayor, nivelComparacion},
    {"<=", Operacion::MenorOIgual, nivelComparacion},
    {">=", Operacion::MayorOIgual, nivelComparacion},
    {"+", Operacion::Suma, nivelSuma},
    {"-", Operacion::Resta, nivelSuma},
    {"*", Operacion::Producto, nivelProducto},
    {"/", Operacion::Cociente, nivelProducto},
    {"^", Operacion::Potencia, nivelPotencia},
}};

constexpr std::array<std::pair<std::string_view, Agregado>, 5> agregados{{
    {"Sum", Agregado::Suma},
    {"Avg", Agregado::Media},
    {"Max", Agregado::Maximo},
    {"Min", Agregado::Minimo},
    {"Count", Agregado::Cuenta},
}};

class Analizador {
public:
    explicit Analizador(std::string_view texto) : texto_{texto}, piezas_{Trocear(texto)} {}

    Consulta analizar();

private:
    std::size_t top();
    Elemento unElemento();
    std::optional<Agregado> comienzoDeAgregado();
    Orden unOrden();
    void comprobarResumen(const Consulta& consulta) const;

    ExpresionPostfija unaExpresion();
    /// Appends what stands up to the first operator that binds looser than `nivelMinimo`.
    void operaciones(ExpresionPostfija& expresion, int nivelMinimo);
    void unOperando(ExpresionPostfija& expresion, int nivelMinimo);
    void prefijado(ExpresionPostfija& expresion, int nivel);
    void entreParentesis(ExpresionPostfija& expresion);
    void termino(ExpresionPostfija& expresion);
    [[nodiscard]] const Binario* operadorAqui() const;
    void entrar();

    [[nodiscard]] std::string tomarNombre(const std::string& queFalta);
    [[nodiscard]] const Pieza& actual() const { return piezas_[lugar_]; }
    [[nodiscard]] const Pieza& siguiente() const { return piezas_[std::min(lugar_ + 1, piezas_.size() - 1)]; }
    [[nodiscard]] bool es(std::string_view palabraOSigno) const;
    bool tomar(std::string_view palabraOSigno);
    void exigir(std::string_view palabraOSigno);
    [[noreturn]] void romper(const std::string& motivo) const {
        throw SintaxisRota(texto_, actual().comienzo, motivo);
    }

    std::string_view texto_;
    std::vector<Pieza> piezas_;
    std::size_t lugar_ = 0;
    int anidamiento_ = 0;
};

Consulta Analizador::analizar() {
    Consulta consulta;
    exigir("SELECT");
    if (tomar("TOP")) {
        consulta.primeras = top();
    }
    do {
        consulta.elementos.push_back(unElemento());
    } while (tomar(","));
    exigir("FROM");
    consulta.tabla = tomarNombre("se esperaba el nombre de una tabla");
    if (tomar("WHERE")) {
        consulta.condicion = unaExpresion();
    }
    if (es("ORDER")) {
        consulta.orden = unOrden();
    }
    if (actual().clase != Clase::Fin) {
        romper("la consulta ya estaba completa");
    }
    comprobarResumen(consulta);
    return consulta;
}

std::size_t Analizador::top() {
    const auto& pieza = actual();
    const bool soloCifras =
        pieza.clase == Clase::Numero && pieza.texto.find_first_not_of("0123456789") == std::string::npos;
    if (!soloCifras || pieza.numero > topMaximo) {
        romper("detrás de TOP se esperaba un número entero de filas");
    }
    ++lugar_;
    return static_cast<std::size_t>(pieza.numero);
}

Elemento Analizador::unElemento() {
    Elemento elemento;
    elemento.agregado = comienzoDeAgregado();
    if (!elemento.agregado) {
        elemento.expresion = unaExpresion();
    } else {
        if (elemento.agregado == Agregado::Cuenta && tomar("*")) {
            // Count(*) counts every row: a constant is Null in none.
            elemento.expresion = {.pasos = {{Operacion::Constante, 0}}, .campos = {}, .constantes = {1.0}};
        } else {
            elemento.expresion = unaExpresion();
        }
        exigir(")");
    }
    if (tomar("AS")) {
        elemento.alias = tomarNombre("se esperaba un nombre para la columna");
    }
    return elemento;
}

/// Takes the function and its opening parenthesis.
std::optional<Agregado> Analizador::comienzoDeAgregado() {
    if (actual().clase != Clase::Palabra || siguiente().clase != Clase::Signo || siguiente().texto != "(") {
        return std::nullopt;
    }
    const auto* hallado = std::ranges::find_if(
        agregados, [&](const auto& agregado) { return MismoNombre(agregado.first, actual().texto); });
    if (hallado == agregados.end()) {
        return std::nullopt;
    }
    lugar_ += 2;
    return hallado->second;
}

Orden Analizador::unOrden() {
    exigir("ORDER");
    exigir("BY");
    Orden orden{.clave = unaExpresion()};
    orden.descendente = tomar("DESC");
    if (!orden.descendente) {
        tomar("ASC");
    }
    return orden;
}

void Analizador::comprobarResumen(const Consulta& consulta) const {
    const auto esAgregado = [](const Elemento& elemento) { return elemento.agregado.has_value(); };
    if (std::ranges::none_of(consulta.elementos, esAgregado)) {
        return;
    }
    const std::string no = "una consulta que resume las filas no puede ";
    if (!std::ranges::all_of(consulta.elementos, esAgregado)) {
        romper(no + "llevar columnas sin resumir");
    }
    if (consulta.orden) {
        romper(no + "ordenarlas");
    }
}

ExpresionPostfija Analizador::unaExpresion() {
    ExpresionPostfija expresion;
    operaciones(expresion, nivelAlguno);
    return expresion;
}

void Analizador::operaciones(ExpresionPostfija& expresion, int nivelMinimo) {
    unOperando(expresion, nivelMinimo);
    for (const auto* operador = operadorAqui(); operador != nullptr && operador->nivel >= nivelMinimo;
         operador = operadorAqui()) {
        ++lugar_;
        operaciones(expresion, operador->nivel + 1);
        expresion.pasos.push_back({operador->operacion});
    }
}

const Binario* Analizador::operadorAqui() const {
    const auto* hallado =
        std::ranges::find_if(binarios, [&](const Binario& binario) { return es(binario.escrito); });
    return hallado == binarios.end() ? nullptr : hallado;
}

void Analizador::unOperando(ExpresionPostfija& expresion, int nivelMinimo) {
    if (nivelMinimo <= nivelNo && tomar("NOT")) {
        prefijado(expresion, nivelNo);
        expresion.pasos.push_back({Operacion::No});
    } else if (tomar("-")) {
        // The sign takes a power with it, -2^2 = -4, unless it stands inside an exponent: 2^-1.
        prefijado(expresion, std::max(nivelSigno, nivelMinimo));
        expresion.pasos.push_back({Operacion::Negacion});
    } else if (tomar("+")) {
        prefijado(expresion, std::max(nivelSigno, nivelMinimo));
    } else if (tomar("(")) {
        entreParentesis(expresion);
    } else {
        termino(expresion);
    }
}

void Analizador::prefijado(ExpresionPostfija& expresion, int nivel) {
    entrar();
    operaciones(expresion, nivel);
    --anidamiento_;
}

void Analizador::entreParentesis(ExpresionPostfija& expresion) {
    entrar();
    operaciones(expresion, nivelAlguno);
    exigir(")");
    --anidamiento_;
}

void Analizador::entrar() {
    if (++anidamiento_ > anidamientoMaximo) {
        romper("hay demasiados paréntesis o signos unos dentro de otros");
    }
}

void Analizador::termino(ExpresionPostfija& expresion) {
    const auto& pieza = actual();
    if (pieza.clase == Clase::Numero || pieza.clase == Clase::Texto) {
        expresion.pasos.push_back({Operacion::Constante, expresion.constantes.size()});
        expresion.constantes.push_back(pieza.clase == Clase::Numero ? Valor{pieza.numero}
                                                                    : Valor{pieza.texto});
        ++lugar_;
        return;
    }
    const auto nombre = tomarNombre("se esperaba un nombre, un número o un texto");
    if (pieza.clase == Clase::Palabra && es("(")) {
        throw SintaxisRota(texto_, pieza.comienzo, "la función «" + nombre + "» no puede ir aquí");
    }
    const auto conocido = std::ranges::find(expresion.campos, nombre);
    expresion.pasos.push_back(
        {Operacion::Campo, static_cast<std::size_t>(conocido - expresion.campos.begin())});
    if (conocido == expresion.campos.end()) {
        expresion.campos.push_back(nombre);
    }
}

std::string Analizador::tomarNombre(const std::string& queFalta) {
    const auto& pieza = actual();
    if (pieza.clase == Clase::Palabra && EsPalabraReservada(pieza.texto)) {
        romper(queFalta + ", y «" + pieza.texto + "» es una palabra reservada");
    }
    if (pieza.clase != Clase::Palabra && pieza.clase != Clase::Nombre) {
        romper(queFalta);
    }
    ++lugar_;
    return pieza.texto;
}

bool Analizador::es(std::string_view palabraOSigno) const {
    const auto& pieza = actual();
    return (pieza.clase == Clase::Palabra || pieza.clase == Clase::Signo) &&
           pieza.texto.size() == palabraOSigno.size() && MismoNombre(pieza.texto, palabraOSigno);
}

bool Analizador::tomar(std::string_view palabraOSigno) {
    const bool esta = es(palabraOSigno);
    lugar_ += esta ? 1 : 0;
    return esta;
}

void Analizador::exigir(std::string_view palabraOSigno) {
    if (!tomar(palabraOSigno)) {
        romper("se esperaba «" + std::string{palabraOSigno} + "»");
    }
}

} // namespace

Consulta Analizar(std::string_view texto) {
    return Analizador{texto}.analizar();
}

} // namespace varo::sql
