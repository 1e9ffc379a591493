#include "indices/apa/APA.h"

#include "basico/Saltando.h"
#include "indices/apa/APACercanos.h"
#include "indices/vecinos/Marcas.h"

#include <algorithm>
#include <optional>

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

class ColumnaAPA {
public:
    ColumnaAPA(const Arboles& arboles, const ContornoXY& contorno, double k, const DibujoAPA& dibujo)
        : arboles_{arboles}, contorno_{contorno}, dibujo_{dibujo}, pesos_{arboles, k}, conTamano_{ConTamano(
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
        if (!dibujo_) {
            return MedirCelda(giro_.lados(), contorno_, nullptr);
        }
        const double valor = MedirCelda(giro_.lados(), contorno_, &trazos_);
        dibujo_(i, trazos_);
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
    const DibujoAPA& dibujo_;
    PesosAPA pesos_;
    std::vector<VecinosAPA::Fila> conTamano_;
    std::optional<CercanosAPA> cercanos_; ///< none where a cell or a weight faults
    VecinosAPA vecinos_;
    GiroAPA giro_;
    std::vector<TrazoAPA> trazos_;
};

} // namespace

std::vector<double> CalcularAPA(const Arboles& arboles, const ContornoXY& contorno, double k,
                                const DibujoAPA& dibujo, const Avance& avance) {
    ColumnaAPA columna{arboles, contorno, k, dibujo};
    return ParaCadaArbol(arboles, avance, [&](Pareja& pareja) { return columna.indice(pareja); });
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
