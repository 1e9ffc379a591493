#include "apoyo/EscritorXlsx.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <variant>

namespace varo::prueba {
namespace {

const std::string declaracion = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)";
const std::string paquete = "http://schemas.openxmlformats.org/package/2006/relationships";
const std::string documento = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";
const std::string principal = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";

std::string Relacion(const std::string& id, const std::string& clase, const std::string& destino) {
    return "<Relationship Id=\"" + id + "\" Type=\"" + documento + "/" + clase + "\" Target=\"" + destino +
           "\"/>";
}

std::string Relaciones(const std::string& relaciones) {
    return declaracion + "<Relationships xmlns=\"" + paquete + "\">" + relaciones + "</Relationships>";
}

std::string Con(const std::string& elemento, const std::string& contenido) {
    return declaracion + "<" + elemento + " xmlns=\"" + principal + "\" xmlns:r=\"" + documento + "\">" +
           contenido + "</" + elemento + ">";
}

std::string Libro(const LibroXlsxDePrueba& libro) {
    std::string hojas;
    for (std::size_t i = 0; i < libro.hojas.size(); ++i) {
        const auto numero = std::to_string(i + 1);
        const auto& hoja = libro.hojas[i];
        hojas += "<sheet name=\"" + EnXml(hoja.nombre) + "\" sheetId=\"" + numero + "\"" +
                 (hoja.estado.empty() ? "" : " state=\"" + hoja.estado + "\"") + " r:id=\"rId" + numero +
                 "\"/>";
    }
    return Con("workbook",
               "<workbookPr " + libro.propiedades + "/><sheets>" + hojas + "</sheets>" +
                   (libro.nombres.empty() ? "" : "<definedNames>" + libro.nombres + "</definedNames>") +
                   (libro.calculo.empty() ? "" : "<calcPr " + libro.calculo + "/>"));
}

std::string RelacionesDelLibro(const LibroXlsxDePrueba& libro) {
    std::string relaciones;
    for (std::size_t i = 0; i < libro.hojas.size(); ++i) {
        const auto numero = std::to_string(i + 1);
        relaciones += Relacion("rId" + numero, libro.hojas[i].clase, "worksheets/sheet" + numero + ".xml");
    }
    if (!libro.textos.empty()) {
        relaciones += Relacion("textos", "sharedStrings", "/xl/sharedStrings.xml");
    }
    if (!libro.estilos.empty()) {
        relaciones += Relacion("estilos", "styles", "styles.xml");
    }
    return Relaciones(relaciones);
}

/// A number with a point that reads back to the same one.
std::string ConPunto(double numero) {
    return Reemplazar(ATextoCorto(numero), ",", ".");
}

/// A value as a cell; texts are added to the shared ones.
struct EnCelda {
    std::string& textos;
    int& cuantos;

    std::string operator()(Nulo) const { return {}; }
    std::string operator()(double numero) const { return "<c r=\"?\"><v>" + ConPunto(numero) + "</v></c>"; }
    std::string operator()(Fecha fecha) const {
        return "<c r=\"?\" s=\"1\"><v>" + ConPunto(fecha.serie) + "</v></c>";
    }
    std::string operator()(bool verdad) const {
        return std::string{"<c r=\"?\" t=\"b\"><v>"} + (verdad ? "1" : "0") + "</v></c>";
    }
    std::string operator()(const std::string& texto) const {
        textos += "<si><t xml:space=\"preserve\">" + EnXml(texto) + "</t></si>";
        return "<c r=\"?\" t=\"s\"><v>" + std::to_string(cuantos++) + "</v></c>";
    }
};

std::string LetrasDeColumna(std::size_t columna) {
    std::string letras;
    for (auto resto = columna + 1; resto > 0; resto = (resto - 1) / 26) {
        letras.insert(letras.begin(), static_cast<char>('A' + static_cast<int>((resto - 1) % 26)));
    }
    return letras;
}

} // namespace

std::string EnXml(const std::string& texto) {
    return Reemplazar(Reemplazar(Reemplazar(Reemplazar(texto, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"",
                      "&quot;");
}

std::vector<ParteZip> PartesDe(const LibroXlsxDePrueba& libro) {
    std::vector<ParteZip> partes{
        {"_rels/.rels", Relaciones(Relacion("uno", "officeDocument", "xl/workbook.xml"))},
        {"xl/workbook.xml", Libro(libro)},
        {"xl/_rels/workbook.xml.rels", RelacionesDelLibro(libro)}};
    if (!libro.textos.empty()) {
        partes.push_back({"xl/sharedStrings.xml", Con("sst", libro.textos)});
    }
    if (!libro.estilos.empty()) {
        partes.push_back({"xl/styles.xml", Con("styleSheet", libro.estilos)});
    }
    for (std::size_t i = 0; i < libro.hojas.size(); ++i) {
        const auto& hoja = libro.hojas[i];
        partes.push_back({"xl/worksheets/sheet" + std::to_string(i + 1) + ".xml",
                          Con(hoja.clase, "<sheetData>" + hoja.filas + "</sheetData>")});
    }
    return partes;
}

std::vector<std::byte> EscribirXlsx(const LibroXlsxDePrueba& libro) {
    return EscribirZip(PartesDe(libro));
}

std::vector<std::byte> EscribirXlsx(const std::vector<Hoja>& hojas) {
    LibroXlsxDePrueba libro;
    int textos = 0;
    libro.estilos = R"(<numFmts count="1"><numFmt numFmtId="164" formatCode="dd/mm/yyyy\ hh:mm"/></numFmts>)"
                    R"(<cellXfs count="2"><xf numFmtId="0"/><xf numFmtId="164"/></cellXfs>)";
    for (const auto& hoja : hojas) {
        std::string filas;
        for (std::size_t f = 0; f < hoja.celdas.size(); ++f) {
            const auto numero = std::to_string(f + 1);
            filas += "<row r=\"" + numero + "\">";
            for (std::size_t c = 0; c < hoja.celdas[f].size(); ++c) {
                filas += Reemplazar(std::visit(EnCelda{libro.textos, textos}, hoja.celdas[f][c]), "\"?\"",
                                    "\"" + LetrasDeColumna(c) + numero + "\"");
            }
            filas += "</row>";
        }
        libro.hojas.push_back({hoja.nombre, filas, "worksheet", hoja.oculta ? "hidden" : ""});
    }
    return EscribirXlsx(libro);
}

} // namespace varo::prueba
