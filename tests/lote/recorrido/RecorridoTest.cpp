#include "lote/recorrido/Recorrido.h"

#include "indices/archivo/FrmCrearArchivo.h"
#include "lote/TrabajoDePrueba.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <functional>

namespace varo::prueba {
namespace {

namespace fs = std::filesystem;

std::string ErrorDeClave(const ParcelaDePrueba& parcela, const std::string& resto) {
    return parcela.ruta("trabajo.toml").string() + ": " + resto;
}

TEST(Recorrido, UnTrabajoSinIndicesEscribeElOrdenYElNumeroDeCadaArbol) {
    const ParcelaDePrueba parcela;
    const auto fin = Correr(parcela, {});
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), resultadosSinIndices);
    EXPECT_EQ(fin.informe->arboles, 5);
    EXPECT_EQ(fin.informe->superficie, 100);
    EXPECT_EQ(fin.informe->columnas, 2);
    EXPECT_TRUE(fin.avisos.empty());
}

TEST(Recorrido, LosIndicesPedidosSalenEnSusColumnas) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.opciones = "ChDmax = 1\nChBmax = 1\n"; // sizes 100, 80, 60, 40, 50; their ratios and squares
    const auto fin = Correr(parcela, texto);
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")),
              "N\xBAOrden\tN\xBA"
              "Arbol\tdi/dmax\tbi/bmax\r\n"
              "1\t1\t1,00\t1,00\r2\t2\t0,80\t0,64\r3\t3\t0,60\t0,36\r"
              "4\t4\t0,40\t0,16\r5\t5\t0,50\t0,25\r\r\n");
    EXPECT_EQ(fin.informe->columnas, 4);
}

TEST(Recorrido, UnTrabajoDaLosMismosBytesQueUnaPersona) {
    const auto pedir = [](Usuario& usuario, OpcionesPrograma& opciones) {
        for (Control* casilla : std::initializer_list<Control*>{
                 &opciones.ChN, &opciones.ChAB, &opciones.ChABj, &opciones.ChDdom, &opciones.ChAPBsum}) {
            usuario.clic(*casilla);
        }
        usuario.clic(opciones.Optmetro);
    };
    Jornada jornada;
    jornada.abrirParcela(CuadradoConCentro());
    jornada.cambiarOpciones([&](OpcionesPrograma& opciones) { pedir(jornada.usuario, opciones); });
    jornada.dibujarCuadrado();
    jornada.usuario.clic(jornada.programa.tocar<FrmMapa>().mnuIndices);
    auto& crear = jornada.programa.tocar<FrmCrearArchivo>();
    crear.DirLista.Path(jornada.carpeta.ruta().string());
    jornada.usuario.escribir(crear.TxtLista, "a_mano.txt");
    jornada.servicios.esperarMensaje(jornada.carpeta.archivo("a_mano.txt") + " fue creado correctamente");
    jornada.usuario.clic(crear.CmdAceptar);

    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.opciones = "ChN = 1\nChAB = 1\nChABj = 1\nChDdom = 1\nChAPBsum = 1\nOptmetro = true\n";
    ASSERT_EQ(Correr(parcela, texto).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), LeerArchivo(jornada.carpeta.ruta() / "a_mano.txt"));
}

TEST(Recorrido, SinSalidasLlegaHastaElMapa) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = {};
    const auto fin = Correr(parcela, texto);
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(fin.informe->superficie, 100);
    EXPECT_EQ(fin.informe->columnas, 0);
    EXPECT_FALSE(fs::exists(parcela.ruta("indices.txt")));
}

TEST(Recorrido, ElInformeDiceArbolesSuperficieYArchivo) {
    Trabajo trabajo;
    Informe informe{.arboles = 60, .superficie = 1102.95, .columnas = 17};
    EXPECT_EQ(informe.texto(trabajo), "60 árboles, superficie de la parcela: 1103,0 m2");
    trabajo.resultados = SalidaPedida{"d/indices.txt", 0};
    EXPECT_EQ(informe.texto(trabajo),
              "60 árboles, superficie de la parcela: 1103,0 m2, 17 columnas -> d/indices.txt");
    informe = {.arboles = 1, .superficie = 0, .columnas = 2};
    EXPECT_EQ(informe.texto(trabajo),
              "1 árbol, superficie de la parcela: 0,0 m2, 2 columnas -> d/indices.txt");
    trabajo.mapas = {{"d/m.txt", 0}, {"m.svg", 0}};
    EXPECT_EQ(informe.texto(trabajo), "1 árbol, superficie de la parcela: 0,0 m2, mapa -> d/m.txt, "
                                      "mapa -> m.svg, 2 columnas -> d/indices.txt");
}

TEST(Recorrido, CadaEtapaSeAnuncia) {
    const ParcelaDePrueba parcela;
    const auto fin = Correr(parcela, {});
    const std::vector<std::string> etapas{
        ErrorDeClave(parcela, "abriendo " + parcela.ruta("parcela.xls").string()),
        ErrorDeClave(parcela, "dibujando el mapa"), ErrorDeClave(parcela, "calculando los índices"),
        ErrorDeClave(parcela, "escribiendo " + parcela.ruta("indices.txt").string())};
    EXPECT_EQ(fin.etapas, etapas);
}

TEST(Recorrido, UnDibujoSinQuienLoPinteSeRechazaAntesDeAbrirNada) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.parcela = "archivo = 'no_esta.xls'\nhoja = 'H'\n";
    texto.salida = "mapa = 'm.svg'\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.estado, Estado::Rechazado);
    EXPECT_EQ(fin.error,
              ErrorDeClave(parcela, "línea 15: salida.mapa: aquí no se escriben mapas .svg, .pdf ni .png: "
                                    "pida un .txt"));
}

TEST(Recorrido, UnaFamiliaApagadaPorEscritoNoEstorba) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.opciones = "ChSupCopa = 0\nChAOIActivar = false\nChIDPActivar = 0\nChDRActivar = 0\nChAPA = 0\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
}

TEST(Recorrido, UnaOpcionRechazadaAcabaConElTrabajoSinEscribirNada) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.opciones = "ChX = 1\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.error,
              ErrorDeClave(parcela, "línea 14: opciones.ChX: clave desconocida: no hay ningún control con "
                                    "ese nombre"));
    EXPECT_EQ(fin.estado, Estado::Rechazado);
    EXPECT_FALSE(fs::exists(parcela.ruta("indices.txt")));
}

TEST(Recorrido, UnaParcelaQueNoSePuedeLeerEsUnErrorDeArchivo) {
    const ParcelaDePrueba parcela;
    parcela.escribir("basura.xls", "esto no es un libro");
    fs::create_directory(parcela.ruta("carpeta.xls"));
    const std::vector<std::pair<std::string, int>> casos{
        {"no_esta.xls", 53}, {"basura.xls", 3343}, {"carpeta.xls", 75}};
    for (const auto& [archivo, fallo] : casos) {
        TextoDeTrabajo texto;
        texto.parcela = "archivo = '" + archivo + "'\nhoja = 'Parcela1$'\n";
        const auto fin = Correr(parcela, texto);
        EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo) << archivo;
        EXPECT_EQ(fin.fallo, fallo);
        const std::string comienzo = ErrorDeClave(parcela, "archivo: Error " + std::to_string(fallo) + ": ");
        EXPECT_EQ(fin.error.substr(0, comienzo.size()), comienzo);
        EXPECT_PRED_FORMAT2(::testing::IsSubstring, archivo.c_str(), fin.error.c_str());
    }
}

TEST(Recorrido, UnaHojaQueNoEstaSeRechazaConLasQueHay) {
    const ParcelaDePrueba parcela;
    Hoja primera;
    primera.nombre = "Norte";
    primera.celdas = CuadradoConCentro();
    Hoja segunda = primera;
    segunda.nombre = "Sur";
    EscribirArchivoXls(parcela.ruta("dos.xls"), {primera, segunda});
    TextoDeTrabajo texto;
    texto.parcela = "archivo = 'dos.xls'\nhoja = 'Norte'\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.error,
              ErrorDeClave(parcela, "hoja: el archivo no tiene ninguna hoja «Norte»; tiene Norte$, Sur$"));
    EXPECT_EQ(fin.estado, Estado::Rechazado);
    texto.parcela = "archivo = 'dos.xls'\nhoja = 'SUR$'\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
}

TEST(Recorrido, UnaHojaSinFilasEsUnFalloDeCalculo) {
    const ParcelaDePrueba parcela{{CuadradoConCentro().front()}};
    const auto fin = Correr(parcela, {});
    EXPECT_EQ(fin.error,
              ErrorDeClave(parcela, "hoja: Error 3021: No hay ningún registro activo: la hoja no tiene "
                                    "ninguna fila debajo de la cabecera"));
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 3021);
}

TEST(Recorrido, UnFalloDelDibujoODelCalculoAcabaConElTrabajoYDejaLaSalidaComoEstaba) {
    auto filas = CuadradoConCentro();
    filas.resize(3); // two trees make a plot without area
    const ParcelaDePrueba parcela{filas};
    parcela.escribir("indices.txt", "lo de antes");
    TextoDeTrabajo texto;
    texto.opciones = "ChN = 1\n";
    auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 11);
    EXPECT_EQ(fin.error,
              ErrorDeClave(parcela,
                           "cálculo de los índices: Error 11: División por cero: la superficie de la "
                           "parcela es 0: tiene solo dos árboles (familia Pies/ha)"));

    filas = CuadradoConCentro();
    filas[2][2] = std::string{"mucho"}; // a corner whose Y is no number
    const ParcelaDePrueba mala{filas};
    fin = Correr(mala, texto);
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 13);
    EXPECT_EQ(fin.error.substr(0, ErrorDeClave(mala, "dibujo del mapa: ").size()),
              ErrorDeClave(mala, "dibujo del mapa: "));

    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), "lo de antes");
    EXPECT_FALSE(fs::exists(mala.ruta("indices.txt")));
}

/// The names in a folder, sorted.
std::vector<std::string> Contenido(const fs::path& carpeta) {
    std::vector<std::string> nombres;
    for (const auto& entrada : fs::directory_iterator{carpeta}) {
        nombres.push_back(entrada.path().filename().string());
    }
    std::sort(nombres.begin(), nombres.end());
    return nombres;
}

TEST(Recorrido, LaSalidaSustituyeALaAnteriorYNoDejaNadaAlLado) {
    const ParcelaDePrueba parcela;
    parcela.escribir("indices.txt", "lo de antes");
    EXPECT_EQ(Correr(parcela, {}).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), resultadosSinIndices);
    EXPECT_EQ(Contenido(parcela.ruta("")), (std::vector<std::string>{"indices.txt", "parcela.xls"}));
}

TEST(Recorrido, LaCarpetaDeLaSalidaSeHaceSiFalta) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = "resultados = 'a/b/indices.txt'\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("a/b/indices.txt")), resultadosSinIndices);
}

TEST(Recorrido, UnaSalidaQueNoSePuedeEscribirEsUnErrorDeArchivoYNoDejaNada) {
    const ParcelaDePrueba parcela;
    fs::create_directory(parcela.ruta("indices.txt"));
    parcela.escribir("archivo", "");
    const std::vector<std::pair<std::string, std::string>> casos{
        {"indices.txt",
         "Error 75: No se ha escrito «" + parcela.ruta("indices.txt").string() + "»: es una carpeta"},
        {"archivo/indices.txt", "Error 75: No se puede crear la carpeta «" +
                                    parcela.ruta("archivo").string() +
                                    "»: en su sitio, o en el de una carpeta de encima, hay un archivo"},
        {"archivo/dentro/indices.txt",
         "Error 75: No se puede crear la carpeta «" + (parcela.ruta("archivo") / "dentro").string() +
             "»: en su sitio, o en el de una carpeta de encima, hay un archivo"},
        {std::string(300, 'n') + "/indices.txt", "Error 75: No se puede crear la carpeta «" +
                                                     parcela.ruta(std::string(300, 'n')).string() +
                                                     "»: su nombre es demasiado largo"},
    };
    const auto antes = Contenido(parcela.ruta(""));
    for (const auto& [salida, razon] : casos) {
        TextoDeTrabajo texto;
        texto.salida = "resultados = '" + salida + "'\n";
        const auto fin = Correr(parcela, texto);
        EXPECT_EQ(fin.error, ErrorDeClave(parcela, "línea 15: salida.resultados: " + razon));
        EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo);
        EXPECT_EQ(Contenido(parcela.ruta("")), antes);
    }
}

TEST(Recorrido, UnNombreDeSalidaQueElProgramaNoAdmiteEsUnErrorDeArchivo) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.salida = "resultados = 'ind*ices.txt'\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.estado, Estado::ErrorDeArchivo);
    EXPECT_EQ(fin.fallo, 52);
    EXPECT_EQ(Contenido(parcela.ruta("")), std::vector<std::string>{"parcela.xls"});
}

/// A plot of trees in the plane of whole numbers, with a mean radius; its last field is spare.
Filas ParcelaDe(int arboles) {
    using T = std::string;
    Filas filas{{T{"Arbol"}, T{"X"}, T{"Y"}, T{"Radio"}, T{"Nota"}}};
    filas.reserve(static_cast<std::size_t>(arboles) + 1);
    for (int i = 0; i < arboles; ++i) {
        const int renglon = i / 200;
        filas.push_back({i + 1.0, static_cast<double>(i % 200), static_cast<double>(renglon), 10.0});
    }
    return filas;
}

TextoDeTrabajo TrabajoDeRadioMedio() {
    TextoDeTrabajo texto;
    texto.columnas = "X = 'X'\nY = 'Y'\nRadio = 'Radio'\nIndice = 'Arbol'\n";
    texto.opciones = "OptRM = true\nChCodigo = 0\n";
    return texto;
}

TEST(Recorrido, UnaParcelaDe32766ArbolesCabe) {
    const ParcelaDePrueba parcela{ParcelaDe(32766)};
    const auto fin = Correr(parcela, TrabajoDeRadioMedio());
    ASSERT_EQ(fin.error, "");
    EXPECT_EQ(fin.informe->arboles, 32766);
    // 163 full rows of 200 trees and one of 166: the hull is the rectangle of 199 m by 163 m less the
    // triangle between the ends of the last two rows, of 34 m by 1 m: 32437 - 17.
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "superficie de la parcela: 32420,0 m2",
                        fin.informe->texto({}).c_str());
    const std::string resultados = LeerArchivo(parcela.ruta("indices.txt"));
    EXPECT_EQ(resultados.substr(resultados.size() - 15), "\r32766\t32766\r\r\n");
}

TEST(Recorrido, UnaParcelaDe32767ArbolesDesborda) {
    const ParcelaDePrueba parcela{ParcelaDe(32767)};
    const auto fin = Correr(parcela, TrabajoDeRadioMedio());
    EXPECT_EQ(fin.estado, Estado::FalloDeCalculo);
    EXPECT_EQ(fin.fallo, 6);
    EXPECT_EQ(fin.error, ErrorDeClave(parcela, "hoja: Error 6: Desbordamiento: la hoja tiene 32.767 filas; "
                                               "el límite es 32.766"));
    EXPECT_FALSE(fs::exists(parcela.ruta("indices.txt")));
}

} // namespace
} // namespace varo::prueba
