#include "lote/trabajo/Trabajo.h"

#include "basico/Texto.h"
#include "lote/trabajo/ClavesDePapeles.h"
#include "lote/trabajo/LeerFormato.h"
#include "lote/trabajo/TextoDeToml.h"

#include <toml++/toml.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iterator>

namespace varo {

namespace {

namespace fs = std::filesystem;

/// The shortest digits of a number, as a person writes them: 0,00005.
std::string SinExponente(double numero) {
    std::array<char, 400> letras{};
    const auto fin =
        std::to_chars(letras.data(), letras.data() + letras.size(), numero, std::chars_format::fixed);
    std::string texto{letras.data(), fin.ptr};
    std::replace(texto.begin(), texto.end(), '.', ',');
    return texto;
}

/// Walks the tree of a TOML text and takes from it what a job may hold.
class Interprete : private LectorDeToml {
public:
    Interprete(const toml::table& raiz, const fs::path& ruta, const Cambios& cambios)
        : LectorDeToml{ruta}, raiz_{raiz}, cambios_{cambios} {
        trabajo_.ruta = ruta;
    }

    Trabajo interpretar() {
        rechazarAjenas(raiz_, "", {"archivo", "hoja", "columnas", "opciones", "formato", "salida"});
        leerParcela();
        leerColumnas();
        leerOpciones();
        leerFormato();
        leerSalida();
        return std::move(trabajo_);
    }

private:
    /// The text of a key that every job has, unless the command line gives it.
    [[nodiscard]] std::string textoObligado(const char* clave) const {
        const auto* const nodo = raiz_.get(clave);
        if (nodo == nullptr) {
            rechazar({clave}, "falta en el trabajo");
        }
        return texto(*nodo, clave);
    }

    void leerParcela() {
        trabajo_.archivo =
            cambios_.archivo ? *cambios_.archivo : trabajo_.ruta.parent_path() / textoObligado("archivo");
        trabajo_.hoja = cambios_.hoja ? *cambios_.hoja : textoObligado("hoja");
    }

    void leerColumnas() {
        const auto* const nodo = raiz_.get("columnas");
        if (nodo == nullptr) {
            rechazar({"columnas"}, "falta en el trabajo");
        }
        for (const auto& [clave, valor] : tabla(*nodo, "columnas")) {
            trabajo_.columnas.push_back(columna(std::string{clave.str()}, valor));
        }
    }

    [[nodiscard]] ColumnaPedida columna(const std::string& papel, const toml::node& nodo) const {
        ColumnaPedida columna{papel, {}, lineaDe(nodo)};
        if (!EsClaveDePapel(papel)) {
            rechazar(columna.lugar(), "papel desconocido; los hay: X, Y, N, E, S, O, NS, EO, Radio, Indice, "
                                      "Codigo y DAP");
        }
        if (const auto* const numero = nodo.as_integer()) {
            columna.columna = numero->get();
        } else if (nodo.is_string()) {
            columna.columna = texto(nodo, columna.lugar().clave);
        } else {
            rechazarTipo(nodo, columna.lugar().clave, "una cabecera o un número de columna");
        }
        return columna;
    }

    void leerOpciones() {
        const auto* const nodo = raiz_.get("opciones");
        if (nodo == nullptr) {
            return;
        }
        for (const auto& [clave, valor] : tabla(*nodo, "opciones")) {
            OpcionPedida opcion{std::string{clave.str()}, {}, lineaDe(valor)};
            opcion.valor = valorDe(valor, opcion.lugar().clave);
            trabajo_.opciones.push_back(std::move(opcion));
        }
    }

    [[nodiscard]] ValorPedido valorDe(const toml::node& nodo, const std::string& clave) const {
        if (const auto* const logico = nodo.as_boolean()) {
            return logico->get();
        }
        if (const auto* const entero = nodo.as_integer()) {
            return entero->get();
        }
        if (const auto* const decimal = nodo.as_floating_point()) {
            if (!std::isfinite(decimal->get())) {
                rechazar({clave, lineaDe(nodo)}, "no es un número finito");
            }
            return decimal->get();
        }
        if (const auto* const palabras = nodo.as_string()) {
            return palabras->get(); // an empty text too is something that a person can type
        }
        if (const auto* const lista = nodo.as_array()) {
            return funciones(*lista, clave);
        }
        rechazarTipo(nodo, clave, "un número, un texto, un valor lógico o una lista de tablas");
    }

    [[nodiscard]] std::vector<FuncionPedida> funciones(const toml::array& lista,
                                                       const std::string& clave) const {
        std::vector<FuncionPedida> pedidas;
        for (const auto& nodo : lista) {
            FuncionPedida funcion;
            for (const auto& [nombre, valor] : tabla(nodo, clave)) {
                const std::string claveDeParametro = clave + "." + std::string{nombre.str()};
                const auto tecleado = TextoTecleado(valorDe(valor, claveDeParametro));
                if (!tecleado) {
                    rechazarTipo(valor, claveDeParametro, "un número o un texto");
                }
                funcion.emplace(std::string{nombre.str()}, *tecleado);
            }
            pedidas.push_back(std::move(funcion));
        }
        return pedidas;
    }

    void leerFormato() {
        if (const auto* const nodo = raiz_.get("formato")) {
            trabajo_.formato = LeerFormato(*nodo, *this);
        }
    }

    void leerSalida() {
        const auto* const nodo = raiz_.get("salida");
        if (nodo == nullptr) {
            return;
        }
        const auto& salidas = tabla(*nodo, "salida");
        rechazarAjenas(salidas, "salida.", {"resultados", "datos", "mapa"});
        trabajo_.resultados = salida(salidas, "resultados");
        trabajo_.datos = salida(salidas, "datos");
        leerMapas(salidas);
    }

    /// One name, or a list of them.
    void leerMapas(const toml::table& salidas) {
        const std::string clave = "salida.mapa";
        const auto* const nodo = salidas.get("mapa");
        if (nodo == nullptr) {
            return;
        }
        if (const auto* const lista = nodo->as_array()) {
            if (lista->empty()) {
                rechazar({clave, lineaDe(*nodo)},
                         "la lista está vacía: ponga en ella algún archivo, o quite la clave");
            }
            for (const auto& nombre : *lista) {
                trabajo_.mapas.push_back(mapa(nombre, clave));
            }
        } else if (nodo->is_string()) {
            trabajo_.mapas.push_back(mapa(*nodo, clave));
        } else {
            rechazarTipo(*nodo, clave, "un texto o una lista de textos");
        }
    }

    [[nodiscard]] SalidaPedida mapa(const toml::node& nodo, const std::string& clave) const {
        SalidaPedida pedida = salida(nodo, clave);
        const std::string extension = ExtensionDe(pedida.ruta);
        if (extension != ".txt" && !EsDeDibujo(extension)) {
            rechazar({clave, lineaDe(nodo)}, "«" + pedida.ruta.filename().string() +
                                                 "»: un mapa se escribe como .svg, .pdf, .png o .txt");
        }
        return pedida;
    }

    [[nodiscard]] std::optional<SalidaPedida> salida(const toml::table& salidas, const char* nombre) const {
        const auto* const nodo = salidas.get(nombre);
        return nodo == nullptr ? std::nullopt : std::optional{salida(*nodo, std::string{"salida."} + nombre)};
    }

    [[nodiscard]] SalidaPedida salida(const toml::node& nodo, const std::string& clave) const {
        const fs::path ruta = texto(nodo, clave);
        if (!ruta.has_filename() || ruta.filename() == "." || ruta.filename() == "..") {
            rechazar({clave, lineaDe(nodo)}, "«" + ruta.string() + "» no es el nombre de un archivo");
        }
        const fs::path carpeta = cambios_.salida ? *cambios_.salida : trabajo_.ruta.parent_path();
        return SalidaPedida{carpeta / ruta, lineaDe(nodo)};
    }

    const toml::table& raiz_;
    const Cambios& cambios_;
    Trabajo trabajo_;
};

/// A file that is there, plain, and no larger than any job.
void ExigirArchivoDeTrabajo(const fs::path& ruta) {
    constexpr std::uintmax_t tamanoMaximo = std::uintmax_t{16} * 1024 * 1024;
    std::error_code error;
    const auto estado = fs::status(ruta, error);
    if (!fs::exists(estado) || fs::is_directory(estado)) {
        const char* const porque = fs::is_directory(estado)                    ? "es una carpeta"
                                   : estado.type() == fs::file_type::not_found ? "el archivo no existe"
                                                                               : "no se puede llegar a él";
        throw ErrorTrabajo{
            ruta, {}, std::string{"no se puede leer el trabajo: "} + porque, Estado::ErrorDeArchivo};
    }
    if (!fs::is_regular_file(estado)) {
        throw ErrorTrabajo{ruta,
                           {},
                           "es un dispositivo o una tubería, y no el archivo de un trabajo",
                           Estado::ErrorDeArchivo};
    }
    if (fs::file_size(ruta, error) > tamanoMaximo) {
        throw ErrorTrabajo{
            ruta, {}, "ocupa más de 16 MB: es demasiado grande para un trabajo", Estado::ErrorDeArchivo};
    }
}

} // namespace

std::string ExtensionDe(const fs::path& ruta) {
    return Minusculas(ruta.extension().string());
}

bool EsDeDibujo(const std::string& extension) {
    return extension == ".svg" || extension == ".pdf" || extension == ".png";
}

const ColumnaPedida* Trabajo::columna(std::string_view papel) const {
    const auto pedida = std::find_if(columnas.begin(), columnas.end(), [papel](const ColumnaPedida& columna) {
        return columna.papel == papel;
    });
    return pedida == columnas.end() ? nullptr : &*pedida;
}

Trabajo InterpretarTrabajo(std::string_view texto, const fs::path& ruta, const Cambios& cambios) {
    if (const auto linea = LineaSinUtf8(texto)) {
        throw ErrorTrabajo{ruta, {"", *linea}, "el trabajo no está en UTF-8: guárdelo en UTF-8"};
    }
    if (const auto linea = LineaDeClaveHonda(texto)) {
        throw ErrorTrabajo{ruta,
                           {"", *linea},
                           "una clave tiene demasiadas partes separadas por puntos: ninguna pasa de cinco"};
    }
    try {
        const toml::table raiz = toml::parse(texto);
        return Interprete{raiz, ruta, cambios}.interpretar();
    } catch (const toml::parse_error& error) {
        const auto& donde = error.source().begin;
        throw ErrorTrabajo{ruta,
                           {"", static_cast<int>(donde.line)},
                           "columna " + std::to_string(donde.column) +
                               ": no es TOML correcto: " + RemedioDeToml(error.description())};
    }
}

Trabajo LeerTrabajo(const fs::path& ruta, const Cambios& cambios) {
    ExigirArchivoDeTrabajo(ruta);
    std::ifstream archivo{ruta, std::ios::binary};
    if (!archivo) {
        throw ErrorTrabajo{
            ruta, {}, "no se puede leer el trabajo: no hay permiso para leerlo", Estado::ErrorDeArchivo};
    }
    const std::string texto{std::istreambuf_iterator<char>{archivo}, {}};
    if (archivo.bad()) {
        throw ErrorTrabajo{ruta, {}, "no se puede leer entero el trabajo", Estado::ErrorDeArchivo};
    }
    return InterpretarTrabajo(texto, ruta, cambios);
}

std::optional<std::string> TextoTecleado(const ValorPedido& valor) {
    if (const auto* const texto = std::get_if<std::string>(&valor)) {
        return *texto;
    }
    if (const auto* const entero = std::get_if<std::int64_t>(&valor)) {
        return std::to_string(*entero);
    }
    if (const auto* const decimal = std::get_if<double>(&valor)) {
        return SinExponente(*decimal);
    }
    return std::nullopt;
}

} // namespace varo
