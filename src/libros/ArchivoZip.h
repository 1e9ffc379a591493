// The parts of a zipped workbook, unpacked piece by piece.
#pragma once

#include "motor/lectores/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct zip;

namespace varo {

/// Looks at the bytes, which must outlive it. What it unpacks is bounded in all, so that a small hostile file
/// cannot fill the memory. Damaged or encrypted parts throw ErrorMotor.
class ArchivoZip {
public:
    explicit ArchivoZip(Bytes bytes);

    static bool esZip(Bytes bytes);

    /// Names as they are written, in the order of the archive.
    [[nodiscard]] std::vector<std::string> nombres() const;
    /// A part is found whatever the case of its letters.
    [[nodiscard]] bool tiene(std::string_view parte) const { return buscar(parte).has_value(); }
    /// How long the archive says that the part is; 0 for one that is not there.
    [[nodiscard]] std::size_t tamano(std::string_view parte) const;

    /// Hands over the content from its beginning to its end. A part that is not there is a damage.
    void leer(const std::string& parte, const std::function<void(std::string_view)>& recibir) const;
    /// The content of a part that is short; of a longer one no more than this.
    [[nodiscard]] std::string leerCorta(const std::string& parte, std::size_t maximo) const;

private:
    struct Cerrar {
        void operator()(zip* archivo) const;
    };

    [[nodiscard]] std::optional<std::uint64_t> buscar(std::string_view parte) const;
    void gastar(const std::string& parte, std::size_t bytes) const;

    std::unique_ptr<zip, Cerrar> archivo_;
    std::map<std::string, std::uint64_t, std::less<>> lugares_;
    mutable std::size_t queda_; // of what may be unpacked
};

} // namespace varo
