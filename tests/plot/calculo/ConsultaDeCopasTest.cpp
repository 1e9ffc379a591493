#include "plot/calculo/ConsultaDeCopas.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

const std::vector<std::string> radios{"RN", "RE", "RS", "RO"};
const std::vector<std::string> diametros{"NS", "EO"};

TEST(ConsultaDeCopas, CirculosDeCuatroRadios) {
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::CuatroRadios, true, 1, radios, "Hoja1$"}),
              "SELECT (3.1415927/16)*(RN+RE+RS+RO)^2 AS [SupCirc]  FROM  [Hoja1$]");
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::CuatroRadios, true, 10, radios, "Hoja1$"}),
              "SELECT (3.1415927/1600)*(RN+RE+RS+RO)^2 AS [SupCirc]  FROM  [Hoja1$]");
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::CuatroRadios, true, 100, radios, "Hoja1$"}),
              "SELECT (3.1415927/160000)*(RN+RE+RS+RO)^2 AS [SupCirc]  FROM  [Hoja1$]");
}

TEST(ConsultaDeCopas, CirculosDeDosDiametrosYDeRadioMedio) {
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::DosDiametros, true, 100, diametros, "H$"}),
              "SELECT (3.1415927/160000)*(NS+EO)^2 AS [SupCirc]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::RadioMedio, true, 10, {"R"}, "H$"}),
              "SELECT (3.1415927/400)*(R*R) AS [SupCirc]  FROM  [H$]");
}

TEST(ConsultaDeCopas, Elipses) {
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::CuatroRadios, false, 10, radios, "H$"}),
              "SELECT (3.1415927/400)*(RN*RE+RE*RS+RS*RO+RO*RN) AS [SupElipse]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::DosDiametros, false, 1, diametros, "H$"}),
              "SELECT (3.1415927/16)*(NS*EO) AS [SupElipse]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeCopas({DatosDeCopa::RadioMedio, false, 1, {"R"}, "H$"}), "");
}

TEST(ConsultaDeCopas, LaDeLaCopiaTomaOtrosDivisores) {
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::RadioMedio, true, 100, {"R"}, "H$"}),
              "SELECT (3.1415927/10000)*(R*R) AS [SupCirc]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::DosDiametros, false, 10, diametros, "H$"}),
              "SELECT (3.1415927/400)*(NS*EO) AS [SupElipse]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::CuatroRadios, false, 1, radios, "H$"}),
              "SELECT  (3.1415927/4)*(RN*RE+RE*RS+RS*RO+RO*RN) AS [SupElipse]  FROM  [H$]");
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::CuatroRadios, true, 1, radios, "H$"}),
              ConsultaDeCopas({DatosDeCopa::CuatroRadios, true, 1, radios, "H$"}));
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::DosDiametros, true, 1, diametros, "H$"}),
              ConsultaDeCopas({DatosDeCopa::DosDiametros, true, 1, diametros, "H$"}));
    EXPECT_EQ(ConsultaDeLaCopia({DatosDeCopa::RadioMedio, false, 1, {"R"}, "H$"}), "");
}

} // namespace
} // namespace varo
