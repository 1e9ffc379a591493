// Little-endian bytes for the writers of test files.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo::prueba {

inline void AnadirEntero(std::vector<std::byte>& bytes, std::uint64_t valor, int cuantos) {
    for (int i = 0; i < cuantos; ++i) {
        bytes.push_back(static_cast<std::byte>(valor >> (8 * i)));
    }
}

template <class Entero>
void AnadirU8(std::vector<std::byte>& bytes, Entero valor) {
    AnadirEntero(bytes, static_cast<std::uint64_t>(valor), 1);
}

template <class Entero>
void AnadirU16(std::vector<std::byte>& bytes, Entero valor) {
    AnadirEntero(bytes, static_cast<std::uint64_t>(valor), 2);
}

template <class Entero>
void AnadirU32(std::vector<std::byte>& bytes, Entero valor) {
    AnadirEntero(bytes, static_cast<std::uint64_t>(valor), 4);
}

inline void AnadirReal(std::vector<std::byte>& bytes, double valor) {
    AnadirEntero(bytes, std::bit_cast<std::uint64_t>(valor), 8);
}

} // namespace varo::prueba
