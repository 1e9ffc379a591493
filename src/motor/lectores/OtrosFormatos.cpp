#include "motor/lectores/OtrosFormatos.h"

#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace varo {
namespace {

using namespace std::string_view_literals;

constexpr auto comoLibro = "guárdelo desde la hoja de cálculo como libro de Excel 97-2003 (.xls)"sv;
constexpr auto comoTabla =
    "copie la tabla a una hoja de cálculo y guárdela como libro de Excel 97-2003 (.xls)"sv;
constexpr auto comoCsv = "guarde la tabla desde su programa como CSV"sv;
constexpr auto desdeR = "escriba la tabla en R con «write.csv2» y abra ese archivo"sv;
constexpr auto desdeUnSig = "guarde su tabla de atributos desde el SIG como CSV"sv;
constexpr auto descomprimir = "descomprímalo y abra el archivo que lleva dentro"sv;

/// How the files of a kind tell themselves, and what to do with them.
struct FormatoAjeno {
    std::size_t lugar; ///< of the mark
    std::string_view marca;
    std::string_view que;
    std::string_view remedio;
};

constexpr auto imagen = "una imagen"sv;
constexpr auto deR = "un archivo de datos de R"sv;

/// The first one that fits counts.
constexpr std::array deBytes{
    FormatoAjeno{38, "application/vnd.oasis.opendocument.text"sv, "un documento de texto (.odt)"sv,
                 comoTabla},
    FormatoAjeno{38, "application/vnd.oasis.opendocument.presentation"sv, "una presentación (.odp)"sv,
                 comoTabla},
    FormatoAjeno{0, "PK\3\4"sv, "un archivo comprimido, como los .xlsx y los .ods"sv, comoLibro},
    FormatoAjeno{0, "PK\5\6"sv, "un archivo comprimido, como los .xlsx y los .ods"sv, comoLibro},
    FormatoAjeno{0, "\x1F\x8B\x08"sv, "un archivo comprimido (.gz), como los datos de R (.rda, .rds)"sv,
                 "si es de R, escriba la tabla con «write.csv2»; si no, descomprímalo y abra el archivo que "
                 "lleva dentro"sv},
    FormatoAjeno{0, "BZh"sv, "un archivo comprimido (.bz2)"sv, descomprimir},
    FormatoAjeno{0, "\xFD\x37zXZ\0"sv, "un archivo comprimido (.xz)"sv, descomprimir},
    FormatoAjeno{0, "7z\xBC\xAF\x27\x1C"sv, "un archivo comprimido (.7z)"sv, descomprimir},
    FormatoAjeno{0, "Rar!\x1A\x07"sv, "un archivo comprimido (.rar)"sv, descomprimir},
    FormatoAjeno{257, "ustar\0"sv, "un archivo de varios (.tar)"sv, descomprimir},
    FormatoAjeno{257, "ustar  \0"sv, "un archivo de varios (.tar)"sv, descomprimir},
    FormatoAjeno{0, "%PDF-"sv, "un documento PDF"sv, comoTabla},
    FormatoAjeno{0, "\x89PNG\r\n\x1A\n"sv, imagen, comoTabla},
    FormatoAjeno{0, "\xFF\xD8\xFF"sv, imagen, comoTabla},
    FormatoAjeno{0, "GIF8"sv, imagen, comoTabla},
    FormatoAjeno{0, "II*\0"sv, imagen, comoTabla},
    FormatoAjeno{0, "MM\0*"sv, imagen, comoTabla},
    FormatoAjeno{8, "WEBP"sv, imagen, comoTabla},
    FormatoAjeno{6, "\0\0\0\0"sv, imagen, comoTabla}, // of a bitmap, see EsDelFormato
    FormatoAjeno{0, "SQLite format 3\0"sv, "una base de datos de SQLite, como las capas .gpkg de un SIG"sv,
                 comoCsv},
    FormatoAjeno{0, "\0\0\x27\x0A\0\0\0\0"sv, "una capa de un SIG (.shp)"sv, desdeUnSig},
    FormatoAjeno{0, "RDX2\n"sv, deR, desdeR},
    FormatoAjeno{0, "RDX3\n"sv, deR, desdeR},
    FormatoAjeno{0, "RDA2\n"sv, deR, desdeR},
    FormatoAjeno{0, "RDA3\n"sv, deR, desdeR},
    FormatoAjeno{0, "X\n\0\0\0"sv, deR, desdeR},
    FormatoAjeno{0, "$FL2"sv, "un archivo de datos de SPSS (.sav)"sv, comoCsv},
    FormatoAjeno{0, "$FL3"sv, "un archivo de datos de SPSS (.sav)"sv, comoCsv},
    FormatoAjeno{0, "<stata_dta>"sv, "un archivo de datos de Stata (.dta)"sv, comoCsv},
    FormatoAjeno{12, "\xC2\xEA\x81\x60\xB3\x14\x11\xCF"sv, "un archivo de datos de SAS (.sas7bdat)"sv,
                 comoCsv},
    FormatoAjeno{0, "PAR1"sv, "una tabla de Parquet (.parquet)"sv, comoCsv},
    FormatoAjeno{0, "ARROW1"sv, "una tabla de Arrow (.feather)"sv, comoCsv},
    FormatoAjeno{0, "\x89HDF\r\n\x1A\n"sv, "un archivo de datos HDF5"sv, comoCsv}};

// In small letters.
constexpr std::array deTextos{
    FormatoAjeno{0, "{\\rtf"sv, "un documento de texto (.rtf)"sv, comoTabla},
    FormatoAjeno{0, "<?xml"sv, "un archivo de texto en XML, como los de «Hoja de cálculo XML 2003»"sv,
                 comoLibro},
    FormatoAjeno{0, "<"sv, "una página web (HTML), aunque se llame de otra manera"sv, comoLibro},
    FormatoAjeno{0, "%!ps"sv, "un documento PostScript"sv, comoTabla}};

std::string Dicho(std::string_view que, std::string_view remedio) {
    return "es " + std::string{que} + "; " + std::string{remedio};
}

bool EsDelFormato(Bytes bytes, const FormatoAjeno& formato) {
    const bool deMapaDeBits = formato.lugar == 6;
    const bool deWebp = formato.marca == "WEBP";
    return Lleva(bytes, formato.lugar, formato.marca) && (!deMapaDeBits || Lleva(bytes, 0, "BM")) &&
           (!deWebp || Lleva(bytes, 0, "RIFF")) &&
           // A column may have the name that a table of Parquet begins and ends with.
           (formato.marca != "PAR1" || Lleva(bytes, bytes.size() - formato.marca.size(), formato.marca));
}

/// A table of dBase: a version, a date, the lengths of its header and of a row, and two bytes that are null.
bool EsDbf(Bytes bytes) {
    constexpr std::string_view versiones = "\x03\x04\x05\x30\x31\x32\x83\x8B\x8E\xF5";
    constexpr std::size_t cabecera = 32;
    if (bytes.size() <= cabecera ||
        versiones.find(static_cast<char>(LeerU8(bytes, 0))) == std::string_view::npos) {
        return false;
    }
    const auto mes = LeerU8(bytes, 2);
    const auto dia = LeerU8(bytes, 3);
    const auto largo = LeerU16(bytes, 8);
    return mes >= 1 && mes <= 12 && dia >= 1 && dia <= 31 && largo > cabecera && LeerU16(bytes, 10) > 0 &&
           LeerU16(bytes, 12) == 0;
}

/// A document of Word inside its ZIP archive tells itself by the names of its parts.
bool EsDocx(Bytes bytes) {
    constexpr std::string_view parte = "word/document.xml";
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the letters are the bytes
    const std::string_view todo{reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    return Lleva(bytes, 0, "PK\3\4") && todo.find(parte) != std::string_view::npos;
}

bool EsJson(std::string_view texto) {
    constexpr std::string_view blancos = " \t\r\n";
    if (!texto.starts_with('{') && !texto.starts_with('[')) {
        return false;
    }
    const auto lugar = texto.find_first_not_of(blancos, 1);
    const auto sigue = lugar == std::string_view::npos ? '\0' : texto[lugar];
    return texto[0] == '{' ? sigue == '"' || sigue == '}' : sigue == '{' || sigue == '[' || sigue == '"';
}

} // namespace

std::optional<std::string> QueArchivoEs(Bytes bytes) {
    if (EsDocx(bytes)) {
        return Dicho("un documento de Word (.docx)", comoTabla);
    }
    if (EsDbf(bytes)) {
        return Dicho("una tabla de dBase (.dbf), como las de las capas de un SIG", comoLibro);
    }
    const auto* const hallado = std::ranges::find_if(
        deBytes, [bytes](const FormatoAjeno& formato) { return EsDelFormato(bytes, formato); });
    return hallado == deBytes.end() ? std::nullopt : std::optional{Dicho(hallado->que, hallado->remedio)};
}

std::optional<std::string> QueTextoEs(std::string_view texto) {
    constexpr std::size_t masLarga = 5;
    texto.remove_prefix(std::min(texto.find_first_not_of(" \t\r\n"), texto.size()));
    if (EsJson(texto)) {
        return Dicho("un archivo de texto en JSON, como las capas .geojson de un SIG", comoCsv);
    }
    const auto principio = Minusculas(texto.substr(0, masLarga));
    const auto* const hallado = std::ranges::find_if(
        deTextos, [&principio](const FormatoAjeno& formato) { return principio.starts_with(formato.marca); });
    return hallado == deTextos.end() ? std::nullopt : std::optional{Dicho(hallado->que, hallado->remedio)};
}

} // namespace varo
