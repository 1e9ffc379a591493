#include "motor/lectores/NombresBiff.h"

#include "motor/lectores/RegistrosBiff.h"

#include <utility>

namespace varo {
namespace {

constexpr int banderaPredefinido = 0x0020;
constexpr int marcaDeLibroPropio = 0x0401;

/// What a formula of a single reference to another sheet refers to.
enum class Referencia3d { Ninguna, Celda, Zona };

/// The corners as they are stored, for a single cell both the same.
struct Esquinas {
    unsigned fila1, fila2, columna1, columna2;
};

/// No value when the rectangle moves with the cell that uses it or is none.
std::optional<ZonaDeHoja> ZonaFija(const Esquinas& esquinas, unsigned relativas) {
    const auto& [fila1, fila2, columna1, columna2] = esquinas;
    if (relativas != 0 || fila1 > fila2 || columna1 > columna2 || columna2 > 255) {
        return std::nullopt;
    }
    return ZonaDeHoja{fila1, fila2, columna1, columna2};
}

/// BIFF8 keeps the flags of a relative reference with the column.
std::optional<ZonaDeHoja> ZonaConBanderasEnColumna(Bytes coordenadas, bool esZona) {
    const unsigned fila1 = LeerU16(coordenadas, 0);
    const unsigned fila2 = esZona ? LeerU16(coordenadas, 2) : fila1;
    const unsigned columna1 = LeerU16(coordenadas, esZona ? 4 : 2);
    const unsigned columna2 = esZona ? LeerU16(coordenadas, 6) : columna1;
    return ZonaFija({fila1, fila2, columna1 & 0x3FFF, columna2 & 0x3FFF}, (columna1 | columna2) & 0xC000);
}

/// BIFF5 keeps them with the row.
std::optional<ZonaDeHoja> ZonaConBanderasEnFila(Bytes coordenadas, bool esZona) {
    const unsigned fila1 = LeerU16(coordenadas, 0);
    const unsigned fila2 = esZona ? LeerU16(coordenadas, 2) : fila1;
    const unsigned columna1 = LeerU8(coordenadas, esZona ? 4 : 2);
    const unsigned columna2 = esZona ? LeerU8(coordenadas, 5) : columna1;
    return ZonaFija({fila1 & 0x3FFF, fila2 & 0x3FFF, columna1, columna2}, (fila1 | fila2) & 0xC000);
}

/// The lengths are those of the whole formula. Two bits of its first byte tell the reference's class, which
/// is never zero and does not matter here.
Referencia3d ReferenciaSola(Bytes formula, std::size_t longitudCelda, std::size_t longitudZona) {
    constexpr int celda3d = 0x1A;
    constexpr int zona3d = 0x1B;
    const int marca = formula.empty() ? 0 : LeerU8(formula, 0);
    if ((marca & 0x60) != 0 && (marca & 0x9F) == zona3d && formula.size() == longitudZona) {
        return Referencia3d::Zona;
    }
    if ((marca & 0x60) != 0 && (marca & 0x9F) == celda3d && formula.size() == longitudCelda) {
        return Referencia3d::Celda;
    }
    return Referencia3d::Ninguna;
}

/// BIFF5 tells the sheets in the reference itself; its first number is negative for the workbook's own ones.
std::optional<NombreDeZona> ZonaBiff5(Bytes formula) {
    const auto referencia = ReferenciaSola(formula, 18, 21);
    if (referencia == Referencia3d::Ninguna || LeerU16(formula, 1) < 0x8000 ||
        LeerU16(formula, 11) != LeerU16(formula, 13)) {
        return std::nullopt;
    }
    const auto zona = ZonaConBanderasEnFila(formula.subspan(15), referencia == Referencia3d::Zona);
    if (!zona) {
        return std::nullopt;
    }
    return NombreDeZona{{}, LeerU16(formula, 11), *zona};
}

} // namespace

void NombresBiff::anadirLibroExterno(Bytes supBook) {
    libroEsPropio_.push_back(supBook.size() == 4 && LeerU16(supBook, 2) == marcaDeLibroPropio);
}

void NombresBiff::anadirReferencias(LectorContinuo externSheet) {
    const std::size_t cuantas = externSheet.u16();
    if (referencias_.size() + cuantas > biff::cuantosPuedeHaber) {
        ArchivoDanado("tiene demasiadas referencias entre hojas");
    }
    for (std::size_t i = 0; i < cuantas; ++i) {
        Referencia referencia;
        referencia.libro = externSheet.u16();
        referencia.primeraHoja = externSheet.u16();
        referencia.ultimaHoja = externSheet.u16();
        referencias_.push_back(referencia);
    }
}

void NombresBiff::anadirNombre(LectorContinuo registro, const CadenasBiff& cadenas) {
    const int banderas = registro.u16();
    registro.saltar(1);
    const std::size_t longitud = registro.u8();
    const std::size_t bytesDeFormula = registro.u16();
    registro.saltar(2);
    const bool deUnaHoja = registro.u16() != 0;
    registro.saltar(4);
    if (deUnaHoja || (banderas & banderaPredefinido) != 0) {
        return;
    }
    if (nombres_.size() == biff::cuantosPuedeHaber) {
        ArchivoDanado("tiene demasiados nombres");
    }
    Nombre nombre{cadenas.leer(registro, longitud), {}};
    while (nombre.formula.size() < bytesDeFormula) {
        nombre.formula.push_back(static_cast<std::byte>(registro.u8()));
    }
    nombres_.push_back(std::move(nombre));
}

/// BIFF8 tells the sheets of a reference by a number in a list, which says of which workbook they are.
std::optional<std::size_t> NombresBiff::hojaPropia(std::size_t numero) const {
    if (numero >= referencias_.size()) {
        return std::nullopt;
    }
    const auto& [libro, primeraHoja, ultimaHoja] = referencias_[numero];
    if (libro >= libroEsPropio_.size() || !libroEsPropio_[libro] || primeraHoja != ultimaHoja) {
        return std::nullopt;
    }
    return primeraHoja;
}

std::optional<NombreDeZona> NombresBiff::zonaBiff8(Bytes formula) const {
    const auto referencia = ReferenciaSola(formula, 7, 11);
    if (referencia == Referencia3d::Ninguna) {
        return std::nullopt;
    }
    const auto hoja = hojaPropia(LeerU16(formula, 1));
    const auto zona = ZonaConBanderasEnColumna(formula.subspan(3), referencia == Referencia3d::Zona);
    if (!hoja || !zona) {
        return std::nullopt;
    }
    return NombreDeZona{{}, *hoja, *zona};
}

std::vector<NombreDeZona> NombresBiff::zonas(bool biff8) const {
    std::vector<NombreDeZona> zonas;
    for (const auto& [texto, formula] : nombres_) {
        auto zona = biff8 ? zonaBiff8(formula) : ZonaBiff5(formula);
        if (zona) {
            zona->nombre = texto;
            zonas.push_back(std::move(*zona));
        }
    }
    return zonas;
}

} // namespace varo
