#include "libros/ValoresEscritos.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <string>

namespace varo {
namespace {

constexpr std::string_view blancos = " \t\r\n";
constexpr double segundosPorDia = 86400;
constexpr double segundosPorHora = 3600;
constexpr double segundosPorMinuto = 60;
constexpr double primerDia = -657434;       // 1 January 100
constexpr double diaTrasElUltimo = 2958466; // 1 January 10000

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

/// Takes characters off the beginning of a text. Once one is not as it should be, nothing fits any more.
class TextoPorTomar {
public:
    explicit TextoPorTomar(std::string_view texto) : queda_{texto} {}

    [[nodiscard]] bool bien() const { return bien_; }
    [[nodiscard]] bool acabado() const { return bien_ && queda_.empty(); }
    [[nodiscard]] bool sigue(char c) const { return bien_ && queda_.starts_with(c); }

    bool tomarSi(char c) {
        const bool esta = sigue(c);
        queda_.remove_prefix(esta ? 1 : 0);
        return esta;
    }
    void tomar(char c) { bien_ = tomarSi(c) && bien_; }

    /// A whole number of so many digits, or of as many as there are.
    int entero(std::size_t cifras) {
        const auto numero = queda_.substr(0, cifras);
        int valor = 0;
        const auto leido = std::from_chars(numero.data(), numero.data() + numero.size(), valor);
        if (numero.size() != cifras || leido.ptr != numero.data() + cifras || numero.starts_with('-')) {
            bien_ = false;
            return 0;
        }
        queda_.remove_prefix(cifras);
        return valor;
    }

    /// Digits with a point, or a comma, among them.
    double numero() {
        const auto fin =
            std::ranges::find_if_not(queda_, [](char c) { return EsCifra(c) || c == '.' || c == ','; });
        std::string escrito{queda_.begin(), fin};
        std::ranges::replace(escrito, ',', '.');
        const auto valor = NumeroEscrito(escrito);
        bien_ = bien_ && valor.has_value() && EsCifra(escrito.front());
        queda_.remove_prefix(escrito.size());
        return valor.value_or(0);
    }

    [[nodiscard]] std::size_t cifras() const {
        const auto fin = std::ranges::find_if_not(queda_, EsCifra);
        return static_cast<std::size_t>(fin - queda_.begin());
    }

    /// "Z", "+01:00"
    void zona() {
        if (tomarSi('Z') || queda_.empty()) {
            return;
        }
        if (!tomarSi('+')) {
            tomar('-');
        }
        entero(2);
        tomar(':');
        entero(2);
    }

private:
    std::string_view queda_;
    bool bien_ = true;
};

/// The day as its serial; nothing where the calendar has none.
std::optional<double> DiaDe(TextoPorTomar& texto) {
    using namespace std::chrono;
    constexpr std::size_t cifrasDeUnAno = 4;
    constexpr std::size_t masCifras = 5; // what a serial past the year 9999 becomes
    const int signo = texto.tomarSi('-') ? -1 : 1;
    const auto cifras = std::clamp(texto.cifras(), cifrasDeUnAno, masCifras);
    const int ano = signo * texto.entero(cifras);
    texto.tomar('-');
    const month mes{static_cast<unsigned>(texto.entero(2))};
    texto.tomar('-');
    const year_month_day fecha{year{ano}, mes, day{static_cast<unsigned>(texto.entero(2))}};
    if (!texto.bien() || ano > static_cast<int>(year::max()) || !fecha.ok()) {
        return std::nullopt;
    }
    return (sys_days{fecha} - sys_days{1899y / December / 30}).count();
}

double HoraDe(TextoPorTomar& texto) {
    const int horas = texto.entero(2);
    texto.tomar(':');
    const int minutos = texto.entero(2);
    const double segundos = texto.tomarSi(':') ? texto.numero() : 0;
    return (horas * segundosPorHora + minutos * segundosPorMinuto + segundos) / segundosPorDia;
}

} // namespace

std::string_view SinBlancosDeXml(std::string_view texto) {
    texto.remove_prefix(std::min(texto.find_first_not_of(blancos), texto.size()));
    return texto.substr(0, texto.find_last_not_of(blancos) + 1);
}

std::optional<double> NumeroEscrito(std::string_view texto) {
    texto = SinBlancosDeXml(texto);
    const bool conMas = texto.starts_with('+');
    texto.remove_prefix(conMas ? 1 : 0);
    double numero = 0;
    const auto* const fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, numero);
    if (leido.ptr != fin || texto.empty() || (conMas && texto.starts_with('-'))) {
        return std::nullopt;
    }
    if (leido.ec == std::errc::result_out_of_range) {
        const bool diminuto =
            texto.find("e-") != std::string_view::npos || texto.find("E-") != std::string_view::npos;
        return diminuto ? 0 : std::numeric_limits<double>::infinity();
    }
    return leido.ec == std::errc{} ? std::optional{numero} : std::nullopt;
}

std::optional<double> SerieDeFecha(std::string_view texto) {
    TextoPorTomar queda{SinBlancosDeXml(texto)};
    const auto dia = DiaDe(queda);
    if (!dia) {
        return std::nullopt;
    }
    const double hora = queda.tomarSi('T') ? HoraDe(queda) : 0;
    queda.zona();
    if (!queda.acabado() || hora > 1) {
        return std::nullopt;
    }
    if (hora >= 1) {
        return *dia + 1;
    }
    return *dia < 0 ? *dia - hora : *dia + hora; // in a serial below zero the hour counts away from zero
}

std::optional<Valor> FechaEscrita(std::string_view texto) {
    const auto serie = SerieDeFecha(texto);
    if (!serie) {
        return std::nullopt;
    }
    return *serie > primerDia - 1 && *serie < diaTrasElUltimo ? Valor{Fecha{*serie}} : Valor{*serie};
}

std::optional<double> ParteDelDia(std::string_view texto) {
    TextoPorTomar queda{SinBlancosDeXml(texto)};
    queda.tomarSi('T');
    const double hora = HoraDe(queda);
    queda.zona();
    return queda.acabado() && hora < 1 ? std::optional{hora} : std::nullopt;
}

std::optional<double> DiasDeDuracion(std::string_view texto) {
    TextoPorTomar queda{SinBlancosDeXml(texto)};
    const double signo = queda.tomarSi('-') ? -1 : 1;
    queda.tomar('P');
    double dias = 0;
    while (queda.cifras() > 0) {
        dias = queda.numero();
        const bool deAnosOMeses = queda.tomarSi('Y') || queda.tomarSi('M');
        if (!deAnosOMeses) {
            queda.tomar('D');
            break;
        }
        if (dias > 0) {
            return std::nullopt;
        }
    }
    double segundos = 0;
    if (queda.tomarSi('T')) {
        while (queda.cifras() > 0) {
            const double cuantos = queda.numero();
            segundos += cuantos * (queda.tomarSi('H')   ? segundosPorHora
                                   : queda.tomarSi('M') ? segundosPorMinuto
                                                        : (queda.tomar('S'), 1));
        }
    }
    if (!queda.acabado()) {
        return std::nullopt;
    }
    return signo * (dias + segundos / segundosPorDia);
}

} // namespace varo
