// Jobs for the tests: a square plot of five trees and the text of a job for it, piece by piece.
#pragma once

#include "apoyo/Jornada.h"
#include "lote/recorrido/Recorrido.h"
#include "lote/trabajo/Trabajo.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace varo::prueba {

/// A folder with the plot of CuadradoConCentro in parcela.xls, sheet "Parcela1".
class ParcelaDePrueba {
public:
    ParcelaDePrueba();
    explicit ParcelaDePrueba(const Filas& filas);

    [[nodiscard]] std::filesystem::path ruta(const std::string& nombre) const {
        return carpeta_.ruta() / nombre;
    }
    /// Writes a file and hands back its path.
    std::filesystem::path escribir(const std::string& nombre, const std::string& texto) const;

private:
    CarpetaTemporal carpeta_;
};

/// The pieces of a job's text. Left as they are they make a job without indices for CuadradoConCentro.
struct TextoDeTrabajo {
    std::string parcela = "archivo = \"parcela.xls\"\nhoja = \"Parcela1$\"\n";
    std::string columnas = "X = \"X\"\nY = \"Y\"\nN = \"RN\"\nE = \"RE\"\nS = \"RS\"\nO = \"RO\"\n"
                           "Indice = \"Arbol\"\nCodigo = \"Cod\"\nDAP = \"CAP\"\n";
    std::string opciones = {};
    std::string salida = "resultados = \"indices.txt\"\n";

    [[nodiscard]] std::string texto() const {
        return parcela + "[columnas]\n" + columnas + "[opciones]\n" + opciones + "[salida]\n" + salida;
    }
};

/// The results file of CuadradoConCentro without any index.
inline const std::string resultadosSinIndices = "N\xBAOrden\tN\xBA"
                                                "Arbol\r\n1\t1\r2\t2\r3\t3\r4\t4\r5\t5\r\r\n";

/// How a job ended: its report, or the error.
struct FinDeTrabajo {
    std::optional<Informe> informe;
    std::string error; ///< the line of the error
    Estado estado = Estado::Hecho;
    std::optional<int> fallo;
    std::vector<std::string> avisos;
    std::vector<std::string> etapas;
};

/// Runs a job whose file would be trabajo.toml in the plot's folder.
FinDeTrabajo Correr(const ParcelaDePrueba& parcela, const TextoDeTrabajo& texto);

/// The error with which an act ends; fails the test when there is none.
template <class Acto>
std::string ErrorDe(Acto&& acto) {
    try {
        std::forward<Acto>(acto)();
    } catch (const ErrorTrabajo& error) {
        return error.what();
    }
    return "(sin error)";
}

} // namespace varo::prueba
