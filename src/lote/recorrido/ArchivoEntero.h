// A file that appears whole or not at all.
#pragma once

#include <filesystem>

namespace varo {

/// The file is written in a new folder beside its target; `publicar` puts it in the target's place. Until
/// then an existing target stays as it is; without `publicar` nothing is left behind.
class ArchivoEntero {
public:
    /// Makes the target's folder when it is missing. A folder that cannot be made or written, and a target
    /// that exists and is no file, throw ErrorEjecucion 75.
    explicit ArchivoEntero(const std::filesystem::path& destino);
    ArchivoEntero(const ArchivoEntero&) = delete;
    ArchivoEntero& operator=(const ArchivoEntero&) = delete;
    ~ArchivoEntero();

    /// The new folder, and the name of the file in it: that of the target.
    [[nodiscard]] const std::filesystem::path& carpeta() const { return carpeta_; }
    [[nodiscard]] std::filesystem::path nombre() const { return destino_.filename(); }
    [[nodiscard]] std::filesystem::path provisional() const { return carpeta_ / nombre(); }

    /// Call once, with the file written. Throws ErrorEjecucion 75 when the target's place cannot be taken.
    void publicar();

private:
    std::filesystem::path destino_;
    std::filesystem::path carpeta_;
    bool publicado_ = false;
};

} // namespace varo
