#include "basico/Texto.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace varo {

namespace {

/// A character begins at every byte that does not continue one.
bool Empieza(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The byte where the character number `indice` (0 is the first) begins; the end past the last one.
std::size_t Comienzo(std::string_view texto, std::size_t indice) {
    for (std::size_t byte = 0; byte < texto.size(); ++byte) {
        if (!Empieza(texto[byte])) {
            continue;
        }
        if (indice == 0) {
            return byte;
        }
        --indice;
    }
    return texto.size();
}

/// The rest of the text from position `desde` on.
std::string_view Resto(std::string_view texto, std::size_t desde) {
    if (desde == 0) {
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
    return texto.substr(Comienzo(texto, desde - 1));
}

/// Capitals that stand `paso` apart, each `salto` before its small letter.
struct Mayusculas {
    char32_t primera;
    char32_t ultima;
    char32_t paso;
    std::int32_t salto;
};

/// The first one that holds a letter counts. Latin Extended-A pairs each capital with the letter behind it.
constexpr std::array<Mayusculas, 9> mayusculas{{
    {U'A', U'Z', 1, 0x20},
    {U'À', U'Ö', 1, 0x20},
    {U'Ø', U'Þ', 1, 0x20},
    {U'İ', U'İ', 1, 'i' - 0x130},
    {U'Ÿ', U'Ÿ', 1, 0xFF - 0x178},
    {U'Ā', U'ķ', 2, 1},
    {U'Ĺ', U'ň', 2, 1},
    {U'Ŋ', U'ŷ', 2, 1},
    {U'Ź', U'ž', 2, 1},
}};

char32_t Minuscula(char32_t c) {
    const auto* const grupo = std::ranges::find_if(mayusculas, [c](const Mayusculas& letras) {
        return c >= letras.primera && c <= letras.ultima && (c - letras.primera) % letras.paso == 0;
    });
    return grupo == mayusculas.end() ? c : static_cast<char32_t>(static_cast<std::int32_t>(c) + grupo->salto);
}

} // namespace

std::size_t Longitud(std::string_view texto) {
    return static_cast<std::size_t>(std::ranges::count_if(texto, Empieza));
}

std::string Izquierda(std::string_view texto, std::size_t cuantos) {
    return std::string{texto.substr(0, Comienzo(texto, cuantos))};
}

std::string Derecha(std::string_view texto, std::size_t cuantos) {
    const std::size_t longitud = Longitud(texto);
    return std::string{texto.substr(cuantos < longitud ? Comienzo(texto, longitud - cuantos) : 0)};
}

std::string Medio(std::string_view texto, std::size_t desde) {
    return std::string{Resto(texto, desde)};
}

std::string Medio(std::string_view texto, std::size_t desde, std::size_t cuantos) {
    return Izquierda(Resto(texto, desde), cuantos);
}

std::size_t Posicion(std::string_view texto, std::string_view buscado, std::size_t desde) {
    const std::string_view resto = Resto(texto, desde);
    const auto hallado = resto.find(buscado);
    if (resto.empty() || hallado == std::string_view::npos) {
        return 0;
    }
    return desde + Longitud(resto.substr(0, hallado));
}

std::string Recortar(std::string_view texto) {
    const auto primero = texto.find_first_not_of(' ');
    if (primero == std::string_view::npos) {
        return {};
    }
    return std::string{texto.substr(primero, texto.find_last_not_of(' ') - primero + 1)};
}

std::string Reemplazar(std::string_view texto, std::string_view buscado, std::string_view nuevo) {
    if (buscado.empty()) {
        return std::string{texto};
    }
    std::string resultado;
    for (auto hallado = texto.find(buscado); hallado != std::string_view::npos;
         hallado = texto.find(buscado)) {
        resultado += texto.substr(0, hallado);
        resultado += nuevo;
        texto.remove_prefix(hallado + buscado.size());
    }
    return resultado.append(texto);
}

std::string EnUnaLinea(std::string_view texto) {
    std::string plano = Reemplazar(texto, "\r\n", " ");
    std::ranges::replace_if(
        plano, [](char caracter) { return static_cast<unsigned char>(caracter) < ' '; }, ' ');
    return plano;
}

std::string Minusculas(std::string_view texto) {
    std::string resultado;
    while (!texto.empty()) {
        AnadirUtf8(resultado, Minuscula(SacarUtf8(texto)));
    }
    return resultado;
}

bool MismoNombre(std::string_view a, std::string_view b) {
    return Minusculas(a) == Minusculas(b);
}

std::string Cita(std::string_view texto) {
    constexpr std::size_t bastantes = 40;
    const bool largo = Longitud(texto) > bastantes;
    return "«" + (largo ? Izquierda(texto, bastantes) + "…" : std::string{texto}) + "»";
}

} // namespace varo
