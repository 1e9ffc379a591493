#include "motor/lectores/ApoyoLectores.h"

#include "apoyo/Lugares.h"
#include "motor/TablasDePrueba.h"
#include "motor/lectores/LectorCsv.h"
#include "motor/lectores/LectorMdb.h"
#include "motor/lectores/LectorXls.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace varo::prueba {
namespace {

std::string Corto(double numero) {
    std::array<char, 40> letras{};
    const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), numero).ptr;
    return {letras.data(), fin};
}

template <class Elementos, class Texto>
std::string Unidos(const Elementos& elementos, Texto texto) {
    std::string linea;
    for (const auto& elemento : elementos) {
        linea += (linea.empty() ? "" : " | ") + texto(elemento);
    }
    return linea;
}

std::filesystem::path CarpetaDeLibros() {
    return DatosDePrueba() / "datos" / "libros";
}

std::vector<std::filesystem::path> ArchivosDe(const std::filesystem::path& carpeta) {
    std::vector<std::filesystem::path> archivos;
    for (const auto& entrada : std::filesystem::directory_iterator{carpeta}) {
        archivos.push_back(entrada.path());
    }
    std::sort(archivos.begin(), archivos.end());
    return archivos;
}

/// No cell stands outside of the table.
void EsperarEntera(const Tabla& tabla) {
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        const auto celdas = tabla.filas[fila];
        EXPECT_TRUE(celdas.celdas() == 0 || celdas.ultima().columna < tabla.Fields.Count());
    }
}

/// True when the tables of the file are read, and then they are whole; a fault tells its name.
template <class Lectura>
bool EnterasOError(const std::string& archivo, Lectura leer) {
    try {
        for (const auto& tabla : leer()) {
            EsperarEntera(tabla);
        }
        return true;
    } catch (const ErrorMotor& error) {
        EXPECT_NE(std::string::npos, error.descripcion().find("«" + archivo + "»")) << error.what();
        return false;
    }
}

} // namespace

std::vector<std::byte> BytesDe(const std::filesystem::path& archivo) {
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        throw std::runtime_error{"falta " + archivo.string()};
    }
    std::vector<std::byte> bytes;
    std::transform(std::istreambuf_iterator<char>{entrada}, {}, std::back_inserter(bytes),
                   [](char letra) { return static_cast<std::byte>(letra); });
    return bytes;
}

std::vector<std::byte> BytesDeLibro(const std::string& nombre) {
    return BytesDe(CarpetaDeLibros() / nombre);
}

std::vector<std::filesystem::path> LibrosPropios() {
    return ArchivosDe(CarpetaDeLibros());
}

std::vector<std::filesystem::path> Muestras(const std::string& carpeta) {
    const auto lugar = AlLado() / "muestras" / carpeta;
    return std::filesystem::is_directory(lugar) ? ArchivosDe(lugar) : std::vector<std::filesystem::path>{};
}

std::string Escrito(const Valor& valor) {
    if (const auto* numero = std::get_if<double>(&valor)) {
        return Corto(*numero);
    }
    if (const auto* texto = std::get_if<std::string>(&valor)) {
        return "'" + *texto + "'";
    }
    if (const auto* fecha = std::get_if<Fecha>(&valor)) {
        return "#" + Corto(fecha->serie);
    }
    if (const auto* verdad = std::get_if<bool>(&valor)) {
        return *verdad ? "V" : "F";
    }
    return "-";
}

std::vector<std::string> Lineas(const Tabla& tabla) {
    std::vector<std::string> lineas{"[" + tabla.Name + "]",
                                    Unidos(tabla.Fields, [](const Campo& campo) { return campo.Name; })};
    for (const auto& fila : FilasEnteras(tabla)) {
        lineas.push_back(Unidos(fila, Escrito));
    }
    return lineas;
}

std::vector<std::string> Lineas(const std::vector<Tabla>& tablas) {
    std::vector<std::string> lineas;
    for (const auto& tabla : tablas) {
        auto suyas = Lineas(tabla);
        std::move(suyas.begin(), suyas.end(), std::back_inserter(lineas));
    }
    return lineas;
}

std::vector<std::byte> Mutado(std::vector<std::byte> archivo, std::mt19937& azar) {
    const std::size_t cuantos = 1 + azar() % 6;
    for (std::size_t i = 0; i < cuantos; ++i) {
        auto& byte = archivo[azar() % archivo.size()];
        switch (azar() % 4) {
        case 0:
            byte = static_cast<std::byte>(azar());
            break;
        case 1:
            byte = std::byte{0xFF};
            break;
        case 2:
            byte = std::byte{0};
            break;
        default:
            byte ^= static_cast<std::byte>(1U << azar() % 8);
        }
    }
    return archivo;
}

bool TablasEnterasOError(std::span<const std::byte> bytes) {
    return EnterasOError("mutado.xls", [bytes] { return LeerXls(bytes, "mutado.xls"); });
}

bool TextoEnteroOError(std::span<const std::byte> bytes) {
    return EnterasOError("mutado.csv", [bytes] { return LeerCsv(bytes, "mutado.csv", "mutado"); });
}

TablasDeBase BaseEnteraOError(std::span<const std::byte> bytes) {
    TablasDeBase cuenta;
    try {
        for (const auto& tabla : LeerMdb(bytes, "mutada.mdb")) {
            EsperarEntera(tabla);
            if (tabla.defecto) {
                const auto& dicho = tabla.defecto->descripcion();
                EXPECT_NE(std::string::npos, dicho.find("«" + tabla.Name + "» de «mutada.mdb»")) << dicho;
                EXPECT_TRUE(tabla.filas.empty() && tabla.Fields.Count() == 0);
            }
            ++(tabla.defecto ? cuenta.conDefecto : cuenta.enteras);
        }
    } catch (const ErrorMotor& error) {
        EXPECT_NE(std::string::npos, error.descripcion().find("«mutada.mdb»")) << error.what();
    }
    return cuenta;
}

} // namespace varo::prueba
