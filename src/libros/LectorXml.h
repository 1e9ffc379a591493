// Reads the XML of a part of a workbook as a stream of elements and texts.
#pragma once

#include "libros/ArchivoZip.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
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

struct AtributoXml {
    NombreXml nombre;
    std::string_view valor;
};

/// An element that opens. It lives no longer than the call that tells it.
class ElementoXml {
public:
    ElementoXml(NombreXml nombre, std::span<const AtributoXml> atributos)
        : nombre_{nombre}, atributos_{atributos} {}

    [[nodiscard]] const NombreXml& nombre() const { return nombre_; }
    [[nodiscard]] bool es(EspacioXml espacio, std::string_view nombre) const {
        return nombre_ == NombreXml{espacio, nombre};
    }
    [[nodiscard]] std::span<const AtributoXml> atributos() const { return atributos_; }
    /// Nothing where the element has none with that name.
    [[nodiscard]] std::optional<std::string_view> atributo(NombreXml buscado) const;
    /// One that has no vocabulary.
    [[nodiscard]] std::optional<std::string_view> atributo(std::string_view nombre) const {
        return atributo({EspacioXml::Ninguno, nombre});
    }

private:
    NombreXml nombre_;
    std::span<const AtributoXml> atributos_;
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
