#include "lote/revision/InformeDeRevision.h"

#include "basico/Texto.h"
#include "revision/CuentaDeHallazgos.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <map>
#include <tuple>
#include <utility>

namespace varo {

namespace {

constexpr std::size_t columnas = 5;
using CeldasDeAviso = std::array<std::string, columnas>;

const CeldasDeAviso cabecera{"GRAVEDAD", "FILA", "ÁRBOL", "COLUMNA", "TEXTO"};

std::string NumeroDeFila(const Hallazgo& hallazgo) {
    return hallazgo.fila > 0 ? std::to_string(hallazgo.fila) : std::string{};
}

CeldasDeAviso CeldasDe(const Hallazgo& hallazgo) {
    CeldasDeAviso celdas{PalabraDe(hallazgo.gravedad), NumeroDeFila(hallazgo), hallazgo.arbol,
                         hallazgo.columna, hallazgo.texto};
    for (std::string& celda : celdas) {
        celda = Acortado(EnUnaLinea(celda));
    }
    return celdas;
}

/// The cells one below the other, without blanks at the end.
std::string EnColumnas(const CeldasDeAviso& celdas, const std::array<std::size_t, columnas>& anchos) {
    std::string linea;
    for (std::size_t c = 0; c < columnas; ++c) {
        linea += celdas[c] + std::string(anchos[c] - Longitud(celdas[c]) + 2, ' ');
    }
    linea.erase(linea.find_last_not_of(' ') + 1);
    return linea + "\n";
}

/// "fila 12, árbol 7, columna CAP: «doce»"; empty for a finding about the whole plot.
std::string LugarDe(const Hallazgo& hallazgo) {
    std::string lugar;
    const auto anadir = [&](const char* nombre, const std::string& valor) {
        if (!valor.empty()) {
            lugar += (lugar.empty() ? "" : ", ") + (nombre + valor);
        }
    };
    anadir("fila ", NumeroDeFila(hallazgo));
    anadir("árbol ", hallazgo.arbol);
    anadir(hallazgo.numeroDeColumna > 0 ? "columna " : "opción ", hallazgo.columna);
    if (!hallazgo.texto.empty()) {
        anadir("", CitaLarga(hallazgo.texto));
    }
    return lugar;
}

/// The findings that say the same of several places, together where the first of them stands.
std::vector<std::vector<std::size_t>> PorFrases(std::span<const Hallazgo> hallazgos) {
    std::vector<std::vector<std::size_t>> grupos;
    std::map<std::tuple<Gravedad, std::string, std::string, std::string>, std::size_t> cuales;
    for (std::size_t h = 0; h < hallazgos.size(); ++h) {
        const Hallazgo& uno = hallazgos[h];
        const auto [grupo, esNuevo] =
            cuales.try_emplace({uno.gravedad, uno.que, uno.efecto, uno.remedio}, grupos.size());
        if (esNuevo) {
            grupos.emplace_back();
        }
        grupos[grupo->second].push_back(h);
    }
    return grupos;
}

bool EsGrave(const Hallazgo& hallazgo) {
    return hallazgo.gravedad != Gravedad::Mirar;
}

const char* const leyenda =
    "fallo: el cálculo acaba, o puede acabar, en un fallo y sin resultados; cifras: acaba bien y da cifras\n"
    "equivocadas; mirar: puede estar bien, y conviene mirarlo.\n";

} // namespace

std::string TablaDeHallazgos(const std::filesystem::path& trabajo, std::span<const Hallazgo> hallazgos) {
    std::string tabla = LineaDeAviso(trabajo, {}, CuentaDeHallazgos(hallazgos)) + "\n";
    if (hallazgos.empty()) {
        return tabla;
    }
    std::vector<CeldasDeAviso> lineas{cabecera};
    std::ranges::transform(hallazgos, std::back_inserter(lineas), CeldasDe);
    std::array<std::size_t, columnas> anchos{};
    for (const CeldasDeAviso& celdas : lineas) {
        for (std::size_t c = 0; c < columnas; ++c) {
            anchos[c] = std::max(anchos[c], Longitud(celdas[c]));
        }
    }
    tabla += std::string{"\n"} + leyenda + "\n" + EnColumnas(lineas.front(), anchos);
    for (const auto& grupo : PorFrases(hallazgos)) {
        for (const std::size_t h : grupo) {
            tabla += EnColumnas(lineas[h + 1], anchos);
        }
        const Hallazgo& uno = hallazgos[grupo.front()];
        for (const auto& frase : {uno.que, uno.efecto, uno.remedio}) {
            tabla += frase.empty() ? "" : "    " + EnUnaLinea(frase) + "\n";
        }
    }
    return tabla;
}

std::string CabeceraDeHallazgos() {
    return "trabajo\tgravedad\tfila\tárbol\tcolumna\ttexto\tqué pasa\tqué efecto tiene\tqué hacer\n";
}

std::string LineasDeHallazgos(const std::filesystem::path& trabajo, std::span<const Hallazgo> hallazgos) {
    std::string lineas;
    for (const Hallazgo& hallazgo : hallazgos) {
        lineas += EnUnaLinea(trabajo.string());
        for (const std::string& campo :
             {std::string{PalabraDe(hallazgo.gravedad)}, NumeroDeFila(hallazgo), hallazgo.arbol,
              hallazgo.columna, hallazgo.texto, hallazgo.que, hallazgo.efecto, hallazgo.remedio}) {
            lineas += "\t" + EnUnaLinea(campo);
        }
        lineas += "\n";
    }
    return lineas;
}

std::vector<std::string> AvisosDeHallazgos(const std::filesystem::path& trabajo,
                                           std::span<const Hallazgo> hallazgos) {
    constexpr std::size_t bastantes = 5;
    if (hallazgos.empty()) {
        return {};
    }
    std::vector<std::string> avisos{LineaDeAviso(
        trabajo, {}, CuentaDeHallazgos(hallazgos) + "; los explica varo-lote --revisar " + trabajo.string())};
    for (const Hallazgo& hallazgo : hallazgos) {
        if (avisos.size() <= bastantes && EsGrave(hallazgo)) {
            avisos.push_back(
                LineaDeAviso(trabajo, {LugarDe(hallazgo)}, hallazgo.que + " " + hallazgo.efecto));
        }
    }
    return avisos;
}

Estado EstadoDeRevision(std::span<const Hallazgo> hallazgos) {
    const auto tiene = [&](Gravedad gravedad) {
        return std::ranges::find(hallazgos, gravedad, &Hallazgo::gravedad) != hallazgos.end();
    };
    if (tiene(Gravedad::Fallo)) {
        return Estado::FalloDeCalculo;
    }
    return tiene(Gravedad::Numeros) ? Estado::CifrasEquivocadas : Estado::Hecho;
}

} // namespace varo
