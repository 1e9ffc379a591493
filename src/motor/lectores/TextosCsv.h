// The letters of a text file, whatever it writes them in.
#pragma once

#include "motor/lectores/Bytes.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace varo {

/// A text that is its own, or that lies in the bytes of the file, which must outlive it then.
class TextoDeArchivo {
public:
    explicit TextoDeArchivo(std::string propias) : propias_{std::move(propias)} {}
    explicit TextoDeArchivo(std::string_view delArchivo) : delArchivo_{delArchivo} {}

    [[nodiscard]] std::string_view texto() const { return propias_ ? *propias_ : delArchivo_; }

private:
    std::optional<std::string> propias_;
    std::string_view delArchivo_;
};

/// The file as UTF-8, without the mark at its beginning; nothing when its beginning is no text. Known are
/// UTF-8 and UTF-16, with their marks and without, and Windows-1252, which is what is neither. A letter
/// further on that no text has, or that is not written in what the mark says, throws ErrorMotor with its
/// line.
std::optional<TextoDeArchivo> LeerLetras(Bytes bytes);

} // namespace varo
