#include "plot/ConstruirPoligono.h"

#include "apoyo/Fallos.h"
#include "apoyo/Jornada.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

Valor texto(const char* t) {
    return Valor{std::string{t}};
}

/// The square drawn, with the options changed first.
struct Cuadrado : Jornada {
    explicit Cuadrado(const std::function<void(Cuadrado&)>& cambio = {},
                      const Filas& filas = CuadradoConCentro()) {
        abrirParcela(filas);
        if (cambio) {
            cambiarOpciones([&](OpcionesPrograma&) { cambio(*this); });
        }
        dibujarCuadrado();
    }
    const TablaPoligono& poligono() { return programa.sesion.Poligono; }
};

TEST(ConstruirPoligono, ElCuadradoSeCierraConCincoPuntosYCuatroAngulosRectos) {
    Cuadrado cuadrado;
    const auto& sesion = cuadrado.programa.sesion;
    EXPECT_EQ(sesion.NumPuntosPoligono, 5);
    ASSERT_EQ(sesion.AnguloLado.limite(), 3);
    ASSERT_EQ(sesion.AnguloInterior.limite(), 3);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(sesion.AnguloLado(i), 90.0 * i) << i;
        EXPECT_EQ(sesion.AnguloInterior(i), 90) << i;
    }
    EXPECT_EQ(sesion.SupPoligono, 100);
    const std::vector<std::pair<double, double>> vertices{{0, 0}, {0, 10}, {10, 10}, {10, 0}, {0, 0}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(cuadrado.poligono()(0, i), Valor{vertices[static_cast<std::size_t>(i)].first}) << i;
        EXPECT_EQ(cuadrado.poligono()(1, i), Valor{vertices[static_cast<std::size_t>(i)].second}) << i;
    }
}

TEST(ConstruirPoligono, UnArbolDentroNuncaEsVertice) {
    Cuadrado cuadrado;
    for (int i = 0; i < cuadrado.poligono().filas(); ++i) {
        EXPECT_NE(cuadrado.poligono()(0, i), Valor{4.0});
    }
}

TEST(ConstruirPoligono, ConCodigoLasColumnasSonSeis) {
    Cuadrado cuadrado;
    const auto& poligono = cuadrado.poligono();
    EXPECT_EQ(poligono(2, 1), texto("QP"));
    EXPECT_EQ(poligono(3, 1), Valor{6400 / 125663.708});
    EXPECT_EQ(poligono(4, 1), Valor{1.0}) << "diez decímetros";
    EXPECT_EQ(poligono(5, 1), texto("2"));
    EXPECT_EQ(FalloDe([&] { static_cast<void>(poligono(6, 1)); }), fallo::fueraDeIndice);
}

TEST(ConstruirPoligono, SinCodigoLasColumnasVanUnaALaIzquierda) {
    Cuadrado cuadrado{[](Cuadrado& c) { c.usuario.clic(c.opciones().ChCodigo); }};
    const auto& poligono = cuadrado.poligono();
    EXPECT_EQ(poligono(2, 1), Valor{6400 / 125663.708});
    EXPECT_EQ(poligono(3, 1), Valor{1.0});
    EXPECT_EQ(poligono(4, 1), texto("2"));
    EXPECT_EQ(FalloDe([&] { static_cast<void>(poligono(5, 1)); }), fallo::fueraDeIndice);
}

/// The same square with its crown in other measures: roles from 2 on in these grid columns, then index and
/// code.
TablaPoligono PoligonoCon(Opcion OpcionesPrograma::*tipo, const std::vector<double>& copa) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 0; i < copa.size(); ++i) {
        filas[2][3 + i] = copa[i];
    }
    Jornada jornada;
    jornada.abrirParcela(filas);
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { jornada.usuario.clic(opciones.*tipo); });
    jornada.pedirColumnas();
    auto& dialogo = dynamic_cast<SelColumnas&>(*jornada.programa.activa());
    const int papelesDeCopa = static_cast<int>(copa.size());
    for (int papel = 0; papel < 2 + papelesDeCopa; ++papel) {
        jornada.elegirPapel(dialogo, papel, papel + 2);
    }
    jornada.elegirPapel(dialogo, 2 + papelesDeCopa, 1);
    jornada.elegirPapel(dialogo, 3 + papelesDeCopa, 8);
    jornada.usuario.clic(dialogo.CmdDibujar);
    jornada.usuario.clic(jornada.programa.tocar<FrmFormato>().CmdAceptar);
    return jornada.programa.sesion.Poligono;
}

TEST(ConstruirPoligono, ElRadioMedioSaleDeCadaFormaDeCopa) {
    const auto cuatro = PoligonoCon(&OpcionesPrograma::Opt4R, {10, 20, 30, 60});
    EXPECT_EQ(cuatro(4, 1), Valor{3.0});
    const auto dos = PoligonoCon(&OpcionesPrograma::Opt2D, {30, 70});
    EXPECT_EQ(dos(4, 1), Valor{2.5});
    EXPECT_EQ(dos(2, 1), texto("QP"));
    EXPECT_EQ(dos(5, 1), texto("2"));
    const auto uno = PoligonoCon(&OpcionesPrograma::OptRM, {45});
    EXPECT_EQ(uno(4, 1), Valor{4.5});
    EXPECT_EQ(uno(2, 1), texto("QP"));
    EXPECT_EQ(uno(5, 1), texto("2"));
}

TEST(ConstruirPoligono, ElFactorDeLosRadiosEsElDeSuUnidad) {
    EXPECT_EQ(Cuadrado{}.programa.sesion.FactorRadios, 10);
    EXPECT_EQ(
        Cuadrado{[](Cuadrado& c) { c.usuario.clic(c.opciones().Optmetro); }}.programa.sesion.FactorRadios, 1);
    EXPECT_EQ(Cuadrado{[](Cuadrado& c) { c.usuario.clic(c.opciones().Optcm); }}.programa.sesion.FactorRadios,
              100);
}

TEST(ConstruirPoligono, LaRejillaQuedaOrdenadaPorLaPrimeraColumna) {
    auto filas = CuadradoConCentro();
    std::swap(filas[1], filas[5]);
    Cuadrado cuadrado{{}, filas};
    const auto& rejilla = cuadrado.programa.tocar<Hojadedatos>().MSFlexGrid1;
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        EXPECT_EQ(rejilla.TextMatrix(fila, 1), std::to_string(fila));
    }
}

TEST(ConstruirPoligono, UnTamanoVacioEnElBordeEsAreaCero) {
    auto filas = CuadradoConCentro();
    filas[2][8] = {};
    Cuadrado cuadrado{{}, filas};
    EXPECT_EQ(cuadrado.poligono()(3, 1), Valor{0.0});
}

TEST(ConstruirPoligono, UnRadioVacioEnElBordeEsUnFalloYDentroNo) {
    auto filas = CuadradoConCentro();
    filas[5][3] = {};
    EXPECT_EQ(Cuadrado({}, filas).programa.sesion.NumPuntosPoligono, 5);

    filas[3][3] = {};
    Jornada jornada;
    jornada.abrirParcela(filas);
    jornada.servicios.esperarFallo(13);
    jornada.dibujarCuadrado();
    const std::string& lugar = jornada.servicios.fallos().back().lugar();
    EXPECT_NE(lugar.find("fila 4 de «Parcela1$», árbol 3"), std::string::npos) << lugar;
    EXPECT_NE(lugar.find("RN"), std::string::npos) << lugar;
}

TEST(ConstruirPoligono, ElContornoSobreviveAlCierreDelArchivo) {
    Cuadrado cuadrado;
    cuadrado.usuario.clic(cuadrado.marco().mnuCerrar);
    EXPECT_EQ(cuadrado.programa.sesion.NumPuntosPoligono, 5);
    EXPECT_EQ(cuadrado.poligono().filas(), 5);
}

} // namespace
} // namespace varo::prueba
