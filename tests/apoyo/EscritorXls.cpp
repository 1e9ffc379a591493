#include "apoyo/EscritorXls.h"

#include "apoyo/ArchivoDePrueba.h"
#include "apoyo/BytesDePrueba.h"
#include "apoyo/EscritorCompuesto.h"
#include "apoyo/Utf16DePrueba.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace varo::prueba {
namespace {

using Bytes = std::vector<std::byte>;

constexpr std::size_t limiteRegistro = 8224;
constexpr int biffContinue = 0x003C;
constexpr int biffString = 0x0207;

// The formats of the cells, by their place among the XF records.
enum Formato : std::uint16_t { general, dia, hora, diaYHora };
constexpr int formatosPredefinidos[] = {0, 14, 21, 22};

bool EsAncho(const std::u16string& texto) {
    return std::any_of(texto.begin(), texto.end(), [](char16_t c) { return c > 0xFF; });
}

/// One record that goes on in CONTINUE records when it is full.
class RegistroLargo {
public:
    RegistroLargo(Bytes& flujo, int tipo) : flujo_{flujo}, tipo_{tipo} {}

    void Anadir(const Bytes& trozo) {
        Reservar(trozo.size());
        contenido_.insert(contenido_.end(), trozo.begin(), trozo.end());
    }

    /// A text with its 16-bit length. Each CONTINUE that it enters states the width again.
    void AnadirTexto(const std::u16string& texto) {
        const bool ancho = EsAncho(texto);
        Reservar(3);
        AnadirU16(contenido_, texto.size());
        AnadirU8(contenido_, ancho);
        for (const char16_t unidad : texto) {
            if (contenido_.size() + (ancho ? 2 : 1) > limiteRegistro) {
                Cerrar();
                AnadirU8(contenido_, ancho);
            }
            AnadirEntero(contenido_, unidad, ancho ? 2 : 1);
        }
    }

    void Cerrar() {
        AnadirRegistro(flujo_, std::exchange(tipo_, biffContinue), contenido_);
        contenido_.clear();
    }

private:
    void Reservar(std::size_t cuantos) {
        if (contenido_.size() + cuantos > limiteRegistro) {
            Cerrar();
        }
    }

    Bytes& flujo_;
    int tipo_;
    Bytes contenido_;
};

/// The texts of the workbook, each one once.
class TextosCompartidos {
public:
    std::size_t Indice(const std::string& texto) {
        ++usos_;
        const auto [lugar, nuevo] = indices_.emplace(texto, textos_.size());
        if (nuevo) {
            textos_.push_back(AUtf16(texto));
        }
        return lugar->second;
    }

    void Escribir(Bytes& flujo) const {
        RegistroLargo sst{flujo, 0x00FC};
        Bytes cuentas;
        AnadirU32(cuentas, usos_);
        AnadirU32(cuentas, textos_.size());
        sst.Anadir(cuentas);
        for (const auto& texto : textos_) {
            sst.AnadirTexto(texto);
        }
        sst.Cerrar();
    }

private:
    std::unordered_map<std::string, std::size_t> indices_;
    std::vector<std::u16string> textos_;
    std::size_t usos_ = 0;
};

void AnadirBof(Bytes& flujo, int tipo) {
    Bytes contenido;
    for (const int palabra : {0x0600, tipo, 0x0DBB, 0x07CC}) {
        AnadirU16(contenido, palabra);
    }
    AnadirU32(contenido, 0x41);
    AnadirU32(contenido, 6);
    AnadirRegistro(flujo, 0x0809, contenido);
}

/// The serial of a date in a sheet, whose calendar has a 29 February 1900.
double SerieDeHoja(Fecha fecha) {
    const double serie = fecha.serie;
    if (serie < 0 || (serie >= 1 && serie < 2)) {
        throw std::invalid_argument{"una hoja no puede tener esta fecha"};
    }
    return serie >= 2 && serie < 61 ? serie - 1 : serie;
}

Formato FormatoDe(const Valor& valor) {
    const auto* fecha = std::get_if<Fecha>(&valor);
    if (fecha == nullptr) {
        return general;
    }
    const double serie = fecha->serie;
    if (serie < 1) {
        return hora;
    }
    return serie == static_cast<double>(static_cast<long long>(serie)) ? dia : diaYHora;
}

/// Row, column and format: the beginning of every cell record.
Bytes Comienzo(std::size_t fila, std::size_t columna, const Valor& valor) {
    Bytes contenido;
    AnadirU16(contenido, fila);
    AnadirU16(contenido, columna);
    AnadirU16(contenido, FormatoDe(valor));
    return contenido;
}

void EscribirCelda(Bytes& flujo, Bytes contenido, const Valor& valor, TextosCompartidos& textos) {
    if (const auto* texto = std::get_if<std::string>(&valor)) {
        AnadirU32(contenido, textos.Indice(*texto));
        AnadirRegistro(flujo, 0x00FD, contenido);
    } else if (const auto* verdad = std::get_if<bool>(&valor)) {
        AnadirU8(contenido, *verdad);
        AnadirU8(contenido, 0);
        AnadirRegistro(flujo, 0x0205, contenido);
    } else {
        const auto* fecha = std::get_if<Fecha>(&valor);
        AnadirReal(contenido, fecha != nullptr ? SerieDeHoja(*fecha) : std::get<double>(valor));
        AnadirRegistro(flujo, 0x0203, contenido);
    }
}

/// The formula itself is the number 0: what counts is the result it holds.
void EscribirFormula(Bytes& flujo, Bytes contenido, const Valor& valor) {
    const auto* texto = std::get_if<std::string>(&valor);
    if (texto != nullptr) {
        AnadirEntero(contenido, texto->empty() ? 0xFFFF'0000'0000'0003 : 0xFFFF'0000'0000'0000, 8);
    } else if (const auto* verdad = std::get_if<bool>(&valor)) {
        AnadirEntero(contenido, *verdad ? 0xFFFF'0000'0001'0001 : 0xFFFF'0000'0000'0001, 8);
    } else {
        const auto* fecha = std::get_if<Fecha>(&valor);
        AnadirReal(contenido, fecha != nullptr ? SerieDeHoja(*fecha) : std::get<double>(valor));
    }
    AnadirU16(contenido, 0);
    AnadirU32(contenido, 0);
    AnadirU16(contenido, 3);
    AnadirU8(contenido, 0x1E);
    AnadirU16(contenido, 0);
    AnadirRegistro(flujo, 0x0006, contenido);
    if (texto != nullptr && !texto->empty()) {
        RegistroLargo resultado{flujo, biffString};
        resultado.AnadirTexto(AUtf16(*texto));
        resultado.Cerrar();
    }
}

void EscribirHoja(Bytes& flujo, const Hoja& hoja, TextosCompartidos& textos) {
    std::size_t columnas = 0;
    for (const auto& fila : hoja.celdas) {
        columnas = std::max(columnas, fila.size());
    }
    if (columnas > 256 || hoja.celdas.size() > 65536) {
        throw std::length_error{"la tabla no cabe en una hoja"};
    }
    AnadirBof(flujo, 0x0010);
    Bytes dimensiones;
    AnadirU32(dimensiones, 0);
    AnadirU32(dimensiones, hoja.celdas.size());
    AnadirU16(dimensiones, 0);
    AnadirU16(dimensiones, columnas);
    AnadirU16(dimensiones, 0);
    AnadirRegistro(flujo, 0x0200, dimensiones);
    for (std::size_t fila = 0; fila < hoja.celdas.size(); ++fila) {
        for (std::size_t columna = 0; columna < hoja.celdas[fila].size(); ++columna) {
            const auto& valor = hoja.celdas[fila][columna];
            if (EsNulo(valor)) {
                continue;
            }
            auto comienzo = Comienzo(fila, columna, valor);
            if (hoja.comoFormulas) {
                EscribirFormula(flujo, std::move(comienzo), valor);
            } else {
                EscribirCelda(flujo, std::move(comienzo), valor, textos);
            }
        }
    }
    AnadirRegistro(flujo, 0x000A, {});
}

void AnadirFormatos(Bytes& flujo) {
    for (const int formato : formatosPredefinidos) {
        Bytes xf;
        AnadirU16(xf, 0);
        AnadirU16(xf, formato);
        AnadirU16(xf, 1);
        xf.resize(20, std::byte{0});
        AnadirRegistro(flujo, 0x00E0, xf);
    }
}

/// The globals, with sheets whose substreams begin at `comienzo` plus their place.
Bytes Globales(const std::vector<Hoja>& hojas, const std::vector<std::size_t>& lugares, std::size_t comienzo,
               const TextosCompartidos& textos) {
    Bytes flujo;
    AnadirBof(flujo, 0x0005);
    Bytes pagina;
    AnadirU16(pagina, 1200);
    AnadirRegistro(flujo, 0x0042, pagina);
    AnadirFormatos(flujo);
    for (std::size_t i = 0; i < hojas.size(); ++i) {
        const auto nombre = AUtf16(hojas[i].nombre);
        const bool ancho = EsAncho(nombre);
        Bytes contenido;
        AnadirU32(contenido, comienzo + lugares[i]);
        AnadirU8(contenido, hojas[i].oculta);
        AnadirU8(contenido, 0);
        AnadirU8(contenido, nombre.size());
        AnadirU8(contenido, ancho);
        for (const char16_t unidad : nombre) {
            AnadirEntero(contenido, unidad, ancho ? 2 : 1);
        }
        AnadirRegistro(flujo, 0x0085, contenido);
    }
    textos.Escribir(flujo);
    AnadirRegistro(flujo, 0x000A, {});
    return flujo;
}

} // namespace

void AnadirRegistro(std::vector<std::byte>& flujo, int tipo, const std::vector<std::byte>& contenido) {
    if (contenido.size() > limiteRegistro) {
        throw std::length_error{"un registro BIFF no pasa de 8224 bytes"};
    }
    AnadirU16(flujo, tipo);
    AnadirU16(flujo, contenido.size());
    flujo.insert(flujo.end(), contenido.begin(), contenido.end());
}

std::vector<std::byte> EscribirFlujoXls(const std::vector<Hoja>& hojas) {
    TextosCompartidos textos;
    Bytes cuerpo;
    std::vector<std::size_t> lugares;
    for (const auto& hoja : hojas) {
        lugares.push_back(cuerpo.size());
        EscribirHoja(cuerpo, hoja, textos);
    }
    const auto comienzo = Globales(hojas, lugares, 0, textos).size();
    auto flujo = Globales(hojas, lugares, comienzo, textos);
    flujo.insert(flujo.end(), cuerpo.begin(), cuerpo.end());
    return flujo;
}

std::vector<std::byte> EscribirXls(const std::vector<Hoja>& hojas) {
    return EscribirCompuesto({{"Workbook", EscribirFlujoXls(hojas)}});
}

void EscribirArchivoXls(const std::filesystem::path& archivo, const std::vector<Hoja>& hojas) {
    EscribirBytes(archivo, EscribirXls(hojas));
}

} // namespace varo::prueba
