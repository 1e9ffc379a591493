#include "revision/RevisarSitios.h"

#include "revision/Contorno.h"
#include "revision/Efectos.h"
#include "revision/Funcion.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo {

namespace {

/// The bulk of the trees along one axis, without a twentieth at each end.
struct AnchoDeParcela {
    double desde = 0, hasta = 0;
    [[nodiscard]] double largo() const { return hasta - desde; }
    [[nodiscard]] double fuera(double valor) const { return std::max({desde - valor, valor - hasta, 0.0}); }
};

AnchoDeParcela GruesoDe(std::vector<double> valores) {
    constexpr std::size_t partes = 20;
    std::ranges::sort(valores);
    const std::size_t fuera = std::max<std::size_t>(1, valores.size() / partes);
    return {valores[fuera], valores[valores.size() - 1 - fuera]};
}

class RevisorDeSitios {
public:
    RevisorDeSitios(const Lectura& lectura, Cuaderno& cuaderno)
        : lectura_{lectura}, cuaderno_{cuaderno}, arboles_{lectura.situados()} {}

    void revisar() {
        revisarUnidad();
        revisarLejanos();
        revisarSignos(lectura_.x());
        revisarSignos(lectura_.y());
        revisarMismoSitio();
    }

private:
    [[nodiscard]] double x(std::size_t i) const { return lectura_.x().numero(i); }
    [[nodiscard]] double y(std::size_t i) const { return lectura_.y().numero(i); }

    [[nodiscard]] std::vector<double> valores(const ColumnaRevisada& columna) const {
        std::vector<double> valores;
        valores.reserve(arboles_.size());
        for (const std::size_t i : arboles_) {
            valores.push_back(columna.numero(i));
        }
        return valores;
    }

    void revisarUnidad() {
        constexpr std::size_t pocos = 5;
        constexpr double muyPoco = 0.5; // m
        if (arboles_.size() < pocos) {
            return;
        }
        const auto [menorX, mayorX] = std::ranges::minmax(valores(lectura_.x()));
        const auto [menorY, mayorY] = std::ranges::minmax(valores(lectura_.y()));
        if (mayorX - menorX >= muyPoco || mayorY - menorY >= muyPoco || menorX == mayorX ||
            menorY == mayorY) {
            return;
        }
        Hallazgo hallazgo = EnColumna(Gravedad::Numeros, Sospecha::EnGrados, lectura_.parcela().x);
        hallazgo.que =
            "Las coordenadas parecen grados o kilómetros: leídas como metros, toda la parcela cabe en " +
            NumeroDicho(std::round((mayorX - menorX) * 1E+6) / 1E+6) + " por " +
            NumeroDicho(std::round((mayorY - menorY) * 1E+6) / 1E+6) + " m.";
        hallazgo.efecto = "La superficie, todas las cifras por hectárea y todas las distancias salen mal.";
        hallazgo.remedio = "Ponga en la hoja coordenadas en metros, por ejemplo UTM.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarLejanos() {
        constexpr std::size_t pocos = 8;
        constexpr double muyLejos = 3;
        if (arboles_.size() < pocos) {
            return;
        }
        const AnchoDeParcela enX = GruesoDe(valores(lectura_.x()));
        const AnchoDeParcela enY = GruesoDe(valores(lectura_.y()));
        const double grueso = std::hypot(enX.largo(), enY.largo());
        for (const std::size_t i : arboles_) {
            const double lejos = std::hypot(enX.fuera(x(i)), enY.fuera(y(i)));
            if (grueso == 0 || lejos <= grueso) {
                continue;
            }
            const auto& columna = enX.fuera(x(i)) >= enY.fuera(y(i)) ? lectura_.x() : lectura_.y();
            const Gravedad gravedad = lejos > muyLejos * grueso ? Gravedad::Numeros : Gravedad::Mirar;
            cuaderno_.anotarFila(gravedad, Sospecha::ArbolLejano, 0, fila(i), [&] {
                Hallazgo hallazgo = lectura_.enCelda(gravedad, Sospecha::ArbolLejano, i, columna);
                hallazgo.que = "El árbol está a " + NumeroDicho(std::round(lejos)) +
                               " m de los demás, que ocupan " + NumeroDicho(std::round(enX.largo())) +
                               " por " + NumeroDicho(std::round(enY.largo())) + " m.";
                hallazgo.efecto =
                    "Si está mal, el contorno llega hasta él: la superficie sale demasiado grande, y todas "
                    "las cifras por hectárea, demasiado pequeñas.";
                hallazgo.remedio = "Compruebe la coma y el signo de la coordenada.";
                return hallazgo;
            });
        }
    }

    /// A few coordinates with another sign than all others, and not near the origin, where both are at home.
    void revisarSignos(const ColumnaRevisada& columna) {
        constexpr std::size_t deCada = 20;
        constexpr double cercaDelOrigen = 0.1;
        const auto negativas = static_cast<std::size_t>(
            std::ranges::count_if(arboles_, [&](std::size_t i) { return columna.numero(i) < 0; }));
        const auto positivas = static_cast<std::size_t>(
            std::ranges::count_if(arboles_, [&](std::size_t i) { return columna.numero(i) > 0; }));
        const bool rarasNegativas = negativas < positivas;
        const std::size_t raras = std::min(negativas, positivas);
        if (raras == 0 || raras * deCada > arboles_.size()) {
            return;
        }
        const double mayor = std::abs(columna.numero(*std::ranges::max_element(
            arboles_, {}, [&](std::size_t i) { return std::abs(columna.numero(i)); })));
        for (const std::size_t i : arboles_) {
            const double suya = rarasNegativas ? -columna.numero(i) : columna.numero(i);
            if (suya <= cercaDelOrigen * mayor) {
                continue;
            }
            cuaderno_.anotarFila(
                Gravedad::Mirar, Sospecha::SignoRaro, columna.columna().numero, fila(i), [&] {
                    Hallazgo hallazgo = lectura_.enCelda(Gravedad::Mirar, Sospecha::SignoRaro, i, columna);
                    hallazgo.que = "La coordenada es " +
                                   std::string{rarasNegativas ? "negativa" : "positiva"} +
                                   ", y casi todas las demás no lo son.";
                    hallazgo.efecto =
                        "Si el signo está mal, el árbol se dibuja en otro sitio y cambian el contorno, la "
                        "superficie y las cifras por hectárea.";
                    hallazgo.remedio = "Compruebe el signo.";
                    return hallazgo;
                });
        }
    }

    void revisarMismoSitio() {
        auto orden = arboles_;
        std::ranges::stable_sort(orden, {}, [&](std::size_t i) { return std::pair{x(i), y(i)}; });
        for (std::size_t desde = 0; desde < orden.size();) {
            std::size_t hasta = desde + 1;
            while (hasta < orden.size() && x(orden[hasta]) == x(orden[desde]) &&
                   y(orden[hasta]) == y(orden[desde])) {
                ++hasta;
            }
            for (std::size_t otro = desde + 1; otro < hasta; ++otro) {
                anotarMismoSitio(orden[desde], orden[otro]);
            }
            desde = hasta;
        }
    }

    void anotarMismoSitio(std::size_t uno, std::size_t otro) {
        const Indices porElLado = fallanEnElContorno(uno);
        const Indices fallan =
            lectura_.conTamano(uno) && lectura_.conTamano(otro) ? fallanEnUnSitio() : Indices{};
        const Gravedad gravedad = fallan.empty() && porElLado.empty() ? Gravedad::Mirar : Gravedad::Fallo;
        const int efecto = porElLado.empty() ? 0 : 1; // of one gravity, and not the same
        cuaderno_.anotarFila(gravedad, Sospecha::MismoSitio, efecto, fila(otro), [&] {
            Hallazgo hallazgo = lectura_.enFila(gravedad, Sospecha::MismoSitio, otro);
            hallazgo.texto = lectura_.x().texto(otro) + "; " + lectura_.y().texto(otro);
            hallazgo.que = "El árbol está en el mismo sitio que " + lectura_.nombrar(uno) + ".";
            hallazgo.efecto =
                !porElLado.empty() ? "Los dos son vértices del contorno, y el lado entre ellos no tiene "
                                     "longitud: al dividir "
                                     "por ella " +
                                         PuedenFallar(porElLado) + "."
                : fallan.empty()
                    ? "Los dos cuentan; si son el mismo árbol, uno sobra en todas las cifras."
                    : "La distancia entre los dos es 0, y al dividir por ella " + PuedenFallar(fallan) + ".";
            hallazgo.remedio =
                "Si es el mismo árbol, borre una de las filas; si son dos pies juntos, separe sus "
                "coordenadas un centímetro.";
            return hallazgo;
        });
    }

    /// The families that divide by the length of a side of the boundary, where two trees make one without
    /// any.
    [[nodiscard]] Indices fallanEnElContorno(std::size_t i) const {
        const auto& contorno = lectura_.parcela().contorno;
        const bool seDetiene = contorno && SeDetieneEn(*contorno, x(i), y(i)) && lectura_.hayInteriores();
        return seDetiene ? FamiliasDeVecinos(lectura_.opciones()) : Indices{};
    }

    /// The families that divide by the distance of two trees.
    [[nodiscard]] Indices fallanEnUnSitio() const {
        const auto& opciones = lectura_.opciones();
        Indices fallan;
        if (opciones.IDP.activa) {
            fallan.emplace_back("IDP");
        }
        const bool pesoFalla = std::ranges::any_of(opciones.DR.distancias, [](const std::string& linea) {
            const auto funcion = LeerFuncionEscrita(linea);
            return funcion && !ValorDePeso(*funcion, 0);
        });
        if (opciones.DR.activa && (opciones.DR.regla == ReglaDeCompetidores::BAF || pesoFalla)) {
            fallan.emplace_back("DR");
        }
        if (opciones.APA.activa) {
            fallan.emplace_back("APA");
        }
        return fallan;
    }

    [[nodiscard]] int fila(std::size_t i) const { return lectura_.parcela().filas[i].numero; }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    const std::vector<std::size_t>& arboles_;
};

} // namespace

void RevisarSitios(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDeSitios{lectura, cuaderno}.revisar();
}

} // namespace varo
