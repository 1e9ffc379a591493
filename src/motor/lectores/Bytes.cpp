#include "motor/lectores/Bytes.h"

#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <bit>

namespace varo {
namespace {

std::uint64_t LeerEntero(Bytes bytes, std::size_t lugar, std::size_t cuantos) {
    std::uint64_t valor = 0;
    std::size_t desplazamiento = 0;
    for (const auto byte : Trozo(bytes, lugar, cuantos)) {
        valor |= std::to_integer<std::uint64_t>(byte) << desplazamiento;
        desplazamiento += 8;
    }
    return valor;
}

} // namespace

void ArchivoDanado(const std::string& defecto) {
    throw ErrorMotor{fallo::archivoDanado, "el archivo está dañado (" + defecto + ")"};
}

Bytes Trozo(Bytes bytes, std::size_t lugar, std::size_t cuantos) {
    if (lugar > bytes.size() || cuantos > bytes.size() - lugar) {
        ArchivoDanado("faltan bytes");
    }
    return bytes.subspan(lugar, cuantos);
}

bool Lleva(Bytes bytes, std::size_t lugar, std::string_view marca) {
    return bytes.size() >= lugar + marca.size() &&
           std::ranges::equal(bytes.subspan(lugar, marca.size()), marca, {}, {},
                              [](char c) { return static_cast<std::byte>(c); });
}

std::uint8_t LeerU8(Bytes bytes, std::size_t lugar) {
    return static_cast<std::uint8_t>(LeerEntero(bytes, lugar, 1));
}

std::uint16_t LeerU16(Bytes bytes, std::size_t lugar) {
    return static_cast<std::uint16_t>(LeerEntero(bytes, lugar, 2));
}

std::uint32_t LeerU32(Bytes bytes, std::size_t lugar) {
    return static_cast<std::uint32_t>(LeerEntero(bytes, lugar, 4));
}

std::uint64_t LeerU64(Bytes bytes, std::size_t lugar) {
    return LeerEntero(bytes, lugar, 8);
}

double LeerReal(Bytes bytes, std::size_t lugar) {
    return std::bit_cast<double>(LeerU64(bytes, lugar));
}

} // namespace varo
