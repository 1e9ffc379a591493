#include "libros/LectorXml.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <expat.h>
#include <memory>
#include <new>
#include <type_traits>

namespace varo {
namespace {

using namespace std::string_view_literals;

constexpr std::size_t masHondo = 200;
constexpr std::size_t masPrefijos = 256;
/// A tag with its attributes. Parsers look at it again with each piece that they are given of it.
constexpr std::size_t masLargo = std::size_t{1} << 20U;

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
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};

/// The parser and what it calls. No exception passes through it: the first one waits until it has returned.
class AnalisisXml {
public:
    AnalisisXml(const std::string& parte, OyenteXml& oyente, TipoDeXml tipo)
        : parte_{parte}, oyente_{oyente}, tipo_{tipo}, parser_{XML_ParserCreate(nullptr)} {
        if (!parser_) {
            throw std::bad_alloc{};
        }
        XML_SetUserData(parser_.get(), this);
        XML_SetElementHandler(parser_.get(), alAbrir, alCerrar);
        XML_SetCharacterDataHandler(parser_.get(), alEscribir);
        XML_SetStartDoctypeDeclHandler(parser_.get(), alDeclarar);
        XML_SetEntityDeclHandler(parser_.get(), alDeclararEntidad);
    }

    void recibir(std::string_view trozo, bool ultimo) {
        recibidos_ += trozo.size();
        const auto estado = XML_Parse(parser_.get(), trozo.data(), static_cast<int>(trozo.size()),
                                      ultimo ? XML_TRUE : XML_FALSE);
        if (fallo_) {
            std::rethrow_exception(fallo_);
        }
        if (estado == XML_STATUS_ERROR) {
            danada("no está bien escrita");
        }
        const auto mirados = XML_GetCurrentByteIndex(parser_.get());
        if (mirados >= 0 && recibidos_ - static_cast<std::size_t>(mirados) > masLargo) {
            danada("tiene un elemento demasiado largo");
        }
    }

private:
    [[noreturn]] void danada(const std::string& que) const {
        ArchivoDanado("su parte «" + parte_ + "» " + que + ", línea " +
                      std::to_string(XML_GetCurrentLineNumber(parser_.get())) + ", carácter " +
                      std::to_string(XML_GetCurrentColumnNumber(parser_.get()) + 1));
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
            XML_StopParser(analisis.parser_.get(), XML_FALSE);
        }
    }

    static void XMLCALL alAbrir(void* yo, const char* nombre, const char** atributos) {
        guardando(yo, [&](AnalisisXml& analisis) {
            if (++analisis.hondura_ > masHondo) {
                analisis.danada("tiene elementos unos dentro de otros sin fin");
            }
            if (!analisis.prefijos_.abrir(analisis.hondura_, atributos)) {
                analisis.danada("declara demasiados prefijos");
            }
            analisis.oyente_.abrir(ElementoXml{nombre, atributos, analisis.prefijos_});
        });
    }
    static void XMLCALL alCerrar(void* yo, const char* /*nombre*/) {
        guardando(yo, [](AnalisisXml& analisis) {
            analisis.prefijos_.cerrar(analisis.hondura_);
            --analisis.hondura_;
            analisis.oyente_.cerrar();
        });
    }
    static void XMLCALL alEscribir(void* yo, const char* texto, int cuantos) {
        guardando(yo, [&](AnalisisXml& analisis) {
            analisis.oyente_.texto({texto, static_cast<std::size_t>(cuantos)});
        });
    }
    static void XMLCALL alDeclarar(void* yo, const char* /*nombre*/, const char* /*sistema*/,
                                   const char* /*publico*/, int conContenido) {
        guardando(yo, [conContenido](AnalisisXml& analisis) {
            if (conContenido != 0 || analisis.tipo_ == TipoDeXml::SinNombrar) {
                analisis.danada("declara un tipo de documento (DOCTYPE)");
            }
        });
    }
    static void XMLCALL alDeclararEntidad(void* yo, const char* /*nombre*/, int /*deParametro*/,
                                          const char* /*valor*/, int /*longitud*/, const char* /*base*/,
                                          const char* /*sistema*/, const char* /*publico*/,
                                          const char* /*notacion*/) {
        guardando(yo, [](AnalisisXml& analisis) { analisis.danada("declara entidades"); });
    }

    const std::string& parte_;
    OyenteXml& oyente_;
    TipoDeXml tipo_;
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Liberar> parser_;
    PrefijosXml prefijos_;
    std::exception_ptr fallo_;
    std::size_t recibidos_ = 0;
    std::size_t hondura_ = 0;
};

} // namespace

bool PrefijosXml::abrir(std::size_t hondura, const char* const* atributos) {
    constexpr std::string_view declaracion = "xmlns";
    for (const char* const* par = atributos; *par != nullptr && declarados_.size() <= masPrefijos; par += 2) {
        if (std::string_view nombre = par[0]; nombre.starts_with(declaracion)) {
            nombre.remove_prefix(declaracion.size());
            if (nombre.empty() || nombre.starts_with(':')) {
                declarar(nombre.substr(nombre.empty() ? 0 : 1), par[1], hondura);
            }
        }
    }
    return declarados_.size() <= masPrefijos;
}

void PrefijosXml::declarar(std::string_view prefijo, std::string_view uri, std::size_t hondura) {
    const auto espacio = EspacioDe(uri);
    if (espacio != EspacioXml::Otro || prefijo.empty() || buscar(prefijo) != nullptr) {
        declarados_.push_back({std::string{prefijo}, espacio, hondura});
    }
}

void PrefijosXml::cerrar(std::size_t hondura) {
    while (!declarados_.empty() && declarados_.back().hondura == hondura) {
        declarados_.pop_back();
    }
}

const PrefijosXml::Declarado* PrefijosXml::buscar(std::string_view prefijo) const {
    const auto hallado =
        std::find_if(declarados_.rbegin(), declarados_.rend(),
                     [prefijo](const Declarado& declarado) { return declarado.prefijo == prefijo; });
    return hallado == declarados_.rend() ? nullptr : &*hallado;
}

EspacioXml PrefijosXml::espacioDe(std::string_view prefijo) const {
    if (prefijo == "xml") {
        return EspacioXml::Xml;
    }
    const auto* const declarado = buscar(prefijo);
    return declarado == nullptr ? EspacioXml::Otro : declarado->espacio;
}

NombreXml PrefijosXml::deElemento(std::string_view escrito) const {
    if (escrito.find(':') != std::string_view::npos) {
        return deAtributo(escrito);
    }
    const auto* const sinPrefijo = buscar({});
    return {sinPrefijo == nullptr ? EspacioXml::Ninguno : sinPrefijo->espacio, escrito};
}

NombreXml PrefijosXml::deAtributo(std::string_view escrito) const {
    const auto corte = escrito.find(':');
    return corte == std::string_view::npos
               ? NombreXml{EspacioXml::Ninguno, escrito}
               : NombreXml{espacioDe(escrito.substr(0, corte)), escrito.substr(corte + 1)};
}

std::optional<std::string_view> ElementoXml::atributo(NombreXml buscado) const {
    for (const char* const* par = atributos_; *par != nullptr; par += 2) {
        if (prefijos_->deAtributo(par[0]) == buscado) {
            return par[1];
        }
    }
    return std::nullopt;
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
