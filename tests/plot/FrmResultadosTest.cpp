#include "plot/FrmResultados.h"

#include "apoyo/Jornada.h"
#include "basico/ErrorEjecucion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo::prueba {
namespace {

struct Resultados : Jornada {
    FrmResultados& ventana() { return programa.tocar<FrmResultados>(); }
};

/// What a run hands over for these codes: 100, 200... stems/ha, 10, 20... m2/ha.
CifrasDeParcela Con(const std::vector<std::string>& codigos) {
    CifrasDeParcela cifras;
    cifras.numCodigos = codigos.size();
    cifras.codigos = codigos;
    const int ultimo = static_cast<int>(codigos.size()) - 1;
    if (ultimo >= 0) {
        cifras.piesHaCodigo.redimensionar(ultimo);
        cifras.abHaCodigo.redimensionar(ultimo);
    }
    for (int c = 0; c <= ultimo; ++c) {
        cifras.piesHaCodigo(c) = 100.0 * (c + 1);
        cifras.abHaCodigo(c) = 10.0 * (c + 1);
        cifras.piesHa += cifras.piesHaCodigo(c);
        cifras.abHa += cifras.abHaCodigo(c);
    }
    return cifras;
}

CifrasDeParcela ConTantosCodigos(int cuantos) {
    std::vector<std::string> codigos;
    codigos.reserve(static_cast<std::size_t>(cuantos));
    for (int c = 0; c < cuantos; ++c) {
        codigos.push_back("C" + std::to_string(c));
    }
    return Con(codigos);
}

using Textos = std::vector<std::string>;
using Lugares = std::vector<double>;

Textos Leyendas(const Matriz<Etiqueta>& etiquetas) {
    Textos textos;
    for (const auto& [indice, etiqueta] : etiquetas.miembros()) {
        textos.push_back(etiqueta->Caption);
    }
    return textos;
}

Lugares Izquierdas(const Matriz<Etiqueta>& etiquetas) {
    Lugares lugares;
    for (const auto& [indice, etiqueta] : etiquetas.miembros()) {
        lugares.push_back(etiqueta->Left);
    }
    return lugares;
}

/// The places of the members are the same in the four arrays.
void CompruebaLugares(const FrmResultados& ventana, const Lugares& lugares) {
    for (const auto* const etiquetas :
         {&ventana.LbPiesHaCodigo, &ventana.LbPiesHaValor, &ventana.LbAbHaCodigo, &ventana.LbAbHaValor}) {
        EXPECT_EQ(Izquierdas(*etiquetas), lugares) << (*etiquetas)(0).Name();
    }
}

/// The words in front of the rows.
void CompruebaRotulos(const FrmResultados& ventana, double izquierda) {
    for (const auto* const rotulo :
         {&ventana.LbCodPha, &ventana.LbValorPha, &ventana.LbCodAbha, &ventana.LbValorAbha}) {
        EXPECT_EQ(rotulo->Left(), izquierda) << rotulo->Name();
    }
}

TEST(FrmResultados, EsUnaHijaDeSeisMilSetecientosTwips) {
    Resultados dia;
    EXPECT_EQ(dia.ventana().Caption(), "Datos de parcela");
    EXPECT_EQ(dia.ventana().tipo(), TipoVentana::Hija);
    EXPECT_EQ(dia.ventana().Width(), 6700);
    EXPECT_EQ(dia.ventana().Height(), 6700);
    EXPECT_FALSE(dia.ventana().Visible());
}

struct Diseno {
    const char* nombre;
    int indice;
    std::vector<double> medidas; ///< left, top, width, height
    const char* leyenda;
    const char* letra;
    bool negrita;
    const char* marca;
};

TEST(FrmResultados, SusEtiquetasEstanEnElLugarDelDiseno) {
    constexpr int sola = Identidad::sinIndice;
    const char* const arial = "Arial";
    const char* const times = "Times New Roman";
    const std::vector<Diseno> disenos{
        {"LbParcela", sola, {1080, 120, 3975, 495}, "Label1", arial, true, ""},
        {"LbAreaTotal", sola, {1080, 720, 945, 240}, "Superficie", arial, true, ""},
        {"LbPiesHa", sola, {1080, 1200, 1275, 240}, "Nº de pies/ha:", arial, true, ""},
        {"LbCodPha", sola, {360, 1680, 495, 255}, "Cod:", times, false, "1"},
        {"LbPiesHaCodigo", 0, {1080, 1680, 855, 255}, " ", arial, true, "1"},
        {"LbValorPha", sola, {360, 2040, 495, 255}, "Valor:", times, false, "1"},
        {"LbPiesHaValor", 0, {1080, 2040, 855, 255}, " ", times, false, "1"},
        {"LbAbHa", sola, {1080, 2520, 2535, 255}, "Area basimétrica (m2/ha):", arial, true, ""},
        {"LbCodAbha", sola, {360, 3000, 495, 255}, "Cod:", times, false, "1"},
        {"LbAbHaCodigo", 0, {1080, 3000, 855, 255}, " ", arial, true, ""},
        {"LbValorAbha", sola, {360, 3360, 495, 255}, "Valor:", times, false, "1"},
        {"LbAbHaValor", 0, {1080, 3360, 855, 255}, " ", times, false, ""},
        {"LbSupCop", sola, {1080, 3840, 60, 240}, "", arial, true, ""},
        {"LbAreaCopas", sola, {1080, 3960, 5175, 255}, "Area total de Copas:", arial, true, ""},
        {"LbAreaCopasInterior",
         sola,
         {1080, 4560, 5175, 255},
         "Area total de Copas interior:",
         arial,
         true,
         ""},
        {"LbAreaIntersecCopas",
         sola,
         {1080, 5160, 5175, 255},
         "Area de Intersección de copas:",
         arial,
         true,
         ""},
        {"LbFcc", sola, {1080, 5760, 5175, 255}, "Fcc:", arial, true, ""},
    };
    Resultados dia;
    EXPECT_EQ(dia.ventana().controles().size(), disenos.size());
    for (const auto& diseno : disenos) {
        const auto& etiqueta = dynamic_cast<Etiqueta&>(dia.ventana().control(diseno.nombre, diseno.indice));
        const Lugares medidas{etiqueta.Left, etiqueta.Top, etiqueta.Width, etiqueta.Height};
        EXPECT_EQ(medidas, diseno.medidas) << diseno.nombre;
        EXPECT_EQ(etiqueta.Caption(), diseno.leyenda) << diseno.nombre;
        EXPECT_EQ(etiqueta.Font().nombre, diseno.letra) << diseno.nombre;
        EXPECT_EQ(etiqueta.Font().negrita, diseno.negrita) << diseno.nombre;
        EXPECT_EQ(etiqueta.Tag, diseno.marca) << diseno.nombre;
        EXPECT_TRUE(etiqueta.Visible()) << diseno.nombre;
    }
}

TEST(FrmResultados, UnSoloCodigoDaSuColumnaYLaDelTotal) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({"Pino"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"Pino", "Total"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"100,0", "100,0"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaCodigo), (Textos{"Pino", "Total"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaValor), (Textos{"10,0", "10,0"}));
    // A third of 6,700 for each part; rounding as 64 bits round it.
    EXPECT_DOUBLE_EQ(ventana.LbPiesHaValor(0).Left(), 2233.0 + 1.0 / 3);
    EXPECT_DOUBLE_EQ(ventana.LbPiesHaValor(1).Left(), 4466.0 + 2.0 / 3);
    EXPECT_DOUBLE_EQ(ventana.LbAbHaCodigo(1).Left(), 4466.0 + 2.0 / 3);
    EXPECT_EQ(ventana.Width(), 7200);
}

TEST(FrmResultados, DosCodigosSeReparten6700Twips) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({"A", "B"}));
    CompruebaRotulos(ventana, 955); // 6700 / 4 - 720
    CompruebaLugares(ventana, {1675, 3350, 5025});
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"A", "B", "Total"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"100,0", "200,0", "300,0"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaValor), (Textos{"10,0", "20,0", "30,0"}));
    EXPECT_EQ(ventana.Width(), 7200);
}

TEST(FrmResultados, LosMiembrosNuevosSonComoElPrimeroYSeVen) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({"A", "B"}));
    for (const auto* const etiquetas :
         {&ventana.LbPiesHaCodigo, &ventana.LbPiesHaValor, &ventana.LbAbHaCodigo, &ventana.LbAbHaValor}) {
        const Etiqueta& primera = (*etiquetas)(0);
        for (const int indice : {1, 2}) {
            const Etiqueta& nueva = (*etiquetas)(indice);
            EXPECT_TRUE(nueva.Visible()) << nueva.nombreCompleto();
            EXPECT_EQ(nueva.Top(), primera.Top()) << nueva.nombreCompleto();
            EXPECT_EQ(nueva.Width(), 855) << nueva.nombreCompleto();
            EXPECT_EQ(nueva.Height(), 255) << nueva.nombreCompleto();
            EXPECT_EQ(nueva.Font(), primera.Font()) << nueva.nombreCompleto();
            EXPECT_EQ(nueva.Tag, "") << nueva.nombreCompleto();
        }
    }
}

TEST(FrmResultados, ConSeisCodigosYaNoCabenYLaVentanaSeEnsancha) {
    Resultados cinco;
    cinco.ventana().tablasConCodigos(ConTantosCodigos(5)); // 855 * 7 = 5985
    EXPECT_EQ(cinco.ventana().Width(), 7200);
    Resultados seis;
    seis.ventana().tablasConCodigos(ConTantosCodigos(6)); // 855 * 8 = 6840
    EXPECT_EQ(seis.ventana().Width(), 7840);              // 6840 + 500 + 500
    CompruebaRotulos(seis.ventana(), 197.5);              // 7340 / 8 - 720
    CompruebaLugares(seis.ventana(), {917.5, 1835, 2752.5, 3670, 4587.5, 5505, 6422.5});
}

TEST(FrmResultados, CuarentaCodigosDanCuarentaYUnaColumnas) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(ConTantosCodigos(40));
    EXPECT_EQ(ventana.Width(), 36910); // 855 * 42 + 500 + 500
    const double paso = 36410.0 / 42;
    ASSERT_EQ(ventana.LbPiesHaValor.miembros().size(), 41U);
    for (int c = 0; c <= 40; ++c) {
        EXPECT_DOUBLE_EQ(ventana.LbPiesHaValor(c).Left(), paso * (c + 1)) << c;
        EXPECT_DOUBLE_EQ(ventana.LbAbHaCodigo(c).Left(), paso * (c + 1)) << c;
    }
    EXPECT_EQ(ventana.LbPiesHaCodigo(39).Caption(), "C39");
    EXPECT_EQ(ventana.LbPiesHaCodigo(40).Caption(), "Total");
    EXPECT_EQ(ventana.LbPiesHaValor(40).Caption(), "82000,0"); // 100 * 40 * 41 / 2
}

TEST(FrmResultados, SinCodigosHayUnaColumnaEnElCentro) {
    Resultados dia;
    auto& ventana = dia.ventana();
    CifrasDeParcela cifras;
    cifras.piesHa = 1234.56;
    cifras.abHa = 23.45;
    ventana.tablasSinCodigos(cifras);
    CompruebaLugares(ventana, {2922.5}); // 6700 / 2 - 855 / 2
    CompruebaRotulos(ventana, 2202.5);
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"Total"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"1234,6"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaCodigo), (Textos{"Total"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaValor), (Textos{"23,5"}));
    EXPECT_EQ(ventana.Width(), 6700);
}

TEST(FrmResultados, SinNingunCodigoQuedanLosBlancosDelDisenoYNoHayTotal) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({}));
    for (const auto* const etiquetas :
         {&ventana.LbPiesHaCodigo, &ventana.LbPiesHaValor, &ventana.LbAbHaCodigo, &ventana.LbAbHaValor}) {
        EXPECT_EQ(Leyendas(*etiquetas), (Textos{" "})) << (*etiquetas)(0).Name();
    }
    CompruebaRotulos(ventana, 2630); // 6700 / 2 - 720
    CompruebaLugares(ventana, {3350});
    EXPECT_EQ(ventana.Width(), 7200);
}

TEST(FrmResultados, SinContarNingunCodigoSeVeElPrimeroDeLosQueQuedan) {
    Resultados dia;
    auto& ventana = dia.ventana();
    CifrasDeParcela cifras = Con({});
    cifras.codigos = {"Roble", "Haya"};
    ventana.tablasConCodigos(cifras);
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"Roble"}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaCodigo), (Textos{"Roble"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{" "}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaValor), (Textos{" "}));
}

TEST(FrmResultados, UnaCifraNegativaDePiesNoSeEscribe) {
    Resultados dia;
    auto& ventana = dia.ventana();
    CifrasDeParcela cifras = Con({"A", "B", "C", "D"});
    cifras.piesHaCodigo(0) = -12.5;
    cifras.piesHaCodigo(1) = 0;
    cifras.piesHaCodigo(2) = 0.4;
    cifras.piesHaCodigo(3) = -3;
    cifras.piesHa = -15.1;
    cifras.abHaCodigo(0) = -1.26;
    cifras.abHaCodigo(1) = 0;
    cifras.abHaCodigo(2) = 123.45;
    cifras.abHa = -0.5;
    ventana.tablasConCodigos(cifras);
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"", "0", ",4", "", ""}));
    EXPECT_EQ(Leyendas(ventana.LbAbHaValor), (Textos{"-1,3", "0,0", "123,5", "40,0", "-0,5"}));
}

TEST(FrmResultados, SinCodigosUnaCifraNegativaNoSeEscribeYUnCeroEsUnCero) {
    Resultados dia;
    auto& ventana = dia.ventana();
    CifrasDeParcela cifras;
    cifras.piesHa = -1;
    cifras.abHa = -1;
    ventana.tablasSinCodigos(cifras);
    EXPECT_EQ(ventana.LbPiesHaValor(0).Caption(), "");
    EXPECT_EQ(ventana.LbAbHaValor(0).Caption(), "");
    ventana.tablasSinCodigos({});
    EXPECT_EQ(ventana.LbPiesHaValor(0).Caption(), "0");
    EXPECT_EQ(ventana.LbAbHaValor(0).Caption(), "0");
}

TEST(FrmResultados, UnaSegundaCorridaUsaLosMiembrosQueHayYVuelveAEnsanchar) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({"A", "B"}));
    const Etiqueta* const segunda = &ventana.LbPiesHaValor(1);
    ventana.tablasConCodigos(Con({"X", "Y"}));
    EXPECT_EQ(&ventana.LbPiesHaValor(1), segunda);
    CompruebaRotulos(ventana, 1080); // 7200 / 4 - 720
    CompruebaLugares(ventana, {1800, 3600, 5400});
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"X", "Y", "Total"}));
    EXPECT_EQ(ventana.Width(), 7700);
}

TEST(FrmResultados, LosMiembrosQueSobranEnOtraCorridaSeQuedanComoEstaban) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.tablasConCodigos(Con({"A", "B"}));
    ventana.tablasConCodigos(Con({})); // 7200 / 2 = 3600
    CompruebaLugares(ventana, {3600, 3350, 5025});
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"A", "B", "Total"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"100,0", "200,0", "300,0"}));
    EXPECT_EQ(ventana.Width(), 7700);
    ventana.tablasSinCodigos({}); // 7700 / 2 - 855 / 2
    CompruebaLugares(ventana, {3422.5, 3350, 5025});
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"Total", "B", "Total"}));
    EXPECT_EQ(ventana.Width(), 7700);
}

TEST(FrmResultados, UnaCifraQueFaltaDejaSuLeyenda) {
    Resultados dia;
    auto& ventana = dia.ventana();
    CifrasDeParcela cifras = Con({"A", "B"});
    cifras.piesHaCodigo.redimensionar(0);
    cifras.codigos.pop_back();
    ventana.tablasConCodigos(cifras);
    EXPECT_EQ(Leyendas(ventana.LbPiesHaValor), (Textos{"0", " ", "300,0"}));
    EXPECT_EQ(Leyendas(ventana.LbPiesHaCodigo), (Textos{"A", " ", "Total"}));
    EXPECT_TRUE(ventana.LbPiesHaValor(1).Visible());
}

TEST(FrmResultados, ElResumenDiceCadaCifraConSuUnidad) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.resumen({.titulo = "Parcela Lillo$",
                     .superficie = 1963.46,
                     .areaCopas = 0.04,
                     .areaCopasInterior = -2.25,
                     .areaIntersecCopas = 10.0,
                     .fcc = 0.285F});
    EXPECT_EQ(ventana.LbParcela.Caption(), "Parcela Lillo$");
    EXPECT_EQ(ventana.LbParcela.Left(), 1362.5); // 6700 / 2 - 3975 / 2
    EXPECT_EQ(ventana.LbAreaTotal.Caption(), "Area: 1963,5 m2");
    EXPECT_EQ(ventana.LbAreaCopas.Caption(), "Area total de copas: 0,0 m2");
    EXPECT_EQ(ventana.LbAreaCopasInterior.Caption(), "Area total de copas dentro de parcela: -2,3 m2");
    EXPECT_EQ(ventana.LbAreaIntersecCopas.Caption(), "Area total de intersección de copas: 10,0 m2");
    EXPECT_EQ(ventana.LbFcc.Caption(), "Fcc: 0,29") << "de sus 7 cifras: 0,2850000";
}

TEST(FrmResultados, ElTituloSeCentraEnElAnchoQueDejanLasTablas) {
    Resultados dia;
    dia.ventana().tablasConCodigos(Con({"A", "B"}));
    dia.ventana().resumen({});
    EXPECT_EQ(dia.ventana().LbParcela.Left(), 1612.5); // 7200 / 2 - 3975 / 2
}

TEST(FrmResultados, ElResumenDejaLaLeyendaDeLoQueNoTieneValor) {
    Resultados dia;
    auto& ventana = dia.ventana();
    ventana.resumen({});
    EXPECT_EQ(ventana.LbParcela.Caption(), "Label1");
    EXPECT_EQ(ventana.LbAreaTotal.Caption(), "Superficie");
    EXPECT_EQ(ventana.LbAreaCopasInterior.Caption(), "Area total de Copas interior:");
    EXPECT_EQ(ventana.LbFcc.Caption(), "Fcc:");
}

TEST(FrmResultados, AlCerrarlaSeOlvidanLosPiesYElAreaBasimetrica) {
    Resultados dia;
    auto& sesion = dia.programa.sesion;
    dia.ventana().Show();
    sesion.PiesHaActual = 800;
    sesion.AbHaActual = 30;
    sesion.SupPoligono = 100;
    dia.usuario.cerrar(dia.ventana());
    EXPECT_EQ(dia.programa.cargada<FrmResultados>(), nullptr);
    EXPECT_EQ(sesion.PiesHaActual, 0);
    EXPECT_EQ(sesion.AbHaActual, 0);
    EXPECT_EQ(sesion.SupPoligono, 100);
}

TEST(FrmResultados, VuelveASuDisenoDespuesDeCerrarla) {
    Resultados dia;
    dia.ventana().tablasConCodigos(Con({"A", "B"}));
    dia.programa.descargar<FrmResultados>();
    EXPECT_EQ(dia.ventana().Width(), 6700);
    EXPECT_EQ(dia.ventana().LbPiesHaValor.miembros().size(), 1U);
}

TEST(FrmResultados, CerrarElArchivoNoLaCierra) {
    Resultados dia;
    dia.abrirParcela(CuadradoConCentro());
    dia.ventana().Show();
    dia.usuario.clic(dia.marco().mnuCerrar);
    EXPECT_TRUE(dia.ventana().Visible());
}

} // namespace
} // namespace varo::prueba
