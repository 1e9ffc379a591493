#include "lote/trabajo/Salidas.h"

#include <map>
#include <system_error>

namespace varo {

namespace {

namespace fs = std::filesystem;

struct Salida {
    Lugar lugar;
    fs::path ruta;
};

std::vector<Salida> SalidasDe(const Trabajo& trabajo) {
    std::vector<Salida> salidas;
    const auto anadir = [&](const char* clave, const std::optional<SalidaPedida>& pedida) {
        if (pedida) {
            salidas.push_back({{clave, pedida->linea}, pedida->ruta});
        }
    };
    anadir("salida.resultados", trabajo.resultados);
    anadir("salida.datos", trabajo.datos);
    for (const auto& mapa : trabajo.mapas) {
        anadir("salida.mapa", mapa);
    }
    return salidas;
}

/// One path for all the names of a file: absolute, links followed as far as they exist.
fs::path Rastro(const fs::path& ruta) {
    std::error_code error;
    const fs::path absoluta = fs::absolute(ruta, error);
    const fs::path canonica = fs::weakly_canonical(absoluta, error);
    return error ? absoluta.lexically_normal() : canonica;
}

} // namespace

void RechazarSalidasEnConflicto(const std::vector<Trabajo>& trabajos) {
    std::map<fs::path, fs::path> entradas;
    for (const auto& trabajo : trabajos) {
        entradas.emplace(Rastro(trabajo.archivo), trabajo.archivo);
        entradas.emplace(Rastro(trabajo.ruta), trabajo.ruta);
    }
    std::map<fs::path, fs::path> escritas; // and the job that writes each
    for (const auto& trabajo : trabajos) {
        for (const auto& [lugar, ruta] : SalidasDe(trabajo)) {
            const fs::path rastro = Rastro(ruta);
            if (const auto entrada = entradas.find(rastro); entrada != entradas.end()) {
                throw ErrorTrabajo{trabajo.ruta, lugar,
                                   "escribiría sobre «" + entrada->second.string() + "», que es una entrada"};
            }
            if (const auto [otra, nueva] = escritas.emplace(rastro, trabajo.ruta); !nueva) {
                throw ErrorTrabajo{trabajo.ruta, lugar,
                                   "«" + ruta.string() + "» es también una salida de " +
                                       otra->second.string()};
            }
        }
    }
}

} // namespace varo
