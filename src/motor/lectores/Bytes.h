// Little-endian values out of foreign bytes. What would be read past the end is a damaged file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace varo {

using Bytes = std::span<const std::byte>;

/// Throws ErrorMotor for a file that contradicts its own format; `defecto` says in what.
[[noreturn]] void ArchivoDanado(const std::string& defecto);

/// `cuantos` bytes from `lugar` on.
Bytes Trozo(Bytes bytes, std::size_t lugar, std::size_t cuantos);

/// True when this mark stands at that place.
bool Lleva(Bytes bytes, std::size_t lugar, std::string_view marca);

std::uint8_t LeerU8(Bytes bytes, std::size_t lugar);
std::uint16_t LeerU16(Bytes bytes, std::size_t lugar);
std::uint32_t LeerU32(Bytes bytes, std::size_t lugar);
std::uint64_t LeerU64(Bytes bytes, std::size_t lugar);
/// A 64-bit float, as its bits stand.
double LeerReal(Bytes bytes, std::size_t lugar);

} // namespace varo
