#include "motor/DefinicionDeTabla.h"

#include "apoyo/Fallos.h"
#include "motor/BaseDatos.h"

#include <gtest/gtest.h>

namespace varo {
namespace {

TEST(DefinicionDeTabla, EmpiezaSinCamposYLosTomaEnOrden) {
    DefinicionDeTabla definicion{"p13 Replica"};
    EXPECT_EQ(definicion.Name, "p13 Replica");
    EXPECT_TRUE(definicion.Fields().empty());
    definicion.Append(DefinicionDeTabla::CreateField("SupCirc", TipoDeCampo::Doble));
    definicion.Append(DefinicionDeTabla::CreateField("Otro", TipoDeCampo::Doble));
    ASSERT_EQ(definicion.Fields().size(), 2U);
    EXPECT_EQ(definicion.Fields()[0].Name, "SupCirc");
    EXPECT_EQ(static_cast<int>(definicion.Fields()[0].Type), 7);
    EXPECT_EQ(definicion.Fields()[1].Name, "Otro");
}

TEST(DefinicionDeTabla, UnNombreRepetidoFalla) {
    DefinicionDeTabla definicion{"Copia"};
    definicion.Append(DefinicionDeTabla::CreateField("SupCirc", TipoDeCampo::Doble));
    EXPECT_TRUE(prueba::FallaCon(3367, "«Copia» ya tiene un campo «supcirc»", [&] {
        definicion.Append(DefinicionDeTabla::CreateField("supcirc", TipoDeCampo::Doble));
    }));
}

TEST(DefinicionDeTabla, LaDeUnaBaseNoEntraEnEllaSola) {
    const BaseDatos base{{Tabla{"Hoja1$", Coleccion<Campo>{{Campo{"X"}}}, {}}}};
    EXPECT_EQ(BaseDatos::CreateTableDef("p13 Replica").Name, "p13 Replica");
    EXPECT_EQ(base.TableDefs().Count(), 1);
}

} // namespace
} // namespace varo
