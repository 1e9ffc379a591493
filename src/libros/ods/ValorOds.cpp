#include "libros/ods/ValorOds.h"

#include "libros/Referencias.h"
#include "libros/ValoresEscritos.h"
#include "motor/lectores/Bytes.h"
#include "motor/lectores/FechasBiff.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace varo {
namespace {

using namespace std::string_view_literals;

/// What a formula shows that failed, in the languages of our users.
constexpr std::array<std::string_view, 14> errores{
    "#DIV/0!"sv, "#¡DIV/0!"sv, "#N/A"sv,   "#N/D"sv,  "#NAME?"sv, "#¿NOMBRE?"sv, "#NULL!"sv,
    "#¡NULO!"sv, "#NUM!"sv,    "#¡NUM!"sv, "#REF!"sv, "#¡REF!"sv, "#VALUE!"sv,   "#¡VALOR!"sv};

/// Some programs write the failure of a formula as the text, or the number, that shows it.
bool MuestraUnError(std::string_view parrafos) {
    return parrafos.starts_with("Err:") || std::ranges::find(errores, parrafos) != errores.end();
}

[[noreturn]] void NoLleva(const std::string& que, const std::string& valor) {
    ArchivoDanado("una celda no lleva " + que + ": " + valor);
}

ValorDeCelda ValorNumerico(const std::string& escrito) {
    const auto numero = NumeroEscrito(escrito);
    if (!numero) {
        NoLleva("un número", escrito);
    }
    // What is no finite number shows as an error in a sheet, and is null like one.
    return std::isfinite(*numero) ? ValorDeCelda{ValorDeCelda::Clase::Numero, *numero} : ValorDeCelda{};
}

/// Gnumeric leaves the attribute empty for a day that never was.
ValorDeCelda ValorDeFecha(const std::string& escrito) {
    if (escrito.empty()) {
        return {};
    }
    const auto fecha = FechaEscrita(escrito);
    if (!fecha) {
        NoLleva("una fecha", escrito);
    }
    return ValorDeCelda{*fecha};
}

/// A time is a number of days, which becomes what the same number is in the other formats.
ValorDeCelda ValorDeHora(const std::string& escrito) {
    const auto dias = DiasDeDuracion(escrito);
    if (!dias) {
        NoLleva("una hora", escrito);
    }
    // So is a time that has no end.
    return std::isfinite(*dias) ? ValorDeCelda{FechaDeSerie(*dias, false)} : ValorDeCelda{};
}

ValorDeCelda ValorDeVerdad(const std::string& escrito) {
    if (escrito != "true" && escrito != "false") {
        NoLleva("verdadero ni falso", escrito);
    }
    return {ValorDeCelda::Clase::Verdad, escrito == "true" ? 1.0 : 0.0};
}

std::optional<ValorDeCelda> ValorDeTexto(const CeldaOds& celda,
                                         const std::optional<std::string_view>& parrafos) {
    if (!celda.clase.empty() && celda.clase != "string" && celda.clase != "void") {
        ArchivoDanado("una celda es de una clase que no hay: " + celda.clase);
    }
    if (celda.texto) {
        return ValorDeCelda{*celda.texto};
    }
    if (parrafos || celda.conFormula || celda.clase == "string") {
        return ValorDeCelda{parrafos.value_or(std::string_view{})};
    }
    return std::nullopt;
}

/// Programs that do not compute write no result, or just its class.
bool EstaPorCalcular(const CeldaOds& celda, bool hayParrafos) {
    return celda.conFormula && celda.valor.empty() && !celda.texto && !hayParrafos && celda.clase != "string";
}

} // namespace

std::size_t VecesEscritas(std::string_view escritas, std::size_t maximo) {
    return std::clamp(EnteroEscrito(escritas).value_or(1), std::size_t{1}, maximo);
}

CeldaOds CeldaEscritaEnOds(const ElementoXml& elemento) {
    CeldaOds celda;
    for (const auto& [nombre, valor] : elemento.atributos()) {
        if (nombre.espacio == EspacioXml::Oficina) {
            if (nombre.nombre == "value-type") {
                celda.clase = valor;
            } else if (nombre.nombre == "string-value") {
                celda.texto = valor;
            } else if (nombre.nombre.ends_with("value")) {
                celda.valor = valor;
            }
        } else if (nombre == NombreXml{EspacioXml::Tabla, "formula"}) {
            celda.conFormula = true;
        } else if (nombre == NombreXml{EspacioXml::Tabla, "number-columns-repeated"}) {
            celda.veces = VecesEscritas(valor, columnasDeUnLibro);
        } else if (nombre == NombreXml{EspacioXml::Calc, "value-type"}) {
            celda.esError = valor == "error";
        }
    }
    return celda;
}

std::optional<ValorDeCelda> ValorDe(const CeldaOds& celda, const std::optional<std::string_view>& parrafos) {
    if (celda.esError || (celda.conFormula && MuestraUnError(parrafos.value_or(""))) ||
        EstaPorCalcular(celda, parrafos.has_value())) {
        return ValorDeCelda{};
    }
    if (celda.clase == "float" || celda.clase == "percentage" || celda.clase == "currency") {
        return ValorNumerico(celda.valor);
    }
    if (celda.clase == "date") {
        return ValorDeFecha(celda.valor);
    }
    if (celda.clase == "time") {
        return ValorDeHora(celda.valor);
    }
    if (celda.clase == "boolean") {
        return ValorDeVerdad(celda.valor);
    }
    return ValorDeTexto(celda, parrafos);
}

} // namespace varo
