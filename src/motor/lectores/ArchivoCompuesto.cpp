#include "motor/lectores/ArchivoCompuesto.h"

#include "basico/Texto.h"

#include <algorithm>
#include <array>

namespace varo {
namespace {

constexpr std::uint32_t primerEspecial = 0xFFFFFFFA;
constexpr std::uint32_t finDeCadena = 0xFFFFFFFE;
constexpr std::uint32_t libre = 0xFFFFFFFF;

constexpr std::size_t tamanoEntrada = 128;
constexpr std::size_t tamanoMiniSector = 64;
constexpr int tipoFlujo = 2;
constexpr int tipoRaiz = 5;

// Places in the header.
constexpr std::size_t lugarPotenciaSector = 30;
constexpr std::size_t lugarPotenciaMini = 32;
constexpr std::size_t lugarDirectorio = 48;
constexpr std::size_t lugarLimiteMini = 56;
constexpr std::size_t lugarMiniFat = 60;
constexpr std::size_t lugarDifat = 68;
constexpr std::size_t lugarEnlacesDifat = 76;
constexpr std::size_t enlacesEnCabecera = 109;

std::size_t TamanoDeSector(Bytes archivo) {
    const auto potencia = LeerU16(archivo, lugarPotenciaSector);
    if ((potencia != 9 && potencia != 12) || LeerU16(archivo, lugarPotenciaMini) != 6) {
        ArchivoDanado("el tamaño de sus sectores no es válido");
    }
    return std::size_t{1} << potencia;
}

void AnadirEnlaces(std::vector<std::uint32_t>& enlaces, Bytes sector) {
    for (std::size_t lugar = 0; lugar < sector.size(); lugar += 4) {
        enlaces.push_back(LeerU32(sector, lugar));
    }
}

/// Follows a chain from its first sector; a chain that leaves the table or comes back on itself is damaged.
class Cadena {
public:
    Cadena(const std::vector<std::uint32_t>& enlaces, std::uint32_t primero)
        : enlaces_{enlaces}, vistos_(enlaces.size()), siguiente_{primero} {}

    [[nodiscard]] bool acabada() const { return siguiente_ == finDeCadena; }

    std::uint32_t siguiente() {
        const auto sector = siguiente_;
        if (sector >= enlaces_.size() || vistos_[sector]) {
            ArchivoDanado("una cadena de sectores está rota");
        }
        vistos_[sector] = true;
        siguiente_ = enlaces_[sector];
        return sector;
    }

private:
    const std::vector<std::uint32_t>& enlaces_;
    std::vector<bool> vistos_;
    std::uint32_t siguiente_;
};

} // namespace

Bytes TablaDeSectores::sector(std::uint32_t sector) const {
    const std::size_t lugar = sector * tamanoSector;
    if (lugar >= sectores.size()) {
        ArchivoDanado("le faltan sectores");
    }
    return sectores.subspan(lugar, std::min(tamanoSector, sectores.size() - lugar));
}

std::vector<std::byte> TablaDeSectores::leer(std::uint32_t primero, std::uint64_t tamano) const {
    if (tamano > sectores.size()) {
        ArchivoDanado("una secuencia es más larga que el archivo");
    }
    std::vector<std::byte> bytes;
    bytes.reserve(tamano);
    Cadena cadena{enlaces, primero};
    while (bytes.size() < tamano) {
        const std::size_t cuantos = std::min<std::size_t>(tamanoSector, tamano - bytes.size());
        const auto trozo = Trozo(sector(cadena.siguiente()), 0, cuantos);
        bytes.insert(bytes.end(), trozo.begin(), trozo.end());
    }
    return bytes;
}

std::vector<std::byte> TablaDeSectores::leerEntera(std::uint32_t primero) const {
    std::vector<std::byte> bytes;
    Cadena cadena{enlaces, primero};
    while (!cadena.acabada()) {
        const auto trozo = Trozo(sector(cadena.siguiente()), 0, tamanoSector);
        bytes.insert(bytes.end(), trozo.begin(), trozo.end());
    }
    return bytes;
}

bool ArchivoCompuesto::esCompuesto(Bytes archivo) {
    constexpr std::array<std::uint8_t, 8> firma{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
    return archivo.size() >= firma.size() &&
           std::equal(firma.begin(), firma.end(), archivo.begin(), [](std::uint8_t esperado, std::byte byte) {
               return esperado == std::to_integer<std::uint8_t>(byte);
           });
}

ArchivoCompuesto::ArchivoCompuesto(Bytes archivo) : archivo_{archivo} {
    // The header takes the place of one sector, whatever their size.
    sectores_.tamanoSector = TamanoDeSector(archivo);
    sectores_.sectores = archivo.subspan(std::min(sectores_.tamanoSector, archivo.size()));
    for (const auto sector : sectoresDeLaFat()) {
        AnadirEnlaces(sectores_.enlaces, sectores_.sector(sector));
    }
    directorio_ = sectores_.leerEntera(LeerU32(archivo, lugarDirectorio));
}

/// The sectors that hold the table of links. The header names the first ones, a chain of extra sectors the
/// others; each of these ends with the number of the next.
std::vector<std::uint32_t> ArchivoCompuesto::sectoresDeLaFat() const {
    std::vector<std::uint32_t> difat;
    AnadirEnlaces(difat, Trozo(archivo_, lugarEnlacesDifat, 4 * enlacesEnCabecera));
    const std::size_t sectoresDelArchivo = sectores_.sectores.size() / sectores_.tamanoSector + 1;
    std::size_t vistos = 0;
    auto sector = LeerU32(archivo_, lugarDifat);
    while (sector < primerEspecial && LeerU32(archivo_, lugarDifat + 4) > 0) {
        if (++vistos > sectoresDelArchivo) {
            ArchivoDanado("una cadena de sectores está rota");
        }
        AnadirEnlaces(difat, Trozo(sectores_.sector(sector), 0, sectores_.tamanoSector));
        sector = difat.back();
        difat.pop_back();
    }
    std::erase_if(difat, [](std::uint32_t numero) { return numero == libre || numero == finDeCadena; });
    if (difat.size() > sectoresDelArchivo) {
        ArchivoDanado("su tabla de sectores es más larga que el archivo");
    }
    return difat;
}

ArchivoCompuesto::EntradaDeFlujo ArchivoCompuesto::leerEntrada(std::size_t numero) const {
    const auto bytes = Trozo(directorio_, numero * tamanoEntrada, tamanoEntrada);
    EntradaDeFlujo entrada;
    const std::size_t bytesDelNombre = LeerU16(bytes, 64);
    if (bytesDelNombre > 64) {
        ArchivoDanado("un nombre de su directorio es demasiado largo");
    }
    for (std::size_t lugar = 0; lugar + 2 < bytesDelNombre; lugar += 2) {
        AnadirUtf8(entrada.nombre, LeerU16(bytes, lugar));
    }
    entrada.tipo = LeerU8(bytes, 66);
    entrada.izquierda = LeerU32(bytes, 68);
    entrada.derecha = LeerU32(bytes, 72);
    entrada.hijo = LeerU32(bytes, 76);
    entrada.primerSector = LeerU32(bytes, 116);
    // With sectors of 512 bytes the size has 32 bits; the upper ones are undefined.
    entrada.tamano = sectores_.tamanoSector == 512 ? LeerU32(bytes, 120) : LeerU64(bytes, 120);
    return entrada;
}

/// The root's entries form a binary tree through their left and right siblings.
std::optional<ArchivoCompuesto::EntradaDeFlujo> ArchivoCompuesto::buscar(std::string_view nombre) const {
    const auto raiz = leerEntrada(0);
    if (raiz.tipo != tipoRaiz) {
        ArchivoDanado("su directorio no tiene raíz");
    }
    std::vector<std::uint32_t> pendientes{raiz.hijo};
    std::size_t vistas = 0;
    while (!pendientes.empty()) {
        const auto numero = pendientes.back();
        pendientes.pop_back();
        if (numero == libre) {
            continue;
        }
        auto entrada = leerEntrada(numero);
        if (++vistas > directorio_.size() / tamanoEntrada) {
            ArchivoDanado("su directorio da vueltas");
        }
        if (entrada.tipo == tipoFlujo && MismoNombre(entrada.nombre, nombre)) {
            return entrada;
        }
        pendientes.push_back(entrada.derecha);
        pendientes.push_back(entrada.izquierda);
    }
    return std::nullopt;
}

/// Short streams lie in sectors of 64 bytes inside one stream that belongs to the root.
std::vector<std::byte> ArchivoCompuesto::leerMini(const EntradaDeFlujo& entrada) const {
    const auto raiz = leerEntrada(0);
    const auto contenido = sectores_.leer(raiz.primerSector, raiz.tamano);
    TablaDeSectores mini{contenido, tamanoMiniSector, {}};
    AnadirEnlaces(mini.enlaces, sectores_.leerEntera(LeerU32(archivo_, lugarMiniFat)));
    return mini.leer(entrada.primerSector, entrada.tamano);
}

std::optional<std::vector<std::byte>> ArchivoCompuesto::flujo(std::string_view nombre) const {
    const auto entrada = buscar(nombre);
    if (!entrada) {
        return std::nullopt;
    }
    if (entrada->tamano < LeerU32(archivo_, lugarLimiteMini)) {
        return leerMini(*entrada);
    }
    return sectores_.leer(entrada->primerSector, entrada->tamano);
}

} // namespace varo
