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
    {"OR", Operacion::alguno, nivelAlguno},
    {"AND", Operacion::ambos, nivelAmbos},
    {"=", Operacion::igual, nivelComparacion},
    {"<>", Operacion::distinto, nivelComparacion},
    {"<", Operacion::menor, nivelComparacion},
    {">", Operacion::mayor, nivelComparacion},
    {"<=", Operacion::menorOIgual, nivelComparacion},
    {">=", Operacion::mayorOIgual, nivelComparacion},
    {"+", Operacion::suma, nivelSuma},
    {"-", Operacion::resta, nivelSuma},
    {"*", Operacion::producto, nivelProducto},
    {"/", Operacion::cociente, nivelProducto},
    {"^", Operacion::potencia, nivelPotencia},
}};

constexpr std::array<std::pair<std::string_view, Agregado>, 5> agregados{{
    {"Sum", Agregado::suma},
    {"Avg", Agregado::media},
    {"Max", Agregado::maximo},
    {"Min", Agregado::minimo},
    {"Count", Agregado::cuenta},
}};

class Analizador {
public:
    explicit Analizador(std::string_view texto) : texto_{texto}, piezas_{Trocear(texto)} {}

    Consulta Analizar();

private:
    std::size_t Top();
    Elemento UnElemento();
    std::optional<Agregado> ComienzoDeAgregado();
    Orden UnOrden();
    void ComprobarResumen(const Consulta& consulta) const;

    Expresion UnaExpresion();
    /// Appends what stands up to the first operator that binds looser than `nivelMinimo`.
    void Operaciones(Expresion& expresion, int nivelMinimo);
    void UnOperando(Expresion& expresion, int nivelMinimo);
    void Prefijado(Expresion& expresion, int nivel);
    void EntreParentesis(Expresion& expresion);
    void Termino(Expresion& expresion);
    [[nodiscard]] const Binario* OperadorAqui() const;
    void Entrar();

    [[nodiscard]] std::string Nombre(const std::string& queFalta);
    [[nodiscard]] const Pieza& Actual() const { return piezas_[lugar_]; }
    [[nodiscard]] const Pieza& Siguiente() const { return piezas_[std::min(lugar_ + 1, piezas_.size() - 1)]; }
    [[nodiscard]] bool Es(std::string_view palabraOSigno) const;
    bool Tomar(std::string_view palabraOSigno);
    void Exigir(std::string_view palabraOSigno);
    [[noreturn]] void Romper(const std::string& motivo) const {
        throw SintaxisRota(texto_, Actual().comienzo, motivo);
    }

    std::string_view texto_;
    std::vector<Pieza> piezas_;
    std::size_t lugar_ = 0;
    int anidamiento_ = 0;
};

Consulta Analizador::Analizar() {
    Consulta consulta;
    Exigir("SELECT");
    if (Tomar("TOP")) {
        consulta.primeras = Top();
    }
    do {
        consulta.elementos.push_back(UnElemento());
    } while (Tomar(","));
    Exigir("FROM");
    consulta.tabla = Nombre("se esperaba el nombre de una tabla");
    if (Tomar("WHERE")) {
        consulta.condicion = UnaExpresion();
    }
    if (Es("ORDER")) {
        consulta.orden = UnOrden();
    }
    if (Actual().clase != Clase::fin) {
        Romper("la consulta ya estaba completa");
    }
    ComprobarResumen(consulta);
    return consulta;
}

std::size_t Analizador::Top() {
    const auto& pieza = Actual();
    const bool soloCifras =
        pieza.clase == Clase::numero && pieza.texto.find_first_not_of("0123456789") == std::string::npos;
    if (!soloCifras || pieza.numero > topMaximo) {
        Romper("detrás de TOP se esperaba un número entero de filas");
    }
    ++lugar_;
    return static_cast<std::size_t>(pieza.numero);
}

Elemento Analizador::UnElemento() {
    Elemento elemento;
    elemento.agregado = ComienzoDeAgregado();
    if (!elemento.agregado) {
        elemento.expresion = UnaExpresion();
    } else {
        if (elemento.agregado == Agregado::cuenta && Tomar("*")) {
            // Count(*) counts the rows: something that is Null in none of them.
            elemento.expresion = {.pasos = {{Operacion::constante, 0}}, .campos = {}, .constantes = {1.0}};
        } else {
            elemento.expresion = UnaExpresion();
        }
        Exigir(")");
    }
    if (Tomar("AS")) {
        elemento.alias = Nombre("se esperaba un nombre para la columna");
    }
    return elemento;
}

/// Takes the function and its opening parenthesis.
std::optional<Agregado> Analizador::ComienzoDeAgregado() {
    if (Actual().clase != Clase::palabra || Siguiente().clase != Clase::signo || Siguiente().texto != "(") {
        return std::nullopt;
    }
    const auto* hallado = std::ranges::find_if(
        agregados, [&](const auto& agregado) { return MismoNombre(agregado.first, Actual().texto); });
    if (hallado == agregados.end()) {
        return std::nullopt;
    }
    lugar_ += 2;
    return hallado->second;
}

Orden Analizador::UnOrden() {
    Exigir("ORDER");
    Exigir("BY");
    Orden orden{.clave = UnaExpresion()};
    orden.descendente = Tomar("DESC");
    if (!orden.descendente) {
        Tomar("ASC");
    }
    return orden;
}

void Analizador::ComprobarResumen(const Consulta& consulta) const {
    const auto esAgregado = [](const Elemento& elemento) { return elemento.agregado.has_value(); };
    if (std::ranges::none_of(consulta.elementos, esAgregado)) {
        return;
    }
    const std::string no = "una consulta que resume las filas no puede ";
    if (!std::ranges::all_of(consulta.elementos, esAgregado)) {
        Romper(no + "llevar columnas sin resumir");
    }
    if (consulta.orden) {
        Romper(no + "ordenarlas");
    }
}

Expresion Analizador::UnaExpresion() {
    Expresion expresion;
    Operaciones(expresion, nivelAlguno);
    return expresion;
}

void Analizador::Operaciones(Expresion& expresion, int nivelMinimo) {
    UnOperando(expresion, nivelMinimo);
    for (const auto* operador = OperadorAqui(); operador != nullptr && operador->nivel >= nivelMinimo;
         operador = OperadorAqui()) {
        ++lugar_;
        Operaciones(expresion, operador->nivel + 1);
        expresion.pasos.push_back({operador->operacion});
    }
}

const Binario* Analizador::OperadorAqui() const {
    const auto* hallado =
        std::ranges::find_if(binarios, [&](const Binario& binario) { return Es(binario.escrito); });
    return hallado == binarios.end() ? nullptr : hallado;
}

void Analizador::UnOperando(Expresion& expresion, int nivelMinimo) {
    if (nivelMinimo <= nivelNo && Tomar("NOT")) {
        Prefijado(expresion, nivelNo);
        expresion.pasos.push_back({Operacion::no});
    } else if (Tomar("-")) {
        // The sign takes a power with it, -2^2 = -4, unless it stands inside an exponent: 2^-1.
        Prefijado(expresion, std::max(nivelSigno, nivelMinimo));
        expresion.pasos.push_back({Operacion::negacion});
    } else if (Tomar("+")) {
        Prefijado(expresion, std::max(nivelSigno, nivelMinimo));
    } else if (Tomar("(")) {
        EntreParentesis(expresion);
    } else {
        Termino(expresion);
    }
}

void Analizador::Prefijado(Expresion& expresion, int nivel) {
    Entrar();
    Operaciones(expresion, nivel);
    --anidamiento_;
}

void Analizador::EntreParentesis(Expresion& expresion) {
    Entrar();
    Operaciones(expresion, nivelAlguno);
    Exigir(")");
    --anidamiento_;
}

void Analizador::Entrar() {
    if (++anidamiento_ > anidamientoMaximo) {
        Romper("hay demasiados paréntesis o signos unos dentro de otros");
    }
}

void Analizador::Termino(Expresion& expresion) {
    const auto& pieza = Actual();
    if (pieza.clase == Clase::numero || pieza.clase == Clase::texto) {
        expresion.pasos.push_back({Operacion::constante, expresion.constantes.size()});
        expresion.constantes.push_back(pieza.clase == Clase::numero ? Valor{pieza.numero}
                                                                    : Valor{pieza.texto});
        ++lugar_;
        return;
    }
    const auto nombre = Nombre("se esperaba un nombre, un número o un texto");
    if (pieza.clase == Clase::palabra && Es("(")) {
        throw SintaxisRota(texto_, pieza.comienzo, "la función «" + nombre + "» no puede ir aquí");
    }
    const auto conocido = std::ranges::find(expresion.campos, nombre);
    expresion.pasos.push_back(
        {Operacion::campo, static_cast<std::size_t>(conocido - expresion.campos.begin())});
    if (conocido == expresion.campos.end()) {
        expresion.campos.push_back(nombre);
    }
}

std::string Analizador::Nombre(const std::string& queFalta) {
    const auto& pieza = Actual();
    if (pieza.clase == Clase::palabra && EsPalabraReservada(pieza.texto)) {
        Romper(queFalta + ", y «" + pieza.texto + "» es una palabra reservada");
    }
    if (pieza.clase != Clase::palabra && pieza.clase != Clase::nombre) {
        Romper(queFalta);
    }
    ++lugar_;
    return pieza.texto;
}

bool Analizador::Es(std::string_view palabraOSigno) const {
    const auto& pieza = Actual();
    return (pieza.clase == Clase::palabra || pieza.clase == Clase::signo) &&
           pieza.texto.size() == palabraOSigno.size() && MismoNombre(pieza.texto, palabraOSigno);
}

bool Analizador::Tomar(std::string_view palabraOSigno) {
    const bool esta = Es(palabraOSigno);
    lugar_ += esta ? 1 : 0;
    return esta;
}

void Analizador::Exigir(std::string_view palabraOSigno) {
    if (!Tomar(palabraOSigno)) {
        Romper("se esperaba «" + std::string{palabraOSigno} + "»");
    }
}

} // namespace

Consulta Analizar(std::string_view texto) {
    return Analizador{texto}.Analizar();
}

} // namespace varo::sql
