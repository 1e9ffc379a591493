// What makes the findings about a sheet stand, and what makes them old.
#include "avisos/HojaPorRevisar.h"

#include "apoyo/Jornada.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {

class LaHojaQueSeRevisa : public testing::Test, protected Jornada {
protected:
    LaHojaQueSeRevisa() {
        abrirParcela(CuadradoConCentro());
        pedirColumnas();
        elegirTodas();
    }

    SelCol4R& dialogo() { return programa.tocar<SelCol4R>(); }
    void elegirTodas() {
        for (int papel = 0; papel <= 5; ++papel) {
            elegirPapel(dialogo(), papel, papel + 2);
        }
        elegirPapel(dialogo(), 6, 1);
        elegirPapel(dialogo(), 7, 8);
        elegirDAP(dialogo(), 9);
    }
    HojaPorRevisar hoja() { return LaHojaPorRevisar(programa, {}); }
};

TEST_F(LaHojaQueSeRevisa, EsLaMismaMientrasNadaCambia) {
    const HojaPorRevisar antes = hoja();
    EXPECT_EQ(antes.archivo, carpeta.archivo("parcela.xls"));
    EXPECT_EQ(antes.hoja, "Parcela1$");
    EXPECT_EQ(antes.columnas, (std::vector<int>{2, 3, 4, 5, 6, 7, 1, 8}));
    EXPECT_EQ(antes.columnaDelTamano, 9);
    seleccionarColumna(3);
    EXPECT_EQ(hoja(), antes);
}

TEST_F(LaHojaQueSeRevisa, ElDibujoDelMapaNoLaCambia) {
    const HojaPorRevisar antes = hoja();
    usuario.clic(dialogo().CmdDibujar);
    EXPECT_EQ(hoja(), antes);
}

TEST(LosAvisosDeLaHoja, SonLosMismosAntesYDespuesDelMapa) {
    Jornada jornada;
    Filas filas = CuadradoConCentro();
    filas.emplace_back(filas[0].size());
    filas.back()[0] = std::string{"Total"};
    filas.back()[8] = 330.0;
    filas[2][1] =
        0.5; // with two trees of the least x, the walk of the boundary begins at the first one in the grid
    filas[4][1] = 10.3;
    std::swap(filas[1], filas[3]);
    jornada.abrirParcela(filas);
    jornada.dibujarCuadrado();
    const auto dichos = [&] {
        std::vector<std::string> frases;
        for (const Hallazgo& hallazgo : AvisosDeLaHoja(jornada.programa, {})) {
            frases.push_back(std::to_string(hallazgo.fila) + hallazgo.que);
        }
        return frases;
    };
    const auto despues = dichos();
    jornada.usuario.clic(jornada.marco().mnuCerrar);
    jornada.abrirParcela(filas);
    jornada.pedirColumnas(); // the roles are still those of before
    EXPECT_FALSE(despues.empty());
    EXPECT_EQ(dichos(), despues);
}

TEST_F(LaHojaQueSeRevisa, OtraColumnaLaCambia) {
    const HojaPorRevisar antes = hoja();
    usuario.clic(dialogo().CmdQuitarTodo);
    elegirTodas();
    EXPECT_EQ(hoja(), antes);
    usuario.clic(dialogo().CmdQuitarTodo);
    elegirPapel(dialogo(), 0, 3);
    EXPECT_NE(hoja(), antes);
}

TEST_F(LaHojaQueSeRevisa, OtroTamanoDelTroncoLaCambia) {
    const HojaPorRevisar antes = hoja();
    usuario.clic(dialogo().CmdQuitarTodo);
    elegirDAP(dialogo(), 4);
    EXPECT_NE(hoja(), antes);
}

TEST_F(LaHojaQueSeRevisa, OtraOpcionLaCambiaYVolverAElla) {
    const HojaPorRevisar antes = hoja();
    cambiarOpciones([this](OpcionesPrograma& opciones) { usuario.clic(opciones.OptDMDIA); });
    EXPECT_NE(hoja(), antes);
    cambiarOpciones([this](OpcionesPrograma& opciones) { usuario.clic(opciones.OptCMDIA); });
    EXPECT_EQ(hoja(), antes);
}

TEST_F(LaHojaQueSeRevisa, LoPedidoCuenta) {
    EXPECT_NE(LaHojaPorRevisar(programa, {.indices = true, .datosDeParcela = false}), hoja());
}

TEST_F(LaHojaQueSeRevisa, ElCodigoCuenta) {
    const HojaPorRevisar antes = hoja();
    cambiarOpciones([this](OpcionesPrograma& opciones) { usuario.clic(opciones.ChCodigo); });
    EXPECT_NE(hoja(), antes);
}

} // namespace varo::prueba
