#include "motor/lectores/CamposDeHoja.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo {
namespace {

using Nombres = std::vector<std::string>;

Nombres NombresDe(const std::vector<Valor>& cabecera) {
    Nombres nombres;
    for (const auto& campo : CamposDeHoja(cabecera)) {
        nombres.push_back(campo.Name);
    }
    return nombres;
}

TEST(CamposDeHoja, UnaCeldaSinNombreDaFYSuNumero) {
    EXPECT_EQ((Nombres{"F1", "X", "F3", "F4"}), NombresDe({Nulo{}, "X", "", "   "}));
}

TEST(CamposDeHoja, UnNombreRepetidoRecibeUnaCifra) {
    EXPECT_EQ((Nombres{"A", "A1", "A2", "B"}), NombresDe({"A", "A", "A", "B"}));
}

TEST(CamposDeHoja, MayusculasYMinusculasSonElMismoNombre) {
    EXPECT_EQ((Nombres{"Año", "AÑO1", "año2"}), NombresDe({"Año", "AÑO", "año"}));
}

TEST(CamposDeHoja, LaCifraNoRepiteUnNombreAnterior) {
    EXPECT_EQ((Nombres{"A1", "A", "A2"}), NombresDe({"A1", "A", "A"}));
    EXPECT_EQ((Nombres{"A", "A1", "A11"}), NombresDe({"A", "A", "A1"}));
    EXPECT_EQ((Nombres{"F2", "F21"}), NombresDe({"F2", Nulo{}}));
}

TEST(CamposDeHoja, LosSignosProhibidosSeCambian) {
    EXPECT_EQ((Nombres{"x#y(z)_"}), NombresDe({"x.y[z]!"}));
    EXPECT_EQ((Nombres{"a#b", "a#b1"}), NombresDe({"a.b", "a#b"}));
}

TEST(CamposDeHoja, UnNumeroUnaFechaOUnaVerdadDanSuTexto) {
    EXPECT_EQ((Nombres{"12,5", "03/02/2001", "Verdadero"}), NombresDe({12.5, Fecha{36925}, true}));
}

TEST(CamposDeHoja, UnNombreLargoSeCortaA64Caracteres) {
    std::string largo;
    std::string cortado;
    for (int i = 0; i < 70; ++i) {
        largo += "ñ";
        cortado += i < 64 ? "ñ" : "";
    }
    const auto conCifra = cortado.substr(0, cortado.size() - 2) + "1";
    EXPECT_EQ((Nombres{cortado, conCifra}), NombresDe({largo, largo}));
}

TEST(CamposDeHoja, DoscientasRepeticionesSonDistintas) {
    const auto nombres = NombresDe(std::vector<Valor>(200, Valor{"A"}));
    EXPECT_EQ("A199", nombres.back());
}

} // namespace
} // namespace varo
