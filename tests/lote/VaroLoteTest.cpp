// The command itself, as a person or a script runs it.
#include "apoyo/EscritorMdb.h"
#include "apoyo/Lugares.h"
#include "apoyo/Proceso.h"
#include "basico/Texto.h"
#include "lote/TrabajoDePrueba.h"
#include "motor/BaseDatos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

Proceso VaroLote(const std::vector<std::string>& argumentos) {
    return Ejecutar(ProgramaLote(), argumentos);
}

/// Writes a job into the plot's folder, with its own results file, and hands back its path.
std::string Escribir(const ParcelaDePrueba& parcela, const std::string& nombre, TextoDeTrabajo texto = {}) {
    texto.salida = "resultados = '" + nombre + ".txt'\n";
    return parcela.escribir(nombre + ".toml", texto.texto()).string();
}

TextoDeTrabajo ConOpciones(const std::string& opciones) {
    TextoDeTrabajo texto;
    texto.opciones = opciones;
    return texto;
}

TEST(VaroLote, UnTrabajoHechoAcabaConCeroYUnaLineaDeResumen) {
    const ParcelaDePrueba parcela;
    const auto trabajo = Escribir(parcela, "uno");
    const auto final = VaroLote({trabajo});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.salida, trabajo + ": 5 árboles, superficie de la parcela: 100,0 m2, 2 columnas -> " +
                                parcela.ruta("uno.txt").string() + "\n");
    EXPECT_EQ(final.errores, "") << "sin terminal no se cuenta el avance";
    EXPECT_EQ(LeerArchivo(parcela.ruta("uno.txt")), resultadosSinIndices);
}

TEST(VaroLote, EnUnTerminalElAvanceEsUnaLineaQueAlFinalSeBorra) {
    if (!std::filesystem::exists("/dev/pts/ptmx")) {
        GTEST_SKIP() << "este sistema no da terminales";
    }
    const ParcelaDePrueba parcela;
    const auto uno = Escribir(parcela, "uno");
    const auto dos = Escribir(parcela, "dos", ConOpciones("ChX = 1\n"));
    const std::string vacia = "\r\x1b[K";
    const auto final = EjecutarEnTerminal(ProgramaLote(), {uno, dos});
    EXPECT_EQ(final.estado, 2);
    EXPECT_TRUE(final.errores.starts_with(vacia + "0 de 2 trabajos; ")) << final.errores;
    EXPECT_EQ(std::count(final.errores.begin(), final.errores.end(), '\n'), 1) << "la del error";
    // Whatever was shown last is wiped.
    const auto borrada = final.errores.rfind(vacia);
    const auto resto = final.errores.substr(borrada + vacia.size());
    EXPECT_TRUE(resto.empty() || resto.ends_with("\r\n")) << resto;
    EXPECT_EQ(std::count(final.salida.begin(), final.salida.end(), '\n'), 1);
    EXPECT_EQ(final.salida.find('\r'), std::string::npos);
}

TEST(VaroLote, LosBytesNoDependenDeLosHilos) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto = ConOpciones("ChSupCopa = 1\nOptcirc = true\nChISCBil = 1\nChISCUni = 1\n");
    texto.salida = "resultados = 'uno.txt'\n";
    const auto trabajo = parcela.escribir("uno.toml", texto.texto()).string();
    ASSERT_EQ(VaroLote({trabajo, "--hilos", "1"}).estado, 0);
    const std::string enUno = LeerArchivo(parcela.ruta("uno.txt"));
    EXPECT_NE(enUno.find("ISC"), std::string::npos);
    for (const std::string hilos : {"2", "7"}) {
        fs::remove(parcela.ruta("uno.txt"));
        EXPECT_EQ(VaroLote({trabajo, "--hilos", hilos}).estado, 0);
        EXPECT_EQ(LeerArchivo(parcela.ruta("uno.txt")), enUno) << hilos;
    }
}

TEST(VaroLote, LosMapasSePintanSinPantalla) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = "mapa = ['m.svg', 'm.pdf', 'm.png', 'm.txt']\n";
    const auto final = VaroLote({parcela.escribir("mapa.toml", texto.texto()).string()});
    EXPECT_EQ(final.estado, 0) << final.errores;
    EXPECT_NE(LeerArchivo(parcela.ruta("m.svg")).find("<svg"), std::string::npos);
    EXPECT_TRUE(LeerArchivo(parcela.ruta("m.pdf")).starts_with("%PDF-"));
    EXPECT_TRUE(LeerArchivo(parcela.ruta("m.png")).starts_with("\x89PNG"));
    EXPECT_TRUE(LeerArchivo(parcela.ruta("m.txt")).starts_with("escala\t"));
}

TEST(VaroLote, CadaFinTieneSuEstadoYUnaSolaLineaDeError) {
    const ParcelaDePrueba parcela;
    auto sinArea = CuadradoConCentro();
    sinArea.resize(3);
    const ParcelaDePrueba lineal{sinArea};
    TextoDeTrabajo sinParcela;
    sinParcela.parcela = "archivo = 'no_esta.xls'\nhoja = 'H'\n";
    struct Caso {
        std::vector<std::string> argumentos;
        int estado;
    };
    const std::vector<Caso> casos{
        {{}, 2},
        {{"--otra"}, 2},
        {{"--trabajos", "0", Escribir(parcela, "a")}, 2},
        {{parcela.escribir("roto.toml", "archivo = ").string()}, 2},
        {{Escribir(parcela, "clave", ConOpciones("ChX = 1\n"))}, 2},
        {{Escribir(lineal, "fallo", ConOpciones("ChN = 1\n"))}, 3},
        {{parcela.ruta("no_esta.toml").string()}, 4},
        {{Escribir(parcela, "sin_parcela", sinParcela)}, 4},
        {{Escribir(parcela, "b"), "--salida", Escribir(parcela, "c")}, 4},
        {{"--tablas", parcela.ruta("no_esta.xls").string()}, 4},
        {{"--plantilla", parcela.escribir("basura.xls", "nada").string()}, 4},
    };
    for (const auto& [argumentos, estado] : casos) {
        const auto final = VaroLote(argumentos);
        const std::string cuales = argumentos.empty() ? "(ninguno)" : argumentos.back();
        EXPECT_EQ(final.estado, estado) << cuales;
        EXPECT_EQ(final.salida, "") << cuales;
        // What looks wrong with the plot without an area stands above the error.
        EXPECT_EQ(std::count(final.errores.begin(), final.errores.end(), '\n'), estado == 3 ? 3 : 1)
            << cuales << final.errores;
        EXPECT_TRUE(!final.errores.empty() && final.errores.back() == '\n') << cuales;
    }
}

TEST(VaroLote, ConVariosTrabajosSeCorrenTodosYCuentaElPrimeroQueFalla) {
    auto sinArea = CuadradoConCentro();
    sinArea.resize(3);
    const ParcelaDePrueba lineal{sinArea};
    const ParcelaDePrueba parcela;
    const auto bueno = Escribir(parcela, "bueno");
    const auto fallo = Escribir(lineal, "fallo", ConOpciones("ChN = 1\n"));
    const auto roto = parcela.escribir("roto.toml", "archivo = ").string();
    const auto ausente = parcela.ruta("no_esta.toml").string();
    EXPECT_EQ(VaroLote({fallo, roto, ausente, bueno}).estado, 3);
    EXPECT_TRUE(fs::exists(parcela.ruta("bueno.txt")));
    const auto final = VaroLote({bueno, ausente, roto, fallo});
    EXPECT_EQ(final.estado, 4);
    EXPECT_EQ(std::count(final.salida.begin(), final.salida.end(), '\n'), 1);
    EXPECT_EQ(std::count(final.errores.begin(), final.errores.end(), '\n'), 5) << "tres errores y dos avisos";
    EXPECT_LT(final.errores.find("no_esta.toml"), final.errores.find("roto.toml"));
    EXPECT_LT(final.errores.find("roto.toml"), final.errores.find("fallo.toml"));
    EXPECT_EQ(VaroLote({roto, ausente, "--trabajos", "2"}).estado, 2);
}

TEST(VaroLote, LaLineaDeOrdenesPuedeMasQueElTrabajo) {
    const ParcelaDePrueba parcela;
    Hoja hoja;
    hoja.nombre = "Otra";
    hoja.celdas = CuadradoConCentro();
    for (std::size_t fila = 1; fila < hoja.celdas.size(); ++fila) {
        hoja.celdas[fila][0] = 10.0 * static_cast<double>(fila);
    }
    EscribirArchivoXls(parcela.ruta("otra.xls"), {hoja});
    const auto trabajo = Escribir(parcela, "uno");
    const auto final = VaroLote({trabajo, "--archivo", parcela.ruta("otra.xls").string(), "--hoja", "Otra$",
                                 "--salida", parcela.ruta("a/b").string()});
    EXPECT_EQ(final.estado, 0) << final.errores;
    EXPECT_FALSE(fs::exists(parcela.ruta("uno.txt")));
    EXPECT_EQ(LeerArchivo(parcela.ruta("a/b/uno.txt")), "N\xBAOrden\tN\xBA"
                                                        "Arbol\r\n1\t10\r2\t20\r3\t30\r4\t40\r5\t50\r\r\n");
}

TEST(VaroLote, DosTrabajosSobreElMismoArchivoSeRechazanAntesDeEmpezar) {
    const ParcelaDePrueba parcela;
    const auto uno = Escribir(parcela, "uno");
    const auto final = VaroLote({uno, uno});
    EXPECT_EQ(final.estado, 2);
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "es también una salida de", final.errores.c_str());
    EXPECT_FALSE(fs::exists(parcela.ruta("uno.txt")));
}

TEST(VaroLote, VariosALaVezDanLosMismosBytesYElMismoOrden) {
    const ParcelaDePrueba parcela;
    const std::vector<std::string> opciones{"ChN = 1\n",    "ChAB = 1\n",     "ChABj = 1\n",
                                            "ChDdom = 1\n", "ChAPBsum = 1\n", "ChDmed = 1\nChBmed = 1\n",
                                            "ChX = 1\n",    "Optcm = true\n"};
    std::vector<std::string> trabajos;
    for (const auto& opcion : opciones) {
        trabajos.push_back(Escribir(parcela, "t" + std::to_string(trabajos.size()), ConOpciones(opcion)));
    }
    const auto correr = [&](const std::string& carpeta, const std::string& aLaVez) {
        auto argumentos = trabajos;
        argumentos.insert(argumentos.end(),
                          {"--salida", parcela.ruta(carpeta).string(), "--trabajos", aLaVez});
        const auto final = VaroLote(argumentos);
        EXPECT_EQ(final.estado, 2);
        return final.salida;
    };
    const std::string uno = correr("uno", "1");
    const std::string cuatro = correr("dos", "4");
    EXPECT_EQ(std::count(uno.begin(), uno.end(), '\n'), 7);
    EXPECT_EQ(Reemplazar(cuatro, parcela.ruta("dos").string(), parcela.ruta("uno").string()), uno);
    for (std::size_t i = 0; i < trabajos.size(); ++i) {
        const std::string nombre = "t" + std::to_string(i) + ".txt";
        if (opciones[i] != "ChX = 1\n") {
            EXPECT_EQ(LeerArchivo(parcela.ruta("dos/" + nombre)), LeerArchivo(parcela.ruta("uno/" + nombre)));
        }
    }
}

TEST(VaroLote, QuienDejaDeLeerNoAcabaConLosTrabajos) {
    const ParcelaDePrueba parcela;
    std::vector<std::string> argumentos{"-c", "{ sleep 0.3; \"$@\"; echo \"acaba con $?\" >&2; } | :", "sh",
                                        ProgramaLote().string()};
    for (const char* const nombre : {"uno", "dos", "tres"}) {
        argumentos.push_back(Escribir(parcela, nombre));
    }
    const auto final = Ejecutar("/bin/sh", argumentos);
    EXPECT_EQ(final.errores, "varo-lote: no se puede escribir en la salida\nacaba con 4\n");
    for (const char* const nombre : {"uno.txt", "dos.txt", "tres.txt"}) {
        EXPECT_EQ(LeerArchivo(parcela.ruta(nombre)), resultadosSinIndices);
    }
}

/// A job over 2,500 trees whose computation lasts for minutes.
std::string TrabajoLargo(const ParcelaDePrueba& parcela) {
    using T = std::string;
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = {{T{"Arbol"}, T{"X"}, T{"Y"}, T{"Radio"}, T{"DAP"}, T{"Nota"}}};
    for (int i = 0; i < 2500; ++i) {
        const int hilera = i / 50;
        hoja.celdas.push_back({i + 1.0, i % 50 * 1.0, hilera * 1.0, 10.0, 20.0 + i % 7});
    }
    EscribirArchivoXls(parcela.ruta("larga.xls"), {hoja});
    TextoDeTrabajo texto;
    texto.parcela = "archivo = 'larga.xls'\nhoja = 'Parcela1$'\n";
    texto.columnas = "X = 'X'\nY = 'Y'\nRadio = 'Radio'\nIndice = 'Arbol'\nDAP = 'DAP'\n";
    texto.opciones = "OptRM = true\nChCodigo = 0\nChIDPActivar = 1\n\"OptRadioFijo(0)\" = true\n"
                     "\"TxtBAF1(0)\" = '10'\n\"TxtBAF2(0)\" = '20'\n\"TxtBAF3(0)\" = '0,01'\n";
    return Escribir(parcela, "largo", texto);
}

TEST(VaroLote, UnaSenalAcabaConLaCorridaSinDejarNada) {
    const ParcelaDePrueba parcela;
    const auto trabajo = TrabajoLargo(parcela);
    parcela.escribir("largo.txt", "lo de antes");
    const auto entradas = [&] {
        return std::distance(fs::directory_iterator{parcela.ruta("")}, fs::directory_iterator{});
    };
    const auto antes = entradas();
    for (const auto& [senal, estado] : {std::pair{"TERM", 128 + 15}, {"HUP", 128 + 1}}) {
        const auto final =
            Ejecutar("/bin/sh", {"-c", "\"$1\" \"$2\" & sleep 1; kill -0 $! && kill -$3 $!; wait $!", "sh",
                                 ProgramaLote().string(), trabajo, senal});
        EXPECT_EQ(final.estado, estado) << final.errores;
        EXPECT_EQ(final.salida, "");
        EXPECT_EQ(entradas(), antes);
        EXPECT_EQ(LeerArchivo(parcela.ruta("largo.txt")), "lo de antes");
    }
}

TEST(VaroLote, UnAvisoVaALosErroresYNoCambiaElEstado) {
    auto filas = CuadradoConCentro();
    for (auto& fila : filas) {
        fila.insert(fila.end() - 1, Valor{}); // a column without cells before the last one
    }
    filas[0][9] = std::string{"Vacía"};
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas = "X = 2\nY = 3\nN = 4\nE = 5\nS = 6\nO = 7\nIndice = 1\nCodigo = 8\nDAP = 10\n";
    const auto trabajo = Escribir(parcela, "uno", texto);
    const auto final = VaroLote({trabajo});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.errores,
              trabajo +
                  ": línea 12: columnas.DAP: aviso: la columna 10 («Vacía») no tiene datos en la "
                  "rejilla\n" +
                  trabajo + ": 1 aviso: 1 por mirar; los explica varo-lote --revisar " + trabajo + "\n");
}

TEST(VaroLote, RevisarDiceLoQueVeYNoCalculaNada) {
    auto filas = CuadradoConCentro();
    filas[5][8] = std::string{"12.5"};
    const ParcelaDePrueba parcela{filas};
    const auto trabajo = Escribir(parcela, "uno", ConOpciones("ChAB = 1\n"));
    const auto final = VaroLote({"--revisar", trabajo});
    EXPECT_EQ(final.estado, 5);
    EXPECT_EQ(final.errores, "");
    EXPECT_TRUE(final.salida.starts_with(trabajo + ": 1 aviso: 1 de cifras equivocadas\n")) << final.salida;
    EXPECT_NE(final.salida.find("\ncifras    6     5      CAP      12.5\n"), std::string::npos)
        << final.salida;
    EXPECT_FALSE(fs::exists(parcela.ruta("uno.txt")));
    const auto conTabuladores = VaroLote({"--revisar", "--tsv", trabajo});
    EXPECT_TRUE(conTabuladores.salida.starts_with("trabajo\tgravedad\tfila\t"));
    EXPECT_NE(conTabuladores.salida.find("\n" + trabajo + "\tcifras\t6\t5\tCAP\t12.5\tLa celda dice "),
              std::string::npos)
        << conTabuladores.salida;
}

TEST(VaroLote, RevisarVariosTrabajosAcabaComoElPeor) {
    const ParcelaDePrueba parcela;
    auto mediaCoordenada = CuadradoConCentro();
    mediaCoordenada[5][2] = Valor{};
    const ParcelaDePrueba rota{mediaCoordenada};
    const auto bueno = Escribir(parcela, "bueno");
    const auto malo = Escribir(rota, "malo");
    const auto cifras =
        Escribir(parcela, "cifras", ConOpciones("Optcirc = true\nChSupCopa = 1\nChISCBil = 0\n"));
    EXPECT_EQ(VaroLote({"--revisar", bueno}).estado, 0);
    EXPECT_EQ(VaroLote({"--revisar", cifras, bueno}).estado, 5);
    EXPECT_EQ(VaroLote({"--revisar", bueno, malo, cifras}).estado, 3);
    const auto final = VaroLote({"--revisar", malo, parcela.ruta("no_esta.toml").string(), bueno});
    EXPECT_EQ(final.estado, 4);
    EXPECT_EQ(std::count(final.errores.begin(), final.errores.end(), '\n'), 1);
    EXPECT_NE(final.salida.find(bueno + ": sin avisos\n"), std::string::npos);
}

TEST(VaroLote, TablasEnumeraLasTablasYSusCampos) {
    const ParcelaDePrueba parcela;
    Hoja hoja;
    hoja.nombre = "Otra";
    hoja.celdas = {{std::string{"Con\nsalto"}, std::string{"Nota"}}, {1.0, 2.0}, {3.0, 4.0}};
    Hoja vacia;
    vacia.nombre = "Sola";
    vacia.celdas = {{std::string{"Nota"}}, {1.0}};
    EscribirArchivoXls(parcela.ruta("otra.xls"), {hoja, vacia});
    const auto final = VaroLote({"--tablas", parcela.ruta("otra.xls").string()});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.salida, "Otra$ (2 filas)\n"
                            "   1  Con salto\n"
                            "   2  Nota (última: sus datos no llegan a la rejilla)\n"
                            "Sola$ (1 fila)\n"
                            "   1  Nota (última: sus datos no llegan a la rejilla)\n");
    EXPECT_EQ(final.errores, "");
}

TEST(VaroLote, LasTablasDeUnaBaseDeDatosSeListanYLaQueNoSeLeeDicePorQue) {
    const ParcelaDePrueba parcela;
    TablaMdb vinculada{"De otro", {}, {}};
    vinculada.vinculada = true;
    EscribirArchivoMdb(parcela.ruta("p.mdb"),
                       {{{"Parcela", {{"X", TipoMdb::Doble}, {"Nota"}}, {}}, vinculada}});
    const auto final = VaroLote({"--tablas", parcela.ruta("p.mdb").string()});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.salida, "Parcela (0 filas)\n"
                            "   1  X\n"
                            "   2  Nota (última: sus datos no llegan a la rejilla)\n"
                            "De otro (no se puede abrir)\n"
                            "      No se puede leer la tabla «De otro» de «" +
                                parcela.ruta("p.mdb").string() +
                                "»: está vinculada, y sus filas están en otro archivo: abra ese archivo\n");
}

/// Runs the job of the plot's workbook, and the same one with this file of the same folder. Their files are
/// the same.
void DaLosMismosResultados(const ParcelaDePrueba& parcela, const std::string& archivo,
                           const std::string& hoja) {
    const std::string opciones = "Opt4R = true\nChCodigo = 1\nOptCAP = true\nChN = 1\nChAB = 1\nChDmed = 1\n"
                                 "ChSupCopa = 1\nOptcirc = true\nChISCBil = 1\n";
    auto texto = ConOpciones(opciones);
    texto.salida = "resultados = 'xls.txt'\ndatos = 'xls.datos'\n";
    const auto deLibro = parcela.escribir("xls.toml", texto.texto()).string();
    texto.parcela = "archivo = '" + archivo + "'\nhoja = '" + hoja + "'\n";
    texto.salida = "resultados = 'otro.txt'\ndatos = 'otro.datos'\n";
    const auto deOtro = parcela.escribir("otro.toml", texto.texto()).string();
    const auto final = VaroLote({deLibro, deOtro});
    EXPECT_EQ(final.estado, 0) << final.errores;
    EXPECT_NE(LeerArchivo(parcela.ruta("xls.txt")).find("ISC"), std::string::npos);
    EXPECT_EQ(LeerArchivo(parcela.ruta("xls.txt")), LeerArchivo(parcela.ruta("otro.txt")));
    EXPECT_EQ(LeerArchivo(parcela.ruta("xls.datos")), LeerArchivo(parcela.ruta("otro.datos")));
}

TEST(VaroLote, UnaBaseDeDatosDaLosMismosResultadosQueUnLibro) {
    const ParcelaDePrueba parcela;
    const auto libro = BaseDatos::abrir(parcela.ruta("parcela.xls"));
    EscribirArchivoMdb(parcela.ruta("parcela.mdb"), {{EnTablaMdb(libro.TableDefs()(0))}});
    DaLosMismosResultados(parcela, "parcela.mdb", "Parcela1$");
}

/// A table as a text of cells, with the decimal mark that its separator goes with.
std::string EnCsv(const Tabla& tabla, char separador) {
    std::string texto;
    for (const auto& campo : tabla.Fields) {
        texto += (texto.empty() ? "" : std::string{separador}) + campo.Name;
    }
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        texto += "\r\n";
        for (std::size_t i = 0; i < static_cast<std::size_t>(tabla.Fields.Count()); ++i) {
            const auto& valor = tabla.filas[fila][i];
            const auto celda = EsNulo(valor) ? "" : ATexto(valor);
            texto += (i == 0 ? "" : std::string{separador}) +
                     (separador == ',' ? Reemplazar(celda, ",", ".") : celda);
        }
    }
    return texto;
}

TEST(VaroLote, UnTextoDeCeldasDaLosMismosResultadosQueUnLibro) {
    const ParcelaDePrueba parcela;
    const auto libro = BaseDatos::abrir(parcela.ruta("parcela.xls"));
    for (const char separador : {',', ';', '\t'}) {
        parcela.escribir("Parcela1.csv", EnCsv(libro.TableDefs()(0), separador));
        DaLosMismosResultados(parcela, "Parcela1.csv", "Parcela1$");
    }
}

TEST(VaroLote, LaTablaDeUnTextoDeCeldasSeLista) {
    const ParcelaDePrueba parcela;
    const auto archivo = parcela.escribir("de campo.csv", "X;Y;Nota\n1,5;2;\n\n2,5;3;fin\n").string();
    const auto final = VaroLote({"--tablas", archivo});
    EXPECT_EQ(final.estado, 0);
    EXPECT_EQ(final.salida, "de campo$ (3 filas)\n"
                            "   1  X\n"
                            "   2  Y\n"
                            "   3  Nota (última: sus datos no llegan a la rejilla)\n");
    EXPECT_EQ(final.errores, "");
}

TEST(VaroLote, UnaTablaQueNoSePuedeLeerDicePorQue) {
    const ParcelaDePrueba parcela;
    TablaMdb vinculada{"De otro", {}, {}};
    vinculada.vinculada = true;
    EscribirArchivoMdb(parcela.ruta("p.mdb"), {{vinculada}});
    TextoDeTrabajo texto;
    texto.parcela = "archivo = 'p.mdb'\nhoja = 'De otro'\n";
    const auto final = VaroLote({Escribir(parcela, "uno", texto)});
    EXPECT_EQ(final.estado, 4) << final.errores;
    EXPECT_NE(final.errores.find("está vinculada, y sus filas están en otro archivo"), std::string::npos)
        << final.errores;
}

TEST(VaroLote, LaPlantillaEscritaEnUnArchivoSePuedeCorrer) {
    const ParcelaDePrueba parcela;
    const auto plantilla = VaroLote({"--plantilla", parcela.ruta("parcela.xls").string()});
    EXPECT_EQ(plantilla.estado, 0);
    const auto trabajo = parcela.escribir("trabajo.toml", plantilla.salida).string();
    const auto final = VaroLote({trabajo});
    EXPECT_EQ(final.estado, 0) << final.errores;
    EXPECT_TRUE(fs::exists(parcela.ruta("indices.txt")));
}

TEST(VaroLote, LaAyudaYLaVersionSalenPorLaSalida) {
    const auto ayuda = VaroLote({"--help"});
    EXPECT_EQ(ayuda.estado, 0);
    EXPECT_EQ(ayuda.errores, "");
    EXPECT_EQ(ayuda.salida.substr(0, 8), "Calcula ");
    const auto version = VaroLote({"--version"});
    EXPECT_EQ(version.estado, 0);
    EXPECT_EQ(version.salida.substr(0, 10), "varo-lote ");
}

} // namespace
} // namespace varo::prueba
