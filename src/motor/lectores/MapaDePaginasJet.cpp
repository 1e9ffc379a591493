#include "motor/lectores/MapaDePaginasJet.h"

#include "motor/lectores/PaginaDeDatosJet.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace varo {
namespace {

// Kinds of map: bits in the row itself, from a page on, or the numbers of pages full of bits.
constexpr int enLaFila = 0;
constexpr int enPaginas = 1;

constexpr std::size_t bytesDeCabecera = 4; // of a page full of bits

class LectorDeMapa {
public:
    explicit LectorDeMapa(const ArchivoJet& archivo) : archivo_{archivo} {}

    std::vector<std::uint32_t> leer(Bytes fila) {
        constexpr std::size_t cabecera = 5; // the kind, and the first page of the bits
        switch (LeerU8(fila, 0)) {
        case enLaFila:
            anadir(Trozo(fila, cabecera, fila.size() - std::min(cabecera, fila.size())), LeerU32(fila, 1));
            break;
        case enPaginas:
            leerPaginas(fila);
            break;
        default:
            ArchivoDanado("el mapa de páginas de una tabla no es válido");
        }
        return std::move(paginas_);
    }

private:
    /// Each page of bits goes on where the one before it ended; 0 is one without any. There is none behind
    /// the end of the file: so a map costs no more than the file is long.
    void leerPaginas(Bytes fila) {
        const std::size_t bitsPorPagina = 8 * (archivo_.tamanoDePagina() - bytesDeCabecera);
        for (std::size_t lugar = 1; lugar + 4 <= fila.size(); lugar += 4) {
            const auto numero = LeerU32(fila, lugar);
            if (numero != 0) {
                const std::size_t primera = lugar / 4 * bitsPorPagina;
                comprobarPagina(primera);
                const auto pagina = archivo_.pagina(numero, ClasePaginaJet::MapaDePaginas);
                anadir(pagina.subspan(bytesDeCabecera), primera);
            }
        }
    }

    void anadir(Bytes bits, std::uint64_t primera) {
        for (std::size_t i = 0; i < bits.size(); ++i) {
            const auto ocho = std::to_integer<unsigned>(bits[i]);
            for (unsigned bit = 0; ocho >> bit != 0; ++bit) {
                if ((ocho >> bit & 1U) != 0) {
                    const std::uint64_t numero = primera + 8 * i + bit;
                    comprobarPagina(numero);
                    paginas_.push_back(static_cast<std::uint32_t>(numero));
                }
            }
        }
    }

    void comprobarPagina(std::uint64_t numero) const {
        if (numero >= archivo_.paginas()) {
            ArchivoDanado("falta la página " + std::to_string(numero) + " de una tabla");
        }
    }

    const ArchivoJet& archivo_;
    std::vector<std::uint32_t> paginas_;
};

} // namespace

std::vector<std::uint32_t> PaginasDelMapa(const ArchivoJet& archivo, SitioDeFila mapa) {
    const auto fila = FilaSenalada(archivo, mapa);
    if (fila.estado != EstadoDeFila::Presente) {
        ArchivoDanado("el mapa de páginas de una tabla no está en su sitio");
    }
    return LectorDeMapa{archivo}.leer(fila.bytes);
}

} // namespace varo
