// The text of a job before it is a tree: what is wrong with it, in words.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varo {

/// The line, from 1, of the first byte that is no UTF-8; nothing when all of the text is.
std::optional<int> LineaSinUtf8(std::string_view texto);

/// The line, from 1, of the first key with more parts, as in "formato.codigos.Ps", than any job has; nothing
/// without one. Each part is a table inside another: millions of them would be too deep to be let go of.
std::optional<int> LineaDeClaveHonda(std::string_view texto);

/// What a person can do about a fault that the TOML library describes so.
std::string RemedioDeToml(std::string_view descripcion);

} // namespace varo
