// Every query told by a `.test` file of this folder gives the rows or the fault that the file tells.
#include "apoyo/Lugares.h"
#include "motor/BaseDatos.h"
#include "motor/TablasDePrueba.h"
#include "motor/sql/CasosConsulta.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace varo::prueba {

namespace {

std::vector<std::filesystem::path> ArchivosDeCasos() {
    std::vector<std::filesystem::path> archivos;
    const auto carpeta = DatosDePrueba() / "motor" / "sql";
    for (const auto& entrada : std::filesystem::directory_iterator{carpeta}) {
        if (entrada.path().extension() == ".test") {
            archivos.push_back(entrada.path());
        }
    }
    std::ranges::sort(archivos);
    return archivos;
}

CasosConsulta CasosDe(const std::filesystem::path& archivo) {
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        throw std::runtime_error{"no se puede leer " + archivo.string()};
    }
    return LeerCasosConsulta(std::string{std::istreambuf_iterator<char>{entrada}, {}});
}

Tabla Volcado(Recordset filas) {
    Tabla tabla{"", filas.campos(), {}};
    for (; !filas.Eof(); filas.MoveNext()) {
        std::vector<Valor> fila;
        for (int i = 0; i < filas.campos().Count(); ++i) {
            fila.push_back(filas.Fields(i).Value);
        }
        tabla.filas.anadir(std::move(fila));
    }
    return tabla;
}

std::vector<std::string> Nombres(const Tabla& tabla) {
    std::vector<std::string> nombres;
    for (const auto& campo : tabla.Fields) {
        nombres.push_back(campo.Name);
    }
    return nombres;
}

void Comprobar(const BaseDatos& base, const CasoConsulta& caso) {
    SCOPED_TRACE("línea " + std::to_string(caso.linea) + ": " + caso.sql);
    try {
        const auto dado = Volcado(base.OpenRecordset(caso.sql));
        ASSERT_EQ(caso.fallo, 0) << "se esperaba el fallo";
        EXPECT_EQ(Nombres(dado), Nombres(caso.esperado));
        EXPECT_EQ(prueba::FilasEnteras(dado), prueba::FilasEnteras(caso.esperado));
    } catch (const ErrorEjecucion& error) {
        EXPECT_EQ(error.numero(), caso.fallo) << error.what();
        for (const auto& dicho : caso.dice) {
            EXPECT_NE(std::string{error.what()}.find(dicho), std::string::npos)
                << "«" << error.what() << "» no dice «" << dicho << "»";
        }
    }
}

class Consultas : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(Consultas, DanLoQueDiceElArchivo) {
    const auto leidos = CasosDe(GetParam());
    const BaseDatos base{leidos.tablas};
    for (const auto& caso : leidos.casos) {
        Comprobar(base, caso);
    }
}

INSTANTIATE_TEST_SUITE_P(Archivo, Consultas, testing::ValuesIn(ArchivosDeCasos()),
                         [](const auto& caso) { return caso.param.stem().string(); });

TEST(CasosConsulta, HayArchivosConCasos) {
    EXPECT_FALSE(ArchivosDeCasos().empty());
}

TEST(CasosConsulta, SeLeenTablasConsultasYFallos) {
    const auto leidos = LeerCasosConsulta("# comentario\n"
                                          "tabla Hoja1$\n"
                                          "Arbol | Código\n"
                                          "1.5 | 'pino'\n"
                                          "nulo | ''\n"
                                          "\n"
                                          "consulta\n"
                                          "SELECT a\n"
                                          "da\n"
                                          "Arbol\n"
                                          "fecha 2\n"
                                          "\n"
                                          "consulta\n"
                                          "SELECT b\n"
                                          "falla 3061\n"
                                          "dice campo «b»");
    ASSERT_EQ(leidos.tablas.size(), 1U);
    EXPECT_EQ(leidos.tablas[0].Name, "Hoja1$");
    EXPECT_EQ(Nombres(leidos.tablas[0]), (std::vector<std::string>{"Arbol", "Código"}));
    EXPECT_EQ(leidos.tablas[0].filas,
              (std::vector<std::vector<Valor>>{{1.5, std::string{"pino"}}, {Nulo{}, std::string{}}}));
    ASSERT_EQ(leidos.casos.size(), 2U);
    EXPECT_EQ(leidos.casos[0].sql, "SELECT a");
    EXPECT_EQ(leidos.casos[0].fallo, 0);
    EXPECT_EQ(leidos.casos[0].esperado.filas, (std::vector<std::vector<Valor>>{{Fecha{2}}}));
    EXPECT_EQ(leidos.casos[1].linea, 13);
    EXPECT_EQ(leidos.casos[1].fallo, 3061);
    EXPECT_EQ(leidos.casos[1].dice, std::vector<std::string>{"campo «b»"});
}

class CasosConsultaRotos : public testing::TestWithParam<std::string> {};

TEST_P(CasosConsultaRotos, NoSeAceptan) {
    EXPECT_THROW(LeerCasosConsulta(GetParam()), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Texto, CasosConsultaRotos,
                         testing::Values("", "# solo un comentario\n", "tabla t\na\n1\n", // no case at all
                                         "consultas\nSELECT 1\nda\na\n",                  // unknown keys
                                         "consulta\nSELECT 1\ndará\na\n",
                                         "consulta\nSELECT 1\nfalla 11\ncuenta fila 3\n",
                                         "consulta\nSELECT 1\n",     // nothing expected
                                         "consulta\nSELECT 1\nda\n", // no columns
                                         "consulta\nSELECT 1\nfalla\n", "consulta\nSELECT 1\nfalla once\n",
                                         "consulta\nSELECT 1\nda\na | b\n1\n", // a value is missing
                                         "consulta\nSELECT 1\nda\na\n1,5\n",   // no value
                                         "consulta\nSELECT 1\nda\na\n'pino\n"));

} // namespace

} // namespace varo::prueba
