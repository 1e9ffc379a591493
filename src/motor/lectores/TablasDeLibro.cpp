#include "motor/lectores/TablasDeLibro.h"

#include "basico/Texto.h"
#include "motor/lectores/TablasDeHoja.h"

#include <algorithm>
#include <utility>

namespace varo {

std::string DefectoConRemedio(const ErrorMotor& error) {
    return error.numero() == fallo::archivoDanado
               ? error.descripcion() + ": ábralo en la hoja de cálculo y guárdelo de nuevo, o tome otra copia"
               : error.descripcion();
}

TablasDeLibro::TablasDeLibro(std::string archivo, std::vector<ZonaConNombre> nombres,
                             LimitesDeLectura& limites)
    : archivo_{std::move(archivo)}, nombres_{std::move(nombres)}, limites_{limites} {
    limites_.contarTablas(nombres_.size());
    for (std::size_t i = 0; i < nombres_.size(); ++i) {
        nombresPorHoja_.emplace(Minusculas(nombres_[i].zona.hoja), i);
    }
}

Tabla TablasDeLibro::conDefecto(const std::string& tabla, const std::string& hoja,
                                const ErrorMotor& error) const {
    Tabla rota{.Name = tabla, .Fields = {}, .filas = {}};
    rota.defecto.emplace(error.numero(), "No se puede leer la hoja «" + hoja + "» de «" + archivo_ +
                                             "»: " + DefectoConRemedio(error));
    return rota;
}

void TablasDeLibro::anadirHoja(const std::string& nombre, const std::function<HojaDeCalculo()>& leer) {
    limites_.contarTablas(1); // too many of them are no damaged sheet among others
    // Of two sheets with one name, the names belong to the first.
    const auto suyos = nombresPorHoja_.equal_range(Minusculas(nombre));
    const NombresPorHoja propios{suyos.first, suyos.second};
    nombresPorHoja_.erase(suyos.first, suyos.second);
    const auto cuantas = tablas_.size();
    try {
        const auto hoja = leer();
        tablas_.push_back(TablaDeHoja(hoja, nombre + "$", limites_));
        for (const auto& [_, lugar] : propios) {
            const auto& con = nombres_[lugar];
            tablasDeNombres_[lugar] = TablaDeZona(hoja, con.zona.zona, con.nombre, limites_);
        }
    } catch (const ErrorMotor& error) {
        primerFallo_ = primerFallo_.value_or(error);
        limites_.contarDefecto();
        tablas_.resize(cuantas);
        tablas_.push_back(conDefecto(nombre + "$", nombre, error));
        for (const auto& [_, lugar] : propios) {
            limites_.contarDefecto();
            tablasDeNombres_[lugar] = conDefecto(nombres_[lugar].nombre, nombre, error);
        }
    }
}

std::vector<Tabla> TablasDeLibro::acabar() {
    if (primerFallo_ &&
        std::ranges::all_of(tablas_, [](const Tabla& tabla) { return tabla.defecto.has_value(); })) {
        throw ErrorMotor{*primerFallo_};
    }
    for (auto& [_, tabla] : tablasDeNombres_) {
        tablas_.push_back(std::move(tabla));
    }
    return std::move(tablas_);
}

} // namespace varo
