#include "revision/RevisarSitios.h"

#include "revision/Barrido.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varo {

namespace {

/// Two coordinates of a tree, seen along one axis or the other.
struct Eje {
    const ColumnaRevisada& propia; ///< the one that must differ
    const ColumnaRevisada& otra;
    const char* nombre;
    Sospecha igual;
    Sospecha casi;
};

/// Whether a direction is so near to an axis that the rounding of its sine faults. `propia` is the difference
/// across the axis, `larga` the one along it (m).
bool CasiEnElEje(double propia, double larga) {
    constexpr double seno = 1E-7; // at 1 m; some ten times the root of the unit roundoff
    if (larga == 0) {
        return false;
    }
    return propia < seno * larga * std::sqrt(std::max(larga, 1 / larga));
}

class RevisorDeAlineados {
public:
    RevisorDeAlineados(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {
        for (const std::size_t i : lectura.situados()) {
            if (lectura.conTamano(i)) {
                arboles_.push_back(i);
            }
        }
    }

    void revisar() {
        revisarEje({lectura_.x(), lectura_.y(), "X", Sospecha::MismaX, Sospecha::CasiMismaX});
        revisarEje({lectura_.y(), lectura_.x(), "Y", Sospecha::MismaY, Sospecha::CasiMismaY});
        revisarLineas();
        revisarPocosVecinos();
        revisarPesos();
    }

private:
    void revisarEje(const Eje& eje) {
        auto orden = arboles_;
        std::ranges::stable_sort(orden, {}, [&](std::size_t i) { return eje.propia.numero(i); });
        for (std::size_t lugar = 0; lugar < orden.size();) {
            std::size_t fin = lugar + 1;
            while (fin < orden.size() && eje.propia.numero(orden[fin]) == eje.propia.numero(orden[lugar])) {
                ++fin;
            }
            anotarIguales(eje, {orden.begin() + static_cast<std::ptrdiff_t>(lugar),
                                orden.begin() + static_cast<std::ptrdiff_t>(fin)});
            lugar = fin;
        }
        for (std::size_t lugar = 0; lugar < orden.size(); ++lugar) {
            revisarCasiIguales(eje, orden, lugar);
        }
    }

    /// The trees of one coordinate. Two vertices of the boundary have no cell, and do not look at each other.
    void anotarIguales(const Eje& eje, const std::vector<std::size_t>& grupo) {
        const bool algunoConCelda =
            std::ranges::any_of(grupo, [&](std::size_t i) { return !lectura_.esVertice(i); });
        if (grupo.size() < 2 || !algunoConCelda) {
            return;
        }
        const std::size_t primero = grupo.front();
        cuaderno_.anotarFila(Gravedad::Fallo, eje.igual, 0, fila(primero), [&] {
            Hallazgo hallazgo = lectura_.enCelda(Gravedad::Fallo, eje.igual, primero, eje.propia);
            hallazgo.que = "El árbol tiene la misma " + std::string{eje.nombre} + " que " +
                           nombrarALosDemas(grupo) + ".";
            explicar(hallazgo);
            return hallazgo;
        });
    }

    [[nodiscard]] std::string nombrarALosDemas(const std::vector<std::size_t>& grupo) const {
        constexpr std::size_t bastantes = 12;
        std::string nombres;
        for (std::size_t n = 1; n < grupo.size() && n <= bastantes; ++n) {
            const bool esElUltimo = n + 1 == grupo.size();
            nombres += (n == 1 ? "" : esElUltimo ? " y " : ", ") + lectura_.nombrar(grupo[n]);
        }
        return grupo.size() - 1 > bastantes
                   ? nombres + " y otros " + std::to_string(grupo.size() - 1 - bastantes)
                   : nombres;
    }

    void revisarCasiIguales(const Eje& eje, const std::vector<std::size_t>& orden, std::size_t lugar) {
        constexpr std::size_t siguientes = 64;
        const std::size_t uno = orden[lugar];
        for (std::size_t n = lugar + 1; n < orden.size() && n <= lugar + siguientes; ++n) {
            const std::size_t otro = orden[n];
            const double propia = eje.propia.numero(otro) - eje.propia.numero(uno);
            const double larga = std::abs(eje.otra.numero(otro) - eje.otra.numero(uno));
            if (propia > extension(eje) * 1E-3) {
                break;
            }
            if (propia > 0 && CasiEnElEje(propia, larga) &&
                !(lectura_.esVertice(uno) && lectura_.esVertice(otro))) {
                anotarCasi(eje, std::min(uno, otro), std::max(uno, otro));
            }
        }
    }

    [[nodiscard]] double extension(const Eje& eje) {
        double& suya = &eje.otra == &lectura_.y() ? altura_ : anchura_;
        if (suya < 0) {
            const auto [menor, mayor] =
                std::ranges::minmax(arboles_, {}, [&](std::size_t i) { return eje.otra.numero(i); });
            suya = eje.otra.numero(mayor) - eje.otra.numero(menor);
        }
        return suya;
    }

    void anotarCasi(const Eje& eje, std::size_t uno, std::size_t otro) {
        cuaderno_.anotarFila(Gravedad::Fallo, eje.casi, 0, fila(uno), [&] {
            Hallazgo hallazgo = lectura_.enCelda(Gravedad::Fallo, eje.casi, uno, eje.propia);
            hallazgo.que = "El árbol tiene casi la misma " + std::string{eje.nombre} + " que " +
                           lectura_.nombrar(otro) +
                           ": se diferencian demasiado poco para lo lejos que están.";
            explicar(hallazgo);
            return hallazgo;
        });
    }

    static void explicar(Hallazgo& hallazgo) {
        hallazgo.efecto =
            "APA divide por la diferencia de las dos coordenadas, y el cálculo puede terminar en un fallo.";
        hallazgo.remedio = "Cambie la coordenada de uno de los árboles en un milímetro, o desactive APA.";
    }

    /// Each tree with a cell looks for two others in line with it.
    void revisarLineas() {
        constexpr std::size_t demasiados = 1500;
        if (arboles_.size() < 3 || arboles_.size() > demasiados) {
            return;
        }
        std::vector<std::pair<double, std::size_t>> pendientes;
        for (const std::size_t sujeto : arboles_) {
            if (lectura_.esVertice(sujeto)) {
                continue;
            }
            pendientes.clear();
            for (const std::size_t otro : arboles_) {
                const double dx = lectura_.x().numero(otro) - lectura_.x().numero(sujeto);
                const double dy = lectura_.y().numero(otro) - lectura_.y().numero(sujeto);
                if (dx != 0 && dy != 0) {
                    pendientes.emplace_back(dy / dx, otro);
                }
            }
            std::ranges::sort(pendientes);
            if (const auto pareja = dosIguales(sujeto, pendientes)) {
                anotarLinea(sujeto, *pareja);
            }
        }
    }

    using ParejaEnLinea = std::pair<std::size_t, std::size_t>;

    [[nodiscard]] std::optional<ParejaEnLinea>
    dosIguales(std::size_t sujeto, const std::vector<std::pair<double, std::size_t>>& pendientes) const {
        for (std::size_t n = 1; n < pendientes.size(); ++n) {
            const auto& [una, arbol] = pendientes[n - 1];
            const auto& [otra, siguiente] = pendientes[n];
            if (std::abs(otra - una) <=
                std::abs(una) * (redondeo(sujeto, arbol) + redondeo(sujeto, siguiente))) {
                return ParejaEnLinea{arbol, siguiente};
            }
        }
        return std::nullopt;
    }

    /// How much of a slope the rounding of the coordinates may move, as a part of it.
    [[nodiscard]] double redondeo(std::size_t uno, std::size_t otro) const {
        constexpr double unidad = 4 * std::numeric_limits<double>::epsilon();
        const auto parte = [&](const ColumnaRevisada& columna) {
            const double a = columna.numero(uno);
            const double b = columna.numero(otro);
            return 1 + (std::abs(a) + std::abs(b)) / std::abs(a - b);
        };
        return unidad * (parte(lectura_.x()) + parte(lectura_.y()));
    }

    void anotarLinea(std::size_t sujeto, const ParejaEnLinea& pareja) {
        cuaderno_.anotarFila(Gravedad::Fallo, Sospecha::EnLinea, 0, fila(sujeto), [&] {
            Hallazgo hallazgo = lectura_.enFila(Gravedad::Fallo, Sospecha::EnLinea, sujeto);
            hallazgo.que = "El árbol está en línea con " + lectura_.nombrar(pareja.first) + " y " +
                           lectura_.nombrar(pareja.second) + ".";
            hallazgo.efecto =
                "Si los dos son vecinos suyos, APA no halla el círculo que pasa por los tres, y el "
                "cálculo puede terminar en un fallo.";
            hallazgo.remedio = "Cambie una coordenada de uno de los tres en un milímetro, o desactive APA.";
            return hallazgo;
        });
    }

    /// A cell needs two neighbours for two sides that meet.
    void revisarPocosVecinos() {
        const auto& tamano = lectura_.tamano();
        if (arboles_.size() > 2 || !lectura_.hayInteriores()) {
            return;
        }
        Hallazgo hallazgo = EnColumna(Gravedad::Fallo, Sospecha::PocosVecinos, tamano.columna());
        hallazgo.que =
            arboles_.size() == 1 ? "Solo un árbol tiene tamaño." : "Solo dos árboles tienen tamaño.";
        hallazgo.efecto = "APA necesita al menos dos vecinos con tamaño, y el cálculo termina en un fallo.";
        hallazgo.remedio = "Compruebe que es la columna que quería elegir, o desactive APA.";
        cuaderno_.anotar(hallazgo);
    }

    /// Beside a tree that is immense for it, the weight of a tree is lost in rounding.
    void revisarPesos() {
        constexpr double cifras = 14;
        const auto k = LeerBarrido(lectura_.opciones().APA.k);
        std::vector<std::size_t> conPeso;
        std::ranges::copy_if(arboles_, std::back_inserter(conPeso),
                             [&](std::size_t i) { return lectura_.diametro(i) > 0; });
        if (!k || k->valores == 0 || conPeso.empty()) {
            return;
        }
        const double mayorK = std::max(std::abs(k->desde), std::abs(k->valor(k->valores - 1)));
        const auto [menor, mayor] =
            std::ranges::minmax(conPeso, {}, [&](std::size_t i) { return lectura_.diametro(i); });
        if (mayorK * std::log10(lectura_.diametro(mayor) / lectura_.diametro(menor)) < cifras) {
            return;
        }
        Hallazgo hallazgo =
            lectura_.enCelda(Gravedad::Fallo, Sospecha::TamanosDesproporcionados, mayor, lectura_.tamano());
        hallazgo.que = "El tamaño del árbol es inmenso junto al d" + lectura_.nombrar(menor) + ".";
        hallazgo.efecto =
            "Con el mayor exponente k de APA el menor no pesa nada, y el cálculo puede terminar en un "
            "fallo.";
        hallazgo.remedio = "Compruebe la coma de los dos números.";
        cuaderno_.anotar(hallazgo);
    }

    [[nodiscard]] int fila(std::size_t i) const { return lectura_.parcela().filas[i].numero; }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    std::vector<std::size_t> arboles_;
    double anchura_ = -1, altura_ = -1;
};

} // namespace

void RevisarAlineados(const Lectura& lectura, Cuaderno& cuaderno) {
    if (lectura.opciones().APA.activa) {
        RevisorDeAlineados{lectura, cuaderno}.revisar();
    }
}

} // namespace varo
