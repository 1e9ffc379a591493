// A file that appears whole or not at all.
#pragma once

#include "formularios/Servicios.h"
#include "sistema/Provisionales.h"

#include <filesystem>
#include <optional>
#include <string>

namespace varo {

/// Writes beside its target, under a name of its own; `publicar` puts the file in the target's place once the
/// disk has it. Until then an existing target stays as it is; without `publicar` nothing is left behind. A
/// target that is replaced hands on its mode, and its owner where the system lets it; behind a link it is the
/// file that is replaced.
///
/// A fault says "No se ha escrito «target»" and why: 61 for a full disk, 76 for a folder that is not there,
/// 75 for all else. Also refused are a target that is no file, and one that is read-only: its mode bits
/// count, whoever runs the program.
class ArchivoEntero : public ArchivoNuevo {
public:
    explicit ArchivoEntero(const std::filesystem::path& destino);
    ArchivoEntero(const ArchivoEntero&) = delete;
    ArchivoEntero& operator=(const ArchivoEntero&) = delete;
    ~ArchivoEntero() override;

    void escribir(const std::string& bytes) override;
    void publicar() override;

private:
    struct Permisos {
        unsigned modo = 0;
        unsigned dueno = 0;
        unsigned grupo = 0;
    };

    void mirarDestino();
    void conservarPermisos() const;
    void soltar();

    std::filesystem::path pedido_; ///< as it was asked for
    std::filesystem::path destino_;
    std::optional<Permisos> anteriores_; ///< of the target that is replaced
    Provisional provisional_;
};

} // namespace varo
