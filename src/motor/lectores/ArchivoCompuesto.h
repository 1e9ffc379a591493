// The compound file: streams kept in chains of sectors, with a directory. Every chain is bounded by the file.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// Sectors of one size and the table that links each one to the next of its chain.
struct TablaDeSectores {
    Bytes sectores;
    std::size_t tamanoSector = 0;
    std::vector<std::uint32_t> enlaces;

    [[nodiscard]] Bytes sector(std::uint32_t sector) const;
    /// The first `tamano` bytes of a chain.
    [[nodiscard]] std::vector<std::byte> leer(std::uint32_t primero, std::uint64_t tamano) const;
    [[nodiscard]] std::vector<std::byte> leerEntera(std::uint32_t primero) const;
};

class ArchivoCompuesto {
public:
    static bool esCompuesto(Bytes archivo);

    /// The bytes must outlive it. A structure that does not hold throws ErrorMotor.
    explicit ArchivoCompuesto(Bytes archivo);

    /// A stream of the root storage, by its name without regard to case; none when it is not there. Streams
    /// of inner storages (embedded objects) are not looked at.
    [[nodiscard]] std::optional<std::vector<std::byte>> flujo(std::string_view nombre) const;

private:
    struct EntradaDeFlujo {
        std::string nombre;
        int tipo = 0;
        std::uint32_t izquierda = 0;
        std::uint32_t derecha = 0;
        std::uint32_t hijo = 0;
        std::uint32_t primerSector = 0;
        std::uint64_t tamano = 0;
    };

    [[nodiscard]] std::vector<std::uint32_t> sectoresDeLaFat() const;
    [[nodiscard]] EntradaDeFlujo leerEntrada(std::size_t numero) const;
    [[nodiscard]] std::optional<EntradaDeFlujo> buscar(std::string_view nombre) const;
    [[nodiscard]] std::vector<std::byte> leerMini(const EntradaDeFlujo& entrada) const;

    Bytes archivo_;
    TablaDeSectores sectores_;
    std::vector<std::byte> directorio_;
};

} // namespace varo
