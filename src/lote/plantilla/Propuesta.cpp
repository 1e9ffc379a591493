#include "lote/plantilla/Propuesta.h"

#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <set>
#include <string_view>
#include <vector>

namespace varo {

namespace {

using Cabeceras = std::vector<std::string_view>;

/// The letters and digits of a header, in lower case and without accents, up to a bracket: "Diámetro (cm)" is
/// "diametro".
std::string Esqueleto(std::string_view cabecera) {
    static constexpr std::array<std::pair<std::string_view, char>, 7> sinAcento{
        {{"á", 'a'}, {"é", 'e'}, {"í", 'i'}, {"ó", 'o'}, {"ú", 'u'}, {"ü", 'u'}, {"ñ", 'n'}}};
    std::string minusculas = Minusculas(cabecera.substr(0, cabecera.find('(')));
    for (const auto& [letra, llana] : sinAcento) {
        minusculas = Reemplazar(minusculas, letra, std::string_view{&llana, 1});
    }
    std::erase_if(minusculas, [](char c) { return !((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')); });
    return minusculas;
}

class Adivino {
public:
    explicit Adivino(const Tabla& tabla) {
        for (const auto& campo : tabla.Fields) {
            campos_.push_back(campo.Name);
        }
        if (!campos_.empty()) {
            campos_.pop_back();
        }
    }

    Propuesta adivinar() {
        buscar("X", {"x", "coordx", "xcoord", "coordenadax", "utmx", "posx"});
        buscar("Y", {"y", "coordy", "ycoord", "coordenaday", "utmy", "posy"});
        buscarCopa();
        buscarTallo();
        buscar("Codigo", {"codigo", "cod", "especie", "esp", "sp", "codigoespecie", "codigodeespecie",
                          "especieforestal"});
        buscar("Indice", {"arbol", "narbol", "numarbol", "numeroarbol", "numerodearbol", "indice", "id",
                          "pie", "npie", "numero", "num", "no", "n"});
        return std::move(propuesta_);
    }

private:
    bool buscar(const char* papel, const Cabeceras& usuales) {
        for (const auto usual : usuales) {
            for (const auto& campo : campos_) {
                if (Esqueleto(campo) == usual && usados_.insert(campo).second) {
                    propuesta_.papeles.emplace(papel, campo);
                    return true;
                }
            }
        }
        return false;
    }

    [[nodiscard]] bool hay(const Cabeceras& usuales) const {
        return std::any_of(campos_.begin(), campos_.end(), [&](const std::string& campo) {
            return std::find(usuales.begin(), usuales.end(), Esqueleto(campo)) != usuales.end();
        });
    }

    void buscarCopa() {
        const Cabeceras ns{"ns", "dns", "diametrons", "diamns", "nortesur", "diametronortesur", "copans"};
        const Cabeceras eo{"eo", "deo", "diametroeo", "diameo", "esteoeste", "diametroesteoeste", "copaeo"};
        const Cabeceras medio{"radio", "rm", "rmedio", "radiomedio", "rcopa", "radiocopa", "radiodecopa"};
        if (hay(ns) && hay(eo)) {
            propuesta_.copa = DatosDeCopa::DosDiametros;
            buscar("NS", ns);
            buscar("EO", eo);
        } else if (hay(medio)) {
            propuesta_.copa = DatosDeCopa::RadioMedio;
            buscar("Radio", medio);
        } else {
            buscar("N", {"rn", "radion", "rnorte", "radionorte", "copan", "norte"});
            buscar("E", {"re", "radioe", "reste", "radioeste", "copae", "este"});
            buscar("S", {"rs", "radios", "rsur", "radiosur", "copas", "sur"});
            buscar("O", {"ro", "rw", "radioo", "radiow", "roeste", "radiooeste", "copao", "oeste"});
        }
    }

    void buscarTallo() {
        propuesta_.esCircunferencia =
            buscar("DAP", {"cap", "circunferencia", "circ", "perimetro", "capmedida"}) ||
            !buscar("DAP", {"dap", "dbh", "diametro", "diam", "dn", "dnormal", "diametronormal", "d"});
    }

    std::vector<std::string> campos_;
    std::set<std::string> usados_;
    Propuesta propuesta_;
};

} // namespace

Propuesta ProponerPapeles(const Tabla& tabla) {
    return Adivino{tabla}.adivinar();
}

} // namespace varo
