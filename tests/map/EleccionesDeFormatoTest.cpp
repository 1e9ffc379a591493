#include "map/Formato.h"

#include "map/ValoresDeFormato.h"

#include <gtest/gtest.h>

#include <array>

namespace varo::prueba {
namespace {

const Fuente letraGrande{.nombre = "Times",
                         .tamano = 10.5F,
                         .negrita = true,
                         .cursiva = false,
                         .tachado = true,
                         .subrayado = false};

/// A platform that looks at the window while its choosers are open.
struct ServiciosQueMiran : ServiciosDePrueba {
    std::function<void()> mirar = [] {};
    std::optional<Fuente> elegirFuente(const Fuente& actual) override {
        ofrecida = actual;
        mirar();
        return ServiciosDePrueba::elegirFuente(actual);
    }
    std::optional<Color> elegirColor(Color actual) override {
        ofrecido = actual;
        mirar();
        return ServiciosDePrueba::elegirColor(actual);
    }
    Fuente ofrecida;
    Color ofrecido = -1;
};

} // namespace

TEST(EleccionesDeFormato, LosValoresDeDisenoDejanLeerUnMapaSinElegirNada) {
    Formato formato{ConCodigos(Textos{"A", "B", "C", "D", "E", "F"})};
    auto& ventana = formato.ventana();
    EXPECT_EQ(ventana.CboTitFont.Font(), (Fuente{.nombre = "Arial", .tamano = 8}));
    EXPECT_EQ(ventana.CboCodFont(5).Font(), (Fuente{.nombre = "MS Sans Serif", .tamano = 8}));
    EXPECT_EQ(ventana.CboTitColor.BackColor(), 0x00400040);
    // #400040, #0072B2, #D55E00, #009E73, #8C510A, #CC3399 with red in the low byte.
    const std::array<Color, 6> colores{0x400040, 0xB27200, 0x005ED5, 0x739E00, 0x0A518C, 0x9933CC};
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(ventana.CboCodColor(i).BackColor(), colores[static_cast<std::size_t>(i)]) << i;
        EXPECT_EQ(ventana.TxtCodigo(i).Text(), "") << i;
    }
}

TEST(EleccionesDeFormato, LosOchoColoresSeRepitenPorTurno) {
    Filas filas{ConCodigos(Textos{})};
    for (int i = 0; i < 10; ++i) {
        filas.push_back({i + 1.0, i * 2.0, i % 3 * 5.0, 10.0,
                         TextoDeCelda(std::string(1, static_cast<char>('A' + i))), TextoDeCelda("n")});
    }
    Formato formato{filas};
    EXPECT_EQ(formato.ventana().CboCodColor(6).BackColor(), 0x1A1A1A);
    EXPECT_EQ(formato.ventana().CboCodColor(7).BackColor(), 0xB47545);
    EXPECT_EQ(formato.ventana().CboCodColor(8).BackColor(), 0x400040);
    EXPECT_EQ(formato.ventana().CboCodColor(9).BackColor(), 0xB27200);
}

TEST(EleccionesDeFormato, LaFuenteDelTituloGuardaSusSeisValoresEnTexto) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararFuente(letraGrande);
    formato.usuario.desplegar(formato.ventana().CboTitFont);
    const auto& sesion = formato.programa.sesion;
    EXPECT_EQ(sesion.TituloFuente, "Times");
    EXPECT_EQ(sesion.TituloTamano, "10,5");
    EXPECT_EQ(sesion.TituloNegrita, "Verdadero");
    EXPECT_EQ(sesion.TituloCursiva, "Falso");
    EXPECT_EQ(sesion.TituloTachado, "Verdadero");
    EXPECT_EQ(sesion.TituloSubrayado, "Falso");
    EXPECT_EQ(formato.ventana().CboTitFont.Text(), "Times");
}

TEST(EleccionesDeFormato, UnColorElegidoSeGuardaYPintaElFondoDelControl) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    auto& ventana = formato.ventana();
    for (const Color color : {0x112233, 0x445566, 0x010203, 0x0A0B0C}) {
        formato.servicios.prepararColor(color);
    }
    formato.usuario.desplegar(ventana.CboTitColor);
    formato.usuario.desplegar(ventana.CboTitBackColor);
    formato.usuario.desplegar(ventana.CboCodColor(1));
    formato.usuario.desplegar(ventana.CboCodBackColor(0));
    const auto& sesion = formato.programa.sesion;
    EXPECT_EQ(sesion.TituloColor, "1122867"); // 0x112233
    EXPECT_EQ(sesion.TituloColorFondo, "4478310");
    EXPECT_EQ(sesion.CodColor(1), "66051");
    EXPECT_EQ(sesion.CodColor(0), "");
    EXPECT_EQ(sesion.CodColorFondo(0), "658188");
    EXPECT_EQ(ventana.CboTitColor.BackColor(), 0x112233);
    EXPECT_EQ(ventana.CboCodColor(1).BackColor(), 0x010203);
    EXPECT_TRUE(FondoElegido(sesion, 0));
    EXPECT_FALSE(FondoElegido(sesion, 1));
}

TEST(EleccionesDeFormato, CancelarTomaLoQueElControlMuestra) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    auto& ventana = formato.ventana();
    formato.servicios.prepararFuente(std::nullopt);
    formato.usuario.desplegar(ventana.CboTitFont);
    for (int i = 0; i < 3; ++i) {
        formato.servicios.prepararColor(std::nullopt);
    }
    formato.usuario.desplegar(ventana.CboTitColor);
    formato.usuario.desplegar(ventana.CboCodColor(1));
    formato.usuario.desplegar(ventana.CboCodBackColor(1));
    const auto& sesion = formato.programa.sesion;
    EXPECT_EQ(sesion.TituloFuente, "Arial");
    EXPECT_EQ(sesion.TituloTamano, "8");
    EXPECT_EQ(sesion.TituloNegrita, "Falso");
    EXPECT_EQ(sesion.TituloColor, "4194368");
    EXPECT_EQ(sesion.CodColor(1), "11694592"); // 0xB27200
    EXPECT_EQ(sesion.CodColorFondo(1), "16777215");
    EXPECT_FALSE(FondoElegido(sesion, 1)) << "nadie eligió ese fondo";
}

TEST(EleccionesDeFormato, TrasElegirCancelarDejaLoElegido) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    auto& fuente = formato.ventana().CboCodFont(1);
    auto& fondo = formato.ventana().CboCodBackColor(1);
    formato.servicios.prepararFuente(letraGrande);
    formato.servicios.prepararFuente(std::nullopt);
    formato.servicios.prepararColor(0x123456);
    formato.servicios.prepararColor(std::nullopt);
    for (Desplegable* const control : {&fuente, &fuente, &fondo, &fondo}) {
        formato.usuario.desplegar(*control);
    }
    EXPECT_EQ(RasgosDelCodigo(formato.programa.sesion, 1).leer(), letraGrande);
    EXPECT_EQ(ColorDeTexto(formato.programa.sesion.CodColorFondo(1)), 0x123456);
    EXPECT_TRUE(FondoElegido(formato.programa.sesion, 1));
}

TEST(EleccionesDeFormato, ElPrimerDespliegueDeUnTipoVaciaLoDeEseTipo) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararColor(1);
    formato.servicios.prepararColor(2);
    formato.servicios.prepararColor(3);
    formato.usuario.desplegar(formato.ventana().CboCodColor(0));
    formato.usuario.desplegar(formato.ventana().CboCodColor(1));
    formato.usuario.desplegar(formato.ventana().CboCodBackColor(0));
    const auto& sesion = formato.programa.sesion;
    EXPECT_EQ(sesion.CodColor(0), "1") << "el segundo despliegue no vacía";
    EXPECT_EQ(sesion.CodColor.limite(), 2) << "de 0 al número de códigos";

    formato.rehacer();
    EXPECT_EQ(sesion.CodColor(0), "1") << "sobrevive a la ventana";
    formato.servicios.prepararColor(std::nullopt);
    formato.usuario.desplegar(formato.ventana().CboCodColor(1));
    EXPECT_EQ(sesion.CodColor(0), "") << "vacía también quien cancela";
    EXPECT_EQ(sesion.CodColor(1), "11694592");
    EXPECT_EQ(sesion.CodColorFondo(0), "3") << "los fondos son otro tipo";

    formato.servicios.prepararFuente(letraGrande);
    formato.usuario.desplegar(formato.ventana().CboCodFont(1));
    EXPECT_EQ(sesion.CodFuente(1), "Times");
    EXPECT_EQ(sesion.CodFuente(0), "");
    EXPECT_TRUE(formato.servicios.todoPedido());
}

TEST(EleccionesDeFormato, LosValoresSobrevivenAlArchivo) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.servicios.prepararFuente(letraGrande);
    formato.servicios.prepararColor(7);
    formato.usuario.desplegar(formato.ventana().CboTitFont);
    formato.usuario.desplegar(formato.ventana().CboCodColor(1));
    formato.abrirOtraParcela(ConCodigos(Textos{"C", "D", "C"}));
    EXPECT_EQ(formato.programa.sesion.TituloFuente, "Times");
    EXPECT_EQ(formato.programa.sesion.CodColor(1), "7");
    EXPECT_EQ(formato.ventana().CboTitFont.Text(), "Arial") << "los controles vuelven a su diseño";
}

TEST(EleccionesDeFormato, ElPunteroEsUnRelojMientrasAlguienElige) {
    ServiciosQueMiran servicios;
    Programa programa{servicios};
    programa.tocar<OpcionesPrograma>().ChCodigo.Value = 0; // no file is open
    auto& ventana = programa.tocar<FrmFormato>();
    ventana.Show();
    std::vector<int> punteros;
    servicios.mirar = [&] { punteros.push_back(ventana.MousePointer()); };
    servicios.prepararFuente(letraGrande);
    servicios.prepararColor(0x123456);
    servicios.prepararColor(std::nullopt);
    Usuario usuario{programa};
    usuario.desplegar(ventana.CboTitFont);
    EXPECT_EQ(servicios.ofrecida.nombre, "Arial");
    usuario.desplegar(ventana.CboTitColor);
    EXPECT_EQ(servicios.ofrecido, 0x400040);
    usuario.desplegar(ventana.CboTitColor);
    EXPECT_EQ(servicios.ofrecido, 0x123456) << "el diálogo empieza por lo que el control muestra";
    EXPECT_EQ(punteros, (std::vector<int>{11, 11, 11}));
    EXPECT_EQ(ventana.MousePointer(), 0);
}

TEST(EleccionesDeFormato, CancelarElFormatoPierdeTextosYFilasYNoDibuja) {
    Formato formato{ConCodigos(Textos{"A", "B", "A"})};
    formato.usuario.escribir(formato.ventana().TxtTitName, "Otro título");
    formato.usuario.escribir(formato.ventana().TxtCodigo(1), "Robles");
    formato.usuario.clic(formato.ventana().CmdCancelar);
    EXPECT_EQ(formato.programa.cargada<FrmFormato>(), nullptr);
    EXPECT_EQ(formato.programa.cargada<FrmMapa>(), nullptr);
    EXPECT_FALSE(formato.marco().mnuMapa.Enabled());
    EXPECT_FALSE(formato.marco().mnuOpciones.Enabled());
    EXPECT_EQ(formato.ventana().TxtTitName.Text(), "Parcela Parcela1$");
    EXPECT_EQ(formato.ventana().TxtCodigo(1).Text(), "");
}

TEST(EleccionesDeFormato, ElDialogoCreceEnCadaAperturaDesdeSuAltoDeDiseno) {
    Formato formato{ConCodigos(Textos{"A", "B", "C"})};
    const auto alto = static_cast<float>(formato.programa.sesion.AltoFormato.valor());
    EXPECT_EQ(alto, 2700);
    const auto crecido = [&](int filasDeMas) { return alto + 1290 + static_cast<float>(filasDeMas) * 630; };
    EXPECT_EQ(formato.ventana().Height(), crecido(2));
    EXPECT_EQ(formato.rehacer().Height(), crecido(2)) << "otra vez con el archivo abierto";
    formato.abrirOtraParcela(ConCodigos(Textos{"A", "A", "A"}));
    EXPECT_EQ(formato.ventana().Height(), crecido(0));
    formato.abrirOtraParcela(ConCodigos(Textos{"A", "B", "C", "D"}));
    EXPECT_EQ(formato.ventana().Height(), crecido(3));
    EXPECT_EQ(formato.programa.sesion.CierresConMapa, 2);
    EXPECT_EQ(formato.ventana().CmdAceptar.Top(), crecido(3) - 910);
}

} // namespace varo::prueba
