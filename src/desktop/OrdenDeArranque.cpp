#include "desktop/OrdenDeArranque.h"

#include "motor/FormatosDeArchivo.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace varo {

namespace {

const char* const ayuda = R"(Uso: varo [ARCHIVO]

Abre la ventana del programa y, si se da, el archivo de la parcela, como hace Archivo, Abrir.

  -h, --help   Muestra esta ayuda
  --version    Dice la versión y los archivos que abre

El manual está en el menú Ayuda (F1). Los trabajos sin ventanas los corre varo-lote.
)";

OrdenDeArranque Rechazo(const std::string& causa) {
    return {OrdenDeArranque::Clase::Rechazar, causa + " Las órdenes que hay las dice: varo --help\n"};
}

/// One of the options stands among the arguments; behind "--" all are files.
bool Lleva(const std::vector<std::string>& argumentos, std::initializer_list<std::string_view> opciones) {
    const auto fin = std::ranges::find(argumentos, "--");
    return std::any_of(argumentos.begin(), fin, [&](const std::string& argumento) {
        return std::ranges::find(opciones, argumento) != opciones.end();
    });
}

bool PideAyuda(const std::vector<std::string>& argumentos) {
    return Lleva(argumentos, {"-h", "--help"});
}

bool PideVersion(const std::vector<std::string>& argumentos) {
    return Lleva(argumentos, {"--version"});
}

} // namespace

std::string VersionDelPrograma() {
    return VARO_VERSION;
}

bool SoloPregunta(const std::vector<std::string>& argumentos) {
    return PideAyuda(argumentos) || PideVersion(argumentos);
}

OrdenDeArranque LeerOrden(const std::vector<std::string>& argumentos) {
    if (PideAyuda(argumentos)) {
        return {OrdenDeArranque::Clase::Decir, ayuda};
    }
    if (PideVersion(argumentos)) {
        return {OrdenDeArranque::Clase::Decir,
                "varo " + VersionDelPrograma() + "\nAbre: " + FormatosQueSeAbren() + "\n"};
    }
    OrdenDeArranque orden;
    bool quedanOpciones = true;
    for (const std::string& argumento : argumentos) {
        if (quedanOpciones && argumento == "--") {
            quedanOpciones = false; // what follows is a file, whatever its name
        } else if (quedanOpciones && argumento.starts_with('-')) {
            return Rechazo("«" + argumento + "» no es una orden de varo.");
        } else if (!orden.texto.empty()) {
            return Rechazo("Se abre un solo archivo: sobra «" + argumento + "».");
        } else {
            orden.texto = argumento;
        }
    }
    return orden;
}

} // namespace varo
