#include "motor/Recordset.h"

#include "apoyo/Fallos.h"
#include "motor/TablasDePrueba.h"

#include <gtest/gtest.h>

#include <memory>

namespace varo {

namespace {

using prueba::FallaCon;
using prueba::TablaCon;

Recordset ConTresArboles() {
    return Recordset{std::make_shared<const Tabla>(
        TablaCon("t", {"Arbol", "CAP"}, {{1.0, 30.5}, {2.0, Nulo{}}, {3.0, std::string{"x"}}}))};
}

Recordset Vacio() {
    return Recordset{std::make_shared<const Tabla>(TablaCon("t", {"Arbol", "CAP"}, {}))};
}

TEST(Recordset, SeAbreEnSuPrimeraFila) {
    const auto filas = ConTresArboles();
    EXPECT_FALSE(filas.Eof());
    EXPECT_EQ(filas.Fields(0).Value, Valor{1.0});
}

TEST(Recordset, CuentaSusFilasEsteDondeEste) {
    auto filas = ConTresArboles();
    EXPECT_EQ(filas.RecordCount(), 3);
    while (!filas.Eof()) {
        filas.MoveNext();
    }
    EXPECT_EQ(filas.RecordCount(), 3);
}

TEST(Recordset, MoveNextPasaPorTodasYAcabaDetrasDeLaUltima) {
    auto filas = ConTresArboles();
    std::vector<Valor> arboles;
    for (; !filas.Eof(); filas.MoveNext()) {
        arboles.push_back(filas.Fields(0).Value);
    }
    EXPECT_EQ(arboles, (std::vector<Valor>{1.0, 2.0, 3.0}));
}

TEST(Recordset, MoveNextDetrasDeLaUltimaFalla) {
    auto filas = ConTresArboles();
    filas.MoveLast();
    filas.MoveNext();
    EXPECT_TRUE(filas.Eof());
    EXPECT_EQ(FalloDe([&] { filas.MoveNext(); }), fallo::sinRegistroActual);
    EXPECT_TRUE(filas.Eof());
}

TEST(Recordset, MoveLastVaALaUltimaFilaYMoveFirstVuelveALaPrimera) {
    auto filas = ConTresArboles();
    filas.MoveLast();
    EXPECT_FALSE(filas.Eof());
    EXPECT_EQ(filas.Fields(0).Value, Valor{3.0});
    filas.MoveNext();
    filas.MoveFirst();
    EXPECT_EQ(filas.Fields(0).Value, Valor{1.0});
}

TEST(Recordset, SinFilasEstaAlFinalYNoSePuedeMover) {
    auto filas = Vacio();
    EXPECT_TRUE(filas.Eof());
    EXPECT_EQ(filas.RecordCount(), 0);
    EXPECT_EQ(FalloDe([&] { filas.MoveFirst(); }), fallo::sinRegistroActual);
    EXPECT_EQ(FalloDe([&] { filas.MoveLast(); }), fallo::sinRegistroActual);
    EXPECT_EQ(FalloDe([&] { filas.MoveNext(); }), fallo::sinRegistroActual);
}

TEST(Recordset, UnCampoTieneNombreYElValorDeLaFila) {
    auto filas = ConTresArboles();
    EXPECT_EQ(filas.Fields(1).Name, "CAP");
    EXPECT_EQ(filas.Fields(1).Value, Valor{30.5});
    filas.MoveNext();
    EXPECT_TRUE(EsNulo(filas.Fields(1).Value));
    filas.MoveNext();
    EXPECT_EQ(filas.Fields(1).Value, Valor{std::string{"x"}});
}

TEST(Recordset, UnCampoQueNoHayFallaAunqueNoHayaFilas) {
    const auto filas = ConTresArboles();
    EXPECT_EQ(FalloDe([&] { (void)filas.Fields(2); }), fallo::elementoNoEncontrado);
    EXPECT_EQ(FalloDe([&] { (void)filas.Fields(-1); }), fallo::elementoNoEncontrado);
    EXPECT_EQ(FalloDe([&] { (void)Vacio().Fields(2); }), fallo::elementoNoEncontrado);
}

TEST(Recordset, UnCampoSinFilaFalla) {
    EXPECT_EQ(FalloDe([] { (void)Vacio().Fields(0); }), fallo::sinRegistroActual);
}

TEST(Recordset, SusFallosSonDelMotor) {
    auto filas = Vacio();
    EXPECT_TRUE(
        FallaCon(fallo::sinRegistroActual, "No hay ningún registro activo", [&] { filas.MoveFirst(); }));
}

TEST(Recordset, LosCamposSeConocenSinFilas) {
    const auto filas = Vacio();
    ASSERT_EQ(filas.campos().Count(), 2);
    EXPECT_EQ(filas.campos()(1).Name, "CAP");
}

TEST(Recordset, UnaCopiaSeMuevePorSuCuenta) {
    auto filas = ConTresArboles();
    auto copia = filas;
    copia.MoveLast();
    EXPECT_EQ(filas.Fields(0).Value, Valor{1.0});
    EXPECT_EQ(copia.Fields(0).Value, Valor{3.0});
}

} // namespace

} // namespace varo
