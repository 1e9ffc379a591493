// Texts of a database: in Unicode, often compressed, or, before Access 2000, in the code page of the file.
#pragma once

#include "motor/lectores/ArchivoJet.h"
#include "motor/lectores/Bytes.h"

#include <string>

namespace varo {

class TextosJet {
public:
    explicit TextosJet(const ArchivoJet& archivo)
        : unicode_{!archivo.esJet3()}, pagina_{archivo.paginaDeCodigos()} {}

    /// The text of a value, as UTF-8.
    [[nodiscard]] std::string leer(Bytes bytes) const;
    /// A name, which is never compressed.
    [[nodiscard]] std::string leerNombre(Bytes bytes) const;

private:
    bool unicode_;
    int pagina_;
};

} // namespace varo
