#include "motor/lectores/LectorXls.h"

#include "basico/AlSalir.h"
#include "motor/lectores/ArchivoCompuesto.h"
#include "motor/lectores/HojaBiff.h"
#include "motor/lectores/LibroBiff.h"
#include "motor/lectores/RegistrosBiff.h"
#include "motor/lectores/TablasDeHoja.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
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

/// A damaged workbook has a cure that its owner can try.
std::string ConRemedio(const ErrorMotor& error) {
    return error.numero() == fallo::archivoDanado
               ? error.descripcion() + ": ábralo en la hoja de cálculo y guárdelo de nuevo, o tome otra copia"
               : error.descripcion();
}

/// Makes the tables sheet by sheet: what is wrong with one leaves the others alone.
class TablasDelLibro {
public:
    TablasDelLibro(Bytes flujo, const std::string& archivo, LimitesDeLectura& limites, const Avance& avance)
        : flujo_{flujo}, archivo_{archivo}, limites_{limites}, avance_{avance}, libro_{LeerLibro(flujo)} {
        // All at once: a sheet that is too much for the memory is no damaged sheet among others.
        limites.contarTablas(libro_.hojas.size() + libro_.nombres.size());
        for (std::size_t i = 0; i < libro_.nombres.size(); ++i) {
            nombresPorHoja_.emplace(libro_.nombres[i].hoja, i);
        }
    }

    std::vector<Tabla> leer() {
        for (std::size_t i = 0; i < libro_.hojas.size(); ++i) {
            if (libro_.hojas[i].deCalculo) {
                leerHoja(i);
                comprobarQueNoSePisan();
            }
        }
        if (primerFallo_ && std::ranges::all_of(tablas_, &esDefectuosa)) {
            throw ErrorMotor{*primerFallo_};
        }
        for (auto& [lugar, tabla] : tablasDeNombres_) {
            tablas_.push_back(std::move(tabla));
        }
        return std::move(tablas_);
    }

private:
    static bool esDefectuosa(const Tabla& tabla) { return tabla.defecto.has_value(); }

    void leerHoja(std::size_t i) {
        const auto& [nombreDeHoja, comienzo, deCalculo] = libro_.hojas[i];
        const auto [primero, fin] = nombresPorHoja_.equal_range(i);
        try {
            const auto hoja = celdas(comienzo);
            Tabla tabla = TablaDeHoja(hoja, nombreDeHoja + "$", limites_);
            for (auto lugar = primero; lugar != fin; ++lugar) {
                const auto& nombre = libro_.nombres[lugar->second];
                tablasDeNombres_[lugar->second] = TablaDeZona(hoja, nombre.zona, nombre.nombre, limites_);
            }
            tablas_.push_back(std::move(tabla));
        } catch (const ErrorMotor& error) {
            primerFallo_ = primerFallo_.value_or(error);
            tablas_.push_back(defectuosa(nombreDeHoja + "$", nombreDeHoja, error));
            for (auto lugar = primero; lugar != fin; ++lugar) {
                tablasDeNombres_[lugar->second] =
                    defectuosa(libro_.nombres[lugar->second].nombre, nombreDeHoja, error);
            }
        }
    }

    HojaDeCalculo celdas(std::size_t comienzo) {
        Subflujo registros{flujo_, comienzo};
        const AlSalir contar{[&] { recorridos_ += registros.leidos(); }};
        auto hoja = LeerHoja(registros, libro_, limites_, avance_);
        deHojas_ += registros.leidos();
        return hoja;
    }

    /// Sheets do not share bytes, and nobody knows which one a shared byte belongs to. A damaged one may run
    /// on into others; many of them would take long.
    void comprobarQueNoSePisan() const {
        constexpr std::size_t vecesQueSeRecorre = 8;
        if (deHojas_ > flujo_.size() || recorridos_ / vecesQueSeRecorre > flujo_.size()) {
            ArchivoDanado("unas hojas pisan a otras");
        }
    }

    [[nodiscard]] Tabla defectuosa(const std::string& nombre, const std::string& hoja,
                                   const ErrorMotor& error) const {
        Tabla tabla{nombre, {}, {}};
        tabla.defecto.emplace(error.numero(), "No se puede leer la hoja «" + hoja + "» de «" + archivo_ +
                                                  "»: " + ConRemedio(error));
        return tabla;
    }

    Bytes flujo_;
    const std::string& archivo_;
    LimitesDeLectura& limites_;
    const Avance& avance_;
    LibroBiff libro_;
    std::multimap<std::size_t, std::size_t> nombresPorHoja_;
    std::vector<Tabla> tablas_;
    std::map<std::size_t, Tabla> tablasDeNombres_;
    std::optional<ErrorMotor> primerFallo_;
    std::size_t deHojas_ = 0;    ///< bytes of the sheets that were read whole
    std::size_t recorridos_ = 0; ///< bytes of all sheets
};

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
        avance.empezar(flujo.size());
        return TablasDelLibro{flujo, archivo, limites, avance}.leer();
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + ConRemedio(error)};
    }
}

} // namespace varo
