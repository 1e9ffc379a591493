// Every table as mdbtools reads it, cell by cell, where its programs are installed.
#include "motor/lectores/LectorMdb.h"

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorMdb.h"
#include "apoyo/Proceso.h"
#include "motor/TablasDePrueba.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varo {
namespace {

namespace fs = std::filesystem;

const fs::path programaDeTablas = "/usr/bin/mdb-tables";
const fs::path programaDeFilas = "/usr/bin/mdb-export";

bool HayMdbtools() {
    return fs::exists(programaDeTablas) && fs::exists(programaDeFilas);
}

const std::string entreCampos = "<|>";
const std::string entreFilas = "<||>";
const std::string nulo = "<0>";

/// What stands before each mark.
std::vector<std::string> Partidos(std::string_view texto, std::string_view marca) {
    std::vector<std::string> partes;
    while (true) {
        const auto fin = texto.find(marca);
        if (fin == std::string_view::npos) {
            EXPECT_EQ("", texto) << "detrás de la última marca";
            return partes;
        }
        partes.emplace_back(texto.substr(0, fin));
        texto.remove_prefix(fin + marca.size());
    }
}

std::string Salida(const fs::path& programa, const std::vector<std::string>& argumentos) {
    const auto proceso = prueba::Ejecutar(programa, argumentos);
    EXPECT_EQ(0, proceso.estado) << programa << ": " << proceso.errores;
    return proceso.salida;
}

/// The names of the tables, each one in its line.
std::vector<std::string> SusTablas(const fs::path& archivo) {
    return Partidos(Salida(programaDeTablas, {"-1", archivo.string()}), "\n");
}

/// The header and the rows of a table.
std::vector<std::vector<std::string>> SusFilas(const fs::path& archivo, const std::string& tabla) {
    const std::string fecha = "%Y-%m-%d %H:%M:%S";
    const auto texto = Salida(programaDeFilas, {"-Q", "-d", entreCampos, "-R", entreFilas, "-0", nulo, "-T",
                                                fecha, "-D", fecha, archivo.string(), tabla});
    std::vector<std::vector<std::string>> filas;
    for (const auto& fila : Partidos(texto, entreFilas)) {
        filas.push_back(Partidos(fila + entreCampos, entreCampos));
    }
    return filas;
}

std::optional<double> Numero(const std::string& texto) {
    double numero = 0;
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    return error == std::errc{} && fin == texto.data() + texto.size() ? std::optional{numero} : std::nullopt;
}

/// mdbtools writes doubles with 16 digits and singles with 8.
bool MismoNumero(double nuestro, const std::string& suyo) {
    const auto numero = Numero(suyo);
    if (!numero) {
        return false;
    }
    const bool casi = std::fabs(nuestro - *numero) <= 2e-15 * std::fabs(nuestro);
    const bool comoSimple = suyo.size() <= 11 && static_cast<float>(nuestro) == static_cast<float>(*numero);
    return casi || comoSimple;
}

std::string FechaEscrita(double serie) {
    using namespace std::chrono;
    const auto dia = static_cast<int>(serie);
    const year_month_day fecha{sys_days{1899y / December / 30} + days{dia}};
    const auto segundos = std::lround((serie - dia) * 86400);
    std::array<char, 40> letras{};
    std::snprintf(letras.data(), letras.size(), "%04d-%02u-%02u %02ld:%02ld:%02ld",
                  static_cast<int>(fecha.year()), static_cast<unsigned>(fecha.month()),
                  static_cast<unsigned>(fecha.day()), segundos / 3600, segundos / 60 % 60, segundos % 60);
    return letras.data();
}

/// What mdbtools has wrong is not compared: dates before 1900, and null and empty texts, which it takes for
/// each other. It writes other bytes in its own way.
bool Coincide(const Valor& nuestro, const std::string& suyo) {
    if (EsNulo(nuestro) || nuestro == Valor{std::string{}}) {
        return suyo == nulo || suyo.empty();
    }
    if (const auto* numero = std::get_if<double>(&nuestro)) {
        return MismoNumero(*numero, suyo);
    }
    if (const auto* fecha = std::get_if<Fecha>(&nuestro)) {
        return fecha->serie < 2 ? suyo.size() == 19 : FechaEscrita(fecha->serie) == suyo;
    }
    if (const auto* verdad = std::get_if<bool>(&nuestro)) {
        return suyo == (*verdad ? "1" : "0");
    }
    const auto& texto = std::get<std::string>(nuestro);
    return texto == "(datos binarios)" ? suyo != nulo : texto == suyo;
}

void CompararTabla(const fs::path& archivo, const Tabla& tabla) {
    SCOPED_TRACE(archivo.filename().string() + ", " + tabla.Name);
    ASSERT_FALSE(tabla.defecto) << tabla.defecto->descripcion();
    const auto suyas = SusFilas(archivo, tabla.Name);
    ASSERT_FALSE(suyas.empty());
    std::vector<std::string> nombres;
    for (const auto& campo : tabla.Fields) {
        nombres.push_back(campo.Name);
    }
    EXPECT_EQ(suyas[0], nombres);
    ASSERT_EQ(suyas.size() - 1, tabla.filas.size());
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        for (std::size_t i = 0; i < nombres.size(); ++i) {
            const auto& nuestro = tabla.filas[fila][i];
            EXPECT_TRUE(Coincide(nuestro, suyas[fila + 1].at(i)))
                << "fila " << fila << ", " << nombres[i] << ": " << prueba::Escrito(nuestro).substr(0, 200)
                << " y «" << suyas[fila + 1][i].substr(0, 200) << "»";
        }
    }
}

void CompararBase(const fs::path& archivo) {
    const auto tablas = LeerMdb(prueba::BytesDe(archivo), archivo.filename().string());
    std::vector<std::string> nombres;
    for (const auto& tabla : tablas) {
        nombres.push_back(tabla.Name);
    }
    EXPECT_EQ(SusTablas(archivo), nombres) << archivo;
    for (const auto& tabla : tablas) {
        CompararTabla(archivo, tabla);
    }
}

TEST(LectorMdbContraste, LasMuestrasSeLeenComoLasLeeMdbtools) {
    if (!HayMdbtools()) {
        GTEST_SKIP() << "no está instalado mdbtools";
    }
    auto archivos = prueba::Muestras("mdb-made");
    const auto reales = prueba::Muestras("mdb-real");
    archivos.insert(archivos.end(), reales.begin(), reales.end());
    if (archivos.empty()) {
        GTEST_SKIP() << "no está la carpeta de muestras ../shared/muestras";
    }
    for (const auto& archivo : archivos) {
        CompararBase(archivo);
    }
}

using prueba::TablaMdb;
using prueba::TipoMdb;

/// A table of every type that all versions have.
TablaMdb DeTodo(std::size_t cuantas) {
    TablaMdb tabla{"Árboles del norte",
                   {{"Id", TipoMdb::EnteroLargo},
                    {"Especie", TipoMdb::Texto},
                    {"CAP", TipoMdb::Doble},
                    {"Viva", TipoMdb::Booleano},
                    {.nombre = "Notas", .tipo = TipoMdb::Memo, .borradosDelante = 2},
                    {"Precio", TipoMdb::Moneda},
                    {"Fecha", TipoMdb::FechaHora},
                    {"Altura", TipoMdb::Simple},
                    {"Clase", TipoMdb::Entero},
                    {"Edad", TipoMdb::Byte},
                    {"Foto", TipoMdb::Ole}},
                   {}};
    for (std::size_t i = 0; i < cuantas; ++i) {
        const auto n = static_cast<double>(i);
        const std::size_t letras = i % 40 == 39 ? 9000 : i % 10 * 30;
        const auto oNada = [&](Valor valor) { return i % 9 == 5 ? Valor{} : valor; };
        tabla.filas.push_back({n, oNada((i % 7 == 0 ? "Łódź " : "pino piñonero ") + std::to_string(i)),
                               oNada(n / 3), i % 2 == 0, oNada(std::string(letras, 'm')), oNada(n + 0.25),
                               oNada(Fecha{36000.5 + n}), oNada(n + 0.1), oNada(-n),
                               oNada(static_cast<double>(i % 256)), i % 3 == 0 ? Valor{} : Valor{"foto"}});
    }
    return tabla;
}

TEST(LectorMdbContraste, LoQueEscribeLaPruebaLoLeeMdbtools) {
    if (!HayMdbtools()) {
        GTEST_SKIP() << "no está instalado mdbtools";
    }
    const prueba::CarpetaTemporal carpeta;
    for (const int version : {0, 1, 2}) {
        for (const std::uint32_t clave : {0U, 0x7A3B19C4U}) {
            if (version == 2 && clave != 0) {
                continue;
            }
            auto arboles = DeTodo(300);
            arboles.borradas = {0, 3, 100};
            arboles.filasPorPagina = 17;
            arboles.mapaEnPaginas = version == 1;
            auto trasladada = DeTodo(6);
            trasladada.nombre = "Trasladada";
            trasladada.trasladadas = {5}; // mdbtools reads such a row where it stands: behind the others
            TablaMdb ancha{"Ancha", {}, {{}}};
            for (int i = 0; i < 200; ++i) {
                ancha.campos.push_back(
                    {"Columna " + std::to_string(i), i % 2 == 0 ? TipoMdb::Booleano : TipoMdb::Texto});
                ancha.filas[0].push_back(i % 2 == 0 ? Valor{i % 4 == 0} : Valor{"v" + std::to_string(i)});
            }
            const TablaMdb fija{
                "Fija", {{"x", TipoMdb::Doble}, {"b", TipoMdb::Booleano}}, {{1.5, true}, {Nulo{}, false}}};
            TablaMdb oculta = DeTodo(1);
            oculta.nombre = "Del sistema";
            oculta.deSistema = true;
            const auto archivo =
                carpeta / ("base" + std::to_string(version) + (clave == 0 ? "" : "c") + ".mdb");
            prueba::EscribirArchivoMdb(archivo, {{arboles, trasladada, ancha, oculta, fija}, version, clave});
            CompararBase(archivo);
        }
    }
}

TEST(LectorMdbContraste, LosDecimalesSeLeenComoLosLeeMdbtools) {
    if (!HayMdbtools()) {
        GTEST_SKIP() << "no está instalado mdbtools";
    }
    const prueba::CarpetaTemporal carpeta;
    TablaMdb tabla{"T", {{.nombre = "d", .tipo = TipoMdb::Decimal, .decimales = 3}}, {}};
    for (const double numero : {0.0, 1.5, -1.5, 123456789.125, -0.001, 9e15}) {
        tabla.filas.push_back({numero});
    }
    prueba::EscribirArchivoMdb(carpeta / "decimales.mdb", {{tabla}});
    CompararBase(carpeta / "decimales.mdb");
}

} // namespace
} // namespace varo
