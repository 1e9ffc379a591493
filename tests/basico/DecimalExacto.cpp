#include "basico/DecimalExacto.h"

#include <cmath>
#include <cstddef>
#include <cstdint>

namespace varo {

namespace {

std::string SinCerosDelante(const std::string& cifras) {
    const auto primera = cifras.find_first_not_of('0');
    return primera == std::string::npos ? "0" : cifras.substr(primera);
}

/// cifras × factor + sumando, as on paper: from the last digit, with the carry.
std::string PorMas(const std::string& cifras, int factor, int sumando) {
    std::string resultado = cifras;
    int llevo = sumando;
    for (auto i = resultado.size(); i-- > 0;) {
        const int suma = (resultado[i] - '0') * factor + llevo;
        resultado[i] = static_cast<char>('0' + suma % 10);
        llevo = suma / 10;
    }
    return llevo == 0 ? resultado : std::to_string(llevo) + resultado;
}

} // namespace

DecimalExacto DecimalExacto::De(double numero) {
    int exponente = 0;
    const double fraccion = std::frexp(std::fabs(numero), &exponente);
    // The number is N × 2^exponente; a half is five tenths.
    DecimalExacto exacto;
    exacto.entero_ = std::to_string(static_cast<std::int64_t>(std::ldexp(fraccion, 53)));
    exponente -= 53;
    for (; exponente > 0; --exponente) {
        exacto.entero_ = PorMas(exacto.entero_, 2, 0);
    }
    for (; exponente < 0 && exacto.entero_ != "0"; ++exponente) {
        exacto.entero_ = PorMas(exacto.entero_, 5, 0);
        ++exacto.escala_;
    }
    return exacto;
}

DecimalExacto DecimalExacto::conDecimales(int cuantos) const {
    DecimalExacto redondo;
    redondo.escala_ = cuantos;
    const int sobran = escala_ - cuantos;
    if (sobran <= 0) {
        redondo.entero_ = SinCerosDelante(entero_ + std::string(static_cast<std::size_t>(-sobran), '0'));
        return redondo;
    }
    // One digit past the cut stays for the half: (N' + 5) / 10, the last division dropping its rest.
    const auto quitadas = static_cast<std::size_t>(sobran - 1);
    const std::string conUnaMas =
        quitadas < entero_.size() ? entero_.substr(0, entero_.size() - quitadas) : "0";
    const std::string masCinco = PorMas(conUnaMas, 1, 5);
    redondo.entero_ = SinCerosDelante(masCinco.substr(0, masCinco.size() - 1));
    return redondo;
}

DecimalExacto DecimalExacto::conCifras(int cuantas) const {
    return conDecimales(cuantas - punto());
}

std::string DecimalExacto::cifrasSinCeros() const {
    const auto ultima = entero_.find_last_not_of('0');
    return ultima == std::string::npos ? "" : entero_.substr(0, ultima + 1);
}

} // namespace varo
