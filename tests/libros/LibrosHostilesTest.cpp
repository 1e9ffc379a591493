// Cut, mutated and malicious workbooks: whole tables or an error, soon and in little room.
#include "apoyo/EscritorOds.h"
#include "libros/ApoyoLibros.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"
#include "libros/LectorDeLibros.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <span>
#include <zip.h>

namespace varo::prueba {
namespace {

/// How many tables were read and how many tell a defect; nothing where the whole file faults. A table that is
/// not whole makes the test fail.
struct Recuento {
    std::size_t enteras = 0;
    std::size_t conDefecto = 0;
    std::size_t enteros = 0; ///< files without any defect
    std::size_t rechazados = 0;

    void leer(std::span<const std::byte> bytes) {
        try {
            std::size_t defectos = 0;
            for (const auto& tabla : LeerLibroComprimido(bytes, "mutado")) {
                defectos += tabla.defecto ? 1 : 0;
                enteras += tabla.defecto ? 0 : 1;
                EXPECT_TRUE(!tabla.defecto || tabla.Fields.Count() == 0);
                for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
                    const auto celdas = tabla.filas[fila];
                    EXPECT_TRUE(celdas.celdas() == 0 || celdas.ultima().columna < tabla.Fields.Count());
                }
            }
            conDefecto += defectos;
            enteros += defectos == 0 ? 1 : 0;
        } catch (const ErrorMotor& error) {
            EXPECT_NE(error.descripcion().find("«mutado»: "), std::string::npos) << error.descripcion();
            ++rechazados;
        }
    }
};

const std::vector<std::string> deProgramas{"gnumeric_97.xlsx",         "gnumeric_97.ods",
                                           "gnumeric_huecos.xlsx",     "gnumeric_huecos.ods",
                                           "libreoffice_nombres.xlsx", "libreoffice_nombres.ods",
                                           "libreoffice_textos.xlsx",  "libreoffice_textos.ods"};

const std::vector<Hoja> hojas{
    {"Parcela", {{"Árbol", "X", "Día", "Vivo"}, {"encina", 0.1, Fecha{43831.5}, true}, {Nulo{}, -2.0}}},
    {"Otra", {{"A"}, {"  con blancos "}}}};

TEST(LibrosHostiles, UnLibroCortadoNoSeLee) {
    for (const auto& libro : {EscribirXlsx(hojas), EscribirOds(hojas)}) {
        Recuento recuento;
        for (std::size_t corte = 0; corte < libro.size(); ++corte) {
            recuento.leer(std::span{libro.data(), corte});
        }
        EXPECT_EQ(recuento.rechazados, libro.size());
    }
    for (const auto& nombre : deProgramas) {
        const auto libro = BytesDeComprimido(nombre);
        Recuento recuento;
        std::size_t cortes = 0;
        for (std::size_t corte = 0; corte < libro.size() - 22; corte += 97, ++cortes) {
            recuento.leer(std::span{libro.data(), corte});
        }
        EXPECT_EQ(recuento.rechazados, cortes) << nombre;
    }
}

TEST(LibrosHostiles, UnArchivoMutadoSeLeeEnteroODaError) {
    std::mt19937 azar{20040229}; // NOLINT(cert-msc51-cpp): the same mutations every time
    Recuento recuento;
    for (const auto& nombre : deProgramas) {
        const auto libro = BytesDeComprimido(nombre);
        for (int vez = 0; vez < 150; ++vez) {
            recuento.leer(Mutado(libro, azar));
        }
    }
    // All of it happens: the mutations neither miss the file nor wreck it all.
    EXPECT_GT(recuento.enteros, 100U);
    EXPECT_GT(recuento.rechazados, 100U);
    EXPECT_GT(recuento.conDefecto, 10U);
}

/// Sums of parts that are right let the mutations pass on to what reads the XML.
TEST(LibrosHostiles, UnaParteMutadaSeLeeEnteraODaError) {
    std::mt19937 azar{19990101}; // NOLINT(cert-msc51-cpp): the same mutations every time
    Recuento recuento;
    LibroXlsxDePrueba xlsx;
    xlsx.textos = "<si><t>uno_x000D_</t></si><si><r><t>dos</t></r></si>";
    xlsx.estilos = R"(<cellXfs><xf numFmtId="0"/><xf numFmtId="14"/></cellXfs>)";
    xlsx.nombres = "<definedName name=\"Zona\">H!$A$1:$B$2</definedName>";
    xlsx.hojas = {{"Otra", ""},
                  {"H",
                   R"(<row r="1"><c r="A1" t="s"><v>0</v></c><c r="B1" t="s"><v>1</v></c></row>)"
                   R"(<row r="2"><c r="A2" s="1"><v>43831.5</v></c><c r="B2" t="b"><v>1</v></c></row>)"}};
    for (const auto& partes :
         {PartesDe(xlsx),
          PartesDeOds("<table:table table:name=\"Otra\"/><table:table table:name=\"H\"><table:table-row>"
                      "<table:table-cell office:value-type=\"float\" "
                      "office:value=\"1\" table:number-columns-repeated=\"3\">"
                      "<text:p>1<text:s text:c=\"9\"/></text:p></table:table-cell>"
                      "</table:table-row></table:table>")}) {
        for (int vez = 0; vez < 2000; ++vez) {
            auto mutadas = partes;
            auto& contenido = mutadas[azar() % mutadas.size()].contenido;
            contenido[azar() % contenido.size()] =
                static_cast<char>("0123456789<>\"/ AZ&:\xC3\xFF"[azar() % 21]);
            recuento.leer(EscribirZip(mutadas));
        }
    }
    EXPECT_GT(recuento.enteros, 300U);
    EXPECT_GT(recuento.rechazados, 300U);
    EXPECT_GT(recuento.conDefecto, 100U);
}

/// A part that is packed: the writer of the tests stores them as they are.
std::vector<std::byte> Comprimido(const std::vector<ParteZip>& partes) {
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* const fuente = zip_source_buffer_create(nullptr, 0, 0, &error);
    zip_source_keep(fuente);
    zip_t* const archivo = zip_open_from_source(fuente, ZIP_TRUNCATE, &error);
    for (const auto& parte : partes) {
        zip_source_t* const contenido =
            zip_source_buffer(archivo, parte.contenido.data(), parte.contenido.size(), 0);
        EXPECT_GE(zip_file_add(archivo, parte.nombre.c_str(), contenido, 0), 0);
    }
    EXPECT_EQ(zip_close(archivo), 0);
    zip_source_open(fuente);
    zip_source_seek(fuente, 0, SEEK_END);
    std::vector<std::byte> bytes(static_cast<std::size_t>(zip_source_tell(fuente)));
    zip_source_seek(fuente, 0, SEEK_SET);
    EXPECT_EQ(zip_source_read(fuente, bytes.data(), bytes.size()), static_cast<zip_int64_t>(bytes.size()));
    zip_source_close(fuente);
    zip_source_free(fuente);
    zip_error_fini(&error);
    return bytes;
}

std::string Repetida(const std::string& trozo, std::size_t veces) {
    std::string todo;
    todo.reserve(trozo.size() * veces);
    for (std::size_t i = 0; i < veces; ++i) {
        todo += trozo;
    }
    return todo;
}

TEST(LibrosHostiles, LoQueSeInflaDemasiadoSeRechazaAntesDeLeerlo) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", Repetida("<row></row>", 7'000'000)}, {"Otra", "<row><c><v>1</v></c></row>"}};
    const auto bytes = Comprimido(PartesDe(libro));
    ASSERT_LT(bytes.size(), 1'000'000U);
    EXPECT_TRUE(TieneDefecto(bytes, "H$", fallo::archivoDanado,
                             "«xl/worksheets/sheet1.xml» ocupa demasiado para el tamaño del archivo"));
    EXPECT_EQ(LeerLibroComprimido(bytes, "libro")[1].Fields.Count(), 1);
}

/// The little-endian number of four bytes in the index of a file of one disk, and in the header of the part.
void MentirSobreElTamano(std::vector<std::byte>& bytes, const std::string& parte, std::uint32_t tamano) {
    for (auto desde = bytes.begin();;) {
        const auto nombre =
            std::search(desde, bytes.end(), parte.begin(), parte.end(),
                        [](std::byte byte, char c) { return byte == static_cast<std::byte>(c); });
        if (nombre == bytes.end()) {
            return;
        }
        for (const auto& [firma, lugarDelNombre, lugarDelTamano] :
             {std::tuple{std::byte{3}, 30, 22}, std::tuple{std::byte{1}, 46, 24}}) {
            const auto cabecera = nombre - std::min<std::ptrdiff_t>(lugarDelNombre, nombre - bytes.begin());
            if (*cabecera == std::byte{'P'} && *(cabecera + 2) == firma) {
                for (int i = 0; i < 4; ++i) {
                    *(cabecera + lugarDelTamano + i) = static_cast<std::byte>(tamano >> (8 * i));
                }
            }
        }
        desde = nombre + 1;
    }
}

TEST(LibrosHostiles, UnTamanoFalsoNoAbreNingunaPuerta) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", Repetida("<row></row>", 7'000'000)}};
    const std::string hoja = "xl/worksheets/sheet1.xml";
    auto pequeno = Comprimido(PartesDe(libro));
    MentirSobreElTamano(pequeno, hoja, 1000);
    EXPECT_TRUE(TieneDefecto(pequeno, "H$", fallo::archivoDanado, "«" + hoja + "»"));
    libro.hojas = {{"H", "<row><c><v>1</v></c></row>"}};
    auto grande = Comprimido(PartesDe(libro));
    MentirSobreElTamano(grande, hoja, 0xFFFFFFF0U);
    EXPECT_TRUE(TieneDefecto(grande, "H$", fallo::archivoDanado, "ocupa demasiado"));
}

TEST(LibrosHostiles, LoQueSeRepiteSinFinSeRechaza) {
    const std::string celda = R"(<table:table-cell office:value-type="float" office:value="1" )"
                              R"(table:number-columns-repeated="16384"/>)";
    const auto libro = [](const std::string& fila) {
        return EscribirOds("<table:table table:name=\"H\">" + fila +
                           "</table:table><table:table table:name=\"Otra\"/>");
    };
    EXPECT_TRUE(TieneDefecto(
        libro(R"(<table:table-row table:number-rows-repeated="1048576">)" + celda + "</table:table-row>"),
        "H$", fallo::archivoDanado, "sus tablas ocupan demasiado para su tamaño"));
    // Errors and empty texts are cells too.
    EXPECT_TRUE(TieneDefecto(
        libro(
            R"(<table:table-row table:number-rows-repeated="1048576">)"
            R"(<table:table-cell table:formula="of:=1/0" table:number-columns-repeated="16384"><text:p>#N/A</text:p>)"
            R"(</table:table-cell></table:table-row>)"),
        "H$", fallo::archivoDanado, "sus tablas ocupan demasiado"));
    EXPECT_TRUE(TieneDefecto(
        libro(R"(<table:table-row><table:table-cell><text:p><text:s text:c="2000000000"/></text:p>)"
              R"(</table:table-cell></table:table-row>)"),
        "H$", fallo::archivoDanado, "sus textos ocupan demasiado"));
    // Numbers without end are no more than the edge of the sheet.
    const auto tablas = LeerLibroComprimido(
        libro(R"(<table:table-row table:number-rows-repeated="99999999999999999999"><table:table-cell )"
              R"(table:number-columns-repeated="18446744073709551615"/></table:table-row><table:table-row>)" +
              celda + "</table:table-row>"),
        "libro");
    EXPECT_EQ(tablas.front().Fields.Count(), 16'384);
}

TEST(LibrosHostiles, LasColumnasQueSeRepitenNoDanLaVuelta) {
    const auto libro = [](const std::string& veces) {
        const std::string celda = R"(<table:table-cell office:value-type="float" office:value="1"/>)";
        return EscribirOds("<table:table table:name=\"H\"><table:table-row>" + celda +
                           "<table:table-cell table:number-columns-repeated=\"" + veces + "\"/>" + celda +
                           "</table:table-row></table:table>");
    };
    EXPECT_TRUE(TieneDefecto(libro("18446744073709551615"), "H$", fallo::archivoDanado,
                             "una celda está fuera de la hoja"));
    EXPECT_EQ(LeerLibroComprimido(libro("0"), "libro").front().Fields.Count(), 3);
}

TEST(LibrosHostiles, UnaCeldaMasAllaDelBordeSeRechaza) {
    const auto libro = [](const std::string& antes, const std::string& delante) {
        return EscribirOds(
            "<table:table table:name=\"H\">" + antes + "<table:table-row>" + delante +
            R"(<table:table-cell office:value-type="float" office:value="1"/></table:table-row></table:table>)");
    };
    EXPECT_TRUE(TieneDefecto(libro(R"(<table:table-row table:number-rows-repeated="1048576"/>)", ""), "H$",
                             fallo::archivoDanado, "una celda está fuera de la hoja"));
    EXPECT_TRUE(TieneDefecto(libro("", R"(<table:table-cell table:number-columns-repeated="16384"/>)"), "H$",
                             fallo::archivoDanado, "una celda está fuera de la hoja"));
}

TEST(LibrosHostiles, LoQueEstaDemasiadoHondoSeRechaza) {
    const auto hondo = Repetida("<a>", 100'000) + Repetida("</a>", 100'000);
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", hondo}};
    EXPECT_TRUE(TieneDefecto(EscribirXlsx(libro), "H$", fallo::archivoDanado,
                             "tiene elementos unos dentro de otros sin fin"));
    EXPECT_TRUE(
        NoSeLee(EscribirOds(hondo), fallo::archivoDanado, "tiene elementos unos dentro de otros sin fin"));
}

TEST(LibrosHostiles, LosPrefijosSinFinSeRechazan) {
    const auto conPrefijos = [](std::size_t cuantos) {
        std::string fila = "<row";
        for (std::size_t i = 0; i < cuantos; ++i) {
            fila += " xmlns:p" + std::to_string(i) +
                    "=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"";
        }
        LibroXlsxDePrueba libro;
        libro.hojas = {{"H", fila + R"(><c t="str"><v>X</v></c></row>)"}};
        return EscribirXlsx(libro);
    };
    EXPECT_EQ((LineasDeTablas{"[H$]", "X"}), LineasDelLibro(conPrefijos(200)));
    EXPECT_TRUE(TieneDefecto(conPrefijos(2'500), "H$", fallo::archivoDanado,
                             "su parte «xl/worksheets/sheet1.xml» declara demasiados prefijos, línea 1"));
}

TEST(LibrosHostiles, LosAtributosSinFinSeRechazan) {
    const auto conAtributos = [](std::size_t cuantos) {
        std::string fila = "<row";
        for (std::size_t i = 0; i < cuantos; ++i) {
            fila += " a" + std::to_string(i) + "=\"\"";
        }
        LibroXlsxDePrueba libro;
        libro.hojas = {{"H", fila + R"(><c t="str"><v>X</v></c></row>)"}};
        return EscribirXlsx(libro);
    };
    EXPECT_EQ((LineasDeTablas{"[H$]", "X"}), LineasDelLibro(conAtributos(256)));
    EXPECT_TRUE(TieneDefecto(conAtributos(257), "H$", fallo::archivoDanado,
                             "tiene un elemento con demasiados atributos, línea 1"));
    for (const auto cuantos :
         {std::size_t{20'000}, std::size_t{100'000}}) { // compared with each other they would take minutes
        EXPECT_TRUE(TieneDefecto(conAtributos(cuantos), "H$", fallo::archivoDanado,
                                 "tiene un elemento con demasiados atributos, línea 1"));
    }
}

TEST(LibrosHostiles, LosNombresSinFinSeRechazan) {
    std::string distintos;
    for (std::size_t i = 0; i < 500'000; ++i) {
        distintos += "<a" + std::to_string(i) + "/>";
    }
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", distintos}};
    EXPECT_TRUE(TieneDefecto(EscribirXlsx(libro), "H$", fallo::archivoDanado,
                             "usa demasiados nombres distintos, línea 1"));
}

TEST(LibrosHostiles, UnAtributoLargoSeLee) {
    // So a conditional format looks over thousands of cells that do not touch.
    const auto celda =
        R"(<table:table-row><table:table-cell office:value-type="float" office:value="1" office:zonas=")" +
        Repetida("Hoja1.A1 ", 80'000) + R"("/></table:table-row>)";
    EXPECT_EQ((LineasDeTablas{"[H$]", "1"}),
              LineasDelLibro(EscribirOds("<table:table table:name=\"H\">" + celda + "</table:table>")));
}

TEST(LibrosHostiles, UnElementoSinFinSeRechaza) {
    LibroXlsxDePrueba libro;
    libro.hojas = {{"H", "<row r=\"" + Repetida("1", 30'000'000) + "\"/>"}};
    EXPECT_TRUE(
        TieneDefecto(EscribirXlsx(libro), "H$", fallo::archivoDanado, "tiene un elemento demasiado largo"));
    libro.hojas = {{"H", "<!--" + Repetida("-x", 15'000'000) + "-->"}};
    EXPECT_TRUE(
        TieneDefecto(EscribirXlsx(libro), "H$", fallo::archivoDanado, "tiene un elemento demasiado largo"));
}

TEST(LibrosHostiles, UnTextoLargoEnMuchasCeldasTieneUnLimite) {
    LibroXlsxDePrueba libro;
    libro.textos = "<si><t>" + Repetida("x", 100'000) + "</t></si>";
    libro.hojas = {{"H", Repetida(R"(<row><c t="s"><v>0</v></c></row>)", 20'000)}};
    // Two thousand million letters, for whoever writes the cells out.
    EXPECT_TRUE(NoSeLee(EscribirXlsx(libro), fallo::archivoDanado, "sus textos ocupan demasiado"));
}

TEST(LibrosHostiles, MuchasPartesConElMismoNombreSonLaPrimera) {
    auto partes = PartesDe({.hojas = {{"H", R"(<row><c t="str"><v>X</v></c></row>)"}}});
    partes.push_back({"XL/Worksheets/sheet1.xml", "esto no es XML"});
    EXPECT_EQ((LineasDeTablas{"[H$]", "X"}), LineasDelLibro(EscribirZip(partes)));
}

TEST(LibrosHostiles, MasHojasQueEnNingunLibroSeRechazan) {
    EXPECT_TRUE(NoSeLee(EscribirOds(Repetida("<table:table table:name=\"H\"/>", 100'001)),
                        fallo::archivoDanado, "sus tablas ocupan demasiado para su tamaño"));
    EXPECT_TRUE(
        NoSeLee(EscribirXlsx(LibroXlsxDePrueba{.hojas = std::vector<LibroXlsxDePrueba::Hoja>(40'001)}),
                fallo::archivoDanado, "tiene más hojas que ningún libro"));
    auto partes = PartesDe({.hojas = {{"H", ""}}});
    partes[0].contenido.insert(partes[0].contenido.find("<Relationship "),
                               Repetida("<Relationship Id=\"a\"/>", 100'001));
    EXPECT_TRUE(NoSeLee(EscribirZip(partes), fallo::archivoDanado, "tiene más partes que ningún libro"));
}

} // namespace
} // namespace varo::prueba
