// A Jet or ACE database as its header tells it, and its pages, decoded.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varo {

/// What a page holds, by its first byte.
enum class ClasePaginaJet : std::uint8_t { Datos = 1, Definicion = 2, MapaDePaginas = 5 };

/// Where a row lies: a page and the place of the row in it.
struct SitioDeFila {
    std::uint32_t pagina = 0;
    std::size_t fila = 0;
};

/// Stored in four bytes: the row in the first, the page in the others.
SitioDeFila LeerSitioDeFila(Bytes bytes, std::size_t lugar);

/// "la página 12"
std::string PaginaDicha(std::uint32_t numero);

class ArchivoJet {
public:
    static bool esJet(Bytes archivo);

    /// The bytes must outlive it. Throws ErrorMotor for a version that nobody knows and for a database with a
    /// password or really encrypted. The simple encoding of pages is undone.
    explicit ArchivoJet(Bytes archivo);
    ArchivoJet(const ArchivoJet&) = delete; // its pages may be bytes of its own
    ArchivoJet& operator=(const ArchivoJet&) = delete;
    ~ArchivoJet() = default;

    /// Access 97 and before; otherwise Access 2000 or later.
    [[nodiscard]] bool esJet3() const { return version_ == 0; }
    /// In which the texts of a Jet 3 database are written.
    [[nodiscard]] int paginaDeCodigos() const { return paginaDeCodigos_; }
    [[nodiscard]] std::size_t tamanoDePagina() const { return esJet3() ? 2048 : 4096; }
    /// The whole pages of the file.
    [[nodiscard]] std::uint32_t paginas() const;

    /// A page of this class. One beyond the end of the file, or of another class, is damaged.
    [[nodiscard]] Bytes pagina(std::uint32_t numero, ClasePaginaJet clase) const;
    /// A page of any class.
    [[nodiscard]] Bytes pagina(std::uint32_t numero) const;

private:
    void comprobarContrasena(Bytes cabecera) const;
    void descodificar(std::uint32_t clave);

    Bytes archivo_;
    int version_;
    int paginaDeCodigos_ = 0;
    std::vector<std::byte> descodificado_;
};

} // namespace varo
