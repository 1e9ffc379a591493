// Plots that nobody made for the revision: what it says of them is true.
#include "apoyo/Lugares.h"
#include "lote/TrabajoDePrueba.h"
#include "lote/revision/InformeDeRevision.h"
#include "lote/revision/RevisarTrabajo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <locale>
#include <map>
#include <set>
#include <sstream>

namespace varo::prueba {
namespace {

using ColumnasPorNombre = std::map<std::string, std::vector<Valor>>;

/// A table with a decimal point and commas between the cells; an empty cell is missing.
ColumnasPorNombre LeerTabla(const std::filesystem::path& ruta) {
    std::ifstream archivo{ruta};
    std::string linea;
    std::getline(archivo, linea);
    std::vector<std::string> nombres;
    std::istringstream cabecera{linea};
    for (std::string nombre; std::getline(cabecera, nombre, ',');) {
        nombres.push_back(nombre);
    }
    ColumnasPorNombre columnas;
    while (std::getline(archivo, linea)) {
        std::istringstream celdas{linea};
        for (const auto& nombre : nombres) {
            std::string texto;
            std::getline(celdas, texto, ',');
            double numero = 0;
            std::istringstream lector{texto};
            lector.imbue(std::locale::classic());
            lector >> numero;
            columnas[nombre].push_back(texto.empty()            ? Valor{}
                                       : lector && lector.eof() ? Valor{numero}
                                                                : Valor{texto});
        }
    }
    return columnas;
}

/// As somebody would type it into a sheet. Crowns that nobody measured are 1.5 m wide.
Filas HojaDe(const ColumnasPorNombre& columnas) {
    const std::array<const char*, 9> nombres{"id", "x", "y", "r_n", "r_e", "r_s", "r_w", "species", "dbh_cm"};
    Filas filas(1 + columnas.at("x").size());
    for (const char* const nombre : nombres) {
        filas[0].emplace_back(std::string{nombre});
        const auto columna = columnas.find(nombre);
        for (std::size_t i = 1; i < filas.size(); ++i) {
            filas[i].push_back(columna == columnas.end() ? Valor{1.5} : columna->second[i - 1]);
        }
    }
    filas[0].emplace_back(std::string{"Nota"});
    return filas;
}

const char* const sinVecinos = "OptCAP = false\nOptDAP = true\nOptmetro = true\nOptcirc = true\n"
                               "ChN = 1\nChAB = 1\nChABj = 1\nChDmed = 1\nChDdom = 1\nChAPDsum = 1\n";
const char* const conVecinos =
    "ChSupCopa = 1\nChAOIActivar = 1\nLstAOI = [ { a = 0.5, b = 0.05, c = 1.0, d = 0.0, e = 0.0 } ]\n"
    "ChIDPActivar = 1\n\"TxtBAF1(0)\" = 2\n\"TxtBAF2(0)\" = 4\n\"TxtBAF3(0)\" = 2\n"
    "ChDRActivar = 1\n\"OptNumFijo(1)\" = true\n\"TxtBAF1(3)\" = 4\n\"TxtBAF2(3)\" = 4\n\"TxtBAF3(3)\" = 1\n"
    "\"TxtBAF1(4)\" = 1\n\"TxtBAF2(4)\" = 1\n\"TxtBAF3(4)\" = 1\n"
    "LstDist = [ { tipo = \"HIP\", a = 1.0, b = 1.0, c = 1.0, d = 0.0, e = 0.0 } ]\n";
const char* const conAPA = "ChAPA = 1\n\"TxtBAF1(8)\" = 2\n\"TxtBAF2(8)\" = 2\n\"TxtBAF3(8)\" = 1\n";

struct FinDeParcela {
    std::set<Sospecha> graves; ///< the graver kinds that are found
    Estado revision = Estado::Hecho;
    FinDeTrabajo corrida;
    std::string tabla;
    std::string datos; ///< the file of the plot data
};

class ParcelasReales : public testing::Test {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(prueba::AlLado() / "parcelas")) {
            GTEST_SKIP() << "no plots beside the project";
        }
    }

    static FinDeParcela revisarYCorrer(const std::string& nombre, const std::string& opciones,
                                       bool conCodigo = true) {
        const auto columnas = LeerTabla(prueba::AlLado() / "parcelas" / nombre);
        const ParcelaDePrueba parcela{HojaDe(columnas)};
        TextoDeTrabajo texto;
        texto.columnas = "X = 'x'\nY = 'y'\nN = 'r_n'\nE = 'r_e'\nS = 'r_s'\nO = 'r_w'\nIndice = 'id'\n"
                         "DAP = 'dbh_cm'\n" +
                         std::string{conCodigo ? "Codigo = 'species'\n" : ""};
        texto.opciones = opciones + (conCodigo ? "" : "ChCodigo = 0\n");
        texto.salida = "resultados = 'indices.txt'\ndatos = 'datos.txt'\n";
        FinDeParcela fin;
        const auto hallazgos =
            RevisarTrabajo(InterpretarTrabajo(texto.texto(), parcela.ruta("trabajo.toml")));
        for (const auto& hallazgo : hallazgos) {
            if (hallazgo.gravedad != Gravedad::Mirar) {
                fin.graves.insert(hallazgo.sospecha);
            }
        }
        fin.revision = EstadoDeRevision(hallazgos);
        fin.tabla = TablaDeHallazgos(nombre, hallazgos);
        fin.corrida = Correr(parcela, texto);
        if (std::filesystem::exists(parcela.ruta("datos.txt"))) {
            fin.datos = LeerArchivo(parcela.ruta("datos.txt"));
        }
        return fin;
    }
};

// Trees 8 and 26 of the first plot have the smallest x, and the side between them closes the walk. In bicuar
// some species stand on the boundary alone, and two trees share a point. Two trees of one coordinate, in
// decimetres, end APA.
TEST_F(ParcelasReales, LaRevisionDiceLoQuePasa) {
    const std::string vecinos = std::string{sinVecinos} + conVecinos;
    const std::string apa = std::string{sinVecinos} + conAPA;
    using enum Sospecha;
    struct Caso {
        const char* nombre;
        std::string opciones;
        std::set<Sospecha> graves;
        Estado corrida;
    };
    const std::vector<Caso> casos{
        {"rucamanque_crown_radii.csv", vecinos, {}, Estado::Hecho},
        {"rucamanque_crown_radii.csv", apa, {LadoVertical, MismaY}, Estado::FalloDeCalculo},
        {"samsara_prenovel.csv", vecinos, {}, Estado::Hecho},
        {"samsara_prenovel.csv", apa, {}, Estado::Hecho},
        {"samsara_bechefa.csv", vecinos, {}, Estado::Hecho},
        {"samsara_bechefa.csv", apa, {MismaX, MismaY, EnLinea}, Estado::FalloDeCalculo},
        {"bicuar.csv", sinVecinos, {PiesNoPositivos}, Estado::Hecho},
        {"bicuar.csv", vecinos, {PiesNoPositivos, MismoSitio, CirculosIguales}, Estado::FalloDeCalculo},
    };
    for (const auto& caso : casos) {
        const auto fin = revisarYCorrer(caso.nombre, caso.opciones);
        EXPECT_EQ(fin.graves, caso.graves) << caso.opciones << fin.tabla;
        EXPECT_EQ(fin.datos.find("Fcc: 0,00"), std::string::npos) << fin.datos;
        EXPECT_EQ(fin.corrida.estado, caso.corrida) << caso.nombre << "\n"
                                                    << caso.opciones << fin.corrida.error;
    }
}

// One tree has an x alone, two have no species.
TEST_F(ParcelasReales, LoQueFaltaSeDice) {
    const char* const rainier = "rainier_messy_two_stands.csv";
    auto fin = revisarYCorrer(rainier, sinVecinos);
    EXPECT_EQ(fin.graves, (std::set<Sospecha>{Sospecha::FilaConMediaCoordenada, Sospecha::ArbolSinCodigo}))
        << fin.tabla;
    EXPECT_EQ(fin.corrida.estado, Estado::FalloDeCalculo);
    fin = revisarYCorrer(rainier, sinVecinos, false);
    EXPECT_EQ(fin.graves, std::set<Sospecha>{Sospecha::FilaConMediaCoordenada}) << fin.tabla;
}

TEST_F(ParcelasReales, LosPiesDeUnSitioSoloSeMiran) {
    const auto fin = revisarYCorrer("bigwoods_1ha_2008.csv", sinVecinos);
    EXPECT_EQ(fin.graves, (std::set<Sospecha>{Sospecha::PiesNoPositivos, Sospecha::LadoVertical}))
        << fin.tabla;
    EXPECT_NE(fin.datos.find("LbPiesHaValor(13)\t\n"), std::string::npos) << fin.datos << "de menos de 0";
    EXPECT_NE(fin.datos.find("LbFcc\tFcc: 0,00"), std::string::npos) << fin.datos;
    EXPECT_NE(fin.tabla.find("El árbol no tiene tamaño: "), std::string::npos);
    EXPECT_NE(fin.tabla.find("El árbol está en el mismo sitio que el árbol "), std::string::npos);
    EXPECT_EQ(fin.corrida.error, "");
}

} // namespace
} // namespace varo::prueba
