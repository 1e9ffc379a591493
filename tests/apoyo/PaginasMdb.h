// The pages of a Jet database as a test writes them: the header, pages with rows and maps of pages.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo::prueba {

/// How a row is marked in its page.
enum class MarcaDeFila : std::uint16_t {
    Ninguna = 0,
    Trasladada = 0x4000,
    Acogida = 0x8000,
    Borrada = 0xC000
};

struct SitioMdb {
    std::uint32_t pagina = 0;
    std::size_t fila = 0;
};

/// The four bytes that point to a row.
std::uint32_t EnlaceMdb(SitioMdb sitio);

class PaginasMdb {
public:
    using Contenido = std::vector<std::byte>;

    /// `version` is 0 for Access 97, 1 for Access 2000 to 2003, above for later ones. Two pages are there:
    /// the header, which `cerrar` writes, and one that is of no table.
    explicit PaginasMdb(int version);

    [[nodiscard]] bool jet3() const { return version_ == 0; }
    [[nodiscard]] std::size_t tamano() const { return jet3() ? 2048 : 4096; }
    [[nodiscard]] std::size_t cuantas() const { return paginas_.size(); }

    /// Adds a page that is zero but for its first two bytes, and gives its number.
    std::uint32_t nueva(int clase);
    Contenido& operator[](std::uint32_t numero) { return paginas_.at(numero); }

    /// Adds a page for rows of the table whose definition is on page `duena`.
    std::uint32_t nuevaDeFilas(std::uint32_t duena);
    /// Adds a page for memos and the like.
    std::uint32_t nuevaDeValoresLargos();
    [[nodiscard]] bool cabe(std::uint32_t pagina, std::size_t bytes) const;
    /// Adds a row and gives its place. One that does not fit throws std::length_error.
    SitioMdb anadirFila(std::uint32_t pagina, const Contenido& fila,
                        MarcaDeFila marca = MarcaDeFila::Ninguna);

    /// The row of a map that names these pages: by bits from the first one on, or by pages full of bits.
    Contenido mapa(const std::vector<std::uint32_t>& paginas, bool enPaginas);

    /// What the header says beside the version.
    std::uint16_t paginaDeCodigos = 1252;
    std::uint32_t clave = 0;        ///< with which the pages behind the header are encoded; 0 is not at all
    Contenido contrasena;           ///< its bytes
    double fechaDeCreacion = 38000; ///< of databases from Access 2000 on

    /// The file.
    [[nodiscard]] Contenido cerrar() const;

private:
    [[nodiscard]] Contenido cabecera() const;

    int version_;
    std::vector<Contenido> paginas_;
};

} // namespace varo::prueba
