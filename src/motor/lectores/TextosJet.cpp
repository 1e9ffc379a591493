#include "motor/lectores/TextosJet.h"

#include "basico/Texto.h"
#include "motor/lectores/PaginasDeCodigos.h"

#include <cstddef>
#include <string_view>

namespace varo {
namespace {

constexpr unsigned marcaDeComprimido = 0xFEFF;

std::string_view EnLetras(Bytes bytes) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the bytes are the letters of a code page
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::u16string Unidades(Bytes bytes) {
    if (bytes.size() % 2 != 0) {
        ArchivoDanado("un texto está cortado");
    }
    std::u16string unidades;
    for (std::size_t lugar = 0; lugar < bytes.size(); lugar += 2) {
        unidades.push_back(static_cast<char16_t>(LeerU16(bytes, lugar)));
    }
    return unidades;
}

/// Letters of one byte, which stands for the character of its number, and letters of two take turns; a null
/// byte in the place of a letter is the turn.
std::u16string Descomprimidas(Bytes bytes) {
    std::u16string unidades;
    bool deUnByte = true;
    for (std::size_t lugar = 0; lugar < bytes.size();) {
        const auto byte = LeerU8(bytes, lugar);
        if (byte == 0) {
            deUnByte = !deUnByte;
            ++lugar;
        } else if (deUnByte) {
            unidades.push_back(byte);
            ++lugar;
        } else {
            unidades.push_back(static_cast<char16_t>(LeerU16(bytes, lugar)));
            lugar += 2;
        }
    }
    return unidades;
}

} // namespace

std::string TextosJet::leer(Bytes bytes) const {
    if (unicode_ && bytes.size() >= 2 && LeerU16(bytes, 0) == marcaDeComprimido) {
        return DeUtf16(Descomprimidas(bytes.subspan(2)));
    }
    return leerNombre(bytes);
}

std::string TextosJet::leerNombre(Bytes bytes) const {
    return unicode_ ? DeUtf16(Unidades(bytes)) : DePaginaDeCodigos(EnLetras(bytes), pagina_);
}

} // namespace varo
