// The map of a job: its format, its text, its pictures, and what is left when something fails.
#include "lote/Lote.h"
#include "lote/TrabajoDePrueba.h"
#include "lote/plantilla/Plantilla.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

/// The lines of a map's text that begin so.
std::vector<std::string> Lineas(const std::string& texto, const std::string& principio) {
    std::vector<std::string> halladas;
    std::istringstream entrada{texto};
    for (std::string linea; std::getline(entrada, linea);) {
        if (linea.starts_with(principio)) {
            halladas.push_back(linea);
        }
    }
    return halladas;
}

struct TrabajoConMapa {
    ParcelaDePrueba parcela;
    TextoDeTrabajo texto;

    explicit TrabajoConMapa(const std::string& formato = {}, const Filas& filas = CuadradoConCentro())
        : parcela{filas} {
        texto.opciones = "[formato]\n" + formato;
        texto.salida = "mapa = 'mapa.txt'\nresultados = 'indices.txt'\n";
    }
    std::string error() {
        const std::string ruta = parcela.ruta("trabajo.toml").string() + ": ";
        const auto fin = Correr(parcela, texto);
        EXPECT_EQ(fin.estado, Estado::Rechazado);
        EXPECT_TRUE(fin.error.starts_with(ruta)) << fin.error;
        return fin.error.substr(std::min(ruta.size(), fin.error.size()));
    }
    std::string mapa() {
        EXPECT_EQ(Correr(parcela, texto).error, "");
        return LeerArchivo(parcela.ruta("mapa.txt"));
    }
};

/// A painter that draws a line of text, or fails, where there is no font but Letra.
struct PintorDePrueba : PintorDeMapas {
    std::string pintar(const FrmMapa& mapa, const std::string& extension) override {
        if (extension == ".pdf") {
            throw ErrorEjecucion{5, "No se puede pintar"};
        }
        return extension + " de " + mapa.LbTitulo.Caption();
    }
    std::set<std::string> fuentesQueFaltan(std::set<std::string> fuentes) override {
        fuentes.erase("Letra");
        return fuentes;
    }
};

FinDeTrabajo CorrerConPintor(const ParcelaDePrueba& parcela, const TextoDeTrabajo& texto) {
    FinDeTrabajo fin;
    PintorDePrueba pintor;
    const Seguimiento seguimiento{.etapa = [](const std::string&) {},
                                  .aviso = [&](const std::string& aviso) { fin.avisos.push_back(aviso); }};
    try {
        fin.informe = CorrerTrabajo(InterpretarTrabajo(texto.texto(), parcela.ruta("trabajo.toml")),
                                    seguimiento, &pintor);
    } catch (const ErrorTrabajo& error) {
        fin.error = error.what();
        fin.estado = error.estado();
        fin.fallo = error.fallo();
    }
    return fin;
}

TEST(MapaDeTrabajo, ElFormatoDelTrabajoLlegaAlMapa) {
    TrabajoConMapa p{"titulo = 'Parcela 12'\ncolor = '#102030'\n"
                     "[formato.codigos.QP]\ntexto = 'rebollo'\nlinea = '#1B7837'\nfondo = '#D9F0D3'\n"};
    const std::string mapa = p.mapa();
    EXPECT_EQ(Lineas(mapa, "escala").size(), 1U);
    ASSERT_EQ(Lineas(mapa, "etiqueta\tLbTitulo").size(), 1U);
    EXPECT_TRUE(Lineas(mapa, "etiqueta\tLbTitulo")[0].ends_with("\t00302010\tParcela 12"));
    EXPECT_TRUE(Lineas(mapa, "etiqueta\tLbLeyenda(1)")[0].ends_with("\t0037781B\trebollo"));
    EXPECT_EQ(Lineas(mapa, "punto\t0\t10\t")[0], "punto\t0\t10\t0037781B");
    const auto arcos = Lineas(mapa, "arco\t0\t10\t");
    ASSERT_EQ(arcos.size(), 4U);
    EXPECT_TRUE(arcos[0].ends_with("\t0037781B\t00D3F0D9"));
    EXPECT_TRUE(Lineas(mapa, "arco\t10\t10\t")[0].ends_with("\t00400040\t-"));
    EXPECT_EQ(LeerArchivo(p.parcela.ruta("indices.txt")), resultadosSinIndices);
}

TEST(MapaDeTrabajo, LaFuenteDelTituloCambiaSuSitio) {
    const auto izquierda = [](const std::string& formato) {
        TrabajoConMapa p{formato};
        const std::string linea = Lineas(p.mapa(), "etiqueta\tLbTitulo").at(0);
        return linea.substr(0, linea.rfind('\t'));
    };
    EXPECT_NE(izquierda("titulo = 'A'\n"), izquierda("titulo = 'A'\nfuente = { tamano = 14 }\n"));
    EXPECT_EQ(izquierda("titulo = 'A'\n"), izquierda("titulo = 'A'\nfuente = { nombre = 'Times' }\n"));
}

TEST(MapaDeTrabajo, UnCodigoQueLaHojaNoTieneSeRechazaConLosQueTiene) {
    TrabajoConMapa p{"[formato.codigos.Ps]\ntexto = 'pino'\n"};
    EXPECT_EQ(p.error(), "línea 15: formato.codigos.Ps: la hoja no tiene el código «Ps»; tiene PS, QP");
    EXPECT_FALSE(fs::exists(p.parcela.ruta("mapa.txt")));
    EXPECT_FALSE(fs::exists(p.parcela.ruta("indices.txt")));
}

TEST(MapaDeTrabajo, SinCodigosNoHayFormatoDeCodigos) {
    TrabajoConMapa p{"[formato.codigos.PS]\n"};
    p.texto.opciones = "ChCodigo = 0\n" + p.texto.opciones;
    const std::string papel = "Codigo = \"Cod\"\n";
    p.texto.columnas.erase(p.texto.columnas.find(papel), papel.size());
    EXPECT_EQ(p.error(),
              "línea 15: formato.codigos.PS: el mapa no distingue códigos: hacen falta ChCodigo = 1 "
              "y una columna Codigo que los tenga");
}

TEST(MapaDeTrabajo, UnFalloEnUnaSalidaDejaLasDemasEscritas) {
    auto sinArea = CuadradoConCentro();
    sinArea.resize(3);
    TrabajoConMapa p{"", sinArea};
    p.texto.opciones = "ChN = 1\n";
    const auto fin = Correr(p.parcela, p.texto);
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 11);
    EXPECT_FALSE(LeerArchivo(p.parcela.ruta("mapa.txt")).empty());
    EXPECT_FALSE(fs::exists(p.parcela.ruta("indices.txt")));
}

TEST(MapaDeTrabajo, UnMapaQueNoSePuedeEscribirDejaLosResultados) {
    TrabajoConMapa p;
    fs::create_directory(p.parcela.ruta("mapa.txt"));
    const auto fin = Correr(p.parcela, p.texto);
    EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo);
    EXPECT_NE(fin.error.find("salida.mapa"), std::string::npos) << fin.error;
    EXPECT_EQ(LeerArchivo(p.parcela.ruta("indices.txt")), resultadosSinIndices);
}

TEST(MapaDeTrabajo, VariosMapasSeEscribenALaVezYAntesQueLosResultados) {
    TrabajoConMapa p;
    p.texto.salida = "resultados = 'indices.txt'\nmapa = ['sub/uno.txt', 'dos.TXT']\n";
    const auto fin = Correr(p.parcela, p.texto);
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(LeerArchivo(p.parcela.ruta("sub/uno.txt")), LeerArchivo(p.parcela.ruta("dos.TXT")));
    const auto etapa = [&](const std::string& resto) {
        return std::find_if(fin.etapas.begin(), fin.etapas.end(),
                            [&](const std::string& linea) { return linea.ends_with(resto); });
    };
    ASSERT_NE(etapa("dos.TXT"), fin.etapas.end());
    EXPECT_LT(etapa("uno.txt"), etapa("dos.TXT"));
    EXPECT_LT(etapa("dos.TXT"), etapa("calculando los índices"));
}

TEST(MapaDeTrabajo, LosDibujosLosHaceElPintorQueSeLeDa) {
    TrabajoConMapa p{"titulo = 'Ladera'\n"};
    p.texto.salida = "mapa = ['mapa.svg', 'mapa.txt']\n";
    const auto fin = CorrerConPintor(p.parcela, p.texto);
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(LeerArchivo(p.parcela.ruta("mapa.svg")), ".svg de Ladera");
    EXPECT_EQ(fin.avisos, std::vector<std::string>{}) << "las fuentes de diseño no las pidió nadie";
}

/// What a job with this format, title and all, is told of its fonts; its maps are these.
std::vector<std::string> AvisosDeFuentes(const std::string& formato,
                                         const std::string& mapas = "['mapa.svg', 'mapa.png', 'mapa.txt']") {
    TrabajoConMapa p{formato};
    p.texto.salida = "mapa = " + mapas + "\n";
    auto fin = CorrerConPintor(p.parcela, p.texto);
    EXPECT_EQ(fin.error, "");
    const std::string ruta = p.parcela.ruta("trabajo.toml").string() + ": ";
    for (std::string& aviso : fin.avisos) {
        aviso.erase(0, ruta.size());
    }
    return fin.avisos;
}

TEST(MapaDeTrabajo, UnaFuenteQueFaltaSeDiceUnaVezPorTrabajo) {
    EXPECT_EQ(
        AvisosDeFuentes("fuente = { nombre = 'Rara' }\n"),
        std::vector<std::string>{"formato: aviso: no está instalada la fuente «Rara»: el mapa se pinta con "
                                 "otra"});
    EXPECT_EQ(
        AvisosDeFuentes("fuente = { nombre = 'Rara' }\n"
                        "[formato.codigos.PS]\ntexto = 'a'\nfuente = { nombre = 'Otra' }\n"
                        "[formato.codigos.QP]\ntexto = 'b'\nfuente = { nombre = 'Rara' }\n"),
        std::vector<std::string>{"formato: aviso: no están instaladas las fuentes «Otra», «Rara»: el mapa se "
                                 "pinta con otras"});
    EXPECT_TRUE(AvisosDeFuentes("fuente = { nombre = 'Letra' }\n").empty());
}

TEST(MapaDeTrabajo, UnaFuenteDeDisenoQueElTrabajoNombraTambienSeDice) {
    for (const std::string fuente : {"Arial", "MS Sans Serif"}) {
        EXPECT_EQ(AvisosDeFuentes("fuente = { nombre = '" + fuente + "' }\n"),
                  std::vector<std::string>{"formato: aviso: no está instalada la fuente «" + fuente +
                                           "»: el mapa se pinta con otra"});
    }
    EXPECT_TRUE(AvisosDeFuentes("fuente = { tamano = 14 }\n").empty()) << "sin nombre queda la de diseño";
}

TEST(MapaDeTrabajo, LaFuenteDeUnTextoQueNoSeVeNoSeMira) {
    EXPECT_TRUE(AvisosDeFuentes("[formato.codigos.PS]\nfuente = { nombre = 'Rara' }\n").empty())
        << "una leyenda empieza sin texto";
    EXPECT_TRUE(AvisosDeFuentes("titulo = '  '\nfuente = { nombre = 'Rara' }\n").empty());
    EXPECT_TRUE(AvisosDeFuentes("fuente = { nombre = 'Rara' }\n", "'mapa.txt'").empty())
        << "lo que no se pinta no tiene letras";
}

TEST(MapaDeTrabajo, UnDibujoQueFallaDejaLosOtrosYLoDice) {
    TrabajoConMapa p;
    p.texto.salida = "mapa = ['mapa.pdf', 'mapa.png']\nresultados = 'indices.txt'\n";
    const auto fin = CorrerConPintor(p.parcela, p.texto);
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_NE(fin.error.find("salida.mapa: Error 5: No se puede pintar"), std::string::npos) << fin.error;
    EXPECT_FALSE(fs::exists(p.parcela.ruta("mapa.pdf")));
    EXPECT_TRUE(fs::exists(p.parcela.ruta("mapa.png")));
    EXPECT_TRUE(fs::exists(p.parcela.ruta("indices.txt")));
}

TEST(MapaDeTrabajo, DosFallosSeDicenLosDosYCuentaElPrimero) {
    auto sinArea = CuadradoConCentro();
    sinArea.resize(3);
    TrabajoConMapa p{"", sinArea};
    p.texto.opciones = "ChN = 1\n";
    fs::create_directory(p.parcela.ruta("mapa.txt"));
    const auto fin = Correr(p.parcela, p.texto);
    EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo);
    ASSERT_EQ(fin.avisos.size(), 3U) << "los dos primeros son de la revisión";
    EXPECT_NE(fin.avisos[2].find("cálculo de los índices: Error 11"), std::string::npos) << fin.avisos[2];
}

TEST(MapaDeTrabajo, TodosLosArbolesEnUnPuntoEsUnAvisoYElTrabajoSigue) {
    auto filas = CuadradoConCentro();
    filas.resize(2);
    TrabajoConMapa p{"", filas};
    const auto fin = Correr(p.parcela, p.texto);
    ASSERT_EQ(fin.error, "");
    ASSERT_EQ(fin.avisos.size(), 2U) << "el primero es de la revisión";
    EXPECT_TRUE(
        fin.avisos[1].ends_with("dibujo del mapa: aviso: todos los árboles están en el mismo punto: no "
                                "hay nada que dibujar en el mapa"))
        << fin.avisos[1];
    EXPECT_EQ(LeerArchivo(p.parcela.ruta("mapa.txt")),
              "escala\t0\t0\t0\t0\netiqueta\tLbTitulo\t0\t0\t00400040\tTodos los árboles están en el mismo "
              "punto\n");
}

TEST(MapaDeTrabajo, LaPlantillaTraeElFormatoConLosCodigosDeLaHoja) {
    auto filas = CuadradoConCentro();
    filas[2][7] = 12.5;
    filas[3][7] = std::string{"con \"comillas\" y blancos"};
    filas[4][7] = 7.0;
    filas[5][7] = {};
    const ParcelaDePrueba parcela{filas};
    const std::string plantilla = PlantillaDeTrabajo(parcela.ruta("parcela.xls"));
    const Trabajo trabajo = InterpretarTrabajo(plantilla, parcela.ruta("trabajo.toml"));
    ASSERT_TRUE(trabajo.formato);
    EXPECT_EQ(trabajo.formato->titulo->valor, "Parcela Parcela1");
    std::vector<std::string> codigos;
    for (const auto& codigo : trabajo.formato->codigos) {
        codigos.push_back(codigo.codigo);
        EXPECT_EQ(codigo.texto->valor, codigo.codigo);
    }
    std::sort(codigos.begin(), codigos.end());
    EXPECT_EQ(codigos, (std::vector<std::string>{"12,5", "7", "PS", "con \"comillas\" y blancos"}));
    EXPECT_EQ(CorrerTrabajo(trabajo).arboles, 5);
}

TEST(MapaDeTrabajo, LosColoresDeLaPlantillaSonLosDeDiseno) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = "mapa = 'sin.txt'\n";
    texto.opciones = "[formato]\ntitulo = 'Parcela Parcela1'\n[formato.codigos.PS]\ntexto = 'PS'\n"
                     "[formato.codigos.QP]\ntexto = 'QP'\n";
    ASSERT_EQ(Correr(parcela, texto).error, "");
    Trabajo trabajo =
        InterpretarTrabajo(PlantillaDeTrabajo(parcela.ruta("parcela.xls")), parcela.ruta("trabajo.toml"));
    trabajo.resultados.reset();
    trabajo.mapas = {{parcela.ruta("con.txt"), 0}};
    CorrerTrabajo(trabajo);
    EXPECT_EQ(LeerArchivo(parcela.ruta("con.txt")), LeerArchivo(parcela.ruta("sin.txt")));
}

} // namespace
} // namespace varo::prueba
