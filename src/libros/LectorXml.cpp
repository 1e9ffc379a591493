#include "libros/LectorXml.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <exception>
#include <libxml/parser.h>
#include <memory>
#include <mutex>
#include <new>

namespace varo {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t masHondo = 200;
constexpr std::size_t masPrefijos = 256;
// The parser compares each attribute of an element with all the others before it tells them.
constexpr std::size_t masAtributos = 256;
// Of a tag that is longer than this the signs of its attributes are counted before all of it has come.
constexpr std::size_t largoSinDudas = std::size_t{64} << 10U;
constexpr std::size_t masSignos = 4096; // values may have some too
// And it finds names in lists that do not grow with them. A workbook has some hundreds.
constexpr int masNombres = 20'000;
constexpr std::size_t masLargo = std::size_t{1} << 20U; // a tag with its attributes

struct Vocabulario {
    std::string_view uri;
    EspacioXml espacio;
};

constexpr std::array<Vocabulario, 12> vocabularios{
    {{"http://schemas.openxmlformats.org/spreadsheetml/2006/main"sv, EspacioXml::Hoja},
     {"http://purl.oclc.org/ooxml/spreadsheetml/main"sv, EspacioXml::Hoja},
     {"http://schemas.openxmlformats.org/officeDocument/2006/relationships"sv, EspacioXml::Relacion},
     {"http://purl.oclc.org/ooxml/officeDocument/relationships"sv, EspacioXml::Relacion},
     {"http://schemas.openxmlformats.org/package/2006/relationships"sv, EspacioXml::Paquete},
     {"urn:oasis:names:tc:opendocument:xmlns:office:1.0"sv, EspacioXml::Oficina},
     {"urn:oasis:names:tc:opendocument:xmlns:table:1.0"sv, EspacioXml::Tabla},
     {"urn:oasis:names:tc:opendocument:xmlns:text:1.0"sv, EspacioXml::Texto},
     {"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"sv, EspacioXml::Manifiesto},
     {"urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0"sv, EspacioXml::Calc},
     {"http://www.w3.org/XML/1998/namespace"sv, EspacioXml::Xml},
     {""sv, EspacioXml::Ninguno}}};

EspacioXml EspacioDe(std::string_view uri) {
    for (const auto& vocabulario : vocabularios) {
        if (vocabulario.uri == uri) {
            return vocabulario.espacio;
        }
    }
    return EspacioXml::Otro;
}

struct Liberar {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

std::string_view Texto(const xmlChar* texto) {
    return reinterpret_cast<const char*>(texto);
}

std::string_view Texto(const xmlChar* texto, const xmlChar* fin) {
    return {reinterpret_cast<const char*>(texto), static_cast<std::size_t>(fin - texto)};
}

/// Where the parser would write on the terminal what it does not tell its own: bytes that are no letters.
void Callar(void* /*nadie*/, const char* /*formato*/, ...) {}

/// What the addresses of vocabularies stand for. The parser gives equal texts the same pointer.
class EspaciosVistos {
public:
    EspacioXml de(const xmlChar* uri) {
        const auto visto = std::ranges::find(vistos_, uri, &Visto::uri);
        if (visto != vistos_.end()) {
            return visto->espacio;
        }
        const auto espacio = EspacioDe(Texto(uri));
        if (espacio != EspacioXml::Otro) { // of those there may be any number
            vistos_.push_back({uri, espacio});
        }
        return espacio;
    }

private:
    struct Visto {
        const xmlChar* uri;
        EspacioXml espacio;
    };
    std::vector<Visto> vistos_;
};

/// The parser and what it calls. No exception passes through it: the first one waits until it has returned.
class AnalisisXml {
public:
    AnalisisXml(const std::string& parte, OyenteXml& oyente, TipoDeXml tipo)
        : parte_{parte}, oyente_{oyente}, tipo_{tipo} {
        static std::once_flag preparado;
        std::call_once(preparado, xmlInitParser); // which is not safe with several threads
        xmlSetGenericErrorFunc(nullptr, Callar);  // of this thread
        xmlSAXHandler avisos{};
        avisos.initialized = XML_SAX2_MAGIC;
        avisos.startElementNs = alAbrir;
        avisos.endElementNs = alCerrar;
        avisos.characters = alEscribir;
        avisos.ignorableWhitespace = alEscribir;
        avisos.cdataBlock = alEscribirComoEsta;
        avisos.internalSubset = alDeclarar;
        avisos.serror = alFallar;
        parser_.reset(xmlCreatePushParserCtxt(&avisos, this, nullptr, 0, nullptr));
        // Meant: without this option "&amp;" in an attribute becomes "&#38;". Entities that a part declares
        // are never replaced, because a part that declares any is refused.
        if (!parser_ || xmlCtxtUseOptions(parser_.get(), XML_PARSE_NOENT | XML_PARSE_NONET) != 0) {
            throw std::bad_alloc{};
        }
    }

    void recibir(std::string_view trozo, bool ultimo) {
        xmlParseChunk(parser_.get(), trozo.data(), static_cast<int>(trozo.size()), ultimo ? 1 : 0);
        if (fallo_) {
            std::rethrow_exception(fallo_);
        }
        // Bytes that are no letters stop the parser, and it does not say that they are a fault.
        if (parser_->wellFormed == 0 || parser_->disableSAX != 0) {
            danada("no está bien escrita");
        }
        if (xmlDictSize(parser_->dict) > masNombres) {
            danada("usa demasiados nombres distintos");
        }
        const auto porMirar = Texto(parser_->input->cur, parser_->input->end);
        if (porMirar.size() > masLargo) {
            danada("tiene un elemento demasiado largo");
        }
        if (porMirar.size() > largoSinDudas &&
            static_cast<std::size_t>(std::ranges::count(porMirar, '=')) > masSignos) {
            danada("tiene un elemento con demasiados atributos");
        }
    }

private:
    [[noreturn]] void danada(const std::string& que) const {
        ArchivoDanado("su parte «" + parte_ + "» " + que + ", línea " + std::to_string(parser_->input->line) +
                      ", carácter " + std::to_string(parser_->input->col));
    }

    template <class Acto>
    static void guardando(void* yo, Acto acto) {
        auto& analisis = *static_cast<AnalisisXml*>(yo);
        if (analisis.fallo_) {
            return;
        }
        try {
            acto(analisis);
        } catch (...) {
            analisis.fallo_ = std::current_exception();
            xmlStopParser(analisis.parser_.get());
        }
    }

    /// The attributes are five pointers each: name, prefix, vocabulary, and where the value begins and ends.
    static void alAbrir(void* yo, const xmlChar* nombre, const xmlChar* /*prefijo*/, const xmlChar* uri,
                        int declarados, const xmlChar** /*prefijos*/, int cuantos, int /*supuestos*/,
                        const xmlChar** atributos) {
        guardando(yo, [&](AnalisisXml& analisis) {
            analisis.trasRetorno_ = false;
            analisis.entrar(static_cast<std::size_t>(declarados));
            if (static_cast<std::size_t>(cuantos) > masAtributos) {
                analisis.danada("tiene un elemento con demasiados atributos");
            }
            analisis.atributos_.clear();
            for (const auto* const* par = atributos; par != atributos + std::ptrdiff_t{5} * cuantos;
                 par += 5) {
                analisis.atributos_.push_back({analisis.nombreDe(par[0], par[2]), Texto(par[3], par[4])});
            }
            analisis.oyente_.abrir(ElementoXml{analisis.nombreDe(nombre, uri), analisis.atributos_});
        });
    }
    static void alCerrar(void* yo, const xmlChar* /*nombre*/, const xmlChar* /*prefijo*/,
                         const xmlChar* /*uri*/) {
        guardando(yo, [](AnalisisXml& analisis) {
            analisis.trasRetorno_ = false;
            analisis.declarados_.pop_back();
            analisis.oyente_.cerrar();
        });
    }
    static void alEscribir(void* yo, const xmlChar* texto, int cuantos) {
        guardando(yo, [&](AnalisisXml& analisis) {
            analisis.trasRetorno_ = false;
            analisis.oyente_.texto(Texto(texto, texto + cuantos));
        });
    }
    /// What stands between <![CDATA[ and ]]>. Its ends of lines come as they are written.
    static void alEscribirComoEsta(void* yo, const xmlChar* texto, int cuantos) {
        guardando(yo, [&](AnalisisXml& analisis) {
            std::string igualado;
            for (const char c : Texto(texto, texto + cuantos)) {
                if (c != '\n' || !analisis.trasRetorno_) {
                    igualado += c == '\r' ? '\n' : c;
                }
                analisis.trasRetorno_ = c == '\r';
            }
            analisis.oyente_.texto(igualado);
        });
    }
    static void alDeclarar(void* yo, const xmlChar* /*nombre*/, const xmlChar* /*publico*/,
                           const xmlChar* /*sistema*/) {
        guardando(yo, [](AnalisisXml& analisis) {
            auto& parser = *analisis.parser_;
            const bool conContenido = *parser.input->cur == '[';
            if (conContenido || analisis.tipo_ == TipoDeXml::SinNombrar) {
                analisis.danada("declara un tipo de documento (DOCTYPE)");
            }
            parser.hasExternalSubset = 0; // it is not read, so an entity that it declares is unknown
        });
    }

    /// A name whose prefix nobody declares is a fault: its element would be lost.
    static void alFallar(void* yo, xmlErrorPtr error) {
        auto& analisis = *static_cast<AnalisisXml*>(yo);
        const bool esAviso = error->level < XML_ERR_ERROR || error->code == XML_WAR_NS_URI;
        if (esAviso || analisis.fallo_) {
            return;
        }
        try {
            if (error->code == XML_ERR_NO_MEMORY) {
                throw std::bad_alloc{};
            }
            analisis.danada("no está bien escrita");
        } catch (...) {
            analisis.fallo_ = std::current_exception();
        }
    }

    /// An element opens that declares so many prefixes.
    void entrar(std::size_t declarados) {
        const auto todos = declarados + (declarados_.empty() ? 0 : declarados_.back());
        if (declarados_.size() == masHondo) {
            danada("tiene elementos unos dentro de otros sin fin");
        }
        if (todos > masPrefijos) {
            danada("declara demasiados prefijos");
        }
        declarados_.push_back(todos);
    }

    NombreXml nombreDe(const xmlChar* nombre, const xmlChar* uri) {
        return {uri == nullptr ? EspacioXml::Ninguno : espacios_.de(uri), Texto(nombre)};
    }

    const std::string& parte_;
    OyenteXml& oyente_;
    TipoDeXml tipo_;
    std::unique_ptr<xmlParserCtxt, Liberar> parser_;
    EspaciosVistos espacios_;
    std::vector<AtributoXml> atributos_;  // of the element that opens
    std::vector<std::size_t> declarados_; // prefixes, by depth: there and above
    bool trasRetorno_ = false;            // the last character was one
    std::exception_ptr fallo_;
};

} // namespace

std::optional<std::string_view> ElementoXml::atributo(NombreXml buscado) const {
    const auto hallado = std::ranges::find(atributos_, buscado, &AtributoXml::nombre);
    return hallado == atributos_.end() ? std::nullopt : std::optional{hallado->valor};
}

void LeerXml(const ArchivoZip& archivo, const std::string& parte, OyenteXml& oyente,
             const std::function<void(std::size_t)>& alLeer, TipoDeXml tipo) {
    AnalisisXml analisis{parte, oyente, tipo};
    archivo.leer(parte, [&](std::string_view trozo) {
        if (alLeer) {
            alLeer(trozo.size());
        }
        analisis.recibir(trozo, false);
    });
    analisis.recibir({}, true);
}

bool EsVerdad(std::optional<std::string_view> valor) {
    return valor == "1" || valor == "true" || valor == "on";
}

std::optional<std::size_t> EnteroEscrito(std::string_view texto) {
    std::size_t numero = 0;
    const auto* const fin = texto.data() + texto.size();
    const auto leido = std::from_chars(texto.data(), fin, numero);
    return leido.ec == std::errc{} && leido.ptr == fin ? std::optional{numero} : std::nullopt;
}

} // namespace varo
