#include "casos/Caso.h"

#include "apoyo/Jornada.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

constexpr const char* archivoDeIndices = "esperado-indices.txt";
constexpr const char* archivoDeFallo = "esperado-fallo.txt";
constexpr const char* archivoDeDatos = "esperado-datos.txt";
constexpr const char* archivoDeMapa = "esperado-mapa.txt";

std::set<std::string> ArchivosDe(const fs::path& carpeta) {
    static const std::set<std::string> conocidos{"parcela.xls",  "trabajo.toml", archivoDeIndices,
                                                 archivoDeFallo, archivoDeDatos, archivoDeMapa};
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
int NumeroDelFallo(const std::string& texto) {
    if (texto == "FAULT division by zero\n") {
        return fallo::divisionPorCero;
    }
    const char* const fin = texto.data() + texto.size();
    int numero = 0;
    const auto leido = std::from_chars(texto.data(), fin, numero);
    if (leido.ec != std::errc{} || leido.ptr == fin || *leido.ptr != ' ') {
        throw std::runtime_error{"esperado-fallo.txt no empieza por el número del fallo"};
    }
    return numero;
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
    for (const char* necesario : {"parcela.xls", "trabajo.toml"}) {
        if (!archivos.contains(necesario)) {
            throw std::runtime_error{"al caso le falta " + std::string{necesario}};
        }
    }
    if (archivos.contains(archivoDeIndices) == archivos.contains(archivoDeFallo)) {
        throw std::runtime_error{"el caso ha de esperar un archivo de índices o un fallo, y solo uno"};
    }
    Caso caso;
    caso.carpeta = carpeta;
    caso.conDatos = archivos.contains(archivoDeDatos);
    if (archivos.contains(archivoDeFallo)) {
        caso.fallo = NumeroDelFallo(LeerArchivo(carpeta / archivoDeFallo));
    } else {
        caso.indices = LeerArchivo(carpeta / archivoDeIndices);
    }
    if (archivos.contains(archivoDeMapa)) {
        caso.mapa = LeerArchivo(carpeta / archivoDeMapa);
    }
    return caso;
}

} // namespace varo::prueba
