// A small screen: the windows fit in it, and scrolling reaches what does not fit in a page.
#include "desktop/Pantalla.h"
#include "options/OpcionesPrograma.h"

#include <QApplication>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include <algorithm>

namespace varo::prueba {

class EnUnaPantallaPequena : public Pantalla {
protected:
    static constexpr int anchoMenor = 920; ///< of a screen of 1920x1080 at 200 %, without borders
    QTabWidget& fichas() const { return widget<QTabWidget>("OpcionesPrograma", "SSTab1"); }
    /// The visible controls of a tab, in the coordinates of its page.
    std::vector<std::pair<std::string, QRect>> lugares(const QScrollArea& pagina) const {
        std::vector<std::pair<std::string, QRect>> hallados;
        for (const Control* const control : modelo("OpcionesPrograma")->controles()) {
            const QWidget* const real = escritorio.widgetDe(*control);
            if (pagina.isAncestorOf(real) && real->isVisible()) {
                hallados.emplace_back(control->nombreCompleto(),
                                      QRect{real->mapTo(pagina.widget(), QPoint{}), real->size()});
            }
        }
        return hallados;
    }
    /// Scrolling from one end to the other shows each control whole, down to the lowest one.
    void esperarQueSeLlegueATodo(const QScrollArea& pagina) const {
        const int alto = pagina.viewport()->height();
        const int ancho = pagina.horizontalScrollBar()->maximum() + pagina.viewport()->width();
        const int recorrido = pagina.verticalScrollBar()->maximum();
        const auto todos = lugares(pagina);
        ASSERT_FALSE(todos.empty());
        for (const auto& [nombre, lugar] : todos) {
            EXPECT_GE(lugar.top(), 0) << nombre;
            EXPECT_LE(lugar.top() + lugar.height(), recorrido + alto) << nombre;
            EXPECT_GE(lugar.left(), 0) << nombre;
            EXPECT_LE(lugar.left() + lugar.width(), ancho) << nombre;
        }
        const auto ultimo =
            std::max_element(todos.begin(), todos.end(), [](const auto& uno, const auto& otro) {
                return uno.second.bottom() < otro.second.bottom();
            });
        pagina.verticalScrollBar()->setValue(recorrido);
        const QWidget& real = widget("OpcionesPrograma", ultimo->first);
        const int pie = real.mapTo(pagina.viewport(), QPoint{0, real.height()}).y();
        EXPECT_GT(pie, 0) << ultimo->first;
        EXPECT_LE(pie, alto) << ultimo->first;
    }
};

TEST_F(EnUnaPantallaPequena, ElMarcoCabe) {
    ASSERT_LT(escritorio.marco().screen()->availableGeometry().width(), 1180);
    const QRect sitio = escritorio.marco().screen()->availableGeometry();
    EXPECT_LE(escritorio.marco().frameGeometry().width(), sitio.width());
    EXPECT_LE(escritorio.marco().frameGeometry().height(), sitio.height());
}

TEST_F(EnUnaPantallaPequena, LasOpcionesCabenConSusBotones) {
    llegarA(Etapa::Opciones);
    QWidget& opciones = ventana("OpcionesPrograma");
    for (int ficha = 0; ficha < fichas().count(); ++ficha) {
        SCOPED_TRACE(ficha);
        clicFicha(ficha);
        EXPECT_LE(opciones.frameGeometry().width(), anchoMenor);
        EXPECT_LE(opciones.frameGeometry().height(), opciones.screen()->availableGeometry().height());
        for (const char* nombre : {"CmdAceptar", "CmdCancelar"}) {
            const QWidget& boton = widget("OpcionesPrograma", nombre);
            EXPECT_TRUE(opciones.rect().contains(QRect{boton.mapTo(&opciones, QPoint{}), boton.size()}));
        }
    }
}

TEST_F(EnUnaPantallaPequena, CadaPaginaDeLasOpcionesLlegaHastaSuUltimoControl) {
    llegarA(Etapa::Opciones);
    constexpr int alto = 400; // too low for the fuller pages
    ventana("OpcionesPrograma").resize(ventana("OpcionesPrograma").width(), alto);
    int desplazadas = 0;
    for (int ficha = 0; ficha < fichas().count(); ++ficha) {
        SCOPED_TRACE(ficha);
        clicFicha(ficha);
        ASSERT_LE(ventana("OpcionesPrograma").height(), alto);
        auto* const pagina = qobject_cast<QScrollArea*>(fichas().widget(ficha));
        ASSERT_NE(pagina, nullptr);
        esperarQueSeLlegueATodo(*pagina);
        desplazadas += pagina->verticalScrollBar()->maximum() > 0 ? 1 : 0;
    }
    EXPECT_GE(desplazadas, 3); // overlap of areas, point density and size ratios at least
}

TEST_F(EnUnaPantallaPequena, LasPaginasDeLasOpcionesSoloSeDesplazanArribaYAbajo) {
    llegarA(Etapa::Opciones);
    for (int ficha = 0; ficha < fichas().count(); ++ficha) {
        clicFicha(ficha);
        const auto& pagina = dynamic_cast<QScrollArea&>(*fichas().widget(ficha));
        EXPECT_LE(pagina.widget()->width(), pagina.viewport()->width()) << ficha;
    }
    EXPECT_LE(ventana("OpcionesPrograma").minimumSizeHint().width(), anchoMenor);
}

TEST_F(EnUnaPantallaPequena, LoQueAbreUnaEleccionQuedaALaVista) {
    llegarA(Etapa::Opciones);
    constexpr int alto = 460; // 1080 at 200 %
    ventana("OpcionesPrograma").resize(ventana("OpcionesPrograma").width(), alto);
    for (const int i : {0, 1}) {
        const std::string miembro = "(" + std::to_string(i) + ")";
        clicFicha(4 + i);
        clic("OpcionesPrograma", i == 0 ? "ChIDPActivar" : "ChDRActivar");
        auto& pagina = dynamic_cast<QScrollArea&>(*fichas().widget(4 + i));
        pagina.ensureWidgetVisible(&widget("OpcionesPrograma", "OptFunc" + miembro), 0, 0);
        clic("OpcionesPrograma", "OptFunc" + miembro);
        for (const char* nombre : {"FramRICH", "LstRich", "CmdVaciarRich"}) {
            const QWidget& abierto = widget("OpcionesPrograma", nombre + miembro);
            const QRect lugar{abierto.mapTo(pagina.viewport(), QPoint{}), abierto.size()};
            EXPECT_TRUE(pagina.viewport()->rect().contains(lugar)) << nombre << miembro;
        }
    }
}

TEST_F(EnUnaPantallaPequena, LaHojaYElDialogoDeColumnasNoSeTapan) {
    escritorio.marco().resize(920, 460); // 1920x1080 at 200 %
    Reposar();
    for (const char* tipo : {"Opt4R", "Opt2D", "OptRM"}) {
        if (modelo("Hojadedatos") == nullptr) {
            llegarA(Etapa::Hoja);
        }
        const std::string dialogo = std::string{"SelCol"} + (tipo + 3);
        clicMenu("VAROMAIN", "mnuOpciones");
        clicFicha(0);
        if (std::string{"Opt4R"} != tipo) { // the sheet's own choice before
            contestador.pulsar("Aceptar");  // "Cambiaste el tipo de datos de entrada"
        }
        clic("OpcionesPrograma", tipo);
        clic("OpcionesPrograma", "CmdAceptar");
        clicMenu("VAROMAIN", "mnuMapa");
        const QWidget& hoja = ventana("Hojadedatos");
        const QWidget& columnas = ventana(dialogo);
        EXPECT_FALSE(hoja.geometry().intersects(columnas.geometry())) << dialogo;
        EXPECT_TRUE(columnas.parentWidget()->rect().contains(columnas.geometry())) << dialogo;
        constexpr int dosFilas = 80; // with the title and the header
        EXPECT_GE(hoja.height(), dosFilas) << dialogo;
        EXPECT_EQ(modelo("Hojadedatos")->Height(), 3300.0F);
        EXPECT_EQ(modelo(dialogo)->Top(), 3500.0F);
    }
}

} // namespace varo::prueba
