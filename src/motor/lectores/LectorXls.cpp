#include "motor/lectores/LectorXls.h"

#include "motor/lectores/ArchivoCompuesto.h"
#include "motor/lectores/HojaBiff.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/RegistrosBiff.h"
#include "motor/lectores/TablasDeHoja.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace varo {
namespace {

/// How the stream of a version begins: the type of its BOF, and the number at a place in it.
struct Comienzo {
    int version;
    int tipo;
    std::size_t lugar;
    int numero;
};

constexpr std::array<Comienzo, 5> comienzos{{{2, 0x0009, 2, 4},
                                             {3, 0x0209, 2, 6},
                                             {4, 0x0409, 2, 6},
                                             {5, biff::bof, 4, biff::version5},
                                             {8, biff::bof, 4, biff::version8}}};

/// The version of Excel of a bare stream, by its first record; 0 when it is none.
int VersionDeExcel(Bytes bytes) {
    if (bytes.size() < 8) {
        return 0;
    }
    const auto* const hallado = std::ranges::find_if(comienzos, [bytes](const Comienzo& comienzo) {
        return LeerU16(bytes, 0) == comienzo.tipo && LeerU16(bytes, comienzo.lugar) == comienzo.numero;
    });
    return hallado == comienzos.end() ? 0 : hallado->version;
}

[[noreturn]] void FormatoNoReconocido(const std::string& motivo) {
    throw ErrorMotor{fallo::formatoNoReconocido, motivo};
}

/// The workbook stream of a compound file. A file for two versions of Excel has both: the newer one counts.
std::vector<std::byte> FlujoDelLibro(Bytes bytes) {
    if (!ArchivoCompuesto::esCompuesto(bytes)) {
        return {bytes.begin(), bytes.end()};
    }
    const ArchivoCompuesto archivo{bytes};
    for (const auto* nombre : {"Workbook", "Book"}) {
        if (auto flujo = archivo.flujo(nombre)) {
            return std::move(*flujo);
        }
    }
    FormatoNoReconocido("no contiene un libro de Excel");
}

void ComprobarVersion(Bytes flujo) {
    const int version = VersionDeExcel(flujo);
    if (version == 0) {
        FormatoNoReconocido("no es un libro de Excel 5.0 a 2003");
    }
    if (version < 5) {
        FormatoNoReconocido("es una hoja de Excel " + std::to_string(version) +
                            ".0, un formato que no se lee: guárdela como libro de Excel 97-2003");
    }
}

std::vector<Tabla> TablasDelLibro(Bytes flujo, LimitesDeLectura& limites, const Avance& avance) {
    avance.empezar(flujo.size());
    const auto libro = LeerLibro(flujo);
    std::multimap<std::size_t, std::size_t> nombresPorHoja;
    for (std::size_t i = 0; i < libro.nombres.size(); ++i) {
        nombresPorHoja.emplace(libro.nombres[i].hoja, i);
    }
    std::vector<Tabla> tablas;
    std::map<std::size_t, Tabla> tablasDeNombres;
    std::size_t leidos = 0;
    for (std::size_t i = 0; i < libro.hojas.size(); ++i) {
        if (!libro.hojas[i].deCalculo) {
            continue;
        }
        const auto hoja = LeerHoja(flujo, libro.hojas[i].comienzo, libro, limites, avance);
        leidos += hoja.bytes;
        if (leidos > flujo.size()) {
            ArchivoDanado("unas hojas pisan a otras");
        }
        tablas.push_back(TablaDeHoja(hoja, libro.hojas[i].nombre + "$", limites));
        const auto [primero, fin] = nombresPorHoja.equal_range(i);
        for (auto lugar = primero; lugar != fin; ++lugar) {
            const auto& nombre = libro.nombres[lugar->second];
            tablasDeNombres[lugar->second] = TablaDeZona(hoja, nombre.zona, nombre.nombre, limites);
        }
    }
    for (auto& [lugar, tabla] : tablasDeNombres) {
        tablas.push_back(std::move(tabla));
    }
    return tablas;
}

} // namespace

bool PareceXls(std::span<const std::byte> bytes) {
    return ArchivoCompuesto::esCompuesto(bytes) || VersionDeExcel(bytes) != 0;
}

std::vector<Tabla> LeerXls(std::span<const std::byte> bytes, const std::string& archivo,
                           const Avance& avance) {
    try {
        const auto flujo = FlujoDelLibro(bytes);
        ComprobarVersion(flujo);
        LimitesDeLectura limites{bytes.size()};
        return TablasDelLibro(flujo, limites, avance);
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + error.descripcion()};
    }
}

} // namespace varo
