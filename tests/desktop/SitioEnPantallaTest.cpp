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
    static void esperarQueQuepa(const QWidget& ventana) {
        const QRect sitio = ventana.screen()->availableGeometry();
        EXPECT_LE(ventana.frameGeometry().width(), sitio.width());
        EXPECT_LE(ventana.frameGeometry().height(), sitio.height());
    }
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
    esperarQueQuepa(escritorio.marco());
}

TEST_F(EnUnaPantallaPequena, LasOpcionesCabenConSusBotones) {
    llegarA(Etapa::Opciones);
    QWidget& opciones = ventana("OpcionesPrograma");
    for (int ficha = 0; ficha < fichas().count(); ++ficha) {
        SCOPED_TRACE(ficha);
        clicFicha(ficha);
        esperarQueQuepa(opciones);
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

} // namespace varo::prueba
