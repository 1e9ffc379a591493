#include "motor/lectores/DefinicionJet.h"

#include "motor/lectores/TextosJet.h"

#include <algorithm>
#include <tuple>

namespace varo {
namespace {

/// Where things stand in a definition and in the entry of a column.
struct Lugares {
    std::size_t columnasVariables;
    std::size_t columnas;
    std::size_t indices;
    std::size_t mapa;
    std::size_t comienzo; // of the entries, those of indices first
    std::size_t tamanoDeIndice;
    std::size_t tamanoDeColumna;
    std::size_t numero;
    std::size_t variable;
    std::size_t orden;
    std::size_t banderas;
    std::size_t fijo;
    std::size_t longitud;
};

constexpr Lugares lugaresJet3{23, 25, 31, 35, 43, 8, 18, 1, 3, 5, 13, 14, 16};
constexpr Lugares lugaresJet4{43, 45, 51, 55, 63, 12, 25, 5, 7, 9, 15, 21, 23};

// Jet 4 alone has these in the entry of a column.
constexpr std::size_t lugarDecimales = 12;
constexpr std::size_t lugarMasBanderas = 16;

constexpr unsigned banderaFija = 0x01;
constexpr unsigned banderasCalculada = 0xC0;

constexpr std::size_t columnasDeUnaTabla = 255;

// A definition goes on through pages; 255 columns and 32 indices need far fewer than these.
constexpr std::size_t paginasDeUnaDefinicion = 64;
constexpr std::size_t lugarSiguiente = 4;
constexpr std::size_t cabeceraDeContinuacion = 8;

std::vector<std::byte> JuntarPaginas(const ArchivoJet& archivo, std::uint32_t primera) {
    const auto pagina = archivo.pagina(primera, ClasePaginaJet::Definicion);
    std::vector<std::byte> bytes{pagina.begin(), pagina.end()};
    auto siguiente = LeerU32(pagina, lugarSiguiente);
    for (std::size_t vistas = 1; siguiente != 0; ++vistas) {
        if (vistas == paginasDeUnaDefinicion) {
            ArchivoDanado("la definición de una tabla da vueltas");
        }
        const auto otra = archivo.pagina(siguiente, ClasePaginaJet::Definicion);
        const auto contenido = otra.subspan(cabeceraDeContinuacion);
        bytes.insert(bytes.end(), contenido.begin(), contenido.end());
        siguiente = LeerU32(otra, lugarSiguiente);
    }
    return bytes;
}

class LectorDeDefinicion {
public:
    LectorDeDefinicion(const ArchivoJet& archivo, std::uint32_t pagina)
        : jet3_{archivo.esJet3()}, lugares_{jet3_ ? lugaresJet3 : lugaresJet4},
          bytes_{JuntarPaginas(archivo, pagina)}, textos_{archivo} {
        definicion_.pagina = pagina;
    }

    DefinicionJet leer() {
        definicion_.mapa = LeerSitioDeFila(bytes_, lugares_.mapa);
        definicion_.columnasVariables = LeerU16(bytes_, lugares_.columnasVariables);
        const std::size_t cuantas = LeerU16(bytes_, lugares_.columnas);
        if (cuantas > columnasDeUnaTabla) {
            ArchivoDanado("una tabla tiene más columnas de las que puede");
        }
        lugar_ = lugares_.comienzo + lugares_.tamanoDeIndice * LeerU32(bytes_, lugares_.indices);
        for (std::size_t i = 0; i < cuantas; ++i) {
            definicion_.columnas.push_back(leerColumna(tomar(lugares_.tamanoDeColumna)));
        }
        for (auto& columna : definicion_.columnas) {
            const std::size_t longitud = jet3_ ? LeerU8(tomar(1), 0) : LeerU16(tomar(2), 0);
            columna.nombre = textos_.leerNombre(tomar(longitud));
        }
        std::ranges::sort(definicion_.columnas, {}, [](const ColumnaJet& columna) {
            return std::tuple{columna.orden, columna.numero};
        });
        return std::move(definicion_);
    }

private:
    Bytes tomar(std::size_t cuantos) {
        const auto bytes = Trozo(bytes_, lugar_, cuantos);
        lugar_ += cuantos;
        return bytes;
    }

    [[nodiscard]] ColumnaJet leerColumna(Bytes entrada) const {
        ColumnaJet columna;
        columna.tipo = static_cast<TipoJet>(LeerU8(entrada, 0));
        columna.numero = LeerU16(entrada, lugares_.numero);
        columna.orden = LeerU16(entrada, lugares_.orden);
        columna.fija = (LeerU8(entrada, lugares_.banderas) & banderaFija) != 0;
        columna.lugar = LeerU16(entrada, columna.fija ? lugares_.fijo : lugares_.variable);
        columna.longitud = LeerU16(entrada, lugares_.longitud);
        if (!jet3_) {
            columna.decimales = LeerU8(entrada, lugarDecimales);
            columna.calculada = (LeerU8(entrada, lugarMasBanderas) & banderasCalculada) == banderasCalculada;
        }
        return columna;
    }

    bool jet3_;
    const Lugares& lugares_;
    std::vector<std::byte> bytes_;
    TextosJet textos_;
    DefinicionJet definicion_;
    std::size_t lugar_ = 0;
};

} // namespace

DefinicionJet LeerDefinicion(const ArchivoJet& archivo, std::uint32_t pagina) {
    return LectorDeDefinicion{archivo, pagina}.leer();
}

} // namespace varo
