#include "plot/ConstruirPoligono.h"

#include "basico/EnLugar.h"
#include "basico/Texto.h"
#include "data/CeldasSituadas.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "data/Papeles.h"
#include "options/Unidades.h"
#include "plot/calculo/AreaBasimetrica.h"
#include "plot/calculo/Envolvente.h"
#include "shell/Programa.h"

namespace varo {

namespace {

/// The cleaning of the grid leaves one row even where no row has coordinates.
void ExigirAlgunArbol(const Rejilla& rejilla, int columnaX, int columnaY) {
    if (rejilla.Rows() == 2 && rejilla.TextMatrix(1, columnaX).empty() &&
        rejilla.TextMatrix(1, columnaY).empty()) {
        throw ErrorEjecucion{fallo::tiposDistintos}.porque(
            "la parcela no tiene ningún árbol: todas las filas tienen vacías las columnas «" +
            rejilla.TextMatrix(0, columnaX) + "» y «" + rejilla.TextMatrix(0, columnaY) + "»");
    }
}

void OrdenarPor(Rejilla& rejilla, int columna) {
    rejilla.Col(columna);
    rejilla.ordenarAscendente();
}

/// Mean crown radius of one tree in the unit of the sheet.
double RadioMedio(const CeldasSituadas& celdas, int fila, const Sesion& sesion, DatosDeCopa datos) {
    const auto medida = [&](int n) { return celdas.numero(fila, sesion.Columnas(PapelDeCopa(n)).valor()); };
    switch (datos) {
    case DatosDeCopa::CuatroRadios:
        return (medida(0) + medida(1) + medida(2) + medida(3)) / 4;
    case DatosDeCopa::DosDiametros:
        return (medida(0) + medida(1)) / 4;
    case DatosDeCopa::RadioMedio:
        break;
    }
    return medida(0);
}

/// What a row of the boundary holds behind x and y.
std::vector<Valor> DatosDelVertice(const CeldasSituadas& celdas, int fila, const Sesion& sesion,
                                   const OpcionesPrograma& opciones) {
    const bool conCodigo = opciones.ChCodigo.Value() == 1;
    const int ultima = sesion.UltimaColumna.valor();
    const int columnaDAP = sesion.ColumnaDAP.valor();
    std::vector<Valor> datos;
    if (conCodigo) {
        datos.emplace_back(celdas.texto(fila, sesion.Columnas(ultima).valor()));
    }
    const double tamano = celdas.texto(fila, columnaDAP).empty() ? 0 : celdas.numero(fila, columnaDAP);
    const auto explicar = [&](ErrorEjecucion& error) {
        error.porque("el tamaño " + Cita(celdas.texto(fila, columnaDAP)) + " es demasiado grande");
        celdas.situar(error, fila, columnaDAP);
    };
    datos.emplace_back(
        AlFallar(explicar, [&] { return AreaBasimetrica(tamano, UnidadesDelTallo(opciones)); }));
    datos.emplace_back(RadioMedio(celdas, fila, sesion, DatosDeLaCopa(opciones)) /
                       sesion.FactorRadios.valor());
    datos.emplace_back(celdas.texto(fila, sesion.Columnas(conCodigo ? ultima - 1 : ultima).valor()));
    return datos;
}

/// The side that leads to the next vertex of the boundary.
void GuardarLado(Sesion& sesion, const Envolvente& envolvente) {
    const int lado = sesion.NumPuntosPoligono.valor() - 1;
    sesion.AnguloLado.redimensionarConservando(lado);
    sesion.AnguloLado(lado) = envolvente.AnguloLado[static_cast<std::size_t>(lado)];
}

MatrizDinamica<double> EnMatriz(const std::vector<double>& numeros) {
    MatrizDinamica<double> matriz;
    matriz.redimensionar(static_cast<int>(numeros.size()) - 1);
    for (int i = 0; i <= matriz.limite(); ++i) {
        matriz(i) = numeros[static_cast<std::size_t>(i)];
    }
    return matriz;
}

} // namespace

void ConstruirPoligono(Programa& programa) {
    auto& sesion = programa.sesion;
    auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    sesion.FactorRadios = FactorDeRadios(opciones);

    const int columnaX = sesion.Columnas(papelX).valor();
    const int columnaY = sesion.Columnas(papelY).valor();
    OrdenarPor(rejilla, columnaX);
    const CeldasSituadas celdas{rejilla, PadronDeLaRejilla(programa)};
    ExigirAlgunArbol(rejilla, columnaX, columnaY);
    const std::vector<double> x = celdas.columna(columnaX);
    const std::vector<double> y = celdas.columna(columnaY);
    const Envolvente envolvente = EnvolverArboles(x, y);

    sesion.Poligono.vaciar();
    sesion.NumPuntosPoligono = 0;
    for (const int arbol : envolvente.arboles) {
        const auto i = static_cast<std::size_t>(arbol);
        if (sesion.NumPuntosPoligono > 0) {
            GuardarLado(sesion, envolvente);
        }
        sesion.Poligono.anadir(x[i], y[i], DatosDelVertice(celdas, arbol + 1, sesion, opciones));
        ++sesion.NumPuntosPoligono;
    }
    sesion.AnguloInterior = EnMatriz(envolvente.AnguloInterior);
    OrdenarPor(rejilla, 1);
}

double SuperficieDelContorno(const ContornoXY& contorno, int n) {
    return Porque(
        fallo::argumentoNoValido,
        [] { return "no se puede hallar la superficie: los árboles del contorno están casi en una línea"; },
        [&] { return AreaPoligono(contorno, n); });
}

} // namespace varo
