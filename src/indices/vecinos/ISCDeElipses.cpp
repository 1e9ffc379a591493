#include "indices/vecinos/ISCDeElipses.h"

#include "basico/Aritmetica.h"
#include "indices/vecinos/Competidores.h"
#include "indices/vecinos/LadoVertical.h"
#include "plot/calculo/MuestrasDeCopa.h"

#include <algorithm>

namespace varo {

namespace {

constexpr Color negro = 0;
constexpr Color azul = 0x00FF0000;

/// Whether all the samples of the box of a crown, half a metre apart, lie in the boundary. Meant: a corner of
/// the box counts, even where the crown stays inside.
bool CajaEnPoligono(const ContornoXY& contorno, const Copa& copa) {
    constexpr double paso = 0.5;
    const MallaDeCopa malla = MallaDe(copa, paso);
    return ExplicandoElLadoVertical([&] {
        return std::ranges::all_of(malla.x, [&](double x) {
            return std::ranges::all_of(malla.y, [&](double y) { return PuntoEnPoligono(contorno, x, y); });
        });
    });
}

class VarianteDeElipses {
public:
    VarianteDeElipses(Vecindad& vecindad, const CopasDeArboles& copas, Lado lado, Lienzo& superficie)
        : arboles_{vecindad.arboles}, vecindad_{vecindad}, copas_{copas}, lado_{lado}, superficie_{
                                                                                           superficie} {}

    double indice(Pareja& pareja) {
        const std::size_t i = pareja.sujeto;
        superficie_.Cls();
        if (arboles_.sinTamano(i)) {
            return sinArbol;
        }
        static_cast<void>(arboles_.diametro(i)); // a size that is no number faults even on a vertex
        if (arboles_.esVertice(i)) {
            return arbolDeContorno;
        }
        if (pasaDelBorde(i)) {
            return efectoBorde;
        }
        return parteTapada(pareja);
    }

private:
    bool pasaDelBorde(std::size_t i) {
        const Copa& copa = copas_.de(i);
        if (!vecindad_.borde.algunaAlturaMenor(i, std::max({copa.N, copa.E, copa.S, copa.W}))) {
            return false;
        }
        pintar(copa, negro);
        if (!CajaEnPoligono(vecindad_.borde.contorno(), copa)) {
            return true;
        }
        // Meant: the walk over the sides goes on, and a later one may fault.
        vecindad_.borde.exigirAlturas(i);
        return false;
    }

    double parteTapada(Pareja& pareja) {
        const Copa& copa = copas_.de(pareja.sujeto);
        pintar(copa, negro);
        MuestrasDeCopa muestras{copa, superficie_.escala()};
        double suma = 0;
        const auto sumar = [&](std::size_t j, double /*diametro*/) {
            const Copa& otra = copas_.de(j);
            if (CajasCruzadas(copa, otra)) {
                pintar(copa, negro);
                pintar(otra, azul);
                suma += muestras.tapadasPor(otra);
            }
            return true;
        };
        RecorrerCompetidores<&Arboles::diametro>(arboles_, vecindad_.todas, lado_, pareja, sumar);
        return Porque(
            fallo::divisionPorCero,
            [] {
                return "ninguna de las muestras, una cada 0,1 m, cae en la copa: revise sus radios y la "
                       "unidad en que están";
            },
            [&] { return Dividir(suma, muestras.cuantas()); });
    }

    void pintar(const Copa& copa, Color color) {
        superficie_.ForeColor = color;
        superficie_.copa(copa);
    }

    const Arboles& arboles_;
    Vecindad& vecindad_;
    const CopasDeArboles& copas_;
    Lado lado_;
    Lienzo& superficie_;
};

} // namespace

std::vector<double> CalcularISCDeElipses(Vecindad& vecindad, const CopasDeArboles& copas, Lado lado,
                                         Lienzo& superficie, const Avance& avance) {
    // They all paint on the one surface: one after the other.
    return ParaCadaArbol(vecindad.arboles, {avance}, VarianteDeElipses{vecindad, copas, lado, superficie});
}

} // namespace varo
