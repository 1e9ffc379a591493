#include "motor/lectores/ValoresJet.h"

#include "motor/lectores/NumerosJet.h"
#include "motor/lectores/ValoresLargosJet.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace varo {
namespace {

// The days that a date can have: from 1 January 100 to 31 December 9999.
constexpr double primerDia = -657434;
constexpr double diaTrasElUltimo = 2958466;

Valor Numero(double numero) {
    return std::isfinite(numero) ? Valor{numero} : Valor{};
}

/// A serial that is no date stays a number.
Valor FechaDe(double serie) {
    return serie > primerDia - 1 && serie < diaTrasElUltimo ? Valor{Fecha{serie}} : Numero(serie);
}

template <class Entero, class SinSigno>
Valor ConSigno(SinSigno bits) {
    return static_cast<double>(std::bit_cast<Entero>(bits));
}

} // namespace

bool ValoresJet::sabeLeer(const ColumnaJet& columna) {
    switch (columna.tipo) {
    case TipoJet::Booleano:
    case TipoJet::Byte:
    case TipoJet::Entero:
    case TipoJet::EnteroLargo:
    case TipoJet::Moneda:
    case TipoJet::Simple:
    case TipoJet::Doble:
    case TipoJet::FechaHora:
    case TipoJet::Binario:
    case TipoJet::Texto:
    case TipoJet::Ole:
    case TipoJet::Memo:
    case TipoJet::Guid:
    case TipoJet::Decimal:
    case TipoJet::EnteroGrande:
        return !columna.calculada;
    default:
        return false;
    }
}

Valor ValoresJet::leer(const FilaJet& fila, const ColumnaJet& columna) {
    if (columna.tipo == TipoJet::Booleano) {
        return fila.marcado(columna);
    }
    return fila.marcado(columna) ? valorDe(columna, fila.campo(columna)) : Valor{};
}

Valor ValoresJet::valorDe(const ColumnaJet& columna, Bytes campo) {
    switch (columna.tipo) {
    case TipoJet::Byte:
        return static_cast<double>(LeerU8(campo, 0));
    case TipoJet::Entero:
        return ConSigno<std::int16_t>(LeerU16(campo, 0));
    case TipoJet::EnteroLargo:
        return ConSigno<std::int32_t>(LeerU32(campo, 0));
    case TipoJet::EnteroGrande:
        return ConSigno<std::int64_t>(LeerU64(campo, 0));
    case TipoJet::Moneda:
        return LeerMoneda(campo);
    case TipoJet::Decimal:
        return LeerDecimal(campo, columna.decimales);
    case TipoJet::Simple:
        return Numero(LeerSimple(campo));
    case TipoJet::Doble:
        return Numero(LeerReal(campo, 0));
    case TipoJet::FechaHora:
        return FechaDe(LeerReal(campo, 0));
    case TipoJet::Texto:
        return texto(campo);
    case TipoJet::Memo:
        return memo(campo);
    case TipoJet::Guid:
        return LeerGuid(campo);
    default:
        return std::string{datosBinarios};
    }
}

std::string ValoresJet::texto(Bytes campo) {
    limites_.contarTexto(campo.size());
    return textos_.leer(campo);
}

std::string ValoresJet::memo(Bytes campo) {
    return textos_.leer(LeerValorLargo(archivo_, campo, limites_));
}

} // namespace varo
