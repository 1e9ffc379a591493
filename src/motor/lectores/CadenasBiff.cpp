#include "motor/lectores/CadenasBiff.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace varo {
namespace {

constexpr int paginaUtf16 = 1200;

// Flags in front of the characters of a Unicode text.
constexpr int banderaAncho = 0x01;
constexpr int banderaExtension = 0x04;
constexpr int banderaFormato = 0x08;

std::string TomarLetras(LectorContinuo& lector, std::size_t cuantas) {
    std::string bytes;
    while (bytes.size() < cuantas) {
        bytes.push_back(static_cast<char>(lector.u8()));
    }
    return bytes;
}

void AnadirUnidades(std::u16string& unidades, Bytes bytes, bool ancho) {
    const std::size_t paso = ancho ? 2 : 1;
    for (std::size_t lugar = 0; lugar + paso <= bytes.size(); lugar += paso) {
        unidades.push_back(ancho ? LeerU16(bytes, lugar) : LeerU8(bytes, lugar));
    }
}

std::string DeBytesUtf16(const std::string& bytes) {
    std::u16string unidades;
    AnadirUnidades(unidades, std::as_bytes(std::span{bytes}), true);
    return DeUtf16(unidades);
}

bool TieneNulos(const std::string& bytes) {
    return bytes.find('\0') != std::string::npos;
}

/// Each CONTINUE that a text enters begins with the width of the characters in it.
std::u16string LeerUnidades(LectorContinuo& lector, std::size_t cuantas, bool ancho) {
    std::u16string unidades;
    while (unidades.size() < cuantas) {
        if (lector.restoDelFragmento() == 0) {
            ancho = (lector.u8() & banderaAncho) != 0;
        }
        const std::size_t tamano = ancho ? 2 : 1;
        const std::size_t caben = std::min(cuantas - unidades.size(), lector.restoDelFragmento() / tamano);
        if (caben == 0) {
            ArchivoDanado("un texto está cortado");
        }
        AnadirUnidades(unidades, lector.tomar(caben * tamano), ancho);
    }
    return unidades;
}

} // namespace

LectorContinuo::LectorContinuo(std::vector<Bytes> fragmentos) : fragmentos_{std::move(fragmentos)} {}

bool LectorContinuo::acabado() const {
    return restoDelFragmento() == 0 && actual_ + 1 >= fragmentos_.size();
}

std::size_t LectorContinuo::restoDelFragmento() const {
    return actual_ < fragmentos_.size() ? fragmentos_[actual_].size() - lugar_ : 0;
}

std::size_t LectorContinuo::resto() const {
    std::size_t resto = restoDelFragmento();
    for (std::size_t i = actual_ + 1; i < fragmentos_.size(); ++i) {
        resto += fragmentos_[i].size();
    }
    return resto;
}

Bytes LectorContinuo::tomar(std::size_t cuantos) {
    const auto bytes = Trozo(fragmentos_[actual_], lugar_, cuantos);
    lugar_ += cuantos;
    return bytes;
}

std::uint8_t LectorContinuo::u8() {
    while (restoDelFragmento() == 0) {
        if (actual_ + 1 >= fragmentos_.size()) {
            ArchivoDanado("un texto está cortado");
        }
        ++actual_;
        lugar_ = 0;
    }
    return LeerU8(tomar(1), 0);
}

std::uint16_t LectorContinuo::u16() {
    const unsigned bajo = u8();
    return static_cast<std::uint16_t>(bajo | static_cast<unsigned>(u8()) << 8);
}

std::uint32_t LectorContinuo::u32() {
    const std::uint32_t bajo = u16();
    return bajo | static_cast<std::uint32_t>(u16()) << 16;
}

void LectorContinuo::saltar(std::size_t cuantos) {
    while (cuantos > 0) {
        u8();
        const std::size_t enEste = std::min(cuantos - 1, restoDelFragmento());
        tomar(enEste);
        cuantos -= 1 + enEste;
    }
}

std::string CadenasBiff::leer(LectorContinuo& lector, std::size_t longitud) const {
    return unicode_ ? leerUnicode(lector, longitud) : deBytes(TomarLetras(lector, longitud));
}

std::string CadenasBiff::leerUnicode(LectorContinuo& lector, std::size_t longitud) {
    // Some writers leave the flags of an empty text out.
    if (longitud == 0 && lector.acabado()) {
        return {};
    }
    const int banderas = lector.u8();
    // Character formats and phonetic data: their sizes stand before the characters, they themselves behind.
    const std::size_t formatos = (banderas & banderaFormato) != 0 ? lector.u16() : 0;
    const std::size_t extension = (banderas & banderaExtension) != 0 ? lector.u32() : 0;
    const auto unidades = LeerUnidades(lector, longitud, (banderas & banderaAncho) != 0);
    lector.saltar(4 * formatos + extension);
    return DeUtf16(unidades);
}

std::string CadenasBiff::leerCorta(LectorContinuo& lector) const {
    const std::size_t longitud = lector.u8();
    return leerUltima(lector, longitud);
}

std::string CadenasBiff::leerLarga(LectorContinuo& lector) const {
    const std::size_t longitud = lector.u16();
    return leerUltima(lector, longitud);
}

std::string CadenasBiff::leerUltima(LectorContinuo& lector, std::size_t longitud) const {
    if (unicode_ || pagina_ != paginaUtf16) {
        return leer(lector, longitud);
    }
    const bool cabeElDoble = lector.resto() == 2 * longitud;
    const bool esPar = longitud % 2 == 0;
    const std::string bytes = TomarLetras(lector, longitud);
    // The length counts characters: as many bytes would be left over, or a character would be cut in two.
    if (esPar ? cabeElDoble : TieneNulos(bytes)) {
        return DeBytesUtf16(bytes + TomarLetras(lector, longitud));
    }
    return deBytes(bytes);
}

/// Code pages other than UTF-16 are read as Windows-1252, the page of the western workbooks of that time:
/// plain letters and digits are the same in all of them. Texts of one byte a letter have no null byte, and
/// those of two have one in each letter of western Europe.
std::string CadenasBiff::deBytes(const std::string& bytes) const {
    if (pagina_ != paginaUtf16 || bytes.size() % 2 != 0) {
        return DeWindows1252(bytes);
    }
    if (TieneNulos(bytes)) {
        return DeBytesUtf16(bytes);
    }
    if (std::ranges::any_of(bytes, [](char c) { return static_cast<unsigned char>(c) > 0x7F; })) {
        throw ErrorMotor{
            fallo::formatoNoReconocido,
            "no se sabe en qué letras está el texto «" + DeWindows1252(bytes) +
                "» de un libro de Excel 5.0/95 que dice usar UTF-16 y no siempre lo usa: guárdelo "
                "como libro de Excel 97-2003"};
    }
    return DeWindows1252(bytes);
}

} // namespace varo
