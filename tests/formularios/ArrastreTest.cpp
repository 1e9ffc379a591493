#include "formularios/Usuario.h"
#include "formularios/VentanasDePrueba.h"

#include <gtest/gtest.h>

namespace varo {

namespace {

/// A window that logs what is dropped on it, with two labels of which only the first can be dragged.
struct VentanaConEtiquetas : VentanaAnotada {
    explicit VentanaConEtiquetas(ProgramaDePrueba& programa)
        : VentanaAnotada{programa, "V", TipoVentana::Libre}, diario{programa} {
        Una.arrastrable = true;
        for (Etiqueta* const etiqueta : {&Una, &Otra}) {
            etiqueta->DragOver = [this, etiqueta](Control& origen, PasoDeArrastre paso) {
                diario.anotar(origen.Name() + (paso == PasoDeArrastre::Entra ? " entra en " : " sale de ") +
                              etiqueta->Name());
            };
        }
    }

    void Form_DragDrop(Control& Source, double X, double Y) override {
        diario.anotar(Source.Name() + " en " + std::to_string(static_cast<int>(X)) + "," +
                      std::to_string(static_cast<int>(Y)));
    }

    ProgramaDePrueba& diario;
    Etiqueta Una{*this, "Una"};
    Etiqueta Otra{*this, "Otra"};
    Etiqueta Muda{*this, "Muda"};
};

struct ConEtiquetas {
    ServiciosPreparados servicios;
    ProgramaDePrueba programa{servicios};
    Usuario usuario{programa};
    VentanaConEtiquetas& ventana{programa.tocar<VentanaConEtiquetas>()};

    ConEtiquetas() {
        ventana.Show();
        programa.visto();
    }
};

} // namespace

TEST(Arrastre, SoltarEnLaSuperficieLoDiceALaVentana) {
    ConEtiquetas p;
    p.usuario.arrastrar(p.ventana.Una, 70, 30);
    EXPECT_EQ(p.programa.visto(), (Diario{"Una entra en Una", "Una sale de Una", "Una en 70,30"}));
}

TEST(Arrastre, PasarPorOtraEtiquetaEntraEnEllaYSale) {
    ConEtiquetas p;
    p.usuario.arrastrar(p.ventana.Una, 5, 6, {&p.ventana.Otra, &p.ventana.Muda});
    EXPECT_EQ(p.programa.visto(), (Diario{"Una entra en Una", "Una sale de Una", "Una entra en Otra",
                                          "Una sale de Otra", "Una en 5,6"}));
}

TEST(Arrastre, SoltarSobreOtraEtiquetaNoMueveNada) {
    ConEtiquetas p;
    p.usuario.arrastrar(p.ventana.Una, p.ventana.Otra);
    EXPECT_EQ(p.programa.visto(), (Diario{"Una entra en Una", "Una sale de Una", "Una entra en Otra"}));
}

TEST(Arrastre, SoltarDondeSePulsoDejaLaEtiquetaSobreSiMisma) {
    ConEtiquetas p;
    p.usuario.arrastrar(p.ventana.Una, p.ventana.Una);
    EXPECT_EQ(p.programa.visto(), Diario{"Una entra en Una"});
}

TEST(Arrastre, UnControlQueNoSeDejaNoSeArrastra) {
    ConEtiquetas p;
    EXPECT_THROW(p.usuario.arrastrar(p.ventana.Otra, 1, 1), ActoImposible);
    p.ventana.Una.Visible = false;
    EXPECT_THROW(p.usuario.arrastrar(p.ventana.Una, 1, 1), ActoImposible);
    EXPECT_TRUE(p.programa.visto().empty());
}

TEST(Arrastre, PulsarActivaLaVentana) {
    ConEtiquetas p;
    p.programa.tocar<VentanaB>().Show();
    p.programa.visto();
    p.usuario.empezarArrastre(p.ventana.Una);
    EXPECT_EQ(p.programa.visto(), (Diario{"Deactivate B", "Activate V", "Una entra en Una"}));
}

TEST(Arrastre, UnFalloAlSoltarSeCuentaComoElDeCualquierActo) {
    ConEtiquetas p;
    p.servicios.esperarFallo(11);
    p.ventana.Otra.DragOver = [](Control&, PasoDeArrastre) { throw ErrorEjecucion{11, "División por cero"}; };
    p.usuario.arrastrar(p.ventana.Una, p.ventana.Otra);
    EXPECT_TRUE(p.servicios.todoPedido());
}

} // namespace varo
