#include "motor/lectores/FechasBiff.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(FechasBiff, LosFormatosPredefinidosDeFechaSonLosDeLaTabla) {
    for (int formato = 0; formato < 164; ++formato) {
        const bool esperado = (formato >= 14 && formato <= 22) || (formato >= 27 && formato <= 36) ||
                              (formato >= 45 && formato <= 47) || (formato >= 50 && formato <= 58);
        EXPECT_EQ(esperado, EsFormatoDeFecha(formato)) << formato;
    }
}

TEST(FechasBiff, UnFormatoConDiaMesAnoUHoraEsDeFecha) {
    for (const char* formato : {"dd/mm/yyyy", "D-MMM-YY", "h:mm:ss", "[h]:mm", "[mm]", "[SS].00", "yyyy",
                                "[$-40A]dddd d \"de\" mmmm", "[Red]d", "0;h"}) {
        EXPECT_TRUE(EsFormatoDeFecha(std::string_view{formato})) << formato;
    }
}

TEST(FechasBiff, TextosEscapesColoresYCondicionesNoHacenFecha) {
    for (const char* formato :
         {"", "General", "0.00", "[Red]0.00", "[Magenta]0", "0 \"días\"", "0\\h", "_d0", "*s0", "[>=100]0",
          "[$m-C0A]0", "\"Verdadero d\";\"h\";\"Falso\"", "\"sin cerrar d", "[d sin cerrar", "0\\", "[]0"}) {
        EXPECT_FALSE(EsFormatoDeFecha(std::string_view{formato})) << formato;
    }
}

TEST(FechasBiff, ElCalendarioDe1900GuardaElDiaQueMuestraLaHoja) {
    EXPECT_EQ(Valor{Fecha{2}}, FechaDeSerie(1, false));   // 1 January 1900
    EXPECT_EQ(Valor{Fecha{60}}, FechaDeSerie(59, false)); // 28 February 1900
    EXPECT_EQ(Valor{Fecha{60.5}}, FechaDeSerie(60.5, false));
    EXPECT_EQ(Valor{Fecha{61}}, FechaDeSerie(61, false)); // 1 March 1900
    EXPECT_EQ(Valor{Fecha{43831.25}}, FechaDeSerie(43831.25, false));
}

TEST(FechasBiff, ElCalendarioDe1904EmpiezaEseAno) {
    EXPECT_EQ(Valor{Fecha{1463}}, FechaDeSerie(1, true)); // 2 January 1904
    EXPECT_EQ(Valor{Fecha{36925}}, FechaDeSerie(35463, true));
}

TEST(FechasBiff, PorDebajoDeUnDiaEsUnaHoraSola) {
    EXPECT_EQ(Valor{Fecha{0.75}}, FechaDeSerie(0.75, false));
    EXPECT_EQ(Valor{Fecha{0.75}}, FechaDeSerie(0.75, true));
    EXPECT_EQ(Valor{Fecha{0}}, FechaDeSerie(0, false));
}

TEST(FechasBiff, LoQueNoEsFechaSigueSiendoNumero) {
    EXPECT_EQ(Valor{-0.5}, FechaDeSerie(-0.5, false));
    EXPECT_EQ(Valor{-1.0}, FechaDeSerie(-1, true));
    EXPECT_EQ(Valor{Fecha{2958465.5}}, FechaDeSerie(2958465.5, false)); // 31 December 9999
    EXPECT_EQ(Valor{2958466.0}, FechaDeSerie(2958466, false));
    EXPECT_EQ(Valor{Fecha{2958465}}, FechaDeSerie(2957003, true));
    EXPECT_EQ(Valor{2957004.0}, FechaDeSerie(2957004, true));
}

} // namespace
} // namespace varo
