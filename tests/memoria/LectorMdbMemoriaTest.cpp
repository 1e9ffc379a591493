// What it costs at most to read a database: ten times its size and 64 MB, whatever its bytes say.
#include "apoyo/EscritorMdb.h"
#include "memoria/MemoriaPermitida.h"
#include "motor/lectores/LectorMdb.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

testing::AssertionResult BaseCabe(const BaseMdb& base) {
    const auto bytes = EscribirMdb(base);
    return CabeEnLaMemoria(bytes.size(), [&] { return LeerMdb(bytes, "base.mdb"); });
}

TablaMdb TablaDe(std::size_t columnas, TipoMdb tipo, std::size_t filas, const Valor& valor) {
    TablaMdb tabla{"T", {}, {}};
    for (std::size_t i = 0; i < columnas; ++i) {
        tabla.campos.push_back({"c" + std::to_string(i), tipo});
    }
    tabla.filas.assign(filas, std::vector<Valor>(columnas, valor));
    return tabla;
}

TEST(MemoriaDeLectorMdb, MuchasVerdadesPorFila) {
    EXPECT_TRUE(BaseCabe({{TablaDe(255, TipoMdb::Booleano, 20'000, true)}}));
}

TEST(MemoriaDeLectorMdb, MuchosNumerosDeUnByte) {
    EXPECT_TRUE(BaseCabe({{TablaDe(255, TipoMdb::Byte, 15'000, 7.0)}}));
}

TEST(MemoriaDeLectorMdb, MuchosTextosVacios) {
    EXPECT_TRUE(BaseCabe({{TablaDe(100, TipoMdb::Texto, 30'000, "")}}));
}

TEST(MemoriaDeLectorMdb, MuchasFilasSinNada) {
    EXPECT_TRUE(BaseCabe({{TablaDe(1, TipoMdb::Byte, 1'000'000, Nulo{})}}));
}

TEST(MemoriaDeLectorMdb, MuchasTablas) {
    BaseMdb base{{}, 0};
    for (int i = 0; i < 1'500; ++i) {
        base.tablas.push_back(TablaDe(100, TipoMdb::Byte, 1, 1.0));
        base.tablas.back().nombre = "Tabla " + std::to_string(i);
    }
    EXPECT_TRUE(BaseCabe(base));
}

TEST(MemoriaDeLectorMdb, MuchasTablasVinculadas) {
    BaseMdb base{{}};
    for (int i = 0; i < 300'000; ++i) {
        base.tablas.push_back({"T", {}, {}});
        base.tablas.back().vinculada = true;
    }
    EXPECT_TRUE(BaseCabe(base));
}

} // namespace
} // namespace varo::prueba
