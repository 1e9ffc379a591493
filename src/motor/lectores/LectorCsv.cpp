#include "motor/lectores/LectorCsv.h"

#include "basico/Texto.h"
#include "motor/lectores/Bytes.h"
#include "motor/lectores/CamposDeHoja.h"
#include "motor/lectores/FilasCsv.h"
#include "motor/lectores/OtrosFormatos.h"
#include "motor/lectores/SeparadorCsv.h"
#include "motor/lectores/TextosCsv.h"
#include "motor/lectores/TrazaCsv.h"
#include "motor/lectores/ValoresCsv.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace varo {
namespace {

/// What is larger is no plot, and would not fit the memory as a table.
constexpr std::size_t tamanoMaximo = std::size_t{128} * 1024 * 1024;

/// A name that stands between brackets in a query.
std::string NombreDeTabla(const std::string& nombre) {
    return Reemplazar(Reemplazar(nombre, "[", "("), "]", ")") + "$";
}

/// The second reading.
class LecturaDeTabla {
public:
    explicit LecturaDeTabla(TrazaDeTabla traza) : traza_{std::move(traza)} {
        tabla_.primerNumero = static_cast<int>(traza_.filaDeNombres) + 1;
    }

    Tabla leer(std::string_view texto, char separador, const Avance& avance) {
        FilasCsv filas{texto, separador};
        std::size_t leidos = 0;
        while (filas.siguiente()) {
            const auto fin = std::min(filas.celdas().size(), traza_.columnas);
            if (filas.numero() == traza_.filaDeNombres) {
                ponerCampos(filas.celdas(), fin);
            } else if (filas.numero() > traza_.filaDeNombres) {
                ponerFila(filas.celdas(), fin, filas.numero() - traza_.filaDeNombres - 1);
            }
            avance.paso(filas.leidos() - std::exchange(leidos, filas.leidos()));
        }
        return std::move(tabla_);
    }

private:
    [[nodiscard]] ValorDeCelda valor(std::string_view celda, std::size_t columna) const {
        return LeerValorCsv(celda, traza_.marcas[columna], traza_.diaAntesQueMes);
    }

    void ponerCampos(const std::vector<std::string_view>& celdas, std::size_t fin) {
        std::vector<Valor> cabecera(traza_.columnas - traza_.primeraColumna);
        for (auto i = traza_.primeraColumna; i < fin; ++i) {
            cabecera[i - traza_.primeraColumna] = valor(celdas[i], i);
        }
        tabla_.Fields = Coleccion<Campo>{CamposDeHoja(cabecera)};
    }

    void ponerFila(const std::vector<std::string_view>& celdas, std::size_t fin, std::size_t fila) {
        for (auto i = traza_.primeraColumna; i < fin; ++i) {
            if (TieneValor(celdas[i])) {
                tabla_.filas.poner(fila, i - traza_.primeraColumna, valor(celdas[i], i));
            }
        }
    }

    TrazaDeTabla traza_;
    Tabla tabla_;
};

/// Takes a first line like sep=; off, with which some programs tell their separator. Spreadsheets do not show
/// it, and count no row for it.
std::optional<char> SacarSeparadorDicho(std::string_view& texto) {
    constexpr std::string_view clave = "sep=";
    auto linea = texto.substr(0, texto.find_first_of("\r\n"));
    const auto largo = linea.size();
    while (linea.size() > clave.size() + 1 &&
           (linea.ends_with(' ') || linea.ends_with(linea[clave.size()]))) {
        linea.remove_suffix(1);
    }
    if (linea.size() > 2 && linea.starts_with('"') && linea.ends_with('"')) {
        linea = linea.substr(1, linea.size() - 2);
    }
    if (linea.size() != clave.size() + 1 || Minusculas(linea.substr(0, clave.size())) != clave) {
        return std::nullopt;
    }
    const char separador = linea.back();
    texto.remove_prefix(largo);
    texto.remove_prefix(texto.starts_with("\r\n") ? 2 : std::min<std::size_t>(texto.size(), 1));
    return separador;
}

char SeparadorHallado(std::string_view texto) {
    const auto separador = SeparadorDe(texto);
    if (!separador) {
        NoEsUnaTabla("en su primera fila ninguna coma, punto y coma o tabulador separa los nombres de las "
                     "columnas. Si encima de los nombres hay un título o comentarios, quítelos. Guárdela "
                     "desde la hoja de cálculo como CSV o como libro de Excel 97-2003 (.xls)");
    }
    return *separador;
}

/// Old field programs end a text with Ctrl-Z, and loggers fill their files up with nulls. In UTF-16 a null is
/// half a letter, and who reads its letters takes them off.
Bytes SinRellenoAlFinal(Bytes bytes) {
    const bool puedeSerUtf16 = bytes.size() < 2 || bytes[0] == std::byte{0} || bytes[1] == std::byte{0} ||
                               Lleva(bytes, 0, "\xFF\xFE") || Lleva(bytes, 0, "\xFE\xFF");
    while (!puedeSerUtf16 && !bytes.empty() &&
           (bytes.back() == std::byte{0} || bytes.back() == std::byte{0x1A})) {
        bytes = bytes.first(bytes.size() - 1);
    }
    return bytes;
}

Tabla TablaDe(Bytes todos, const Avance& avance) {
    const auto bytes = SinRellenoAlFinal(todos);
    if (bytes.size() > tamanoMaximo) {
        throw ErrorMotor{fallo::formatoNoReconocido,
                         "es demasiado grande para ser el inventario de una parcela"};
    }
    const auto letras = LeerLetras(bytes);
    if (!letras) {
        throw ErrorMotor{fallo::formatoNoReconocido, "no se reconoce su formato"};
    }
    auto texto = letras->texto();
    if (const auto ajeno = QueTextoEs(texto)) {
        throw ErrorMotor{fallo::formatoNoReconocido, *ajeno};
    }
    const auto dicho = SacarSeparadorDicho(texto);
    if (texto.find_first_not_of(" \t\v\f\r\n") == std::string_view::npos) {
        throw ErrorMotor{fallo::formatoNoReconocido, "es un archivo de texto y está en blanco"};
    }
    const char separador = dicho ? *dicho : SeparadorHallado(texto);
    avance.empezar(2 * texto.size());
    return LecturaDeTabla{Trazar(texto, separador, avance)}.leer(texto, separador, avance);
}

} // namespace

std::vector<Tabla> LeerCsv(std::span<const std::byte> bytes, const std::string& archivo,
                           const std::string& nombre, const Avance& avance) {
    try {
        std::vector<Tabla> tablas;
        tablas.push_back(TablaDe(bytes, avance));
        tablas.back().Name = NombreDeTabla(nombre);
        return tablas;
    } catch (const ErrorMotor& error) {
        throw ErrorMotor{error.numero(), "No se puede leer «" + archivo + "»: " + error.descripcion()};
    }
}

} // namespace varo
