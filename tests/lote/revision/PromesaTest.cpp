// What the revision promises: a job that it lets pass does not end in a fault of the computation.
#include "lote/revision/InformeDeRevision.h"
#include "lote/revision/ParcelaEstropeada.h"
#include "lote/revision/RevisarTrabajo.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <filesystem>
#include <ostream>
#include <variant>

namespace varo::prueba {
namespace {

std::string Dicha(const ParcelaEstropeada& parcela) {
    std::string dicha;
    for (const auto& fila : parcela.filas) {
        for (const auto& celda : fila) {
            const auto* const numero = std::get_if<double>(&celda);
            const auto* const texto = std::get_if<std::string>(&celda);
            dicha += (numero != nullptr  ? testing::PrintToString(*numero)
                      : texto != nullptr ? "'" + *texto + "'"
                                         : "") +
                     "\t";
        }
        dicha += "\n";
    }
    return dicha + parcela.trabajo.texto();
}

struct Fin {
    Estado revision = Estado::Hecho;
    std::string tabla;
    FinDeTrabajo corrida;
};

Fin RevisarYCorrer(const ParcelaEstropeada& estropeada) {
    const ParcelaDePrueba parcela{estropeada.filas};
    Fin fin;
    try {
        const Trabajo trabajo = InterpretarTrabajo(estropeada.trabajo.texto(), parcela.ruta("trabajo.toml"));
        const auto hallazgos = RevisarTrabajo(trabajo);
        fin.revision = EstadoDeRevision(hallazgos);
        fin.tabla = TablaDeHallazgos("trabajo.toml", hallazgos);
    } catch (const ErrorTrabajo& error) {
        fin.revision = error.estado();
        fin.tabla = error.what();
    }
    fin.corrida = Correr(parcela, estropeada.trabajo);
    return fin;
}

bool DejaPasar(Estado revision) {
    return revision == Estado::Hecho || revision == Estado::CifrasEquivocadas;
}

RC_GTEST_PROP(Promesa, LoQueLaRevisionDejaPasarNoTerminaEnUnFallo, ()) {
    constexpr int porVez = 3;
    for (int vez = 0; vez < porVez; ++vez) {
        const auto semilla =
            *rc::gen::noShrink(rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint32_t>()));
        const ParcelaEstropeada parcela = Estropear(semilla);
        const Fin fin = RevisarYCorrer(parcela);
        if (DejaPasar(fin.revision) && fin.corrida.estado == Estado::FalloDeCalculo) {
            RC_LOG() << "semilla " << semilla << "\n"
                     << Dicha(parcela) << fin.tabla << fin.corrida.error << "\n";
            RC_FAIL("una corrida que la revisión deja pasar termina en un fallo");
        }
        // What refuses a job does so in both.
        RC_ASSERT((fin.revision == Estado::Rechazado) == (fin.corrida.estado == Estado::Rechazado));
    }
}

/// The files that a job writes; empty where it does not end well.
std::string Archivos(const ParcelaEstropeada& estropeada) {
    const ParcelaDePrueba parcela{estropeada.filas};
    if (Correr(parcela, estropeada.trabajo).estado != Estado::Hecho) {
        return {};
    }
    const auto datos = parcela.ruta("datos.txt");
    return LeerArchivo(parcela.ruta("indices.txt")) +
           (std::filesystem::exists(datos) ? LeerArchivo(datos) : "");
}

// A row without coordinates below the trees: of its cells some are empty.
TEST(Promesa, LaFilaSinSitioQueCambiaLasCifrasSeDice) {
    constexpr std::size_t primeraCopa = 3;
    constexpr std::size_t columnaCodigo = 7;
    constexpr std::size_t columnaTamano = 8;
    int iguales = 0;
    int distintas = 0;
    for (std::uint32_t semilla = 0; semilla < 150; ++semilla) {
        ParcelaEstropeada sana = Estropear(semilla, 0);
        const std::string antes = Archivos(sana);
        std::vector<Valor> fila(sana.filas.front().size());
        for (std::size_t medida = 0; medida < 4; ++medida) {
            fila[primeraCopa + medida] = semilla % 2 == 0 ? Valor{} : Valor{20.0};
        }
        fila[columnaCodigo] = semilla % 3 == 0 ? Valor{std::string{"PS"}} : Valor{};
        fila[columnaTamano] = semilla % 5 < 2 ? Valor{} : semilla % 5 == 2 ? Valor{0.0} : Valor{99.5};
        sana.filas.push_back(fila);
        const Fin fin = RevisarYCorrer(sana);
        if (antes.empty() || fin.corrida.estado != Estado::Hecho) {
            continue;
        }
        const bool seDice = fin.tabla.find("cuenta como un árbol más en") != std::string::npos;
        const bool cambian = Archivos(sana) != antes;
        EXPECT_TRUE(seDice || !cambian) << semilla << "\n" << Dicha(sana) << fin.tabla;
        (cambian ? distintas : iguales) += 1;
    }
    EXPECT_GT(iguales, 10);
    EXPECT_GT(distintas, 10);
}

TEST(Promesa, PocasCorridasEnterasSeDanPorFallidas) {
    int enteras = 0;
    int dadasPorFallidas = 0;
    for (std::uint32_t semilla = 0; semilla < 150; ++semilla) {
        const Fin fin = RevisarYCorrer(Estropear(semilla));
        if (fin.corrida.estado == Estado::Hecho) {
            ++enteras;
            dadasPorFallidas += fin.revision == Estado::FalloDeCalculo ? 1 : 0;
        }
    }
    EXPECT_GT(enteras, 50);
    EXPECT_LT(dadasPorFallidas, enteras / 5) << dadasPorFallidas << " de " << enteras;
}

} // namespace
} // namespace varo::prueba
