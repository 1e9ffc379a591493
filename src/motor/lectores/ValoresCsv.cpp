#include "motor/lectores/ValoresCsv.h"

#include "basico/Texto.h"
#include "motor/lectores/NumerosCsv.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <optional>
#include <string>

namespace varo {
namespace {

/// The errors of Excel and LibreOffice in Spanish and English.
constexpr std::array<std::string_view, 23> errores{
    "#¡DIV/0!", "#¡NULO!", "#¡NUM!",   "#¡REF!",  "#¡VALOR!",          "#¿NOMBRE?", "#N/A",      "#N/D",
    "#DIV/0!",  "#NULL!",  "#NUM!",    "#REF!",   "#VALUE!",           "#NAME?",    "#SPILL!",   "#CALC!",
    "#VALOR!",  "#NULO!",  "#NOMBRE?", "#¡CALC!", "#¡DESBORDAMIENTO!", "#N/DISP",   "#¡DERRAME!"};

/// Takes a whole number of so many digits at least and at most off the front.
std::optional<int> Sacar(std::string_view& texto, std::size_t menos, std::size_t mas) {
    std::size_t cuantas = 0;
    while (cuantas < texto.size() && texto[cuantas] >= '0' && texto[cuantas] <= '9') {
        ++cuantas;
    }
    if (cuantas < menos || cuantas > mas) {
        return std::nullopt;
    }
    int numero = 0;
    std::from_chars(texto.data(), texto.data() + cuantas, numero);
    texto.remove_prefix(cuantas);
    return numero;
}

bool SacarLetra(std::string_view& texto, char letra) {
    if (!texto.starts_with(letra)) {
        return false;
    }
    texto.remove_prefix(1);
    return true;
}

/// Three numbers with the same mark between them, as a date has them.
struct Ternas {
    std::array<int, 3> partes{};
    std::string_view resto;
};

std::optional<Ternas> SacarTernas(std::string_view texto, char entre, std::array<std::size_t, 3> cifrasMenos,
                                  std::array<std::size_t, 3> cifrasMas) {
    Ternas ternas;
    for (std::size_t i = 0; i < 3; ++i) {
        const bool sigue = i == 0 || SacarLetra(texto, entre);
        const auto parte = sigue ? Sacar(texto, cifrasMenos.at(i), cifrasMas.at(i)) : std::nullopt;
        if (!parte) {
            return std::nullopt;
        }
        ternas.partes.at(i) = *parte;
    }
    ternas.resto = texto;
    return ternas;
}

/// 31/12/2025 or 31-12-2025
std::optional<Ternas> ConElAnoDetras(std::string_view celda) {
    const bool conBarras = celda.find('/') != std::string_view::npos;
    return SacarTernas(celda, conBarras ? '/' : '-', {1, 1, 4}, {2, 2, 4});
}

/// 2025-12-31 or 2025/12/31
std::optional<Ternas> ConElAnoDelante(std::string_view celda) {
    const bool conBarras = celda.find('/') != std::string_view::npos;
    return SacarTernas(celda, conBarras ? '/' : '-', {4, 2, 2}, {4, 2, 2});
}

/// Days since 30 December 1899. Spreadsheets have dates from 1900 on.
std::optional<int> Serie(int ano, int mes, int dia) {
    using namespace std::chrono;
    const year_month_day fecha{year{ano}, month{static_cast<unsigned>(mes)},
                               std::chrono::day{static_cast<unsigned>(dia)}};
    if (!fecha.ok() || ano < 1900) {
        return std::nullopt;
    }
    return static_cast<int>((sys_days{fecha} - sys_days{1899y / December / 30}).count());
}

/// "9:05" or "9:05:30" as a part of a day.
std::optional<double> Hora(std::string_view texto, bool conSegundos) {
    constexpr double segundosPorDia = 86400;
    constexpr std::array topes{24, 60, 60};
    int segundos = 0;
    for (std::size_t i = 0; i < topes.size(); ++i) {
        std::optional<int> parte;
        if (i == 0) {
            parte = Sacar(texto, 1, 2);
        } else if (SacarLetra(texto, ':')) {
            parte = Sacar(texto, 2, 2);
        } else if (i == 2 && !conSegundos) {
            parte = 0;
        }
        if (!parte || *parte >= topes.at(i)) {
            return std::nullopt;
        }
        segundos = segundos * 60 + *parte;
    }
    return texto.empty() ? std::optional{segundos / segundosPorDia} : std::nullopt;
}

/// "" or " 9:05" or "T09:05:30" or "T09:05:30.000Z", as a part of a day.
std::optional<double> HoraDetras(std::string_view texto) {
    if (texto.empty()) {
        return 0;
    }
    if (!SacarLetra(texto, ' ') && !SacarLetra(texto, 'T')) {
        return std::nullopt;
    }
    if (texto.ends_with('Z')) {
        texto.remove_suffix(1);
    }
    const auto punto = texto.find('.');
    const bool conCeros = punto != std::string_view::npos && punto + 1 < texto.size() &&
                          texto.find_first_not_of('0', punto + 1) == std::string_view::npos;
    return Hora(texto.substr(0, conCeros ? punto : texto.size()), conCeros);
}

/// The serial of a date.
std::optional<double> LeerFecha(std::string_view celda, bool diaAntesQueMes) {
    if (const auto hora = Hora(celda, true)) {
        return hora;
    }
    std::optional<int> serie;
    auto ternas = ConElAnoDelante(celda);
    if (ternas) {
        serie = Serie(ternas->partes[0], ternas->partes[1], ternas->partes[2]);
    } else if (diaAntesQueMes) {
        ternas = ConElAnoDetras(celda);
        serie = ternas ? Serie(ternas->partes[2], ternas->partes[1], ternas->partes[0]) : std::nullopt;
    }
    const auto hora = serie ? HoraDetras(ternas->resto) : std::nullopt;
    return hora ? std::optional{*serie + *hora} : std::nullopt;
}

std::optional<bool> LeerVerdad(std::string_view celda) {
    constexpr std::size_t masLarga = 9; // "verdadero"
    if (celda.size() > masLarga) {
        return std::nullopt;
    }
    const auto palabra = Minusculas(celda);
    if (palabra == "verdadero" || palabra == "true") {
        return true;
    }
    if (palabra == "falso" || palabra == "false") {
        return false;
    }
    return std::nullopt;
}

bool EsError(std::string_view celda) {
    constexpr std::string_view deLibreOffice = "Err:";
    if (celda.starts_with(deLibreOffice)) {
        celda.remove_prefix(deLibreOffice.size());
        return Sacar(celda, 3, 3) && celda.empty();
    }
    return celda.starts_with('#') && std::ranges::find(errores, celda) != errores.end();
}

/// ="007", a formula that keeps a code from becoming a number: what it shows.
std::optional<std::string_view> TextoDeFormula(std::string_view celda) {
    constexpr std::string_view abre = "=\"";
    if (celda.size() <= abre.size() || !celda.starts_with(abre) || !celda.ends_with('"')) {
        return std::nullopt;
    }
    celda = celda.substr(abre.size(), celda.size() - abre.size() - 1);
    return celda.find('"') == std::string_view::npos ? std::optional{celda} : std::nullopt;
}

bool EmpiezaConCifra(std::string_view celda) {
    return celda[0] >= '0' && celda[0] <= '9';
}

} // namespace

bool LlevaElMesDelante(std::string_view escrita) {
    const auto celda = SinBlancosEnLosExtremos(escrita);
    if (celda.empty() || !EmpiezaConCifra(celda)) {
        return false;
    }
    const auto ternas = ConElAnoDetras(celda);
    return ternas && ternas->partes[1] > 12 && ternas->partes[0] <= 12 &&
           Serie(ternas->partes[2], ternas->partes[0], ternas->partes[1]);
}

bool TieneValor(std::string_view escrita) {
    const auto celda = SinBlancosEnLosExtremos(escrita);
    return !celda.empty() && !EsError(celda);
}

ValorDeCelda LeerValorCsv(std::string_view escrita, char marcaDecimal, bool diaAntesQueMes) {
    using Clase = ValorDeCelda::Clase;
    if (!TieneValor(escrita)) {
        return {};
    }
    const auto celda = SinBlancosEnLosExtremos(escrita);
    if (const auto numero = LeerNumeroCsv(celda, marcaDecimal)) {
        return {Clase::Numero, *numero};
    }
    if (const auto fecha = EmpiezaConCifra(celda) ? LeerFecha(celda, diaAntesQueMes) : std::nullopt) {
        return {Clase::Momento, *fecha};
    }
    if (const auto verdad = LeerVerdad(celda)) {
        return {Clase::Verdad, *verdad ? 1.0 : 0.0};
    }
    if (const auto deFormula = TextoDeFormula(celda)) {
        return ValorDeCelda{*deFormula};
    }
    return ValorDeCelda{escrita}; // with its blanks: two codes may differ in nothing else
}

} // namespace varo
