// What makes the findings about a sheet stand, and what makes them old.
#include "avisos/HojaPorRevisar.h"

#include "apoyo/Jornada.h"

#include <gtest/gtest.h>

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
