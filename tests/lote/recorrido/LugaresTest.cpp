// Where a message says that something is wrong: the row of the sheet, the tree, the column and its text.
#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace varo::prueba {
namespace {

constexpr std::size_t columnaRN = 3;
constexpr std::size_t columnaCAP = 8;

/// The square and a sixth tree in it, shuffled, with empty rows above the header and among the trees. Trees
/// 5, 3, 1, 4, 2 and 6 stand in the rows 4, 6, 7, 9, 10 and 11 of the sheet.
Filas CuadradoBarajado() {
    const auto filas = CuadradoConCentro();
    Filas barajadas{{}, {}, filas[0], filas[5], {}, filas[3], filas[1], {}, filas[4], filas[2], filas[5]};
    barajadas[10][0] = 6.0;
    barajadas[10][1] = 6.0;
    return barajadas;
}

std::string ErrorCon(const Filas& filas, const std::string& opciones) {
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.opciones = "Optmetro = true\n" + opciones;
    const std::string error = Correr(parcela, texto).error;
    const std::string ruta = parcela.ruta("trabajo.toml").string() + ": ";
    EXPECT_EQ(error.substr(0, ruta.size()), ruta);
    return error.substr(std::min(ruta.size(), error.size()));
}

const std::string idp = "ChIDPActivar = 1\n'OptRadioFijo(0)' = true\n'TxtBAF1(0)' = 2\n'TxtBAF2(0)' = 2\n"
                        "'TxtBAF3(0)' = 1\n";

TEST(Lugares, ElContornoDiceLaFilaDeLaHojaElArbolLaColumnaYElTexto) {
    auto filas = CuadradoBarajado();
    filas[8][2] = std::string{"1,2,3"};
    EXPECT_EQ(ErrorCon(filas, ""),
              "dibujo del mapa: Error 13: No coinciden los tipos: «1,2,3» no es un número "
              "(fila 9 de «Parcela1$», árbol 4, columna «Y»)");
    filas[8][2] = {};
    EXPECT_EQ(ErrorCon(filas, ""),
              "dibujo del mapa: Error 13: No coinciden los tipos: no hay nada donde se espera un número "
              "(fila 9 de «Parcela1$», árbol 4, columna «Y»)");
    filas[8][2] = std::string{"1E999"};
    EXPECT_EQ(ErrorCon(filas, ""), "dibujo del mapa: Error 6: Desbordamiento: «1E999» es un número demasiado "
                                   "grande (fila 9 de «Parcela1$», árbol 4, columna «Y»)");
}

TEST(Lugares, ElDibujoDiceLaFilaDelRadioQueNoEsNumero) {
    auto filas = CuadradoBarajado();
    filas[3][columnaRN] = std::string{"ancho"};
    EXPECT_EQ(ErrorCon(filas, ""), "dibujo del mapa: Error 13: No coinciden los tipos: «ancho» no es un "
                                   "número (fila 4 de «Parcela1$», árbol 5, columna «RN»)");
}

TEST(Lugares, LasConsultasDicenLaFilaDeLaHojaYElArbol) {
    auto filas = CuadradoBarajado();
    filas[3][columnaCAP] = std::string{"gordo"};
    const std::string lugar = "fila 4 de «Parcela1$», árbol 5, columna «CAP»)";
    EXPECT_EQ(ErrorCon(filas, "ChDmed = 1\n"),
              "cálculo de los índices: Error 3464: No coinciden los tipos de datos en la consulta: el texto "
              "«gordo» no es un número (familia di/dmed, " +
                  lugar);
    EXPECT_EQ(ErrorCon(filas, "ChAB = 1\n"),
              "cálculo de los índices: Error 3464: No coinciden los tipos de datos en la consulta: el texto "
              "«gordo» no es un número (familia ABha, " +
                  lugar);
    EXPECT_EQ(ErrorCon(filas, "ChDdom = 1\n"),
              "cálculo de los índices: Error 13: No coinciden los tipos: «gordo» no es un número "
              "(familia di/ddom, " +
                  lugar);
}

TEST(Lugares, UnaFilaSinCoordenadasQueNoEstaEnLaRejillaSeDiceTambien) {
    auto filas = CuadradoBarajado();
    filas[3][1] = {};
    filas[3][2] = {};
    filas[3][columnaCAP] = std::string{"gordo"};
    EXPECT_NE(
        ErrorCon(filas, "ChDmed = 1\n").find("(familia di/dmed, fila 4 de «Parcela1$», árbol 5, columna"),
        std::string::npos);
}

TEST(Lugares, SinColumnaDeNumerosElArbolSeLlamaComoSuPunto) {
    auto filas = CuadradoBarajado();
    filas[10][columnaCAP] = std::string{"gordo"};
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas.replace(texto.columnas.find("\"Arbol\""), 7, "0");
    texto.opciones = "Optmetro = true\nChDmed = 1\n";
    const std::string error = Correr(parcela, texto).error;
    // The eighth row behind the header; the empty ones count.
    EXPECT_NE(error.find("(familia di/dmed, fila 11 de «Parcela1$», árbol 8, columna «CAP»)"),
              std::string::npos)
        << error;
}

TEST(Lugares, LasFamiliasDeVecinosDicenLaFilaDeLaCelda) {
    auto filas = CuadradoBarajado();
    filas[3][columnaRN] = {};
    EXPECT_EQ(ErrorCon(filas, "Optcirc = true\nChSupCopa = 1\nChISCBil = 1\n"),
              "cálculo de los índices: Error 13: No coinciden los tipos: no hay nada donde se espera un "
              "número (familia ISC, columna ISC(Bil.), fila 4 de «Parcela1$», árbol 5, columna «RN»)");
    filas = CuadradoBarajado();
    filas[10][columnaCAP] = std::string{"gordo"};
    EXPECT_EQ(
        ErrorCon(filas, idp),
        "cálculo de los índices: Error 13: No coinciden los tipos: «gordo» no es un número (familia IDP, "
        "columna IDP(R:2;Bil.;Sí), al calcular la fila 4, árbol 5, fila 11 de «Parcela1$», árbol 6, "
        "columna «CAP»)");
}

TEST(Lugares, ElISCDeElipsesDiceElArbolYLaCausa) {
    const std::string elipses = "ChSupCopa = 1\nChISCBil = 1\n";
    const std::string principio = "cálculo de los índices: Error 11: División por cero: ";
    const std::string lugar = " (familia ISC, columna ISC(Bil.), fila 4 de «Parcela1$», árbol 5)";
    // The crown of 10 m reaches the square, whose sides are upright.
    EXPECT_EQ(ErrorCon(CuadradoBarajado(), elipses),
              principio +
                  "un lado del contorno es vertical: dos árboles seguidos del contorno tienen la misma X" +
                  lugar);
    auto filas = CuadradoBarajado();
    for (std::size_t radio = columnaRN; radio < columnaRN + 4; ++radio) {
        filas[3][radio] = 0.03;
        filas[10][radio] = 1.0;
    }
    EXPECT_EQ(ErrorCon(filas, elipses), principio +
                                            "ninguna de las muestras, una cada 0,1 m, cae en la copa: revise "
                                            "sus radios y la unidad en que están" +
                                            lugar);
    filas[3][columnaRN] = {}; // 0 on the map
    EXPECT_EQ(ErrorCon(filas, elipses), "cálculo de los índices: Error 13: No coinciden los tipos: no hay "
                                        "nada donde se espera un número (familia ISC, "
                                        "columna ISC(Bil.), fila 4 de «Parcela1$», árbol 5, columna «RN»)");
}

TEST(Lugares, UnFalloEntreDosArbolesNombraALosDos) {
    auto filas = CuadradoBarajado();
    filas[10][1] = 4.0; // both in one place
    const std::string error = ErrorCon(filas, idp);
    EXPECT_NE(error.find("fila 4 de «Parcela1$», árbol 5, con el vecino de la fila 11, árbol 6"),
              std::string::npos)
        << error;
}

TEST(Lugares, ElNumeroDelArbolPuedeSerElDePunto) {
    auto filas = CuadradoBarajado();
    filas[8][2] = std::string{"x"};
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas.replace(texto.columnas.find("\"Arbol\""), 7, "0");
    const std::string error = Correr(parcela, texto).error;
    EXPECT_NE(error.find("(fila 9 de «Parcela1$», árbol 6, columna «Y»)"), std::string::npos) << error;
}

} // namespace
} // namespace varo::prueba
