#include "lote/LineaDeOrdenes.h"

#include "motor/FormatosDeArchivo.h"

#include <CLI/CLI.hpp>

#include <charconv>

namespace varo {

namespace {

const char* const pie =
    R"(Un trabajo dice qué parcela se lee, qué columnas tienen qué papel, qué opciones se quieren y qué archivos se
escriben. Para empezar uno:  varo-lote --plantilla parcela.xls > trabajo.toml

Acaba con 0 si todo se ha hecho; 2 si un trabajo o una orden no es correcta; 3 si falla un cálculo; 4 si un
archivo no se puede leer o escribir. Con varios trabajos cuenta el primero que falla. Con --revisar, 3 es que el cálculo
falla o puede fallar, y 5 que daría cifras equivocadas; cuenta lo más grave.)";

/// The options as they are written.
struct Escritas {
    std::vector<std::string> trabajos;
    std::optional<std::string> archivo;
    std::optional<std::string> hoja;
    std::optional<std::string> salida;
    std::optional<std::string> aLaVez;
    std::optional<std::string> hilos;
    std::optional<std::string> tablas;
    std::optional<std::string> plantilla;
    bool revisar = false;
    bool tsv = false;
    bool ayuda = false;
    bool version = false;
};

void Declarar(CLI::App& app, Escritas& escritas) {
    app.set_help_flag();
    app.add_option("TRABAJO.toml", escritas.trabajos, "Los trabajos que se corren");
    const auto declarar = [&](const char* nombre, std::optional<std::string>& destino, const char* valor,
                              const char* descripcion) {
        app.add_option(nombre, destino, descripcion)->type_name(valor);
    };
    declarar("--archivo", escritas.archivo, "F", "La parcela, en lugar de la de cada trabajo");
    declarar("--hoja", escritas.hoja, "H", "La hoja, en lugar de la de cada trabajo");
    declarar("--salida", escritas.salida, "DIR", "La carpeta bajo la que van las salidas");
    declarar("--trabajos", escritas.aLaVez, "N", "Cuántos trabajos se corren a la vez (1)");
    declarar("--hilos", escritas.hilos, "N", "Con cuántos hilos calcula cada uno (se reparten los núcleos)");
    declarar("--tablas", escritas.tablas, "F", "Enumera las tablas y los campos de una parcela");
    declarar("--plantilla", escritas.plantilla, "F", "Escribe un trabajo comentado para una parcela");
    app.add_flag("--revisar", escritas.revisar, "Dice lo que parece mal en las parcelas, sin calcular nada");
    app.add_flag("--tsv", escritas.tsv, "Con --revisar, una línea por aviso con tabuladores");
    app.add_flag("--version", escritas.version, "Dice la versión y los archivos que abre");
    app.add_flag("-h,--help", escritas.ayuda, "Muestra esta ayuda");
    app.footer(pie);
    const auto formato = app.get_formatter();
    formato->label("Usage", "Uso");
    formato->label("OPTIONS", "OPCIONES");
    formato->label("Positionals", "Argumentos");
    formato->label("TEXT", "");
    app.get_option("TRABAJO.toml")->type_name("");
    for (CLI::Option* const opcion : app.get_options()) {
        opcion->group(opcion->get_positional() ? "Argumentos" : "Opciones");
    }
}

/// Tells in Spanish, by the kind of error and the option, what the library tells in English.
[[noreturn]] void Rechazar(const CLI::App& app, const CLI::ParseError& error) {
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        throw ErrorDeOrden{"no se conoce la opción " + app.remaining().front()};
    }
    const std::string dicho = error.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        throw ErrorDeOrden{dicho.substr(0, dicho.find(':')) + ": lleva un valor, y uno solo"};
    }
    throw ErrorDeOrden{"la orden no es correcta («" + dicho + "»)"};
}

int LeerCuantos(const std::string& nombre, const std::string& texto) {
    int cuantos = 0;
    const char* const fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, cuantos);
    if (leido.ec != std::errc{} || leido.ptr != fin || cuantos < 1) {
        throw ErrorDeOrden{nombre + ": se espera un número de 1 en adelante y hay «" + texto + "»"};
    }
    return cuantos;
}

/// More threads than any machine has cores only take its memory.
int LeerHilos(const std::string& texto) {
    constexpr int demasiados = 1000;
    const int hilos = LeerCuantos("--hilos", texto);
    if (hilos >= demasiados) {
        throw ErrorDeOrden{"--hilos: se espera un número menor que 1.000 y hay «" + texto + "»"};
    }
    return hilos;
}

void ExigirNoVacio(const char* nombre, const std::optional<std::string>& valor) {
    if (valor && valor->empty()) {
        throw ErrorDeOrden{std::string{nombre} + ": está vacío"};
    }
}

/// Either jobs, or one question about a plot file.
void ExigirUnaSolaCosa(const Escritas& escritas) {
    const int preguntas = (escritas.tablas ? 1 : 0) + (escritas.plantilla ? 1 : 0);
    const bool deTrabajos = !escritas.trabajos.empty() || escritas.archivo || escritas.hoja ||
                            escritas.salida || escritas.aLaVez || escritas.hilos || escritas.revisar;
    if (preguntas > 1 || (preguntas == 1 && deTrabajos)) {
        throw ErrorDeOrden{"--tablas y --plantilla van solas, sin trabajos ni otras opciones"};
    }
    if (preguntas == 0 && escritas.trabajos.empty()) {
        throw ErrorDeOrden{"falta el trabajo que se corre; varo-lote --help lo explica"};
    }
}

/// A revision writes no file and computes nothing.
void ExigirLoDeRevisar(const Escritas& escritas) {
    if (escritas.tsv && !escritas.revisar) {
        throw ErrorDeOrden{"--tsv va con --revisar"};
    }
    if (escritas.revisar && (escritas.salida || escritas.aLaVez || escritas.hilos)) {
        throw ErrorDeOrden{"--revisar no calcula ni escribe nada: sobran --salida, --trabajos y --hilos"};
    }
}

Ordenes Interpretar(const Escritas& escritas) {
    ExigirNoVacio("--archivo", escritas.archivo);
    ExigirNoVacio("--hoja", escritas.hoja);
    ExigirNoVacio("--salida", escritas.salida);
    ExigirUnaSolaCosa(escritas);
    ExigirLoDeRevisar(escritas);
    Ordenes ordenes;
    ordenes.revisar = escritas.revisar;
    ordenes.tsv = escritas.tsv;
    ordenes.trabajos.assign(escritas.trabajos.begin(), escritas.trabajos.end());
    ordenes.cambios = {escritas.archivo, escritas.hoja, escritas.salida};
    ordenes.aLaVez = escritas.aLaVez ? LeerCuantos("--trabajos", *escritas.aLaVez) : 1;
    if (escritas.hilos) {
        ordenes.hilos = LeerHilos(*escritas.hilos);
    }
    ordenes.tablas = escritas.tablas;
    ordenes.plantilla = escritas.plantilla;
    return ordenes;
}

} // namespace

Ordenes LeerOrdenes(const std::vector<std::string>& argumentos) {
    CLI::App app{"Calcula los índices de competencia de parcelas forestales, sin pantalla.", "varo-lote"};
    Escritas escritas;
    Declarar(app, escritas);
    std::vector<std::string> alReves{argumentos.rbegin(), argumentos.rend()}; // as the library takes them
    try {
        app.parse(alReves);
    } catch (const CLI::ParseError& error) {
        Rechazar(app, error);
    }
    if (escritas.ayuda || escritas.version) {
        Ordenes ordenes;
        ordenes.texto =
            escritas.ayuda ? app.help() : "varo-lote " VARO_VERSION "\nAbre: " + FormatosQueSeAbren() + "\n";
        return ordenes;
    }
    return Interpretar(escritas);
}

} // namespace varo
