// Files that are no plot: what they are, and what to do.
#pragma once

#include "motor/lectores/Bytes.h"

#include <optional>
#include <string>
#include <string_view>

namespace varo {

/// "es un documento PDF; ..." for bytes that begin as those of a known program; nothing for others.
std::optional<std::string> QueArchivoEs(Bytes bytes);

/// The same for a text that is written in some language of documents.
std::optional<std::string> QueTextoEs(std::string_view texto);

} // namespace varo
