#include "motor/BaseDatos.h"

#include "motor/ArchivoDatos.h"
#include "motor/sql/Ejecucion.h"
#include "motor/sql/Sintaxis.h"

#include <algorithm>
#include <utility>

namespace varo {

namespace {

const Tabla& Buscar(const Coleccion<Tabla>& tablas, const std::string& nombre) {
    const auto hallada = std::find_if(tablas.begin(), tablas.end(),
                                      [&](const Tabla& tabla) { return MismoNombre(tabla.Name, nombre); });
    if (hallada == tablas.end()) {
        throw ErrorMotor{fallo::tablaDesconocida, "No se encuentra la tabla «" + nombre + "»"};
    }
    if (hallada->defecto) {
        throw ErrorMotor{*hallada->defecto};
    }
    return *hallada;
}

} // namespace

BaseDatos::BaseDatos(std::vector<Tabla> tablas)
    : tablas_{std::make_shared<const Coleccion<Tabla>>(std::move(tablas))} {}

BaseDatos BaseDatos::abrir(const std::filesystem::path& archivo, const Avance& avance) {
    return BaseDatos{LeerArchivoDatos(archivo, avance)};
}

const Coleccion<Tabla>& BaseDatos::TableDefs() const {
    return *tablas_;
}

Recordset BaseDatos::abrirTabla(const std::string& nombre) const {
    // The recordset keeps all the tables alive and looks at this one.
    return Recordset{std::shared_ptr<const Tabla>{tablas_, &Buscar(*tablas_, nombre)}};
}

Recordset BaseDatos::OpenRecordset(std::string_view sql) const {
    const auto consulta = sql::Analizar(sql);
    return Recordset{
        std::make_shared<const Tabla>(sql::Ejecutar(consulta, Buscar(*tablas_, consulta.tabla)))};
}

} // namespace varo
