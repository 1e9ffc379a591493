// The text of a cell of an .ods, which is written in paragraphs.
#pragma once

#include "libros/LectorXml.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace varo {

/// Paragraphs are parted by line feeds. Blanks (character 32) count as they stand: spreadsheets write some
/// so. Those among which a tab or an end of line stands are of XML that is indented: one blank, and none at
/// the ends of a paragraph.
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
    /// What was written last is no blank of XML any more.
    void acabarBlancos(bool enUnExtremo);

    std::string texto_;
    LimitesDeLectura& limites_;
    bool hay_ = false;
    std::size_t parrafo_ = 0; // where it begins
    std::size_t blancos_ = 0; // where those begin that the text ends with now
    bool sangrado_ = false;   // there is a tab or an end of line among them
};

} // namespace varo
