#include "apoyo/PaginasMdb.h"

#include "apoyo/BytesDePrueba.h"
#include "motor/lectores/Rc4.h"

#include <algorithm>
#include <span>
#include <stdexcept>
#include <string_view>

namespace varo::prueba {
namespace {

using Contenido = PaginasMdb::Contenido;

constexpr std::uint32_t lval = 0x4C41564C;

void Poner(Contenido& bytes, std::size_t lugar, std::uint64_t valor, int cuantos) {
    Contenido escritos;
    AnadirEntero(escritos, valor, cuantos);
    std::ranges::copy(escritos, bytes.begin() + static_cast<std::ptrdiff_t>(lugar));
}

unsigned Leer16(const Contenido& bytes, std::size_t lugar) {
    return std::to_integer<unsigned>(bytes.at(lugar)) | std::to_integer<unsigned>(bytes.at(lugar + 1)) << 8U;
}

void PonerLetras(Contenido& bytes, std::size_t lugar, std::string_view letras) {
    std::ranges::transform(letras, bytes.begin() + static_cast<std::ptrdiff_t>(lugar),
                           [](char letra) { return static_cast<std::byte>(letra); });
}

Contenido Clave(std::uint32_t numero) {
    Contenido clave;
    AnadirU32(clave, numero);
    return clave;
}

} // namespace

std::uint32_t EnlaceMdb(SitioMdb sitio) {
    return sitio.pagina << 8U | static_cast<std::uint32_t>(sitio.fila);
}

PaginasMdb::PaginasMdb(int version) : version_{version} {
    paginas_.emplace_back(tamano());
    nuevaDeFilas(0);
}

std::uint32_t PaginasMdb::nueva(int clase) {
    auto& pagina = paginas_.emplace_back(tamano());
    pagina[0] = static_cast<std::byte>(clase);
    pagina[1] = std::byte{1};
    return static_cast<std::uint32_t>(paginas_.size() - 1);
}

std::uint32_t PaginasMdb::nuevaDeFilas(std::uint32_t duena) {
    const auto numero = nueva(1);
    Poner(paginas_[numero], 4, duena, 4);
    Poner(paginas_[numero], 2, tamano() - (jet3() ? 10 : 14), 2);
    return numero;
}

std::uint32_t PaginasMdb::nuevaDeValoresLargos() {
    return nuevaDeFilas(lval);
}

bool PaginasMdb::cabe(std::uint32_t pagina, std::size_t bytes) const {
    return bytes + 2 <= Leer16(paginas_.at(pagina), 2);
}

/// The page counts its free bytes and its rows; the rows grow down from the end, their places up from the
/// count.
SitioMdb PaginasMdb::anadirFila(std::uint32_t pagina, const Contenido& fila, MarcaDeFila marca) {
    if (!cabe(pagina, fila.size())) {
        throw std::length_error{"la fila no cabe en la página"};
    }
    auto& bytes = paginas_.at(pagina);
    const std::size_t cuenta = jet3() ? 8 : 12;
    const std::size_t filas = Leer16(bytes, cuenta);
    const unsigned libres = Leer16(bytes, 2);
    const std::size_t lugar = cuenta + 2 + 2 * filas + libres - fila.size();
    std::ranges::copy(fila, bytes.begin() + static_cast<std::ptrdiff_t>(lugar));
    Poner(bytes, cuenta + 2 + 2 * filas, lugar | static_cast<unsigned>(marca), 2);
    Poner(bytes, cuenta, filas + 1, 2);
    Poner(bytes, 2, libres - fila.size() - 2, 2);
    return {pagina, filas};
}

Contenido PaginasMdb::mapa(const std::vector<std::uint32_t>& paginas, bool enPaginas) {
    Contenido fila;
    AnadirU8(fila, enPaginas ? 1 : 0);
    const auto marcar = [](Contenido& bytes, std::size_t comienzo, std::size_t bit) {
        bytes.at(comienzo + bit / 8) |= static_cast<std::byte>(1U << bit % 8);
    };
    if (!enPaginas) {
        const std::uint32_t primera = paginas.empty() ? 0 : paginas.front() / 8 * 8;
        AnadirU32(fila, primera);
        fila.resize(5 + (jet3() ? 128 : 64));
        for (const auto pagina : paginas) {
            marcar(fila, 5, pagina - primera);
        }
        return fila;
    }
    const std::size_t porPagina = 8 * (tamano() - 4);
    for (std::size_t tramo = 0; tramo < 16; ++tramo) {
        const auto enTramo = [&](std::uint32_t pagina) { return pagina / porPagina == tramo; };
        if (std::ranges::none_of(paginas, enTramo)) {
            AnadirU32(fila, 0);
            continue;
        }
        const auto deBits = nueva(5);
        for (const auto pagina : paginas) {
            if (enTramo(pagina)) {
                marcar(paginas_[deBits], 4, pagina % porPagina);
            }
        }
        AnadirU32(fila, deBits);
    }
    return fila;
}

Contenido PaginasMdb::cabecera() const {
    Contenido bytes(tamano());
    PonerLetras(bytes, 1, "\1");
    PonerLetras(bytes, 4, version_ < 2 ? "Standard Jet DB" : "Standard ACE DB");
    Poner(bytes, 0x14, static_cast<unsigned>(version_), 1);
    Poner(bytes, 0x3A, 0x0409, 2);
    Poner(bytes, 0x3C, paginaDeCodigos, 2);
    Poner(bytes, 0x3E, clave, 4);
    std::ranges::copy(contrasena, bytes.begin() + 0x42);
    if (!jet3()) {
        Contenido fecha;
        AnadirReal(fecha, fechaDeCreacion);
        std::ranges::copy(fecha, bytes.begin() + 0x72);
        const auto mascara = Clave(static_cast<std::uint32_t>(static_cast<std::int32_t>(fechaDeCreacion)));
        for (std::size_t i = 0; i < 40; ++i) {
            bytes[0x42 + i] ^= mascara[i % 4];
        }
    }
    CifrarRc4(std::span{bytes}.subspan(0x18, jet3() ? 126 : 128), Clave(0x6B39DAC7));
    return bytes;
}

Contenido PaginasMdb::cerrar() const {
    Contenido archivo = cabecera();
    for (std::uint32_t numero = 1; numero < paginas_.size(); ++numero) {
        auto pagina = paginas_[numero];
        if (clave != 0) {
            CifrarRc4(pagina, Clave(clave ^ numero));
        }
        archivo.insert(archivo.end(), pagina.begin(), pagina.end());
    }
    return archivo;
}

} // namespace varo::prueba
