#include "data/SelColumnas.h"

#include "apoyo/Jornada.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

const char* const repetida = "Has introducido dos veces la misma columna";

std::vector<std::string> Lineas(const Lista& lista) {
    std::vector<std::string> lineas;
    lineas.reserve(static_cast<std::size_t>(lista.ListCount()));
    for (int i = 0; i < lista.ListCount(); ++i) {
        lineas.push_back(lista.List(i));
    }
    return lineas;
}

/// The plot open and the column dialog on show.
struct Eleccion : Jornada {
    explicit Eleccion(const Filas& filas = CuadradoConCentro(), Opcion OpcionesPrograma::*tipo = nullptr) {
        abrirParcela(filas);
        if (tipo != nullptr) {
            cambiarOpciones([&](OpcionesPrograma& opciones) { usuario.clic(opciones.*tipo); });
        }
        pedirColumnas();
    }
    SelCol4R& cuatroRadios() { return programa.tocar<SelCol4R>(); }
    SelColRM& radioMedio() { return programa.tocar<SelColRM>(); }
    /// The four-radii dialog with all its roles but the stem size.
    void elegirTodos() {
        for (int papel = 0; papel <= 5; ++papel) {
            elegirPapel(cuatroRadios(), papel, papel + 2);
        }
        elegirPapel(cuatroRadios(), 6, 1);
        elegirPapel(cuatroRadios(), 7, 8);
    }
};

/// A sheet of so many fields called C1, C2, ... with one row.
Filas HojaAncha(int campos) {
    Filas filas(2);
    for (int campo = 1; campo <= campos; ++campo) {
        filas[0].emplace_back("C" + std::to_string(campo));
        filas[1].emplace_back(1.0);
    }
    return filas;
}

TEST(SelColumnas, CadaVentanaLlevaSusBotones) {
    Jornada jornada;
    const auto leyendas = [](const SelColumnas& ventana) {
        std::vector<std::string> textos;
        textos.reserve(ventana.Command1.miembros().size() + 3);
        for (const auto& [indice, boton] : ventana.Command1.miembros()) {
            textos.push_back(boton->Caption());
        }
        textos.push_back(ventana.CmdQuitar.Caption());
        textos.push_back(ventana.CmdQuitarTodo.Caption());
        textos.push_back(ventana.CmdDibujar.Caption());
        return textos;
    };
    using Textos = std::vector<std::string>;
    EXPECT_EQ(leyendas(jornada.programa.tocar<SelColRM>()),
              (Textos{"Coordenada X", "Coordenada Y", "Radio medio", "Indice", "Código de Arbol", "Quitar",
                      "Quitar todo", "Dibujar"}));
    EXPECT_EQ(leyendas(jornada.programa.tocar<SelCol4R>()),
              (Textos{"Coordenada X", "Coordenada Y", "Radio Norte", "Radio Este", "Radio Sur", "Radio Oeste",
                      "Indice", "Código de Arbol", "Quitar", "QuitarTodo", "Dibujar"}));
    EXPECT_EQ(leyendas(jornada.programa.tocar<SelCol2D>()),
              (Textos{"Coordenada X", "Coordenada Y", "Diámetro Norte-Sur", "Diámetro  Este-Oeste", "Indice",
                      "Código de Arbol", "Quitar", "Quitar todo", "Dibujar"}));
    const auto& ventana = jornada.programa.tocar<SelColRM>();
    EXPECT_EQ(ventana.Caption(), "Selección de columnas");
    EXPECT_EQ(ventana.Label1.Caption(), "Selecciona las columnas y pulsa el botón correspondiente");
    EXPECT_FALSE(ventana.CmdDibujar.Enabled());
    EXPECT_TRUE(ventana.CmdDAP.Enabled());
    EXPECT_EQ(ventana.CmdDAP.Caption(), "");
}

TEST(SelColumnas, LasLineasLlevanElPrefijoElNumeroYElCampo) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    EXPECT_EQ(Lineas(eleccion.cuatroRadios().List1),
              (std::vector<std::string>{"Coordenada X: Columna: 3 (X)", "Coordenada Y: Columna: 4 (Y)",
                                        "Radio Norte: Columna: 5 (RN)", "Radio Este: Columna: 6 (RE)",
                                        "Radio Sur: Columna: 7 (RS)", "Radio Oeste: Columna: 8 (RO)",
                                        "Indice: Columna: 2 (Arbol)", "Código de árbol: Columna: 9 (Cod)",
                                        "CAP: Columna: 10 (CAP)"}));
    EXPECT_EQ(eleccion.programa.sesion.Columnas(0), 2);
    EXPECT_EQ(eleccion.programa.sesion.Columnas(7), 8);
    EXPECT_EQ(eleccion.programa.sesion.ColumnaDAP, 9);
}

TEST(SelColumnas, LosPrefijosDeLasOtrasDosVentanas) {
    Eleccion medio{HojaAncha(12), &OpcionesPrograma::OptRM};
    for (int papel = 0; papel <= 4; ++papel) {
        medio.elegirPapel(medio.radioMedio(), papel, papel + 1);
    }
    EXPECT_EQ(Lineas(medio.radioMedio().List1),
              (std::vector<std::string>{"Coordenada X: Columna: 2 (C1)", "Coordenada Y: Columna: 3 (C2)",
                                        "Radio Medio: Columna: 4 (C3)", "Indice: Columna: 5 (C4)",
                                        "Código de árbol: Columna: 6 (C5)"}));
    Eleccion dos{HojaAncha(12), &OpcionesPrograma::Opt2D};
    auto& dialogo = dos.programa.tocar<SelCol2D>();
    for (int papel = 2; papel <= 5; ++papel) {
        dos.elegirPapel(dialogo, papel, papel + 1);
    }
    EXPECT_EQ(Lineas(dialogo.List1),
              (std::vector<std::string>{"Diametro Norte-Sur: Columna: 4 (C3)",
                                        "Diametro Este-Oeste: Columna: 5 (C4)", "Indice: Columna: 6 (C5)",
                                        "Código de árbol: Columna: 7 (C6)"}));
}

TEST(SelColumnas, ConTodosLosPapelesSeDibujaAunSinTamano) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    EXPECT_TRUE(eleccion.cuatroRadios().CmdDibujar.Enabled());
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    EXPECT_TRUE(eleccion.cuatroRadios().CmdDibujar.Enabled());
}

TEST(SelColumnas, ElTamanoPrimeroTambienDejaDibujarAlCompletarse) {
    Eleccion eleccion;
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    EXPECT_FALSE(eleccion.cuatroRadios().CmdDibujar.Enabled());
    eleccion.elegirTodos();
    EXPECT_TRUE(eleccion.cuatroRadios().CmdDibujar.Enabled());
}

TEST(SelColumnas, QuitarElTamanoConLosPapelesCompletosDejaDibujar) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.usuario.elegir(dialogo.List1, 8);
    eleccion.usuario.clic(dialogo.CmdQuitar);
    EXPECT_TRUE(dialogo.CmdDAP.Enabled());
    EXPECT_EQ(dialogo.List1.ListCount(), 8);
    EXPECT_TRUE(dialogo.CmdDibujar.Enabled());
}

TEST(SelColumnas, QuitarDosLineasSeleccionadasSeLasLlevaALasDos) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.usuario.elegir(dialogo.List1, 2);
    eleccion.usuario.elegir(dialogo.List1, 3);
    eleccion.usuario.clic(dialogo.CmdQuitar);
    EXPECT_EQ(dialogo.List1.ListCount(), 6);
    EXPECT_EQ(dialogo.List1.List(2), "Radio Sur: Columna: 7 (RS)");
    EXPECT_TRUE(dialogo.Command1(2).Enabled());
    EXPECT_TRUE(dialogo.Command1(3).Enabled());
    EXPECT_FALSE(dialogo.Command1(4).Enabled());
    EXPECT_FALSE(dialogo.CmdDibujar.Enabled());
    EXPECT_EQ(eleccion.programa.sesion.Columnas(2), 4) << "lo elegido sobrevive a su línea";
}

TEST(SelColumnas, QuitarDeUnaListaVaciaNoHaceNada) {
    Eleccion eleccion;
    eleccion.usuario.clic(eleccion.cuatroRadios().CmdQuitar);
    EXPECT_EQ(eleccion.cuatroRadios().List1.ListCount(), 0);
    EXPECT_FALSE(eleccion.cuatroRadios().CmdDibujar.Enabled());
}

TEST(SelColumnas, QuitarTodoVaciaYHabilita) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.usuario.clic(dialogo.CmdQuitarTodo);
    EXPECT_EQ(dialogo.List1.ListCount(), 0);
    for (int papel = 0; papel <= 7; ++papel) {
        EXPECT_TRUE(dialogo.Command1(papel).Enabled()) << papel;
    }
    EXPECT_TRUE(dialogo.CmdDAP.Enabled());
    EXPECT_FALSE(dialogo.CmdDibujar.Enabled());
    EXPECT_EQ(eleccion.programa.sesion.ColumnaDAP, 9);
}

TEST(SelColumnas, LaLineaSeBuscaEnteraTambienElNombreDelCampo) {
    Eleccion eleccion{
        {{Valor{std::string{"A"}}, Valor{std::string{"B"}}, Valor{std::string{"X"}}, Valor{std::string{"Z"}}},
         {1.0, 2.0, 3.0, 4.0}},
        &OpcionesPrograma::OptRM};
    auto& dialogo = eleccion.radioMedio();
    eleccion.elegirPapel(dialogo, 0, 1);
    eleccion.elegirPapel(dialogo, 2, 3);
    EXPECT_EQ(dialogo.List1.List(1), "Radio Medio: Columna: 4 (X)");
    eleccion.usuario.elegir(dialogo.List1, 1);
    eleccion.usuario.clic(dialogo.CmdQuitar);
    EXPECT_TRUE(dialogo.Command1(0).Enabled());
    EXPECT_FALSE(dialogo.Command1(2).Enabled());
}

TEST(SelColumnas, LaMismaColumnaDosVecesAvisaYNoEntra) {
    Eleccion eleccion;
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 2);
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirPapel(dialogo, 1, 2);
    EXPECT_EQ(eleccion.servicios.mensajes().back(),
              (ServiciosPreparados::Mensaje{repetida, "Columna repetida", 48}));
    EXPECT_EQ(dialogo.List1.ListCount(), 1);
    EXPECT_TRUE(dialogo.Command1(1).Enabled());
    EXPECT_EQ(eleccion.programa.sesion.Columnas(1), 2) << "el número escrito queda";
}

TEST(SelColumnas, LaUltimaComparacionDecideElBoton) {
    Eleccion eleccion;
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 2);
    eleccion.elegirPapel(dialogo, 1, 3);
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirPapel(dialogo, 2, 2);
    EXPECT_EQ(dialogo.List1.ListCount(), 2);
    EXPECT_FALSE(dialogo.Command1(2).Enabled()) << "la línea repetida no era la última";
}

TEST(SelColumnas, UnaColumnaDeTresCifrasNoSeReconoceASiMisma) {
    Eleccion eleccion{HojaAncha(120)};
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 104);
    eleccion.elegirPapel(dialogo, 1, 104);
    EXPECT_EQ(dialogo.List1.ListCount(), 2);
}

TEST(SelColumnas, UnaColumnaDeTresCifrasSeConfundeConSusDosPrimeras) {
    Eleccion eleccion{HojaAncha(120)};
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 104); // shown as 105
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirPapel(dialogo, 1, 9); // shown as 10
    EXPECT_EQ(dialogo.List1.ListCount(), 1);
}

TEST(SelColumnas, DosConfusionesAvisanDosVecesYSeLlevanTambienLaLineaAnterior) {
    Eleccion eleccion{HojaAncha(120)};
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 104); // shown as 105
    eleccion.elegirPapel(dialogo, 1, 105); // shown as 106
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirPapel(dialogo, 2, 9); // shown as 10
    EXPECT_TRUE(eleccion.servicios.todoPedido());
    EXPECT_EQ(Lineas(dialogo.List1), std::vector<std::string>{"Coordenada X: Columna: 105 (C104)"});
}

TEST(SelColumnas, ElTamanoRepetidoVuelveAHabilitarSuBoton) {
    Eleccion eleccion;
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 2);
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirDAP(dialogo, 2);
    EXPECT_TRUE(dialogo.CmdDAP.Enabled());
    EXPECT_EQ(eleccion.programa.sesion.ColumnaDAP, 2);
}

TEST(SelColumnas, ElTamanoRepetidoNoTocaDibujarYSoloLaUltimaLineaLoHabilita) {
    Eleccion eleccion;
    eleccion.elegirTodos(); // the last line is the code, on the column 8
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirDAP(dialogo, 3);
    EXPECT_EQ(eleccion.servicios.mensajes().back(),
              (ServiciosPreparados::Mensaje{repetida, "Columna repetida", 48}));
    EXPECT_EQ(dialogo.List1.ListCount(), 8);
    EXPECT_FALSE(dialogo.CmdDAP.Enabled()) << "la línea repetida no era la última";
    EXPECT_TRUE(dialogo.CmdDibujar.Enabled()) << "sin prueba de que esté completa";
    EXPECT_EQ(eleccion.programa.sesion.ColumnaDAP, 3) << "el número escrito queda";
    // The test that follows counts the line that is not there.
    dialogo.List1.Selected(0, true);
    eleccion.usuario.clic(dialogo.CmdQuitar);
    eleccion.elegirPapel(dialogo, 0, 2);
    EXPECT_FALSE(dialogo.CmdDibujar.Enabled());
}

TEST(SelColumnas, SinElegirEnLaRejillaSirveLaColumnaCero) {
    Eleccion eleccion;
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.usuario.clic(dialogo.Command1(6));
    EXPECT_EQ(dialogo.List1.List(0), "Indice: Columna: 1 (Nº de punto)");
    EXPECT_EQ(eleccion.programa.sesion.Columnas(6), 0);
}

TEST(SelColumnas, UnaColumnaOcultaSeAceptaPorSuNumero) {
    Eleccion eleccion;
    ASSERT_EQ(eleccion.programa.tocar<Hojadedatos>().MSFlexGrid1.ColWidth(10), 0);
    eleccion.elegirPapel(eleccion.cuatroRadios(), 6, 10);
    EXPECT_EQ(eleccion.cuatroRadios().List1.List(0), "Indice: Columna: 11 (Nota)");
}

TEST(SelColumnas, LaCircunferenciaSeLlamaCAPAunqueSeElijaDiametro) {
    Eleccion eleccion{CuadradoConCentro(), &OpcionesPrograma::OptDAP};
    EXPECT_EQ(eleccion.cuatroRadios().CmdDAP.Caption(), "CAP");
    eleccion.elegirDAP(eleccion.cuatroRadios(), 9);
    EXPECT_EQ(eleccion.cuatroRadios().List1.List(0), "CAP: Columna: 10 (CAP)");
}

TEST(SelColumnas, SinCodigoLaLineaDelCodigoDesapareceAlActivarse) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    auto& dialogo = eleccion.cuatroRadios();
    EXPECT_EQ(eleccion.programa.sesion.UltimaColumna, 7);
    eleccion.cambiarOpciones([&](OpcionesPrograma& opciones) { eleccion.usuario.clic(opciones.ChCodigo); });
    EXPECT_EQ(dialogo.List1.ListCount(), 8);
    eleccion.pedirColumnas();
    EXPECT_EQ(dialogo.List1.ListCount(), 7);
    EXPECT_EQ(eleccion.programa.sesion.UltimaColumna, 6);
    EXPECT_FALSE(dialogo.botonCodigo().Enabled());
    EXPECT_TRUE(dialogo.CmdDibujar.Enabled()) << "conserva su estado hasta la próxima comprobación";
}

TEST(SelColumnas, AlDesaparecerLaLineaDelCodigoNoSeComprueba) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    auto& dialogo = eleccion.cuatroRadios();
    // A repeated stem size leaves its button disabled without its line: a test would find a line missing.
    eleccion.servicios.esperarMensaje(repetida);
    eleccion.elegirDAP(dialogo, 3);
    EXPECT_FALSE(dialogo.CmdDAP.Enabled());
    eleccion.cambiarOpciones([&](OpcionesPrograma& opciones) { eleccion.usuario.clic(opciones.ChCodigo); });
    eleccion.pedirColumnas();
    EXPECT_EQ(dialogo.List1.ListCount(), 7);
    EXPECT_TRUE(dialogo.CmdDibujar.Enabled());
}

TEST(SelColumnas, CompletarseAlActivarseSinElCodigoNoHabilitaDibujar) {
    const auto ninguno = static_cast<Opcion OpcionesPrograma::*>(nullptr);
    for (const auto tipo : {ninguno, &OpcionesPrograma::Opt2D, &OpcionesPrograma::OptRM}) {
        Eleccion eleccion{HojaAncha(12), tipo};
        auto& dialogo = dynamic_cast<SelColumnas&>(*eleccion.programa.activa());
        const int codigo = PapelCodigo(dialogo.papeles().copa);
        for (int papel = 0; papel < codigo; ++papel) {
            eleccion.elegirPapel(dialogo, papel, papel + 1);
        }
        EXPECT_FALSE(dialogo.CmdDibujar.Enabled()) << dialogo.nombre();
        eleccion.cambiarOpciones(
            [&](OpcionesPrograma& opciones) { eleccion.usuario.clic(opciones.ChCodigo); });
        eleccion.pedirColumnas();
        EXPECT_EQ(eleccion.programa.sesion.UltimaColumna, codigo - 1) << dialogo.nombre();
        EXPECT_EQ(dialogo.List1.ListCount(), codigo) << "todos los papeles que hacen falta";
        EXPECT_FALSE(dialogo.CmdDibujar.Enabled()) << dialogo.nombre();
    }
}

TEST(SelColumnas, UnCampoQueDiceCodigoPasaPorLaLineaDelCodigo) {
    Eleccion eleccion{
        {{Valor{std::string{"Código del árbol"}}, Valor{std::string{"B"}}, Valor{std::string{"C"}}},
         {1.0, 2.0, 3.0}}};
    auto& dialogo = eleccion.cuatroRadios();
    eleccion.elegirPapel(dialogo, 0, 1);
    eleccion.seleccionarColumna(2);
    eleccion.usuario.activar(dialogo);
    EXPECT_FALSE(dialogo.botonCodigo().Enabled());
}

TEST(SelColumnas, EnCuatroRadiosActivarseSinCodigoEnLaListaInhabilitaDibujar) {
    Eleccion eleccion;
    eleccion.cambiarOpciones([&](OpcionesPrograma& opciones) { eleccion.usuario.clic(opciones.ChCodigo); });
    eleccion.pedirColumnas();
    auto& dialogo = eleccion.cuatroRadios();
    for (int papel = 0; papel <= 6; ++papel) {
        eleccion.elegirPapel(dialogo, papel, papel + 1);
    }
    EXPECT_TRUE(dialogo.CmdDibujar.Enabled());
    eleccion.cambiarOpciones([&](OpcionesPrograma& opciones) { eleccion.usuario.clic(opciones.ChCodigo); });
    eleccion.pedirColumnas();
    EXPECT_FALSE(dialogo.CmdDibujar.Enabled());
    EXPECT_TRUE(dialogo.botonCodigo().Enabled());
}

TEST(SelColumnas, DibujarPasaAlFormatoYOcultaElDialogo) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    eleccion.usuario.clic(eleccion.cuatroRadios().CmdDibujar);
    EXPECT_FALSE(eleccion.cuatroRadios().Visible());
    EXPECT_EQ(eleccion.cuatroRadios().List1.ListCount(), 8);
    EXPECT_TRUE(eleccion.programa.tocar<FrmFormato>().Visible());
    EXPECT_EQ(eleccion.programa.sesion.VecesFormato, 1);
    EXPECT_FALSE(eleccion.marco().mnuMapa.Enabled());
    EXPECT_FALSE(eleccion.marco().mnuOpciones.Enabled());
}

TEST(SelColumnas, CerrarElDialogoDevuelveLosMenusYPierdeSuLista) {
    Eleccion eleccion;
    eleccion.elegirTodos();
    eleccion.usuario.cerrar(eleccion.cuatroRadios());
    EXPECT_TRUE(eleccion.marco().mnuMapa.Enabled());
    EXPECT_TRUE(eleccion.marco().mnuOpciones.Enabled());
    EXPECT_EQ(eleccion.programa.cargada<SelCol4R>(), nullptr);
    EXPECT_EQ(eleccion.cuatroRadios().List1.ListCount(), 0);
}

TEST(SelColumnas, LasPalabrasDeCadaPapelLoVuelvenAHabilitar) {
    Eleccion eleccion{HojaAncha(14)};
    auto& dialogo = eleccion.cuatroRadios();
    for (int papel = 0; papel <= 7; ++papel) {
        eleccion.elegirPapel(dialogo, papel, papel + 1);
    }
    eleccion.elegirDAP(dialogo, 12);
    for (int papel = 0; papel <= 7; ++papel) {
        eleccion.usuario.elegir(dialogo.List1, 0);
        eleccion.usuario.clic(dialogo.CmdQuitar);
        EXPECT_TRUE(dialogo.Command1(papel).Enabled()) << papel;
    }
    eleccion.usuario.elegir(dialogo.List1, 0);
    eleccion.usuario.clic(dialogo.CmdQuitar);
    EXPECT_TRUE(dialogo.CmdDAP.Enabled());
}

} // namespace
} // namespace varo::prueba
