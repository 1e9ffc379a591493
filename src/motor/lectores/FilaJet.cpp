#include "motor/lectores/FilaJet.h"

#include <algorithm>

namespace varo {
namespace {

[[noreturn]] void FilaDanada() {
    ArchivoDanado("una fila no tiene los campos que dice");
}

/// `lugar` less `cuantos`, which must be in the row.
std::size_t Antes(std::size_t lugar, std::size_t cuantos) {
    if (cuantos > lugar) {
        FilaDanada();
    }
    return lugar - cuantos;
}

/// The bytes of a field at a fixed place.
std::size_t TamanoFijo(const ColumnaJet& columna) {
    switch (columna.tipo) {
    case TipoJet::Booleano:
        return 0;
    case TipoJet::Byte:
        return 1;
    case TipoJet::Entero:
        return 2;
    case TipoJet::EnteroLargo:
    case TipoJet::Simple:
        return 4;
    case TipoJet::Moneda:
    case TipoJet::Doble:
    case TipoJet::FechaHora:
    case TipoJet::EnteroGrande:
        return 8;
    case TipoJet::Guid:
        return 16;
    case TipoJet::Decimal:
        return 17;
    default:
        return columna.longitud;
    }
}

} // namespace

FilaJet::FilaJet(Bytes bytes, const DefinicionJet& definicion, bool jet3)
    : bytes_{bytes}, cabecera_{jet3 ? 1U : 2U}, columnas_{jet3 ? std::size_t{LeerU8(bytes, 0)}
                                                               : LeerU16(bytes, 0)},
      mascara_{Antes(bytes.size(), (columnas_ + 7) / 8)} {
    if (mascara_ < cabecera_) {
        FilaDanada();
    }
    if (definicion.columnasVariables > 0) {
        jet3 ? leerLugaresJet3(mascara_) : leerLugaresJet4(mascara_);
    }
}

/// From the bits backwards: how many fields, then where each one begins, and where the last one ends.
void FilaJet::leerLugaresJet4(std::size_t fin) {
    const std::size_t cuantos = LeerU16(bytes_, Antes(fin, 2));
    const std::size_t lista = Antes(fin, 2 + 2 * (cuantos + 1));
    for (std::size_t i = 0; i <= cuantos; ++i) {
        lugares_.push_back(LeerU16(bytes_, lista + 2 * (cuantos - i)));
    }
    comprobarLugares(lista);
}

/// The same in single bytes; a row over 256 bytes has a list of jumps behind the count: at which field the
/// next 256 bytes begin.
void FilaJet::leerLugaresJet3(std::size_t fin) {
    const std::size_t cuantos = LeerU8(bytes_, Antes(fin, 1));
    const std::size_t saltos = (bytes_.size() - 1) / 256;
    const std::size_t listaDeSaltos = Antes(fin, 1 + saltos);
    const std::size_t lista = Antes(listaDeSaltos, cuantos + 1);
    std::size_t dados = 0;
    for (std::size_t i = 0; i <= cuantos; ++i) {
        while (dados < saltos && LeerU8(bytes_, listaDeSaltos + saltos - 1 - dados) == i) {
            ++dados;
        }
        lugares_.push_back(LeerU8(bytes_, lista + cuantos - i) + 256 * dados);
    }
    comprobarLugares(lista);
}

void FilaJet::comprobarLugares(std::size_t fin) const {
    if (lugares_.front() < cabecera_ || lugares_.back() > fin || !std::ranges::is_sorted(lugares_)) {
        FilaDanada();
    }
}

bool FilaJet::marcado(const ColumnaJet& columna) const {
    return columna.numero < columnas_ &&
           (LeerU8(bytes_, mascara_ + columna.numero / 8) >> columna.numero % 8 & 1U) != 0;
}

Bytes FilaJet::campo(const ColumnaJet& columna) const {
    if (columna.fija) {
        return campoFijo(columna);
    }
    if (columna.lugar + 1 >= lugares_.size()) {
        FilaDanada();
    }
    const auto primero = lugares_[columna.lugar];
    return Trozo(bytes_, primero, lugares_[columna.lugar + 1] - primero);
}

Bytes FilaJet::campoFijo(const ColumnaJet& columna) const {
    const auto primero = cabecera_ + columna.lugar;
    const auto tamano = TamanoFijo(columna);
    if (primero + tamano > fijosHasta()) {
        FilaDanada();
    }
    return Trozo(bytes_, primero, tamano);
}

} // namespace varo
