#include "lote/plantilla/Plantilla.h"

#include "apoyo/Fallos.h"
#include "apoyo/Lugares.h"
#include "lote/TrabajoDePrueba.h"
#include "lote/plantilla/Propuesta.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

using Papeles = std::map<std::string, std::string, std::less<>>;

Propuesta ProponerPara(const std::vector<std::string>& cabeceras) {
    Tabla tabla;
    std::vector<Campo> campos;
    for (const auto& cabecera : cabeceras) {
        campos.push_back({cabecera});
    }
    tabla.Fields = Coleccion<Campo>{campos};
    return ProponerPapeles(tabla);
}

TEST(Propuesta, LasCabecerasUsualesSeReconocenConAcentosMayusculasYUnidades) {
    const auto propuesta =
        ProponerPara({"Nº árbol", "COORD X (m)", "Coord_Y (m)", "Radio Norte", "radio este", "R. Sur",
                      "Radio O", "Especie", "Diámetro (cm)", "Notas"});
    EXPECT_EQ(propuesta.copa, DatosDeCopa::CuatroRadios);
    EXPECT_FALSE(propuesta.esCircunferencia);
    EXPECT_EQ(propuesta.papeles, (Papeles{{"X", "COORD X (m)"},
                                          {"Y", "Coord_Y (m)"},
                                          {"N", "Radio Norte"},
                                          {"E", "radio este"},
                                          {"S", "R. Sur"},
                                          {"O", "Radio O"},
                                          {"Indice", "Nº árbol"},
                                          {"Codigo", "Especie"},
                                          {"DAP", "Diámetro (cm)"}}));
}

TEST(Propuesta, DosDiametrosOUnRadioMedioDicenLosDatosDeCopa) {
    const auto dos = ProponerPara({"X", "Y", "DNS", "DEO", "CAP", "Notas"});
    EXPECT_EQ(dos.copa, DatosDeCopa::DosDiametros);
    EXPECT_TRUE(dos.esCircunferencia);
    EXPECT_EQ(dos.papeles, (Papeles{{"X", "X"}, {"Y", "Y"}, {"NS", "DNS"}, {"EO", "DEO"}, {"DAP", "CAP"}}));
    const auto uno = ProponerPara({"X", "Y", "Radio medio", "Notas"});
    EXPECT_EQ(uno.copa, DatosDeCopa::RadioMedio);
    EXPECT_EQ(uno.papeles, (Papeles{{"X", "X"}, {"Y", "Y"}, {"Radio", "Radio medio"}}));
}

TEST(Propuesta, ElUltimoCampoNoSeProponeYNingunoDosVeces) {
    EXPECT_EQ(ProponerPara({"X", "X (m)", "Y"}).papeles, (Papeles{{"X", "X"}}));
    EXPECT_TRUE(ProponerPara({}).papeles.empty());
}

TEST(Plantilla, LaDeUnaParcelaCorrienteCorreSinTocarla) {
    const ParcelaDePrueba parcela;
    const std::string plantilla = PlantillaDeTrabajo(parcela.ruta("parcela.xls"));
    const Trabajo trabajo = InterpretarTrabajo(plantilla, parcela.ruta("trabajo.toml"));
    EXPECT_EQ(trabajo.hoja, "Parcela1$");
    const std::vector<std::pair<std::string, std::string>> papeles{
        {"X", "X"},  {"Y", "Y"},          {"N", "RN"},       {"E", "RE"},   {"S", "RS"},
        {"O", "RO"}, {"Indice", "Arbol"}, {"Codigo", "Cod"}, {"DAP", "CAP"}};
    ASSERT_EQ(trabajo.columnas.size(), papeles.size());
    for (const auto& [papel, cabecera] : papeles) {
        EXPECT_EQ(std::get<std::string>(trabajo.columna(papel)->columna), cabecera);
    }
    const auto informe = CorrerTrabajo(trabajo);
    EXPECT_EQ(informe.columnas, 17);
    EXPECT_EQ(informe.superficie, 100);
}

/// The template with the lines of the families taken in: "# ChAPA = 1" becomes "ChAPA = 1".
std::string ConLasFamilias(std::string plantilla) {
    for (const char* const principio : {"Ch", "Txt", "Lst", "Opt", "\"Txt", "\"Opt"}) {
        const std::string comentado = std::string{"\n# "} + principio;
        for (auto lugar = plantilla.find(comentado); lugar != std::string::npos;
             lugar = plantilla.find(comentado)) {
            plantilla.erase(lugar + 1, 2);
        }
    }
    return plantilla;
}

TEST(Plantilla, DiceLaRutaEnteraDeLaParcela) {
    const ParcelaDePrueba parcela;
    const auto relativa = std::filesystem::relative(parcela.ruta("parcela.xls"));
    ASSERT_TRUE(relativa.is_relative());
    const Trabajo trabajo = InterpretarTrabajo(PlantillaDeTrabajo(relativa), "/otra/carpeta/trabajo.toml");
    EXPECT_EQ(trabajo.archivo, parcela.ruta("parcela.xls"));
}

TEST(Plantilla, SusRenglonesDeFamiliasCorrenSinElComentario) {
    const CarpetaTemporal carpeta;
    const auto ejemplo = Proyecto() / "ejemplos" / "parcela.xls";
    const std::string plantilla = ConLasFamilias(PlantillaDeTrabajo(ejemplo));
    const auto informe = CorrerTrabajo(InterpretarTrabajo(plantilla, carpeta / "trabajo.toml"));
    EXPECT_EQ(informe.columnas, 17 + 5);
}

TEST(Plantilla, SinPropuestasQuedaUnTrabajoQueDiceQuePapelesFaltan) {
    Filas filas{{std::string{"uno"}, std::string{"dos \"y\" \\ \n tres"}, std::string{"nota"}},
                {1.0, 2.0, 3.0}};
    const ParcelaDePrueba parcela{filas};
    const std::string plantilla = PlantillaDeTrabajo(parcela.ruta("parcela.xls"));
    const Trabajo trabajo = InterpretarTrabajo(plantilla, parcela.ruta("trabajo.toml"));
    EXPECT_EQ(ErrorDe([&] { CorrerTrabajo(trabajo); }),
              parcela.ruta("trabajo.toml").string() + ": columnas: faltan papeles: X, Y, N, E, S, O");
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, R"("dos \"y\" \\ \u000A tres")", plantilla.c_str());
}

TEST(Plantilla, UnaCabeceraConComillasSeEscribeComoToca) {
    auto filas = CuadradoConCentro();
    filas[0][1] = std::string{"X (\"m\")\ty \\"};
    const ParcelaDePrueba parcela{filas};
    const Trabajo trabajo =
        InterpretarTrabajo(PlantillaDeTrabajo(parcela.ruta("parcela.xls")), parcela.ruta("trabajo.toml"));
    EXPECT_EQ(CorrerTrabajo(trabajo).arboles, 5);
}

TEST(Plantilla, EntreVariasHojasSeElijeLaQueMasPapelesTiene) {
    const ParcelaDePrueba parcela;
    Hoja portada;
    portada.nombre = "Portada";
    portada.celdas = {{std::string{"Parcela"}, std::string{"Fecha"}, std::string{"Nota"}}, {1.0, 2.0, 3.0}};
    Hoja arboles;
    arboles.nombre = "Arboles";
    arboles.celdas = CuadradoConCentro();
    EscribirArchivoXls(parcela.ruta("dos.xls"), {portada, arboles});
    const std::string plantilla = PlantillaDeTrabajo(parcela.ruta("dos.xls"));
    EXPECT_EQ(InterpretarTrabajo(plantilla, "t.toml").hoja, "Arboles$");
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "# hoja = \"Portada$\"", plantilla.c_str());
}

TEST(Plantilla, UnArchivoQueNoSePuedeLeerEsUnFalloDelMotor) {
    EXPECT_TRUE(FallaCon(fallo::archivoNoEncontrado, "«/no/esta.xls»: el archivo no existe",
                         [] { PlantillaDeTrabajo("/no/esta.xls"); }));
}

} // namespace
} // namespace varo::prueba
