#include "casos/Caso.h"

#include "apoyo/Jornada.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>
#include <type_traits>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

constexpr const char* archivoDeIndices = "esperado-indices.txt";
constexpr const char* archivoDeFallo = "esperado-fallo.txt";
constexpr const char* archivoDeDatos = "esperado-datos.txt";
constexpr const char* archivoDeFalloDeDatos = "esperado-fallo-de-datos.txt";
constexpr const char* archivoDeMapa = "esperado-mapa.txt";

std::set<std::string> ArchivosDe(const fs::path& carpeta) {
    static const std::set<std::string> conocidos{"parcela.xls",  "trabajo.toml", archivoDeIndices,
                                                 archivoDeFallo, archivoDeDatos, archivoDeFalloDeDatos,
                                                 archivoDeMapa};
    std::set<std::string> archivos;
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        const auto nombre = entrada.path().filename().string();
        if (!conocidos.contains(nombre)) {
            throw std::runtime_error{"en un caso no puede haber «" + nombre + "»"};
        }
        archivos.insert(nombre);
    }
    return archivos;
}

/// "11 división por cero", or the words of the plots that came with the project.
int NumeroDelFallo(const fs::path& archivo) {
    const std::string texto = LeerArchivo(archivo);
    if (texto == "FAULT division by zero\n") {
        return fallo::divisionPorCero;
    }
    const char* const fin = texto.data() + texto.size();
    int numero = 0;
    const auto leido = std::from_chars(texto.data(), fin, numero);
    if (leido.ec != std::errc{} || leido.ptr == fin || *leido.ptr != ' ') {
        throw std::runtime_error{archivo.filename().string() + " no empieza por el número del fallo"};
    }
    return numero;
}

void ComprobarArchivos(const std::set<std::string>& archivos) {
    for (const char* necesario : {"parcela.xls", "trabajo.toml"}) {
        if (!archivos.contains(necesario)) {
            throw std::runtime_error{"al caso le falta " + std::string{necesario}};
        }
    }
    if (archivos.contains(archivoDeIndices) == archivos.contains(archivoDeFallo)) {
        throw std::runtime_error{"el caso ha de esperar un archivo de índices o un fallo, y solo uno"};
    }
    if (archivos.contains(archivoDeDatos) && archivos.contains(archivoDeFalloDeDatos)) {
        throw std::runtime_error{"el caso no puede esperar datos de parcela y un fallo en su lugar"};
    }
}

} // namespace

std::vector<std::string> NombresDeCasos(const fs::path& carpeta) {
    std::vector<std::string> nombres;
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        if (entrada.is_directory()) {
            nombres.push_back(entrada.path().filename().string());
        }
    }
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

Caso LeerCaso(const fs::path& carpeta) {
    const auto archivos = ArchivosDe(carpeta);
    ComprobarArchivos(archivos);
    const auto siEsta = [&](const char* nombre, const auto leer) {
        using Leido = std::invoke_result_t<decltype(leer), const fs::path&>;
        return archivos.contains(nombre) ? std::optional<Leido>{leer(carpeta / nombre)} : std::nullopt;
    };
    Caso caso;
    caso.carpeta = carpeta;
    caso.indices = siEsta(archivoDeIndices, LeerArchivo).value_or("");
    caso.fallo = siEsta(archivoDeFallo, NumeroDelFallo);
    caso.datos = siEsta(archivoDeDatos, LeerArchivo);
    caso.falloDeDatos = siEsta(archivoDeFalloDeDatos, NumeroDelFallo);
    caso.mapa = siEsta(archivoDeMapa, LeerArchivo);
    return caso;
}

} // namespace varo::prueba
