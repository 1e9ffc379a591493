// A job: one plot, the roles of its columns, the options and the wanted files, read from a TOML file.
#pragma once

#include "lote/trabajo/ErrorTrabajo.h"
#include "lote/trabajo/FormatoPedido.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace varo {

/// A model function for a list of the options: its parameters by name, each as a person types it.
using FuncionPedida = std::map<std::string, std::string, std::less<>>;

using ValorPedido = std::variant<bool, std::int64_t, double, std::string, std::vector<FuncionPedida>>;

struct OpcionPedida {
    std::string control; ///< "ChN", "TxtBAF1(6)"
    ValorPedido valor;
    int linea = 0;

    [[nodiscard]] Lugar lugar() const { return {"opciones." + control, linea}; }
};

struct ColumnaPedida {
    std::string papel;
    std::variant<std::int64_t, std::string> columna; ///< number of the grid's column, or its header
    int linea = 0;

    [[nodiscard]] Lugar lugar() const { return {"columnas." + papel, linea}; }
};

struct SalidaPedida {
    std::filesystem::path ruta;
    int linea = 0;
};

struct Trabajo {
    std::filesystem::path ruta; ///< the job file itself
    std::filesystem::path archivo;
    std::string hoja;
    std::vector<ColumnaPedida> columnas;
    std::vector<OpcionPedida> opciones;
    std::optional<SalidaPedida> resultados;
    std::optional<SalidaPedida> datos;
    std::vector<SalidaPedida> mapas;
    std::optional<FormatoPedido> formato;

    /// Null when the job does not give the role.
    [[nodiscard]] const ColumnaPedida* columna(std::string_view papel) const;
};

/// ".svg", in small letters.
std::string ExtensionDe(const std::filesystem::path& ruta);
/// Whether a map with this extension is a picture.
bool EsDeDibujo(const std::string& extension);

/// What the command line puts in place of what the jobs say.
struct Cambios {
    std::optional<std::filesystem::path> archivo;
    std::optional<std::string> hoja;
    std::optional<std::filesystem::path> salida; ///< the folder under which the outputs go
};

/// Paths of the job are taken from the folder of `ruta`, those of the outputs from `cambios.salida` when it
/// is given. A text that is no TOML, an unknown key, a value of the wrong type and a missing `archivo`,
/// `hoja` or `columnas` throw ErrorTrabajo.
Trabajo InterpretarTrabajo(std::string_view texto, const std::filesystem::path& ruta,
                           const Cambios& cambios = {});

/// Reads the job file. One that cannot be read throws ErrorTrabajo with Estado::ErrorDeArchivo.
Trabajo LeerTrabajo(const std::filesystem::path& ruta, const Cambios& cambios = {});

/// A number as a person types it into a text field, a text as it is; nothing for other values.
std::optional<std::string> TextoTecleado(const ValorPedido& valor);

} // namespace varo
