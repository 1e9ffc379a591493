// What the numeric fields of the options admit, and what a person sees when they do not.
#include "options/Validacion.h"

#include "options/DialogoAbierto.h"

namespace varo::prueba {

namespace {

using Reparo = std::optional<Aviso>;

class CamposNumericos : public DialogoAbierto {
protected:
    CamposNumericos() {
        encenderTodas();
        usuario.clic(opciones.OptFunc(0));
        usuario.clic(opciones.OptFunc(1));
    }
};

/// Answers every message box as a platform does on which an open box takes the focus from its field.
class ServiciosQueQuitanElFoco : public ServiciosPreparados {
public:
    Programa* programa = nullptr;

    int mensaje(const std::string& texto, const std::string& titulo, int botones) override {
        const int respuesta = ServiciosPreparados::mensaje(texto, titulo, botones);
        if (Control* const foco = programa->foco()) {
            programa->quitarFoco(*foco);
        }
        return respuesta;
    }
};

} // namespace

TEST(Validacion, UnCoeficienteEsUnNumeroConComa) {
    EXPECT_EQ(ReparoACoeficiente("1,5"), Reparo{});
    EXPECT_EQ(ReparoACoeficiente("-1,5"), Reparo{});
    EXPECT_EQ(ReparoACoeficiente("0"), Reparo{});
    EXPECT_EQ(ReparoACoeficiente("1E-3"), Reparo{});
    EXPECT_EQ(ReparoACoeficiente("1.5"), avisoSeparacion);
    EXPECT_EQ(ReparoACoeficiente("1.000,5"), avisoSeparacion);
    EXPECT_EQ(ReparoACoeficiente(""), avisoNumerico);
    EXPECT_EQ(ReparoACoeficiente("abc"), avisoNumerico);
    EXPECT_EQ(ReparoACoeficiente("-"), avisoNumerico);
    EXPECT_EQ(ReparoACoeficiente("1,2,3"), avisoNumerico);
    EXPECT_EQ(ReparoACoeficiente("1.5x"), avisoNumerico);
}

TEST(Validacion, UnCoeficienteNoNegativoTampocoAdmiteMenos) {
    EXPECT_EQ(ReparoACoeficienteNoNegativo("1,5"), Reparo{});
    EXPECT_EQ(ReparoACoeficienteNoNegativo("-1"), avisoNegativo);
    EXPECT_EQ(ReparoACoeficienteNoNegativo("1E-3"), avisoNegativo);
    EXPECT_EQ(ReparoACoeficienteNoNegativo("-1.5"), avisoSeparacion);
    EXPECT_EQ(ReparoACoeficienteNoNegativo("-x"), avisoNumerico);
    EXPECT_EQ(ReparoACoeficienteNoNegativo(""), avisoNumerico);
}

TEST(Validacion, UnIntervaloDePiesEsDeNumerosNaturales) {
    for (const char* texto : {"1,5", "1.5", "-1", "1.000", "-1,5"}) {
        EXPECT_EQ(ReparoAlTeclear(texto, 1), avisoNatural) << texto;
        EXPECT_EQ(ReparoAExtremo(texto, 3), avisoNatural) << texto;
        EXPECT_EQ(ReparoACaracteres(texto, 3), avisoNatural) << texto;
    }
    EXPECT_EQ(ReparoAlTeclear("12", 3), Reparo{});
    EXPECT_EQ(ReparoAlTeclear("abc", 1), avisoNumerico);
}

TEST(Validacion, UnIntervaloDeDecimalesAdmiteComaYMenosPeroNoPunto) {
    EXPECT_EQ(ReparoAlTeclear("1,5", 0), Reparo{});
    EXPECT_EQ(ReparoAlTeclear("-1,5", 8), Reparo{});
    EXPECT_EQ(ReparoAlTeclear("1.5", 0), avisoSeparacion);
    EXPECT_EQ(ReparoAExtremo("1.5", 6), avisoSeparacion);
    EXPECT_EQ(ReparoAlTeclear("abc", 2), avisoNumerico);
}

TEST(Validacion, UnIntervaloVacioPasaMientrasSeTecleaYNoAlDejarlo) {
    EXPECT_EQ(ReparoAlTeclear("", 0), Reparo{});
    EXPECT_EQ(ReparoAlTeclear("", 1), Reparo{});
    EXPECT_EQ(ReparoAExtremo("", 0), avisoNumerico);
    EXPECT_EQ(ReparoAExtremo("", 1), avisoNumerico);
}

TEST_F(CamposNumericos, ElPuntoEnUnCoeficienteSeRechazaYLaComaPasa) {
    conAvisos({avisoSeparacion}, [&] { teclear(opciones.TxtEXP(0), "1.5"); });
    conAvisos({}, [&] { teclear(opciones.TxtEXP(0), "1,5"); });
    conAvisos({}, [&] { teclear(opciones.TxtEXP(0), "-1,5"); });
    conAvisos({}, [&] { dejar(); });
}

TEST_F(CamposNumericos, ElMenosSeRechazaEnRichardsYPasaEnLaHiperbola) {
    conAvisos({avisoNegativo}, [&] { teclear(opciones.TxtRich(0), "-1"); });
    conAvisos({}, [&] { teclear(opciones.TxtRich(0), "1"); });
    usuario.clic(opciones.OptHiper(0));
    conAvisos({}, [&] { teclear(opciones.TxtHIP(0), "-1"); });
}

TEST_F(CamposNumericos, UnPuntoConMenosEnRichardsDaSoloElMensajeDelPunto) {
    conAvisos({avisoSeparacion}, [&] { teclear(opciones.TxtRich(0), "-1.5"); });
}

TEST_F(CamposNumericos, LosPiesSonNaturalesYElFactorDecimal) {
    usuario.clic(opciones.OptNumFijo(0));
    conAvisos({avisoNatural}, [&] { teclear(opciones.TxtBAF1(1), "1,5"); });
    conAvisos({}, [&] { teclear(opciones.TxtBAF1(1), "1"); });
    usuario.clic(opciones.OptBAF(0));
    conAvisos({}, [&] { teclear(opciones.TxtBAF1(0), "1,5"); });
}

TEST_F(CamposNumericos, VaciarUnIntervaloNoDiceNadaYVaciarUnCoeficienteSi) {
    usuario.clic(opciones.OptBAF(0));
    conAvisos({}, [&] { teclear(opciones.TxtBAF3(0), ""); });
    conAvisos({avisoNumerico}, [&] { dejar(); });
    EXPECT_EQ(opciones.TxtBAF3(0).Text(), "1"); // the range is empty
    conAvisos({avisoNumerico}, [&] { teclear(opciones.TxtRm(0), ""); });
}

TEST_F(CamposNumericos, CadaCampoDeCadaFamiliaAtiendeASuRegla) {
    // While it is typed, and again when the field is left, which it then is not.
    const auto rechazado = [&](CajaTexto& campo, const std::string& texto, const Aviso& reparo) {
        SCOPED_TRACE(campo.nombreCompleto());
        conAvisos({reparo}, [&] { teclear(campo, texto); });
        conAvisos({reparo}, [&] { dejar(); });
        EXPECT_EQ(programa.foco(), &campo);
    };
    for (int i = 0; i < 5; ++i) {
        for (CajaTexto* campo : {&opciones.TxtEXP(i), &opciones.TxtRm(i)}) {
            rechazado(*campo, "x", avisoNumerico);
            conAvisos({}, [&] { teclear(*campo, "-1"); });
        }
    }
    for (int i = 0; i < 6; ++i) {
        rechazado(opciones.TxtRich(i), "-1", avisoNegativo);
        conAvisos({}, [&] { teclear(opciones.TxtRich(i), "1"); });
    }
    usuario.clic(opciones.OptHiper(0));
    usuario.clic(opciones.OptHiper(1));
    for (int i = 0; i < 14; ++i) {
        rechazado(opciones.TxtHIP(i), "1.", avisoSeparacion);
        conAvisos({}, [&] { teclear(opciones.TxtHIP(i), "-1"); });
    }
    usuario.clic(opciones.OptBAF(0));
    usuario.clic(opciones.OptBAF(1));
    const auto probarTernas = [&](std::initializer_list<int> miembros) {
        for (const int i : miembros) {
            const Aviso& reparo = i % 2 == 1 ? avisoNatural : avisoSeparacion;
            for (const auto* campos : {&opciones.TxtBAF1, &opciones.TxtBAF2, &opciones.TxtBAF3}) {
                CajaTexto& campo = (*campos)(i);
                SCOPED_TRACE(campo.nombreCompleto());
                conAvisos({reparo}, [&] { teclear(campo, "1."); });
                conAvisos({reparo}, [&] { dejar(); });
                // The ends are equal by then, so that leaving the step makes it 1.
                EXPECT_EQ(campo.Text(), campos == &opciones.TxtBAF3 ? "1" : "1.");
                conAvisos({}, [&] { teclear(campo, "1"); });
                conAvisos({}, [&] { dejar(); });
            }
        }
    };
    probarTernas({0, 2, 4, 6, 8});
    usuario.clic(opciones.OptNumFijo(0));
    usuario.clic(opciones.OptNumFijo(1));
    probarTernas({1, 3});
}

TEST_F(CamposNumericos, UnCampoRechazadoConservaSuTextoYElFoco) {
    auto& campo = opciones.TxtRm(2);
    conAvisos({avisoNumerico}, [&] { teclear(campo, "abc"); });
    EXPECT_EQ(campo.Text(), "abc");
    EXPECT_EQ(programa.foco(), &campo);
    conAvisos({avisoNumerico}, [&] { dejar(); });
    EXPECT_EQ(campo.Text(), "abc");
    EXPECT_EQ(programa.foco(), &campo);
}

TEST_F(CamposNumericos, ElClicQueDejaUnCampoRechazadoNoLlegaASuBoton) {
    conAvisos({avisoNumerico}, [&] { teclear(opciones.TxtRm(0), "abc"); });
    conAvisos({avisoNumerico}, [&] { usuario.clic(opciones.CmdAceptar); });
    EXPECT_TRUE(opciones.Visible());
    EXPECT_EQ(programa.foco(), &opciones.TxtRm(0));
}

TEST_F(CamposNumericos, OtraVentanaDejaSalirDeUnCampoRechazado) {
    conAvisos({avisoNumerico}, [&] { teclear(opciones.TxtRm(0), "abc"); });
    conAvisos({avisoNumerico}, [&] { salirPorOtraVentana(); });
    EXPECT_EQ(opciones.TxtRm(0).Text(), "abc");
    conAvisos({}, [&] { usuario.clic(opciones.ChAOIUni); });
    EXPECT_EQ(opciones.ChAOIUni.Value(), 1);
}

TEST(Validacion, UnMensajeQueQuitaElFocoASuCampoSaleUnaSolaVezYLoDevuelve) {
    ServiciosQueQuitanElFoco servicios;
    Programa programa{servicios};
    servicios.programa = &programa;
    Usuario usuario{programa};
    auto& opciones = programa.tocar<OpcionesPrograma>();
    opciones.Show();
    usuario.clic(opciones.ChAOIActivar);
    for (CajaTexto* campo : {&opciones.TxtRm(0), &opciones.TxtBAF1(6)}) {
        const auto antes = servicios.mensajes().size();
        servicios.esperarMensaje(avisoSeparacion.texto);
        usuario.escribir(*campo, "1.5");
        EXPECT_EQ(servicios.mensajes().size(), antes + 1);
        EXPECT_EQ(programa.foco(), campo);
        servicios.esperarMensaje(avisoSeparacion.texto);
        usuario.dejarFoco();
        EXPECT_EQ(servicios.mensajes().size(), antes + 2);
        EXPECT_EQ(programa.foco(), campo);
        usuario.escribir(*campo, "1,5");
    }
}

} // namespace varo::prueba
