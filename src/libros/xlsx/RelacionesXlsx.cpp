#include "libros/xlsx/RelacionesXlsx.h"

#include "libros/LectorXml.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace varo {
namespace {

/// Each one takes more room here than in the file.
constexpr std::size_t masRelaciones = 100'000;

enum class SitioDeRelacion { Documento, Relaciones, Relacion, Nada };

class LectorDeRelaciones : public OyenteConSitios<SitioDeRelacion> {
public:
    explicit LectorDeRelaciones(std::string_view desde) : desde_{desde} {}

    std::vector<RelacionXlsx> leidas;

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (donde == SitioXml::Documento && elemento.es(EspacioXml::Paquete, "Relationships")) {
            return SitioXml::Relaciones;
        }
        if (donde == SitioXml::Relaciones && elemento.es(EspacioXml::Paquete, "Relationship")) {
            anadir(elemento);
        }
        return SitioXml::Nada;
    }

private:
    void anadir(const ElementoXml& relacion) {
        if (relacion.atributo("TargetMode") == "External") {
            return;
        }
        if (leidas.size() == masRelaciones) {
            ArchivoDanado("tiene más partes que ningún libro");
        }
        const auto clase = relacion.atributo("Type").value_or("");
        leidas.push_back({std::string{relacion.atributo("Id").value_or("")},
                          std::string{clase.substr(clase.rfind('/') + 1)},
                          ParteHacia(desde_, relacion.atributo("Target").value_or(""))});
    }

    std::string_view desde_;
};

} // namespace

std::string ParteHacia(std::string_view desde, std::string_view destino) {
    std::string ruta{destino};
    std::ranges::replace(ruta, '\\', '/');
    if (!ruta.starts_with('/')) {
        ruta.insert(0, desde.substr(0, desde.rfind('/') + 1));
    }
    std::vector<std::string_view> tramos;
    std::string_view queda = ruta;
    while (!queda.empty()) {
        const auto tramo = queda.substr(0, queda.find('/'));
        queda.remove_prefix(std::min(tramo.size() + 1, queda.size()));
        if (tramo == ".." && !tramos.empty()) {
            tramos.pop_back();
        } else if (!tramo.empty() && tramo != "." && tramo != "..") {
            tramos.push_back(tramo);
        }
    }
    std::string parte;
    for (const auto tramo : tramos) {
        parte += (parte.empty() ? "" : "/") + std::string{tramo};
    }
    return parte;
}

std::vector<RelacionXlsx> RelacionesDe(const ArchivoZip& archivo, const std::string& parte) {
    const auto nombre = parte.rfind('/') + 1;
    const auto relaciones = parte.substr(0, nombre) + "_rels/" + parte.substr(nombre) + ".rels";
    if (!archivo.tiene(relaciones)) {
        return {};
    }
    LectorDeRelaciones lector{parte};
    LeerXml(archivo, relaciones, lector);
    return std::move(lector.leidas);
}

} // namespace varo
