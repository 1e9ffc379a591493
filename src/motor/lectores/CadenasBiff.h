// Texts in the records of a workbook, which may go on through CONTINUE records.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace varo {

/// Reads on through the pieces of one long record. What is asked beyond the last one throws ErrorMotor.
class LectorContinuo {
public:
    explicit LectorContinuo(std::vector<Bytes> fragmentos);

    std::uint8_t u8();
    std::uint16_t u16();
    std::uint32_t u32();
    void saltar(std::size_t cuantos);

    [[nodiscard]] bool acabado() const;
    /// Bytes left in all pieces.
    [[nodiscard]] std::size_t resto() const;
    /// Bytes left in the current piece.
    [[nodiscard]] std::size_t restoDelFragmento() const;
    /// Takes bytes of the current piece, no more than are left in it.
    Bytes tomar(std::size_t cuantos);

private:
    std::vector<Bytes> fragmentos_;
    std::size_t actual_ = 0;
    std::size_t lugar_ = 0;
};

/// How a workbook writes its texts: BIFF8 in Unicode, BIFF5 in bytes of its code page. All come as UTF-8.
///
/// A BIFF5 workbook that gives UTF-16 as its page may hold both: plain letters in one byte each, other texts
/// in two. Each text tells by its length and its null bytes; one that may be either throws ErrorMotor.
class CadenasBiff {
public:
    explicit CadenasBiff(bool unicode) : unicode_{unicode} {}

    void ponerPagina(int paginaDeCodigos) { pagina_ = paginaDeCodigos; }

    /// A text of this length, in characters. More of the record may follow it.
    std::string leer(LectorContinuo& lector, std::size_t longitud) const;
    /// A text behind its 8-bit or 16-bit length, the last thing in its record, but for its letter formats.
    std::string leerCorta(LectorContinuo& lector) const;
    std::string leerLarga(LectorContinuo& lector) const;

private:
    [[nodiscard]] std::string leerUltima(LectorContinuo& lector, std::size_t longitud) const;
    [[nodiscard]] static std::string leerUnicode(LectorContinuo& lector, std::size_t longitud);
    [[nodiscard]] std::string deBytes(const std::string& bytes) const;

    bool unicode_;
    int pagina_ = 1252;
};

} // namespace varo
