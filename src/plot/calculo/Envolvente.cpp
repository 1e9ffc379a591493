#include "plot/calculo/Envolvente.h"

#include "basico/EnLugar.h"
#include "basico/Entero16.h"
#include "basico/ErrorEjecucion.h"
#include "plot/calculo/Module1.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstddef>

namespace varo {

namespace {

/// Direction from the current tree to itself: larger than every other one.
constexpr double direccionDelActual = 999.0;

struct Posiciones {
    std::span<const double> x;
    std::span<const double> y;
    [[nodiscard]] double dx(std::size_t desde, std::size_t hasta) const { return x[hasta] - x[desde]; }
    [[nodiscard]] double dy(std::size_t desde, std::size_t hasta) const { return y[hasta] - y[desde]; }
};

/// Direction of a step that is not null, in degrees clockwise from the +y axis.
double Direccion(double dx, double dy) {
    if (dy == 0) {
        return dx > 0 ? 90.0 : 270.0;
    }
    if (dx == 0) {
        return dy > 0 ? 0.0 : 180.0;
    }
    const double t = gradosPorRadian * std::atan(dx / dy);
    if (dy < 0) {
        return t + 180.0;
    }
    return dx < 0 ? t + 360.0 : t;
}

/// Adds half a turn. On the way back directions are measured from the -y axis, so that the smallest one is
/// again the next one clockwise. A second half turn undoes the first.
double Girar(double t) {
    return t < 180.0 ? t + 180.0 : t - 180.0;
}

/// The way back begins with an edge to the left, or with one straight down: a vertical right side.
bool DeVuelta(double dx, double dy) {
    return dx < 0 || (dx == 0 && dy < 0);
}

void ApuntarDirecciones(const Posiciones& arboles, std::size_t actual, bool deVuelta,
                        std::vector<double>& AnguloCandidato) {
    for (std::size_t s = 0; s < AnguloCandidato.size(); ++s) {
        if (s == actual) {
            AnguloCandidato[s] = direccionDelActual;
            continue;
        }
        const double dx = arboles.dx(actual, s);
        const double dy = arboles.dy(actual, s);
        if (dx == 0 && dy == 0) {
            continue; // Meant: a second tree in this place keeps a stale direction.
        }
        const double t = Direccion(dx, dy);
        AnguloCandidato[s] = deVuelta ? Girar(t) : t;
    }
}

/// The lowest tree wins a tie.
std::size_t PrimeroMenor(const std::vector<double>& AnguloCandidato) {
    return static_cast<std::size_t>(std::ranges::min_element(AnguloCandidato) - AnguloCandidato.begin());
}

/// The direction of the chosen edge, measured from the +y axis again.
double DireccionDelLado(double candidato, bool deVuelta) {
    if (!deVuelta) {
        return candidato;
    }
    // Straight up on the way back closes the polygon: 360, not 0.
    const double t = Girar(candidato);
    return t == 0 ? 360.0 : t;
}

} // namespace

Envolvente EnvolverArboles(std::span<const double> x, std::span<const double> y) {
    assert(x.size() == y.size());
    if (x.empty()) {
        throw ErrorEjecucion{fallo::fueraDeIndice}.porque("la parcela no tiene ningún árbol");
    }
    const Posiciones arboles{x, y};
    std::vector<double> AnguloCandidato(x.size(), 0.0);
    Envolvente envolvente;
    envolvente.arboles.push_back(0);
    Entero16 NumPuntosPoligono = 1;
    std::size_t actual = 0;
    bool deVuelta = false;
    do {
        ApuntarDirecciones(arboles, actual, deVuelta, AnguloCandidato);
        const std::size_t elegido = PrimeroMenor(AnguloCandidato);
        envolvente.AnguloLado.push_back(DireccionDelLado(AnguloCandidato[elegido], deVuelta));
        envolvente.arboles.push_back(static_cast<int>(elegido));
        // It overflows, and so ends a walk that trees in one place lead round for ever.
        Porque(
            fallo::desbordamiento,
            [] { return "el contorno no se cierra: revise si hay dos árboles en el mismo sitio"; },
            [&] { ++NumPuntosPoligono; });
        deVuelta = DeVuelta(arboles.dx(actual, elegido), arboles.dy(actual, elegido));
        actual = elegido;
    } while (actual != 0);
    envolvente.AnguloInterior = AngulosInteriores(envolvente.AnguloLado);
    return envolvente;
}

std::vector<double> AngulosInteriores(std::span<const double> AnguloLado) {
    assert(!AnguloLado.empty());
    std::vector<double> interiores(AnguloLado.size());
    interiores[0] = (AnguloLado.back() - AnguloLado[0]) - 180.0;
    for (std::size_t i = 1; i < AnguloLado.size(); ++i) {
        interiores[i] = 180.0 - (AnguloLado[i] - AnguloLado[i - 1]);
    }
    return interiores;
}

} // namespace varo
