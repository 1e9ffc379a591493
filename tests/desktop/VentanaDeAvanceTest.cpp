// A long act at the screen: it says how far it is, takes "Cancelar", and lets everything else wait.
#include "desktop/VentanaDeAvance.h"
#include "desktop/Pantalla.h"

#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace varo::prueba {

namespace {

constexpr int muchos = 3000;

} // namespace

class LaEspera : public Pantalla {
protected:
    /// An act of so many steps, each of 2 ms. Hands back how many were done.
    std::size_t actuar(std::size_t pasos) {
        std::size_t hechos = 0;
        programa.atender([&] {
            const Avance avance = servicios.avance();
            avance.etapa("DR, columna 12 de 40");
            avance.empezar(pasos);
            for (; hechos < pasos; ++hechos) {
                std::this_thread::sleep_for(std::chrono::milliseconds{2});
                avance.paso();
            }
        });
        return hechos;
    }
};

TEST_F(LaEspera, UnActoCortoNoEnsenaNada) {
    EXPECT_EQ(actuar(50), 50U);
    EXPECT_TRUE(contestador.todoPedido());
}

TEST_F(LaEspera, CancelarAcabaConElActoSinUnaPalabra) {
    contestador.preparar([](QWidget& ventana) {
        EXPECT_EQ(ventana.objectName(), "VentanaDeAvance");
        const auto* const texto = ventana.findChild<QLabel*>();
        ASSERT_NE(texto, nullptr);
        EXPECT_TRUE(texto->text().startsWith("DR, columna 12 de 40")) << texto->text().toStdString();
        PulsarBoton(ventana, "Cancelar");
    });
    EXPECT_LT(actuar(muchos), muchos);
    EXPECT_TRUE(contestador.todoPedido()) << "la ventana ha salido";
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(contestador.cajas().empty());

    EXPECT_EQ(actuar(50), 50U) << "el acto siguiente empieza de nuevo";
    abrirArchivo();
    EXPECT_TRUE(alaVista("FrmSeleccion"));
}

TEST_F(LaEspera, EscapeEsCancelar) {
    contestador.tecla(Qt::Key_Escape);
    EXPECT_LT(actuar(muchos), muchos);
    EXPECT_TRUE(contestador.todoPedido());
}

TEST_F(LaEspera, LosMenusEsperan) {
    contestador.preparar([this](QWidget& ventana) {
        auto* const barra = this->ventana("VAROMAIN").findChild<QMenuBar*>();
        ASSERT_NE(barra, nullptr);
        const QRect archivo = barra->actionGeometry(barra->actions().front());
        QTest::mouseClick(barra->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          barra->mapTo(barra->window(), archivo.center()));
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        PulsarBoton(ventana, "Cancelar");
    });
    EXPECT_LT(actuar(muchos), muchos);
    EXPECT_TRUE(contestador.todoPedido());
}

} // namespace varo::prueba
