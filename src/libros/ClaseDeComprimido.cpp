#include "libros/ClaseDeComprimido.h"

#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace varo {
namespace {

using namespace std::string_view_literals;

/// A kind of documents, by a part that all of them have or by the class that they declare.
struct ClaseAjena {
    std::string_view marca;
    std::string_view que;
};

constexpr auto deTexto = "un documento de texto (.odt)"sv;
constexpr auto deImpress = "una presentación (.odp)"sv;

constexpr std::array<ClaseAjena, 6> declaradas{
    {{"application/vnd.oasis.opendocument.text"sv, deTexto},
     {"application/vnd.oasis.opendocument.presentation"sv, deImpress},
     {"application/vnd.oasis.opendocument.graphics"sv, "un dibujo (.odg)"sv},
     {"application/vnd.oasis.opendocument."sv, "un documento de OpenDocument sin hojas de cálculo"sv},
     {"application/vnd.sun.xml.calc"sv, "una hoja de cálculo de OpenOffice 1 (.sxc)"sv},
     {"application/epub+zip"sv, "un libro electrónico (.epub)"sv}}};

constexpr std::array<ClaseAjena, 5> conParte{
    {{"xl/workbook.bin"sv, "un libro binario de Excel (.xlsb)"sv},
     {"word/document.xml"sv, "un documento de Word (.docx)"sv},
     {"ppt/presentation.xml"sv, "una presentación de PowerPoint (.pptx)"sv},
     {"Index/Document.iwa"sv, "un documento de Numbers (.numbers)"sv},
     {"doc.kml"sv, "un mapa de Google Earth (.kmz)"sv}}};

const auto* const consejo = ": guarde la hoja de cálculo como .xlsx, .ods o libro de Excel 97-2003 (.xls)";

/// A Mac puts a file of its own beside each one, with the same ending.
bool EsDeDatos(const std::string& nombre) {
    const auto pequeno = Minusculas(nombre);
    return !pequeno.starts_with("__macosx/") &&
           std::ranges::any_of(std::array{".xls"sv, ".xlsx"sv, ".ods"sv, ".csv"sv, ".mdb"sv, ".accdb"sv},
                               [&](std::string_view extension) { return pequeno.ends_with(extension); });
}

} // namespace

std::string ClaseDeclarada(const ArchivoZip& archivo) {
    constexpr std::size_t maximo = 200;
    return archivo.tiene("mimetype") ? Recortar(archivo.leerCorta("mimetype", maximo)) : std::string{};
}

std::string QueComprimidoEs(const ArchivoZip& archivo) {
    const auto declarada = ClaseDeclarada(archivo);
    for (const auto& clase : declaradas) {
        if (declarada.starts_with(clase.marca)) {
            return "es " + std::string{clase.que} + consejo;
        }
    }
    for (const auto& clase : conParte) {
        if (archivo.tiene(clase.marca)) {
            return "es " + std::string{clase.que} + consejo;
        }
    }
    const auto nombres = archivo.nombres();
    const auto datos = std::ranges::find_if(nombres, EsDeDatos);
    return "es un archivo comprimido (.zip)" +
           (datos == nombres.end() ? std::string{", y no lleva dentro ninguna hoja de cálculo"}
                                   : ": extraiga " + Cita(*datos) + ", que va dentro, y ábralo");
}

} // namespace varo
