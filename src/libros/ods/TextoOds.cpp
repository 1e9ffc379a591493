#include "libros/ods/TextoOds.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace varo {
namespace {

/// Far more than the memory.
constexpr std::size_t masBlancos = std::size_t{1} << 40U;

} // namespace

void TextoOds::empezar() {
    texto_.clear();
    hay_ = false;
}

void TextoOds::abrirParrafo() {
    if (hay_) {
        texto_ += '\n';
    }
    hay_ = true;
    parrafo_ = texto_.size();
    blancos_ = parrafo_;
    sangrado_ = false;
}

void TextoOds::escribir(std::string_view trozo) {
    for (const char c : trozo) {
        const bool deSangria = c == '\t' || c == '\n' || c == '\r';
        sangrado_ = sangrado_ || deSangria;
        if (c == ' ' || deSangria) {
            texto_ += ' ';
        } else {
            acabarBlancos(blancos_ == parrafo_);
            texto_ += c;
            blancos_ = texto_.size();
        }
    }
}

void TextoOds::acabarBlancos(bool enUnExtremo) {
    if (sangrado_) {
        texto_.resize(blancos_);
        texto_.append(enUnExtremo ? 0 : 1, ' ');
        sangrado_ = false;
    }
}

bool TextoOds::escribirElemento(const ElementoXml& elemento) {
    constexpr std::array<std::string_view, 3> blancos{"s", "tab", "line-break"};
    const auto [espacio, nombre] = elemento.nombre();
    if (espacio != EspacioXml::Texto || std::ranges::find(blancos, nombre) == blancos.end()) {
        return false;
    }
    acabarBlancos(blancos_ == parrafo_);
    if (nombre == "s") {
        const auto cuantos =
            EnteroEscrito(elemento.atributo({EspacioXml::Texto, "c"}).value_or("1")).value_or(1);
        constexpr std::size_t mientrasCrece = 3;
        limites_.contarTexto(mientrasCrece *
                             std::min(cuantos, masBlancos)); // no byte of the file stands for them
        texto_.append(cuantos, ' ');
    } else {
        texto_ += nombre == "tab" ? '\t' : '\n';
    }
    blancos_ = texto_.size();
    return true;
}

void TextoOds::cerrarParrafo() {
    acabarBlancos(true);
}

} // namespace varo
