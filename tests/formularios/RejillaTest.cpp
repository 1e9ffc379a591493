#include "formularios/Rejilla.h"

#include "apoyo/Fallos.h"
#include "basico/Texto.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace varo {

namespace {

struct ConRejilla : Banco {
    Rejilla rejilla{ventana, "MSFlexGrid1"};

    /// Fills a column from row 1 on.
    void llenar(int columna, const std::vector<std::string>& celdas) {
        rejilla.Rows(static_cast<int>(celdas.size()) + 1);
        int fila = 0;
        for (const auto& celda : celdas) {
            rejilla.TextMatrix(++fila, columna, celda);
        }
    }
    [[nodiscard]] std::vector<std::string> columna(int columna) const {
        std::vector<std::string> celdas;
        for (int fila = 1; fila < rejilla.Rows(); ++fila) {
            celdas.push_back(rejilla.TextMatrix(fila, columna));
        }
        return celdas;
    }
};

/// A cell of which the rank is known without reading its text.
struct CeldaConocida {
    enum class Clase { Vacia, Numero, Texto };

    Clase clase = Clase::Vacia;
    int centesimas = 0;
    std::u32string caracteres;
    std::string celda;
};

bool vaAntes(const CeldaConocida& a, const CeldaConocida& b) {
    if (a.clase != b.clase) {
        return static_cast<int>(a.clase) < static_cast<int>(b.clase);
    }
    if (a.clase == CeldaConocida::Clase::Numero) {
        return a.centesimas < b.centesimas;
    }
    return a.clase == CeldaConocida::Clase::Texto && a.caracteres < b.caracteres;
}

/// So many hundredths in one of the ways in which a person may write them.
std::string escrito(int centesimas, int manera) {
    const std::string signo = centesimas < 0 ? "-" : "";
    const int valor = std::abs(centesimas);
    const std::string enteras = std::to_string(valor / 100);
    const std::string decimales = (valor % 100 < 10 ? "0" : "") + std::to_string(valor % 100);
    switch (manera) {
    case 0:
        return signo + enteras + "," + decimales;
    case 1:
        return signo + "00" + enteras + "," + decimales + "0";
    case 2:
        return " " + signo + enteras + "," + decimales + " ";
    case 3:
        return signo + std::to_string(valor) + "E-2";
    default:
        return enteras.size() < 4 ? signo + enteras + "," + decimales
                                  : signo + enteras.substr(0, enteras.size() - 3) + "." +
                                        enteras.substr(enteras.size() - 3) + "," + decimales;
    }
}

rc::Gen<CeldaConocida> numeroConocido() {
    return rc::gen::map(
        rc::gen::pair(rc::gen::oneOf(rc::gen::inRange(-300, 300), rc::gen::inRange(-999999, 1000000)),
                      rc::gen::inRange(0, 5)),
        [](const std::pair<int, int>& par) {
            return CeldaConocida{CeldaConocida::Clase::Numero, par.first, {}, escrito(par.first, par.second)};
        });
}

/// Texts of letters of one to four bytes, so none of them reads as a number.
rc::Gen<CeldaConocida> textoConocido() {
    return rc::gen::map(rc::gen::nonEmpty(rc::gen::container<std::u32string>(
                            rc::gen::element(U'A', U'a', U'z', U'Ñ', U'é', U'€', U'\uFFFD', U'\U0001F332'))),
                        [](const std::u32string& caracteres) {
                            std::string celda;
                            for (const char32_t caracter : caracteres) {
                                AnadirUtf8(celda, caracter);
                            }
                            return CeldaConocida{CeldaConocida::Clase::Texto, 0, caracteres, celda};
                        });
}

rc::Gen<CeldaConocida> celdaConocida() {
    return rc::gen::weightedOneOf<CeldaConocida>(
        {{1, rc::gen::construct<CeldaConocida>()}, {4, numeroConocido()}, {2, textoConocido()}});
}

/// Each cell goes behind all those that need not come after it.
std::vector<std::size_t> ordenPorInsercion(const std::vector<CeldaConocida>& celdas) {
    std::vector<std::size_t> orden;
    for (std::size_t nueva = 0; nueva < celdas.size(); ++nueva) {
        std::size_t lugar = orden.size();
        while (lugar > 0 && vaAntes(celdas[nueva], celdas[orden[lugar - 1]])) {
            --lugar;
        }
        orden.insert(orden.begin() + static_cast<std::ptrdiff_t>(lugar), nueva);
    }
    return orden;
}

} // namespace

TEST(Rejilla, CreceConCeldasVaciasYConservaLasQueTenia) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Cols(2);
    rejilla.Rows(2);
    rejilla.TextMatrix(0, 1, "X");
    rejilla.TextMatrix(1, 1, "3,5");
    rejilla.Rows(4);
    rejilla.Cols(3);
    EXPECT_EQ(rejilla.Rows(), 4);
    EXPECT_EQ(rejilla.Cols(), 3);
    EXPECT_EQ(rejilla.TextMatrix(0, 1), "X");
    EXPECT_EQ(rejilla.TextMatrix(1, 1), "3,5");
    EXPECT_EQ(rejilla.TextMatrix(1, 2), "");
    EXPECT_EQ(rejilla.TextMatrix(3, 1), "");
    EXPECT_EQ(rejilla.TextMatrix(3, 2), "");
}

TEST(Rejilla, LoQueSePerdioAlMenguarNoVuelveAlCrecer) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Rows(3);
    rejilla.Cols(3);
    rejilla.TextMatrix(1, 1, "queda");
    rejilla.TextMatrix(2, 1, "fila");
    rejilla.TextMatrix(1, 2, "columna");
    rejilla.Rows(2);
    rejilla.Cols(2);
    rejilla.Rows(3);
    rejilla.Cols(3);
    EXPECT_EQ(rejilla.TextMatrix(1, 1), "queda");
    EXPECT_EQ(rejilla.TextMatrix(2, 1), "");
    EXPECT_EQ(rejilla.TextMatrix(1, 2), "");
}

TEST(Rejilla, UnaCeldaFueraDeLosLimitesFallaConNueve) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Rows(3);
    rejilla.Cols(2);
    using Celda = std::pair<int, int>;
    for (const auto& [fila, columna] : {Celda{-1, 0}, {3, 0}, {0, -1}, {0, 2}}) {
        EXPECT_EQ(FalloDe([&, f = fila, c = columna] { (void)rejilla.TextMatrix(f, c); }), 9);
        EXPECT_EQ(FalloDe([&, f = fila, c = columna] { rejilla.TextMatrix(f, c, "x"); }), 9);
    }
    EXPECT_EQ(FalloDe([&] { rejilla.Row(3); }), 9);
    EXPECT_EQ(FalloDe([&] { rejilla.Col(2); }), 9);
    EXPECT_EQ(FalloDe([&] { rejilla.ColWidth(2, 0); }), 9);
    EXPECT_EQ(FalloDe([&] { rejilla.RemoveItem(3); }), 9);
}

TEST(Rejilla, NoSePuedeQuedarSinLaCabeceraNiSinColumnas) {
    ConRejilla banco;
    EXPECT_EQ(FalloDe([&] { banco.rejilla.Rows(0); }), 9);
    EXPECT_EQ(FalloDe([&] { banco.rejilla.Cols(0); }), 9);
    banco.rejilla.Rows(1);
    banco.rejilla.Cols(1);
    EXPECT_EQ(banco.rejilla.Rows(), 1);
    EXPECT_EQ(banco.rejilla.Cols(), 1);
}

TEST(Rejilla, TextEsElDeLaCeldaActual) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Rows(3);
    rejilla.Cols(3);
    rejilla.Row(2);
    rejilla.Col(1);
    rejilla.Text("aquí");
    EXPECT_EQ(rejilla.TextMatrix(2, 1), "aquí");
    EXPECT_EQ(rejilla.Text(), "aquí");
    rejilla.Row(0);
    EXPECT_EQ(rejilla.Text(), "");
    EXPECT_EQ(rejilla.Row(), 0);
    EXPECT_EQ(rejilla.Col(), 1);
}

TEST(Rejilla, AlMenguarLaCeldaActualYLaColumnaElegidaQuedanDentro) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Rows(5);
    rejilla.Cols(5);
    rejilla.Row(4);
    rejilla.Col(4);
    rejilla.ColSel = 4;
    rejilla.Rows(3);
    rejilla.Cols(2);
    EXPECT_EQ(rejilla.Row(), 2);
    EXPECT_EQ(rejilla.Col(), 1);
    EXPECT_EQ(rejilla.ColSel(), 1);
}

TEST(Rejilla, MoverLaCeldaActualNoMueveLaColumnaElegida) {
    ConRejilla banco;
    banco.rejilla.Cols(4);
    banco.rejilla.Col(3);
    EXPECT_EQ(banco.rejilla.ColSel(), 0);
}

TEST(Rejilla, CadaColumnaTieneSuAncho) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Cols(3);
    rejilla.ColWidth(1, 0);
    rejilla.ColWidth(2, 1234);
    rejilla.Cols(2);
    rejilla.Cols(3);
    EXPECT_EQ(rejilla.ColWidth(1), 0);
    EXPECT_EQ(rejilla.ColWidth(2), rejilla.ColWidth(0)) << "una columna nueva nace con el ancho de diseño";
}

TEST(Rejilla, QuitarUnaFilaSubeLasDeDebajo) {
    ConRejilla banco;
    banco.llenar(1, {"a", "b", "c"});
    banco.rejilla.RemoveItem(2);
    EXPECT_EQ(banco.columna(1), (std::vector<std::string>{"a", "c"}));
}

TEST(Rejilla, LaCabeceraYLaUltimaFilaDeDatosNoSeDejanQuitar) {
    ConRejilla banco;
    banco.llenar(1, {"a", "b"});
    EXPECT_EQ(FalloDe([&] { banco.rejilla.RemoveItem(0); }), 30015);
    banco.rejilla.RemoveItem(1);
    EXPECT_EQ(FalloDe([&] { banco.rejilla.RemoveItem(1); }), 30015);
    EXPECT_EQ(banco.columna(1), std::vector<std::string>{"b"});
}

TEST(Rejilla, QuitarLaFilaActualDejaLaCeldaActualDentro) {
    ConRejilla banco;
    banco.llenar(1, {"a", "b"});
    banco.rejilla.Row(2);
    banco.rejilla.RemoveItem(2);
    EXPECT_EQ(banco.rejilla.Row(), 1);
}

TEST(Rejilla, OrdenarPoneVaciasLuegoNumerosPorValorLuegoTextosPorCodigo) {
    ConRejilla banco;
    banco.llenar(1, {"pino", "10", "", "9,5", "Ñu", "1.000", "Zarza", "-2", "2E1"});
    banco.rejilla.Col(1);
    banco.rejilla.ordenarAscendente();
    // Ñ (U+00D1) comes behind every letter of ASCII.
    EXPECT_EQ(banco.columna(1),
              (std::vector<std::string>{"", "-2", "9,5", "10", "2E1", "1.000", "Zarza", "pino", "Ñu"}));
}

TEST(Rejilla, OrdenarDejaLaCabeceraArribaYLlevaLasFilasEnteras) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.Cols(2);
    banco.llenar(0, {"tercero", "primero", "segundo"});
    banco.llenar(1, {"3", "1", "2"});
    rejilla.TextMatrix(0, 1, "9");
    rejilla.Col(1);
    rejilla.ordenarAscendente();
    EXPECT_EQ(rejilla.TextMatrix(0, 1), "9");
    EXPECT_EQ(banco.columna(0), (std::vector<std::string>{"primero", "segundo", "tercero"}));
}

TEST(Rejilla, OrdenarConservaElOrdenDeLasFilasIguales) {
    ConRejilla banco;
    banco.llenar(0, {"a", "b", "c", "d", "e"});
    banco.llenar(1, {"1,0", "0", "1", "-0", "1,00"});
    banco.rejilla.Col(1);
    banco.rejilla.ordenarAscendente();
    EXPECT_EQ(banco.columna(0), (std::vector<std::string>{"b", "d", "a", "c", "e"}));
}

TEST(Rejilla, LoQueNoSeLeeComoNumeroSeOrdenaComoTexto) {
    ConRejilla banco;
    banco.llenar(1, {"1,5,2", "500", "12a", " "});
    banco.rejilla.Col(1);
    banco.rejilla.ordenarAscendente();
    EXPECT_EQ(banco.columna(1), (std::vector<std::string>{"500", " ", "1,5,2", "12a"}));
}

TEST(Rejilla, OrdenarSinFilasDeDatosNoHaceNada) {
    ConRejilla banco;
    banco.rejilla.TextMatrix(0, 0, "X");
    banco.rejilla.Rows(1);
    banco.rejilla.ordenarAscendente();
    EXPECT_EQ(banco.rejilla.Rows(), 1);
    EXPECT_EQ(banco.rejilla.TextMatrix(0, 0), "X");
}

TEST(Rejilla, AvisaDeSuFormaYSuOrdenPeroNoDeCadaCelda) {
    ConRejilla banco;
    auto& rejilla = banco.rejilla;
    rejilla.observar(banco.anotador("aviso"));
    rejilla.TextMatrix(1, 1, "x");
    rejilla.Row(1);
    rejilla.Text("y");
    EXPECT_EQ(banco.visto(), Diario{});
    rejilla.Rows(4);
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    rejilla.Cols(4);
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    rejilla.ordenarAscendente();
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
    rejilla.RemoveItem(1);
    EXPECT_EQ(banco.visto(), Diario{"aviso"});
}

RC_GTEST_PROP(Rejilla, OrdenarEsLaInsercionLiteral, ()) {
    const auto celdas = *rc::gen::container<std::vector<CeldaConocida>>(celdaConocida());
    ConRejilla banco;
    std::vector<std::string> textos;
    std::vector<std::string> numeros;
    for (const auto& celda : celdas) {
        textos.push_back(celda.celda);
        numeros.push_back(std::to_string(numeros.size()));
    }
    banco.llenar(0, numeros);
    banco.llenar(1, textos);
    banco.rejilla.Col(1);
    banco.rejilla.ordenarAscendente();

    std::vector<std::string> textosEnOrden;
    std::vector<std::string> numerosEnOrden;
    for (const std::size_t celda : ordenPorInsercion(celdas)) {
        textosEnOrden.push_back(textos[celda]);
        numerosEnOrden.push_back(numeros[celda]);
    }
    RC_ASSERT(banco.columna(1) == textosEnOrden);
    RC_ASSERT(banco.columna(0) == numerosEnOrden);
}

} // namespace varo
