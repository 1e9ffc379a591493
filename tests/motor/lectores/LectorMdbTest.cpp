// Databases of the test writer, whose bytes another program reads alike.
#include "motor/lectores/LectorMdb.h"

#include "apoyo/EscritorMdb.h"
#include "apoyo/Fallos.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace varo {
namespace {

using prueba::BaseMdb;
using prueba::CampoMdb;
using prueba::FallaCon;
using prueba::TablaMdb;
using prueba::TipoMdb;
using Texto = std::vector<std::string>;

std::vector<Tabla> Leidas(const BaseMdb& base) {
    return LeerMdb(prueba::EscribirMdb(base), "parcela.mdb");
}

Texto LineasDe(const BaseMdb& base) {
    return prueba::Lineas(Leidas(base));
}

/// A table of one column.
TablaMdb Columna(CampoMdb campo, std::vector<Valor> valores) {
    TablaMdb tabla{"T", {std::move(campo)}, {}};
    for (auto& valor : valores) {
        tabla.filas.push_back({std::move(valor)});
    }
    return tabla;
}

/// The values of a column, as they read back.
Texto Valores(CampoMdb campo, std::vector<Valor> valores, int version = 1) {
    auto lineas = LineasDe({{Columna(std::move(campo), std::move(valores))}, version});
    lineas.erase(lineas.begin(), lineas.begin() + 2);
    return lineas;
}

/// A plot of `cuantas` trees.
TablaMdb Parcela(std::size_t cuantas) {
    TablaMdb tabla{"Parcela", {{"Árbol", TipoMdb::EnteroLargo}, {"Especie", TipoMdb::Texto}}, {}};
    for (std::size_t i = 0; i < cuantas; ++i) {
        tabla.filas.push_back({static_cast<double>(i), "pino " + std::to_string(i)});
    }
    return tabla;
}

Texto ParcelaLeida(const std::vector<std::size_t>& filas) {
    Texto lineas{"[Parcela]", "Árbol | Especie"};
    for (const auto fila : filas) {
        lineas.push_back(std::to_string(fila) + " | 'pino " + std::to_string(fila) + "'");
    }
    return lineas;
}

std::vector<std::size_t> Hasta(std::size_t cuantas) {
    std::vector<std::size_t> numeros(cuantas);
    for (std::size_t i = 0; i < cuantas; ++i) {
        numeros[i] = i;
    }
    return numeros;
}

// --- Values ---

TEST(LectorMdb, CadaTipoDaSuValor) {
    EXPECT_EQ((Texto{"V", "F", "F"}), Valores({"b", TipoMdb::Booleano}, {true, false, Nulo{}}));
    EXPECT_EQ((Texto{"0", "255", "-"}), Valores({"n", TipoMdb::Byte}, {0.0, 255.0, Nulo{}}));
    EXPECT_EQ((Texto{"-32768", "32767"}), Valores({"n", TipoMdb::Entero}, {-32768.0, 32767.0}));
    EXPECT_EQ((Texto{"-2147483648", "2147483647"}),
              Valores({"n", TipoMdb::EnteroLargo}, {-2147483648.0, 2147483647.0}));
    EXPECT_EQ((Texto{"-9007199254740992"}), Valores({"n", TipoMdb::EnteroGrande}, {-9007199254740992.0}, 5));
    EXPECT_EQ((Texto{"12.5", "-1e-04"}), Valores({"n", TipoMdb::Moneda}, {12.5, -0.0001}));
    EXPECT_EQ((Texto{"0.1", "-12.3"}), Valores({"n", TipoMdb::Simple}, {0.1, -12.3}));
    EXPECT_EQ((Texto{"0.1", "1e+300"}), Valores({"n", TipoMdb::Doble}, {0.1, 1e300}));
    EXPECT_EQ((Texto{"-12.345", "0"}),
              Valores({.nombre = "n", .tipo = TipoMdb::Decimal, .decimales = 3}, {-12.345, 0.0}));
    EXPECT_EQ((Texto{"'{30313233-3435-3637-3938-414243444546}'"}),
              Valores({"g", TipoMdb::Guid}, {std::string{"3210547698ABCDEF"}}));
}

TEST(LectorMdb, LasFechasAntesDe1900SonFechas) {
    EXPECT_EQ((Texto{"#43831.5", "#0", "#0.25", "#-1.75", "#-657434"}),
              Valores({"f", TipoMdb::FechaHora},
                      {Fecha{43831.5}, Fecha{0}, Fecha{0.25}, Fecha{-1.75}, Fecha{-657434}}));
}

TEST(LectorMdb, UnaFechaImposibleSeQuedaEnNumero) {
    EXPECT_EQ((Texto{"2958466", "-657435", "#2958465.5"}),
              Valores({"f", TipoMdb::FechaHora}, {2958466.0, -657435.0, 2958465.5}));
}

TEST(LectorMdb, LoQueNoEsUnNumeroEsNulo) {
    const double nada = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    EXPECT_EQ((Texto{"-", "-"}), Valores({"n", TipoMdb::Doble}, {nada, infinito}));
    EXPECT_EQ((Texto{"-", "-"}), Valores({"n", TipoMdb::FechaHora}, {nada, infinito}));
    EXPECT_EQ((Texto{"-"}), Valores({"n", TipoMdb::Simple}, {infinito}));
}

TEST(LectorMdb, ElTextoVacioNoEsNulo) {
    for (const int version : {0, 1}) {
        EXPECT_EQ((Texto{"''", "-", "'a'"}), Valores({"t", TipoMdb::Texto}, {"", Nulo{}, "a"}, version));
        EXPECT_EQ((Texto{"''", "-", "'a'"}), Valores({"m", TipoMdb::Memo}, {"", Nulo{}, "a"}, version));
    }
}

TEST(LectorMdb, LosTextosVienenComprimidosONo) {
    EXPECT_EQ((Texto{"'pino piñonero'", "'漢字 €'", "'😀'", "'ñ'"}),
              Valores({"t", TipoMdb::Texto}, {"pino piñonero", "漢字 €", "😀", "ñ"}));
    EXPECT_EQ((Texto{"'pino piñonero €'"}), Valores({"t", TipoMdb::Texto}, {"pino piñonero €"}, 0));
}

TEST(LectorMdb, LosMemosTienenCualquierLargo) {
    for (const int version : {0, 1, 2}) {
        for (const std::size_t letras : {1U, 62U, 64U, 65U, 1900U, 2100U, 4000U, 4100U, 30000U}) {
            const std::string memo(letras, 'm');
            EXPECT_EQ((Texto{"'" + memo + "'", "'b'"}), Valores({"m", TipoMdb::Memo}, {memo, "b"}, version));
        }
    }
}

TEST(LectorMdb, LosDatosBinariosSeNombranYNoSeLeen) {
    const std::string foto(5000, '\x7F');
    EXPECT_EQ((Texto{"'(datos binarios)'", "-"}), Valores({"o", TipoMdb::Ole}, {foto, Nulo{}}));
    EXPECT_EQ((Texto{"'(datos binarios)'", "-"}), Valores({"o", TipoMdb::Binario}, {"abc", Nulo{}}));
}

// --- Rows ---

TEST(LectorMdb, LasFilasVienenDeTodasSusPaginas) {
    for (const int version : {0, 1}) {
        for (const bool enPaginas : {false, true}) {
            auto parcela = Parcela(900);
            parcela.filasPorPagina = 7;
            parcela.mapaEnPaginas = enPaginas;
            EXPECT_EQ(ParcelaLeida(Hasta(900)), LineasDe({{parcela}, version}));
        }
    }
}

TEST(LectorMdb, LasFilasBorradasNoVuelven) {
    auto parcela = Parcela(5);
    parcela.borradas = {0, 3};
    EXPECT_EQ(ParcelaLeida({1, 2, 4}), LineasDe({{parcela}}));
    parcela.borradas = {0, 1, 2, 3, 4};
    EXPECT_EQ(ParcelaLeida({}), LineasDe({{parcela}}));
}

TEST(LectorMdb, UnaFilaTrasladadaVuelveEnSuSitioYUnaVez) {
    for (const int version : {0, 1}) {
        auto parcela = Parcela(9);
        parcela.trasladadas = {0, 4, 8};
        parcela.filasPorPagina = 4;
        EXPECT_EQ(ParcelaLeida(Hasta(9)), LineasDe({{parcela}, version}));
    }
}

TEST(LectorMdb, LaCuentaDeFilasDeLaDefinicionNoCuenta) {
    auto parcela = Parcela(3);
    for (const int dicha : {0, 1000}) {
        parcela.filasQueDice = dicha;
        EXPECT_EQ(ParcelaLeida(Hasta(3)), LineasDe({{parcela}}));
    }
}

TEST(LectorMdb, UnaColumnaNuevaEsNulaEnLasFilasDeAntes) {
    auto parcela = Parcela(3);
    parcela.conUltimoCampoDesde = 2;
    EXPECT_EQ((Texto{"[Parcela]", "Árbol | Especie", "0 | -", "1 | -", "2 | 'pino 2'"}),
              LineasDe({{parcela}}));
    TablaMdb verdad{"T", {{"a", TipoMdb::Entero}, {"viva", TipoMdb::Booleano}}, {{1.0, true}, {2.0, true}}};
    verdad.conUltimoCampoDesde = 1;
    EXPECT_EQ((Texto{"[T]", "a | viva", "1 | F", "2 | V"}), LineasDe({{verdad}}));
}

TEST(LectorMdb, LasColumnasBorradasNoEstorban) {
    auto parcela = Parcela(2);
    parcela.campos[0].borradosDelante = 9;
    parcela.campos[1].borradosDelante = 3;
    EXPECT_EQ(ParcelaLeida(Hasta(2)), LineasDe({{parcela}}));
}

TEST(LectorMdb, UnaTablaSinCamposDeTextoSeLee) {
    for (const int version : {0, 1}) {
        EXPECT_EQ((Texto{"[T]", "x | y | b", "1.5 | - | V", "-2 | 7 | F"}),
                  LineasDe({{{"T",
                              {{"x", TipoMdb::Doble}, {"y", TipoMdb::Entero}, {"b", TipoMdb::Booleano}},
                              {{1.5, Nulo{}, true}, {-2.0, 7.0, false}}}},
                            version}));
    }
}

TEST(LectorMdb, UnaFilaLargaDeAccess97Salta) {
    TablaMdb larga{"T", {}, {{}, {}}};
    for (int i = 0; i < 8; ++i) {
        larga.campos.push_back({"c" + std::to_string(i), TipoMdb::Texto});
        larga.filas[0].emplace_back(std::string(static_cast<std::size_t>(i * 30), 'x'));
        larga.filas[1].emplace_back(i % 3 == 0 ? Valor{} : Valor{std::string(255, 'y')});
    }
    const auto tablas = Leidas({{larga}, 0});
    ASSERT_EQ(1U, tablas.size());
    EXPECT_EQ(FilasDeTabla{larga.filas}, tablas[0].filas);
}

TEST(LectorMdb, LasFilasCuentanDesdeUno) {
    EXPECT_EQ("fila 1 de «Parcela»", Leidas({{Parcela(2)}}).at(0).lugarDeFila(0));
}

// --- Tables ---

TEST(LectorMdb, LasTablasVanComoElArchivoLasTiene) {
    BaseMdb base{{Parcela(1), {"alfa", {{"x"}}, {}}, {"[Zeta] 1.2!", {{"a.b[c]!"}}, {{"v"}}}}};
    EXPECT_EQ((Texto{"[Parcela]", "Árbol | Especie", "0 | 'pino 0'", "[alfa]", "x", "[[Zeta] 1.2!]",
                     "a.b[c]!", "'v'"}),
              LineasDe(base));
}

TEST(LectorMdb, LasTablasDelSistemaNoSeVen) {
    auto sistema = Parcela(1);
    sistema.deSistema = true;
    auto reservada = Parcela(1);
    reservada.nombre = "msysNavPane";
    EXPECT_EQ(ParcelaLeida({0}), LineasDe({{sistema, Parcela(1), reservada}}));
    EXPECT_EQ(Texto{}, LineasDe({}));
}

TEST(LectorMdb, LasPaginasCodificadasDanLoMismo) {
    for (const int version : {0, 1}) {
        EXPECT_EQ(ParcelaLeida(Hasta(100)), LineasDe({{Parcela(100)}, version, 0xBEEF1234}));
    }
}

/// Only the defect of the middle table says this; the ones beside it are whole.
void SoloFallaLaDelMedio(const TablaMdb& mala, int numero, const std::string& dice, int version = 1) {
    const auto tablas = Leidas({{Parcela(1), mala, Parcela(2)}, version});
    ASSERT_EQ(3U, tablas.size());
    EXPECT_FALSE(tablas[0].defecto);
    EXPECT_EQ(2U, tablas[2].filas.size());
    ASSERT_TRUE(tablas[1].defecto);
    EXPECT_EQ(mala.nombre, tablas[1].Name);
    EXPECT_EQ(0, tablas[1].Fields.Count());
    EXPECT_EQ(0U, tablas[1].filas.size());
    EXPECT_EQ(numero, tablas[1].defecto->numero());
    EXPECT_EQ("No se puede leer la tabla «" + mala.nombre + "» de «parcela.mdb»: " + dice,
              tablas[1].defecto->descripcion());
}

TEST(LectorMdb, UnaTablaVinculadaSeDice) {
    auto vinculada = Parcela(0);
    vinculada.nombre = "De otro";
    vinculada.vinculada = true;
    SoloFallaLaDelMedio(vinculada, fallo::tablaNoAdmitida,
                        "está vinculada, y sus filas están en otro archivo: abra ese archivo");
}

TEST(LectorMdb, UnCampoQueNoSeLeeSeDice) {
    const std::string consejo = ": haga en Access una consulta sin él y guárdela como tabla nueva";
    SoloFallaLaDelMedio(
        {"T", {{"a"}, {"Fotos", TipoMdb::Compleja}}, {}}, fallo::tablaNoAdmitida,
        "su campo «Fotos» es de datos adjuntos o de varios valores, y esos no se leen" + consejo, 2);
    SoloFallaLaDelMedio({"T", {{.nombre = "g", .tipo = TipoMdb::Doble, .calculado = true}}, {}},
                        fallo::tablaNoAdmitida, "su campo «g» es calculado, y esos no se leen" + consejo, 3);
    SoloFallaLaDelMedio({"T", {{"h", static_cast<TipoMdb>(20)}}, {}}, fallo::tablaNoAdmitida,
                        "su campo «h» es de una clase que no se lee" + consejo, 5);
}

} // namespace
} // namespace varo
