#include "apoyo/EscritorCompuesto.h"

#include "apoyo/BytesDePrueba.h"

#include <cstdint>

namespace varo::prueba {
namespace {

constexpr std::uint32_t sectorDifat = 0xFFFFFFFC;
constexpr std::uint32_t sectorFat = 0xFFFFFFFD;
constexpr std::uint32_t finDeCadena = 0xFFFFFFFE;
constexpr std::uint32_t libre = 0xFFFFFFFF;
constexpr std::size_t tamanoMini = 64;
constexpr std::size_t limiteMini = 4096;
constexpr std::size_t enlacesEnCabecera = 109;

std::size_t Cuantos(std::size_t bytes, std::size_t tamano) {
    return (bytes + tamano - 1) / tamano;
}

void Encadenar(std::vector<std::uint32_t>& tabla, std::size_t cuantos) {
    for (std::size_t i = 0; i < cuantos; ++i) {
        const auto siguiente = static_cast<std::uint32_t>(tabla.size() + 1);
        tabla.push_back(i + 1 < cuantos ? siguiente : finDeCadena);
    }
}

std::vector<std::byte> Bytes(const std::vector<std::uint32_t>& enlaces) {
    std::vector<std::byte> bytes;
    for (const auto enlace : enlaces) {
        AnadirU32(bytes, enlace);
    }
    return bytes;
}

/// The sectors behind the header and the chains over them.
class Sectores {
public:
    explicit Sectores(std::size_t tamano) : tamano_{tamano} {}

    /// Adds a chain of sectors with these bytes and gives its first sector.
    std::uint32_t Anadir(const std::vector<std::byte>& bytes, std::byte relleno = std::byte{0}) {
        if (bytes.empty()) {
            return finDeCadena;
        }
        const auto primero = static_cast<std::uint32_t>(fat_.size());
        Encadenar(fat_, Cuantos(bytes.size(), tamano_));
        bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
        bytes_.resize(fat_.size() * tamano_, relleno);
        return primero;
    }

    /// Closes the file with the sectors of the FAT and of the DIFAT. The first sectors of the directory and
    /// of the mini FAT and how many sectors that one has go to the header.
    std::vector<std::byte> Cerrar(std::uint32_t directorio, std::uint32_t miniFat,
                                  std::size_t sectoresMiniFat);

private:
    void ContarSectoresDeFat();
    [[nodiscard]] std::vector<std::byte> Cabecera(std::uint32_t directorio, std::uint32_t miniFat,
                                                  std::size_t sectoresMiniFat) const;
    [[nodiscard]] std::vector<std::uint32_t> EnlacesDifat() const;

    std::size_t tamano_;
    std::vector<std::uint32_t> fat_;
    std::vector<std::byte> bytes_;
    std::size_t cuantosFat_ = 0;
    std::size_t cuantosDifat_ = 0;
    std::size_t primeroFat_ = 0;
};

/// The FAT has links for its own sectors too.
void Sectores::ContarSectoresDeFat() {
    const std::size_t enlacesPorSector = tamano_ / 4;
    while (cuantosFat_ * enlacesPorSector < fat_.size() + cuantosFat_ + cuantosDifat_) {
        ++cuantosFat_;
        cuantosDifat_ = cuantosFat_ > enlacesEnCabecera
                            ? Cuantos(cuantosFat_ - enlacesEnCabecera, enlacesPorSector - 1)
                            : 0;
    }
    primeroFat_ = fat_.size();
}

std::vector<std::byte> Sectores::Cabecera(std::uint32_t directorio, std::uint32_t miniFat,
                                          std::size_t sectoresMiniFat) const {
    std::vector<std::byte> cabecera;
    for (const int valor : {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1}) {
        AnadirU8(cabecera, valor);
    }
    cabecera.resize(24, std::byte{0});
    for (const int valor : {0x3E, tamano_ == 512 ? 3 : 4, 0xFFFE, tamano_ == 512 ? 9 : 12, 6}) {
        AnadirU16(cabecera, valor);
    }
    cabecera.resize(44, std::byte{0});
    AnadirU32(cabecera, cuantosFat_);
    AnadirU32(cabecera, directorio);
    AnadirU32(cabecera, 0);
    AnadirU32(cabecera, limiteMini);
    AnadirU32(cabecera, miniFat);
    AnadirU32(cabecera, sectoresMiniFat);
    AnadirU32(cabecera, cuantosDifat_ > 0 ? primeroFat_ + cuantosFat_ : finDeCadena);
    AnadirU32(cabecera, cuantosDifat_);
    for (std::size_t i = 0; i < enlacesEnCabecera; ++i) {
        AnadirU32(cabecera, i < cuantosFat_ ? primeroFat_ + i : libre);
    }
    cabecera.resize(tamano_, std::byte{0});
    return cabecera;
}

/// The numbers of the FAT sectors that the header has no room for; each sector of them ends with the number
/// of the next.
std::vector<std::uint32_t> Sectores::EnlacesDifat() const {
    const std::size_t enlacesPorSector = tamano_ / 4;
    std::vector<std::uint32_t> difat;
    auto deFat = enlacesEnCabecera;
    for (std::size_t sector = 0; sector < cuantosDifat_; ++sector) {
        for (std::size_t i = 1; i < enlacesPorSector; ++i, ++deFat) {
            difat.push_back(deFat < cuantosFat_ ? static_cast<std::uint32_t>(primeroFat_ + deFat) : libre);
        }
        const auto siguiente = static_cast<std::uint32_t>(primeroFat_ + cuantosFat_ + sector + 1);
        difat.push_back(sector + 1 < cuantosDifat_ ? siguiente : finDeCadena);
    }
    return difat;
}

std::vector<std::byte> Sectores::Cerrar(std::uint32_t directorio, std::uint32_t miniFat,
                                        std::size_t sectoresMiniFat) {
    ContarSectoresDeFat();
    fat_.insert(fat_.end(), cuantosFat_, sectorFat);
    fat_.insert(fat_.end(), cuantosDifat_, sectorDifat);
    fat_.resize(cuantosFat_ * tamano_ / 4, libre);
    auto archivo = Cabecera(directorio, miniFat, sectoresMiniFat);
    for (const auto& parte : {bytes_, Bytes(fat_), Bytes(EnlacesDifat())}) {
        archivo.insert(archivo.end(), parte.begin(), parte.end());
    }
    return archivo;
}

struct Entrada {
    std::string nombre;
    int tipo;
    std::uint32_t derecha;
    std::uint32_t hijo;
    std::uint32_t primero;
    std::size_t tamano;
};

void AnadirEntrada(std::vector<std::byte>& directorio, const Entrada& entrada) {
    const std::size_t comienzo = directorio.size();
    for (const char letra : entrada.nombre) {
        AnadirU16(directorio, static_cast<unsigned char>(letra));
    }
    directorio.resize(comienzo + 64, std::byte{0});
    AnadirU16(directorio, entrada.nombre.empty() ? 0 : 2 * entrada.nombre.size() + 2);
    AnadirU8(directorio, entrada.tipo);
    AnadirU8(directorio, 1); // black
    AnadirU32(directorio, libre);
    AnadirU32(directorio, entrada.derecha);
    AnadirU32(directorio, entrada.hijo);
    directorio.resize(comienzo + 116, std::byte{0});
    AnadirU32(directorio, entrada.primero);
    AnadirU32(directorio, entrada.tamano);
    AnadirU32(directorio, 0);
}

} // namespace

std::vector<std::byte> EscribirCompuesto(const std::vector<FlujoConNombre>& flujos,
                                         std::size_t tamanoSector) {
    Sectores sectores{tamanoSector};
    std::vector<std::uint32_t> miniFat;
    std::vector<std::byte> mini;
    std::vector<Entrada> entradas{{"Root Entry", 5, libre, flujos.empty() ? libre : 1, finDeCadena, 0}};
    for (std::size_t i = 0; i < flujos.size(); ++i) {
        const auto& [nombre, bytes] = flujos[i];
        const bool esMini = bytes.size() < limiteMini;
        auto primero = static_cast<std::uint32_t>(miniFat.size());
        if (esMini) {
            Encadenar(miniFat, Cuantos(bytes.size(), tamanoMini));
            mini.insert(mini.end(), bytes.begin(), bytes.end());
            mini.resize(miniFat.size() * tamanoMini, std::byte{0});
        } else {
            primero = sectores.Anadir(bytes);
        }
        const auto derecha = i + 1 < flujos.size() ? static_cast<std::uint32_t>(i + 2) : libre;
        entradas.push_back({nombre, 2, derecha, libre, primero, bytes.size()});
    }
    entradas.front().tamano = mini.size();
    entradas.front().primero = sectores.Anadir(mini);
    std::vector<std::byte> directorio;
    for (const auto& entrada : entradas) {
        AnadirEntrada(directorio, entrada);
    }
    while (directorio.size() % tamanoSector != 0) {
        AnadirEntrada(directorio, {"", 0, libre, libre, 0, 0});
    }
    const auto primeroDirectorio = sectores.Anadir(directorio);
    const auto primeroMiniFat = sectores.Anadir(Bytes(miniFat), std::byte{0xFF});
    return sectores.Cerrar(primeroDirectorio, primeroMiniFat, Cuantos(4 * miniFat.size(), tamanoSector));
}

} // namespace varo::prueba
