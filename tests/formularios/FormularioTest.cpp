#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

namespace {

/// Logs the size that it has when it is told of a new one.
struct VentanaMedida : Formulario {
    explicit VentanaMedida(Ventanas& ventanas) : Formulario{ventanas, "FrmMedida", TipoVentana::Hija, ""} {}
    void Form_Resize() override { medidas.emplace_back(Width(), Height()); }

    std::vector<std::pair<float, float>> medidas;
};

} // namespace

TEST(Formulario, NaceOcultoConSuLeyendaYPunteroNormal) {
    const Banco banco;
    EXPECT_EQ(banco.ventana.nombre(), "FrmPrueba");
    EXPECT_EQ(banco.ventana.tipo(), TipoVentana::Libre);
    EXPECT_EQ(banco.ventana.Caption(), "Prueba");
    EXPECT_FALSE(banco.ventana.Visible());
    EXPECT_EQ(banco.ventana.MousePointer(), 0);
}

TEST(Formulario, DaSusControlesPorNombreEIndice) {
    Banco banco;
    const Boton boton{banco.ventana, "CmdAceptar"};
    Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    const CajaTexto& seis = matriz.crear(6);
    const CajaTexto& cero = matriz.crear(0);
    EXPECT_EQ(&banco.ventana.control("CmdAceptar"), &boton);
    EXPECT_EQ(&banco.ventana.control("TxtBAF1", 6), &seis);
    EXPECT_EQ(&banco.ventana.control("TxtBAF1", 0), &cero);
}

TEST(Formulario, NoDaUnMiembroSinSuIndiceNiUnSueltoConIndice) {
    Banco banco;
    const Boton boton{banco.ventana, "CmdAceptar"};
    Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    matriz.crear(0);
    EXPECT_EQ(banco.ventana.buscarControl("TxtBAF1"), nullptr);
    EXPECT_EQ(banco.ventana.buscarControl("TxtBAF1", 1), nullptr);
    EXPECT_EQ(banco.ventana.buscarControl("CmdAceptar", 0), nullptr);
    EXPECT_EQ(banco.ventana.buscarControl("cmdaceptar"), nullptr);
    EXPECT_EQ(banco.ventana.buscarControl(boton.Name()), &boton);
}

TEST(Formulario, UnControlQueNoHayFallaDiciendoCual) {
    const Banco banco;
    const auto descripcion = [&](const std::string& nombre, int indice) -> std::string {
        try {
            (void)banco.ventana.control(nombre, indice);
        } catch (const ErrorEjecucion& error) {
            return std::to_string(error.numero()) + " " + error.descripcion();
        }
        return "lo hay";
    };
    EXPECT_EQ(descripcion("TxtBAF1", 7), "340 No existe el control FrmPrueba.TxtBAF1(7)");
    EXPECT_EQ(descripcion("TxtNada", Identidad::sinIndice), "340 No existe el control FrmPrueba.TxtNada");
}

TEST(Formulario, SusControlesEstanEnElOrdenEnQueSeHicieron) {
    Banco banco;
    Etiqueta tercera{banco.ventana, "Z"};
    Marco cuarta{banco.ventana, "A"};
    Imagen quinta{banco.ventana, "M"};
    EXPECT_EQ(banco.ventana.controles(), (std::vector<Control*>{&tercera, &cuarta, &quinta}));
}

TEST(Formulario, RedimensionarloPoneLasDosMedidasYCorreFormResizeUnaVez) {
    Banco banco;
    VentanaMedida ventana{banco.programa};
    ventana.redimensionar(3000, 1500);
    ASSERT_EQ(ventana.medidas.size(), 1U);
    EXPECT_EQ(ventana.medidas.front(), (std::pair<float, float>{3000, 1500}));
}

TEST(Formulario, SusPropiedadesAvisan) {
    Banco banco;
    banco.ventana.observar(banco.anotador("aviso"));
    banco.ventana.Caption = "Prueba";
    EXPECT_EQ(banco.visto(), Diario{});
    banco.ventana.Caption = "Otra";
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    banco.ventana.MousePointer = Formulario::relojDeArena;
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    EXPECT_EQ(banco.ventana.MousePointer(), 11);
}

TEST(Formulario, MostrarloYOcultarloAvisan) {
    Banco banco;
    auto& ventana = banco.programa.tocar<VentanaA>();
    ventana.observar(banco.anotador("aviso"));
    banco.visto();
    ventana.Show();
    EXPECT_EQ(banco.visto(), (Diario{"aviso", "Activate A"}));
    ventana.Hide();
    EXPECT_EQ(banco.visto(), (Diario{"aviso", "Deactivate A"}));
}

} // namespace varo
