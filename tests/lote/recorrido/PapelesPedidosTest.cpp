#include "lote/recorrido/PapelesPedidos.h"

#include "apoyo/Jornada.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

using Claves = std::vector<std::string>;

TEST(PapelesPedidos, TodasLasFamiliasMenosElNPidenElDAP) {
    Jornada jornada;
    Trabajo trabajo;
    trabajo.resultados = SalidaPedida{"indices.txt"};
    EXPECT_EQ(PidenDAP(trabajo, jornada.opciones()), Claves{});
    jornada.opciones().ChN.Value = 1;
    EXPECT_EQ(PidenDAP(trabajo, jornada.opciones()), Claves{});
    const Claves familias{"ChAB",         "ChABj",        "ChDmed",      "ChDdom",   "ChDmax",
                          "ChBmed",       "ChBdom",       "ChBmax",      "ChAPDmed", "ChAPDmax",
                          "ChAPDsum",     "ChAPBmed",     "ChAPBmax",    "ChAPBsum", "ChSupCopa",
                          "ChAOIActivar", "ChIDPActivar", "ChDRActivar", "ChAPA"};
    for (const auto& familia : familias) {
        dynamic_cast<Casilla&>(jornada.opciones().control(familia)).Value = 1;
    }
    EXPECT_EQ(PidenDAP(trabajo, jornada.opciones()), familias);
}

TEST(PapelesPedidos, LoQueNoSeEscribeNoLoPideYLosDatosSi) {
    Jornada jornada;
    jornada.opciones().ChAB.Value = 1;
    Trabajo trabajo;
    EXPECT_EQ(PidenDAP(trabajo, jornada.opciones()), Claves{});
    trabajo.datos = SalidaPedida{"datos.txt"};
    EXPECT_EQ(PidenDAP(trabajo, jornada.opciones()), Claves{"salida.datos"});
}

} // namespace
} // namespace varo::prueba
