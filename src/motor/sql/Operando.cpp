#include "motor/sql/Operando.h"

#include "basico/Aritmetica.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <cassert>

namespace varo::sql {

namespace {

using Clase = Operando::Clase;

Operando DeVerdad(std::optional<bool> verdad) {
    if (!verdad) {
        return {};
    }
    return {.clase = Clase::Verdad, .numero = *verdad ? -1.0 : 0.0};
}

bool EsComparacion(Operacion operacion) {
    return operacion >= Operacion::Igual && operacion <= Operacion::MayorOIgual;
}

bool Cumple(Operacion comparacion, std::partial_ordering orden) {
    switch (comparacion) {
    case Operacion::Igual:
        return std::is_eq(orden);
    case Operacion::Distinto:
        return std::is_neq(orden); // what has no order is unequal
    case Operacion::Menor:
        return std::is_lt(orden);
    case Operacion::Mayor:
        return std::is_gt(orden);
    case Operacion::MenorOIgual:
        return std::is_lteq(orden);
    default:
        return std::is_gteq(orden);
    }
}

double Aritmetica(Operacion operacion, double a, double b) {
    switch (operacion) {
    case Operacion::Suma:
        return ExigirFinito(a + b);
    case Operacion::Resta:
        return ExigirFinito(a - b);
    case Operacion::Producto:
        return ExigirFinito(a * b);
    case Operacion::Cociente:
        return Dividir(a, b);
    default:
        return Potencia(a, b);
    }
}

/// One side that decides does so even where the other is unknown.
std::optional<bool> Junta(std::optional<bool> a, std::optional<bool> b, bool queDecide) {
    if (a == queDecide || b == queDecide) {
        return queDecide;
    }
    return a && b ? std::optional{!queDecide} : std::nullopt;
}

} // namespace

Operando DeNumero(double numero) {
    return {.clase = Clase::Numero, .numero = numero};
}

Operando DeCelda(const ValorDeCelda& valor, const std::string* campo) {
    switch (valor.clase()) {
    case ValorDeCelda::Clase::Vacia:
        return {};
    case ValorDeCelda::Clase::Texto:
        return {.clase = Clase::Texto, .texto = valor.texto(), .campo = campo};
    case ValorDeCelda::Clase::Verdad:
        return DeVerdad(valor.numero() != 0);
    default: // a date is its serial
        return DeNumero(valor.numero());
    }
}

Valor AValor(const Operando& operando) {
    switch (operando.clase) {
    case Clase::Numero:
        return operando.numero;
    case Clase::Verdad:
        return operando.numero != 0;
    case Clase::Texto:
        return std::string{operando.texto};
    default:
        return Nulo{};
    }
}

std::optional<double> ComoNumero(const Operando& operando) {
    if (operando.esNulo()) {
        return std::nullopt;
    }
    if (operando.clase != Clase::Texto) {
        return operando.numero;
    }
    return EsNumerico(operando.texto) ? std::optional{ANumero(operando.texto)} : std::nullopt;
}

double NumeroExigido(const Operando& operando) {
    assert(!operando.esNulo());
    const auto numero = ComoNumero(operando);
    if (!numero) {
        ErrorMotor error{fallo::tiposDistintosEnConsulta, DescripcionError(fallo::tiposDistintosEnConsulta) +
                                                              ": el texto " + Cita(operando.texto) +
                                                              " no es un número"};
        if (operando.campo != nullptr) {
            error.en("columna «" + *operando.campo + "»");
        }
        throw error;
    }
    return *numero;
}

std::optional<bool> Verdad(const Operando& operando) {
    if (operando.esNulo()) {
        return std::nullopt;
    }
    return NumeroExigido(operando) != 0;
}

Operando Calcular(Operacion operacion, const Operando& a) {
    if (a.esNulo()) {
        return {};
    }
    return operacion == Operacion::No ? DeVerdad(!*Verdad(a)) : DeNumero(-NumeroExigido(a));
}

Operando Calcular(Operacion operacion, const Operando& a, const Operando& b) {
    if (operacion == Operacion::Ambos || operacion == Operacion::Alguno) {
        const auto izquierda = Verdad(a);
        return DeVerdad(Junta(izquierda, Verdad(b), operacion == Operacion::Alguno));
    }
    if (a.esNulo() || b.esNulo()) {
        return {};
    }
    if (EsComparacion(operacion)) {
        return DeVerdad(Cumple(operacion, Comparar(a, b)));
    }
    const double izquierdo = NumeroExigido(a);
    return DeNumero(Aritmetica(operacion, izquierdo, NumeroExigido(b)));
}

std::partial_ordering Comparar(const Operando& a, const Operando& b) {
    assert(!a.esNulo() && !b.esNulo());
    if (a.clase == Clase::Texto && b.clase == Clase::Texto) {
        return a.texto <=> b.texto; // bytes of UTF-8 stand in the order of the code points
    }
    const auto izquierdo = ComoNumero(a);
    const auto derecho = ComoNumero(b);
    return izquierdo && derecho ? *izquierdo <=> *derecho : std::partial_ordering::unordered;
}

ClaveDeOrden::ClaveDeOrden(const Operando& operando) {
    if (const auto numero = ComoNumero(operando)) {
        rango_ = Rango::Numero;
        numero_ = *numero;
    } else if (!operando.esNulo()) {
        rango_ = Rango::Texto;
        texto_ = operando.texto;
    }
}

std::weak_ordering operator<=>(const ClaveDeOrden& a, const ClaveDeOrden& b) {
    if (a.rango_ != b.rango_) {
        return a.rango_ <=> b.rango_;
    }
    if (a.rango_ == ClaveDeOrden::Rango::Numero) {
        return std::weak_order(a.numero_, b.numero_);
    }
    return a.texto_ <=> b.texto_;
}

} // namespace varo::sql
