// The rows of a table, from page to page.
#pragma once

#include "basico/Avance.h"
#include "motor/lectores/FilaJet.h"

#include <functional>

namespace varo {

/// Hands over each row that is not deleted, in the order of the pages. One that has outgrown its place is
/// read where it stands now. The steps are bytes.
void EnCadaFilaJet(const ArchivoJet& archivo, const DefinicionJet& definicion, const Avance& avance,
                   const std::function<void(const FilaJet&)>& accion);

} // namespace varo
