#include "avisos/CercarParcela.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "data/CodigosDeLaRejilla.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "plot/ConstruirPoligono.h"
#include "plot/calculo/Envolvente.h"
#include "plot/calculo/PorHectarea.h"
#include "shell/Programa.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo {

namespace {

std::string EnPalabras(const ErrorEjecucion& error) {
    return error.causa().empty() ? error.what() : error.causa();
}

/// The trees in the order in which the boundary looks at them.
struct ArbolesEnOrden {
    std::vector<double> x, y;
    std::vector<int> filas; ///< of the grid
};

class Cercador {
public:
    Cercador(ParcelaPorRevisar& parcela, Programa& programa)
        : parcela_{parcela}, rejilla_{programa.tocar<Hojadedatos>().MSFlexGrid1},
          base_{programa.tocar<Hojadedatos>().Data1.Database()} {}

    void cercar() {
        const auto arboles = arbolesEnOrden();
        if (!arboles || arboles->x.empty()) {
            return;
        }
        parcela_.enOrden = estanEnOrden(arboles->filas);
        auto& contorno = parcela_.contorno.emplace();
        try {
            for (const int arbol : EnvolverArboles(arboles->x, arboles->y).arboles) {
                const auto i = static_cast<std::size_t>(arbol);
                contorno.x.push_back(arboles->x[i]);
                contorno.y.push_back(arboles->y[i]);
                poligono_.anadir(arboles->x[i], arboles->y[i], {codigo(arboles->filas[i])});
            }
            contorno.superficie.valor = SuperficieDelContorno(poligono_.contorno(), poligono_.filas());
        } catch (const ErrorEjecucion& error) {
            contorno.superficie.fallo = EnPalabras(error);
        }
    }

    /// Without an area there are no stems per hectare, and the boundary tells why.
    void contar() {
        if (!parcela_.contorno || !parcela_.contorno->superficie.fallo.empty() ||
            parcela_.contorno->superficie.valor == 0) {
            return;
        }
        if (!columnaContada().unaPalabra) {
            return; // what is wrong with the header is told as such
        }
        const auto& opciones = parcela_.opciones;
        const bool porCodigos = opciones.datosDeParcela && parcela_.codigo;
        if (opciones.independientes.pies || opciones.independientes.areasProporcionales ||
            (opciones.datosDeParcela && !porCodigos)) {
            contarTodos();
        }
        if (porCodigos) {
            contarPorCodigos();
        }
    }

private:
    [[nodiscard]] const std::string& celda(int fila, const ColumnaPorRevisar& columna) const {
        return rejilla_.TextMatrix(fila, columna.numero - 1);
    }

    [[nodiscard]] Valor codigo(int fila) const {
        return parcela_.codigo ? Valor{celda(fila, *parcela_.codigo)} : Valor{};
    }

    /// Whether the trees are the first rows of the sheet and rise by its first field, each with a value of
    /// its own.
    [[nodiscard]] bool estanEnOrden(std::vector<int> filas) const {
        const auto registro = [&](int fila) { return ANumero(rejilla_.TextMatrix(fila, 0)); };
        std::ranges::sort(filas, {}, registro);
        const std::vector<int> porElPrimero = rejilla_.filasEnOrden(1);
        std::vector<std::size_t> puesto(porElPrimero.size() + 1);
        for (std::size_t n = 0; n < porElPrimero.size(); ++n) {
            puesto[static_cast<std::size_t>(porElPrimero[n])] = n;
        }
        for (std::size_t n = 0; n < filas.size(); ++n) {
            const bool esLaSuya = registro(filas[n]) == static_cast<double>(n + 1);
            const bool sube =
                n == 0 || (puesto[static_cast<std::size_t>(filas[n - 1])] <
                               puesto[static_cast<std::size_t>(filas[n])] &&
                           rejilla_.TextMatrix(filas[n - 1], 1) != rejilla_.TextMatrix(filas[n], 1));
            if (!esLaSuya || !sube) {
                return false;
            }
        }
        return true;
    }

    /// Nothing where a coordinate is no number. The rows without any leave the grid before the map.
    [[nodiscard]] std::optional<ArbolesEnOrden> arbolesEnOrden() const {
        ArbolesEnOrden arboles;
        for (const int fila : rejilla_.filasEnOrden(parcela_.x.numero - 1)) {
            const std::string& x = celda(fila, parcela_.x);
            const std::string& y = celda(fila, parcela_.y);
            if (x.empty() && y.empty()) {
                continue;
            }
            if (!EsNumerico(x) || !EsNumerico(y)) {
                return std::nullopt;
            }
            arboles.x.push_back(ANumero(x));
            arboles.y.push_back(ANumero(y));
            arboles.filas.push_back(fila);
        }
        return arboles;
    }

    [[nodiscard]] const ColumnaPorRevisar& columnaContada() const {
        return parcela_.codigo ? *parcela_.codigo : parcela_.copa.front();
    }

    void contarTodos() {
        const auto& contada = columnaContada();
        PiesPorRevisar pies;
        try {
            pies.porHectarea.valor =
                PiesPorHectarea(base_, contada.cabecera, parcela_.tabla, poligono_.filas(), superficie());
        } catch (const ErrorEjecucion& error) {
            pies.porHectarea.fallo = EnPalabras(error);
        }
        parcela_.pies.push_back(pies);
    }

    void contarPorCodigos() {
        const auto codigos = CodigosDeLaRejilla(rejilla_, parcela_.codigo->numero - 1);
        CifrasPorCodigo cifras;
        std::string fallo;
        try {
            PiesDeCodigos({base_, parcela_.codigo->cabecera, parcela_.tabla, codigos}, poligono_,
                          poligono_.filas(), superficie(), cifras);
        } catch (const ErrorEjecucion& error) {
            fallo = EnPalabras(error);
        }
        const int contados = cifras.porHectarea.limite() + 1;
        for (int i = 0; i < contados; ++i) {
            parcela_.pies.push_back(
                {codigos[static_cast<std::size_t>(i)], {.valor = cifras.porHectarea(i), .fallo = {}}});
        }
        if (!fallo.empty()) {
            parcela_.pies.push_back(
                {codigos[static_cast<std::size_t>(contados)], {.valor = 0, .fallo = fallo}});
        }
    }

    [[nodiscard]] double superficie() const { return parcela_.contorno->superficie.valor; }

    ParcelaPorRevisar& parcela_;
    const Rejilla& rejilla_;
    const BaseDatos& base_;
    TablaPoligono poligono_;
};

} // namespace

void Cercar(ParcelaPorRevisar& parcela, Programa& programa) {
    Cercador cercador{parcela, programa};
    cercador.cercar();
    cercador.contar();
}

} // namespace varo
