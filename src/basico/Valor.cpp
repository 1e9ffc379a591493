#include "basico/Valor.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>

namespace varo {

namespace {

// The dates of the platform: 1 January 100 to 31 December 9999.
constexpr double primerDia = -657434;
constexpr double ultimoDia = 2958465;

constexpr int segundosPorDia = 86400;

std::string ConCeros(int numero, std::size_t ancho) {
    std::string texto = std::to_string(numero);
    return texto.insert(0, ancho - std::min(ancho, texto.size()), '0');
}

std::string TextoDelDia(int dia) {
    using namespace std::chrono;
    const year_month_day fecha{sys_days{1899y / December / 30} + days{dia}};
    return ConCeros(static_cast<int>(static_cast<unsigned>(fecha.day())), 2) + '/' +
           ConCeros(static_cast<int>(static_cast<unsigned>(fecha.month())), 2) + '/' +
           ConCeros(static_cast<int>(fecha.year()), 4);
}

std::string TextoDeLaHora(int segundos) {
    return std::to_string(segundos / 3600) + ':' + ConCeros(segundos / 60 % 60, 2) + ':' +
           ConCeros(segundos % 60, 2);
}

/// The whole part of a serial is the day and the rest, whatever the sign, the part of that day gone by.
std::string TextoDe(Fecha fecha) {
    if (!(fecha.serie > primerDia - 1 && fecha.serie < ultimoDia + 1)) {
        throw ErrorEjecucion{fallo::desbordamiento};
    }
    const double entera = std::trunc(fecha.serie);
    int dia = static_cast<int>(entera);
    auto segundos = static_cast<int>(std::round(std::fabs(fecha.serie - entera) * segundosPorDia));
    if (segundos == segundosPorDia) {
        segundos = 0;
        ++dia;
    }
    if (dia == 0) {
        return TextoDeLaHora(segundos);
    }
    return TextoDelDia(dia) + (segundos == 0 ? "" : " " + TextoDeLaHora(segundos));
}

struct EnNumero {
    double operator()(Nulo) const { throw ErrorEjecucion{fallo::usoDeNulo}; }
    double operator()(double numero) const { return numero; }
    double operator()(const std::string& texto) const { return ANumero(texto); }
    double operator()(Fecha fecha) const { return fecha.serie; }
    double operator()(bool verdad) const { return verdad ? -1 : 0; }
};

struct EnTexto {
    std::string operator()(Nulo) const { throw ErrorEjecucion{fallo::usoDeNulo}; }
    std::string operator()(double numero) const { return ATexto(numero); }
    std::string operator()(const std::string& texto) const { return texto; }
    std::string operator()(Fecha fecha) const { return TextoDe(fecha); }
    std::string operator()(bool verdad) const { return verdad ? "Verdadero" : "Falso"; }
};

} // namespace

double ANumero(const Valor& valor) {
    return std::visit(EnNumero{}, valor);
}

std::string ATexto(const Valor& valor) {
    return std::visit(EnTexto{}, valor);
}

} // namespace varo
