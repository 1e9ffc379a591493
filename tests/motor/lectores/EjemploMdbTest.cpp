// The database of the example holds the plot of its workbook. With VARO_HACER_EJEMPLO in the environment the
// test writes it.
#include "apoyo/EscritorMdb.h"
#include "apoyo/Lugares.h"
#include "motor/BaseDatos.h"
#include "motor/lectores/ApoyoLectores.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace varo {
namespace {

const std::filesystem::path& Libro() {
    static const auto libro = prueba::Proyecto() / "ejemplos" / "parcela.xls";
    return libro;
}

const std::filesystem::path& Base() {
    static const auto base = prueba::Proyecto() / "ejemplos" / "parcela.mdb";
    return base;
}

/// Whole numbers where a person would have them.
prueba::BaseMdb BaseDelEjemplo() {
    auto tabla = prueba::EnTablaMdb(BaseDatos::abrir(Libro()).TableDefs()(0));
    tabla.nombre = "Parcela1";
    for (auto& campo : tabla.campos) {
        if (campo.nombre == "Arbol") {
            campo.tipo = prueba::TipoMdb::EnteroLargo;
        } else if (campo.nombre.size() == 2 && campo.nombre[0] == 'R') {
            campo.tipo = prueba::TipoMdb::Entero;
        }
    }
    return {{tabla}};
}

TEST(EjemploMdb, TieneLaParcelaDelLibro) {
    const auto ejemplo = BaseDelEjemplo();
    if (std::getenv("VARO_HACER_EJEMPLO") != nullptr) { // NOLINT(concurrency-mt-unsafe)
        prueba::EscribirArchivoMdb(Base(), ejemplo);
    }
    EXPECT_TRUE(prueba::EscribirMdb(ejemplo) == prueba::BytesDe(Base()));
    const auto libro = BaseDatos::abrir(Libro());
    const auto base = BaseDatos::abrir(Base());
    ASSERT_EQ(1, base.TableDefs().Count());
    auto deLaBase = prueba::Lineas(base.TableDefs()("Parcela1"));
    deLaBase[0] = "[Parcela1$]";
    EXPECT_EQ(prueba::Lineas(libro.TableDefs()("Parcela1$")), deLaBase);
    EXPECT_EQ(62U, deLaBase.size());
}

} // namespace
} // namespace varo
