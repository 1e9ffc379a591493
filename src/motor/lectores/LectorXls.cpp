#include "motor/lectores/LectorXls.h"

#include "basico/AlSalir.h"
#include "motor/lectores/ArchivoCompuesto.h"
#include "motor/lectores/HojaBiff.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/RegistrosBiff.h"
#include "motor/lectores/TablasDeLibro.h"

#include <algorithm>
#include <array>
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
    if (archivo.flujo("EncryptedPackage")) {
        throw ErrorMotor{fallo::archivoCifrado,
                         "es un libro cifrado (.xlsx con contraseña): ábralo con ella en "
                         "la hoja de cálculo y guárdelo sin contraseña"};
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

/// Reads the sheets, and watches that they do not share bytes.
class HojasDelLibro {
public:
    HojasDelLibro(Bytes flujo, const LibroBiff& libro, LimitesDeLectura& limites, const Avance& avance)
        : flujo_{flujo}, libro_{libro}, limites_{limites}, avance_{avance} {}

    HojaDeCalculo leer(std::size_t comienzo) {
        Subflujo registros{flujo_, comienzo};
        const AlSalir contar{[&] { recorridos_ += registros.leidos(); }};
        auto hoja = LeerHoja(registros, libro_, limites_, avance_);
        deHojas_ += registros.leidos();
        return hoja;
    }

    /// Nobody knows which sheet a shared byte belongs to. A damaged one may run on into others; many of them
    /// would take long.
    void comprobarQueNoSePisan() const {
        constexpr std::size_t vecesQueSeRecorre = 8;
        if (deHojas_ > flujo_.size() || recorridos_ / vecesQueSeRecorre > flujo_.size()) {
            ArchivoDanado("unas hojas pisan a otras");
        }
    }

private:
    Bytes flujo_;
    const LibroBiff& libro_;
    LimitesDeLectura& limites_;
    const Avance& avance_;
    std::size_t deHojas_ = 0;    ///< bytes of the sheets that were read whole
    std::size_t recorridos_ = 0; ///< bytes of all sheets
};

std::vector<ZonaConNombre> NombresDe(const LibroBiff& libro) {
    std::vector<ZonaConNombre> nombres;
    for (const auto& [nombre, hoja, zona] : libro.nombres) {
        if (hoja < libro.hojas.size()) {
            nombres.push_back({nombre, {libro.hojas[hoja].nombre, zona}});
        }
    }
    return nombres;
}

std::vector<Tabla> TablasDelFlujo(Bytes flujo, const std::string& archivo, LimitesDeLectura& limites,
                                  const Avance& avance) {
    avance.empezar(flujo.size());
    const auto libro = LeerLibro(flujo);
    HojasDelLibro hojas{flujo, libro, limites, avance};
    TablasDeLibro tablas{archivo, NombresDe(libro), limites};
    for (const auto& hoja : libro.hojas) {
        if (hoja.deCalculo) {
            tablas.anadirHoja(hoja.nombre, [&] { return hojas.leer(hoja.comienzo); });
            hojas.comprobarQueNoSePisan();
        }
    }
    return tablas.acabar();
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
        return TablasDelFlujo(flujo, archivo, limites, avance);
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + DefectoConRemedio(error)};
    }
}

} // namespace varo
