// The boundary and the counts of a revision are those that the map and the computations have afterwards.
#include "avisos/CercarParcela.h"

#include "avisos/ReunirColumnas.h"
#include "avisos/ReunirOpciones.h"
#include "lote/recorrido/PasosHastaElMapa.h"
#include "lote/revision/ParcelaEstropeada.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varo::prueba {
namespace {

TEST(CercarParcela, ElContornoYLosPiesSonLosDelMapa) {
    int comparadas = 0;
    for (std::uint32_t semilla = 0; semilla < 150; ++semilla) {
        const auto estropeada = Estropear(semilla);
        const ParcelaDePrueba carpeta{estropeada.filas};
        const Trabajo trabajo = InterpretarTrabajo(estropeada.trabajo.texto(), carpeta.ruta("trabajo.toml"));
        const Seguimiento seguimiento;
        PuestoDeTrabajo puesto{trabajo, seguimiento};
        ParcelaPorRevisar parcela;
        try {
            LlegarAlFormato(puesto);
            parcela = ReunirColumnas(puesto.programa);
            parcela.opciones = ReunirOpciones(puesto.programa.tocar<OpcionesPrograma>(), {true, false});
            parcela.opciones.independientes.pies = true;
            Cercar(parcela, puesto.programa);
            DibujarMapa(puesto);
        } catch (const ErrorTrabajo&) {
            continue; // a job that never has a map has nothing to compare with
        }
        const auto& sesion = puesto.programa.sesion;
        ASSERT_TRUE(parcela.contorno) << semilla;
        const auto contorno = sesion.Poligono.contorno();
        EXPECT_TRUE(std::ranges::equal(parcela.contorno->x, contorno.x)) << semilla;
        EXPECT_TRUE(std::ranges::equal(parcela.contorno->y, contorno.y)) << semilla;
        EXPECT_EQ(parcela.contorno->superficie.fallo, "") << semilla;
        EXPECT_EQ(parcela.contorno->superficie.valor, sesion.SupPoligono) << semilla;
        if (parcela.pies.empty() || !parcela.pies.front().porHectarea.fallo.empty()) {
            continue;
        }
        puesto.programa.tocar<FrmMapa>().Npies_ha();
        EXPECT_EQ(parcela.pies.front().porHectarea.valor, sesion.PiesHaActual) << semilla;
        ++comparadas;
    }
    EXPECT_GT(comparadas, 50);
}

} // namespace
} // namespace varo::prueba
