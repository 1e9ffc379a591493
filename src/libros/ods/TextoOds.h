// The text of a cell of an .ods, which is written in paragraphs.
#pragma once

#include "libros/LectorXml.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <string>
#include <string_view>

namespace varo {

/// Paragraphs are parted by line feeds. Blanks, tabs and ends of lines in XML are one blank, and none at the
/// ends of a paragraph; what counts is written as elements.
class TextoOds {
public:
    explicit TextoOds(LimitesDeLectura& limites) : limites_{limites} {}

    void empezar();
    void abrirParrafo();
    void escribir(std::string_view trozo);
    /// An element inside a paragraph that stands for blanks, a tab or an end of line; true if it is one.
    bool escribirElemento(const ElementoXml& elemento);
    void cerrarParrafo();

    [[nodiscard]] bool hay() const { return hay_; }
    [[nodiscard]] const std::string& texto() const { return texto_; }

private:
    std::string texto_;
    LimitesDeLectura& limites_;
    bool hay_ = false;
    bool trasBlanco_ = true;     // a blank here is one too many
    bool blancoAlFinal_ = false; // the last letter is one that the end of the paragraph takes away
};

} // namespace varo
