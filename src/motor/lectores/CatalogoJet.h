// The tables that a database says it has.
#pragma once

#include "motor/lectores/ArchivoJet.h"
#include "motor/lectores/LimitesDeLectura.h"

#include <cstdint>
#include <string>
#include <vector>

namespace varo {

struct TablaDeCatalogo {
    std::string nombre;
    std::uint32_t pagina = 0; // of its definition
    bool vinculada = false;   // its rows are in another file
};

/// The tables in the order in which the file holds them, hidden ones too; those of the system are left out.
std::vector<TablaDeCatalogo> LeerCatalogo(const ArchivoJet& archivo, LimitesDeLectura& limites);

} // namespace varo
