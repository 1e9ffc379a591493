#include "revision/RevisarSitios.h"

#include "basico/Numeros.h"
#include "revision/Contorno.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string>

namespace varo {

namespace {

constexpr double metrosPorHectarea = 10'000;
constexpr double hectareasDeMas = 50;

/// The dominant trees are 100 per hectare, rounded, and counted in 16 bits.
constexpr double sinDominantes = 50;               // m2
constexpr double demasiadosDominantes = 3'276'750; // m2

/// Whether all trees stand on one line, or are fewer than three.
bool SinExtension(const Lectura& lectura) {
    const auto& arboles = lectura.situados();
    if (arboles.size() < 3) {
        return true;
    }
    const auto x = [&](std::size_t i) { return lectura.x().numero(i) - lectura.x().numero(arboles.front()); };
    const auto y = [&](std::size_t i) { return lectura.y().numero(i) - lectura.y().numero(arboles.front()); };
    const std::size_t lejos =
        *std::ranges::max_element(arboles, {}, [&](std::size_t i) { return std::hypot(x(i), y(i)); });
    const double largo = std::hypot(x(lejos), y(lejos));
    return std::ranges::all_of(arboles, [&](std::size_t i) {
        constexpr double casiNada = 1E-9;
        return std::abs(x(i) * y(lejos) - y(i) * x(lejos)) <= casiNada * largo * largo;
    });
}

class RevisorDelContorno {
public:
    RevisorDelContorno(const Lectura& lectura, Cuaderno& cuaderno)
        : lectura_{lectura}, cuaderno_{cuaderno}, vecinos_{FamiliasDeVecinos(lectura.opciones())},
          afectados_{Juntos(IndicesDeLaSuperficie(lectura.opciones()), vecinos_)} {}

    void revisar() {
        if (lectura_.situados().empty()) {
            return; // what is wrong with the coordinates is told with the cells
        }
        const auto& contorno = lectura_.parcela().contorno;
        if (contorno && !contorno->superficie.fallo.empty()) {
            Hallazgo hallazgo = nuevo(Gravedad::Fallo, Sospecha::ContornoConFallo);
            hallazgo.que =
                "No se puede hallar el contorno de la parcela: " + contorno->superficie.fallo + ".";
            hallazgo.efecto = "El dibujo termina en ese fallo, y sin él no se calcula nada.";
            hallazgo.remedio = "Busque árboles repetidos en un mismo sitio, o coordenadas mal escritas.";
            cuaderno_.anotar(hallazgo);
        } else if (contorno ? contorno->superficie.valor == 0 : SinExtension(lectura_)) {
            anotarSinSuperficie();
        } else if (contorno) {
            revisarSuperficie(contorno->superficie.valor);
            revisarLadoVertical(*contorno);
            revisarSobreUnLado(*contorno);
        }
    }

private:
    static Hallazgo nuevo(Gravedad gravedad, Sospecha sospecha) {
        Hallazgo hallazgo;
        hallazgo.gravedad = gravedad;
        hallazgo.sospecha = sospecha;
        return hallazgo;
    }

    void anotarSinSuperficie() {
        const std::size_t cuantos = lectura_.situados().size();
        Hallazgo hallazgo =
            nuevo(afectados_.empty() ? Gravedad::Mirar : Gravedad::Fallo, Sospecha::SinSuperficie);
        hallazgo.que = cuantos == 1 ? "La parcela tiene un solo árbol con coordenadas, y su superficie es 0."
                       : cuantos == 2
                           ? "La parcela tiene solo dos árboles con coordenadas, y su superficie es 0."
                           : "Todos los árboles están en una línea, y la superficie de la parcela "
                             "es 0.";
        hallazgo.efecto = afectados_.empty()
                              ? "Las cifras por hectárea no se podrían calcular."
                              : "El cálculo termina en un fallo. La necesitan: " + EnLista(afectados_) + ".";
        hallazgo.remedio =
            "Compruebe las columnas de las coordenadas; hacen falta al menos tres árboles que no "
            "estén en una línea.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarSuperficie(double superficie) {
        const bool dominantes = lectura_.opciones().independientes.dominantes;
        const bool pequena = dominantes && superficie <= sinDominantes;
        const bool inmensa = dominantes && superficie >= demasiadosDominantes;
        if (!std::isfinite(superficie)) {
            return;
        }
        if (!pequena && superficie <= hectareasDeMas * metrosPorHectarea) {
            revisarDensidad(superficie);
            return;
        }
        Hallazgo hallazgo =
            nuevo(pequena || inmensa ? Gravedad::Fallo : Gravedad::Mirar, Sospecha::SuperficieRara);
        hallazgo.texto = pequena ? Formato(superficie, "###0.0") + " m2"
                                 : Formato(superficie / metrosPorHectarea, "###0.0") + " ha";
        hallazgo.que = "La superficie de la parcela es de " + hallazgo.texto + ".";
        hallazgo.efecto =
            pequena   ? "En ella no cabe ningún árbol dominante, que son 100 por hectárea: el cálculo "
                        "termina en un fallo."
            : inmensa ? "Los árboles dominantes, 100 por hectárea, no caben en la cuenta: el cálculo "
                        "termina en un fallo."
                      : "Si no es la verdadera, todas las cifras por hectárea salen mal.";
        hallazgo.remedio =
            "Compruebe que las coordenadas están en metros y que ninguna tiene la coma en otro "
            "sitio.";
        cuaderno_.anotar(hallazgo);
    }

    /// Trees in another unit of length, without being too many hectares.
    void revisarDensidad(double superficie) {
        constexpr std::size_t pocos = 10;
        constexpr double rala = 20;
        constexpr double apretada = 20'000;
        const double densidad =
            static_cast<double>(lectura_.situados().size()) / superficie * metrosPorHectarea;
        if (lectura_.situados().size() < pocos || (densidad >= rala && densidad <= apretada)) {
            return;
        }
        Hallazgo hallazgo = nuevo(Gravedad::Mirar, Sospecha::DensidadRara);
        hallazgo.texto = Formato(superficie, "###0.0") + " m2";
        hallazgo.que = "Hay " + std::string{densidad < rala ? "muy pocos" : "muchísimos"} +
                       " árboles para la superficie de la parcela, " + hallazgo.texto + ": " +
                       Formato(densidad, "###0") + " por hectárea.";
        hallazgo.efecto = "Si la superficie no es la verdadera, todas las cifras por hectárea salen mal.";
        hallazgo.remedio = "Compruebe que las coordenadas están en metros.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarLadoVertical(const ContornoPorRevisar& contorno) {
        const auto& opciones = lectura_.opciones();
        const bool elipses = opciones.ISC.activa && !opciones.copasCirculares;
        const bool falla = (elipses || opciones.APA.activa) && lectura_.hayInteriores();
        const auto lado = LadoVertical(contorno, falla);
        if (!lado || (!falla && !opciones.datosDeParcela)) {
            return;
        }
        const Indices afectados =
            Juntos(elipses ? Indices{"ISC"} : Indices{}, opciones.APA.activa ? Indices{"APA"} : Indices{});
        const std::size_t uno = arbolEn(contorno.x[*lado], contorno.y[*lado]);
        const std::size_t otro = arbolEn(contorno.x[*lado + 1], contorno.y[*lado + 1]);
        Hallazgo hallazgo = lectura_.enCelda(falla ? Gravedad::Fallo : Gravedad::Numeros,
                                             Sospecha::LadoVertical, uno, lectura_.x());
        hallazgo.que = "Un lado del contorno es vertical: el árbol y " + lectura_.nombrar(otro) +
                       ", que le sigue en el contorno, tienen la misma X.";
        hallazgo.efecto =
            falla
                ? "No se puede saber qué queda dentro de la parcela: " + PuedenFallar(afectados) + "."
                : "En los datos de parcela la cubierta de las copas (Fcc) no se puede medir y sale 0 o la de "
                  "antes; con copas de elipse sale mal también su superficie dentro de la parcela.";
        hallazgo.remedio = "Cambie la X de uno de los dos árboles en un milímetro.";
        cuaderno_.anotar(hallazgo);
    }

    /// The first tree that stands there.
    [[nodiscard]] std::size_t arbolEn(double x, double y) const {
        const auto& arboles = lectura_.situados();
        const auto hallado = std::ranges::find_if(arboles, [&](std::size_t i) {
            return lectura_.x().numero(i) == x && lectura_.y().numero(i) == y;
        });
        return hallado == arboles.end() ? arboles.front() : *hallado;
    }

    /// By rounding, the area of a triangle without height may have no root.
    void revisarSobreUnLado(const ContornoPorRevisar& contorno) {
        constexpr double casiNada = 1E-7;
        Indices conBorde = vecinos_;
        std::erase(conBorde, "APA");
        if (conBorde.empty() || contorno.x.empty()) {
            return;
        }
        const auto [menor, mayor] = std::ranges::minmax(contorno.x);
        const auto [menorY, mayorY] = std::ranges::minmax(contorno.y);
        const double largo = std::hypot(mayor - menor, mayorY - menorY);
        for (const std::size_t i : lectura_.situados()) {
            if (lectura_.esVertice(i) || !lectura_.conTamano(i) ||
                !FallaLaAltura(contorno, lectura_.x().numero(i), lectura_.y().numero(i), casiNada * largo)) {
                continue;
            }
            const int fila = lectura_.parcela().filas[i].numero;
            cuaderno_.anotarFila(Gravedad::Fallo, Sospecha::SobreUnLado, 0, fila, [&] {
                Hallazgo hallazgo = lectura_.enFila(Gravedad::Fallo, Sospecha::SobreUnLado, i);
                hallazgo.que = "El árbol está justo sobre un lado del contorno, sin ser un vértice.";
                hallazgo.efecto = "Su distancia al lado es 0 y, por el redondeo de los números, " +
                                  PuedenFallar(conBorde) + ".";
                hallazgo.remedio = "Mueva el árbol un centímetro hacia dentro o hacia fuera.";
                return hallazgo;
            });
        }
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    Indices vecinos_;
    Indices afectados_;
};

} // namespace

void RevisarContorno(const Lectura& lectura, Cuaderno& cuaderno) {
    RevisorDelContorno{lectura, cuaderno}.revisar();
}

} // namespace varo
