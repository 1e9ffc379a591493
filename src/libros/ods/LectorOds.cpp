#include "libros/ods/LectorOds.h"

#include "libros/ClaseDeComprimido.h"
#include "libros/LectorXml.h"
#include "libros/ods/HojasOds.h"
#include "motor/lectores/TablasDeLibro.h"

#include <utility>

namespace varo {
namespace {

constexpr const char* contenido = "content.xml";
constexpr const char* manifiesto = "META-INF/manifest.xml";

enum class SitioDeManifiesto { Documento, Manifiesto, Parte, Nada };

/// Looks for parts that are encrypted.
class LectorDeManifiesto : public OyenteConSitios<SitioDeManifiesto> {
public:
    bool cifrado = false;

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (donde == SitioXml::Documento && elemento.es(EspacioXml::Manifiesto, "manifest")) {
            return SitioXml::Manifiesto;
        }
        if (donde == SitioXml::Manifiesto && elemento.es(EspacioXml::Manifiesto, "file-entry")) {
            return SitioXml::Parte;
        }
        cifrado =
            cifrado || (donde == SitioXml::Parte && elemento.es(EspacioXml::Manifiesto, "encryption-data"));
        return SitioXml::Nada;
    }
};

void ExigirSinCifrar(const ArchivoZip& comprimido) {
    LectorDeManifiesto lector;
    if (comprimido.tiene(manifiesto)) {
        LeerXml(comprimido, manifiesto, lector, {}, TipoDeXml::Nombrado); // OpenOffice.org 2 names it
    }
    if (lector.cifrado || comprimido.tiene("encrypted-package")) {
        throw ErrorMotor{fallo::archivoCifrado,
                         "es un libro cifrado (.ods con contraseña): ábralo con ella en "
                         "la hoja de cálculo y guárdelo sin contraseña"};
    }
}

} // namespace

bool EsOds(const ArchivoZip& comprimido) {
    const auto clase = ClaseDeclarada(comprimido);
    return clase.starts_with("application/vnd.oasis.opendocument.spreadsheet") ||
           (clase.empty() && comprimido.tiene(contenido) && comprimido.tiene(manifiesto));
}

std::vector<Tabla> LeerOds(const ArchivoZip& comprimido, const std::string& archivo, const Avance& avance) {
    ExigirSinCifrar(comprimido);
    avance.empezar(comprimido.tamano(contenido));
    LimitesDeLectura limites{0}; // grows with what is there, whatever the archive says
    auto libro = LeerHojasOds(comprimido, limites, avance);
    TablasDeLibro tablas{archivo, std::move(libro.nombres), limites};
    for (auto& leida : libro.hojas) {
        tablas.anadirHoja(leida.nombre, [&] {
            if (leida.defecto) {
                throw ErrorMotor{*leida.defecto};
            }
            return std::move(leida.hoja);
        });
    }
    return tablas.acabar();
}

} // namespace varo
