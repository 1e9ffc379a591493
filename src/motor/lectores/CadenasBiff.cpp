#include "motor/lectores/CadenasBiff.h"

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

std::string DeUtf16(std::u16string_view unidades) {
    std::string texto;
    texto.reserve(unidades.size());
    for (std::size_t i = 0; i < unidades.size(); ++i) {
        char32_t caracter = unidades[i];
        const bool alto = caracter >= 0xD800 && caracter < 0xDC00;
        if (alto && i + 1 < unidades.size() && (unidades[i + 1] & 0xFC00) == 0xDC00) {
            caracter = 0x10000 + ((caracter - 0xD800) << 10) + (unidades[++i] - 0xDC00U);
        }
        AnadirUtf8(texto, caracter);
    }
    return texto;
}

void AnadirUnidades(std::u16string& unidades, Bytes bytes, bool ancho) {
    const std::size_t paso = ancho ? 2 : 1;
    for (std::size_t lugar = 0; lugar + paso <= bytes.size(); lugar += paso) {
        unidades.push_back(ancho ? LeerU16(bytes, lugar) : LeerU8(bytes, lugar));
    }
}

/// Each CONTINUE that a text enters begins with the width of the characters in it.
std::u16string LeerUnidades(LectorContinuo& lector, std::size_t cuantas, bool ancho) {
    std::u16string unidades;
    while (unidades.size() < cuantas) {
        if (lector.RestoDelFragmento() == 0) {
            ancho = (lector.U8() & banderaAncho) != 0;
        }
        const std::size_t tamano = ancho ? 2 : 1;
        const std::size_t caben = std::min(cuantas - unidades.size(), lector.RestoDelFragmento() / tamano);
        if (caben == 0) {
            ArchivoDanado("un texto está cortado");
        }
        AnadirUnidades(unidades, lector.Tomar(caben * tamano), ancho);
    }
    return unidades;
}

} // namespace

LectorContinuo::LectorContinuo(std::vector<Bytes> fragmentos) : fragmentos_{std::move(fragmentos)} {}

bool LectorContinuo::Acabado() const {
    return RestoDelFragmento() == 0 && actual_ + 1 >= fragmentos_.size();
}

std::size_t LectorContinuo::RestoDelFragmento() const {
    return actual_ < fragmentos_.size() ? fragmentos_[actual_].size() - lugar_ : 0;
}

Bytes LectorContinuo::Tomar(std::size_t cuantos) {
    const auto bytes = Trozo(fragmentos_[actual_], lugar_, cuantos);
    lugar_ += cuantos;
    return bytes;
}

std::uint8_t LectorContinuo::U8() {
    while (RestoDelFragmento() == 0) {
        if (actual_ + 1 >= fragmentos_.size()) {
            ArchivoDanado("un texto está cortado");
        }
        ++actual_;
        lugar_ = 0;
    }
    return LeerU8(Tomar(1), 0);
}

std::uint16_t LectorContinuo::U16() {
    const unsigned bajo = U8();
    return static_cast<std::uint16_t>(bajo | static_cast<unsigned>(U8()) << 8);
}

std::uint32_t LectorContinuo::U32() {
    const std::uint32_t bajo = U16();
    return bajo | static_cast<std::uint32_t>(U16()) << 16;
}

void LectorContinuo::Saltar(std::size_t cuantos) {
    while (cuantos > 0) {
        U8();
        const std::size_t enEste = std::min(cuantos - 1, RestoDelFragmento());
        Tomar(enEste);
        cuantos -= 1 + enEste;
    }
}

std::string CadenasBiff::Leer(LectorContinuo& lector, std::size_t longitud) const {
    if (!unicode_) {
        return LeerBytes(lector, longitud);
    }
    // Some writers leave the flags of an empty text out.
    if (longitud == 0 && lector.Acabado()) {
        return {};
    }
    const int banderas = lector.U8();
    // Runs of character formats and phonetic data: told in front of the characters, kept behind them.
    const std::size_t formatos = (banderas & banderaFormato) != 0 ? lector.U16() : 0;
    const std::size_t extension = (banderas & banderaExtension) != 0 ? lector.U32() : 0;
    const auto unidades = LeerUnidades(lector, longitud, (banderas & banderaAncho) != 0);
    lector.Saltar(4 * formatos + extension);
    return DeUtf16(unidades);
}

std::string CadenasBiff::LeerCorta(LectorContinuo& lector) const {
    const std::size_t longitud = lector.U8();
    return Leer(lector, longitud);
}

std::string CadenasBiff::LeerLarga(LectorContinuo& lector) const {
    const std::size_t longitud = lector.U16();
    return Leer(lector, longitud);
}

/// Code pages other than UTF-16 are read as Windows-1252, the page of the western workbooks of that time:
/// plain letters and digits are the same in all of them.
std::string CadenasBiff::LeerBytes(LectorContinuo& lector, std::size_t longitud) const {
    std::string bytes;
    while (bytes.size() < longitud) {
        bytes.push_back(static_cast<char>(lector.U8()));
    }
    if (pagina_ != paginaUtf16) {
        return DeWindows1252(bytes);
    }
    std::u16string unidades;
    AnadirUnidades(unidades, std::as_bytes(std::span{bytes}), true);
    return DeUtf16(unidades);
}

} // namespace varo
