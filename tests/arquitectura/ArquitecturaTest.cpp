// The source tree keeps the rules of the architecture (docs/arquitectura.md).
#include "apoyo/Lugares.h"
#include "arquitectura/Fuente.h"
#include "arquitectura/Reglas.h"
#include "arquitectura/ReglasDeNombres.h"
#include "arquitectura/ReglasDePalabras.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace varo::arquitectura {

namespace {

class Arquitectura : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_FALSE(fuentes.empty()) << "No hay fuentes bajo src/"; }

    const std::vector<Fuente> fuentes = LeerFuentes(prueba::Proyecto() / "src");
};

TEST_F(Arquitectura, LosIncludesSeEscribenDesdeSrcYExisten) {
    EXPECT_EQ(IncludesQueNoExisten(fuentes), Infracciones{});
}

TEST_F(Arquitectura, CadaCarpetaConoceSoloLasQuePuede) {
    EXPECT_EQ(FlechasProhibidas(fuentes), Infracciones{});
}

TEST_F(Arquitectura, ElNucleoSoloUsaLaBibliotecaEstandar) {
    EXPECT_EQ(CabecerasAjenas(fuentes), Infracciones{});
}

TEST_F(Arquitectura, LoQueCalculaNoConoceVentanas) {
    EXPECT_EQ(CalculoQueConoceVentanas(fuentes), Infracciones{});
}

TEST_F(Arquitectura, LasFuentesLlevanLasLetrasEnSuSitio) {
    EXPECT_EQ(LetrasFueraDeSitio(fuentes), Infracciones{});
}

TEST_F(Arquitectura, NingunaFuentePasaDeSeiscientasLineas) {
    EXPECT_EQ(FuentesDemasiadoLargas(fuentes), Infracciones{});
}

TEST_F(Arquitectura, LosNombresSeEscribenDeUnSoloModo) {
    EXPECT_EQ(NombresFueraDeEstilo(fuentes), Infracciones{});
}

TEST_F(Arquitectura, NingunNombreValeParaDosTipos) {
    EXPECT_EQ(NombresDeDosTipos(fuentes), Infracciones{});
}

TEST_F(Arquitectura, LoQuePareceMalYEstaBienLlevaUnaSolaEtiqueta) {
    EXPECT_EQ(EtiquetasMalEscritas(fuentes), Infracciones{});
    EXPECT_EQ(EtiquetasMalEscritas(LeerFuentes(prueba::DatosDePrueba())), Infracciones{});
}

TEST_F(Arquitectura, LosComentariosDelEscritorioNombranAQt) {
    EXPECT_EQ(ComentariosSinElNombreDeQt(fuentes), Infracciones{});
}

} // namespace

} // namespace varo::arquitectura
