#include "revision/Funcion.h"

#include "basico/Aritmetica.h"
#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "basico/Texto.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string_view>

namespace varo {

namespace {

/// The numbers of a line by their letters, as texts; nothing where a piece is not "letter: number".
std::optional<std::map<char, std::string>> Parametros(std::string_view linea) {
    std::map<char, std::string> parametros;
    while (!linea.empty()) {
        const auto fin = std::min(linea.find(';'), linea.size());
        const std::string_view trozo = linea.substr(0, fin);
        const auto puntos = trozo.find(':');
        if (puntos == std::string_view::npos || puntos == 0 || !EsNumerico(trozo.substr(puntos + 1))) {
            return std::nullopt;
        }
        parametros[trozo[puntos - 1]] = Recortar(trozo.substr(puntos + 1));
        linea.remove_prefix(std::min(fin + 1, linea.size()));
    }
    return parametros;
}

template <class Calcular>
std::optional<double> SinFallo(const Calcular& calcular) {
    std::optional<double> valor;
    Saltando([&] { valor = ExigirFinito(calcular()); });
    return valor;
}

double Suma(const SumaEscrita& s, double x) {
    return s.a + s.b * Potencia(x, s.c) + s.d * Potencia(x, s.e);
}

} // namespace

std::optional<FuncionEscrita> LeerFuncionEscrita(const std::string& linea) {
    const auto parametros = Parametros(linea);
    if (!parametros) {
        return std::nullopt;
    }
    const auto numero = [&](char letra) {
        const auto hallado = parametros->find(letra);
        return hallado == parametros->end() ? 0 : ANumero(hallado->second);
    };
    FuncionEscrita funcion;
    funcion.exponencial = linea.starts_with("EXP");
    funcion.hiperbolica = parametros->contains('A') && parametros->contains('e');
    funcion.A = numero('A');
    funcion.k = numero('k');
    funcion.m = numero('m');
    funcion.suma = {numero('a'), numero('b'), numero('c'), numero('d'), numero('e')};
    if (parametros->contains('A')) {
        funcion.textoDeA = parametros->at('A');
    }
    return funcion;
}

FuncionEscrita Simplificada(FuncionEscrita funcion) {
    if (funcion.suma.b == 0) {
        funcion.suma.c = 0;
    }
    if (funcion.suma.d == 0) {
        funcion.suma.e = 0;
    }
    return funcion;
}

std::optional<double> ValorDeSuma(const SumaEscrita& suma, double x) {
    return SinFallo([&] { return Suma(suma, x); });
}

std::optional<double> ValorDePeso(const FuncionEscrita& peso, double distancia) {
    return SinFallo([&] {
        const double s = Suma(peso.suma, distancia);
        return peso.exponencial ? std::exp(-s) : Dividir(1, s);
    });
}

std::optional<double> ValorDeLimite(const FuncionEscrita& limite, double d) {
    return SinFallo([&] {
        if (limite.hiperbolica) {
            return limite.A - limite.k * Dividir(1, Suma(limite.suma, d));
        }
        // The A of this form is read with a decimal point, so a comma ends it.
        return Val(limite.textoDeA) * Potencia(1 - std::exp(-limite.k * d), Dividir(1, 1 - limite.m));
    });
}

} // namespace varo
