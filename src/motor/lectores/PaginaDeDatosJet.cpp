#include "motor/lectores/PaginaDeDatosJet.h"

namespace varo {
namespace {

constexpr std::size_t lugaresJet3 = 10;
constexpr std::size_t lugaresJet4 = 14;

// A row's place in its page, with two flags; a deleted row has both.
constexpr unsigned banderaAcogida = 0x8000;
constexpr unsigned banderaTrasladada = 0x4000;
constexpr unsigned mascaraLugar = 0x1FFF;

constexpr std::uint32_t marcaLval = 0x4C41564C; // "LVAL"

EstadoDeFila EstadoDe(unsigned sitio) {
    const bool acogida = (sitio & banderaAcogida) != 0;
    const bool trasladada = (sitio & banderaTrasladada) != 0;
    if (acogida) {
        return trasladada ? EstadoDeFila::Borrada : EstadoDeFila::Acogida;
    }
    return trasladada ? EstadoDeFila::Trasladada : EstadoDeFila::Presente;
}

} // namespace

PaginaDeDatosJet::PaginaDeDatosJet(const ArchivoJet& archivo, std::uint32_t numero)
    : pagina_{archivo.pagina(numero, ClasePaginaJet::Datos)}, numero_{numero},
      lugares_{archivo.esJet3() ? lugaresJet3 : lugaresJet4}, filas_{LeerU16(pagina_, lugares_ - 2)} {
    if (lugares_ + 2 * filas_ > pagina_.size()) {
        ArchivoDanado(PaginaDicha(numero) + " dice tener más filas de las que caben");
    }
}

bool PaginaDeDatosJet::deValoresLargos() const {
    return duena() == marcaLval;
}

/// Rows are laid down from the end of the page, so each one ends where the one before it begins.
PaginaDeDatosJet::Fila PaginaDeDatosJet::fila(std::size_t numero) const {
    if (numero >= filas_) {
        ArchivoDanado(PaginaDicha(numero_) + " no tiene la fila " + std::to_string(numero));
    }
    const unsigned sitio = LeerU16(pagina_, lugares_ + 2 * numero);
    const std::size_t primero = sitio & mascaraLugar;
    const std::size_t fin =
        numero == 0 ? pagina_.size() : LeerU16(pagina_, lugares_ + 2 * (numero - 1)) & mascaraLugar;
    if (primero < lugares_ + 2 * filas_ || primero > fin || fin > pagina_.size()) {
        ArchivoDanado("en " + PaginaDicha(numero_) + " una fila pisa a otra");
    }
    return {pagina_.subspan(primero, fin - primero), EstadoDe(sitio)};
}

PaginaDeDatosJet::Fila FilaSenalada(const ArchivoJet& archivo, SitioDeFila sitio) {
    return PaginaDeDatosJet{archivo, sitio.pagina}.fila(sitio.fila);
}

} // namespace varo
