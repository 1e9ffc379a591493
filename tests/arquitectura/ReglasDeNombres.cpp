#include "arquitectura/ReglasDeNombres.h"

#include "arquitectura/Declaraciones.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <string_view>

namespace varo::arquitectura {

namespace {

using Clase = Declaracion::Clase;

const std::set<std::string_view> establecidos{
    // Properties and methods of the platform's windows, controls and data objects.
    "AddItem", "Clear", "Cls", "Col", "ColWidth", "Cols", "Count", "Database", "DatabaseName", "Eof",
    "Fields", "FileName", "Hide", "Index", "List", "ListCount", "MoveFirst", "MoveLast", "MoveNext", "Name",
    "OpenRecordset", "Path", "Point", "Print", "RecordCount", "Recordset", "Refresh", "RemoveItem", "Row",
    "Append", "CreateField", "CreateTableDef", "Rows", "Selected", "SetFocus", "Show", "TabCaption",
    "TableDefs", "Tabs", "Text", "TextMatrix", "Visible",
    // Procedures and variables of the windows.
    "Ab_ha", "AbrirArchivoDeDatos", "AreaTotalIntersCopas", "ComprobarRepeticionDeHoja", "GrabarEncima",
    "FilasCodigos", "LeerColumna", "ListaCodigos", "Npies_ha", "RellenarGrid", "Tipo2DAlActivar",
    "Tipo2DAlDesactivar", "Tipo4RAlActivar", "Tipo4RAlDesactivar", "TipoRMAlActivar", "TipoRMAlDesactivar",
    // The distance in the formulas.
    "L",
    // Of the language.
    "main"};

const std::set<std::string_view> sucesos{"Activate",    "Change",   "Click",    "DblClick", "Deactivate",
                                         "DragDrop",    "DragOver", "DropDown", "Load",     "LostFocus",
                                         "QueryUnload", "Resize",   "Unload"};

/// `<Control>_<Event>`.
bool EsManejador(std::string_view nombre) {
    const auto raya = nombre.rfind('_');
    return raya != std::string_view::npos && raya > 0 && sucesos.contains(nombre.substr(raya + 1));
}

/// Letters beyond ASCII are those from U+00C0 to U+00FF, whose small ones come last.
bool EmpiezaPorMayuscula(std::string_view nombre) {
    const bool latina = nombre.size() > 1 && nombre[0] == '\xC3';
    return latina ? static_cast<unsigned char>(nombre[1]) < 0xA0 : nombre[0] >= 'A' && nombre[0] <= 'Z';
}

bool EsCamel(std::string_view nombre, bool conMayuscula) {
    return EmpiezaPorMayuscula(nombre) == conMayuscula && nombre.find('_') == std::string_view::npos;
}

struct Estilo {
    Clase clase;
    bool conMayuscula;
    std::string_view comoSeEscribe;
};

constexpr std::array<Estilo, 6> estilos{{
    {Clase::Tipo, true, "un tipo se escribe CamelCase"},
    {Clase::Enumerador, true, "un enumerador se escribe CamelCase"},
    {Clase::Funcion, true, "una función suelta se escribe CamelCase"},
    {Clase::Metodo, false, "un método se escribe camelCase"},
    {Clase::Constante, false, "una constante se escribe camelCase"},
    {Clase::MiembroPrivado, false, "un miembro privado se escribe camelCase_"},
}};

const Estilo& EstiloDe(const Declaracion& declaracion) {
    return *std::ranges::find(estilos, declaracion.clase, &Estilo::clase);
}

bool Cumple(const Declaracion& declaracion) {
    std::string_view nombre = declaracion.nombre;
    if (establecidos.contains(nombre) || (declaracion.clase == Clase::Metodo && EsManejador(nombre))) {
        return true;
    }
    if (declaracion.clase == Clase::MiembroPrivado) {
        if (!nombre.ends_with('_')) {
            return false;
        }
        nombre.remove_suffix(1);
    }
    return EsCamel(nombre, EstiloDe(declaracion).conMayuscula);
}

std::string Lugar(const Fuente& fuente, const Declaracion& declaracion) {
    return fuente.ruta + ":" + std::to_string(declaracion.linea);
}

/// The types of one name.
struct Tocayos {
    std::vector<std::string> lugares;
    bool algunoSuelto = false; ///< one at least stands outside of other types
};

std::map<std::string, Tocayos> TiposPorNombre(const std::vector<Fuente>& fuentes) {
    std::map<std::string, Tocayos> porNombre;
    for (const auto& fuente : fuentes) {
        for (const auto& declaracion : Declaraciones(fuente.texto)) {
            if (declaracion.clase == Clase::Tipo) {
                auto& tocayos = porNombre[declaracion.nombre];
                tocayos.lugares.push_back(Lugar(fuente, declaracion));
                tocayos.algunoSuelto = tocayos.algunoSuelto || declaracion.en.empty();
            }
        }
    }
    return porNombre;
}

std::string Unidos(const std::vector<std::string>& textos) {
    std::string unidos;
    for (const auto& texto : textos) {
        unidos += (unidos.empty() ? "" : ", ") + texto;
    }
    return unidos;
}

} // namespace

Infracciones NombresFueraDeEstilo(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& fuente : fuentes) {
        for (const auto& declaracion : Declaraciones(fuente.texto)) {
            if (!Cumple(declaracion)) {
                halladas.push_back(Lugar(fuente, declaracion) + " " + declaracion.nombre + ": " +
                                   std::string{EstiloDe(declaracion).comoSeEscribe});
            }
        }
    }
    return halladas;
}

Infracciones NombresDeDosTipos(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& [nombre, tocayos] : TiposPorNombre(fuentes)) {
        if (tocayos.algunoSuelto && tocayos.lugares.size() > 1) {
            halladas.push_back(nombre + " nombra más de un tipo: " + Unidos(tocayos.lugares));
        }
    }
    return halladas;
}

} // namespace varo::arquitectura
