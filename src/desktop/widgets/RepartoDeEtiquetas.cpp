#include "desktop/widgets/RepartoDeEtiquetas.h"

#include <algorithm>
#include <map>
#include <utility>

namespace varo {

namespace {

constexpr int margen = 12;
constexpr int margenInferior = 4; ///< leaves room for a bar across, by design
constexpr int entreColumnas = 14;
constexpr int entreFilas = 2;

/// A row or a column.
struct FranjaDeEtiquetas {
    int medida = 0; ///< of its largest text
    int cuantas = 0;
    int lugar = 0;
};

using ColumnaDeEtiquetas = std::pair<int, int>; ///< left edge and index

int DisenoDe(int franja) {
    return franja;
}

int DisenoDe(const ColumnaDeEtiquetas& columna) {
    return columna.first;
}

void Anotar(FranjaDeEtiquetas& franja, int medida) {
    franja.medida = std::max(franja.medida, medida);
    ++franja.cuantas;
}

/// Each one in its place, or behind the one before.
template <class Clave>
void Colocar(std::map<Clave, FranjaDeEtiquetas>& franjas, int separacion) {
    int libre = 0;
    for (auto& [clave, franja] : franjas) {
        franja.lugar = std::max(DisenoDe(clave), libre);
        libre = franja.lugar + franja.medida + separacion;
    }
}

class Repartidor {
public:
    Repartidor(const std::vector<EtiquetaPorRepartir>& etiquetas, int anchoALaVista)
        : anchoALaVista_{anchoALaVista} {
        for (const auto& etiqueta : etiquetas) {
            if (!etiqueta.texto.isEmpty()) {
                Anotar(filas_[etiqueta.diseno.top()], etiqueta.texto.height());
            }
        }
        Colocar(filas_, entreFilas);
        for (const auto& etiqueta : etiquetas) {
            if (esDeTabla(etiqueta)) {
                Anotar(columnas_[columnaDe(etiqueta)], etiqueta.texto.width());
            }
        }
        Colocar(columnas_, entreColumnas);
    }

    [[nodiscard]] QRect lugar(const EtiquetaPorRepartir& etiqueta) const {
        if (etiqueta.texto.isEmpty()) {
            return etiqueta.diseno;
        }
        const int arriba = filas_.at(etiqueta.diseno.top()).lugar;
        if (etiqueta.centrada) {
            const int enMedio = (anchoALaVista_ - etiqueta.texto.width()) / 2;
            return {{std::max(margen, enMedio), arriba}, etiqueta.texto};
        }
        if (esDeTabla(etiqueta)) {
            return {{columnas_.at(columnaDe(etiqueta)).lugar, arriba}, etiqueta.texto};
        }
        return {{etiqueta.diseno.left(), arriba}, etiqueta.texto.expandedTo({etiqueta.diseno.width(), 0})};
    }

private:
    static ColumnaDeEtiquetas columnaDe(const EtiquetaPorRepartir& etiqueta) {
        return {etiqueta.diseno.left(), etiqueta.indice};
    }
    [[nodiscard]] bool esDeTabla(const EtiquetaPorRepartir& etiqueta) const {
        return !etiqueta.texto.isEmpty() && filas_.at(etiqueta.diseno.top()).cuantas > 1;
    }

    std::map<int, FranjaDeEtiquetas> filas_;
    std::map<ColumnaDeEtiquetas, FranjaDeEtiquetas> columnas_;
    int anchoALaVista_;
};

} // namespace

Reparto Repartir(const std::vector<EtiquetaPorRepartir>& etiquetas, int anchoALaVista) {
    const Repartidor repartidor{etiquetas, anchoALaVista};
    Reparto reparto;
    for (const auto& etiqueta : etiquetas) {
        const QRect lugar = repartidor.lugar(etiqueta);
        reparto.lugares.push_back(lugar);
        if (!etiqueta.texto.isEmpty()) {
            const QSize hasta{lugar.left() + etiqueta.texto.width() + margen,
                              lugar.top() + etiqueta.texto.height() + margenInferior};
            reparto.total = reparto.total.expandedTo(hasta);
        }
    }
    return reparto;
}

} // namespace varo
