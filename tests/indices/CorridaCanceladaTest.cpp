#include "apoyo/Jornada.h"
#include "apoyo/OyenteDePrueba.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {
namespace {

/// Five trees, no two of one x or one y.
Filas Torcidas() {
    Filas filas = CuadradoConCentro();
    const std::vector<std::pair<double, double>> lugares{{0, 1}, {1, 11}, {12, 10}, {11, 0}, {5, 6}};
    for (std::size_t i = 0; i < lugares.size(); ++i) {
        filas[i + 1][1] = lugares[i].first;
        filas[i + 1][2] = lugares[i].second;
    }
    return filas;
}

/// The map is up, and all families of neighbours and ABj are asked for.
struct Corrida : Jornada {
    explicit Corrida(bool circulos) {
        abrirParcela(Torcidas());
        dibujarCuadrado();
        auto& o = opciones();
        o.OptDAP.Value = true;
        o.OptMDIA.Value = true;
        o.Optcirc.Value = circulos;
        o.ChABj.Value = 1;
        o.ChSupCopa.Value = 1;
        o.ChISCUni.Value = 1;
        o.ChAOIActivar.Value = 1;
        o.LstAOI.AddItem("a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000");
        barrer(6, "0", "1", "0,5");
        o.ChIDPActivar.Value = 1;
        o.OptRadioFijo(0).Value = true;
        barrer(0, "20", "20", "0");
        o.ChDRActivar.Value = 1;
        o.OptNumFijo(1).Value = true;
        barrer(3, "1", "2", "1");
        barrer(4, "0", "0", "0");
        o.LstDist.AddItem("HIP, a: 1,0000; b: 0,0000; c: 1,0000; d: 0,0000; e: 0,0000");
        o.ChAPA.Value = 1;
        barrer(8, "1", "1", "0");
    }
    void barrer(int i, const std::string& desde, const std::string& hasta, const std::string& paso) {
        opciones().TxtBAF1(i).Text = desde;
        opciones().TxtBAF2(i).Text = hasta;
        opciones().TxtBAF3(i).Text = paso;
    }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    FrmCrearArchivo* dialogo() { return programa.cargada<FrmCrearArchivo>(); }
    void correr() { usuario.clic(mapa().mnuIndices); }
    /// Runs until the step with this number, and no further.
    void cancelarEn(std::size_t paso) {
        OyenteDePrueba oyente;
        oyente.cancelarEn = paso;
        servicios.oyente = &oyente;
        correr();
        servicios.oyente = nullptr;
        EXPECT_EQ(oyente.oidos, paso);
    }
    /// The file that the dialog on show writes now.
    std::string guardar() {
        dialogo()->DirLista.Path(carpeta.ruta().string());
        const std::string nombre = "indices" + std::to_string(++guardados_) + ".txt";
        usuario.escribir(dialogo()->TxtLista, nombre);
        servicios.esperarMensaje(carpeta.archivo(nombre) + " fue creado correctamente");
        usuario.clic(dialogo()->CmdAceptar);
        return LeerArchivo(carpeta.archivo(nombre));
    }

private:
    int guardados_ = 0;
};

TEST(CorridaCancelada, LaCorridaDiceCadaColumnaYCadaArbol) {
    Corrida corrida{true};
    OyenteDePrueba oyente;
    corrida.servicios.oyente = &oyente;
    corrida.correr();
    EXPECT_EQ(oyente.etapas,
              (std::vector<std::string>{"ABha(dj>di)", "ISC, columna 1 de 2", "ISC, columna 2 de 2",
                                        "AOI, columna 1 de 3", "AOI, columna 2 de 3", "AOI, columna 3 de 3",
                                        "IDP, columna 1 de 1", "DR, columna 1 de 2", "DR, columna 2 de 2",
                                        "APA, columna 1 de 1"}));
    // Five sizes and five trees, then five trees in each of nine columns.
    EXPECT_EQ(oyente.oidos, 5U + 5U + 9U * 5U);
    EXPECT_EQ(oyente.ultima.hechos, oyente.ultima.pasos);
}

class CancelarLaCorrida : public testing::TestWithParam<bool> {};

TEST_P(CancelarLaCorrida, NoDejaResultadosYLaSiguienteLosDaEnteros) {
    Corrida entera{GetParam()};
    entera.correr();
    const std::string esperado = entera.guardar();
    Corrida corrida{GetParam()};
    for (const std::size_t paso : {1U, 7U, 11U, 14U, 23U, 38U, 47U, 52U, 55U}) {
        corrida.cancelarEn(paso);
        EXPECT_EQ(corrida.dialogo(), nullptr) << paso;
        EXPECT_EQ(corrida.mapa().MousePointer(), Formulario::punteroNormal) << paso;
        // The one cell of APA, at the last step, brings the second surface to the front.
        const Formulario* const celdas = corrida.programa.cargada<FrmMapa2>();
        EXPECT_EQ(corrida.programa.activa(), paso < 55 ? &corrida.mapa() : celdas) << paso;
        EXPECT_TRUE(corrida.mapa().mnuIndices.Enabled()) << paso;
        const auto& r = corrida.programa.resultados;
        EXPECT_EQ(r.IndABj.limite(), -1) << paso;
        EXPECT_EQ(r.IndISC.limite(), -1) << paso;
        EXPECT_EQ(r.NumColDR, 0) << paso;
    }
    EXPECT_TRUE(corrida.servicios.mensajes().empty());
    EXPECT_TRUE(corrida.servicios.fallos().empty());
    corrida.correr();
    EXPECT_EQ(corrida.guardar(), esperado);
}

TEST_P(CancelarLaCorrida, LosResultadosDeAntesSiguenSiendoLosDeAntes) {
    Corrida corrida{GetParam()};
    corrida.correr();
    const std::string antes = corrida.guardar();
    corrida.correr(); // the dialog hides after a saving
    ASSERT_TRUE(corrida.dialogo()->Visible());
    corrida.opciones().TxtBAF2(6).Text = "0";
    corrida.opciones().TxtBAF1(3).Text = "2";
    corrida.cancelarEn(40);
    corrida.opciones().TxtBAF2(6).Text = "1";
    corrida.opciones().TxtBAF1(3).Text = "1";
    EXPECT_EQ(corrida.guardar(), antes);
}

INSTANTIATE_TEST_SUITE_P(CorridaCancelada, CancelarLaCorrida, testing::Bool(),
                         [](const auto& dato) { return std::string{dato.param ? "Circulos" : "Elipses"}; });

} // namespace
} // namespace varo::prueba
