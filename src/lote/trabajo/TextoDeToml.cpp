#include "lote/trabajo/TextoDeToml.h"

#include "basico/Texto.h"

#include <algorithm>
#include <array>

namespace varo {

namespace {

/// What stands in a description, and what it means.
struct Remedio {
    std::string_view dicho;
    const char* remedio;
};

constexpr const char* sinCerrar = "falta cerrar unas comillas, un corchete o una llave";
constexpr const char* numeroMal = "el número no está bien escrito: los decimales van detrás de un punto, sin "
                                  "separar los miles";

constexpr const char* sobraAlgo = "detrás del valor sobra algo; los decimales van detrás de un punto";
constexpr const char* dosVeces = "la clave o la tabla está escrita dos veces";
constexpr const char* sinCerrarORaro =
    "falta cerrar unas comillas, o hay un carácter que no se puede escribir en un texto";
constexpr const char* barra =
    "entre comillas dobles la barra \\ es especial: escríbala dos veces o use comillas simples";
constexpr const char* inmenso = "el número es demasiado grande";
constexpr const char* caracterRaro = "hay un carácter que no se puede escribir en un texto";

/// The first one that fits counts.
constexpr std::array<Remedio, 25> remedios{{
    {"redefine", dosVeces},
    {"cannot insert", dosVeces},
    {"expected '='",
     "detrás de una clave va el signo =; una clave con paréntesis va entre comillas: \"TxtBAF1(6)\" = 1"},
    {"control characters other", sinCerrarORaro},
    {"escape", barra},
    {"hex digit", barra},
    {"representable", inmenso},
    {"too long", inmenso},
    {"control character", caracterRaro},
    {"unicode", caracterRaro},
    {"multi-line", sinCerrar},
    {"expected value, saw", "falta un valor; un texto va entre comillas"},
    {"value type", "no se entiende el valor; un texto va entre comillas"},
    {"interpret", "no se entiende el valor; un texto va entre comillas"},
    {"end-of-file", sinCerrar},
    {"EOF", sinCerrar},
    {"closing", sinCerrar},
    {"expected ']'", sinCerrar},
    {"value-terminator", sobraAlgo},
    {"comment", sobraAlgo},
    {"leading zeroes", "un número no puede empezar por un 0 de más"},
    {"underscores", numeroMal},
    {"exponent", numeroMal},
    {"digit", numeroMal},
    {"key", "falta una clave o no está bien escrita; una con blancos o paréntesis va entre comillas"},
}};

/// Goes through a text of TOML from one sign to the next and passes over comments and quoted texts.
class Signos {
public:
    explicit Signos(std::string_view texto) : texto_{texto} {}

    /// The next sign, 0 at the end; the first quote of a quoted text stands for all of it.
    char siguiente() {
        if (texto_.starts_with('#')) {
            texto_.remove_prefix(std::min(texto_.find('\n'), texto_.size()));
        }
        if (texto_.empty()) {
            return '\0';
        }
        const char signo = texto_.front();
        if (signo == '"' || signo == '\'') {
            pasarTexto(signo);
        } else {
            pasar(1);
        }
        return signo;
    }

    [[nodiscard]] int linea() const { return linea_; }

private:
    void pasar(std::size_t cuantos) {
        const auto pasado = texto_.substr(0, cuantos);
        linea_ += static_cast<int>(std::ranges::count(pasado, '\n'));
        texto_.remove_prefix(pasado.size());
    }

    /// A text between one quote ends with its line at the latest. One between three may end with quotes of
    /// its own in front of them.
    void pasarTexto(char comilla) {
        const std::string tres(3, comilla);
        const bool largo = texto_.starts_with(tres);
        const std::string fin = largo ? tres : std::string{comilla};
        pasar(fin.size());
        while (!texto_.empty() && !texto_.starts_with(fin) && (largo || texto_.front() != '\n')) {
            pasar(comilla == '"' && texto_.front() == '\\' ? 2 : 1);
        }
        if (texto_.starts_with(fin)) {
            pasar(largo ? std::min(texto_.find_first_not_of(comilla), std::size_t{5}) : 1);
        }
    }

    std::string_view texto_;
    int linea_ = 1;
};

} // namespace

std::optional<int> LineaDeClaveHonda(std::string_view texto) {
    constexpr int puntosDeUnaClave = 15;
    constexpr std::string_view otraClave = "\n=,{}[]";
    Signos signos{texto};
    int puntos = 0;
    for (char signo = signos.siguiente(); signo != '\0'; signo = signos.siguiente()) {
        if (otraClave.find(signo) != std::string_view::npos) {
            puntos = 0;
        } else if (signo == '.' && ++puntos > puntosDeUnaClave) {
            return signos.linea();
        }
    }
    return std::nullopt;
}

std::optional<int> LineaSinUtf8(std::string_view texto) {
    constexpr char32_t sustituto = U'\uFFFD';
    constexpr std::string_view sustitutoEscrito = "\uFFFD";
    int linea = 1;
    while (!texto.empty()) {
        const std::string_view antes = texto;
        const char32_t caracter = SacarUtf8(texto);
        if (caracter == sustituto && !antes.starts_with(sustitutoEscrito)) {
            return linea;
        }
        linea += caracter == U'\n' ? 1 : 0;
    }
    return std::nullopt;
}

std::string RemedioDeToml(std::string_view descripcion) {
    // In front of the colon stands what was being read, behind it what is wrong.
    descripcion.remove_prefix(std::min(descripcion.find(": "), descripcion.size()));
    const auto* const hallado = std::ranges::find_if(remedios, [&](const Remedio& remedio) {
        return descripcion.find(remedio.dicho) != std::string_view::npos;
    });
    return hallado == remedios.end() ? "no se entiende lo que hay escrito aquí" : hallado->remedio;
}

} // namespace varo
