#include "arquitectura/Declaraciones.h"

#include "arquitectura/Piezas.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <utility>

namespace varo::arquitectura {

namespace {

using Clase = Declaracion::Clase;

bool Es(const Pieza& pieza, std::initializer_list<std::string_view> textos) {
    return std::ranges::find(textos, pieza.texto) != textos.end();
}

/// Between two braces, or the whole text.
struct Ambito {
    enum class Especie { Espacio, Tipo, Enumeracion, Cuerpo };

    Especie especie = Especie::Espacio;
    std::string nombre{}; ///< of the type
    bool privado = false; ///< what comes now in a type is private
    bool conClase = true; ///< of an enumeration
};

/// A statement up to its end or to its first brace: what stands in round or square brackets is left out, but
/// a "(" tells that round ones were there.
using Sentencia = std::vector<Pieza>;

/// Without the parameters of templates, at either side of a name.
Sentencia SinAngulos(const Sentencia& sentencia) {
    Sentencia fuera;
    int hondura = 0;
    for (const auto& pieza : sentencia) {
        if (Es(pieza, {"="}) && hondura == 0) {
            fuera.push_back(pieza);
            break; // a value follows, in which < may compare
        }
        if (Es(pieza, {"<"})) {
            ++hondura;
        } else if (Es(pieza, {">"})) {
            --hondura;
        } else if (hondura == 0 && !Es(pieza, {"template"})) {
            fuera.push_back(pieza);
        }
    }
    return fuera;
}

bool EsNombre(const Pieza& pieza) {
    return pieza.clase == Pieza::Clase::Palabra &&
           !Es(pieza, {"alignas", "decltype", "noexcept", "requires", "return", "sizeof", "static_assert"});
}

/// The place of the name before the first round brackets, a "(" in itself; nothing where there are none.
std::optional<std::size_t> NombreDeFuncion(const Sentencia& sentencia) {
    for (std::size_t i = 1; i < sentencia.size() && !Es(sentencia[i], {"="}); ++i) {
        if (Es(sentencia[i], {"("}) && EsNombre(sentencia[i - 1])) {
            return i - 1;
        }
    }
    return std::nullopt;
}

/// The last word before the value, if any: the name of a variable.
const Pieza* NombreDeVariable(const Sentencia& sentencia) {
    const auto valor = std::ranges::find_if(sentencia, [](const Pieza& pieza) { return Es(pieza, {"="}); });
    if (valor == sentencia.begin() || !EsNombre(*std::prev(valor))) {
        return nullptr;
    }
    return &*std::prev(valor);
}

bool Lleva(const Sentencia& sentencia, std::initializer_list<std::string_view> palabras) {
    return std::ranges::any_of(sentencia, [&](const Pieza& pieza) { return Es(pieza, palabras); });
}

/// The colon behind `public`, `protected` or `private`.
bool EsAcceso(const Sentencia& sentencia, const Pieza& pieza) {
    return Es(pieza, {":"}) && sentencia.size() == 1 && Es(sentencia[0], {"public", "protected", "private"});
}

class Lector {
public:
    explicit Lector(std::string_view texto) : piezas_{Trocear(texto)} {
        std::erase_if(piezas_, [](const Pieza& pieza) { return pieza.clase == Pieza::Clase::Comentario; });
    }

    std::vector<Declaracion> leer() {
        while (lugar_ < piezas_.size()) {
            const auto& pieza = piezas_[lugar_];
            if (Es(pieza, {"(", "["})) {
                saltarCorchetes();
            } else if (Es(pieza, {"{"})) {
                abrir();
            } else if (Es(pieza, {"}"})) {
                cerrar();
            } else if (EsAcceso(sentencia_, pieza)) {
                ambitos_.back().privado = sentencia_[0].texto == "private";
                sentencia_.clear();
            } else if (Es(pieza, {";"}) || (Es(pieza, {","}) && enEnumeracion())) {
                terminar();
            } else {
                sentencia_.push_back(pieza);
            }
            ++lugar_;
        }
        return std::move(halladas_);
    }

private:
    [[nodiscard]] bool enEnumeracion() const {
        return ambitos_.back().especie == Ambito::Especie::Enumeracion;
    }

    /// To the end of the brackets that open here.
    void saltarCorchetes() {
        if (Es(piezas_[lugar_], {"("})) {
            sentencia_.push_back(piezas_[lugar_]);
        }
        int hondura = 0;
        for (; lugar_ < piezas_.size(); ++lugar_) {
            hondura += Es(piezas_[lugar_], {"(", "[", "{"})   ? 1
                       : Es(piezas_[lugar_], {")", "]", "}"}) ? -1
                                                              : 0;
            if (hondura == 0) {
                return;
            }
        }
    }

    void abrir() {
        const auto llana = SinAngulos(sentencia_);
        Ambito dentro{Ambito::Especie::Cuerpo};
        if (!llana.empty() && Es(llana[0], {"namespace", "inline"}) && Lleva(llana, {"namespace"})) {
            dentro.especie = Ambito::Especie::Espacio;
        } else if (!llana.empty() && Es(llana[0], {"class", "struct", "enum"})) {
            dentro = tipo(llana);
        } else {
            declarar(llana);
        }
        ambitos_.push_back(std::move(dentro));
        sentencia_.clear();
    }

    void cerrar() {
        if (enEnumeracion()) {
            terminar();
        }
        if (ambitos_.size() > 1) {
            ambitos_.pop_back();
        }
        sentencia_.clear();
    }

    void terminar() {
        declarar(SinAngulos(sentencia_));
        sentencia_.clear();
    }

    /// A type may be written behind the one that holds it, `Ventana::Barra`.
    Ambito tipo(const Sentencia& llana) {
        Ambito dentro{Es(llana[0], {"enum"}) ? Ambito::Especie::Enumeracion : Ambito::Especie::Tipo};
        dentro.privado = Es(llana[0], {"class"});
        dentro.conClase = Lleva(llana, {"class", "struct"});
        auto nombre = std::ranges::find_if(llana, [](const Pieza& pieza) {
            return !Es(pieza, {"class", "struct", "enum"});
        });
        if (nombre == llana.end() || Es(*nombre, {":"})) {
            return dentro;
        }
        std::string en = alrededor();
        for (; llana.end() - nombre > 2 && Es(nombre[1], {"::"}); nombre += 2) {
            en = nombre->texto;
        }
        dentro.nombre = nombre->texto;
        if (ambitos_.back().especie != Ambito::Especie::Cuerpo) {
            halladas_.push_back({Clase::Tipo, nombre->texto, std::move(en), nombre->linea});
        }
        return dentro;
    }

    void declarar(const Sentencia& llana) {
        const auto& ambito = ambitos_.back();
        if (llana.empty() || Es(llana[0], {",", "friend"}) || Lleva(llana, {"operator"})) {
            return; // a comma goes on with the members that a constructor sets
        }
        if (ambito.especie == Ambito::Especie::Enumeracion) {
            anotar(ambito.conClase ? Clase::Enumerador : Clase::Constante, llana[0]);
        } else if (Es(llana[0], {"using"})) {
            const bool abrevia = sentencia_.back().texto == llana[1].texto;
            if (llana.size() == 3 && Es(llana[2], {"="}) && !abrevia &&
                ambito.especie != Ambito::Especie::Cuerpo) {
                anotar(Clase::Tipo, llana[1]);
            }
        } else if (Es(llana[0], {"class", "struct", "enum"}) || ambito.especie == Ambito::Especie::Cuerpo) {
            return;
        } else if (const auto nombre = NombreDeFuncion(llana)) {
            declararFuncion(llana, *nombre);
        } else if (const Pieza* const variable = NombreDeVariable(llana)) {
            declararVariable(llana, *variable);
        }
    }

    void declararFuncion(const Sentencia& llana, std::size_t nombre) {
        if (ambitos_.back().especie == Ambito::Especie::Tipo) {
            if (llana[nombre].texto != ambitos_.back().nombre) {
                anotar(Clase::Metodo, llana[nombre]);
            }
        } else if (nombre > 0 && !Es(llana[nombre - 1], {"::", "~"})) {
            anotar(Clase::Funcion, llana[nombre]);
        }
    }

    void declararVariable(const Sentencia& llana, const Pieza& nombre) {
        const bool enTipo = ambitos_.back().especie == Ambito::Especie::Tipo;
        if (Lleva(llana, {"constexpr"}) || (!enTipo && Lleva(llana, {"const"}))) {
            anotar(Clase::Constante, nombre);
        } else if (ambitos_.back().privado) {
            anotar(Clase::MiembroPrivado, nombre);
        }
    }

    void anotar(Clase clase, const Pieza& nombre) {
        halladas_.push_back({clase, nombre.texto, alrededor(), nombre.linea});
    }

    /// The innermost type around this place.
    [[nodiscard]] std::string alrededor() const {
        const auto tipo = std::ranges::find_if(ambitos_.rbegin(), ambitos_.rend(),
                                               [](const Ambito& ambito) { return !ambito.nombre.empty(); });
        return tipo == ambitos_.rend() ? std::string{} : tipo->nombre;
    }

    std::vector<Pieza> piezas_;
    std::size_t lugar_ = 0;
    std::vector<Ambito> ambitos_{Ambito{}};
    Sentencia sentencia_;
    std::vector<Declaracion> halladas_;
};

} // namespace

std::vector<Declaracion> Declaraciones(std::string_view texto) {
    return Lector{texto}.leer();
}

} // namespace varo::arquitectura
