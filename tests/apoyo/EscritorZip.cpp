#include "apoyo/EscritorZip.h"

#include "apoyo/BytesDePrueba.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace varo::prueba {
namespace {

std::array<std::uint32_t, 256> TablaDeSumas() {
    std::array<std::uint32_t, 256> tabla{};
    for (std::uint32_t i = 0; i < tabla.size(); ++i) {
        std::uint32_t suma = i;
        for (int bit = 0; bit < 8; ++bit) {
            suma = (suma & 1U) != 0 ? 0xEDB88320U ^ (suma >> 1U) : suma >> 1U;
        }
        tabla[i] = suma;
    }
    return tabla;
}

std::uint32_t Crc32(std::string_view bytes) {
    static const auto tabla = TablaDeSumas();
    std::uint32_t suma = 0xFFFFFFFFU;
    for (const char c : bytes) {
        suma = tabla[(suma ^ static_cast<unsigned char>(c)) & 0xFFU] ^ (suma >> 8U);
    }
    return ~suma;
}

void AnadirTexto(std::vector<std::byte>& bytes, std::string_view texto) {
    for (const char c : texto) {
        bytes.push_back(static_cast<std::byte>(c));
    }
}

/// What both headers of a part have: flags for UTF-8, method, time, sum, sizes and the length of the name.
void AnadirDatos(std::vector<std::byte>& bytes, const ParteZip& parte) {
    constexpr std::uint64_t elPrimerDia = 0x0021; // 1 January 1980
    AnadirU16(bytes, 20);
    AnadirU16(bytes, 0x0800);
    AnadirU16(bytes, 0);
    AnadirU16(bytes, 0);
    AnadirU16(bytes, elPrimerDia);
    AnadirU32(bytes, Crc32(parte.contenido));
    AnadirU32(bytes, parte.contenido.size());
    AnadirU32(bytes, parte.contenido.size());
    AnadirU16(bytes, parte.nombre.size());
    AnadirU16(bytes, 0);
}

} // namespace

std::vector<std::byte> EscribirZip(const std::vector<ParteZip>& partes) {
    std::vector<std::byte> bytes;
    std::vector<std::byte> indice;
    for (const auto& parte : partes) {
        const auto comienzo = bytes.size();
        AnadirTexto(bytes, "PK\3\4");
        AnadirDatos(bytes, parte);
        AnadirTexto(bytes, parte.nombre);
        AnadirTexto(bytes, parte.contenido);
        AnadirTexto(indice, "PK\1\2");
        AnadirU16(indice, 20);
        AnadirDatos(indice, parte);
        AnadirU32(indice, 0); // no comment, one disk
        AnadirU16(indice, 0); // no attributes
        AnadirU32(indice, 0);
        AnadirU32(indice, comienzo);
        AnadirTexto(indice, parte.nombre);
    }
    const auto lugarDelIndice = bytes.size();
    bytes.insert(bytes.end(), indice.begin(), indice.end());
    AnadirTexto(bytes, "PK\5\6");
    AnadirU32(bytes, 0);
    AnadirU16(bytes, partes.size());
    AnadirU16(bytes, partes.size());
    AnadirU32(bytes, indice.size());
    AnadirU32(bytes, lugarDelIndice);
    AnadirU16(bytes, 0);
    return bytes;
}

} // namespace varo::prueba
