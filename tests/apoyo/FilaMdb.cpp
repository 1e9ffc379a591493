#include "apoyo/FilaMdb.h"

#include "apoyo/BytesDePrueba.h"
#include "apoyo/Utf16DePrueba.h"
#include "basico/Texto.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <stdexcept>

namespace varo::prueba {
namespace {

using Contenido = PaginasMdb::Contenido;

Contenido DeLetras(const std::string& letras) {
    Contenido bytes;
    for (const char letra : letras) {
        AnadirU8(bytes, static_cast<unsigned char>(letra));
    }
    return bytes;
}

/// Sign, and 128 bits in words of 32 from the highest one down.
Contenido Decimal(double numero, int decimales) {
    const auto entero = static_cast<std::uint64_t>(std::llround(std::fabs(numero) * std::pow(10, decimales)));
    Contenido bytes;
    AnadirU8(bytes, numero < 0 ? 0x80 : 0);
    AnadirEntero(bytes, 0, 8);
    AnadirU32(bytes, entero >> 32U);
    AnadirU32(bytes, entero);
    return bytes;
}

Contenido EnteroDe(const Valor& valor, double unidad, int bytes) {
    Contenido escritos;
    AnadirEntero(escritos, static_cast<std::uint64_t>(std::llround(ANumero(valor) * unidad)), bytes);
    return escritos;
}

Contenido Real(double numero) {
    Contenido bytes;
    AnadirReal(bytes, numero);
    return bytes;
}

Contenido Simple(double numero) {
    Contenido bytes;
    AnadirU32(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(numero)));
    return bytes;
}

/// A memo over what one page holds goes into a chain, whose rows begin with the place of the next one.
SitioMdb EnCadena(PaginasMdb& paginas, const Contenido& bytes) {
    const std::size_t porPagina = paginas.tamano() - 64;
    SitioMdb siguiente{};
    for (std::size_t trozo = (bytes.size() - 1) / porPagina + 1; trozo-- > 0;) {
        Contenido fila;
        AnadirU32(fila, EnlaceMdb(siguiente));
        const auto primero = bytes.begin() + static_cast<std::ptrdiff_t>(trozo * porPagina);
        const auto cuantos = std::min(porPagina, bytes.size() - trozo * porPagina);
        fila.insert(fila.end(), primero, primero + static_cast<std::ptrdiff_t>(cuantos));
        siguiente = paginas.anadirFila(paginas.nuevaDeValoresLargos(), fila);
    }
    return siguiente;
}

Contenido Largo(PaginasMdb& paginas, const Contenido& bytes) {
    constexpr std::size_t enElCampo = 64;
    const bool corto = bytes.size() <= enElCampo;
    const bool unaPagina = bytes.size() <= paginas.tamano() - 64;
    const SitioMdb sitio = corto       ? SitioMdb{}
                           : unaPagina ? paginas.anadirFila(paginas.nuevaDeValoresLargos(), bytes)
                                       : EnCadena(paginas, bytes);
    Contenido campo;
    AnadirU32(campo, bytes.size() | (corto ? 0x80000000U : unaPagina ? 0x40000000U : 0U));
    AnadirU32(campo, EnlaceMdb(sitio));
    AnadirU32(campo, 0);
    if (corto) {
        campo.insert(campo.end(), bytes.begin(), bytes.end());
    }
    return campo;
}

Contenido BytesDelValor(PaginasMdb& paginas, const CampoMdb& campo, const Valor& valor) {
    switch (campo.tipo) {
    case TipoMdb::Byte:
        return EnteroDe(valor, 1, 1);
    case TipoMdb::Entero:
        return EnteroDe(valor, 1, 2);
    case TipoMdb::EnteroLargo:
    case TipoMdb::Compleja:
        return EnteroDe(valor, 1, 4);
    case TipoMdb::EnteroGrande:
        return EnteroDe(valor, 1, 8);
    case TipoMdb::Moneda:
        return EnteroDe(valor, 10000, 8);
    case TipoMdb::Simple:
        return Simple(ANumero(valor));
    case TipoMdb::Doble:
    case TipoMdb::FechaHora:
        return Real(ANumero(valor));
    case TipoMdb::Decimal:
        return Decimal(ANumero(valor), campo.decimales);
    case TipoMdb::Texto:
        return TextoMdb(std::get<std::string>(valor), paginas.jet3());
    case TipoMdb::Memo:
        return Largo(paginas, TextoMdb(std::get<std::string>(valor), paginas.jet3()));
    case TipoMdb::Ole:
        return Largo(paginas, DeLetras(std::get<std::string>(valor)));
    default:
        return DeLetras(std::get<std::string>(valor));
    }
}

/// Where each field of any length begins, and the end of the last one.
void AnadirLugaresJet4(Contenido& fila, const std::vector<std::size_t>& lugares) {
    for (auto lugar = lugares.rbegin(); lugar != lugares.rend(); ++lugar) {
        AnadirU16(fila, *lugar);
    }
    AnadirU16(fila, lugares.size() - 1);
}

/// In bytes; behind them, backwards, the fields at which each further 256 bytes begin.
void AnadirLugaresJet3(Contenido& fila, const std::vector<std::size_t>& lugares, std::size_t mascara) {
    for (auto lugar = lugares.rbegin(); lugar != lugares.rend(); ++lugar) {
        AnadirU8(fila, *lugar % 256);
    }
    const std::size_t sinSaltos = fila.size() + 1 + mascara;
    std::size_t saltos = 0;
    while ((sinSaltos + saltos - 1) / 256 > saltos) {
        ++saltos;
    }
    for (std::size_t salto = saltos; salto > 0; --salto) {
        const auto primero = std::ranges::find_if(lugares, [&](std::size_t l) { return l >= 256 * salto; });
        AnadirU8(fila, primero == lugares.end() ? 0xFF : primero - lugares.begin());
    }
    AnadirU8(fila, lugares.size() - 1);
}

} // namespace

bool EsFijo(TipoMdb tipo) {
    return TamanoFijo(tipo) != 0 || tipo == TipoMdb::Booleano;
}

std::size_t TamanoFijo(TipoMdb tipo) {
    switch (tipo) {
    case TipoMdb::Byte:
        return 1;
    case TipoMdb::Entero:
        return 2;
    case TipoMdb::EnteroLargo:
    case TipoMdb::Simple:
    case TipoMdb::Compleja:
        return 4;
    case TipoMdb::Moneda:
    case TipoMdb::Doble:
    case TipoMdb::FechaHora:
    case TipoMdb::EnteroGrande:
        return 8;
    case TipoMdb::Guid:
        return 16;
    default:
        return 0;
    }
}

std::size_t NumeroDeCampo(const std::vector<CampoMdb>& campos, std::size_t campo) {
    std::size_t numero = campo;
    for (std::size_t i = 0; i <= campo; ++i) {
        numero += campos[i].borradosDelante;
    }
    return numero;
}

Contenido TextoMdb(const std::string& texto, bool jet3) {
    if (jet3) {
        return DeLetras(AWindows1252(texto));
    }
    const auto unidades = AUtf16(texto);
    const bool cabe = unidades.size() > 2 && std::ranges::all_of(unidades, [](char16_t letra) {
                          return letra > 0 && letra <= 0xFF;
                      });
    Contenido bytes;
    if (cabe) {
        AnadirU16(bytes, 0xFEFF);
    }
    for (const auto unidad : unidades) {
        AnadirEntero(bytes, unidad, cabe ? 1 : 2);
    }
    return bytes;
}

Contenido FilaMdb(PaginasMdb& paginas, const std::vector<CampoMdb>& campos, const std::vector<Valor>& valores,
                  std::size_t conocidos) {
    const std::size_t columnas = conocidos == 0 ? 0 : NumeroDeCampo(campos, conocidos - 1) + 1;
    Contenido fijos;
    Contenido variables;
    Contenido mascara((columnas + 7) / 8);
    std::vector<std::size_t> lugares;
    bool hayVariables = false;
    for (std::size_t i = 0; i < campos.size(); ++i) {
        hayVariables = hayVariables || !EsFijo(campos[i].tipo);
        if (i >= conocidos) {
            continue;
        }
        const auto& valor = valores.at(i);
        const auto* const verdad = std::get_if<bool>(&valor);
        const bool marcado =
            campos[i].tipo == TipoMdb::Booleano ? verdad != nullptr && *verdad : !EsNulo(valor);
        if (marcado) {
            const auto numero = NumeroDeCampo(campos, i);
            mascara[numero / 8] |= static_cast<std::byte>(1U << numero % 8);
        }
        const auto bytes = campos[i].tipo == TipoMdb::Booleano || EsNulo(valor)
                               ? Contenido(TamanoFijo(campos[i].tipo))
                               : BytesDelValor(paginas, campos[i], valor);
        if (EsFijo(campos[i].tipo)) {
            fijos.insert(fijos.end(), bytes.begin(), bytes.end());
        } else {
            lugares.push_back(variables.size());
            variables.insert(variables.end(), bytes.begin(), bytes.end());
        }
    }
    lugares.push_back(variables.size());
    Contenido fila;
    AnadirEntero(fila, columnas, paginas.jet3() ? 1 : 2);
    fila.insert(fila.end(), fijos.begin(), fijos.end());
    std::ranges::for_each(lugares, [&](std::size_t& lugar) { lugar += fila.size(); });
    fila.insert(fila.end(), variables.begin(), variables.end());
    if (hayVariables) {
        paginas.jet3() ? AnadirLugaresJet3(fila, lugares, mascara.size()) : AnadirLugaresJet4(fila, lugares);
    }
    fila.insert(fila.end(), mascara.begin(), mascara.end());
    return fila;
}

} // namespace varo::prueba
