// The faults that plots and options are known to meet, with their causes in words.
#include "apoyo/EscritorXls.h"
#include "basico/Numeros.h"
#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

namespace varo::prueba {
namespace {

constexpr std::size_t columnaX = 1;
constexpr std::size_t columnaY = 2;
constexpr std::size_t columnaCAP = 8;

/// The square and a sixth tree in it; no two trees inside share their X or their Y.
Filas CuadradoConDos() {
    auto filas = CuadradoConCentro();
    filas.push_back(filas[5]);
    filas[6][0] = 6.0;
    filas[6][columnaX] = 6.0;
    filas[6][columnaY] = 5.0;
    return filas;
}

struct Fin {
    std::string error;
    std::optional<int> fallo;
};

Fin CorrerCon(const Filas& filas, const std::string& opciones, TextoDeTrabajo texto = {}) {
    const ParcelaDePrueba parcela{filas};
    texto.opciones = "Optmetro = true\n" + opciones;
    const auto fin = Correr(parcela, texto);
    return {fin.error, fin.fallo};
}

void ExigirCausa(const Fin& fin, int fallo, const std::string& causa) {
    EXPECT_EQ(fin.fallo, fallo);
    EXPECT_NE(fin.error.find(": " + causa), std::string::npos) << fin.error;
}

std::string Barrido(int miembro, const std::string& desde, const std::string& hasta,
                    const std::string& paso) {
    const std::string indice = "(" + std::to_string(miembro) + ")' = ";
    return "'TxtBAF1" + indice + desde + "\n'TxtBAF2" + indice + hasta + "\n'TxtBAF3" + indice + paso + "\n";
}

TEST(Causas, UnaParcelaSinSuperficieDicePorQue) {
    auto filas = CuadradoConCentro();
    filas.resize(2);
    ExigirCausa(CorrerCon(filas, "ChN = 1\n"), 11,
                "la superficie de la parcela es 0: tiene un solo árbol (familia Pies/ha)");
    filas = CuadradoConCentro();
    filas.resize(3);
    ExigirCausa(CorrerCon(filas, "ChAB = 1\n"), 11,
                "la superficie de la parcela es 0: tiene solo dos árboles (familia ABha)");
    filas = CuadradoConCentro();
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaX] = static_cast<double>(i);
        filas[i][columnaY] = 3.0;
    }
    ExigirCausa(CorrerCon(filas, "ChN = 1\n"), 11,
                "la superficie de la parcela es 0: todos los árboles están en una línea (familia Pies/ha)");
}

TEST(Causas, UnaParcelaSinArboles) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaX] = {};
        filas[i][columnaY] = {};
    }
    ExigirCausa(CorrerCon(filas, ""), 13, "la parcela no tiene ningún árbol: todas las filas tienen vacías");
    filas.resize(1);
    ExigirCausa(CorrerCon(filas, ""), 3021, "la hoja no tiene ninguna fila debajo de la cabecera");
}

TEST(Causas, LosTamanosQueFaltan) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaCAP] = 0.0;
    }
    ExigirCausa(CorrerCon(filas, "ChDmax = 1\n"), 11, "el máximo de la columna «CAP» es 0");
    ExigirCausa(CorrerCon(filas, "ChAPDsum = 1\n"), 11, "la suma de la columna «CAP» es 0");
    ExigirCausa(CorrerCon(filas, "ChDmed = 1\n"), 94,
                "ningún árbol tiene un tamaño distinto de 0 en la columna «CAP»");
    ExigirCausa(CorrerCon(filas, "ChDdom = 1\n"), 3021,
                "ningún árbol tiene un tamaño distinto de 0 en la columna «CAP»");
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaCAP] = {};
    }
    ExigirCausa(CorrerCon(filas, "ChAB = 1\n"), 94, "ningún árbol tiene tamaño en la columna «CAP»");
}

TEST(Causas, UnaParcelaDemasiadoPequenaODemasiadoGrandeParaSusDominantes) {
    auto filas = CuadradoConCentro();
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaX] = std::get<double>(filas[i][columnaX]) / 2;
        filas[i][columnaY] = std::get<double>(filas[i][columnaY]) / 2;
    }
    ExigirCausa(CorrerCon(filas, "ChDdom = 1\n"), 3021, "en 25,0 m2 no cabe ningún árbol dominante");
    for (std::size_t i = 1; i <= 5; ++i) {
        filas[i][columnaX] = std::get<double>(filas[i][columnaX]) * 1000;
        filas[i][columnaY] = std::get<double>(filas[i][columnaY]) * 1000;
    }
    ExigirCausa(CorrerCon(filas, "ChDdom = 1\n"), 6, "la parcela es demasiado grande");
}

TEST(Causas, UnaListaVaciaOUnBarridoSinValores) {
    const auto filas = CuadradoConDos();
    ExigirCausa(CorrerCon(filas, "ChIDPActivar = 1\n'OptFunc(0)' = true\n"), 9,
                "la lista LstRich(0) está vacía: añádale una función (familia IDP)");
    ExigirCausa(CorrerCon(filas, "ChDRActivar = 1\n'OptNumFijo(1)' = true\n" + Barrido(3, "1", "1", "1") +
                                     Barrido(4, "1", "1", "1")),
                9, "la lista LstDist está vacía: añádale una función (familia DR)");
    const std::string funcion = "LstDist = [{ tipo = \"EXP\", a = 0, b = 0, c = 0, d = 0, e = 0 }]\n";
    ExigirCausa(CorrerCon(filas, "ChDRActivar = 1\n'OptNumFijo(1)' = true\n" + Barrido(3, "1", "1", "1") +
                                     Barrido(4, "1", "2", "-1") + funcion),
                9,
                "el barrido que empieza en TxtBAF1(4) va de 1 a 2 con paso -1 y no pasa por ningún valor "
                "(familia DR)");
}

TEST(Causas, UnBAFDeCeroONegativo) {
    ExigirCausa(
        CorrerCon(CuadradoConDos(), "ChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "0", "4", "4")), 11,
        "el BAF es 0: ponga un valor mayor en TxtBAF1(0) (familia IDP");
    ExigirCausa(
        CorrerCon(CuadradoConDos(), "ChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "-2", "2", "1")), 5,
        "el BAF es negativo: ponga un valor mayor en TxtBAF1(0) (familia IDP");
    ExigirCausa(CorrerCon(CuadradoConDos(),
                          "ChDRActivar = 1\n'OptBAF(1)' = true\n" + Barrido(2, "-2", "2", "1") +
                              Barrido(4, "1", "1", "1") +
                              "LstDist = [{ tipo = \"EXP\", a = 0, b = 0, c = 0, d = 0, e = 0 }]\n"),
                5, "el BAF es negativo: ponga un valor mayor en TxtBAF1(2) (familia DR");
}

TEST(Causas, UnBarridoDeDemasiadasColumnas) {
    ExigirCausa(CorrerCon(CuadradoConDos(), "ChAPA = 1\n" + Barrido(8, "0", "32767", "1")), 6,
                "los barridos piden más de 32.767 columnas: ponga pasos mayores (familia APA)");
    ExigirCausa(CorrerCon(CuadradoConDos(),
                          "ChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "2", "4", "0.00001")),
                6, "los barridos piden más de 32.767 columnas: ponga pasos mayores (familia IDP)");
}

TEST(Causas, UnPasoQueNoAvanza) {
    ExigirCausa(CorrerCon(CuadradoConDos(),
                          "ChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "1E+300", "1E+300", "1")),
                9, "el paso 1 es demasiado pequeño para avanzar desde 1E+300 (familia IDP)");
}

/// The dialog turns the ends and the step of a sweep about, and a job says so.
TEST(Causas, UnBarridoHaciaAtrasOSinPasoSeAvisa) {
    const ParcelaDePrueba parcela{CuadradoConDos()};
    TextoDeTrabajo texto;
    texto.opciones = "Optmetro = true\nChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "4", "2", "-1");
    auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.error, "");
    ASSERT_EQ(fin.avisos.size(), 2U);
    EXPECT_NE(fin.avisos[0].find("opciones.TxtBAF2(0): aviso: el programa ha cambiado «2» por «4»"),
              std::string::npos)
        << fin.avisos[0];
    EXPECT_NE(fin.avisos[1].find("opciones.TxtBAF3(0): aviso: el programa ha cambiado «-1» por «1»"),
              std::string::npos)
        << fin.avisos[1];
    texto.opciones = "Optmetro = true\nChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "2", "4", "0");
    fin = Correr(parcela, texto);
    ASSERT_EQ(fin.avisos.size(), 1U);
    EXPECT_NE(fin.avisos[0].find("opciones.TxtBAF3(0): aviso: el programa ha cambiado «0» por «2»"),
              std::string::npos)
        << fin.avisos[0];
}

TEST(Causas, DosArbolesEnElMismoSitioNoSeAchacanAlBAF) {
    auto filas = CuadradoConDos();
    filas[5][0] = 0.1; // so that they come first
    filas[6][0] = 0.2;
    filas[6][columnaX] = 4.0;
    filas[6][columnaY] = 6.0;
    ExigirCausa(CorrerCon(filas, "ChIDPActivar = 1\n'OptBAF(0)' = true\n" + Barrido(0, "0", "4", "4")), 11,
                "los dos árboles están en el mismo sitio (familia IDP");
}

TEST(Causas, DosArbolesDeLaMismaXOLaMismaYEnAPA) {
    const std::string apa = "ChAPA = 1\n" + Barrido(8, "1", "1", "1");
    auto filas = CuadradoConDos();
    filas[6][columnaX] = 4.0;
    Fin fin = CorrerCon(filas, apa);
    ExigirCausa(fin, 11, "los dos árboles tienen la misma X (familia APA");
    EXPECT_NE(fin.error.find("fila 6 de «Parcela1$», árbol 5, con el vecino de la fila 7, árbol 6"),
              std::string::npos)
        << fin.error;
    filas[6][columnaX] = 4.5; // the nearest, straight to the right
    filas[6][columnaY] = 6.0;
    fin = CorrerCon(filas, apa);
    ExigirCausa(fin, 11, "los dos árboles tienen la misma Y (familia APA");
    EXPECT_NE(fin.error.find("fila 6 de «Parcela1$», árbol 5, con el vecino de la fila 7, árbol 6"),
              std::string::npos)
        << fin.error;
}

TEST(Causas, DosArbolesDeLaMismaYQueNoSonLosMasCercanosEnAPA) {
    auto filas = CuadradoConDos();
    filas[6][columnaX] = 9.5; // tree 2 is seen nearer
    filas[6][columnaY] = 6.0;
    const Fin fin = CorrerCon(filas, "ChAPA = 1\n" + Barrido(8, "1", "1", "1"));
    ExigirCausa(fin, 11, "los dos árboles tienen la misma Y (familia APA");
    EXPECT_NE(fin.error.find("fila 6 de «Parcela1$», árbol 5, con el vecino de la fila 7, árbol 6"),
              std::string::npos)
        << fin.error;
}

/// Rounding takes their direction beyond the axis.
TEST(Causas, DosArbolesCasiDeLaMismaXODeLaMismaYEnAPA) {
    struct Vecino {
        double x;
        double y;
        int fallo;
        const char* causa;
    };
    for (const Vecino& vecino : {Vecino{4.0000001, 3.1, 1004, "los dos árboles tienen casi la misma X"},
                                 Vecino{1.38, 6.0000001, 5, "los dos árboles tienen casi la misma Y"}}) {
        auto filas = CuadradoConDos();
        filas[6][columnaX] = vecino.x;
        filas[6][columnaY] = vecino.y;
        const Fin fin = CorrerCon(filas, "ChAPA = 1\n" + Barrido(8, "1", "1", "1"));
        ExigirCausa(fin, vecino.fallo, std::string{vecino.causa} + " (familia APA");
        EXPECT_NE(fin.error.find("fila 6 de «Parcela1$», árbol 5, con el vecino de la fila 7, árbol 6"),
                  std::string::npos)
            << fin.error;
    }
}

TEST(Causas, UnaCabeceraConBlancosOSignosSeNombraConSuRemedio) {
    for (const std::string cabecera : {"Cod especie", "Cod-especie", "2cod"}) {
        auto filas = CuadradoConCentro();
        filas[0][7] = cabecera;
        TextoDeTrabajo texto;
        texto.columnas.replace(texto.columnas.find("\"Cod\""), 5, "\"" + cabecera + "\"");
        const Fin fin = CorrerCon(filas, "ChN = 1\n", texto);
        EXPECT_TRUE(fin.fallo == 3075 || fin.fallo == 3061) << fin.error;
        for (const std::string& parte :
             {"la columna «" + cabecera + "»", std::string{"cambie la cabecera a una sola palabra"}}) {
            EXPECT_NE(fin.error.find(parte), std::string::npos) << fin.error;
        }
    }
}

/// The square, and a text in another place of its sheet.
Filas CuadradoConNota(std::size_t fila, std::size_t columna, const std::string& nota) {
    auto filas = CuadradoConCentro();
    filas.resize(std::max(filas.size(), fila + 1));
    filas[fila].resize(std::max(filas[fila].size(), columna + 1));
    filas[fila][columna] = nota;
    return filas;
}

TEST(Causas, UnaNotaMuyLejosDiceDondeEsta) {
    ExigirCausa(
        CorrerCon(CuadradoConNota(59999, 250, "medir otra vez"), ""), 6,
        "la hoja tiene 59.999 filas; el límite es 32.766. Solo 6 tienen algo: mire si sobra la última, la "
        "fila 60000, con «medir otra vez» en la columna «F251»");
}

TEST(Causas, UnaFormulaVaciaMuyLejosNoEstorba) {
    EXPECT_EQ(CorrerCon(CuadradoConNota(59999, 250, ""), "").error, "");
}

TEST(Causas, UnaNotaMuyLejosNoEstorbaALasDemasHojas) {
    const ParcelaDePrueba parcela;
    EscribirArchivoXls(parcela.ruta("parcela.xls"),
                       {{"Notas", CuadradoConNota(65535, 255, "nota")}, {"Parcela1", CuadradoConCentro()}});
    const auto fin = Correr(parcela, {});
    EXPECT_EQ(fin.error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), resultadosSinIndices);
}

TEST(Causas, UnaCoordenadaInfinita) {
    auto filas = CuadradoConCentro();
    filas[3][columnaX] = std::string{"1E+400"};
    ExigirCausa(CorrerCon(filas, ""), 6,
                "«1E+400» es un número demasiado grande (fila 4 de «Parcela1$», árbol 3, columna «X»)");
}

TEST(Causas, UnaCoordenadaInmensaSeNombra) {
    for (const double inmensa : {1E300, -1E308, 1.7E308}) {
        auto filas = CuadradoConCentro();
        filas[3][columnaY] = inmensa;
        ExigirCausa(CorrerCon(filas, ""), 6,
                    "la coordenada «" + ATexto(inmensa) +
                        "» es demasiado grande (fila 4 de «Parcela1$», árbol 3, columna «Y»)");
    }
    auto filas = CuadradoConCentro();
    filas[3][columnaX] = std::string{"1E308"};
    ExigirCausa(CorrerCon(filas, ""), 6,
                "la coordenada «1E308» es demasiado grande (fila 4 de «Parcela1$», árbol 3, columna «X»)");
}

TEST(Causas, UnaMedidaInmensaSeNombra) {
    auto filas = CuadradoConCentro();
    filas[3][columnaCAP] = 1E300; // in a corner of the plot
    ExigirCausa(CorrerCon(filas, ""), 6,
                "el tamaño «1E+300» es demasiado grande (fila 4 de «Parcela1$», árbol 3, columna «CAP»)");
    filas = CuadradoConCentro();
    filas[5][columnaCAP] = 1E300; // inside
    ExigirCausa(
        CorrerCon(filas, "ChAB = 1\n"), 6,
        "«1E+300» es un número demasiado grande (familia ABha, fila 6 de «Parcela1$», árbol 5, columna "
        "«CAP»)");
    filas = CuadradoConCentro();
    filas[5][3] = 1E300;
    ExigirCausa(CorrerCon(filas, "ChSupCopa = 1\nOptcirc = true\n"), 6,
                "las medidas de la copa son demasiado grandes (familia ISC, columna ISC(Bil.), fila 6 de "
                "«Parcela1$», árbol 5)");
}

TEST(Causas, LoQueAvisaElProgramaSeCorta) {
    const std::string larga(500, '9');
    auto fin = CorrerCon(CuadradoConCentro(),
                         "ChIDPActivar = 1\n'OptBAF(0)' = true\n'TxtBAF1(0)' = \"" + larga + "\"\n");
    EXPECT_NE(
        fin.error.find("TxtBAF1(0) = «" + larga.substr(0, 120) + "…»: el programa avisa: «El valor debe ser"),
        std::string::npos)
        << fin.error;
    fin = CorrerCon(CuadradoConCentro(), "'" + larga + "' = 1\n");
    EXPECT_NE(fin.error.find(": opciones." + larga.substr(0, 111) + "…: clave desconocida"),
              std::string::npos)
        << fin.error;
    TextoDeTrabajo texto;
    texto.columnas.replace(texto.columnas.find("\"X\""), 3, "\"" + larga + "\"");
    fin = CorrerCon(CuadradoConCentro(), "", texto);
    EXPECT_NE(fin.error.find("ninguna columna «" + larga.substr(0, 120) + "…»; tiene Nº de punto, Arbol, X"),
              std::string::npos)
        << fin.error;
    texto = {};
    texto.parcela = "archivo = \"parcela.xls\"\nhoja = \"" + larga + "\"\n";
    fin = CorrerCon(CuadradoConCentro(), "", texto);
    EXPECT_NE(fin.error.find("ninguna hoja «" + larga.substr(0, 120) + "…»; tiene Parcela1$"),
              std::string::npos)
        << fin.error;
}

TEST(Causas, UnaHojaDeMuchasColumnasNoLasEnumeraTodas) {
    TextoDeTrabajo texto;
    texto.columnas.replace(texto.columnas.find("\"X\""), 3, "\"Equis\"");
    const auto fin = CorrerCon(CuadradoConNota(2, 255, "nota"), "", texto);
    EXPECT_NE(fin.error.find("F39 y 217 más"), std::string::npos) << fin.error;
}

} // namespace
} // namespace varo::prueba
