#include "indices/vecinos/AOI.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/vecinos/Competidores.h"
#include "plot/calculo/AreaInterseccionCirculos.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

namespace varo {

namespace {

constexpr double sinRadio = std::numeric_limits<double>::quiet_NaN();

/// Whether (cell j / cell i)^k cannot fault for any subject whose own cell is above 0.
bool PesosSinFallo(const Arboles& arboles, double k) {
    double menor = std::numeric_limits<double>::infinity(); // of the sizes above 0
    double mayor = 0;
    for (std::size_t i = 0; i < arboles.cuantos(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        const double tamano = arboles.tamano(i);
        if (tamano < 0 || (tamano == 0 && k < 0)) {
            return false;
        }
        mayor = std::max(mayor, tamano);
        menor = tamano > 0 ? std::min(menor, tamano) : menor;
    }
    constexpr double desmedido = 1E+290;
    return mayor == 0 || (mayor / menor < desmedido && std::pow(mayor / menor, std::abs(k)) < desmedido);
}

class ColumnaAOI {
public:
    ColumnaAOI(Vecindad& vecindad, const RadiosDeInfluencia& radios, Lado lado, double k)
        : arboles_{vecindad.arboles}, vecindad_{vecindad}, lado_{lado}, radios_{radios}, k_{k},
          cercanas_{vecindad.arboles}, sinFallos_{vecindad.buscador.fiable() && radios_.todosSinFallo() &&
                                                  PesosSinFallo(arboles_, k)} {}

    double indice(Pareja& pareja) {
        const std::size_t i = pareja.sujeto;
        if (arboles_.sinTamanoOCero(i)) {
            return sinArbol;
        }
        const double Ri = radios_.de(i);
        if (arboles_.esVertice(i)) {
            return arbolDeContorno;
        }
        if (vecindad_.borde.algunaAlturaMenorOIgual(i, Ri)) {
            return efectoBorde;
        }
        double suma = 0;
        const auto sumar = [&](std::size_t j, double /*diametro*/) {
            suma = ExigirFinito(suma + parte(i, j, Ri));
            return true;
        };
        RecorrerCompetidores<&Arboles::diametro>(arboles_, vecinos(i, Ri), lado_, pareja, sumar);
        return suma;
    }

private:
    /// The trees whose circle may meet the subject's. The others would add 0, unless a step with them faults.
    std::span<const Cuadricula::Fila> vecinos(std::size_t i, double Ri) {
        const double propia = numeroPi * (Ri * Ri);
        const bool sinFallos = sinFallos_ && arboles_.tamano(i) > 0 && propia > 0 && std::isfinite(propia);
        if (!sinFallos) {
            return vecindad_.todas;
        }
        vecindad_.buscador.buscar(i, Ri + radios_.mayor(), cercanas_);
        return cercanas_.filas;
    }

    [[nodiscard]] double parte(std::size_t i, std::size_t j, double Ri) const {
        const double tamanoJ = arboles_.tamano(j);
        const double razon = Porque(
            fallo::divisionPorCero, [] { return "el tamaño del árbol es 0"; },
            [&] { return Dividir(tamanoJ, arboles_.tamano(i)); });
        const double w = Potencia(razon, k_);
        const double Rj = radios_.de(j);
        const double xi = arboles_.x(i);
        const double yi = arboles_.y(i);
        const double xj = arboles_.x(j);
        const double yj = arboles_.y(j);
        const double area = Porque(
            fallo::divisionPorCero,
            [&] {
                return Ri == 0 || Rj == 0 ? "uno de los dos radios de influencia es 0"
                                          : "los dos árboles están en el mismo sitio";
            },
            [&] { return AreaInterseccionCirculos(xi, yi, xj, yj, Ri, Rj); });
        const double parte = Porque(
            fallo::divisionPorCero, [] { return "el radio de influencia del árbol es 0"; },
            [&] { return Dividir(area, ExigirFinito(numeroPi * (Ri * Ri))); });
        return parte * w;
    }

    const Arboles& arboles_;
    Vecindad& vecindad_;
    Lado lado_;
    const RadiosDeInfluencia& radios_;
    double k_;
    ArbolesCercanos cercanas_;
    bool sinFallos_;
};

} // namespace

RadiosDeInfluencia::RadiosDeInfluencia(const Arboles& arboles, const SumaDePotencias& funcion)
    : arboles_{arboles}, funcion_{funcion}, radios_(arboles.cuantos(), sinRadio) {
    for (std::size_t i = 0; i < radios_.size(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        if (Saltando([&] { radios_[i] = funcion.en(arboles.diametro(i)); })) {
            todosSinFallo_ = false;
        } else {
            mayor_ = std::max(mayor_, radios_[i]);
        }
    }
}

std::vector<double> CalcularAOI(Vecindad& vecindad, const RadiosDeInfluencia& radios, Lado lado, double k,
                                const Faena& faena) {
    return ParaCadaArbol(vecindad.arboles, faena, ColumnaAOI{vecindad, radios, lado, k});
}

} // namespace varo
