#include "lote/recorrido/ElegirColumnas.h"

#include "lote/TrabajoDePrueba.h"

#include <gtest/gtest.h>

namespace varo::prueba {
namespace {

/// How a job with these columns and options ends on CuadradoConCentro; the error without the job's name.
std::string Error(const std::string& columnas, const std::string& opciones = {}) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.columnas = columnas;
    texto.opciones = opciones;
    const auto fin = Correr(parcela, texto);
    EXPECT_TRUE(fin.error.empty() || fin.estado == Estado::Rechazado);
    const std::string prefijo = parcela.ruta("trabajo.toml").string() + ": ";
    return fin.error.empty() ? "" : fin.error.substr(prefijo.size());
}

const std::string sinArbol = "X = 'X'\nY = 'Y'\nN = 'RN'\nE = 'RE'\nS = 'RS'\nO = 'RO'\nCodigo = 'Cod'\n";

TEST(ElegirColumnas, UnaColumnaSeNombraPorSuCabeceraOPorSuNumero) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.columnas = "X = 2\nY = 3\nN = 4\nE = 5\nS = 6\nO = 7\nIndice = 1\nCodigo = 8\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), resultadosSinIndices);
}

TEST(ElegirColumnas, LaColumnaCeroEsElNumeroDeFila) {
    EXPECT_EQ(Error(sinArbol + "Indice = 0\n"), "");
    EXPECT_EQ(Error(sinArbol + "Indice = 'Nº de punto'\n"), "");
}

TEST(ElegirColumnas, LaCabeceraExactaVaPorDelanteDeLaQueSoloCambiaEnMayusculas) {
    auto filas = CuadradoConCentro();
    filas[0][0] = std::string{"Numero"};
    filas[0][8] = std::string{"Orden"}; // girths 100, 80, 60, 40, 50
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas = sinArbol + "Indice = 'ORDEN'\n";
    ASSERT_EQ(Correr(parcela, texto).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), "N\xBAOrden\tN\xBA"
                                                        "Arbol\r\n1\t100\r2\t80\r3\t60\r4\t40\r5\t50\r\r\n");
    texto.columnas = sinArbol + "Indice = 'numero'\n";
    ASSERT_EQ(Correr(parcela, texto).error, "");
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")), resultadosSinIndices);
}

TEST(ElegirColumnas, UnaColumnaQueNoEstaSeRechazaConLasQueHay) {
    EXPECT_EQ(Error(sinArbol + "Indice = 'Num'\n"), "línea 11: columnas.Indice: la hoja no tiene ninguna "
                                                    "columna «Num»; tiene Nº de punto, Arbol, X, Y, RN, "
                                                    "RE, RS, RO, Cod, CAP, Nota");
    EXPECT_EQ(Error(sinArbol + "Indice = 11\n"),
              "línea 11: columnas.Indice: no hay columna 11: van de la 0 a la 10");
    EXPECT_EQ(Error(sinArbol + "Indice = -1\n"),
              "línea 11: columnas.Indice: no hay columna -1: van de la 0 a la 10");
    EXPECT_EQ(Error(sinArbol + "Indice = 4294967296\n"),
              "línea 11: columnas.Indice: no hay columna 4294967296: van de la 0 a la 10");
}

TEST(ElegirColumnas, LosPapelesQueFaltanSeDicen) {
    EXPECT_EQ(Error("X = 'X'\nN = 'RN'\nE = 'RE'\nS = 'RS'\n"),
              "columnas: faltan papeles: Y, O, Indice, Codigo");
    EXPECT_EQ(Error("X = 'X'\n", "Opt2D = true\nChCodigo = 0\n"),
              "columnas: faltan papeles: Y, NS, EO, Indice");
    EXPECT_EQ(Error("", "OptRM = true\n"), "columnas: faltan papeles: X, Y, Radio, Indice, Codigo");
}

TEST(ElegirColumnas, UnPapelDeOtraFormaDeCopaSeRechaza) {
    EXPECT_EQ(Error("X = 'X'\nRadio = 'RN'\n"),
              "línea 5: columnas.Radio: los datos de copa elegidos no tienen este "
              "papel; tienen X, Y, N, E, S, O, Indice, Codigo y DAP");
    EXPECT_EQ(Error("N = 'RN'\n", "OptRM = true\n"),
              "línea 4: columnas.N: los datos de copa elegidos no tienen este "
              "papel; tienen X, Y, Radio, Indice, Codigo y DAP");
    EXPECT_EQ(Error("S = 'RS'\n", "Opt2D = true\n"),
              "línea 4: columnas.S: los datos de copa elegidos no tienen este "
              "papel; tienen X, Y, NS, EO, Indice, Codigo y DAP");
}

TEST(ElegirColumnas, UnCodigoConChCodigoACeroSeRechaza) {
    EXPECT_EQ(Error(sinArbol + "Indice = 'Arbol'\n", "ChCodigo = 0\n"),
              "línea 10: columnas.Codigo: ChCodigo está a 0: la parcela no tiene código de árbol");
}

TEST(ElegirColumnas, LaMismaColumnaDosVecesEsUnMensajeDelPrograma) {
    EXPECT_EQ(Error(sinArbol + "Indice = 'Arbol'\nDAP = 'Arbol'\n"),
              "línea 12: columnas.DAP: el programa avisa: «Has introducido dos veces la misma columna»");
}

/// CuadradoConCentro with another column before the last one, of which only the header has a text.
Filas ConColumnaVacia() {
    auto filas = CuadradoConCentro();
    for (auto& fila : filas) {
        fila.insert(fila.end() - 1, Valor{});
    }
    filas[0][9] = std::string{"Vacía"};
    return filas;
}

TEST(ElegirColumnas, UnaColumnaSinDatosEnLaRejillaEsUnAviso) {
    const ParcelaDePrueba parcela{ConColumnaVacia()};
    TextoDeTrabajo texto;
    texto.columnas = sinArbol + "Indice = 'Arbol'\nDAP = 'Vacía'\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.error, "");
    ASSERT_FALSE(fin.avisos.empty());
    EXPECT_EQ(fin.avisos.front(),
              parcela.ruta("trabajo.toml").string() +
                  ": línea 12: columnas.DAP: aviso: la columna 10 («Vacía») no tiene datos en la rejilla");
}

TEST(ElegirColumnas, LaUltimaColumnaDeLaHojaSeRechazaConElRemedio) {
    const std::string razon =
        "la columna 10 («Nota») es la última de la hoja, y los datos de la última no se leen: "
        "añada otra columna detrás, aunque solo tenga cabecera";
    EXPECT_EQ(Error(sinArbol + "Indice = 'Arbol'\nDAP = 'Nota'\n"), "línea 12: columnas.DAP: " + razon);
    EXPECT_EQ(Error(sinArbol + "Indice = 10\n"), "línea 11: columnas.Indice: " + razon);
}

TEST(ElegirColumnas, UnaCabeceraDetrasHaceLegibleLaUltimaColumna) {
    auto filas = CuadradoConCentro();
    for (auto& fila : filas) {
        fila.pop_back(); // the girths are the last column now
    }
    TextoDeTrabajo texto;
    texto.opciones = "ChDmax = 1\n";
    EXPECT_EQ(Correr(ParcelaDePrueba{filas}, texto).estado, Estado::Rechazado);
    filas[0].emplace_back(std::string{"fin"});
    const ParcelaDePrueba parcela{filas};
    ASSERT_EQ(Correr(parcela, texto).error, "");
    // Girths of 100, 80, 60, 40 and 50.
    EXPECT_EQ(LeerArchivo(parcela.ruta("indices.txt")),
              "N\xBAOrden\tN\xBA"
              "Arbol\tdi/dmax\r\n1\t1\t1,00\r2\t2\t0,80\r3\t3\t0,60\r4\t4\t0,40\r5\t5\t0,50\r\r\n");
}

TEST(ElegirColumnas, SinDAPSeRechazaLoQueLoPide) {
    const std::string sinDAP = sinArbol + "Indice = 'Arbol'\n";
    EXPECT_EQ(Error(sinDAP, "ChN = 1\n"), "");
    EXPECT_EQ(Error(sinDAP, "ChN = 1\nChDmed = 1\n"), "columnas: falta columnas.DAP, lo pide ChDmed");
    EXPECT_EQ(Error(sinDAP, "ChAPA = 1\nChAB = 1\n"), "columnas: falta columnas.DAP, lo piden ChAB, ChAPA");
}

TEST(ElegirColumnas, SinResultadosNoHaceFaltaElDAP) {
    const ParcelaDePrueba parcela;
    TextoDeTrabajo texto;
    texto.columnas = sinArbol + "Indice = 'Arbol'\n";
    texto.opciones = "ChAB = 1\n";
    texto.salida = "";
    EXPECT_EQ(Correr(parcela, texto).error, "");
}

TEST(ElegirColumnas, UnaCabeceraConLaPalabraCodigoNoQuitaElSitioAlCodigo) {
    auto filas = CuadradoConCentro();
    filas[0][0] = std::string{"Código"};
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas = sinArbol + "Indice = 'Código'\nDAP = 'CAP'\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
    texto.columnas =
        "X = 'X'\nY = 'Y'\nN = 'RN'\nE = 'RE'\nS = 'RS'\nO = 'RO'\nIndice = 'Código'\nDAP = 'CAP'\n";
    texto.opciones = "ChCodigo = 0\n";
    EXPECT_EQ(Correr(parcela, texto).error, "");
}

TEST(ElegirColumnas, SiElProgramaQuitaUnaLineaDeLaListaElTrabajoAcaba) {
    auto filas = CuadradoConCentro();
    filas[0][1] = std::string{"Código X"}; // without codes, its line goes when the next column is chosen
    const ParcelaDePrueba parcela{filas};
    TextoDeTrabajo texto;
    texto.columnas = "X = 'Código X'\nY = 'Y'\nN = 'RN'\nE = 'RE'\nS = 'RS'\nO = 'RO'\nIndice = 'Arbol'\n";
    texto.opciones = "ChCodigo = 0\n";
    const auto fin = Correr(parcela, texto);
    EXPECT_EQ(fin.error, parcela.ruta("trabajo.toml").string() +
                             ": columnas: el programa no da por completa la selección de columnas");
    EXPECT_EQ(fin.estado, Estado::Rechazado);
}

} // namespace
} // namespace varo::prueba
