#include "arquitectura/Reglas.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <map>
#include <set>
#include <string_view>

namespace varo::arquitectura {

namespace {

using Salas = std::set<std::string_view>;

const Salas cimientos{"basico", "formularios", "motor", "lienzo"};
const Salas programa{"shell", "data", "options", "map", "plot", "indices", "revision", "avisos"};
const Salas conPlataforma{"desktop", "lote", "sistema", "pintura", "libros"};

/// What computes: plain values in, plain values out.
constexpr std::array<std::string_view, 5> calculo{"plot/calculo/", "indices/independientes/",
                                                  "indices/vecinos/", "indices/apa/", "revision/"};
const Salas ventanas{"formularios", "options", "data", "map"};

bool Conocida(const std::string& sala) {
    return cimientos.contains(sala) || programa.contains(sala) || conPlataforma.contains(sala);
}

bool PuedeConocer(const std::string& quien, const std::string& aQuien) {
    if (quien == aQuien) {
        return true;
    }
    if (quien == "sistema") {
        return aQuien == "basico" || aQuien == "formularios";
    }
    if (quien == "pintura") {
        return aQuien == "basico" || aQuien == "lienzo";
    }
    if (quien == "libros") {
        return aQuien == "basico" || aQuien == "motor";
    }
    if (aQuien == "libros") {
        return false;
    }
    if (conPlataforma.contains(aQuien)) {
        return (aQuien == "sistema" || aQuien == "pintura") && conPlataforma.contains(quien);
    }
    if (conPlataforma.contains(quien)) {
        return true;
    }
    if (quien == "formularios") {
        return aQuien == "basico" || aQuien == "lienzo";
    }
    return programa.contains(quien) || aQuien == "basico";
}

/// What reads workbooks with libraries of others is known to the programs alone, which register it.
bool RegistraLibros(const std::string& ruta, const std::string& incluido) {
    return (ruta == "desktop/main.cpp" || ruta == "lote/main.cpp") && Sala(incluido) == "libros";
}

/// C++ headers have neither dot nor slash nor capital in their name; those of C, POSIX, Qt and others do.
bool EsCabeceraDeCpp(std::string_view cabecera) {
    return std::ranges::all_of(
        cabecera, [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_'; });
}

const std::set<std::string_view> cabecerasConIdioma{"clocale", "codecvt",  "cstdio", "cwchar", "format",
                                                    "iomanip", "iostream", "locale", "regex",  "sstream"};

bool Calcula(const Fuente& fuente) {
    return std::ranges::any_of(calculo,
                               [&](std::string_view carpeta) { return fuente.ruta.starts_with(carpeta); });
}

std::string Dicho(const std::string& quien, const std::string& que, const std::string& aQuien) {
    return quien + ' ' + que + ' ' + aQuien;
}

using Indice = std::map<std::string, const Fuente*, std::less<>>;

Indice PorRuta(const std::vector<Fuente>& fuentes) {
    Indice indice;
    for (const auto& fuente : fuentes) {
        indice.emplace(fuente.ruta, &fuente);
    }
    return indice;
}

/// The files that a file includes, itself and those included by them too.
std::set<std::string> Alcance(const Fuente& fuente, const Indice& indice) {
    std::set<std::string> alcance;
    std::vector<std::string> pendientes{fuente.ruta};
    while (!pendientes.empty()) {
        const auto ruta = pendientes.back();
        pendientes.pop_back();
        const auto donde = indice.find(ruta);
        if (alcance.insert(ruta).second && donde != indice.end()) {
            std::ranges::copy(IncludesPropios(donde->second->texto), std::back_inserter(pendientes));
        }
    }
    return alcance;
}

} // namespace

Infracciones IncludesQueNoExisten(const std::vector<Fuente>& fuentes) {
    const auto indice = PorRuta(fuentes);
    Infracciones halladas;
    for (const auto& [ruta, texto] : fuentes) {
        if (!Conocida(Sala(ruta))) {
            halladas.push_back(ruta + " no está en ninguna carpeta conocida");
        }
        for (const auto& incluido : IncludesPropios(texto)) {
            if (!indice.contains(incluido)) {
                halladas.push_back(Dicho(ruta, "incluye una cabecera que no existe bajo src/:", incluido));
            }
        }
    }
    return halladas;
}

Infracciones FlechasProhibidas(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& [ruta, texto] : fuentes) {
        for (const auto& incluido : IncludesPropios(texto)) {
            if (!PuedeConocer(Sala(ruta), Sala(incluido)) && !RegistraLibros(ruta, incluido)) {
                halladas.push_back(Dicho(ruta, "no puede conocer", incluido));
            }
        }
    }
    return halladas;
}

Infracciones CabecerasAjenas(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& [ruta, texto] : fuentes) {
        if (conPlataforma.contains(Sala(ruta))) {
            continue;
        }
        for (const auto& cabecera : IncludesDeSistema(texto)) {
            if (!EsCabeceraDeCpp(cabecera) || cabecerasConIdioma.contains(cabecera)) {
                halladas.push_back(Dicho(ruta, "no puede incluir", cabecera));
            }
        }
    }
    return halladas;
}

Infracciones CalculoQueConoceVentanas(const std::vector<Fuente>& fuentes) {
    const auto indice = PorRuta(fuentes);
    Infracciones halladas;
    for (const auto& fuente : fuentes) {
        if (!Calcula(fuente)) {
            continue;
        }
        const auto alcance = Alcance(fuente, indice);
        const auto ventana = std::ranges::find_if(
            alcance, [](const std::string& alcanzado) { return ventanas.contains(Sala(alcanzado)); });
        if (ventana != alcance.end()) {
            halladas.push_back(Dicho(fuente.ruta, "calcula y llega a", *ventana));
        }
    }
    return halladas;
}

Infracciones LetrasFueraDeSitio(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& [ruta, texto] : fuentes) {
        if (!EsUtf8Compuesto(texto)) {
            halladas.push_back(ruta + " no es UTF-8 con las letras compuestas");
        }
        if (!std::ranges::all_of(ruta, [](char c) { return c > ' ' && c <= '~'; })) {
            halladas.push_back(ruta + " lleva en su nombre letras que no son ASCII");
        }
    }
    return halladas;
}

Infracciones FuentesDemasiadoLargas(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& [ruta, texto] : fuentes) {
        const auto lineas = std::ranges::count(texto, '\n');
        if (lineas > 600) {
            halladas.push_back(ruta + " tiene " + std::to_string(lineas) + " líneas");
        }
    }
    return halladas;
}

} // namespace varo::arquitectura
