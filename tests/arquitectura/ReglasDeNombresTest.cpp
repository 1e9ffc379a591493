// The rules of the names find a breach made for each and let pass what is allowed.
#include "arquitectura/ReglasDeNombres.h"

#include <gtest/gtest.h>

namespace varo::arquitectura {

namespace {

using Lineas = std::vector<std::string>;

TEST(ReglasDeNombres, LosNombresDelEstiloPasan) {
    EXPECT_EQ(NombresFueraDeEstilo(
                  {{"map/A.h", "enum class Ámbito { Año, ISC };\n"
                               "constexpr int ñandú = 1;\n"
                               "int main();\n"
                               "void AñadirUno();\n"
                               "class FrmMapa { public: void añadir(); int Alto = 0;\n"
                               "    void CmdAñadir_Click(); void mnuAbrir_Click(); void MoveFirst();\n"
                               "private: int alto_ = 0; };\n"}}),
              Lineas{});
}

TEST(ReglasDeNombres, CadaClaseDeNombreTieneSuForma) {
    EXPECT_EQ(NombresFueraDeEstilo({{"map/A.h", "struct mapa {};\n"
                                                "enum class Modo { uno, ámbar, Dos_Tres };\n"
                                                "void dibujar();\n"
                                                "constexpr int Margen = 1;\n"
                                                "class B {\n"
                                                "    void Pintar();\n"
                                                "    void Ámbito();\n"
                                                "    void pintar_todo();\n"
                                                "    void CmdAceptar_Pulsado();\n"
                                                "    int alto = 0;\n"
                                                "    int Ancho_ = 0;\n"
                                                "};\n"}}),
              (Lineas{"map/A.h:1 mapa: un tipo se escribe CamelCase",
                      "map/A.h:2 uno: un enumerador se escribe CamelCase",
                      "map/A.h:2 ámbar: un enumerador se escribe CamelCase",
                      "map/A.h:2 Dos_Tres: un enumerador se escribe CamelCase",
                      "map/A.h:3 dibujar: una función suelta se escribe CamelCase",
                      "map/A.h:4 Margen: una constante se escribe camelCase",
                      "map/A.h:6 Pintar: un método se escribe camelCase",
                      "map/A.h:7 Ámbito: un método se escribe camelCase",
                      "map/A.h:8 pintar_todo: un método se escribe camelCase",
                      "map/A.h:9 CmdAceptar_Pulsado: un método se escribe camelCase",
                      "map/A.h:10 alto: un miembro privado se escribe camelCase_",
                      "map/A.h:11 Ancho_: un miembro privado se escribe camelCase_"}));
}

TEST(ReglasDeNombres, UnTipoSueltoNoComparteSuNombre) {
    EXPECT_EQ(NombresDeDosTipos({{"map/A.h", "struct Escala {};\nclass B { enum class Clase { Una }; };\n"},
                                 {"map/C.h", "struct Escala;\nclass D { enum class Clase { Otra }; };\n"},
                                 {"map/C.cpp", "using Clase = D::Clase;\n"}}),
              Lineas{});
    EXPECT_EQ(NombresDeDosTipos({{"map/A.h", "struct Escala {};\nstruct Clase {};\n"},
                                 {"map/B.cpp", "namespace { using Escala = int; }\n"},
                                 {"map/C.h", "class D { enum class Clase { Otra }; };\n"}}),
              (Lineas{"Clase nombra más de un tipo: map/A.h:2, map/C.h:1",
                      "Escala nombra más de un tipo: map/A.h:1, map/B.cpp:1"}));
}

} // namespace

} // namespace varo::arquitectura
