#include "motor/lectores/LectorMdb.h"

#include "motor/lectores/ArchivoJet.h"
#include "motor/lectores/CatalogoJet.h"
#include "motor/lectores/FilasJet.h"
#include "motor/lectores/LimitesDeLectura.h"
#include "motor/lectores/ValoresJet.h"

#include <utility>

namespace varo {
namespace {

[[noreturn]] void TablaNoAdmitida(const std::string& motivo) {
    throw ErrorMotor{fallo::tablaNoAdmitida, motivo};
}

std::string PorQueNoSeLee(const ColumnaJet& columna) {
    const std::string consejo = ": haga en Access una consulta sin él y guárdela como tabla nueva";
    if (columna.calculada) {
        return "su campo «" + columna.nombre + "» es calculado, y esos no se leen" + consejo;
    }
    if (columna.tipo == TipoJet::Compleja) {
        return "su campo «" + columna.nombre +
               "» es de datos adjuntos o de varios valores, y esos no se leen" + consejo;
    }
    return "su campo «" + columna.nombre + "» es de una clase que no se lee" + consejo;
}

/// A damaged file has a cure that its owner can try.
std::string ConRemedio(const ErrorMotor& error) {
    return error.numero() == fallo::archivoDanado
               ? error.descripcion() + ": ábralo en Access y use «Compactar y reparar base de datos», o tome "
                                       "otra copia"
               : error.descripcion();
}

class LectorDeTablas {
public:
    LectorDeTablas(const ArchivoJet& archivo, LimitesDeLectura& limites, const Avance& avance)
        : archivo_{archivo}, limites_{limites}, avance_{avance}, valores_{archivo, limites} {}

    Tabla leer(const TablaDeCatalogo& entrada) {
        if (entrada.vinculada) {
            TablaNoAdmitida("está vinculada, y sus filas están en otro archivo: abra ese archivo");
        }
        const auto definicion = LeerDefinicion(archivo_, entrada.pagina);
        std::vector<Campo> campos;
        for (const auto& columna : definicion.columnas) {
            if (!ValoresJet::sabeLeer(columna)) {
                TablaNoAdmitida(PorQueNoSeLee(columna));
            }
            campos.push_back({columna.nombre});
        }
        Tabla tabla{entrada.nombre, Coleccion<Campo>{std::move(campos)}, {}};
        EnCadaFilaJet(archivo_, definicion, avance_,
                      [&](const FilaJet& fila) { anadir(tabla.filas, fila, definicion); });
        return tabla;
    }

private:
    void anadir(FilasDeTabla& filas, const FilaJet& fila, const DefinicionJet& definicion) {
        const auto numero = filas.size();
        limites_.contarCeldas(1);
        filas.alargar(numero + 1);
        for (std::size_t i = 0; i < definicion.columnas.size(); ++i) {
            const auto& columna = definicion.columnas[i];
            if (columna.tipo == TipoJet::Booleano || fila.marcado(columna)) {
                limites_.contarCeldas(1);
                filas.poner(numero, i, valores_.leer(fila, columna));
            }
        }
    }

    const ArchivoJet& archivo_;
    LimitesDeLectura& limites_;
    const Avance& avance_;
    ValoresJet valores_;
};

} // namespace

bool PareceMdb(std::span<const std::byte> bytes) {
    return ArchivoJet::esJet(bytes);
}

std::vector<Tabla> LeerMdb(std::span<const std::byte> bytes, const std::string& archivo,
                           const Avance& avance) {
    avance.empezar(bytes.size());
    std::vector<Tabla> tablas;
    try {
        const ArchivoJet paginas{bytes};
        LimitesDeLectura limites{bytes.size()};
        LectorDeTablas lector{paginas, limites, avance};
        for (const auto& entrada : LeerCatalogo(paginas, limites)) {
            try {
                tablas.push_back(lector.leer(entrada));
            } catch (const ErrorMotor& error) {
                limites.contarDefecto();
                tablas.push_back({.Name = entrada.nombre, .Fields = {}, .filas = {}});
                tablas.back().defecto.emplace(error.numero(), "No se puede leer la tabla «" + entrada.nombre +
                                                                  "» de «" + archivo +
                                                                  "»: " + ConRemedio(error));
            }
        }
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + ConRemedio(error)};
    }
    return tablas;
}

} // namespace varo
