#include "apoyo/Fallos.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

TEST(Matriz, SusMiembrosCompartenNombreYTienenSuIndice) {
    Banco banco;
    Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    CajaTexto& caja = matriz.crear(6, "0,00");
    EXPECT_EQ(&matriz(6), &caja);
    EXPECT_EQ(caja.Name(), "TxtBAF1");
    EXPECT_EQ(caja.Index(), 6);
    EXPECT_EQ(caja.nombreCompleto(), "TxtBAF1(6)");
    EXPECT_EQ(caja.Text(), "0,00");
}

TEST(Matriz, PuedeTenerHuecos) {
    Banco banco;
    Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    matriz.crear(6);
    matriz.crear(0);
    EXPECT_TRUE(matriz.tiene(0));
    EXPECT_FALSE(matriz.tiene(5));
    EXPECT_TRUE(matriz.tiene(6));
    std::vector<int> indices;
    for (const auto& [indice, miembro] : matriz.miembros()) {
        indices.push_back(indice);
        EXPECT_EQ(miembro->Index(), indice);
    }
    EXPECT_EQ(indices, (std::vector<int>{0, 6}));
}

TEST(Matriz, UnMiembroQueNoHayFallaConSuNombre) {
    Banco banco;
    const Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    try {
        (void)matriz(5);
        FAIL() << "el miembro 5 no existe";
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), 340);
        EXPECT_EQ(error.descripcion(), "No existe el control TxtBAF1(5)");
    }
}

TEST(Matriz, BuscarUnMiembroQueNoHayNoLoCrea) {
    Banco banco;
    const Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    EXPECT_EQ(FalloDe([&] { (void)matriz(5); }), 340);
    EXPECT_FALSE(matriz.tiene(5));
    EXPECT_TRUE(banco.ventana.controles().empty());
}

TEST(Matriz, CrearOtraVezUnMiembroFallaYElPrimeroSigue) {
    Banco banco;
    Matriz<CajaTexto> matriz{banco.ventana, "TxtBAF1"};
    CajaTexto& primero = matriz.crear(6, "0,00");
    EXPECT_EQ(FalloDe([&] { matriz.crear(6, "1,00"); }), 360);
    EXPECT_EQ(&matriz(6), &primero);
    EXPECT_EQ(primero.Text(), "0,00");
    EXPECT_EQ(banco.ventana.controles(), std::vector<Control*>{&primero});
}

TEST(Matriz, UnMiembroQueSeQuitaDejaElRegistroDeSuVentana) {
    Banco banco;
    Matriz<Etiqueta> matriz{banco.ventana, "Lbcodigo"};
    Etiqueta& primera = matriz.crear(0);
    matriz.crear(1);
    Etiqueta& tercera = matriz.crear(2);
    matriz.quitar(1);
    EXPECT_FALSE(matriz.tiene(1));
    EXPECT_EQ(banco.ventana.controles(), (std::vector<Control*>{&primera, &tercera}));
    EXPECT_EQ(FalloDe([&] { matriz.quitar(1); }), 340);
    matriz.crear(1, "otra");
    EXPECT_EQ(matriz(1).Caption(), "otra");
}

TEST(Matriz, QuitarDesdeUnIndiceDejaLosAnteriores) {
    Banco banco;
    Matriz<Etiqueta> matriz{banco.ventana, "Lbcodigo"};
    for (const int indice : {0, 1, 2, 5}) {
        matriz.crear(indice);
    }
    matriz.quitarDesde(2);
    EXPECT_EQ(matriz.miembros().size(), 2U);
    EXPECT_TRUE(matriz.tiene(1));
    EXPECT_EQ(banco.ventana.controles().size(), 2U);
    matriz.quitarDesde(7);
    EXPECT_EQ(matriz.miembros().size(), 2U);
}

TEST(Matriz, SusOpcionesPuedenSerDeGruposDistintos) {
    Banco banco;
    GrupoOpciones grupos[2];
    Matriz<Opcion> matriz{banco.ventana, "OptBAF"};
    matriz.crear(0, "BAF", grupos[0], true);
    matriz.crear(1, "BAF", grupos[1], true);
    EXPECT_TRUE(matriz(0).Value);
    EXPECT_TRUE(matriz(1).Value);
}

} // namespace varo
