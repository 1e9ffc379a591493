// An open plot file: its tables and the queries over them.
#pragma once

#include "basico/Avance.h"
#include "motor/DefinicionDeTabla.h"
#include "motor/Recordset.h"
#include "motor/Tabla.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varo {

/// Tables of a plot file, read whole; the file is closed again.
class BaseDatos {
public:
    explicit BaseDatos(std::vector<Tabla> tablas);

    /// Recognises the file by its content and reads it. A file that cannot be read, or whose content is
    /// foreign, damaged or encrypted, throws ErrorMotor with its name.
    static BaseDatos abrir(const std::filesystem::path& archivo, const Avance& avance = {});

    [[nodiscard]] const Coleccion<Tabla>& TableDefs() const;

    /// The rows of a table, by its name, as a snapshot.
    [[nodiscard]] Recordset abrirTabla(const std::string& nombre) const;

    /// The rows of a SELECT text as a snapshot. A broken text, an unknown name or a type that does not fit
    /// throws ErrorMotor.
    [[nodiscard]] Recordset OpenRecordset(std::string_view sql) const;

    /// A definition in memory, without fields and in no database.
    [[nodiscard]] static DefinicionDeTabla CreateTableDef(std::string nombre) {
        return DefinicionDeTabla{std::move(nombre)};
    }

private:
    std::shared_ptr<const Coleccion<Tabla>> tablas_;
};

} // namespace varo
