#include "revision/RevisarMedidas.h"

#include "basico/Numeros.h"
#include "revision/Efectos.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string>
#include <vector>

namespace varo {

namespace {

constexpr double grueso = 300; // cm
constexpr double diminuto = 1; // cm
constexpr std::size_t pocos = 3;

std::string EnCentimetros(double diametro) {
    return NumeroDicho(std::round(diametro * 10) / 10) + " cm";
}

class RevisorDeTroncos {
public:
    RevisorDeTroncos(const Lectura& lectura, Cuaderno& cuaderno) : lectura_{lectura}, cuaderno_{cuaderno} {
        for (const std::size_t i : lectura.arboles()) {
            if (lectura.tamano().esNumero(i) && lectura.tamano().numero(i) > 0) {
                medidos_.push_back(i);
            }
        }
        const auto& opciones = lectura.opciones();
        const bool seUsa = opciones.independientes.areaDeMayores || !IndicesDelTamano(opciones).empty() ||
                           !FamiliasDeVecinos(opciones).empty();
        gravedad_ = seUsa ? Gravedad::Numeros : Gravedad::Mirar;
    }

    void revisar() {
        const auto gruesos = static_cast<std::size_t>(
            std::ranges::count_if(medidos_, [&](std::size_t i) { return lectura_.diametro(i) > grueso; }));
        if (medidos_.size() >= pocos && gruesos * 5 > medidos_.size()) {
            anotarTodos(Sospecha::TroncoEnorme, "Muchos troncos pasan de 3 m de diámetro.");
            return;
        }
        if (medidos_.size() >= pocos &&
            std::ranges::all_of(medidos_, [&](std::size_t i) { return lectura_.diametro(i) < diminuto; })) {
            anotarTodos(Sospecha::TroncosDiminutos, "Ningún tronco llega a 1 cm de diámetro.");
        }
        revisarAreaBasimetrica();
        for (const std::size_t i : medidos_) {
            if (lectura_.diametro(i) > grueso) {
                anotarGrueso(i);
            }
        }
    }

private:
    /// Girths taken for diameters, or a row that sums up the others.
    void revisarAreaBasimetrica() {
        constexpr double desmedida = 100; // m2/ha
        constexpr double cmPorMetro = 100;
        constexpr double m2PorHectarea = 10'000;
        const auto& contorno = lectura_.parcela().contorno;
        if (!contorno || !contorno->superficie.fallo.empty() || contorno->superficie.valor <= 0 ||
            medidos_.size() < pocos) {
            return;
        }
        double suma = 0;
        for (const std::size_t i : medidos_) {
            const double d = lectura_.diametro(i) / cmPorMetro;
            suma += std::numbers::pi / 4 * d * d;
        }
        const double porHectarea = suma / contorno->superficie.valor * m2PorHectarea;
        if (!std::isfinite(porHectarea) || porHectarea <= desmedida) {
            return;
        }
        Hallazgo hallazgo =
            EnColumna(Gravedad::Mirar, Sospecha::AreaBasimetricaRara, lectura_.tamano().columna());
        hallazgo.texto = Formato(porHectarea, "###0.0") + " m2/ha";
        hallazgo.que = "Los troncos suman un área basimétrica de " + hallazgo.texto + ", más de 100.";
        hallazgo.efecto =
            "Si no es verdad, todas las áreas basimétricas y los índices con el tamaño salen mal.";
        hallazgo.remedio =
            "Compruebe en las opciones si el tamaño es circunferencia o diámetro y su unidad, y en la "
            "hoja las comas.";
        cuaderno_.anotar(hallazgo);
    }

    void anotarTodos(Sospecha sospecha, const std::string& que) {
        Hallazgo hallazgo = EnColumna(gravedad_, sospecha, lectura_.tamano().columna());
        hallazgo.que = que;
        hallazgo.efecto =
            "Si la unidad no es la de la hoja, las áreas basimétricas y los índices que usan el "
            "tamaño salen mal.";
        hallazgo.remedio =
            "Compruebe en las opciones la unidad del tamaño y si es circunferencia o diámetro.";
        cuaderno_.anotar(hallazgo);
    }

    void anotarGrueso(std::size_t i) {
        const auto& columna = lectura_.tamano();
        cuaderno_.anotarFila(
            gravedad_, Sospecha::TroncoEnorme, columna.columna().numero, lectura_.parcela().filas[i].numero,
            [&] {
                Hallazgo hallazgo = lectura_.enCelda(gravedad_, Sospecha::TroncoEnorme, i, columna);
                hallazgo.que =
                    "El tronco mide " + EnCentimetros(lectura_.diametro(i)) + " de diámetro, más de 3 m.";
                hallazgo.efecto =
                    "Si no es verdad, suma un área basimétrica enorme y falsea los índices de sus "
                    "vecinos.";
                hallazgo.remedio = "Compruebe la coma del número y la unidad.";
                return hallazgo;
            });
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    std::vector<std::size_t> medidos_;
    Gravedad gravedad_ = Gravedad::Mirar;
};

} // namespace

void RevisarTroncos(const Lectura& lectura, Cuaderno& cuaderno) {
    if (lectura.tamano().existe()) {
        RevisorDeTroncos{lectura, cuaderno}.revisar();
    }
}

} // namespace varo
