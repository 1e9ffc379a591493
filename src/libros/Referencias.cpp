#include "libros/Referencias.h"

#include "basico/Texto.h"

#include <algorithm>

namespace varo {
namespace {

/// Beyond any sheet, and far from the end of the numbers.
constexpr std::size_t demasiado = 100'000'000;

std::optional<std::size_t> TomarFila(std::string_view& texto) {
    std::size_t numero = 0;
    std::size_t cifras = 0;
    for (; cifras < texto.size() && texto[cifras] >= '0' && texto[cifras] <= '9'; ++cifras) {
        numero = std::min(numero * 10 + static_cast<std::size_t>(texto[cifras] - '0'), demasiado);
    }
    texto.remove_prefix(cifras);
    return cifras == 0 || numero == 0 ? std::nullopt : std::optional{numero - 1};
}

std::optional<std::size_t> TomarColumna(std::string_view& texto) {
    constexpr std::size_t letras = 26;
    std::size_t numero = 0;
    std::size_t cuantas = 0;
    for (; cuantas < texto.size(); ++cuantas) {
        const char letra = texto[cuantas];
        const bool grande = letra >= 'A' && letra <= 'Z';
        if (!grande && !(letra >= 'a' && letra <= 'z')) {
            break;
        }
        const auto cifra = static_cast<std::size_t>(letra - (grande ? 'A' : 'a')) + 1;
        numero = std::min(numero * letras + cifra, demasiado);
    }
    texto.remove_prefix(cuantas);
    return cuantas == 0 ? std::nullopt : std::optional{numero - 1};
}

bool Tomar(std::string_view& texto, char c) {
    if (!texto.starts_with(c)) {
        return false;
    }
    texto.remove_prefix(1);
    return true;
}

/// A corner of a rectangle: a cell, or a column or a row alone.
struct Esquina {
    std::optional<std::size_t> fila;
    std::optional<std::size_t> columna;
};

/// "$B$7", "$B" or "$7"; nothing without the marks of what stays.
std::optional<Esquina> TomarEsquina(std::string_view& texto) {
    Esquina esquina;
    if (!Tomar(texto, '$')) {
        return std::nullopt;
    }
    esquina.columna = TomarColumna(texto);
    if (!esquina.columna || Tomar(texto, '$')) {
        esquina.fila = TomarFila(texto);
        if (!esquina.fila) {
            return std::nullopt;
        }
    }
    return esquina;
}

/// What stands before the closing quote, and takes it too. A quote inside is written twice, or behind a bar,
/// which no name of a sheet has.
std::optional<std::string> TomarEntreComillas(std::string_view& texto) {
    std::string nombre;
    for (;;) {
        const auto comilla = texto.find('\'');
        if (comilla == std::string_view::npos) {
            return std::nullopt;
        }
        nombre += texto.substr(0, comilla);
        texto.remove_prefix(comilla + 1);
        if (nombre.ends_with('\\')) {
            nombre.back() = '\'';
        } else if (Tomar(texto, '\'')) {
            nombre += '\'';
        } else {
            return nombre;
        }
    }
}

/// The name of a sheet, between quotes or plain, up to the mark behind it.
std::optional<std::string> TomarHoja(std::string_view& texto, char marca) {
    std::string nombre;
    if (Tomar(texto, '\'')) {
        const auto entreComillas = TomarEntreComillas(texto);
        if (!entreComillas) {
            return std::nullopt;
        }
        nombre = *entreComillas;
    } else {
        const auto fin = std::min(texto.find(marca), texto.size());
        nombre = texto.substr(0, fin);
        texto.remove_prefix(fin);
    }
    const bool deOtroLibro = nombre.find('[') != std::string::npos;
    return Tomar(texto, marca) && !deOtroLibro ? std::optional{nombre} : std::nullopt;
}

std::optional<ZonaDeHoja> ZonaEntre(const Esquina& una, const Esquina& otra) {
    if (una.fila.has_value() != otra.fila.has_value() ||
        una.columna.has_value() != otra.columna.has_value()) {
        return std::nullopt;
    }
    const ZonaDeHoja zona{una.fila.value_or(0), otra.fila.value_or(filasDeUnLibro - 1),
                          una.columna.value_or(0), otra.columna.value_or(columnasDeUnLibro - 1)};
    const bool esta = zona.primeraFila <= zona.ultimaFila && zona.primeraColumna <= zona.ultimaColumna &&
                      zona.ultimaFila < filasDeUnLibro && zona.ultimaColumna < columnasDeUnLibro;
    return esta ? std::optional{zona} : std::nullopt;
}

} // namespace

std::optional<SitioDeCelda> CeldaEscrita(std::string_view texto) {
    const auto columna = TomarColumna(texto);
    const auto fila = TomarFila(texto);
    if (!columna || !fila || !texto.empty()) {
        return std::nullopt;
    }
    return SitioDeCelda{*fila, *columna};
}

std::string NombreDeCelda(const SitioDeCelda& celda) {
    constexpr std::size_t letras = 26;
    std::string columna;
    for (auto resto = celda.columna + 1; resto > 0; resto = (resto - 1) / letras) {
        columna.insert(columna.begin(), static_cast<char>('A' + (resto - 1) % letras));
    }
    return columna + std::to_string(celda.fila + 1);
}

std::optional<ZonaEscrita> ZonaDeXlsx(std::string_view formula) {
    const auto hoja = TomarHoja(formula, '!');
    const auto una = hoja ? TomarEsquina(formula) : std::nullopt;
    if (!una) {
        return std::nullopt;
    }
    auto otra = una->fila && una->columna ? una : std::nullopt;
    if (Tomar(formula, ':')) {
        otra = TomarEsquina(formula);
    }
    const auto zona = otra && formula.empty() ? ZonaEntre(*una, *otra) : std::nullopt;
    return zona ? std::optional{ZonaEscrita{*hoja, *zona}} : std::nullopt;
}

std::optional<ZonaEscrita> ZonaDeOds(std::string_view direccion) {
    Tomar(direccion, '$');
    const auto hoja = TomarHoja(direccion, '.');
    const auto una = hoja ? TomarEsquina(direccion) : std::nullopt;
    if (!una) {
        return std::nullopt;
    }
    auto otra = una->fila && una->columna ? una : std::nullopt;
    if (Tomar(direccion, ':')) {
        if (!Tomar(direccion, '.')) {
            Tomar(direccion, '$');
            const auto otraHoja = TomarHoja(direccion, '.');
            if (!otraHoja || !MismoNombre(*otraHoja, *hoja)) {
                return std::nullopt;
            }
        }
        otra = TomarEsquina(direccion);
    }
    const auto zona = otra && direccion.empty() ? ZonaEntre(*una, *otra) : std::nullopt;
    return zona ? std::optional{ZonaEscrita{*hoja, *zona}} : std::nullopt;
}

} // namespace varo
