// The formats of plot files whose readers stand outside the core: the programs add them when they begin.
#pragma once

#include "basico/Avance.h"
#include "motor/Tabla.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace varo {

struct FormatoDeArchivo {
    std::string nombre; ///< for persons: ".xlsx"
    /// True when the bytes are for this reader, also where it only says what is wrong with them.
    bool (*parece)(std::span<const std::byte> bytes) = nullptr;
    /// The tables, or ErrorMotor. `archivo` is the name that the faults tell.
    std::vector<Tabla> (*leer)(std::span<const std::byte> bytes, const std::string& archivo,
                               const Avance& avance) = nullptr;
};

/// From now on files of this format open. A name that is known already adds nothing. Files are read on many
/// threads: call it before there are any.
void RegistrarFormato(FormatoDeArchivo formato);

/// The first registered format that takes these bytes; null for none.
const FormatoDeArchivo* FormatoRegistrado(std::span<const std::byte> bytes);

/// ".xls, .mdb, .accdb, .csv" and what is registered: all that opens here.
std::string FormatosQueSeAbren();

} // namespace varo
