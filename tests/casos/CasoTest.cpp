#include "casos/Caso.h"

#include "apoyo/CarpetaTemporal.h"
#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace varo::prueba {
namespace {

Caso CasoCon(const std::map<std::string, std::string>& archivos) {
    const CarpetaTemporal carpeta;
    for (const auto& [nombre, bytes] : archivos) {
        carpeta.Escribir(nombre, bytes);
    }
    return LeerCaso(carpeta.ruta());
}

/// What a folder with these files is refused for, empty when it is not.
std::string Rechazo(const std::map<std::string, std::string>& archivos) {
    try {
        CasoCon(archivos);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return {};
}

TEST(Caso, EsperaUnArchivoDeIndicesOUnFallo) {
    const auto indices =
        CasoCon({{"parcela.xls", ""}, {"trabajo.toml", ""}, {"esperado-indices.txt", "N\r\n"}});
    EXPECT_EQ(indices.indices, "N\r\n");
    EXPECT_FALSE(indices.fallo);
    EXPECT_FALSE(indices.conDatos());

    const auto fallido = CasoCon({{"parcela.xls", ""},
                                  {"trabajo.toml", ""},
                                  {"esperado-fallo.txt", "3075 sintaxis en la consulta\n"}});
    EXPECT_EQ(fallido.fallo, fallo::sintaxisDeConsulta);

    const auto venido = CasoCon({{"parcela.xls", ""},
                                 {"trabajo.toml", ""},
                                 {"esperado-fallo.txt", "FAULT division by zero\n"},
                                 {"esperado-datos.txt", "LbFcc\tFcc: 0,25\n"}});
    EXPECT_EQ(venido.fallo, fallo::divisionPorCero);
    EXPECT_EQ(venido.datos, "LbFcc\tFcc: 0,25\n");
    EXPECT_TRUE(venido.conDatos());
}

TEST(Caso, EsperaDatosOUnFalloEnSuLugar) {
    const std::map<std::string, std::string> archivos{
        {"parcela.xls", ""}, {"trabajo.toml", ""}, {"esperado-indices.txt", ""}};
    auto fallidos = archivos;
    fallidos["esperado-fallo-de-datos.txt"] = "3464 no coinciden los tipos de datos en la consulta\n";
    const auto caso = CasoCon(fallidos);
    EXPECT_EQ(caso.falloDeDatos, fallo::tiposDistintosEnConsulta);
    EXPECT_FALSE(caso.fallo);
    EXPECT_FALSE(caso.datos);
    EXPECT_TRUE(caso.conDatos());

    auto ambos = fallidos;
    ambos["esperado-datos.txt"] = "";
    EXPECT_NE(Rechazo(ambos).find("un fallo en su lugar"), std::string::npos);

    auto sinNumero = archivos;
    sinNumero["esperado-fallo-de-datos.txt"] = "once\n";
    EXPECT_EQ(Rechazo(sinNumero), "esperado-fallo-de-datos.txt no empieza por el número del fallo");
}

TEST(Caso, UnaCarpetaIncompletaOConMasSeRechaza) {
    const std::string uno = "un archivo de índices o un fallo";
    EXPECT_NE(Rechazo({{"trabajo.toml", ""}, {"esperado-indices.txt", ""}}).find("falta parcela.xls"),
              std::string::npos);
    EXPECT_NE(Rechazo({{"parcela.xls", ""}, {"esperado-indices.txt", ""}}).find("falta trabajo.toml"),
              std::string::npos);
    EXPECT_NE(Rechazo({{"parcela.xls", ""}, {"trabajo.toml", ""}}).find(uno), std::string::npos);
    EXPECT_NE(Rechazo({{"parcela.xls", ""},
                       {"trabajo.toml", ""},
                       {"esperado-indices.txt", ""},
                       {"esperado-fallo.txt", "11 división por cero\n"}})
                  .find(uno),
              std::string::npos);
    EXPECT_NE(Rechazo({{"parcela.xls", ""},
                       {"trabajo.toml", ""},
                       {"esperado-indices.txt", ""},
                       {"esperado_datos.txt", ""}})
                  .find("«esperado_datos.txt»"),
              std::string::npos);
}

TEST(Caso, UnFalloSinNumeroSeRechaza) {
    for (const char* texto : {"", "11", "once división por cero", "FAULT", "FAULT overflow\n"}) {
        EXPECT_NE(Rechazo({{"parcela.xls", ""}, {"trabajo.toml", ""}, {"esperado-fallo.txt", texto}})
                      .find("número del fallo"),
                  std::string::npos)
            << texto;
    }
}

} // namespace
} // namespace varo::prueba
