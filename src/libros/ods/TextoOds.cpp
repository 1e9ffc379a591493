#include "libros/ods/TextoOds.h"

#include <algorithm>
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
    trasBlanco_ = true;
    blancoAlFinal_ = false;
}

void TextoOds::escribir(std::string_view trozo) {
    for (const char c : trozo) {
        const bool blanco = c == ' ' || c == '\t' || c == '\n' || c == '\r';
        if (!blanco || !trasBlanco_) {
            texto_ += blanco ? ' ' : c;
            blancoAlFinal_ = blanco;
        }
        trasBlanco_ = blanco;
    }
}

bool TextoOds::escribirElemento(const ElementoXml& elemento) {
    if (elemento.es(EspacioXml::Texto, "s")) {
        const auto cuantos =
            EnteroEscrito(elemento.atributo({EspacioXml::Texto, "c"}).value_or("1")).value_or(1);
        constexpr std::size_t mientrasCrece = 3;
        limites_.contarTexto(mientrasCrece *
                             std::min(cuantos, masBlancos)); // no byte of the file stands for them
        texto_.append(cuantos, ' ');
    } else if (elemento.es(EspacioXml::Texto, "tab")) {
        texto_ += '\t';
    } else if (elemento.es(EspacioXml::Texto, "line-break")) {
        texto_ += '\n';
    } else {
        return false;
    }
    trasBlanco_ = false;
    blancoAlFinal_ = false;
    return true;
}

void TextoOds::cerrarParrafo() {
    if (blancoAlFinal_) {
        texto_.pop_back();
    }
}

} // namespace varo
