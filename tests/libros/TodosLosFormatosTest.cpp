// The same plot in every format: the same texts in the grid, and the same results.
#include "apoyo/EscritorMdb.h"
#include "apoyo/EscritorOds.h"
#include "apoyo/EscritorXlsx.h"

#include "apoyo/ArchivoDePrueba.h"
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Jornada.h"
#include "apoyo/Lugares.h"
#include "basico/Texto.h"
#include "libros/RegistrarLibros.h"
#include "lote/recorrido/Recorrido.h"
#include "motor/BaseDatos.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <string>
#include <vector>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

/// A table of a sheet as the writers of workbooks take it, without the "$" of its name.
Hoja EnHoja(const Tabla& tabla) {
    Hoja hoja{tabla.Name.substr(0, tabla.Name.size() - 1), {{}}};
    for (const auto& campo : tabla.Fields) {
        hoja.celdas.front().emplace_back(campo.Name);
    }
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        auto& celdas = hoja.celdas.emplace_back();
        for (std::size_t columna = 0; columna < hoja.celdas.front().size(); ++columna) {
            celdas.push_back(tabla.filas[fila][columna]);
        }
    }
    return hoja;
}

/// A number with all its digits, and a decimal comma.
std::string ConComa(double numero) {
    std::array<char, 32> letras{};
    const auto fin = std::to_chars(letras.data(), letras.data() + letras.size(), numero).ptr;
    return Reemplazar({letras.data(), fin}, ".", ",");
}

std::string EnCsv(const Tabla& tabla) {
    std::string texto;
    for (const auto& fila : EnHoja(tabla).celdas) {
        for (const auto& valor : fila) {
            const auto* const numero = std::get_if<double>(&valor);
            texto += (numero != nullptr ? ConComa(*numero) : EsNulo(valor) ? "" : ATexto(valor)) + ";";
        }
        texto.back() = '\n';
    }
    return texto;
}

/// The file of the table in this format, in a folder.
fs::path EscritoEn(const CarpetaTemporal& carpeta, const Tabla& tabla, const std::string& formato) {
    const auto hoja = EnHoja(tabla);
    auto archivo = carpeta / (hoja.nombre + formato);
    if (formato == ".csv") {
        carpeta.Escribir(archivo.filename().string(), EnCsv(tabla));
    } else if (formato == ".mdb") {
        EscribirArchivoMdb(archivo, {{EnTablaMdb(tabla)}});
    } else {
        EscribirBytes(archivo, formato == ".xlsx" ? EscribirXlsx({hoja}) : EscribirOds({hoja}));
    }
    return archivo;
}

class EnCadaFormato : public testing::TestWithParam<std::string> {
protected:
    EnCadaFormato() { RegistrarLibros(); }
};

std::string SinPunto(const testing::TestParamInfo<std::string>& formato) {
    return formato.param.substr(1);
}

/// The job of a golden plot with the same table in this format.
void CorrerEn(const std::string& nombre, const std::string& formato) {
    SCOPED_TRACE(nombre);
    const auto caso = DatosDePrueba() / "casos" / nombre;
    const CarpetaTemporal parcela;
    const CarpetaTemporal resultados;
    const auto libro = BaseDatos::abrir(caso / "parcela.xls");
    const auto deLibro = LeerTrabajo(caso / "trabajo.toml", {});
    const auto archivo = EscritoEn(parcela, libro.TableDefs()(deLibro.hoja), formato);
    const auto trabajo =
        LeerTrabajo(caso / "trabajo.toml", {.archivo = archivo, .hoja = {}, .salida = resultados.ruta()});
    CorrerTrabajo(trabajo);
    EXPECT_EQ(LeerArchivo(trabajo.resultados->ruta), LeerArchivo(caso / "esperado-indices.txt"));
    if (trabajo.datos) {
        EXPECT_EQ(LeerArchivo(trabajo.datos->ruta), LeerArchivo(caso / "esperado-datos.txt"));
    }
}

TEST_P(EnCadaFormato, LosResultadosSonLosMismos) {
    for (const std::string nombre :
         {"todas_4r", "todas_2d_utm", "rm_cap_m", "extensa", "filas_vacias", "codigos_numero",
          "datos_codigos_vacios", "cabecera_con_acento", "segunda_hoja", "apa_rm_dap_cm", "dr_func_ambas"}) {
        CorrerEn(nombre, GetParam());
    }
}

INSTANTIATE_TEST_SUITE_P(Formatos, EnCadaFormato, testing::Values(".mdb", ".csv", ".xlsx", ".ods"), SinPunto);

// --- What is no number ---

using Textos = std::vector<std::vector<std::string>>;

/// The cells of the only table, as the grid shows them.
Textos TextosDe(const fs::path& archivo) {
    const auto base = BaseDatos::abrir(archivo);
    const Tabla& tabla = base.TableDefs()(0);
    Textos textos;
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        auto& celdas = textos.emplace_back();
        for (std::size_t i = 0; i < static_cast<std::size_t>(tabla.Fields.Count()); ++i) {
            const Valor valor = tabla.filas[fila][i];
            celdas.push_back(EsNulo(valor) ? "(nulo)" : ATexto(valor));
        }
    }
    return textos;
}

const Textos esperados{
    {"31/12/2025", "01/02/2024 15:30:00", "18:00:00", "Verdadero", "12,5", "0,125", "0045"},
    {"29/02/2000", "31/12/1999 0:00:01", "6:45:00", "Falso", "-1234,56", "1", "Ps"},
    {"(nulo)", "(nulo)", "(nulo)", "Falso", "(nulo)", "(nulo)", "(nulo)"}};

TEST(TextosDeCadaFormato, FechasVerdadesYMonedaSonLosDeUnaHojaEspanola) {
    RegistrarLibros();
    constexpr double segundo = 1.0 / 86400;
    const std::vector<std::vector<Valor>> valores{
        {Fecha{46022}, Fecha{45323 + 15.5 / 24}, Fecha{0.75}, true, 12.5, 0.125, "0045"},
        {Fecha{36585}, Fecha{36525 + segundo}, Fecha{0.28125}, false, -1234.56, 1.0, "Ps"},
        {Nulo{}, Nulo{}, Nulo{}, false, Nulo{}, Nulo{}, Nulo{}}};
    const std::vector<std::string> nombres{"Dia", "Momento", "Hora", "Sana", "Precio", "Parte", "Codigo"};
    Hoja hoja{"Varios", {{nombres.begin(), nombres.end()}}};
    hoja.celdas.insert(hoja.celdas.end(), valores.begin(), valores.end());
    const std::vector tipos{TipoMdb::FechaHora, TipoMdb::FechaHora, TipoMdb::FechaHora, TipoMdb::Booleano,
                            TipoMdb::Moneda,    TipoMdb::Doble,     TipoMdb::Texto};
    TablaMdb tabla{"Varios", {}, valores};
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        tabla.campos.push_back({nombres[i], tipos[i]});
    }

    const CarpetaTemporal carpeta;
    EscribirArchivoXls(carpeta / "v.xls", {hoja});
    EscribirBytes(carpeta / "v.xlsx", EscribirXlsx({hoja}));
    EscribirBytes(carpeta / "v.ods", EscribirOds({hoja}));
    EscribirArchivoMdb(carpeta / "v.mdb", {{tabla}});
    carpeta.Escribir("v.csv", "Dia;Momento;Hora;Sana;Precio;Parte;Codigo\r\n"
                              "31/12/2025;01/02/2024 15:30;18:00:00;VERDADERO;12,50 €;12,50%;0045\r\n"
                              "29/02/2000;31/12/1999 0:00:01;6:45:00;FALSO;-1.234,56 €;100%;Ps\r\n"
                              ";#N/D;#¡DIV/0!;FALSO;;;\r\n");
    for (const auto* archivo : {"v.xls", "v.xlsx", "v.ods", "v.mdb", "v.csv"}) {
        EXPECT_EQ(TextosDe(carpeta / archivo), esperados) << archivo;
    }
}

} // namespace
} // namespace varo::prueba
