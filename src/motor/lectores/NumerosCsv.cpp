#include "motor/lectores/NumerosCsv.h"

#include "basico/Numeros.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

namespace varo {
namespace {

using namespace std::string_view_literals;

bool EsCifra(char letra) {
    return letra >= '0' && letra <= '9';
}

bool SonCifras(std::string_view texto) {
    return std::ranges::all_of(texto, EsCifra);
}

bool TieneMarcas(std::string_view celda) {
    return celda.find('.') != std::string_view::npos || celda.find(',') != std::string_view::npos;
}

/// "12.345.678": one to three digits, the first one no zero, and then groups of three.
bool SonGrupos(std::string_view texto, char deMillares) {
    constexpr std::size_t grupo = 3;
    const auto primero = texto.find(deMillares);
    if (primero == 0 || primero > grupo || texto[0] == '0' || !SonCifras(texto.substr(0, primero))) {
        return false;
    }
    texto.remove_prefix(primero);
    while (!texto.empty()) {
        if (texto[0] != deMillares || texto.size() <= grupo || !SonCifras(texto.substr(1, grupo))) {
            return false;
        }
        texto.remove_prefix(1 + grupo);
    }
    return true;
}

bool EsExponente(std::string_view texto) {
    if (!texto.empty() && (texto[0] == '+' || texto[0] == '-')) {
        texto.remove_prefix(1);
    }
    return !texto.empty() && SonCifras(texto);
}

/// The parts of a number as a cell spells it.
struct Escritura {
    std::string_view signo;
    std::string_view enteras; ///< with the marks of thousands
    std::string_view decimales;
    std::string_view exponente; ///< with its letter
    bool conMarca = false;
    bool agrupada = false;
};

/// Nothing when it is no number with that mark.
std::optional<Escritura> Descomponer(std::string_view celda, char marca) {
    const char deMillares = marca == '.' ? ',' : '.';
    Escritura numero;
    const auto conSigno = celda.starts_with('-') || celda.starts_with('+') ? 1U : 0U;
    numero.signo = celda.substr(0, conSigno);
    celda.remove_prefix(conSigno);
    const auto letra = std::min(celda.find('e'), celda.find('E'));
    if (letra != std::string_view::npos) {
        numero.exponente = celda.substr(letra);
        celda = celda.substr(0, letra);
    }
    const auto fin = std::min(celda.find(marca), celda.size());
    numero.conMarca = fin < celda.size();
    numero.enteras = celda.substr(0, fin);
    numero.decimales = numero.conMarca ? celda.substr(fin + 1) : std::string_view{};
    numero.agrupada = numero.enteras.find(deMillares) != std::string_view::npos;
    const bool valen = numero.agrupada
                           ? numero.exponente.empty() && SonGrupos(numero.enteras, deMillares)
                           : SonCifras(numero.enteras) && numero.enteras.size() + numero.decimales.size() > 0;
    if (!valen || !SonCifras(numero.decimales) ||
        (!numero.exponente.empty() && !EsExponente(numero.exponente.substr(1)))) {
        return std::nullopt;
    }
    return numero;
}

/// Most cells of a plot begin as a number does or as none does.
bool EmpiezaComoNumero(std::string_view celda) {
    return !celda.empty() && (EsCifra(celda[0]) || "+-.,"sv.find(celda[0]) != std::string_view::npos);
}

/// A number without what a spreadsheet's format puts beside it.
struct NumeroDesnudo {
    std::string_view numero;
    bool esPorcentaje = false;
};

constexpr std::array monedas{"€"sv, "$"sv};

/// Blanks that part nothing are among them.
void QuitarBlancos(std::string_view& texto) {
    constexpr std::array blancos{" "sv, "\t"sv, "\r"sv, "\n"sv, "\u00A0"sv, "\u202F"sv};
    for (bool quedan = true; quedan;) {
        quedan = false;
        for (const auto blanco : blancos) {
            if (texto.starts_with(blanco)) {
                texto.remove_prefix(blanco.size());
                quedan = true;
            } else if (texto.ends_with(blanco)) {
                texto.remove_suffix(blanco.size());
                quedan = true;
            }
        }
    }
}

/// Takes one sign of a currency or of a percentage off.
NumeroDesnudo Desnudar(std::string_view celda) {
    QuitarBlancos(celda);
    NumeroDesnudo desnudo{celda};
    auto& numero = desnudo.numero;
    if (celda.ends_with('%')) {
        desnudo.esPorcentaje = true;
        numero.remove_suffix(1);
        QuitarBlancos(numero);
        return desnudo;
    }
    for (const auto moneda : monedas) {
        if (celda.ends_with(moneda)) {
            numero.remove_suffix(moneda.size());
        } else if (celda.starts_with(moneda)) {
            numero.remove_prefix(moneda.size());
        } else {
            continue;
        }
        QuitarBlancos(numero);
        break;
    }
    return desnudo;
}

bool EsCodigo(const Escritura& numero) {
    constexpr std::size_t cifrasDeUnNumero = 15;
    const auto& enteras = numero.enteras;
    return !numero.conMarca && !numero.agrupada &&
           (enteras.size() > cifrasDeUnNumero ||
            (enteras.size() > 1 && enteras[0] == '0' && numero.signo.empty() && numero.exponente.empty()));
}

} // namespace

std::string_view SinBlancosEnLosExtremos(std::string_view celda) {
    QuitarBlancos(celda);
    return celda;
}

std::optional<double> LeerNumeroCsv(std::string_view celda, char marca) {
    const auto [desnuda, esPorcentaje] = Desnudar(celda);
    if (!EmpiezaComoNumero(desnuda) || (marca == marcaNinguna && TieneMarcas(desnuda))) {
        return std::nullopt;
    }
    const auto numero = Descomponer(desnuda, marca == ',' ? ',' : '.');
    if (!numero || EsCodigo(*numero) || (esPorcentaje && !numero->exponente.empty())) {
        return std::nullopt;
    }
    std::string texto{numero->signo};
    std::ranges::copy_if(numero->enteras, std::back_inserter(texto), EsCifra);
    texto.append(",").append(numero->decimales).append(esPorcentaje ? "E-2"sv : numero->exponente);
    constexpr std::size_t siempreCabe = 300;
    if ((!numero->exponente.empty() || texto.size() > siempreCabe) && !EsNumerico(texto)) {
        return std::nullopt;
    }
    return ANumero(texto);
}

bool PareceNumeroCsv(std::string_view celda) {
    return LeerNumeroCsv(celda, '.') || LeerNumeroCsv(celda, ',');
}

HuellaDeMarca HuellaDe(std::string_view celda) {
    const auto desnuda = Desnudar(celda).numero;
    if (!EmpiezaComoNumero(desnuda)) {
        return {};
    }
    using Fuerza = HuellaDeMarca::Fuerza;
    const auto conPunto = Descomponer(desnuda, '.');
    if (conPunto && !TieneMarcas(desnuda)) {
        return {.fuerza = Fuerza::SinMarca, .enteras = conPunto->enteras};
    }
    const auto conComa = Descomponer(desnuda, ',');
    if (!conPunto && !conComa) {
        return {};
    }
    const bool dudosa = conPunto && conComa;
    const bool esPunto = dudosa ? conPunto->conMarca : conPunto.has_value();
    const auto& numero = esPunto ? *conPunto : *conComa;
    return {dudosa            ? Fuerza::Dudosa
            : numero.conMarca ? Fuerza::Decimal
                              : Fuerza::Grupos,
            esPunto ? std::size_t{0} : std::size_t{1}, numero.agrupada, numero.enteras, numero.decimales};
}

} // namespace varo
