#include "motor/lectores/LectorXls.h"

#include "apoyo/EscritorCompuesto.h"
#include "apoyo/EscritorXls.h"
#include "apoyo/Fallos.h"
#include "motor/lectores/ApoyoLectores.h"
#include "motor/lectores/RegistrosBiff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace varo {
namespace {

using prueba::Lineas;
using Texto = std::vector<std::string>;

Texto LineasDe(const std::vector<std::byte>& bytes) {
    return Lineas(LeerXls(bytes, "libro.xls"));
}

Texto LineasDeLibro(const std::string& nombre) {
    return LineasDe(prueba::BytesDeLibro(nombre));
}

std::string Repetido(std::string_view trozo, int veces) {
    std::string texto;
    for (int i = 0; i < veces; ++i) {
        texto += trozo;
    }
    return texto;
}

TEST(LectorXls, LeeCadaClaseDeValor) {
    EXPECT_EQ((Texto{
                  "[Valores$]",
                  "Árbol | X | Y | Vivo | Mezcla | Error",
                  "'Encina' | 1 | 0.1 | V | 5 | -",
                  "'Piñón €' | -2 | 12.34 | F | 'cinco' | -",
                  "- | 1073741823 | 1e-300 | - | V | -",
                  "'漢字 😀' | -536870912 | 123456789012.25 | V | -0.5 | 'sano'",
                  "[Formulas$]",
                  "Número | Texto | Vacío | Verdad | Error | Fecha",
                  "0.30000000000000004 | 'año €' | '' | V | - | #43831",
                  "-7 | '" + Repetido("x", 3000) + "' | '' | F | - | -",
              }),
              LineasDeLibro("valores.xls"));
}

/// The fourteen formats of the sheet "Formatos" and the cell they give for 100.5.
Texto LineasDeFormatos(const std::string& fecha) {
    Texto lineas{"[Formatos$]", "Formato | Valor"};
    for (const char* formato : {"dd/mm/yyyy", "h:mm", "[h]:mm", "[ss]", "[$-40A]d mmmm yyyy", "MMM-YY"}) {
        lineas.push_back("'" + std::string{formato} + "' | " + fecha);
    }
    for (const char* formato : {"General", "[Red]0.00", "0 \"días\"", "0.0\\h", "_d0", "*s0", "0.00%",
                                "#,##0.00 [$€-C0A]", "@", "[>100]0;[Blue]0.0"}) {
        lineas.push_back("'" + std::string{formato} + "' | 100.5");
    }
    return lineas;
}

TEST(LectorXls, LeeLasFechasDelCalendarioDe1900) {
    Texto esperado{
        "[Fechas$]",         "Serie | Fecha", "0 | #0",   "0.25 | #0.25",       "1 | #2",
        "59 | #60",          "60 | #60",      "61 | #61", "43831.5 | #43831.5", "2958465 | #2958465",
        "2958466 | 2958466", "-1 | -1"};
    const auto formatos = LineasDeFormatos("#100.5");
    esperado.insert(esperado.end(), formatos.begin(), formatos.end());
    EXPECT_EQ(esperado, LineasDeLibro("fechas_1900.xls"));
}

TEST(LectorXls, LeeLasFechasDelCalendarioDe1904) {
    Texto esperado{"[Fechas$]",         "Serie | Fecha",     "0 | #0",
                   "0.25 | #0.25",      "1 | #1463",         "59 | #1521",
                   "60 | #1522",        "61 | #1523",        "43831.5 | #45293.5",
                   "2958465 | 2958465", "2958466 | 2958466", "-1 | -1"};
    const auto formatos = LineasDeFormatos("#1562.5");
    esperado.insert(esperado.end(), formatos.begin(), formatos.end());
    EXPECT_EQ(esperado, LineasDeLibro("fechas_1904.xls"));
}

TEST(LectorXls, VeLasHojasComoTablas) {
    EXPECT_EQ((Texto{
                  "[Huecos$]",
                  "Arbol | X",
                  "1 | 2",
                  "- | -",
                  "- | -",
                  "3 | -",
                  "- | 4",
                  "[Nombres raros$]",
                  "A | F2 | a1 | x#y(z)_ | 12,5 | Verdadero | A2 | F8 | Año | F21 | A11 | " +
                      Repetido("n", 64) + " | " + Repetido("n", 63) + "1 | F14",
                  "1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | 9 | 10 | 11 | 12 | 13 | 14",
                  "[Empieza en C3$]",
                  "Uno | Dos",
                  "1 | 2",
                  "[Vacía$]",
                  "",
                  "[Oculta$]",
                  "Secreto",
                  "'sí'",
                  "[Año 2004 – nº 漢$]",
                  "Solo cabecera | Ñandú",
              }),
              LineasDeLibro("huecos.xls"));
}

TEST(LectorXls, LasFilasConservanSuNumeroEnLaHoja) {
    const auto tablas = LeerXls(
        prueba::EscribirXls({{"Hoja", {{}, {}, {Valor{"A"}, Valor{"B"}}, {1.0, 2.0}, {}, {3.0, 4.0}}}}),
        "l.xls");
    ASSERT_EQ(tablas.at(0).filas.size(), 3U);
    EXPECT_EQ(tablas.at(0).lugarDeFila(0), "fila 4 de «Hoja$»");
    EXPECT_EQ(tablas.at(0).lugarDeFila(2), "fila 6 de «Hoja$»");
    EXPECT_EQ(tablas.at(0).filaConNumero(3), std::nullopt);
    EXPECT_EQ(tablas.at(0).filaConNumero(6), 2U);
    EXPECT_EQ(tablas.at(0).filaConNumero(7), std::nullopt);
}

TEST(LectorXls, LosTextosLargosPasanDeUnRegistroAOtro) {
    Texto esperado{"[Textos$]", "N | Texto"};
    constexpr std::string_view estrechas[] = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
    constexpr std::string_view anchas[] = {"á", "é", "í", "ó", "ú", "€", "ñ", "ç", "ü", "漢"};
    for (int i = 1; i <= 120; ++i) {
        std::string texto;
        for (int k = 0; k < i * 37 % 401; ++k) {
            texto += (i % 3 != 0 ? estrechas : anchas)[(i + k) % 10];
        }
        esperado.push_back(std::to_string(i) + " | '" + texto + "'");
    }
    esperado.push_back("121 | '" + Repetido("a", 9000) + "'");
    esperado.push_back("122 | '" + Repetido("a€", 4500) + "'");
    esperado.emplace_back("123 | 'roble albar €'");
    esperado.emplace_back("124 | 'detrás'");
    EXPECT_EQ(esperado, LineasDeLibro("textos.xls"));
}

TEST(LectorXls, LosNombresQueCubrenUnRectanguloSonTablasTrasLasHojas) {
    EXPECT_EQ((Texto{
                  "[Parcela$]",     "Arbol | DAP | Nota",
                  "1 | 10.5 | 'a'", "2 | 20.5 | -",
                  "3 | 30.5 | 'c'", "[Otra$]",
                  "P | Q",          "7 | 8", //
                  "[Zócalo]",       "P | Q",
                  "7 | 8", //
                  "[Arboles]",      "Arbol | DAP",
                  "1 | 10.5",       "2 | 20.5", //
                  "[Celda]",        "8",        //
                  "[Columnas]",     "Arbol | DAP | Nota",
                  "1 | 10.5 | 'a'", "2 | 20.5 | -",
                  "3 | 30.5 | 'c'", "[Amplia]",
                  "10,5 | a",       "20.5 | -",
                  "30.5 | 'c'", //
                  "[Fuera]",        "",
              }),
              LineasDeLibro("nombres.xls"));
}

TEST(LectorXls, PrefiereElFlujoNuevoAlAntiguo) {
    const auto flujo = prueba::EscribirFlujoXls({{"Nueva", {{"X"}}}});
    const std::vector<std::byte> antiguo(5000, std::byte{0xFF});
    EXPECT_EQ((Texto{"[Nueva$]", "X"}),
              LineasDe(prueba::EscribirCompuesto({{"Book", antiguo}, {"Workbook", flujo}})));
    EXPECT_EQ((Texto{"[Nueva$]", "X"}), LineasDe(prueba::EscribirCompuesto({{"Book", flujo}})));
}

TEST(LectorXls, LeeUnFlujoSinArchivoCompuesto) {
    const auto flujo = prueba::EscribirFlujoXls({{"Suelta", {{"X"}, {5.0}}}});
    EXPECT_TRUE(PareceXls(flujo));
    EXPECT_EQ((Texto{"[Suelta$]", "X", "5"}), LineasDe(flujo));
}

TEST(LectorXls, LeeSectoresDe4096Bytes) {
    const auto flujo = prueba::EscribirFlujoXls({{"Grandes", {{"X"}, {std::string(9000, 'x')}}}});
    EXPECT_EQ((Texto{"[Grandes$]", "X", "'" + Repetido("x", 9000) + "'"}),
              LineasDe(prueba::EscribirCompuesto({{"Workbook", flujo}}, 4096)));
}

/// A header, a tree and one cell in the last corner of the sheet.
std::vector<std::vector<Valor>> ConCeldaEnLaEsquina(const Valor& celda) {
    std::vector<std::vector<Valor>> celdas(65536);
    celdas[0] = {"X", "Y"};
    celdas[1] = {1.0, 2.0};
    celdas.back().resize(256);
    celdas.back()[255] = celda;
    return celdas;
}

TEST(LectorXls, UnaNotaLejanaAlargaSuHojaYNoEstorbaALasDemas) {
    const auto tablas = LeerXls(
        prueba::EscribirXls({{"Con nota", ConCeldaEnLaEsquina("nota")}, {"Buena", {{"X"}, {5.0}}}}), "l.xls");
    ASSERT_EQ(tablas.size(), 2U);
    const auto& filas = tablas[0].filas;
    EXPECT_EQ(filas.size(), 65535U);
    EXPECT_EQ(tablas[0].Fields.Count(), 256);
    EXPECT_EQ(filas[0][1], Valor{2.0});
    EXPECT_TRUE(EsNulo(filas[30000][1]));
    EXPECT_TRUE(EsNulo(filas[65534][254]));
    EXPECT_EQ(filas[65534][255], Valor{"nota"});
    EXPECT_EQ(tablas[0].lugarDeFila(65534), "fila 65536 de «Con nota$»");
    EXPECT_EQ((Texto{"[Buena$]", "X", "5"}), Lineas(tablas[1]));
}

TEST(LectorXls, UnaCeldaLejanaQueNoSeVeNoAlargaSuHoja) {
    const Texto corta{"[Hoja$]", "X | Y", "1 | 2"};
    EXPECT_EQ(corta, LineasDe(prueba::EscribirXls({{"Hoja", ConCeldaEnLaEsquina("")}})));
    EXPECT_EQ(corta, LineasDe(prueba::EscribirXls({{"Hoja", ConCeldaEnLaEsquina(""), false, true}})));
}

TEST(LectorXls, MuchasHojasConUnaCeldaLejanaNoLlenanLaMemoria) {
    // Whole, their rectangles would be 670 MB of cells each.
    const std::vector<prueba::Hoja> hojas(50, {"H", ConCeldaEnLaEsquina(1.0)});
    EXPECT_EQ(LeerXls(prueba::EscribirXls(hojas), "l.xls").size(), 50U);
}

/// The number of the fault and what it says behind the file's name.
std::pair<int, std::string> FalloDe(const std::vector<std::byte>& bytes) {
    try {
        LeerXls(bytes, "parcela.xls");
        return {0, ""};
    } catch (const ErrorMotor& error) {
        const std::string comienzo = "No se puede leer «parcela.xls»: ";
        EXPECT_EQ(comienzo, error.descripcion().substr(0, comienzo.size()));
        return {error.numero(),
                error.descripcion().substr(std::min(comienzo.size(), error.descripcion().size()))};
    }
}

/// Where the first record of this type begins in a workbook stream; its content stands four bytes behind.
std::ptrdiff_t LugarDelRegistro(const std::vector<std::byte>& flujo, int tipo) {
    std::size_t lugar = 0;
    while (LeerU16(flujo, lugar) != tipo) {
        lugar += 4U + LeerU16(flujo, lugar + 2);
    }
    return static_cast<std::ptrdiff_t>(lugar);
}

std::vector<std::byte> ConTexto(std::string_view texto) {
    const auto bytes = std::as_bytes(std::span{texto});
    return {bytes.begin(), bytes.end()};
}

TEST(LectorXls, LoQueNoEsUnLibroLoDice) {
    for (const std::string_view texto :
         {"", "a", "PK\3\4 y lo demás", "<?xml version=\"1.0\"?>", "X;Y\n1;2\n"}) {
        EXPECT_FALSE(PareceXls(ConTexto(texto)));
        EXPECT_EQ((std::pair{fallo::formatoNoReconocido, std::string{"no es un libro de Excel 5.0 a 2003"}}),
                  FalloDe(ConTexto(texto)));
    }
}

TEST(LectorXls, UnArchivoCompuestoSinLibroLoDice) {
    const auto documento = prueba::EscribirCompuesto({{"WordDocument", std::vector<std::byte>(5000)}});
    EXPECT_TRUE(PareceXls(documento));
    EXPECT_EQ((std::pair{fallo::formatoNoReconocido, std::string{"no contiene un libro de Excel"}}),
              FalloDe(documento));
}

TEST(LectorXls, UnLibroXlsxCifradoLoDice) {
    const auto cifrado = prueba::EscribirCompuesto({{"EncryptionInfo", std::vector<std::byte>(224)},
                                                    {"EncryptedPackage", std::vector<std::byte>(5000)}});
    EXPECT_TRUE(PareceXls(cifrado));
    const auto [numero, descripcion] = FalloDe(cifrado);
    EXPECT_EQ(numero, fallo::archivoCifrado);
    EXPECT_EQ(descripcion,
              "es un libro cifrado (.xlsx con contraseña): ábralo con ella en la hoja de cálculo y "
              "guárdelo sin contraseña");
}

TEST(LectorXls, UnaHojaDeExcel2A4LoDice) {
    using namespace std::string_view_literals;
    // A text, a whole number, a blank cell and a number as Excel 2.0 wrote them, and the end.
    constexpr std::string_view cuatroCeldas = "\x04\x00\x09\x00\x00\x00\x00\x00\x00\x00\x00\x01X"
                                              "\x02\x00\x09\x00\x01\x00\x00\x00\x00\x00\x00\x05\x00"
                                              "\x01\x00\x07\x00\x02\x00\x00\x00\x00\x00\x00"
                                              "\x03\x00\x0F\x00\x03\x00\x00\x00\x00\x00\x00"
                                              "\x00\x00\x00\x00\x00\x00\xF8\x3F"
                                              "\x0A\x00\x00\x00"sv;
    for (const auto& [bytes, version] : {std::pair{"\x09\x00\x04\x00\x02\x00\x10\x00"sv, "2"},
                                         {"\x09\x02\x06\x00\x00\x03\x10\x00\x00\x00"sv, "3"},
                                         {"\x09\x04\x06\x00\x00\x04\x10\x00\x00\x00"sv, "4"},
                                         {"\x09\x04\x06\x00\x00\x04\x00\x01\x00\x00"sv, "4"}}) { // a workbook
        const auto hoja = ConTexto(std::string{bytes} + std::string{cuatroCeldas});
        EXPECT_TRUE(PareceXls(hoja));
        const auto [numero, texto] = FalloDe(hoja);
        EXPECT_EQ(fallo::formatoNoReconocido, numero);
        EXPECT_EQ("es una hoja de Excel " + std::string{version}, texto.substr(0, 22));
    }
}

TEST(LectorXls, UnLibroCifradoLoDice) {
    auto flujo = prueba::EscribirFlujoXls({{"Hoja", {{"X"}}}});
    // All that stands behind the record of the password, which comes after the first BOF, is unreadable.
    const auto detras = flujo.begin() + LugarDelRegistro(flujo, biff::codePage);
    std::transform(detras, flujo.end(), detras, [](std::byte byte) { return byte ^ std::byte{0x5A}; });
    std::vector<std::byte> contrasena;
    prueba::AnadirRegistro(contrasena, biff::filePass, std::vector<std::byte>(6));
    flujo.insert(detras, contrasena.begin(), contrasena.end());
    EXPECT_EQ((std::pair{fallo::archivoCifrado, std::string{"el libro está protegido con una contraseña"}}),
              FalloDe(prueba::EscribirCompuesto({{"Workbook", flujo}})));
}

TEST(LectorXls, UnaHojaFueraDeSuSitioEstaDanada) {
    const auto flujo = prueba::EscribirFlujoXls({{"Hoja", {{"X"}}}});
    for (const int comienzo : {0, 1, 255}) {
        auto movido = flujo;
        auto& byte = movido.at(static_cast<std::size_t>(LugarDelRegistro(flujo, biff::boundSheet)) + 4);
        ASSERT_NE(static_cast<std::byte>(comienzo), byte);
        byte = static_cast<std::byte>(comienzo);
        EXPECT_EQ(fallo::archivoDanado, FalloDe(prueba::EscribirCompuesto({{"Workbook", movido}})).first);
    }
}

/// What a damaged workbook says, and what to do.
std::pair<int, std::string> Danado(const std::string& defecto) {
    return {fallo::archivoDanado,
            "el archivo está dañado (" + defecto +
                "): ábralo en la hoja de cálculo y guárdelo de nuevo, o tome otra copia"};
}

TEST(LectorXls, UnaCuentaQueNoCuadraConSuRegistroEstaDanada) {
    const auto flujo = prueba::EscribirFlujoXls({{"Hoja", {{"X"}}}});
    const std::string cortado = "un texto está cortado";
    for (const auto& [que, lugar, defecto] :
         {std::tuple{"la cuenta de textos", LugarDelRegistro(flujo, biff::sst) + 8, cortado},
          {"la longitud de un texto", LugarDelRegistro(flujo, biff::sst) + 12, cortado},
          {"la longitud de un nombre de hoja", LugarDelRegistro(flujo, biff::boundSheet) + 10, cortado},
          {"la longitud de un registro", LugarDelRegistro(flujo, biff::codePage) + 3, "faltan bytes"}}) {
        auto roto = flujo;
        roto.at(static_cast<std::size_t>(lugar)) = std::byte{0xFF};
        EXPECT_EQ(Danado(defecto), FalloDe(prueba::EscribirCompuesto({{"Workbook", roto}}))) << que;
    }
}

TEST(LectorXls, DosHojasEnElMismoSitioEstanDanadas) {
    const std::vector<std::vector<Valor>> muchas(200, std::vector<Valor>{1.0});
    auto flujo = prueba::EscribirFlujoXls({{"Uno", {{"X"}}}, {"Dos", muchas}});
    const auto primera = flujo.begin() + LugarDelRegistro(flujo, biff::boundSheet) + 4;
    const auto segunda = primera + 8 + 3 + 4; // the record has eight bytes and the name
    std::copy_n(segunda, 4, primera);
    EXPECT_EQ(Danado("unas hojas pisan a otras"), FalloDe(prueba::EscribirCompuesto({{"Workbook", flujo}})));
}

TEST(LectorXls, UnaHojaDanadaDejaLeerLasDemas) {
    auto flujo = prueba::EscribirFlujoXls(
        {{"Uno", {{"X"}, {1.0}}}, {"Dos", {{"X"}, {2.0}}}, {"Tres", {{"X"}, {3.0}}}});
    const auto primera = LugarDelRegistro(flujo, biff::boundSheet) + 4;
    const auto dos = LeerU32(flujo, static_cast<std::size_t>(primera) + 8 + 3 + 4);
    auto numero = static_cast<std::size_t>(dos);
    while (LeerU16(flujo, numero) != biff::numero) {
        numero += 4 + LeerU16(flujo, numero + 2);
    }
    flujo[numero + 2] = std::byte{6}; // a cell without its number, and eight bytes that are no record
    const auto tablas = LeerXls(prueba::EscribirCompuesto({{"Workbook", flujo}}), "parcela.xls");
    ASSERT_EQ(tablas.size(), 3U);
    EXPECT_EQ((Texto{"[Uno$]", "X", "1"}), Lineas(tablas[0]));
    EXPECT_EQ((Texto{"[Tres$]", "X", "3"}), Lineas(tablas[2]));
    EXPECT_EQ(tablas[1].Name, "Dos$");
    EXPECT_EQ(tablas[1].Fields.Count(), 0);
    ASSERT_TRUE(tablas[1].defecto);
    EXPECT_EQ(tablas[1].defecto->numero(), fallo::archivoDanado);
    EXPECT_EQ(tablas[1].defecto->descripcion(),
              "No se puede leer la hoja «Dos» de «parcela.xls»: " + Danado("faltan bytes").second);
}

} // namespace
} // namespace varo
