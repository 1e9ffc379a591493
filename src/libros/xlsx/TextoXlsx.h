// Texts of an .xlsx, which come in runs and with escapes of their own.
#pragma once

#include "libros/LectorXml.h"

#include <string>
#include <string_view>

namespace varo {

/// "_x000D_" stands for a carriage return, and so on for any character.
std::string SinEscapes(std::string_view texto);

/// A text gathered from its runs. Blanks at its ends count only where the run there says so.
class TextoXlsx {
public:
    void empezar();
    void abrirTramo(const ElementoXml& tramo);
    void escribir(std::string_view trozo) { escrito_ += trozo; }

    [[nodiscard]] std::string texto() const;

private:
    std::string escrito_;
    bool blancosDelante_ = false;
    bool blancosDetras_ = false;
    bool hayTramos_ = false;
};

} // namespace varo
