// Which parts of a package belong to which: the way from one to the next.
#pragma once

#include "libros/ArchivoZip.h"

#include <string>
#include <string_view>
#include <vector>

namespace varo {

struct RelacionXlsx {
    std::string id;
    std::string clase; ///< the last word of its type: "worksheet"
    std::string parte; ///< from the root of the package, without a bar in front
};

/// Those of a part, or of the whole package for an empty name. None where the part has none.
std::vector<RelacionXlsx> RelacionesDe(const ArchivoZip& archivo, const std::string& parte);

/// Where a target leads that a part writes: from the root of the package, or from the folder of the part.
std::string ParteHacia(std::string_view desde, std::string_view destino);

} // namespace varo
