#include "motor/lectores/Rc4.h"

#include <array>
#include <cassert>
#include <cstdint>
#include <numeric>
#include <utility>

namespace varo {

void CifrarRc4(std::span<std::byte> bytes, Bytes clave) {
    assert(!clave.empty());
    std::array<std::uint8_t, 256> estado{};
    std::iota(estado.begin(), estado.end(), std::uint8_t{0});
    std::uint8_t i = 0;
    std::uint8_t j = 0;
    for (std::size_t k = 0; k < estado.size(); ++k) {
        j = static_cast<std::uint8_t>(j + estado[k] + LeerU8(clave, k % clave.size()));
        std::swap(estado[k], estado[j]);
    }
    j = 0;
    for (auto& byte : bytes) {
        ++i;
        j = static_cast<std::uint8_t>(j + estado[i]);
        std::swap(estado[i], estado[j]);
        byte ^= static_cast<std::byte>(estado[static_cast<std::uint8_t>(estado[i] + estado[j])]);
    }
}

} // namespace varo
