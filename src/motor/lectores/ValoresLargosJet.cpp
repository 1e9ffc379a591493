#include "motor/lectores/ValoresLargosJet.h"

#include "motor/lectores/PaginaDeDatosJet.h"

#include <algorithm>

namespace varo {
namespace {

// Length and kind, where the bytes are, and four bytes that say nothing.
constexpr std::size_t lugarSitio = 4;
constexpr std::size_t cabecera = 12;

constexpr std::uint32_t mascaraLongitud = 0x3FFFFFFF;
constexpr std::uint32_t enElCampo = 0x80000000;
constexpr std::uint32_t enUnaFila = 0x40000000;

constexpr std::size_t tamanoDeEnlace = 4; // to the next row of a chain

[[noreturn]] void MemoDanado() {
    ArchivoDanado("un texto largo no está entero");
}

Bytes Fragmento(const ArchivoJet& archivo, SitioDeFila sitio) {
    const PaginaDeDatosJet pagina{archivo, sitio.pagina};
    const auto fila = pagina.fila(sitio.fila);
    if (!pagina.deValoresLargos() || fila.estado != EstadoDeFila::Presente) {
        MemoDanado();
    }
    return fila.bytes;
}

/// The rows of a chain fill their pages, so there are no more of them than pages in the file.
std::vector<std::byte> JuntarCadena(const ArchivoJet& archivo, SitioDeFila sitio, std::size_t longitud) {
    std::vector<std::byte> bytes;
    for (std::uint32_t filas = 0; bytes.size() < longitud; ++filas) {
        const auto fila = Fragmento(archivo, sitio);
        sitio = LeerSitioDeFila(fila, 0);
        const auto contenido = fila.subspan(tamanoDeEnlace);
        if (filas == archivo.paginas()) {
            MemoDanado();
        }
        const auto cabe = contenido.first(std::min(contenido.size(), longitud - bytes.size()));
        bytes.insert(bytes.end(), cabe.begin(), cabe.end());
    }
    return bytes;
}

std::vector<std::byte> Comienzo(Bytes bytes, std::size_t longitud) {
    if (longitud > bytes.size()) {
        MemoDanado();
    }
    const auto trozo = bytes.first(longitud);
    return {trozo.begin(), trozo.end()};
}

} // namespace

std::vector<std::byte> LeerValorLargo(const ArchivoJet& archivo, Bytes campo, LimitesDeLectura& limites) {
    if (campo.empty()) {
        return {};
    }
    const auto longitudYClase = LeerU32(campo, 0);
    const auto sitio = LeerSitioDeFila(Trozo(campo, 0, cabecera), lugarSitio);
    const std::size_t longitud = longitudYClase & mascaraLongitud;
    limites.contarTexto(longitud);
    if ((longitudYClase & enElCampo) != 0) {
        return Comienzo(campo.subspan(cabecera), longitud);
    }
    if ((longitudYClase & enUnaFila) != 0) {
        return Comienzo(Fragmento(archivo, sitio), longitud);
    }
    return JuntarCadena(archivo, sitio, longitud);
}

} // namespace varo
