// The stream of elements and texts of a part, whatever its pieces, its letters and its prefixes.
#include "libros/LectorXml.h"

#include "apoyo/EscritorXlsx.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Texto.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace varo::prueba {
namespace {

const std::string deTabla = "urn:oasis:names:tc:opendocument:xmlns:table:1.0";
const std::string deHoja = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";

/// "[name attribute=value]text[/]"; before a name of a vocabulary its number stands.
class OyenteDePrueba : public OyenteXml {
public:
    std::string oido;

    void abrir(const ElementoXml& elemento) override {
        oido += "[" + Escrito(elemento.nombre());
        for (const auto& [nombre, valor] : elemento.atributos()) {
            oido += " " + Escrito(nombre) + "=" + std::string{valor};
        }
        oido += "]";
    }
    void cerrar() override { oido += "[/]"; }
    void texto(std::string_view trozo) override { oido += trozo; }

private:
    static std::string Escrito(const NombreXml& nombre) {
        const std::string vocabulario = nombre.espacio == EspacioXml::Ninguno ? ""
                                        : nombre.espacio == EspacioXml::Tabla ? "tabla:"
                                        : nombre.espacio == EspacioXml::Hoja  ? "hoja:"
                                        : nombre.espacio == EspacioXml::Xml   ? "xml:"
                                        : nombre.espacio == EspacioXml::Otro  ? "otro:"
                                                                              : "?:";
        return vocabulario + std::string{nombre.nombre};
    }
};

std::string Oido(const std::string& xml) {
    const auto bytes = EscribirZip({{"p.xml", xml}});
    OyenteDePrueba oyente;
    LeerXml(ArchivoZip{bytes}, "p.xml", oyente);
    return oyente.oido;
}

/// Reading the part fails, and says where.
testing::AssertionResult EstaMalEscrita(const std::string& xml, const std::string& donde = "línea 1") {
    try {
        return testing::AssertionFailure() << "«" << xml << "» se lee: " << Oido(xml);
    } catch (const ErrorMotor& error) {
        const bool loDice =
            error.descripcion().find("su parte «p.xml» no está bien escrita, " + donde) != std::string::npos;
        return loDice ? testing::AssertionSuccess() : testing::AssertionFailure() << error.descripcion();
    }
}

std::string EnUtf16(const std::string& ascii) {
    std::string doble = "\xFF\xFE";
    for (const char c : ascii) {
        doble += {c, '\0'};
    }
    return doble;
}

TEST(LectorXml, LosNombresLlevanSuVocabulario) {
    EXPECT_EQ(
        "[raiz][tabla:a tabla:b=1 c=2][/][otro:d otro:e=3][/][/]",
        Oido("<raiz xmlns:t='" + deTabla + "' xmlns:z='urn:z'><t:a t:b='1' c='2'/><z:d z:e='3'/></raiz>"));
    EXPECT_EQ("[hoja:raiz a=1][hoja:b][/][/]", Oido("<raiz xmlns='" + deHoja + "' a='1'><b/></raiz>"));
    EXPECT_EQ("[a xml:space=preserve][/]", Oido("<a xml:space='preserve'/>"));
}

TEST(LectorXml, UnPrefijoValeDentroDeSuElemento) {
    EXPECT_EQ("[a][tabla:b][hoja:b][/][tabla:b][/][/][/]",
              Oido("<a><p:b xmlns:p='" + deTabla + "'><p:b xmlns:p='" + deHoja + "'/><p:b/></p:b></a>"));
    EXPECT_EQ("[hoja:a][b][c][/][/][hoja:d][/][/]",
              Oido("<a xmlns='" + deHoja + "'><b xmlns=''><c/></b><d/></a>"));
}

TEST(LectorXml, LosNombresMalEscritosYLosPrefijosQueNadieDeclaraNoSePierden) {
    const std::string abre = "<a xmlns:p='" + deTabla + "'>";
    for (const std::string mal :
         {"<q:b/>", "<b q:c='1'/>", "<p:9/>", "<b p:9='1'/>", "<p:b:c/>", "<:b/>", "<p:/>",
          "<b p:c='1' p:c='2'/>", "<b xmlns:q=''/>", "<b xmlns:xml='urn:x'/>"}) {
        EXPECT_TRUE(EstaMalEscrita(abre + mal + "</a>")) << mal;
    }
    // What says nothing of the names is no reason to lose a sheet.
    EXPECT_EQ("[a xml:lang=?][/]", Oido("<a xml:lang='?' xmlns:b='no es una URI'/>"));
}

TEST(LectorXml, LasReferenciasSonLetras) {
    EXPECT_EQ("[a b=&<>\"'ñ€][/]", Oido("<a b='&amp;&lt;&gt;&quot;&apos;&#241;&#x20AC;'/>"));
    EXPECT_EQ("[a]&<>\"'ñ€[/]", Oido("<a>&amp;&lt;&gt;&quot;&apos;&#241;&#x20AC;</a>"));
    EXPECT_EQ("[a]<b>&amp;[/]", Oido("<a><![CDATA[<b>&amp;]]></a>"));
    EXPECT_TRUE(EstaMalEscrita("<a>&x;</a>", "línea 1, carácter 7"));
}

TEST(LectorXml, LosBlancosSeOyen) {
    EXPECT_EQ("[a] \n [b] [/]\n[/]", Oido("<a> \r\n <b> </b>\r</a>"));
    EXPECT_EQ("[a b=1  2][/]", Oido("<a b='1\n\t2'/>"));
    EXPECT_EQ("[a]1\n2\n\n3\n4\n\n[/]", Oido("<a><![CDATA[1\r\n2\r\r\n3\n4\r]]>\n</a>"));
    EXPECT_EQ("[a]\nx\n[/]", Oido("<a><![CDATA[\r]]>x<![CDATA[\n]]></a>"));
    // They come in pieces, and one is cut between the two.
    for (const std::string delante : {"", "x"}) {
        std::string escrito;
        std::string esperado;
        for (int i = 0; i < 100'000; ++i) {
            escrito += "\r\n";
            esperado += '\n';
        }
        EXPECT_TRUE("[a]" + delante + esperado + "[/]" ==
                    Oido("<a><![CDATA[" + delante + escrito + "]]></a>"));
    }
}

TEST(LectorXml, LoQueNoSonElementosNiTextosNoSeOye) {
    EXPECT_EQ("[a]12[/]", Oido("<?xml version='1.0'?><!-- x --><a>1<!-- <b/> --><?c d?>2</a><!-- y -->"));
}

TEST(LectorXml, LasLetrasPuedenSerDeOtraTabla) {
    EXPECT_EQ("[a]1[/]", Oido("\xEF\xBB\xBF<a>1</a>"));
    EXPECT_EQ("[a]añ[/]", Oido("<?xml version='1.0' encoding='ISO-8859-1'?><a>a\xF1</a>"));
    EXPECT_EQ("[a b=12]34[/]", Oido(EnUtf16("<?xml version='1.0' encoding='UTF-16'?><a b='12'>34</a>")));
    EXPECT_TRUE(EstaMalEscrita("<a>a\xF1</a>"));
    EXPECT_TRUE(EstaMalEscrita("<?xml version='1.0' encoding='ninguna'?><a/>"));
}

TEST(LectorXml, UnaParteLargaSeOyeEnteraPorDondeQuieraQueSeCorte) {
    const std::string bytes = R"(<b c="&amp;ñ€&#13;">€ñ&lt;<![CDATA[€<>]]>&#x1F332;🌲</b>)";
    const std::string oido = "[b c=&ñ€\r]€ñ<€<>🌲🌲[/]";
    constexpr int veces = 40'000; // more than two megabytes: its cuts fall everywhere
    for (const std::string delante : {"", " ", "  ", "   ", "    "}) {
        std::string xml = "<a>" + delante;
        std::string esperado = "[a]" + delante;
        for (int i = 0; i < veces; ++i) {
            xml += bytes;
            esperado += oido;
        }
        EXPECT_TRUE(Oido(xml + "</a>") == esperado + "[/]") << delante.size();
    }
    EXPECT_EQ("[a]" + std::string(3'000'000, 'x') + "[/]",
              Oido("<a>" + std::string(3'000'000, 'x') + "</a>"));
    const std::string enUtf16 =
        "<?xml version='1.0' encoding='UTF-16'?><a>" + std::string(300'001, 'x') + "<b/></a>";
    EXPECT_EQ("[a]" + std::string(300'001, 'x') + "[b][/][/]", Oido(EnUtf16(enUtf16)));
}

TEST(LectorXml, LoQueNoEstaBienEscritoDiceDonde) {
    EXPECT_TRUE(EstaMalEscrita("<a>\n<b>\n</a>", "línea 3, carácter 5"));
    for (const std::string mal :
         {"", " ", "x", "<a>", "<a", "<a/><b/>", "<a/>x", "<a b=1/>", "<a b='1' b='2'/>", "<a><b></a></b>",
          "<a b='<'/>", "<a>&#0;</a>", "<a>\x01</a>", "<a>]]></a>", "<a><!-- -- --></a>", "<1/>",
          "<a>&amp</a>", "<![CDATA[x]]>", "<a><![CDATA[x</a>"}) {
        EXPECT_TRUE(EstaMalEscrita(mal));
    }
}

TEST(LectorXml, LosBytesQueNoSonLetrasNoAcabanLaLecturaEnSilencio) {
    const std::string letras = "<b>0123456789</b>";
    std::string muchas;
    for (int i = 0; i < 30'000; ++i) {
        muchas += letras;
    }
    struct Rota {
        std::string tabla;
        std::string bytes;
    };
    for (const auto& [tabla, bytes] :
         {Rota{"windows-1252", "\x81"}, Rota{"GBK", "\x81 "}, Rota{"UTF-8", "\xF1"}, Rota{"us-ascii", "\xF1"},
          Rota{"Shift_JIS", "\x82 "}}) {
        const auto cabecera = "<?xml version='1.0' encoding='" + tabla + "'?><a>";
        for (const auto& mal : {bytes + letras, letras + bytes, bytes + muchas, muchas + bytes,
                                muchas + bytes + muchas, "<!--" + bytes + "-->" + muchas}) {
            EXPECT_TRUE(EstaMalEscrita(cabecera + mal + "</a>")) << tabla << ' ' << mal.size();
        }
        EXPECT_NO_THROW(Oido(cabecera + muchas + "</a>")) << tabla;
    }
    // Half of a letter of two units.
    for (const auto& despues : {letras, muchas}) {
        auto utf16 = EnUtf16("<?xml version='1.0' encoding='UTF-16'?><a>" + muchas + "?" + despues + "</a>");
        utf16.replace(utf16.find('?', 100), 2, std::string{"\x00\xD8", 2});
        EXPECT_TRUE(EstaMalEscrita(utf16));
    }
}

TEST(LectorXml, LoQueTiraQuienOyeAcabaLaLectura) {
    class Impaciente : public OyenteXml {
    public:
        int oidos = 0;
        void abrir(const ElementoXml& /*elemento*/) override { ++oidos; }
        void cerrar() override {}
        void texto(std::string_view /*trozo*/) override { throw ErrorMotor{fallo::archivoDanado, "basta"}; }
    };
    const auto bytes = EscribirZip({{"p.xml", "<a><b>1</b><b>2</b></a>"}});
    Impaciente oyente;
    EXPECT_THROW(LeerXml(ArchivoZip{bytes}, "p.xml", oyente), ErrorMotor);
    EXPECT_EQ(oyente.oidos, 2);
}

} // namespace
} // namespace varo::prueba
