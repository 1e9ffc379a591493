// A page with rows: of a table, of long values or of usage maps.
#pragma once

#include "motor/lectores/ArchivoJet.h"
#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <cstdint>

namespace varo {

enum class EstadoDeFila : std::uint8_t {
    Presente,
    Trasladada, // it has outgrown its place, which tells where it stands now
    Acogida,    // it stands here, and its place is another one
    Borrada
};

class PaginaDeDatosJet {
public:
    struct Fila {
        Bytes bytes;
        EstadoDeFila estado = EstadoDeFila::Presente;
    };

    /// A page that is no such page, or not in the file, throws ErrorMotor.
    PaginaDeDatosJet(const ArchivoJet& archivo, std::uint32_t numero);

    /// The page of the definition of the table whose rows they are.
    [[nodiscard]] std::uint32_t duena() const { return LeerU32(pagina_, 4); }
    [[nodiscard]] bool deValoresLargos() const;
    [[nodiscard]] std::size_t filas() const { return filas_; }
    [[nodiscard]] Fila fila(std::size_t numero) const;

private:
    Bytes pagina_;
    std::uint32_t numero_;
    std::size_t lugares_; // where the list of the rows' places begins
    std::size_t filas_;
};

/// The row at a place, which somebody points to.
PaginaDeDatosJet::Fila FilaSenalada(const ArchivoJet& archivo, SitioDeFila sitio);

} // namespace varo
