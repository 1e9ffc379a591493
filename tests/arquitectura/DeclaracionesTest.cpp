// What the rules of the names read: the pieces of a text, and what it declares.
#include "arquitectura/Declaraciones.h"
#include "arquitectura/Piezas.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo::arquitectura {

namespace {

using Clase = Declaracion::Clase;
using Textos = std::vector<std::string>;

Textos TextosDe(std::string_view texto) {
    Textos textos;
    for (const auto& pieza : Trocear(texto)) {
        textos.push_back(pieza.texto);
    }
    return textos;
}

/// "Vecinos.h" for what stands outside of all types, "Borde.alto" for a member of Borde.
Textos Hallados(std::string_view texto, Clase clase) {
    Textos hallados;
    for (const auto& declaracion : Declaraciones(texto)) {
        if (declaracion.clase == clase) {
            hallados.push_back(declaracion.en + (declaracion.en.empty() ? "" : ".") + declaracion.nombre);
        }
    }
    return hallados;
}

TEST(Piezas, LasPalabrasTomanLasLetrasConAcentoYLosMillaresDeUnNumero) {
    EXPECT_EQ(TextosDe("año2::corte->x = 1'000;"),
              (Textos{"año2", "::", "corte", "->", "x", "=", "1'000", ";"}));
}

TEST(Piezas, LoQueHayEnUnTextoNoCuenta) {
    EXPECT_EQ(TextosDe(R"x(a("// { \" }", '{', R"y(") {)y"))x"),
              (Textos{"a", "(", "", ",", "", ",", "", ")"}));
}

TEST(Piezas, LasLineasDelPreprocesadorNoCuentan) {
    EXPECT_EQ(TextosDe("#define A {\n  # include \"b\"\nint c;"), (Textos{"int", "c", ";"}));
}

TEST(Piezas, LasLineasDeComentarioSeguidasSonUnoSolo) {
    const auto piezas = Trocear("int a; // uno\n       // sigue\n\n// otro\n/* dos\nlineas */ b");
    ASSERT_EQ(piezas.size(), 7U);
    EXPECT_EQ(piezas[3].texto, "// uno\n// sigue");
    EXPECT_EQ(piezas[4].texto, "// otro");
    EXPECT_EQ(piezas[4].linea, 4);
    EXPECT_EQ(piezas[5].clase, Pieza::Clase::Comentario);
    EXPECT_EQ(piezas[6].texto, "b");
    EXPECT_EQ(piezas[6].linea, 6);
}

TEST(Declaraciones, LosTiposConElQueLosContiene) {
    EXPECT_EQ(Hallados("namespace varo { class Anuncio; enum class Modo : int { Uno };\n"
                       "template <class T> struct Caja final : Base<T> { struct Tapa { int alto = 0; };\n"
                       "    using Lista = std::vector<T>; };\n"
                       "using Par = std::pair<int, int>;\n"
                       "class Ventana::Barra : public Otra {}; }",
                       Clase::Tipo),
              (Textos{"Modo", "Caja", "Caja.Tapa", "Caja.Lista", "Par", "Ventana.Barra"}));
}

TEST(Declaraciones, LaFormaCortaDeUnTipoNoEsOtroTipo) {
    EXPECT_EQ(Hallados("using Clase = Pieza::Clase; using Base::Base; using namespace std;", Clase::Tipo),
              Textos{});
}

TEST(Declaraciones, LosTiposDeUnCuerpoNoSalenPeroSusMetodosSi) {
    const char* const texto =
        "void F() { struct Turno { int cuenta_ = 0; void pasar() {} }; using A = int; }";
    EXPECT_EQ(Hallados(texto, Clase::Tipo), Textos{});
    EXPECT_EQ(Hallados(texto, Clase::Metodo), Textos{"Turno.pasar"});
}

TEST(Declaraciones, LosEnumeradoresConSinValorYComaFinal) {
    EXPECT_EQ(Hallados("enum class Año { Uno = 1, ///< first\n Dos = F(1, 2), Tres, };", Clase::Enumerador),
              (Textos{"Año.Uno", "Año.Dos", "Año.Tres"}));
}

TEST(Declaraciones, LosNombresDeUnaEnumeracionSinClaseSonConstantes) {
    EXPECT_EQ(
        Hallados("enum Modo : int { uno, dos };\nint F() { enum { tres }; return tres; }", Clase::Constante),
        (Textos{"Modo.uno", "Modo.dos", "tres"}));
}

TEST(Declaraciones, LosMetodosSinConstructoresOperadoresNiAmigos) {
    EXPECT_EQ(
        Hallados(
            "class Ventana : public Base<int> {\n"
            "public:\n"
            "    explicit Ventana(int a, std::vector<int> b = {}) : Base{a}, b_{b}, c_(a) { abrir(); }\n"
            "    ~Ventana();\n"
            "    [[nodiscard]] const std::map<int, std::function<void(int)>>& todas() const { return t_; }\n"
            "    template <class F, class... A> F& tocar(A&&... a) { return F{a...}; }\n"
            "    bool operator<(const Ventana& otra) const;\n"
            "    friend bool Igual(const Ventana& a);\n"
            "    virtual void añadir() = 0;\n"
            "    std::function<void(const std::string&)> alPulsar = [](const std::string&) {};\n"
            "    int alto = Alto(3);\n"
            "};",
            Clase::Metodo),
        (Textos{"Ventana.todas", "Ventana.tocar", "Ventana.añadir"}));
}

TEST(Declaraciones, LasFuncionesSueltasPeroNoLosMetodosDefinidosFuera) {
    EXPECT_EQ(
        Hallados("namespace { template <class T> std::optional<T> Buscar(const T& t) { return Otra(t); }\n"
                 "const int tres = Contar(3); }\n"
                 "Ventana::Ventana(int a) : a_(a) {}\n"
                 "int Ventana::alto() const { return 1; }\n"
                 "[[noreturn]] void Romper(const char* motivo);",
                 Clase::Funcion),
        (Textos{"Buscar", "Romper"}));
}

TEST(Declaraciones, LasConstantesYLosMiembrosPrivados) {
    const char* const texto =
        "inline constexpr double pi = 3.0;\n"
        "const std::array<int, 2> lados{1, 2};\n"
        "class A { int uno_ = 1; static constexpr int filas = 3; std::vector<int> dos_;\n"
        "public: int tres = 0; private: std::map<int, int> cuatro_{{1, 2}}; };\n"
        "struct B { int cinco; private: int seis_; };\n"
        "int F() { const int siete = 7; return siete; }";
    EXPECT_EQ(Hallados(texto, Clase::Constante), (Textos{"pi", "lados", "A.filas"}));
    EXPECT_EQ(Hallados(texto, Clase::MiembroPrivado), (Textos{"A.uno_", "A.dos_", "A.cuatro_", "B.seis_"}));
}

TEST(Declaraciones, CadaUnaDiceSuLinea) {
    EXPECT_EQ(Declaraciones("// one\n\nstruct A {\n    int b();\n};"),
              (std::vector<Declaracion>{{Clase::Tipo, "A", "", 3}, {Clase::Metodo, "b", "A", 4}}));
}

} // namespace

} // namespace varo::arquitectura
