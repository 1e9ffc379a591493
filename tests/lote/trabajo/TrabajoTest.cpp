#include "lote/trabajo/Trabajo.h"

#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

const char* const entero = R"toml(archivo = "parcela.xls"
hoja = "Parcela1$"

[columnas]
X = "Coord X"
Indice = 1

[opciones]
Opt2D = true
ChN = 1
"TxtBAF1(6)" = "0,5"
"TxtBAF2(6)" = 1.5
LstDist = [ { tipo = "HIP", a = 1.0, b = 2, c = "3,5" } ]

[salida]
resultados = "salidas/indices.txt"
mapa = "mapa.svg"
)toml";

const OpcionPedida& Pedida(const Trabajo& trabajo, const std::string& control) {
    for (const auto& opcion : trabajo.opciones) {
        if (opcion.control == control) {
            return opcion;
        }
    }
    throw std::out_of_range{control};
}

TEST(Trabajo, UnTrabajoSeLeeEnteroConSusLineas) {
    const auto trabajo = InterpretarTrabajo(entero, "trabajos/uno.toml");
    EXPECT_EQ(trabajo.ruta, "trabajos/uno.toml");
    EXPECT_EQ(trabajo.archivo, "trabajos/parcela.xls");
    EXPECT_EQ(trabajo.hoja, "Parcela1$");
    ASSERT_EQ(trabajo.columnas.size(), 2U);
    EXPECT_EQ(std::get<std::string>(trabajo.columna("X")->columna), "Coord X");
    EXPECT_EQ(trabajo.columna("X")->linea, 5);
    EXPECT_EQ(std::get<std::int64_t>(trabajo.columna("Indice")->columna), 1);
    EXPECT_EQ(trabajo.columna("Y"), nullptr);
    ASSERT_EQ(trabajo.opciones.size(), 5U);
    EXPECT_EQ(Pedida(trabajo, "Opt2D").valor, ValorPedido{true});
    EXPECT_EQ(Pedida(trabajo, "ChN").valor, ValorPedido{std::int64_t{1}});
    EXPECT_EQ(Pedida(trabajo, "ChN").linea, 10);
    EXPECT_EQ(Pedida(trabajo, "TxtBAF1(6)").valor, ValorPedido{std::string{"0,5"}});
    EXPECT_EQ(Pedida(trabajo, "TxtBAF2(6)").valor, ValorPedido{1.5});
    const FuncionPedida hiperbola{{"tipo", "HIP"}, {"a", "1"}, {"b", "2"}, {"c", "3,5"}};
    EXPECT_EQ(Pedida(trabajo, "LstDist").valor, ValorPedido{std::vector<FuncionPedida>{hiperbola}});
    EXPECT_EQ(trabajo.resultados->ruta, "trabajos/salidas/indices.txt");
    EXPECT_EQ(trabajo.resultados->linea, 16);
    ASSERT_EQ(trabajo.mapas.size(), 1U);
    EXPECT_EQ(trabajo.mapas.front().ruta, "trabajos/mapa.svg");
    EXPECT_FALSE(trabajo.formato);
    EXPECT_FALSE(trabajo.datos);
}

TEST(Trabajo, ElFormatoDelMapaSeLeeEnteroConSusLineas) {
    const auto trabajo = InterpretarTrabajo("archivo = 'a.xls'\nhoja = 'H'\ncolumnas = {}\n"
                                            "[formato]\n"
                                            "titulo = ''\n"
                                            "fuente = { nombre = 'Arial', tamano = 14, negrita = true }\n"
                                            "color = '#1B7837'\n"
                                            "[formato.codigos.Ps]\n"
                                            "texto = 'Pinus sylvestris'\n"
                                            "linea = '#0a0B0c'\n"
                                            "fondo = '#D9F0D3'\n"
                                            "fuente = { cursiva = true, tachado = false }\n"
                                            "[formato.codigos.7]\n"
                                            "[salida]\nmapa = ['a.txt', 'b/c.PNG']\n",
                                            "t/t.toml");
    ASSERT_TRUE(trabajo.formato);
    const auto& formato = *trabajo.formato;
    EXPECT_EQ(formato.titulo->valor, "") << "también un texto vacío es algo que se puede escribir";
    EXPECT_EQ(formato.titulo->lugar.linea, 5);
    EXPECT_EQ(formato.fuente->valor.sobre(Fuente{.nombre = "B", .tamano = 8, .cursiva = true}),
              (Fuente{.nombre = "Arial", .tamano = 14, .negrita = true, .cursiva = true}));
    EXPECT_EQ(formato.color->valor, 0x37781B);
    EXPECT_EQ(formato.color->lugar.clave, "formato.color");
    ASSERT_EQ(formato.codigos.size(), 2U);
    EXPECT_EQ(formato.codigos[0].codigo, "7");
    EXPECT_FALSE(formato.codigos[0].texto);
    EXPECT_EQ(formato.codigos[1].codigo, "Ps");
    EXPECT_EQ(formato.codigos[1].texto->valor, "Pinus sylvestris");
    EXPECT_EQ(formato.codigos[1].linea->valor, 0x0C0B0A);
    EXPECT_EQ(formato.codigos[1].fondo->valor, 0xD3F0D9);
    EXPECT_EQ(formato.codigos[1].fuente->lugar.clave, "formato.codigos.Ps.fuente");
    EXPECT_EQ(formato.codigos[1].fuente->lugar.linea, 12);
    ASSERT_EQ(trabajo.mapas.size(), 2U);
    EXPECT_EQ(trabajo.mapas[1].ruta, "t/b/c.PNG");
}

TEST(Trabajo, UnaLetraTieneHasta512Puntos) {
    const std::string antes = "archivo = 'a.xls'\nhoja = 'H'\ncolumnas = {}\n[formato]\nfuente = { tamano = ";
    EXPECT_EQ(InterpretarTrabajo(antes + "512 }", "t.toml").formato->fuente->valor.tamano, 512.0F);
    EXPECT_EQ(InterpretarTrabajo(antes + "0.5 }", "t.toml").formato->fuente->valor.tamano, 0.5F);
}

TEST(Trabajo, LasOpcionesYLasSalidasPuedenFaltar) {
    const auto trabajo = InterpretarTrabajo("archivo = 'a.xls'\nhoja = 'H'\n[columnas]\n", "t.toml");
    EXPECT_TRUE(trabajo.columnas.empty());
    EXPECT_TRUE(trabajo.opciones.empty());
    EXPECT_FALSE(trabajo.resultados);
    EXPECT_EQ(trabajo.archivo, "a.xls");
}

TEST(Trabajo, LasRutasAbsolutasNoDependenDeLaCarpetaDelTrabajo) {
    const auto trabajo = InterpretarTrabajo(
        "archivo = '/datos/a.xls'\nhoja = 'H'\n[columnas]\n[salida]\nresultados = '/tmp/i.txt'\n", "d/t.toml",
        {.archivo = {}, .hoja = {}, .salida = "otra"});
    EXPECT_EQ(trabajo.archivo, "/datos/a.xls");
    EXPECT_EQ(trabajo.resultados->ruta, "/tmp/i.txt");
}

TEST(Trabajo, LaLineaDeOrdenesPuedePonerElArchivoLaHojaYLaCarpetaDeSalida) {
    const Cambios cambios{"suelta.xls", "Otra$", "salidas"};
    const auto cambiado = InterpretarTrabajo(entero, "trabajos/uno.toml", cambios);
    EXPECT_EQ(cambiado.archivo, "suelta.xls");
    EXPECT_EQ(cambiado.hoja, "Otra$");
    EXPECT_EQ(cambiado.resultados->ruta, "salidas/salidas/indices.txt");
    const auto sinClaves = InterpretarTrabajo("[columnas]\n", "trabajos/uno.toml", cambios);
    EXPECT_EQ(sinClaves.archivo, "suelta.xls");
    EXPECT_EQ(sinClaves.hoja, "Otra$");
}

TEST(Trabajo, CadaErrorNombraElTrabajoLaClaveYLaRazon) {
    const std::string parcela = "archivo = 'a.xls'\nhoja = 'H'\n";
    const std::string base = parcela + "[columnas]\n";
    struct Caso {
        std::string texto;
        std::string error;
    };
    const std::vector<Caso> casos{
        {"hoja = 'H'\n[columnas]\n", "t.toml: archivo: falta en el trabajo"},
        {"archivo = 'a'\n[columnas]\n", "t.toml: hoja: falta en el trabajo"},
        {parcela, "t.toml: columnas: falta en el trabajo"},
        {"archivo = 3\n", "t.toml: línea 1: archivo: se espera un texto y hay un número entero"},
        {"archivo = ''\n", "t.toml: línea 1: archivo: está vacío"},
        {"archivo = \"a\\u0000b\"\n", "t.toml: línea 1: archivo: contiene un carácter nulo"},
        {"archivo = 'a'\nhoja = false\n", "t.toml: línea 2: hoja: se espera un texto y hay un valor lógico"},
        {parcela + "columnas = 'X'\n", "t.toml: línea 3: columnas: se espera una tabla y hay un texto"},
        {parcela + "otra = 1\n[columnas]\n", "t.toml: línea 3: otra: clave desconocida"},
        {base + "Z = 'z'\n",
         "t.toml: línea 4: columnas.Z: papel desconocido; los hay: X, Y, N, E, S, O, NS, EO, "
         "Radio, Indice, Codigo y DAP"},
        {base + "x = 'X'\n",
         "t.toml: línea 4: columnas.x: papel desconocido; los hay: X, Y, N, E, S, O, NS, EO, "
         "Radio, Indice, Codigo y DAP"},
        {base + "X = 1.5\n", "t.toml: línea 4: columnas.X: se espera una cabecera o un número de columna y "
                             "hay un número con decimales"},
        {base + "X = ''\n", "t.toml: línea 4: columnas.X: está vacío"},
        {base + "[[opciones]]\n", "t.toml: línea 4: opciones: se espera una tabla y hay una lista"},
        {base + "[opciones]\nChN = 1979-05-27\n", "t.toml: línea 5: opciones.ChN: se espera un número, un "
                                                  "texto, un valor lógico o una lista de tablas y hay "
                                                  "una fecha o una hora"},
        {base + "[opciones]\nChN = { a = 1 }\n", "t.toml: línea 5: opciones.ChN: se espera un número, un "
                                                 "texto, un valor lógico o una lista de tablas y hay "
                                                 "una tabla"},
        {base + "[opciones]\nT = nan\n", "t.toml: línea 5: opciones.T: no es un número finito"},
        {base + "[opciones]\nL = [ 1 ]\n",
         "t.toml: línea 5: opciones.L: se espera una tabla y hay un número entero"},
        {base + "[opciones]\nL = [ { a = true } ]\n",
         "t.toml: línea 5: opciones.L.a: se espera un número o un texto y hay un valor lógico"},
        {base + "[opciones]\nL = [ { a = inf } ]\n", "t.toml: línea 5: opciones.L.a: no es un número finito"},
        {base + "[salida]\nindices = 'i.txt'\n", "t.toml: línea 5: salida.indices: clave desconocida"},
        {base + "[salida]\nresultados = 1\n",
         "t.toml: línea 5: salida.resultados: se espera un texto y hay un número entero"},
        {base + "[salida]\nresultados = 'carpeta/'\n",
         "t.toml: línea 5: salida.resultados: «carpeta/» no es el nombre de un archivo"},
        {base + "[salida]\nmapa = '..'\n",
         "t.toml: línea 5: salida.mapa: «..» no es el nombre de un archivo"},
        {base + "[salida]\nmapa = ['a.txt', 'b.jpg']\n",
         "t.toml: línea 5: salida.mapa: «b.jpg»: un mapa se escribe como .svg, .pdf, .png o .txt"},
        {base + "[salida]\nmapa = []\n",
         "t.toml: línea 5: salida.mapa: la lista está vacía: ponga en ella algún archivo, o quite la clave"},
        {base + "[salida]\nmapa = ['a.txt', 3]\n",
         "t.toml: línea 5: salida.mapa: se espera un texto y hay un número entero"},
        {base + "[salida]\nmapa = true\n",
         "t.toml: línea 5: salida.mapa: se espera un texto o una lista de textos y hay un valor lógico"},
        {base + "[formato]\nancho = 1\n", "t.toml: línea 5: formato.ancho: clave desconocida"},
        {base + "[formato]\ntitulo = 1\n",
         "t.toml: línea 5: formato.titulo: se espera un texto y hay un número entero"},
        {base + "[formato]\ncolor = 'rojo'\n",
         "t.toml: línea 5: formato.color = «rojo»: un color se escribe \"#RRGGBB\", como \"#1B7837\""},
        {base + "[formato]\ncolor = '#12345G'\n",
         "t.toml: línea 5: formato.color = «#12345G»: un color se escribe \"#RRGGBB\", como \"#1B7837\""},
        {base + "[formato]\ncolor = '#1B783'\n",
         "t.toml: línea 5: formato.color = «#1B783»: un color se escribe \"#RRGGBB\", como \"#1B7837\""},
        {base + "[formato]\nfuente = { nombre = '' }\n",
         "t.toml: línea 5: formato.fuente.nombre: está vacío"},
        {base + "[formato]\nfuente = { nombre = '  ' }\n",
         "t.toml: línea 5: formato.fuente.nombre: está vacío"},
        {base + "[formato.codigos.Ps]\nfuente = { nombre = \"\\t \" }\n",
         "t.toml: línea 5: formato.codigos.Ps.fuente.nombre: está vacío"},
        {base + "[formato]\nfuente = { tamano = 0 }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = -1.5 }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = nan }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = -inf }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = 512.5 }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = 1e39 }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato]\nfuente = { tamano = 1e-50 }\n",
         "t.toml: línea 5: formato.fuente.tamano: el tamaño de una letra, en puntos, es mayor que 0 y no "
         "pasa de 512"},
        {base + "[formato.codigos.Ps]\nfuente = { tamano = 1e30 }\n",
         "t.toml: línea 5: formato.codigos.Ps.fuente.tamano: el tamaño de una letra, en puntos, es mayor que "
         "0 y no pasa de 512"},
        {base + "[formato]\nfuente = { tamano = true }\n",
         "t.toml: línea 5: formato.fuente.tamano: se espera un número de puntos y hay un valor lógico"},
        {base + "[formato]\nfuente = { negrita = 1 }\n",
         "t.toml: línea 5: formato.fuente.negrita: se espera true o false y hay un número entero"},
        {base + "[formato]\nfuente = { letra = 'A' }\n",
         "t.toml: línea 5: formato.fuente.letra: clave desconocida"},
        {base + "[formato.codigos]\nPs = 'pino'\n",
         "t.toml: línea 5: formato.codigos.Ps: se espera una tabla y hay un texto"},
        {base + "[formato.codigos.Ps]\ncolor = '#000000'\n",
         "t.toml: línea 5: formato.codigos.Ps.color: clave desconocida"},
        {base + "[formato.codigos.Ps]\nfondo = 5\n",
         "t.toml: línea 5: formato.codigos.Ps.fondo: se espera un texto y hay un número entero"},
        {base + "salida = 3\n",
         "t.toml: línea 4: columnas.salida: papel desconocido; los hay: X, Y, N, E, S, O, NS, "
         "EO, Radio, Indice, Codigo y DAP"},
        {"salida = 3\n" + base, "t.toml: línea 1: salida: se espera una tabla y hay un número entero"},
    };
    for (const auto& caso : casos) {
        EXPECT_EQ(ErrorDe([&] { InterpretarTrabajo(caso.texto, "t.toml"); }), caso.error) << caso.texto;
    }
}

TEST(Trabajo, UnTextoQueNoEsTomlDiceDonde) {
    try {
        InterpretarTrabajo("archivo = 'a'\nTxtBAF1(6) = 1\n", "t.toml");
        FAIL() << "debía rechazarse";
    } catch (const ErrorTrabajo& error) {
        EXPECT_PRED_FORMAT2(
            ::testing::IsSubstring,
            "t.toml: línea 2: columna 8: no es TOML correcto: detrás de una clave va el signo =",
            error.what());
        EXPECT_EQ(error.estado(), Estado::Rechazado);
    }
    EXPECT_PRED_FORMAT2(::testing::IsSubstring,
                        "no es TOML correcto: la clave o la tabla está escrita dos veces",
                        ErrorDe([] { InterpretarTrabajo("archivo = 'a'\narchivo = 'b'\n", "t.toml"); }));
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "no es TOML correcto: falta cerrar unas comillas",
                        ErrorDe([] { InterpretarTrabajo("archivo = 'a", "t.toml"); }));
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "línea 1: columna 5: no es TOML correcto: falta un valor",
                        ErrorDe([] { InterpretarTrabajo("x = \n", "t.toml"); }));
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "no se entiende el valor; un texto va entre comillas",
                        ErrorDe([] { InterpretarTrabajo("x = hola\n", "t.toml"); }));
    EXPECT_PRED_FORMAT2(::testing::IsSubstring, "los decimales van detrás de un punto",
                        ErrorDe([] { InterpretarTrabajo("T = 1,5\n", "t.toml"); }));
}

TEST(Trabajo, UnaComillaSinCerrarUnaBarraYUnNumeroInmensoDicenLoSuyo) {
    const std::string noEsToml = "no es TOML correcto: ";
    const std::vector<std::pair<std::string, std::string>> casos{
        {"archivo = \"p.xls\nhoja = \"x\"\n", "falta cerrar unas comillas, o hay un carácter"},
        {"archivo = 'p.xls\nhoja = 'x'\n", "falta cerrar unas comillas, o hay un carácter"},
        {R"(archivo = "C:\users\p.xls")", "entre comillas dobles la barra \\ es especial"},
        {R"(archivo = "C:\Users\p.xls")", "entre comillas dobles la barra \\ es especial"},
        {R"(archivo = "C:\datos\p.xls")", "entre comillas dobles la barra \\ es especial"},
        {"x = " + std::string(30, '9'), "el número es demasiado grande"},
        {"x = " + std::string(300, '9'), "el número es demasiado grande"}};
    for (const auto& [texto, dice] : casos) {
        const auto error = ErrorDe([&, &texto = texto] { InterpretarTrabajo(texto, "t.toml"); });
        EXPECT_NE(error.find(noEsToml + dice), std::string::npos) << error;
    }
}

TEST(Trabajo, UnTextoQueNoEsUtf8DiceDondeYComoSeGuarda) {
    EXPECT_EQ(
        ErrorDe([] { InterpretarTrabajo("# n\xC3\xBA\xEF\xBF\xBD\nhoja = 'Parcela\xE1'\n", "t.toml"); }),
        "t.toml: línea 2: el trabajo no está en UTF-8: guárdelo en UTF-8");
}

std::string Partes(int cuantas, const std::string& parte) {
    std::string clave = parte;
    for (int i = 1; i < cuantas; ++i) {
        clave += "." + parte;
    }
    return clave;
}

TEST(Trabajo, UnaClaveDeMilesDePartesSeRechaza) {
    const std::string dice =
        "t.toml: línea 3: una clave tiene demasiadas partes separadas por puntos: ninguna pasa de cinco";
    const auto honda = Partes(200'000, "a");
    for (const auto& texto :
         {"[opciones]\n\n" + honda + " = 1\n", "x = '''\n'''\n[" + honda + "]\n",
          "\n\na = { b = 1, " + honda + " = 1 }\n", "\n\n" + Partes(17, " \"a.b\" ") + " = 1\n",
          "a = \"\"\"\\\n\\\"\"\"\"\n" + honda + " = 1",
          "\n\na = { b = \"\"\"x\"\"\"\", " + honda + " = 1 }\n"}) {
        EXPECT_EQ(ErrorDe([&] { InterpretarTrabajo(texto, "t.toml"); }), dice) << texto.substr(0, 40);
    }
}

TEST(Trabajo, LosPuntosDeUnTextoDeUnNumeroYDeUnComentarioNoSonPartes) {
    const auto puntos = std::string(40, '.');
    const auto trabajo =
        InterpretarTrabajo("archivo = \"" + puntos + "\\\"" + puntos + "\" # " + puntos + "\nhoja = '" +
                               puntos + "\\'\n[columnas] # '" + puntos + "\n[opciones]\nT = \"\"\"\n\"" +
                               puntos + "\"\"\"\nL = [ { a = 1.5, b = " +
                               "1.5, c = 1.5, d = 1.5, e = 1.5 }, { a = 1.5, b = 1.5, c = 1.5, d " +
                               "= 1.5, e = 1.5 }, { a = 1.5, b = 1.5, c = 1.5, d = 1.5, e = 1.5 }, " +
                               "{ a = 1.5, b = 1.5, c = 1.5, d = 1.5, e = 1.5 } ]\n",
                           "t.toml");
    EXPECT_EQ(trabajo.hoja, puntos + "\\");
    EXPECT_EQ(trabajo.opciones.size(), 2U);
}

TEST(Trabajo, UnDispositivoYUnArchivoInmensoNoSonTrabajos) {
    const CarpetaTemporal carpeta;
    const auto inmenso = carpeta.ruta() / "inmenso.toml";
    carpeta.Escribir("inmenso.toml", "");
    std::filesystem::resize_file(inmenso, 16U * 1024 * 1024 + 1);
    EXPECT_EQ(ErrorDe([&] { LeerTrabajo(inmenso); }),
              inmenso.string() + ": ocupa más de 16 MB: es demasiado grande para un trabajo");
    EXPECT_EQ(ErrorDe([] { LeerTrabajo("/dev/zero"); }),
              "/dev/zero: es un dispositivo o una tubería, y no el archivo de un trabajo");
}

TEST(Trabajo, UnaMarcaDeUtf8AlPrincipioNoEstorba) {
    const auto trabajo = InterpretarTrabajo("\xEF\xBB\xBF" + std::string{entero}, "t.toml");
    EXPECT_EQ(trabajo.hoja, "Parcela1$");
}

TEST(Trabajo, UnErrorCabeEnUnaLineaAunqueLaClaveTengaVarias) {
    EXPECT_EQ(ErrorDe([] { InterpretarTrabajo("\"a\\nb\" = 1\n", "t.toml"); }),
              "t.toml: línea 1: a b: clave desconocida");
}

TEST(Trabajo, UnTrabajoQueNoSePuedeLeerEsUnErrorDeArchivo) {
    const CarpetaTemporal carpeta;
    for (const auto& [ruta, porque] : {std::pair{carpeta.ruta() / "no_esta.toml", "el archivo no existe"},
                                       {carpeta.ruta(), "es una carpeta"}}) {
        try {
            LeerTrabajo(ruta);
            ADD_FAILURE() << "debía fallar con " << ruta;
        } catch (const ErrorTrabajo& error) {
            EXPECT_EQ(error.estado(), Estado::ErrorDeArchivo);
            EXPECT_EQ(std::string{error.what()}, ruta.string() + ": no se puede leer el trabajo: " + porque);
        }
    }
}

TEST(Trabajo, UnNumeroSeTecleaConComaDecimal) {
    EXPECT_EQ(TextoTecleado(1.5), "1,5");
    EXPECT_EQ(TextoTecleado(0.1), "0,1");
    EXPECT_EQ(TextoTecleado(-2.0), "-2");
    EXPECT_EQ(TextoTecleado(0.00005), "0,00005");
    EXPECT_EQ(TextoTecleado(1e21), "1000000000000000000000");
    EXPECT_EQ(TextoTecleado(std::int64_t{1000000}), "1000000");
    EXPECT_EQ(TextoTecleado(std::string{"0,5"}), "0,5");
    EXPECT_EQ(TextoTecleado(true), std::nullopt);
    EXPECT_EQ(TextoTecleado(std::vector<FuncionPedida>{}), std::nullopt);
}

} // namespace
} // namespace varo::prueba
