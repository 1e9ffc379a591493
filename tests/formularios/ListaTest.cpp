#include "apoyo/Fallos.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

namespace {

struct ListaDeTres : Banco {
    Lista lista{ventana, "List1"};

    ListaDeTres() {
        lista.AddItem("uno");
        lista.AddItem("dos");
        lista.AddItem("tres");
    }
    [[nodiscard]] std::vector<std::string> lineas() const {
        std::vector<std::string> textos;
        for (int linea = 0; linea < lista.ListCount(); ++linea) {
            textos.push_back(lista.List(linea));
        }
        return textos;
    }
};

} // namespace

TEST(Lista, NaceVacia) {
    Banco banco;
    const Lista lista{banco.ventana, "LstAOI"};
    EXPECT_EQ(lista.ListCount(), 0);
}

TEST(Lista, GuardaLasLineasEnElOrdenEnQueSeAnaden) {
    ListaDeTres banco;
    EXPECT_EQ(banco.lineas(), (std::vector<std::string>{"uno", "dos", "tres"}));
}

TEST(Lista, QuitarUnaLineaSubeLasDeDebajoConSuSeleccion) {
    ListaDeTres banco;
    banco.lista.Selected(2, true);
    banco.lista.RemoveItem(1);
    EXPECT_EQ(banco.lineas(), (std::vector<std::string>{"uno", "tres"}));
    EXPECT_FALSE(banco.lista.Selected(0));
    EXPECT_TRUE(banco.lista.Selected(1));
}

TEST(Lista, VariasLineasPuedenEstarSeleccionadasALaVez) {
    ListaDeTres banco;
    banco.lista.Selected(0, true);
    banco.lista.Selected(2, true);
    EXPECT_TRUE(banco.lista.Selected(0));
    EXPECT_FALSE(banco.lista.Selected(1));
    EXPECT_TRUE(banco.lista.Selected(2));
    banco.lista.Selected(0, false);
    EXPECT_FALSE(banco.lista.Selected(0));
    EXPECT_TRUE(banco.lista.Selected(2));
}

TEST(Lista, LaQueEsDeUnaSolaLineaOlvidaLaDeAntes) {
    Banco banco;
    Lista lista{banco.ventana, "FilLista", false};
    lista.AddItem("uno");
    lista.AddItem("dos");
    lista.Selected(0, true);
    lista.Selected(1, true);
    EXPECT_FALSE(lista.Selected(0));
    EXPECT_TRUE(lista.Selected(1));
    lista.Selected(0, false);
    EXPECT_TRUE(lista.Selected(1)) << "quitar la selección de otra no toca la suya";
    lista.Selected(1, false);
    EXPECT_FALSE(lista.Selected(1));
}

TEST(Lista, UnaLineaNuevaNaceSinSeleccionar) {
    ListaDeTres banco;
    banco.lista.Selected(2, true);
    banco.lista.RemoveItem(2);
    banco.lista.AddItem("otra");
    EXPECT_FALSE(banco.lista.Selected(2));
}

TEST(Lista, VaciarlaLaDejaSinLineas) {
    ListaDeTres banco;
    banco.lista.Clear();
    EXPECT_EQ(banco.lista.ListCount(), 0);
}

TEST(Lista, UnaLineaQueNoHayFallaConCinco) {
    ListaDeTres banco;
    for (const int linea : {-1, 3}) {
        EXPECT_EQ(FalloDe([&] { (void)banco.lista.List(linea); }), 5) << linea;
        EXPECT_EQ(FalloDe([&] { banco.lista.RemoveItem(linea); }), 5) << linea;
        EXPECT_EQ(FalloDe([&] { (void)banco.lista.Selected(linea); }), 5) << linea;
        EXPECT_EQ(FalloDe([&] { banco.lista.Selected(linea, true); }), 5) << linea;
    }
    EXPECT_EQ(banco.lista.ListCount(), 3);
}

TEST(Lista, CadaCambioDeSusLineasAvisa) {
    ListaDeTres banco;
    banco.lista.observar(banco.anotador("aviso"));
    banco.lista.AddItem("cuatro");
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    banco.lista.Selected(0, true);
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    banco.lista.RemoveItem(0);
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    banco.lista.Clear();
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
}

TEST(Lista, TocarlaPorCodigoNoPulsa) {
    ListaDeTres banco;
    banco.lista.Click = banco.anotador("Click");
    banco.lista.AddItem("cuatro");
    banco.lista.Selected(1, true);
    banco.lista.RemoveItem(1);
    EXPECT_EQ(banco.visto(), Diario{});
}

} // namespace varo
