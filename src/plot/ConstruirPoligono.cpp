#include "plot/ConstruirPoligono.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "options/Unidades.h"
#include "plot/calculo/AreaBasimetrica.h"
#include "plot/calculo/Envolvente.h"
#include "shell/Programa.h"

namespace varo {

namespace {

/// The cells of the trees, with the place in every fault.
class CeldasDeArboles {
public:
    explicit CeldasDeArboles(const Rejilla& rejilla) : rejilla_{rejilla} {}

    [[nodiscard]] const std::string& texto(int fila, int columna) const {
        return rejilla_.TextMatrix(fila, columna);
    }

    [[nodiscard]] double numero(int fila, int columna) const {
        try {
            return ANumero(texto(fila, columna));
        } catch (ErrorEjecucion& error) {
            error.en("columna «" + rejilla_.TextMatrix(0, columna) + "»")
                .en("árbol de la fila " + rejilla_.TextMatrix(fila, 0));
            throw;
        }
    }

    /// Every tree of the grid, in its order.
    [[nodiscard]] std::vector<double> columna(int columna) const {
        std::vector<double> valores;
        valores.reserve(static_cast<std::size_t>(rejilla_.Rows()));
        for (int fila = 1; fila < rejilla_.Rows(); ++fila) {
            valores.push_back(numero(fila, columna));
        }
        return valores;
    }

private:
    const Rejilla& rejilla_;
};

void OrdenarPor(Rejilla& rejilla, int columna) {
    rejilla.Col(columna);
    rejilla.OrdenarAscendente();
}

/// Mean crown radius of one tree in the unit of the sheet.
double RadioMedio(const CeldasDeArboles& celdas, int fila, const Sesion& sesion, FormaDeCopa forma) {
    const auto medida = [&](int papel) { return celdas.numero(fila, sesion.Columnas(papel).valor()); };
    switch (forma) {
    case FormaDeCopa::CuatroRadios:
        return (medida(2) + medida(3) + medida(4) + medida(5)) / 4;
    case FormaDeCopa::DosDiametros:
        return (medida(2) + medida(3)) / 4;
    case FormaDeCopa::RadioMedio:
        break;
    }
    return medida(2);
}

/// What a row of the boundary holds behind x and y.
std::vector<Valor> DatosDelVertice(const CeldasDeArboles& celdas, int fila, const Sesion& sesion,
                                   const OpcionesPrograma& opciones) {
    const bool conCodigo = opciones.ChCodigo.Value() == 1;
    const int ultima = sesion.UltimaColumna.valor();
    const int columnaDAP = sesion.ColumnaDAP.valor();
    std::vector<Valor> datos;
    if (conCodigo) {
        datos.emplace_back(celdas.texto(fila, sesion.Columnas(ultima).valor()));
    }
    const double tamano = celdas.texto(fila, columnaDAP).empty() ? 0 : celdas.numero(fila, columnaDAP);
    datos.emplace_back(AreaBasimetrica(tamano, UnidadesDelTallo(opciones)));
    datos.emplace_back(RadioMedio(celdas, fila, sesion, FormaDeLaCopa(opciones)) /
                       sesion.FactorRadios.valor());
    datos.emplace_back(celdas.texto(fila, sesion.Columnas(conCodigo ? ultima - 1 : ultima).valor()));
    return datos;
}

} // namespace

void ConstruirPoligono(Programa& programa) {
    auto& sesion = programa.sesion;
    auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    sesion.FactorRadios = FactorDeRadios(opciones);

    const int columnaX = sesion.Columnas(0).valor();
    OrdenarPor(rejilla, columnaX);
    const CeldasDeArboles celdas{rejilla};
    const std::vector<double> x = celdas.columna(columnaX);
    const std::vector<double> y = celdas.columna(sesion.Columnas(1).valor());
    Envolvente envolvente = EnvolverArboles(x, y);

    sesion.Poligono.vaciar();
    sesion.NumPuntosPoligono = 0;
    for (const int arbol : envolvente.arboles) {
        const auto i = static_cast<std::size_t>(arbol);
        sesion.Poligono.anadir(x[i], y[i], DatosDelVertice(celdas, arbol + 1, sesion, opciones));
        ++sesion.NumPuntosPoligono;
    }
    sesion.AnguloLado = std::move(envolvente.AnguloLado);
    sesion.AnguloInterior = std::move(envolvente.AnguloInterior);
    OrdenarPor(rejilla, 1);
}

} // namespace varo
