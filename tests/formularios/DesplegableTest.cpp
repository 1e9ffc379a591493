#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

TEST(Desplegable, NaceEditableVacioYSinLineas) {
    Banco banco;
    const Desplegable caja{banco.ventana, "CboHoja"};
    EXPECT_TRUE(caja.editable());
    EXPECT_EQ(caja.Text(), "");
    EXPECT_EQ(caja.ListCount(), 0);
}

TEST(Desplegable, PuedeNoSerEditable) {
    Banco banco;
    const Desplegable caja{banco.ventana, "CboTitColor", false};
    EXPECT_FALSE(caja.editable());
}

TEST(Desplegable, UnTextoDistintoCambiaYElMismoNo) {
    Banco banco;
    Desplegable caja{banco.ventana, "CboHoja"};
    caja.Change = banco.anotador("Change");
    caja.Text = "(ninguna)";
    EXPECT_EQ(banco.visto(), Diario{"Change"});
    caja.Text = "(ninguna)";
    EXPECT_EQ(banco.visto(), Diario{});
}

TEST(Desplegable, SuTextoNoTieneQueEstarEnLaLista) {
    Banco banco;
    Desplegable caja{banco.ventana, "CboHoja"};
    caja.AddItem("Parcela1$");
    caja.Text = "(ninguna)";
    EXPECT_EQ(caja.Text(), "(ninguna)");
    EXPECT_EQ(caja.ListCount(), 1);
    EXPECT_EQ(caja.List(0), "Parcela1$");
}

TEST(Desplegable, VaciarLaListaDejaElTexto) {
    Banco banco;
    Desplegable caja{banco.ventana, "CboHoja"};
    caja.AddItem("Parcela1$");
    caja.Text = "Parcela1$";
    caja.Clear();
    EXPECT_EQ(caja.ListCount(), 0);
    EXPECT_EQ(caja.Text(), "Parcela1$");
}

TEST(Desplegable, AvisaCuandoCambiaSuFuenteOSuFondoSinLanzarChange) {
    Banco banco;
    Desplegable caja{banco.ventana, "CboTitFont"};
    caja.Change = banco.anotador("Change");
    caja.observar(banco.anotador("aviso"));
    Fuente negrita = caja.Font();
    negrita.negrita = true;
    caja.Font = negrita;
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    caja.BackColor = 255;
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
}

} // namespace varo
