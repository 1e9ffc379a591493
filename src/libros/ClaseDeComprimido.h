// What a zipped file is that is no workbook.
#pragma once

#include "libros/ArchivoZip.h"

#include <string>

namespace varo {

/// "es un documento de Word (.docx): ..." with what to do.
std::string QueComprimidoEs(const ArchivoZip& archivo);

/// What OpenDocument and EPUB write into the file before all else; empty where there is nothing of the kind.
std::string ClaseDeclarada(const ArchivoZip& archivo);

} // namespace varo
