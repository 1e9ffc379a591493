#include "lote/revision/RevisarTrabajo.h"

#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

const ErrorTrabajo delDibujo{
    "t.toml", {"dibujo del mapa"}, "Error 6: Desbordamiento", Estado::FalloDeCalculo, 6};

TEST(RevisarTrabajo, UnFalloDelDibujoQueNadieHaVistoEsUnHallazgo) {
    std::vector<Hallazgo> hallazgos(1); // worth a look
    AnadirFalloDelDibujo(hallazgos, delDibujo);
    ASSERT_EQ(hallazgos.size(), 2U);
    EXPECT_EQ(hallazgos[0].sospecha, Sospecha::DibujoConFallo);
    EXPECT_EQ(hallazgos[0].gravedad, Gravedad::Fallo);
    EXPECT_EQ(hallazgos[0].que, "El mapa no se puede dibujar: Error 6: Desbordamiento.");
    AnadirFalloDelDibujo(hallazgos, delDibujo);
    EXPECT_EQ(hallazgos.size(), 2U) << "ya lo dice otro";
}

TEST(RevisarTrabajo, UnTrabajoQueNoLlegaAlMapaEsUnError) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.columnas = "X = 'No está'\n";
    const auto trabajo = InterpretarTrabajo(texto.texto(), parcela.ruta("trabajo.toml"));
    EXPECT_NE(ErrorDe([&] { RevisarTrabajo(trabajo); }).find("«No está»"), std::string::npos);
}

TEST(RevisarTrabajo, SoloCuentaLoQueElTrabajoPide) {
    auto filas = CuadradoConCentro();
    filas[5][3] = Valor{}; // a crown measure of the tree in the middle
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.opciones = "ChSupCopa = 1\nOptcirc = true\n";
    const auto gravedad = [&] {
        return RevisarTrabajo(InterpretarTrabajo(texto.texto(), parcela.ruta("trabajo.toml"))).at(0).gravedad;
    };
    EXPECT_EQ(gravedad(), Gravedad::Fallo);
    texto.salida = "datos = 'datos.txt'\n";
    EXPECT_EQ(gravedad(), Gravedad::Numeros) << "ISC no se calcula";
    texto.salida = "mapa = 'mapa.txt'\n";
    EXPECT_EQ(gravedad(), Gravedad::Mirar);
}

} // namespace
} // namespace varo::prueba
