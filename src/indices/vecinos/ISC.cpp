#include "indices/vecinos/ISC.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/vecinos/Competidores.h"
#include "plot/calculo/AreaInterseccionCirculos.h"

#include <algorithm>
#include <limits>
#include <span>

namespace varo {

namespace {

/// As ASimple, with the cause of its fault.
float MedidaSimple(double numero) {
    return Porque(
        fallo::desbordamiento, [] { return "las medidas de la copa son demasiado grandes"; },
        [&] { return ASimple(numero); });
}

class VarianteISC {
public:
    VarianteISC(Vecindad& vecindad, const RadiosDeCopa& radios, Lado lado)
        : arboles_{vecindad.arboles}, vecindad_{vecindad}, radios_{radios}, lado_{lado},
          cercanas_{vecindad.arboles} {}

    double indice(Pareja& pareja) {
        const std::size_t i = pareja.sujeto;
        if (arboles_.sinTamano(i)) {
            return sinArbol;
        }
        static_cast<void>(arboles_.diametro(i)); // a size that is no number faults even without a crown
        const double ri = radios_.de(i);
        if (ri == 0) {
            return sinArbol;
        }
        if (arboles_.esVertice(i)) {
            return arbolDeContorno;
        }
        if (vecindad_.borde.algunaAlturaMenor(i, ri)) {
            return efectoBorde;
        }
        float suma = 0;
        const auto sumar = [&](std::size_t j, double /*diametro*/) {
            suma = MedidaSimple(static_cast<double>(suma) + interseccion(i, j, ri));
            return true;
        };
        RecorrerCompetidores<&Arboles::diametro>(arboles_, vecinos(i, ri), lado_, pareja, sumar);
        return Dividir(static_cast<double>(suma), numeroPi * (ri * ri));
    }

private:
    /// The trees whose crown may meet the subject's. The others would add 0, unless one of their cells is
    /// wrong.
    std::span<const Cuadricula::Fila> vecinos(std::size_t i, double ri) {
        if (!vecindad_.buscador.fiable() || !radios_.todosSinFallo()) {
            return vecindad_.todas;
        }
        vecindad_.buscador.buscar(i, ri + static_cast<double>(radios_.mayor()), cercanas_);
        return cercanas_.filas;
    }

    [[nodiscard]] double interseccion(std::size_t i, std::size_t j, double ri) const {
        const double rj = radios_.de(j);
        const double xi = arboles_.x(i);
        const double yi = arboles_.y(i);
        const double xj = arboles_.x(j);
        const double yj = arboles_.y(j);
        return Porque(
            fallo::divisionPorCero,
            [&] {
                return xi == xj && yi == yj ? "las dos copas son iguales y están en el mismo sitio"
                                            : "una de las dos copas mide 0";
            },
            [&] { return AreaInterseccionCirculos(xi, yi, xj, yj, ri, rj); });
    }

    const Arboles& arboles_;
    Vecindad& vecindad_;
    const RadiosDeCopa& radios_;
    Lado lado_;
    ArbolesCercanos cercanas_;
};

} // namespace

RadiosDeCopa::RadiosDeCopa(const Arboles& arboles, DatosDeCopa datos, int factor)
    : arboles_{arboles}, datos_{datos}, factor_{factor},
      radios_(arboles.cuantos(), std::numeric_limits<float>::quiet_NaN()) {
    for (std::size_t i = 0; i < radios_.size(); ++i) {
        if (arboles.sinTamano(i)) {
            continue;
        }
        if (Saltando([&] { radios_[i] = calcular(i); })) {
            todosSinFallo_ = false;
        } else {
            mayor_ = std::max(mayor_, radios_[i]);
        }
    }
}

float RadiosDeCopa::calcular(std::size_t i) const {
    const auto metros = [&](std::size_t medida) {
        return Dividir(arboles_.celdas().copa[medida].numero(i), factor_);
    };
    switch (datos_) {
    case DatosDeCopa::CuatroRadios: {
        const double N = metros(0);
        const double E = metros(1);
        const double S = metros(2);
        const double W = metros(3);
        return MedidaSimple((N + E + S + W) / 4);
    }
    case DatosDeCopa::DosDiametros: {
        const double D1 = metros(0);
        const double D2 = metros(1);
        return MedidaSimple((D1 + D2) / 4);
    }
    case DatosDeCopa::RadioMedio:
        break;
    }
    return MedidaSimple(metros(0));
}

std::vector<double> CalcularISC(Vecindad& vecindad, const RadiosDeCopa& radios, Lado lado,
                                const Faena& faena) {
    return ParaCadaArbol(vecindad.arboles, faena, VarianteISC{vecindad, radios, lado});
}

} // namespace varo
