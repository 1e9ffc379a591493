#include "indices/vecinos/FuncionesDeLista.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>
#include <cmath>

namespace varo {

namespace {

/// What an entry holds, found by the positions of its letters. A parameter is written "letter: number; ".
class PartesDeEntrada {
public:
    explicit PartesDeEntrada(const std::string& texto) : texto_{texto} {}

    [[nodiscard]] bool contiene(const char* buscado) const { return posicion(buscado) != 0; }

    /// The text of the first parameter, which stands in front of `siguiente`.
    [[nodiscard]] std::string primero(const char* siguiente) const {
        return trozo(4, posicion(siguiente) - 6);
    }
    [[nodiscard]] double medio(const char* letra, const char* siguiente) const {
        return redondeado(ANumero(trozo(posicion(letra) + 3, posicion(siguiente) - posicion(letra) - 5)));
    }
    [[nodiscard]] double ultimo(const char* letra) const {
        const auto largo = static_cast<int>(Longitud(texto_));
        return redondeado(ANumero(trozo(posicion(letra) + 3, largo - posicion(letra) - 2)));
    }

    static double redondeado(double numero) { return ANumero(Formato(numero, "#0.0000")); }

private:
    [[nodiscard]] int posicion(const char* buscado) const {
        return static_cast<int>(Posicion(texto_, buscado));
    }

    [[nodiscard]] std::string trozo(int desde, int cuantos) const {
        if (desde < 1 || cuantos < 0) {
            throw ErrorEjecucion{fallo::argumentoNoValido};
        }
        return Medio(texto_, static_cast<std::size_t>(desde), static_cast<std::size_t>(cuantos));
    }

    const std::string& texto_;
};

/// The parameters from b on; each list writes a in its place.
SumaDePotencias LeerSuma(const PartesDeEntrada& entrada, double a) {
    SumaDePotencias suma;
    suma.a = a;
    suma.b = entrada.medio("b", "c");
    suma.c = entrada.medio("c", "d");
    suma.d = entrada.medio("d", "e");
    suma.e = entrada.ultimo("e");
    return suma;
}

struct Cotas {
    double menor = 0;
    double mayor = 0;
};

/// Of factor * x^exponente between two positive values of x; it is monotonic there.
Cotas CotasDeTermino(double factor, double exponente, double desde, double hasta) {
    const double uno = factor == 0 ? 0 : factor * std::pow(desde, exponente);
    const double otro = factor == 0 ? 0 : factor * std::pow(hasta, exponente);
    return {std::min(uno, otro), std::max(uno, otro)};
}

bool PotenciaAcotada(double exponente, double desde, double hasta) {
    constexpr double desmedida = 1E+290;
    return std::pow(desde, exponente) < desmedida && std::pow(hasta, exponente) < desmedida;
}

} // namespace

SumaDePotencias LeerRadioDeInfluencia(const std::string& entrada) {
    const PartesDeEntrada partes{entrada};
    return LeerSuma(partes, PartesDeEntrada::redondeado(ANumero(partes.primero("b"))));
}

bool FuncionDeDistancia::sinFallosEntre(double desde, double hasta) const {
    if (!(desde > 0) || !PotenciaAcotada(suma.c, desde, hasta) || !PotenciaAcotada(suma.e, desde, hasta)) {
        return false;
    }
    const Cotas b = CotasDeTermino(suma.b, suma.c, desde, hasta);
    const Cotas d = CotasDeTermino(suma.d, suma.e, desde, hasta);
    const double mayorTermino = std::max(
        {std::abs(suma.a), std::abs(b.menor), std::abs(b.mayor), std::abs(d.menor), std::abs(d.mayor)});
    const double holgura = 1E-9 * mayorTermino; // rounding moves the sum far less
    const Cotas s{suma.a + b.menor + d.menor - holgura, suma.a + b.mayor + d.mayor + holgura};
    if (exponencial) {
        constexpr double exponenteQueCabe = 700;
        return s.mayor < 1E+290 && -s.menor < exponenteQueCabe;
    }
    constexpr double casiNulo = 1E-290;
    return std::isfinite(s.menor) && std::isfinite(s.mayor) && (s.menor > casiNulo || s.mayor < -casiNulo);
}

FuncionDeDistancia LeerFuncionDeDistancia(const std::string& entrada) {
    const PartesDeEntrada partes{entrada};
    FuncionDeDistancia funcion;
    funcion.suma = LeerSuma(partes, partes.medio("a", "b"));
    funcion.exponencial = partes.contiene("EXP");
    return funcion;
}

double FuncionDeLimite::en(double D) const {
    if (hiperbolica) {
        return ExigirFinito(A - k * Dividir(1, denominador.en(D)));
    }
    const double base = ExigirFinito(1 - std::exp(-k * D));
    return ExigirFinito(A * Potencia(base, Dividir(1, 1 - m)));
}

FuncionDeLimite LeerFuncionDeLimite(const std::string& entrada) {
    const PartesDeEntrada partes{entrada};
    FuncionDeLimite funcion;
    funcion.hiperbolica = partes.contiene("e");
    if (funcion.hiperbolica) {
        funcion.A = PartesDeEntrada::redondeado(ANumero(partes.primero("k")));
        funcion.k = partes.medio("k", "a");
        funcion.denominador = LeerSuma(partes, partes.medio("a", "b"));
        return funcion;
    }
    // Meant: read with a decimal point, so a comma ends it.
    funcion.A = PartesDeEntrada::redondeado(Val(partes.primero("k")));
    funcion.k = partes.medio("k", "m");
    funcion.m = partes.ultimo("m");
    return funcion;
}

} // namespace varo
