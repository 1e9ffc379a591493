#include "plot/calculo/Elipses.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "plot/calculo/BordeDeCopas.h"
#include "plot/calculo/ElipsesDeFilas.h"
#include "plot/calculo/MuestrasDeCopa.h"

#include <cstdint>
#include <limits>
#include <optional>

namespace varo {

namespace {

/// Four times the area of four quarters, less the factor pi.
double SumaDeProductos(const Copa& copa) {
    const auto& [x, y, N, E, S, W] = copa;
    return N * E + E * S + S * W + W * N;
}

/// The first crown of a pair: its samples, none where its box cannot be walked through.
class PrimeraCopa {
public:
    PrimeraCopa(const Copa& copa, const BordeDeCopas& borde, const Escala& superficie)
        : copa_{copa}, borde_{borde}, superficie_{superficie} {
        Saltando([&] { todas_.emplace(copa, superficie); });
    }

    [[nodiscard]] double puntosA() const { return todas_ ? todas_->cuantas() : 0; }

    /// Needs some samples.
    double area(const Copa& otra) {
        const double c2 = puntosA() - todas_->tapadasPor(otra);
        return ((1 - c2 / puntosA()) * numeroPi * SumaDeProductos(copa_)) / 4;
    }

    double areaEnElBorde(const Copa& otra) {
        const double c1MenosC2 = lasDeDentro().tapadasPor(otra);
        return ((c1MenosC2 / puntosA()) * numeroPi * SumaDeProductos(copa_)) / 4;
    }

private:
    /// Meant: a sample whose test faults counts.
    MuestrasDeCopa& lasDeDentro() {
        if (!dentro_) {
            dentro_.emplace(copa_, superficie_);
            dentro_->limitar(borde_.filasDentro(dentro_->malla(), PruebaFallida::CuentaDentro));
        }
        return *dentro_;
    }

    const Copa& copa_;
    const BordeDeCopas& borde_;
    const Escala& superficie_;
    std::optional<MuestrasDeCopa> todas_, dentro_;
};

void AnadirPar(SolapeDeCopas& solape, const ParDeCopas& par) {
    // Meant: where the index cannot rise any more, the pair takes the place of the last one.
    if (solape.NumParesCopas < std::numeric_limits<std::int16_t>::max()) {
        ++solape.NumParesCopas;
        solape.ParesCopas.emplace_back();
    }
    solape.ParesCopas.back() = par;
}

} // namespace

void SolaparElipses(const FilasDeCopas& filas, const ContornoXY& contorno, const Lienzo& superficie,
                    SolapeDeCopas& solape, const Avance& avance) {
    solape = {{}, -1, 0};
    const BordeDeCopas borde{contorno};
    const std::vector<ElipseDeFila> elipses = ElipsesDeFilas(filas);
    std::vector<double> alturas;
    alturas.reserve(elipses.size());
    for (const auto& elipse : elipses) {
        alturas.push_back(borde.alturaMenor(elipse.copa.x, elipse.copa.y));
    }
    avance.empezar(elipses.size());
    for (std::size_t i = 0; i < elipses.size(); ++i) {
        avance.paso();
        const ElipseDeFila& A = elipses[i];
        std::optional<PrimeraCopa> copaA; // not for one that meets no other
        for (std::size_t j = i + 1; j < elipses.size(); ++j) {
            // Meant: in each walk the radii of B start at 0, whatever the rows before it hold.
            const ElipseDeFila B = elipses[j].trasLaFila(A.fila);
            if (!CajasCruzadas(A.copa, B.copa)) {
                continue;
            }
            if (!copaA) {
                copaA.emplace(A.copa, borde, superficie.escala());
            }
            if (copaA->puntosA() == 0) {
                break; // the area fails with every B, and stays at the 0 it started with
            }
            const bool cerca = alturas[j] < B.radioMayor();
            const double area = cerca ? copaA->areaEnElBorde(B.copa) : copaA->area(B.copa);
            if (area != 0) {
                AnadirPar(solape, {static_cast<double>(A.fila), static_cast<double>(B.fila), area});
            }
        }
    }
    for (const ParDeCopas& par : solape.ParesCopas) {
        solape.AreaIntersecCopas += par.area;
    }
}

double RecortarElipses(const FilasDeCopas& filas, const ContornoXY& contorno, const Lienzo& superficie,
                       const std::vector<Valor>& areas, const Avance& avance) {
    const BordeDeCopas borde{contorno};
    double SupFuera = 0;
    const std::vector<ElipseDeFila> elipses = ElipsesDeFilas(filas);
    avance.empezar(elipses.size());
    for (const auto& elipse : elipses) {
        avance.paso();
        const auto& [x, y, N, E, S, W] = elipse.copa;
        if (borde.alturaMenor(x, y) < elipse.radioMayor() && elipse.fila <= areas.size()) {
            Saltando([&] {
                MuestrasDeCopa muestras{elipse.copa, superficie.escala()};
                const double total = muestras.cuantas();
                // Meant: a sample whose test faults is outside.
                muestras.limitar(borde.filasDentro(muestras.malla(), PruebaFallida::CuentaFuera));
                const double fuera = total - muestras.cuantas();
                SupFuera = ExigirFinito(SupFuera + Dividir(fuera, total) * ANumero(areas[elipse.fila - 1]));
            });
        }
    }
    return SupFuera;
}

} // namespace varo
