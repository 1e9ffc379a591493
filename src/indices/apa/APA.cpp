#include "indices/apa/APA.h"

#include "basico/Saltando.h"
#include "indices/apa/APACercanos.h"
#include "indices/vecinos/Marcas.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace varo {

namespace {

std::vector<VecinosAPA::Fila> ConTamano(const Arboles& arboles) {
    std::vector<VecinosAPA::Fila> filas;
    for (std::size_t j = 0; j < arboles.cuantos(); ++j) {
        if (!arboles.sinTamano(j)) {
            filas.push_back(static_cast<VecinosAPA::Fila>(j));
        }
    }
    return filas;
}

/// The strokes of the cells that wait to be drawn, by tree; none where there is no cell.
using CeldasTrazadas = std::vector<std::optional<std::vector<TrazoAPA>>>;

/// Copies go on to read the weights of the first one.
class ColumnaAPA {
public:
    ColumnaAPA(const Arboles& arboles, const ContornoXY& contorno, double k, CeldasTrazadas* celdas)
        : arboles_{arboles}, contorno_{contorno}, celdas_{celdas}, pesos_{arboles, k}, conTamano_{ConTamano(
                                                                                           arboles)} {
        if (std::all_of(conTamano_.begin(), conTamano_.end(), [&](auto j) { return esLegible(j); })) {
            cercanos_.emplace(pesos_);
        }
    }

    double indice(Pareja& pareja) {
        const std::size_t i = pareja.sujeto;
        if (arboles_.sinTamano(i)) {
            return sinArbol;
        }
        static_cast<void>(arboles_.d(i)); // A size that is no number faults even at a vertex.
        if (arboles_.esVertice(i)) {
            return arbolDeContorno;
        }
        girar(pareja);
        if (celdas_ == nullptr) {
            return MedirCelda(giro_.lados(), contorno_, nullptr);
        }
        std::vector<TrazoAPA> trazos;
        const double valor = MedirCelda(giro_.lados(), contorno_, &trazos);
        (*celdas_)[i] = std::move(trazos);
        return valor;
    }

private:
    void girar(Pareja& pareja) {
        if (cercanos_ && cercanos_->girar(pareja, vecinos_, giro_)) {
            return;
        }
        ReunirVecinos(pesos_, conTamano_, pareja, vecinos_);
        giro_.dar(vecinos_, pareja);
    }

    /// Whether the short turn may read the tree without a fault of its cells or its weight.
    [[nodiscard]] bool esLegible(std::size_t j) const {
        const auto fallo = Saltando([&] {
            static_cast<void>(arboles_.x(j));
            static_cast<void>(arboles_.y(j));
            static_cast<void>(pesos_.de(j));
        });
        return !fallo && arboles_.d(j) >= 0;
    }

    const Arboles& arboles_;
    const ContornoXY& contorno_;
    CeldasTrazadas* celdas_; ///< null when nobody draws
    PesosAPA pesos_;
    std::vector<VecinosAPA::Fila> conTamano_;
    std::optional<CercanosAPA> cercanos_; ///< none where a cell or a weight faults
    VecinosAPA vecinos_;
    GiroAPA giro_;
};

} // namespace

std::vector<double> CalcularAPA(const Arboles& arboles, const ContornoXY& contorno, double k,
                                const DibujoAPA& dibujo, const Faena& faena) {
    CeldasTrazadas celdas(dibujo ? arboles.cuantos() : 0);
    const ColumnaAPA columna{arboles, contorno, k, dibujo ? &celdas : nullptr};
    const auto dibujar = [&](std::size_t i) {
        if (auto& celda = celdas[i]) {
            dibujo(i, *celda);
            celda.reset();
        }
    };
    return ParaCadaArbol(arboles, faena, columna, dibujo ? Hacer{dibujar} : Hacer{});
}

std::optional<CirculoCircunscrito> UltimoCirculoAPA(const Arboles& arboles, double k) {
    const PesosAPA pesos{arboles, k};
    const auto conTamano = ConTamano(arboles);
    VecinosAPA vecinos;
    GiroAPA giro;
    for (auto sujeto = conTamano.rbegin(); sujeto != conTamano.rend(); ++sujeto) {
        if (arboles.esVertice(*sujeto)) {
            continue;
        }
        Pareja pareja{*sujeto, *sujeto};
        ReunirVecinos(pesos, conTamano, pareja, vecinos);
        giro.dar(vecinos, pareja);
        if (giro.ultimoCirculo()) {
            return giro.ultimoCirculo();
        }
    }
    return std::nullopt;
}

} // namespace varo
