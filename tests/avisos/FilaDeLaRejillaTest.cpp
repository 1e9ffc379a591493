// Rows of the sheet in a grid that has lost some of them and stands in another order.
#include "avisos/FilaDeLaRejilla.h"

#include "apoyo/Jornada.h"
#include "data/Hojadedatos.h"

#include <gtest/gtest.h>

namespace varo::prueba {

class LaFilaDeLaRejilla : public testing::Test, protected Jornada {
protected:
    Rejilla& rejilla() { return programa.tocar<Hojadedatos>().MSFlexGrid1; }
    std::string arbolDe(int filaDeLaHoja) {
        const auto fila = FilaDeLaRejilla(programa, filaDeLaHoja);
        return fila ? rejilla().TextMatrix(*fila, 1) : "ninguno";
    }
};

TEST_F(LaFilaDeLaRejilla, LaPrimeraFilaConDatosEsLaDosDeLaHoja) {
    abrirParcela(CuadradoConCentro());
    EXPECT_EQ(FilaDeLaRejilla(programa, 2), 1);
    EXPECT_EQ(FilaDeLaRejilla(programa, 6), 5);
    for (const int fuera : {-1, 0, 1, 7}) {
        EXPECT_EQ(FilaDeLaRejilla(programa, fuera), std::nullopt) << fuera;
    }
}

TEST_F(LaFilaDeLaRejilla, UnaFilaEnBlancoNoEstaYLasDeDetrasConservanSuNumero) {
    Filas filas = CuadradoConCentro();
    filas.insert(filas.begin() + 3, std::vector<Valor>(filas[0].size()));
    abrirParcela(filas);
    EXPECT_EQ(arbolDe(3), "2");
    EXPECT_EQ(FilaDeLaRejilla(programa, 4), std::nullopt);
    EXPECT_EQ(FilaDeLaRejilla(programa, 5), 3);
    EXPECT_EQ(arbolDe(5), "3");
}

TEST_F(LaFilaDeLaRejilla, SigueALasFilasQueElMapaOrdena) {
    Filas filas = CuadradoConCentro();
    std::swap(filas[1], filas[3]); // the tree 3 first: the map puts the rows in the order of their x
    filas.insert(filas.begin() + 2, filas[5]);
    filas[2][1] = Valor{};
    filas[2][2] = Valor{};
    abrirParcela(filas);
    EXPECT_EQ(arbolDe(2), "3");
    EXPECT_EQ(arbolDe(3), "5");
    dibujarCuadrado();
    EXPECT_EQ(arbolDe(2), "3");
    EXPECT_NE(FilaDeLaRejilla(programa, 2), 1);
    EXPECT_EQ(FilaDeLaRejilla(programa, 3), std::nullopt) << "sin coordenadas";
    EXPECT_EQ(arbolDe(4), "2");
}

} // namespace varo::prueba
