#include "motor/TextosGuardados.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstring>
#include <limits>

namespace varo {
namespace {

using Longitud = std::uint32_t;

/// A shorter text costs less than to remember it.
constexpr std::size_t longitudDeLargo = 24;
constexpr std::size_t menorBloque = 1024;
constexpr std::size_t mayorBloque = std::size_t{256} * 1024;
constexpr unsigned bitsDentroDelBloque = 32;

} // namespace

TextosGuardados::SitioDeTexto TextosGuardados::guardar(std::string_view texto) {
    if (texto.size() < longitudDeLargo) {
        return anadir(texto);
    }
    if (const auto conocido = largos_.find(texto); conocido != largos_.end()) {
        return conocido->second;
    }
    const auto sitio = anadir(texto);
    largos_.emplace((*this)[sitio], sitio);
    return sitio;
}

TextosGuardados::SitioDeTexto TextosGuardados::anadir(std::string_view texto) {
    assert(texto.size() <= std::numeric_limits<Longitud>::max());
    const auto longitud = static_cast<Longitud>(texto.size());
    const std::size_t ocupa = sizeof longitud + texto.size();
    // A block never grows beyond what it reserved: its texts do not move.
    if (bloques_.empty() || bloques_.back().capacity() - bloques_.back().size() < ocupa) {
        const auto doble = bloques_.empty() ? menorBloque : 2 * bloques_.back().capacity();
        bloques_.emplace_back().reserve(std::max(ocupa, std::min(doble, mayorBloque)));
    }
    auto& bloque = bloques_.back();
    const SitioDeTexto sitio = (SitioDeTexto{bloques_.size() - 1} << bitsDentroDelBloque) | bloque.size();
    std::array<char, sizeof longitud> delante{};
    std::memcpy(delante.data(), &longitud, sizeof longitud);
    bloque.append(delante.data(), delante.size()).append(texto);
    return sitio;
}

std::string_view TextosGuardados::operator[](SitioDeTexto sitio) const {
    const std::string_view bloque = bloques_[sitio >> bitsDentroDelBloque];
    const auto lugar = static_cast<std::size_t>(sitio & std::numeric_limits<std::uint32_t>::max());
    Longitud longitud = 0;
    std::memcpy(&longitud, bloque.substr(lugar, sizeof longitud).data(), sizeof longitud);
    return bloque.substr(lugar + sizeof longitud, longitud);
}

} // namespace varo
