#include "libros/xlsx/LibroXlsx.h"

#include "basico/ErrorEjecucion.h"
#include "libros/ClaseDeComprimido.h"
#include "libros/LectorXml.h"
#include "libros/Referencias.h"
#include "libros/xlsx/RelacionesXlsx.h"
#include "libros/xlsx/TextoXlsx.h"
#include "motor/lectores/FechasBiff.h"

#include <algorithm>
#include <map>
#include <utility>

namespace varo {
namespace {

/// Each one takes more room here than in the file.
constexpr std::size_t masHojas = 40'000;

enum class SitioDeLibro { Documento, Libro, Hojas, Nombres, Nombre, Nada };

/// The workbook itself.
class LectorDeLibroXlsx : public OyenteConSitios<SitioDeLibro> {
public:
    LectorDeLibroXlsx(LibroXlsx& libro, const std::vector<RelacionXlsx>& relaciones) : libro_{libro} {
        for (const auto& relacion : relaciones) {
            relaciones_.emplace(relacion.id, &relacion);
        }
    }

    [[nodiscard]] bool esLibro() const { return esLibro_; }

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (elemento.nombre().espacio != EspacioXml::Hoja) {
            return SitioXml::Nada;
        }
        const auto nombre = elemento.nombre().nombre;
        if (donde == SitioXml::Documento && nombre == "workbook") {
            esLibro_ = true;
            return SitioXml::Libro;
        }
        if (donde == SitioXml::Libro) {
            return enElLibro(nombre, elemento);
        }
        if (donde == SitioXml::Hojas && nombre == "sheet") {
            anadirHoja(elemento);
        }
        if (donde == SitioXml::Nombres && nombre == "definedName") {
            nombre_ = elemento.atributo("name").value_or("");
            // Names of one sheet, and those that programs make for themselves, are none of the workbook.
            const bool deTodos = !elemento.atributo("localSheetId") && !nombre_.starts_with("_xlnm.");
            formula_.clear();
            return deTodos ? SitioXml::Nombre : SitioXml::Nada;
        }
        return SitioXml::Nada;
    }

    void escribir(SitioXml donde, std::string_view trozo) override {
        if (donde == SitioXml::Nombre) {
            formula_ += trozo;
        }
    }

    void salir(SitioXml dejado) override {
        const auto zona = dejado == SitioXml::Nombre ? ZonaDeXlsx(formula_) : std::nullopt;
        if (zona) {
            libro_.nombres.push_back({nombre_, *zona});
        }
    }

private:
    SitioXml enElLibro(std::string_view nombre, const ElementoXml& elemento) {
        if (nombre == "workbookPr") {
            libro_.calendario1904 = EsVerdad(elemento.atributo("date1904"));
        } else if (nombre == "calcPr") {
            libro_.porCalcular = EsVerdad(elemento.atributo("fullCalcOnLoad"));
        }
        return nombre == "sheets"         ? SitioXml::Hojas
               : nombre == "definedNames" ? SitioXml::Nombres
                                          : SitioXml::Nada;
    }

    void anadirHoja(const ElementoXml& hoja) {
        if (libro_.hojas.size() == masHojas) {
            ArchivoDanado("tiene más hojas que ningún libro");
        }
        LibroXlsx::Hoja nueva{std::string{hoja.atributo("name").value_or("")}, {}, true};
        const auto relacion =
            relaciones_.find(hoja.atributo({EspacioXml::Relacion, "id"}).value_or(std::string_view{}));
        if (relacion != relaciones_.end()) {
            nueva.parte = relacion->second->parte;
            nueva.deCalculo = relacion->second->clase == "worksheet";
        }
        libro_.hojas.push_back(std::move(nueva));
    }

    LibroXlsx& libro_;
    std::map<std::string_view, const RelacionXlsx*> relaciones_;
    bool esLibro_ = false;
    std::string nombre_;
    std::string formula_;
};

enum class SitioDeEstilos { Documento, Estilos, Formatos, DeCeldas, Nada };

class LectorDeEstilos : public OyenteConSitios<SitioDeEstilos> {
public:
    explicit LectorDeEstilos(std::vector<bool>& sonFechas) : sonFechas_{sonFechas} {}

    /// Once all are in: the formats of the workbook may stand behind the styles.
    void acabar() {
        for (const auto formato : deCeldas_) {
            sonFechas_.push_back(esFecha(formato));
        }
    }

protected:
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (elemento.nombre().espacio != EspacioXml::Hoja) {
            return SitioXml::Nada;
        }
        const auto nombre = elemento.nombre().nombre;
        const auto numero = EnteroEscrito(elemento.atributo("numFmtId").value_or("0")).value_or(0);
        if (donde == SitioXml::Documento && nombre == "styleSheet") {
            return SitioXml::Estilos;
        }
        if (donde == SitioXml::Estilos) {
            return nombre == "numFmts"   ? SitioXml::Formatos
                   : nombre == "cellXfs" ? SitioXml::DeCeldas
                                         : SitioXml::Nada;
        }
        if (donde == SitioXml::Formatos && nombre == "numFmt") {
            propios_[numero] = EsFormatoDeFecha(elemento.atributo("formatCode").value_or(""));
        }
        if (donde == SitioXml::DeCeldas && nombre == "xf") {
            deCeldas_.push_back(numero);
        }
        return SitioXml::Nada;
    }

private:
    /// A format that the workbook spells out is what its text says, a built-in number too. Number 0 is always
    /// the general format.
    [[nodiscard]] bool esFecha(std::size_t formato) const {
        constexpr std::size_t tope = 1000; // no built-in format has such a number
        const auto propio = propios_.find(formato);
        return formato != 0 &&
               (propio != propios_.end() ? propio->second
                                         : EsFormatoDeFecha(static_cast<int>(std::min(formato, tope))));
    }

    std::vector<bool>& sonFechas_;
    std::map<std::size_t, bool> propios_;
    std::vector<std::size_t> deCeldas_;
};

enum class SitioDeTextos { Documento, Textos, Texto, Tramo, Letras, Nada };

class LectorDeTextos : public OyenteConSitios<SitioDeTextos> {
public:
    explicit LectorDeTextos(ListaDeTextos& textos) : textos_{textos} {}

protected:
    /// What tells how a text is pronounced is no part of it.
    SitioXml entrar(SitioXml donde, const ElementoXml& elemento) override {
        if (donde == SitioXml::Documento && elemento.es(EspacioXml::Hoja, "sst")) {
            return SitioXml::Textos;
        }
        if (donde == SitioXml::Textos && elemento.es(EspacioXml::Hoja, "si")) {
            texto_.empezar();
            return SitioXml::Texto;
        }
        if (donde == SitioXml::Texto && elemento.es(EspacioXml::Hoja, "r")) {
            return SitioXml::Tramo;
        }
        if ((donde == SitioXml::Texto || donde == SitioXml::Tramo) && elemento.es(EspacioXml::Hoja, "t")) {
            texto_.abrirTramo(elemento);
            return SitioXml::Letras;
        }
        return SitioXml::Nada;
    }

    void escribir(SitioXml donde, std::string_view trozo) override {
        if (donde == SitioXml::Letras) {
            texto_.escribir(trozo);
        }
    }

    void salir(SitioXml dejado) override {
        if (dejado == SitioXml::Texto) {
            textos_.anadir(texto_.texto());
        }
    }

private:
    ListaDeTextos& textos_;
    TextoXlsx texto_;
};

const RelacionXlsx* RelacionDeClase(const std::vector<RelacionXlsx>& relaciones, std::string_view clase) {
    const auto hallada = std::ranges::find(relaciones, clase, &RelacionXlsx::clase);
    return hallada == relaciones.end() ? nullptr : &*hallada;
}

} // namespace

std::optional<std::string> PartePrincipal(const ArchivoZip& archivo) {
    const auto relaciones = RelacionesDe(archivo, {});
    const auto* const documento = RelacionDeClase(relaciones, "officeDocument");
    return documento == nullptr ? std::nullopt : std::optional{documento->parte};
}

LibroXlsx LeerLibroXlsx(const ArchivoZip& archivo, const std::string& parte) {
    LibroXlsx libro;
    const auto relaciones = RelacionesDe(archivo, parte);
    LectorDeLibroXlsx lector{libro, relaciones};
    LeerXml(archivo, parte, lector);
    if (!lector.esLibro()) {
        throw ErrorMotor{fallo::formatoNoReconocido, QueComprimidoEs(archivo)};
    }
    if (const auto* const textos = RelacionDeClase(relaciones, "sharedStrings")) {
        LectorDeTextos deTextos{libro.textos};
        LeerXml(archivo, textos->parte, deTextos);
    }
    if (const auto* const estilos = RelacionDeClase(relaciones, "styles")) {
        LectorDeEstilos deEstilos{libro.estiloEsFecha};
        LeerXml(archivo, estilos->parte, deEstilos);
        deEstilos.acabar();
    }
    return libro;
}

} // namespace varo
