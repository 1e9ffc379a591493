#include "revision/RevisarMedidas.h"

#include "basico/Saltando.h"
#include "plot/calculo/AreaInterseccionCirculos.h"
#include "revision/Contorno.h"
#include "revision/Funcion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace varo {

namespace {

struct CirculoPorRevisar {
    double x = 0, y = 0, r = 0; ///< m
    std::size_t arbol = 0;
};

/// Visits every two circles that meet or touch, as long as `visita` gives true.
template <class Visita>
void RecorrerCruces(std::vector<CirculoPorRevisar> circulos, const Visita& visita) {
    std::ranges::sort(circulos, {}, [](const CirculoPorRevisar& c) { return c.x - c.r; });
    for (std::size_t i = 0; i < circulos.size(); ++i) {
        const CirculoPorRevisar& uno = circulos[i];
        const double derecha = uno.x + uno.r;
        for (std::size_t j = i + 1; j < circulos.size() && circulos[j].x - circulos[j].r <= derecha; ++j) {
            const CirculoPorRevisar& otro = circulos[j];
            const double alcance = uno.r + otro.r;
            const double dx = otro.x - uno.x;
            const double dy = otro.y - uno.y;
            if (dx * dx + dy * dy > alcance * alcance * (1 + 1E-12)) {
                continue;
            }
            if (!visita(uno, otro, std::sqrt(dx * dx + dy * dy))) {
                return;
            }
        }
    }
}

bool SonIguales(const CirculoPorRevisar& uno, const CirculoPorRevisar& otro, double d) {
    return d == 0 && uno.r == otro.r;
}

/// Whether they touch from the inside or the outside, as far as rounding can tell: the cosine of the angle
/// under which a centre sees the common chord is 1 or -1, and may come out beyond.
bool SonTangentes(const CirculoPorRevisar& uno, const CirculoPorRevisar& otro, double d) {
    constexpr double casiUno = 1 - 4E-15;
    if (d == 0 || std::abs(uno.r - otro.r) > d * (1 + 1E-12)) {
        return false;
    }
    const auto coseno = [d](double r, double ajeno) {
        return std::abs(((r * r + d * d) - ajeno * ajeno) / (2 * r * d));
    };
    return coseno(uno.r, otro.r) > casiUno || coseno(otro.r, uno.r) > casiUno;
}

class RevisorDeSolapes {
public:
    RevisorDeSolapes(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {}

    void revisar() {
        const auto& opciones = lectura_.opciones();
        if (opciones.datosDeParcela) {
            contarCopas();
        }
        if (opciones.ISC.activa && opciones.copasCirculares) {
            // The run keeps mean radii in 32 bits.
            revisarAreas("ISC", circulos([&](std::size_t i) {
                             return static_cast<double>(static_cast<float>(lectura_.radioMedio(i)));
                         }));
        }
        for (const auto& linea : opciones.AOI.activa ? opciones.AOI.funciones : std::vector<std::string>{}) {
            if (const auto funcion = LeerFuncionEscrita(linea)) {
                revisarAreas("AOI", circulos([&](std::size_t i) {
                                 return ValorDeSuma(funcion->suma, lectura_.diametro(i)).value_or(0);
                             }));
            }
        }
    }

private:
    template <class Radio>
    [[nodiscard]] std::vector<CirculoPorRevisar> circulos(const Radio& radio) const {
        std::vector<CirculoPorRevisar> circulos;
        for (const std::size_t i : lectura_.situados()) {
            const double r = lectura_.conTamano(i) ? radio(i) : 0;
            if (r > 0) {
                circulos.push_back({lectura_.x().numero(i), lectura_.y().numero(i), r, i});
            }
        }
        return circulos;
    }

    void contarCopas() {
        constexpr std::size_t masPares = 32'768;
        std::size_t pares = 0;
        RecorrerCruces(circulos([&](std::size_t i) { return lectura_.radioMedio(i); }),
                       [&](const CirculoPorRevisar& uno, const CirculoPorRevisar& otro, double d) {
                           pares += d < uno.r + otro.r ? 1U : 0U;
                           return pares <= masPares;
                       });
        if (pares <= masPares) {
            return;
        }
        Hallazgo hallazgo;
        hallazgo.gravedad = Gravedad::Numeros;
        hallazgo.sospecha = Sospecha::DemasiadosSolapes;
        hallazgo.que = "Más de 32.768 parejas de copas se solapan.";
        hallazgo.efecto = "Los datos de parcela no pueden contar tantas: la superficie de solape no vale.";
        hallazgo.remedio = "Compruebe la unidad de los radios; si son verdad, divida la parcela.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarAreas(const std::string& familia, const std::vector<CirculoPorRevisar>& circulos) {
        std::size_t quedan = 3'000'000;
        RecorrerCruces(circulos, [&](const CirculoPorRevisar& uno, const CirculoPorRevisar& otro, double d) {
            const bool iguales = SonIguales(uno, otro, d);
            if ((iguales || (SonTangentes(uno, otro, d) && fallan(familia, uno, otro))) &&
                (seCalcula(uno) || seCalcula(otro))) {
                anotar(familia, iguales, std::min(uno.arbol, otro.arbol), std::max(uno.arbol, otro.arbol));
            }
            return --quedan > 0;
        });
    }

    /// The run works the crowns out from these very numbers. Those of AOI come from a function, and its last
    /// digit is not known here.
    [[nodiscard]] static bool fallan(const std::string& familia, const CirculoPorRevisar& uno,
                                     const CirculoPorRevisar& otro) {
        const auto falla = [](const CirculoPorRevisar& a, const CirculoPorRevisar& b) {
            return Saltando([&] { AreaInterseccionCirculos(a.x, a.y, b.x, b.y, a.r, b.r); }).has_value();
        };
        return familia != "ISC" || falla(uno, otro) || falla(otro, uno);
    }

    /// A tree on the boundary, or whose circle reaches beyond, has no area worked out.
    [[nodiscard]] bool seCalcula(const CirculoPorRevisar& circulo) const {
        const auto& contorno = lectura_.parcela().contorno;
        return !contorno || (!lectura_.esVertice(circulo.arbol) &&
                             AlturaMinima(*contorno, circulo.x, circulo.y) >= circulo.r);
    }

    void anotar(const std::string& familia, bool iguales, std::size_t uno, std::size_t otro) {
        const Sospecha sospecha = iguales ? Sospecha::CirculosIguales : Sospecha::CirculosTangentes;
        const int fila = lectura_.parcela().filas[uno].numero;
        cuaderno_.anotarFila(Gravedad::Fallo, sospecha, familia == "ISC" ? 1 : 2, fila, [&] {
            const std::string circulo =
                familia == "ISC" ? "La copa del árbol" : "El área de influencia del árbol";
            Hallazgo hallazgo = lectura_.enFila(Gravedad::Fallo, sospecha, uno);
            hallazgo.que = circulo +
                           (iguales ? " es un círculo igual, y en el mismo sitio, que la d"
                                    : " es un círculo que toca en un solo punto la d") +
                           lectura_.nombrar(otro) + ".";
            hallazgo.efecto = "No se puede calcular su parte común, " +
                              std::string{familia == "ISC" ? "e " : "y "} + familia +
                              " puede terminar en un fallo.";
            hallazgo.remedio = "Cambie en un milímetro una coordenada de uno de los dos" +
                               std::string{iguales ? ", o borre uno si son el mismo árbol." : "."};
            return hallazgo;
        });
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
};

} // namespace

void RevisarSolapes(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeSolapes{lectura, cuaderno}.revisar();
}

} // namespace varo
