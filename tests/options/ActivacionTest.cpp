// The switches of the families: what goes on and off with each, and what survives.
#include "options/DialogoAbierto.h"
#include "options/Familias.h"

#include <map>
#include <set>

namespace varo::prueba {

namespace {

class Activacion : public DialogoAbierto {
protected:
    using Habilitados = std::map<std::string, bool>;

    Habilitados habilitados() {
        Habilitados todos;
        for (const Control* control : opciones.controles()) {
            todos[control->nombreCompleto()] = control->Enabled();
        }
        return todos;
    }
    std::set<std::string> visibles() {
        std::set<std::string> todos;
        for (const Control* control : opciones.controles()) {
            if (control->Visible()) {
                todos.insert(control->nombreCompleto());
            }
        }
        return todos;
    }
    /// All that a person has written: texts and lines.
    Lineas escrito() {
        Lineas todo;
        for (const Control* control : opciones.controles()) {
            if (control->tipo() == TipoControl::CajaTexto) {
                todo.push_back(static_cast<const CajaTexto&>(*control).Text());
            } else if (control->tipo() == TipoControl::Lista) {
                for (const std::string& linea : lineas(static_cast<const Lista&>(*control))) {
                    todo.push_back(control->nombreCompleto() + "=" + linea);
                }
            }
        }
        return todo;
    }
};

} // namespace

TEST_F(Activacion, CadaInterruptorHabilitaSusControlesYNingunoMas) {
    for (const Familia& familia : familias) {
        SCOPED_TRACE(familia.interruptor);
        Habilitados esperados = habilitados();
        for (const Control* control : ControlesDe(opciones, familia)) {
            EXPECT_FALSE(control->Enabled()) << control->nombreCompleto();
            esperados[control->nombreCompleto()] = true;
        }
        usuario.clic(InterruptorDe(opciones, familia));
        EXPECT_EQ(habilitados(), esperados);
    }
}

TEST_F(Activacion, ApagarUnaFamiliaDeshaceLoQueHizoEncenderla) {
    for (const Familia& familia : familias) {
        SCOPED_TRACE(familia.interruptor);
        const auto antes = habilitados();
        const auto vistosAntes = visibles();
        usuario.clic(InterruptorDe(opciones, familia));
        usuario.clic(InterruptorDe(opciones, familia));
        EXPECT_EQ(habilitados(), antes);
        EXPECT_EQ(visibles(), vistosAntes);
    }
}

TEST_F(Activacion, LasImagenesDelRadioDeInfluenciaApareceYDesaparecenConAOI) {
    EXPECT_FALSE(opciones.ImgRm.Visible());
    usuario.clic(opciones.ChAOIActivar);
    EXPECT_TRUE(opciones.ImgRm.Visible());
    EXPECT_TRUE(opciones.LbRm.Visible());
    usuario.clic(opciones.ChAOIActivar);
    EXPECT_FALSE(opciones.ImgRm.Visible());
    EXPECT_FALSE(opciones.LbRm.Visible());
}

TEST_F(Activacion, LasImagenesDeLaFuncionDeDistanciaSiguenASuClaseYSeVanConDR) {
    usuario.clic(opciones.ChDRActivar);
    EXPECT_TRUE(opciones.ImgHiper2.Visible());
    EXPECT_FALSE(opciones.ImgExp2.Visible());
    EXPECT_TRUE(opciones.OptDistHiper.Enabled());
    EXPECT_TRUE(opciones.OptDistHiper.Value());
    usuario.clic(opciones.OptDistExp);
    EXPECT_FALSE(opciones.ImgHiper2.Visible());
    EXPECT_TRUE(opciones.ImgExp2.Visible());
    usuario.clic(opciones.ChDRActivar);
    EXPECT_TRUE(opciones.OptDistHiper.Value());
    EXPECT_FALSE(opciones.ImgHiper2.Visible());
    EXPECT_FALSE(opciones.ImgExp2.Visible());
}

TEST_F(Activacion, LasImagenesFijasNoSeEscondenNunca) {
    const std::vector<const Imagen*> fijas{&opciones.Image1, &opciones.Image3, &opciones.Image4,
                                           &opciones.Image7, &opciones.ImgAPA};
    for (int vez = 0; vez < 3; ++vez) {
        for (const Imagen* imagen : fijas) {
            EXPECT_TRUE(imagen->Visible()) << imagen->Name();
        }
        encenderTodas(); // and off, and on again
    }
}

TEST_F(Activacion, ApagarAPAInhabilitaSuImagenQueSigueALaVista) {
    usuario.clic(opciones.ChAPA);
    EXPECT_TRUE(opciones.ImgAPA.Enabled());
    usuario.clic(opciones.ChAPA);
    EXPECT_FALSE(opciones.ImgAPA.Enabled());
    EXPECT_TRUE(opciones.ImgAPA.Visible());
}

TEST_F(Activacion, LasRazonesDeAlturasNoSeHabilitanNunca) {
    encenderTodas();
    EXPECT_FALSE(opciones.OptHjHi.Enabled());
    EXPECT_FALSE(opciones.OptDRHjHi.Enabled());
    encenderTodas();
    EXPECT_FALSE(opciones.OptHjHi.Enabled());
    EXPECT_FALSE(opciones.OptDRHjHi.Enabled());
}

TEST_F(Activacion, ApagarDPVuelveAlFactorConSuIntervaloYEscondeLaLista) {
    usuario.clic(opciones.ChIDPActivar);
    usuario.clic(opciones.OptFunc(0));
    usuario.clic(opciones.OptHiper(0));
    usuario.clic(opciones.ChIDPActivar);
    EXPECT_TRUE(opciones.OptBAF(0).Value());
    EXPECT_FALSE(opciones.OptFunc(0).Value());
    EXPECT_TRUE(opciones.FramBAF(0).Visible());
    EXPECT_TRUE(opciones.TxtBAF1(0).Visible());
    EXPECT_EQ(opciones.FramBAF(0).Caption(), "BAF (m2/ha)");
    for (const Control* control : std::initializer_list<const Control*>{
             &opciones.FramFunc(0), &opciones.FramHIPER(0), &opciones.FramRICH(0), &opciones.LstRich(0),
             &opciones.CmdAñadirRich(0), &opciones.CmdQuitarRich(0), &opciones.CmdVaciarRich(0)}) {
        EXPECT_FALSE(control->Visible()) << control->nombreCompleto();
    }
}

TEST_F(Activacion, DPYDRVuelvenConElFactorYSinFunciones) {
    for (const int i : {0, 1}) {
        Casilla& interruptor = i == 0 ? opciones.ChIDPActivar : opciones.ChDRActivar;
        usuario.clic(interruptor);
        usuario.clic(opciones.OptNumFijo(i));
        usuario.clic(interruptor);
        usuario.clic(interruptor);
        EXPECT_TRUE(opciones.OptBAF(i).Value());
        EXPECT_TRUE(opciones.TxtBAF1(2 * i).Visible());
        EXPECT_FALSE(opciones.TxtBAF1(2 * i + 1).Visible());
        EXPECT_FALSE(opciones.FramFunc(i).Visible());
        EXPECT_FALSE(opciones.LstRich(i).Visible());
    }
}

TEST_F(Activacion, LosCamposDeLosPiesSigueHabilitadosConSuFamiliaApagadaPeroNadieLosUsa) {
    usuario.clic(opciones.ChIDPActivar);
    usuario.clic(opciones.OptNumFijo(0));
    usuario.clic(opciones.ChIDPActivar);
    EXPECT_TRUE(opciones.TxtBAF1(1).Enabled());
    EXPECT_THROW(teclear(opciones.TxtBAF1(1), "3"), ActoImposible);
}

TEST_F(Activacion, LoEscritoSobreviveAApagarYEncender) {
    encenderTodas();
    usuario.clic(opciones.OptFunc(0));
    teclear(opciones.TxtRich(0), "12");
    usuario.clic(opciones.CmdAñadirRich(0));
    usuario.clic(opciones.OptFunc(1));
    usuario.clic(opciones.OptHiper(1));
    teclear(opciones.TxtHIP(9), "1");
    usuario.clic(opciones.CmdAñadirRich(1));
    teclear(opciones.TxtRm(0), "0,5");
    usuario.clic(opciones.CmdAñadir);
    usuario.clic(opciones.OptDistExp);
    usuario.clic(opciones.CmdAñadirDist);
    for (const int miembro : {4, 6, 8}) {
        teclear(opciones.TxtBAF2(miembro), "2,5");
    }
    dejar();
    const Lineas antes = escrito();
    encenderTodas(); // off
    EXPECT_EQ(escrito(), antes);
    encenderTodas();
    EXPECT_EQ(escrito(), antes);
    EXPECT_EQ(lineas(opciones.LstAOI), Lineas{"a: 0,5000; b: 0,0000; c: 0,0000; d: 0,0000; e: 0,0000"});
    EXPECT_EQ(lineas(opciones.LstRich(0)), Lineas{"A: 12,00; k: 0,00; m: 0,00"});
}

TEST_F(Activacion, LasCasillasDeUnaFamiliaConservanSuValor) {
    usuario.clic(opciones.ChSupCopa);
    usuario.clic(opciones.ChISCUni);
    usuario.clic(opciones.ChISCBil);
    usuario.clic(opciones.ChSupCopa);
    usuario.clic(opciones.ChSupCopa);
    EXPECT_EQ(opciones.ChISCUni.Value(), 1);
    EXPECT_EQ(opciones.ChISCBil.Value(), 0);
}

} // namespace varo::prueba
