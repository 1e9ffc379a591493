#include "arquitectura/ReglasDePalabras.h"

#include "arquitectura/Piezas.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

namespace varo::arquitectura {

namespace {

std::string Minusculas(std::string texto) {
    std::ranges::transform(texto, texto.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return texto;
}

/// The comments of a source that hold `palabra`, in small or capital letters, other than in `permitida`.
Infracciones Comentarios(const Fuente& fuente, std::string_view palabra, std::string_view permitida,
                         const std::string& reparo) {
    Infracciones halladas;
    for (const auto& pieza : Trocear(fuente.texto)) {
        if (pieza.clase != Pieza::Clase::Comentario) {
            continue;
        }
        const auto minusculas = Minusculas(pieza.texto);
        for (auto i = minusculas.find(palabra); i != std::string::npos; i = minusculas.find(palabra, i + 1)) {
            if (permitida.empty() || !std::string_view{pieza.texto}.substr(i).starts_with(permitida)) {
                const auto linea =
                    pieza.linea +
                    std::count(minusculas.begin(), minusculas.begin() + static_cast<std::ptrdiff_t>(i), '\n');
                halladas.push_back(fuente.ruta + ":" + std::to_string(linea) + " " + reparo);
            }
        }
    }
    return halladas;
}

} // namespace

Infracciones EtiquetasMalEscritas(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& fuente : fuentes) {
        std::ranges::copy(Comentarios(fuente, "meant", "Meant:", "lo dice de otro modo que «Meant:»"),
                          std::back_inserter(halladas));
    }
    return halladas;
}

Infracciones ComentariosSinElNombreDeQt(const std::vector<Fuente>& fuentes) {
    Infracciones halladas;
    for (const auto& fuente : fuentes) {
        if (Sala(fuente.ruta) == "desktop") {
            std::ranges::copy(Comentarios(fuente, "toolkit", "", "llama «toolkit» a Qt"),
                              std::back_inserter(halladas));
        }
    }
    return halladas;
}

} // namespace varo::arquitectura
