// The section of a job with the format of the map.
#pragma once

#include "lote/trabajo/FormatoPedido.h"
#include "lote/trabajo/LectorDeToml.h"

namespace varo {

/// An unknown key, a value of the wrong type, a colour that is no "#RRGGBB", a font name without letters
/// and a size that is not above 0, or above 512 points, throw ErrorTrabajo.
FormatoPedido LeerFormato(const toml::node& nodo, const LectorDeToml& lector);

} // namespace varo
