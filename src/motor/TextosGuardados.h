// Many texts, one behind the other, and each long one once.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace varo {

/// Takes four bytes more than a text has; what is kept stays where it is.
class TextosGuardados {
public:
    /// Where a text stands.
    using SitioDeTexto = std::uint64_t;

    TextosGuardados() = default;
    TextosGuardados(const TextosGuardados&) = delete;
    TextosGuardados(TextosGuardados&&) = default;
    TextosGuardados& operator=(const TextosGuardados&) = delete;
    TextosGuardados& operator=(TextosGuardados&&) = default;
    ~TextosGuardados() = default;

    SitioDeTexto guardar(std::string_view texto);
    /// The same for a text that is new: nothing is remembered of it, which costs less.
    SitioDeTexto anadir(std::string_view texto);
    /// The text of a place that `guardar` gave.
    [[nodiscard]] std::string_view operator[](SitioDeTexto sitio) const;

private:
    std::deque<std::string> bloques_;
    std::unordered_map<std::string_view, SitioDeTexto> largos_;
};

/// Texts by their number, from 0; the files that have such lists have each text once in them.
class ListaDeTextos {
public:
    void anadir(std::string_view texto) { sitios_.push_back(textos_.anadir(texto)); }
    [[nodiscard]] std::size_t size() const { return sitios_.size(); }
    [[nodiscard]] std::string_view operator[](std::size_t numero) const { return textos_[sitios_[numero]]; }

private:
    TextosGuardados textos_;
    std::deque<TextosGuardados::SitioDeTexto> sitios_;
};

} // namespace varo
