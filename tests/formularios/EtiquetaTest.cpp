#include "formularios/MedidaDeTexto.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

TEST(MedidaDeTexto, UnCaracterDeOchoPuntosMide75TwipsYLaLinea192) {
    EXPECT_EQ(MedirTexto("Parcela", Fuente{.tamano = 8}), (MedidaDeTexto{7 * 75, 192}));
    EXPECT_EQ(MedirTexto("año", Fuente{.tamano = 16}), (MedidaDeTexto{3 * 150, 384}))
        << "caracteres, no bytes";
    EXPECT_EQ(MedirTexto("ab", Fuente{.tamano = 10}), (MedidaDeTexto{187.5, 240}));
}

TEST(MedidaDeTexto, UnTextoVacioTieneLaAlturaDeSuLetraY300TwipsDeAncho) {
    EXPECT_EQ(MedirTexto("", Fuente{.tamano = 8}), (MedidaDeTexto{300, 192}));
    EXPECT_EQ(MedirTexto("", Fuente{.tamano = 20}), (MedidaDeTexto{300, 480}));
}

TEST(Etiqueta, TieneLetraColorYFondoTransparente) {
    Banco banco;
    const Etiqueta etiqueta{banco.ventana, "Lb"};
    EXPECT_EQ(etiqueta.Font(), Fuente{});
    EXPECT_EQ(etiqueta.ForeColor(), 0);
    EXPECT_EQ(etiqueta.BackColor(), std::nullopt);
}

TEST(Etiqueta, SeAjustaASuTextoCuandoElOSuLetraCambian) {
    Banco banco;
    Etiqueta etiqueta{banco.ventana, "Lb", "roble"};
    EXPECT_EQ(etiqueta.Width(), 0) << "por diseño no se ajusta";
    etiqueta.AutoSize = true;
    EXPECT_EQ(etiqueta.Width(), 5 * 75);
    EXPECT_EQ(etiqueta.Height(), 192);
    etiqueta.Caption = "haya";
    EXPECT_EQ(etiqueta.Width(), 4 * 75);
    etiqueta.Font = Fuente{.tamano = 24};
    EXPECT_EQ(etiqueta.Width(), 4 * 225);
    EXPECT_EQ(etiqueta.Height(), 576);
    etiqueta.Caption = "";
    EXPECT_EQ(etiqueta.Width(), 300);
    EXPECT_EQ(etiqueta.Height(), 576);
}

TEST(Etiqueta, SinAjustarseGuardaLaMedidaQueSeLeDa) {
    Banco banco;
    Etiqueta etiqueta{banco.ventana, "Lb"};
    etiqueta.Width = 1234;
    etiqueta.Caption = "roble";
    EXPECT_EQ(etiqueta.Width(), 1234);
    etiqueta.ajustar();
    EXPECT_EQ(etiqueta.Width(), 375);
}

TEST(Etiqueta, MideEnLasUnidadesDeSuVentana) {
    struct EnMitades : Formulario {
        using Formulario::Formulario;
        [[nodiscard]] double enUnidades(double twips) const override { return twips / 2; }
    };
    Banco banco;
    EnMitades ventana{banco.programa, "FrmMitades", TipoVentana::Libre, ""};
    Etiqueta etiqueta{ventana, "Lb", "roble"};
    etiqueta.AutoSize = true;
    EXPECT_EQ(etiqueta.Width(), 187.5);
    EXPECT_EQ(etiqueta.Height(), 96);
}

TEST(Etiqueta, AvisaDeCadaCambioASusObservadores) {
    Banco banco;
    Etiqueta etiqueta{banco.ventana, "Lb"};
    int avisos = 0;
    etiqueta.observar([&] { ++avisos; });
    etiqueta.ForeColor = 255;
    EXPECT_EQ(avisos, 1);
    etiqueta.BackColor = 0;
    EXPECT_EQ(avisos, 2) << "un fondo negro no es un fondo transparente";
}

} // namespace varo
