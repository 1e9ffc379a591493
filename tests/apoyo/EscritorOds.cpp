#include "apoyo/EscritorOds.h"

#include "apoyo/EscritorXlsx.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <chrono>
#include <cmath>
#include <variant>

namespace varo::prueba {
namespace {

const std::string clase = "application/vnd.oasis.opendocument.spreadsheet";
const std::string urn = "urn:oasis:names:tc:opendocument:xmlns:";

std::string DosCifras(unsigned numero) {
    return (numero < 10 ? "0" : "") + std::to_string(numero);
}

/// Whole seconds are enough.
std::string FechaIso(double serie) {
    using namespace std::chrono;
    const double dia = std::floor(serie);
    const year_month_day fecha{sys_days{1899y / December / 30} + days{static_cast<int>(dia)}};
    const auto segundos = static_cast<unsigned>(std::lround((serie - dia) * 86400));
    return std::to_string(static_cast<int>(fecha.year())) + "-" +
           DosCifras(static_cast<unsigned>(fecha.month())) + "-" +
           DosCifras(static_cast<unsigned>(fecha.day())) + "T" + DosCifras(segundos / 3600) + ":" +
           DosCifras(segundos / 60 % 60) + ":" + DosCifras(segundos % 60);
}

struct EnCeldaOds {
    std::string operator()(Nulo) const { return "<table:table-cell/>"; }
    std::string operator()(double numero) const {
        return R"(<table:table-cell office:value-type="float" office:value=")" +
               Reemplazar(ATextoCorto(numero), ",", ".") + "\"/>";
    }
    std::string operator()(Fecha fecha) const {
        return R"(<table:table-cell office:value-type="date" office:date-value=")" + FechaIso(fecha.serie) +
               "\"/>";
    }
    std::string operator()(bool verdad) const {
        return std::string{R"(<table:table-cell office:value-type="boolean" office:boolean-value=")"} +
               (verdad ? "true" : "false") + "\"/>";
    }
    std::string operator()(const std::string& texto) const {
        const auto blancos = Reemplazar(EnXml(texto), " ", "<text:s/>");
        return R"(<table:table-cell office:value-type="string"><text:p>)" +
               Reemplazar(blancos, "\n", "</text:p><text:p>") + "</text:p></table:table-cell>";
    }
};

} // namespace

std::vector<ParteZip> PartesDeOds(const std::string& tablas) {
    const std::string declaracion = R"(<?xml version="1.0" encoding="UTF-8"?>)";
    return {
        {"mimetype", clase},
        {"content.xml", declaracion + "<office:document-content xmlns:office=\"" + urn +
                            "office:1.0\" xmlns:table=\"" + urn + "table:1.0\" xmlns:text=\"" + urn +
                            "text:1.0\" xmlns:calcext=\"urn:org:documentfoundation:names:experimental:calc:"
                            "xmlns:calcext:1.0\"><office:body><office:spreadsheet>" +
                            tablas + "</office:spreadsheet></office:body></office:document-content>"},
        {"META-INF/manifest.xml", declaracion + "<manifest:manifest xmlns:manifest=\"" + urn +
                                      "manifest:1.0\"><manifest:file-entry manifest:full-path=\"/\" "
                                      "manifest:media-type=\"" +
                                      clase + "\"/></manifest:manifest>"}};
}

std::vector<std::byte> EscribirOds(const std::string& tablas) {
    return EscribirZip(PartesDeOds(tablas));
}

std::vector<std::byte> EscribirOds(const std::vector<Hoja>& hojas) {
    std::string tablas;
    for (const auto& hoja : hojas) {
        tablas += "<table:table table:name=\"" + EnXml(hoja.nombre) + "\">";
        for (const auto& fila : hoja.celdas) {
            tablas += "<table:table-row>";
            for (const auto& celda : fila) {
                tablas += std::visit(EnCeldaOds{}, celda);
            }
            tablas += "</table:table-row>";
        }
        tablas += "</table:table>";
    }
    return EscribirOds(tablas);
}

} // namespace varo::prueba
