// Reads the XML of a part of a workbook as a stream of elements and texts.
#pragma once

#include "libros/ArchivoZip.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varo {

/// The vocabularies in use. The strict and the transitional ones of .xlsx are the same here.
enum class EspacioXml {
    Ninguno,
    Hoja,       ///< spreadsheetml
    Relacion,   ///< references from a part to a relationship
    Paquete,    ///< the relationships themselves
    Oficina,    ///< office: of OpenDocument
    Tabla,      ///< table:
    Texto,      ///< text:
    Manifiesto, ///< manifest:
    Calc,       ///< calcext: of LibreOffice
    Xml,        ///< xml:
    Otro
};

struct NombreXml {
    EspacioXml espacio = EspacioXml::Ninguno;
    std::string_view nombre;

    friend bool operator==(const NombreXml&, const NombreXml&) = default;
};

/// What the prefixes stand for where the reading is. The parser could tell it, and takes twice as long then.
class PrefijosXml {
public:
    /// An element opens that stands so deep, with these attributes. False where more prefixes are declared
    /// than in any workbook: each name is looked up among all of them.
    [[nodiscard]] bool abrir(std::size_t hondura, const char* const* atributos);
    /// The element that stands so deep closes.
    void cerrar(std::size_t hondura);

    /// "table:name" or "name", which for an attribute is of no vocabulary.
    [[nodiscard]] NombreXml deElemento(std::string_view escrito) const;
    [[nodiscard]] NombreXml deAtributo(std::string_view escrito) const;

private:
    struct Declarado {
        std::string prefijo; ///< empty for what has none
        EspacioXml espacio = EspacioXml::Otro;
        std::size_t hondura = 0;
    };

    [[nodiscard]] const Declarado* buscar(std::string_view prefijo) const;
    void declarar(std::string_view prefijo, std::string_view uri, std::size_t hondura);
    [[nodiscard]] EspacioXml espacioDe(std::string_view prefijo) const;

    std::vector<Declarado> declarados_; ///< without those of other vocabularies, but where they hide one
};

/// An element that opens. It lives no longer than the call that tells it.
class ElementoXml {
public:
    ElementoXml(std::string_view nombre, const char* const* atributos, const PrefijosXml& prefijos)
        : nombre_{prefijos.deElemento(nombre)}, atributos_{atributos}, prefijos_{&prefijos} {}

    [[nodiscard]] const NombreXml& nombre() const { return nombre_; }
    [[nodiscard]] bool es(EspacioXml espacio, std::string_view nombre) const {
        return nombre_ == NombreXml{espacio, nombre};
    }
    /// Nothing where the element has none with that name.
    [[nodiscard]] std::optional<std::string_view> atributo(NombreXml buscado) const;
    /// One that has no vocabulary.
    [[nodiscard]] std::optional<std::string_view> atributo(std::string_view nombre) const {
        return atributo({EspacioXml::Ninguno, nombre});
    }

    /// Calls `accion(NombreXml, std::string_view value)` for each of them.
    template <class Accion>
    void enCadaAtributo(Accion accion) const {
        for (const char* const* par = atributos_; *par != nullptr; par += 2) {
            accion(prefijos_->deAtributo(par[0]), std::string_view{par[1]});
        }
    }

private:
    NombreXml nombre_;
    const char* const* atributos_;
    const PrefijosXml* prefijos_;
};

/// Hears a part. What it throws ends the reading.
class OyenteXml {
public:
    OyenteXml() = default;
    OyenteXml(const OyenteXml&) = delete;
    OyenteXml& operator=(const OyenteXml&) = delete;
    virtual ~OyenteXml() = default;

    virtual void abrir(const ElementoXml& elemento) = 0;
    virtual void cerrar() = 0;
    /// A text may come in several pieces.
    virtual void texto(std::string_view trozo) = 0;
};

/// An OyenteXml that looks at the places it knows and at nothing below others. `Sitios` is an enumeration of
/// them with a `Documento`, where all begins, and a `Nada`.
template <class Sitios>
class OyenteConSitios : public OyenteXml {
public:
    using SitioXml = Sitios;

    void abrir(const ElementoXml& elemento) final {
        sitios_.push_back(sitio() == SitioXml::Nada ? SitioXml::Nada : entrar(sitio(), elemento));
    }
    void cerrar() final {
        const SitioXml dejado = sitio();
        sitios_.pop_back();
        if (dejado != SitioXml::Nada) {
            salir(dejado);
        }
    }
    void texto(std::string_view trozo) final {
        if (sitio() != SitioXml::Nada) {
            escribir(sitio(), trozo);
        }
    }

protected:
    /// What the place of an element is that opens in another.
    virtual SitioXml entrar(SitioXml donde, const ElementoXml& elemento) = 0;
    /// The element of this place closes.
    virtual void salir(SitioXml /*dejado*/) {}
    virtual void escribir(SitioXml /*donde*/, std::string_view /*trozo*/) {}

private:
    [[nodiscard]] SitioXml sitio() const { return sitios_.back(); }

    std::vector<SitioXml> sitios_{SitioXml::Documento};
};

/// Whether a part may name the type of its document. One that says in its place what the type is may never.
enum class TipoDeXml { SinNombrar, Nombrado };

/// Reads a part whole and tells `alLeer` of the bytes before they are looked at. No XML, a declaration of a
/// document type that the part may not have, elements that stand too deep or are too long: ErrorMotor.
void LeerXml(const ArchivoZip& archivo, const std::string& parte, OyenteXml& oyente,
             const std::function<void(std::size_t)>& alLeer = {}, TipoDeXml tipo = TipoDeXml::SinNombrar);

/// "1", "true" and "on".
bool EsVerdad(std::optional<std::string_view> valor);

/// A whole number without sign; nothing for anything else.
std::optional<std::size_t> EnteroEscrito(std::string_view texto);

} // namespace varo
