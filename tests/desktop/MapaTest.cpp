// The crown map under the mouse.
#include "desktop/Pantalla.h"
#include "desktop/ventanas/VistaDeMapa.h"
#include "pintura/Colores.h"

#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace varo::prueba {

class ElMapa : public Pantalla {
protected:
    ElMapa() {
        llegarA(Etapa::Mapa);
        Reposar();
    }
    [[nodiscard]] FrmMapa& mapa() const { return dynamic_cast<FrmMapa&>(*modelo("FrmMapa")); }
    [[nodiscard]] VistaDeMapa& vista() const { return widget<VistaDeMapa>("FrmMapa", "lienzo"); }
    [[nodiscard]] QPoint punto(double x, double y) const {
        return vista().encuadre().enPapel(x, y).toPoint();
    }
    /// The middle of a label.
    [[nodiscard]] QPoint sobre(const Etiqueta& etiqueta) const {
        const EtiquetaMostrada mostrada{etiqueta.Name(), etiqueta.Index()};
        return LugarDeEtiqueta(mapa().aspecto(mostrada), vista().encuadre(), vista().pluma())
            .center()
            .toPoint();
    }
    void pulsar(QPoint donde) const { QTest::mousePress(&vista(), Qt::LeftButton, {}, donde); }
    void llevar(QPoint donde) const { QTest::mouseMove(&vista(), donde); }
    void soltar(QPoint donde) const {
        QTest::mouseRelease(&vista(), Qt::LeftButton, {}, donde);
        Reposar();
    }
    void rueda(QPoint donde, int pasos) const {
        QWheelEvent suceso{donde, vista().mapToGlobal(donde), {},   {0, 120 * pasos}, Qt::NoButton,
                           {},    Qt::NoScrollPhase,          false};
        QApplication::sendEvent(&vista(), &suceso);
    }
};

TEST_F(ElMapa, SeVeEnteroYEnElColorDeSuFondo) {
    const QImage imagen = vista().grab().toImage();
    EXPECT_EQ(ColorDe(imagen.pixelColor(2, 2)), FrmMapa::colorDeFondo);
    const QRectF superficie = vista().encuadre().enPapel(mapa().lienzo.escala());
    EXPECT_TRUE(QRectF{vista().rect()}.adjusted(-1, -1, 1, 1).contains(superficie));
    EXPECT_TRUE(superficie.width() >= vista().width() - 1 || superficie.height() >= vista().height() - 1);
}

TEST_F(ElMapa, SeDibujaLoQueEstaEnLaLista) {
    const QImage imagen = vista().grab().toImage();
    const Escala marco{mapa().lienzo.escala()};
    const double x = marco.izquierda + 0.1 * marco.ancho(); // the left line of the frame
    const QPoint enLaLinea = punto(x, (marco.abajo + marco.arriba) / 2);
    bool hayLinea = false;
    for (int dx = -2; dx <= 2; ++dx) {
        hayLinea = hayLinea || ColorDe(imagen.pixelColor(enLaLinea + QPoint{dx, 0})) != FrmMapa::colorDeFondo;
    }
    EXPECT_TRUE(hayLinea);
}

TEST_F(ElMapa, ElTituloSeArrastraYCaeALaDerechaDelPunto) {
    Etiqueta& titulo = mapa().LbTitulo;
    const QPoint destino = punto(3, 5);
    pulsar(sobre(titulo));
    llevar(destino);
    soltar(destino);
    const Encuadre encuadre = vista().encuadre();
    EXPECT_DOUBLE_EQ(titulo.Left(), encuadre.xDe(destino) + titulo.Width() / 2);
    EXPECT_DOUBLE_EQ(titulo.Top(), encuadre.yDe(destino));
}

TEST_F(ElMapa, PulsarYSoltarUnaEtiquetaEnSuSitioNoLaMueve) {
    Etiqueta& etiqueta = mapa().Lbcodigo(5);
    const double antes = etiqueta.Left;
    pulsar(sobre(etiqueta));
    soltar(sobre(etiqueta));
    EXPECT_EQ(etiqueta.Left(), antes);
}

TEST_F(ElMapa, SobreLaEtiquetaDeOtroArbolElPunteroSeNiegaYNadaSeMueve) {
    Etiqueta& titulo = mapa().LbTitulo;
    const double antes = titulo.Left;
    pulsar(sobre(titulo));
    llevar(punto(3, 5));
    EXPECT_EQ(titulo.DragIcon(), "dragmove.cur");
    const QImage mover = vista().cursor().pixmap().toImage();
    EXPECT_FALSE(mover.isNull());
    llevar(sobre(mapa().Lbcodigo(5)));
    EXPECT_EQ(titulo.DragIcon(), "nodrop01.cur");
    EXPECT_FALSE(vista().cursor().pixmap().isNull());
    EXPECT_NE(vista().cursor().pixmap().toImage(), mover);
    soltar(sobre(mapa().Lbcodigo(5)));
    EXPECT_EQ(titulo.Left(), antes);
    EXPECT_EQ(vista().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ElMapa, ElDobleClicEnLaLeyendaVuelveAlFormato) {
    Etiqueta& leyenda = mapa().LbLeyenda(0);
    leyenda.Caption = "Pinus sylvestris";
    vista().ponerAlDia();
    const QPoint donde = sobre(leyenda);
    QTest::mouseClick(&vista(), Qt::LeftButton, {}, donde);
    QTest::mouseDClick(&vista(), Qt::LeftButton, {}, donde);
    Reposar();
    EXPECT_EQ(modelo("FrmMapa"), nullptr);
    EXPECT_TRUE(alaVista("FrmFormato"));
}

TEST_F(ElMapa, UnaLeyendaSinTextoTambienRespondeAlDobleClic) {
    const Etiqueta& leyenda = mapa().LbLeyenda(0);
    ASSERT_EQ(leyenda.Caption(), "");
    const QPoint donde = punto(leyenda.Left() + leyenda.Width() / 2, leyenda.Top() - leyenda.Height() / 2);
    EXPECT_EQ(vista().etiquetaEn(donde), &leyenda);
    QTest::mouseDClick(&vista(), Qt::LeftButton, {}, donde);
    Reposar();
    EXPECT_EQ(modelo("FrmMapa"), nullptr);
    EXPECT_TRUE(alaVista("FrmFormato"));
}

TEST_F(ElMapa, UnaEtiquetaQueNoSePintaPorHaberDemasiadasNoSeArrastra) {
    const Etiqueta& etiqueta = mapa().Lbcodigo(5);
    const double antes = etiqueta.Left;
    EXPECT_EQ(vista().etiquetaEn(sobre(etiqueta)), &etiqueta);
    for (int i = 0; i < 3000; ++i) {
        mapa().lienzo.etiqueta(etiqueta.Name(), etiqueta.Index());
    }
    vista().ponerAlDia();
    pulsar(sobre(etiqueta));
    llevar(punto(3, 5));
    soltar(punto(3, 5));
    EXPECT_EQ(etiqueta.Left(), antes);
    EXPECT_EQ(vista().etiquetaEn(sobre(mapa().LbTitulo)), &mapa().LbTitulo);
}

TEST(VistaDeLienzo, EnUnaPantallaMasFinaSePintaDeNuevo) {
    class EnOtraPantalla : public VistaDeLienzo {
    public:
        using VistaDeLienzo::VistaDeLienzo;
        int densidad = 1;

    protected:
        int metric(PaintDeviceMetric cual) const override {
            if (cual == PdmDevicePixelRatio) {
                return densidad;
            }
            return cual == PdmDevicePixelRatioScaled ? densidad * static_cast<int>(devicePixelRatioFScale())
                                                     : VistaDeLienzo::metric(cual);
        }
    };
    Lienzo lienzo;
    lienzo.escala({0, 10, 0, 10});
    lienzo.circulo(5, 5, 4);
    const Dibujo dibujo{lienzo, [](const EtiquetaMostrada&) { return AspectoDeEtiqueta{}; }};
    const auto vistaDe = [&](EnOtraPantalla& vista) {
        vista.resize(200, 200);
        return vista.grab().toImage();
    };
    EnOtraPantalla llevada{dibujo};
    ASSERT_EQ(vistaDe(llevada).width(), 200);
    llevada.densidad = 2;
    EnOtraPantalla nueva{dibujo};
    nueva.densidad = 2;
    ASSERT_EQ(vistaDe(nueva).width(), 400);
    EXPECT_EQ(vistaDe(llevada), vistaDe(nueva));
}

TEST_F(ElMapa, ConLaRuedaElPuntoBajoElPunteroSeQuedaEnSuSitio) {
    const QPoint donde{vista().width() / 3, vista().height() / 4};
    const Encuadre antes = vista().encuadre();
    rueda(donde, 4);
    const Encuadre despues = vista().encuadre();
    EXPECT_NEAR(despues.porMetro, antes.porMetro * std::pow(1.25, 4), 1e-9);
    EXPECT_NEAR(despues.xDe(donde), antes.xDe(donde), 1e-9);
    EXPECT_NEAR(despues.yDe(donde), antes.yDe(donde), 1e-9);
    rueda(donde, -10);
    EXPECT_EQ(vista().encuadre(), antes) << "menos que entero no se ve nunca";
}

TEST_F(ElMapa, ElBotonCentralLlevaElLienzoYCtrl0LoEnsenaEntero) {
    const Encuadre entero = vista().encuadre();
    rueda(vista().rect().center(), 5);
    const double antes = vista().encuadre().xDe({0, 0});
    const QPoint centro = vista().rect().center();
    QTest::mousePress(&vista(), Qt::MiddleButton, {}, centro);
    llevar(centro + QPoint{30, 0});
    QTest::mouseRelease(&vista(), Qt::MiddleButton, {}, centro + QPoint{30, 0});
    const Encuadre movido = vista().encuadre();
    EXPECT_NEAR(movido.xDe({0, 0}), antes - 30 / movido.porMetro, 1e-9);
    activar("FrmMapa");
    QTest::keyClick(&vista(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(vista().encuadre(), entero);
}

TEST_F(ElMapa, AlPasarPorUnArbolSeVeLoQueEs) {
    const ArbolDelMapa* const arbol = vista().arbolEn(punto(4, 6)); // the fifth tree stands there
    ASSERT_NE(arbol, nullptr);
    EXPECT_EQ(arbol->numero, "5");
    EXPECT_EQ(DescripcionDe(*arbol), QString::fromUtf8("Árbol 5\nCódigo: PS\nTamaño: 50\nRadio: 1 m"));
    QHelpEvent ayuda{QEvent::ToolTip, punto(4, 6), vista().mapToGlobal(punto(4, 6))};
    QApplication::sendEvent(&vista(), &ayuda);
    EXPECT_EQ(QToolTip::text(), DescripcionDe(*arbol));
    EXPECT_EQ(vista().arbolEn(punto(7, 8)), nullptr);
}

TEST_F(ElMapa, LosRadiosDistintosSeDicenUnoAUno) {
    ArbolDelMapa arbol{{0, 0, 1.8, 2.25, 0, 1}, "7", "", ""};
    EXPECT_EQ(DescripcionDe(arbol), QString::fromUtf8("Árbol 7\nRadios: N 1,8  E 2,25  S 0  O 1 m"));
}

TEST_F(ElMapa, Ctrl_SGuardaLaImagenConLaExtensionQueSeEscribe) {
    activar("FrmMapa");
    contestador.preparar([this](QWidget& modal) {
        auto& dialogo = dynamic_cast<QFileDialog&>(modal);
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        auto& campo = *dialogo.findChild<QLineEdit*>("fileNameEdit");
        Escribir(campo, QString::fromStdString(carpeta.archivo("mapa.png")));
        QTest::keyClick(&campo, Qt::Key_Return);
    });
    QTest::keyClick(&vista(), Qt::Key_S, Qt::ControlModifier);
    const QImage imagen{QString::fromStdString(carpeta.archivo("mapa.png"))};
    EXPECT_EQ(imagen.width(), 3508);
}

TEST_F(ElMapa, Ctrl_PImprimeElMapa) {
    activar("FrmMapa");
    const std::string papel = carpeta.archivo("papel.pdf");
    contestador.preparar([&papel](QWidget& modal) {
        EXPECT_EQ(modal.objectName(), "DlogoImprimir");
        auto* const campo = modal.findChild<QLineEdit*>("filename"); // of a printer that is a file
        ASSERT_NE(campo, nullptr);
        campo->setText(QString::fromStdString(papel));
        dynamic_cast<QDialog&>(modal).accept();
    });
    QTest::keyClick(&vista(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(LeerArchivo(papel).starts_with("%PDF-"));
}

TEST_F(ElMapa, UnaImagenQueNoSePuedeEscribirSeDice) {
    activar("FrmMapa");
    std::filesystem::create_directory(carpeta / "ocupado.svg");
    contestador.preparar([this](QWidget& modal) {
        auto& dialogo = dynamic_cast<QFileDialog&>(modal);
        auto& campo = *dialogo.findChild<QLineEdit*>("fileNameEdit");
        Escribir(campo, QString::fromStdString(carpeta.archivo("no/existe.svg")));
        QTest::keyClick(&campo, Qt::Key_Return);
    });
    contestador.preparar([](QWidget& caja) { PulsarBoton(caja, "Aceptar"); });
    QTest::keyClick(&vista(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(contestador.cajas().size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "no"));
}

TEST_F(ElMapa, LaSegundaSuperficieEnsenaLoQueSeDibujaEnEllaYSuCierreLaOculta) {
    auto& segunda = programa.tocar<FrmMapa2>();
    EXPECT_FALSE(segunda.Visible());
    programa.atender([&] { segunda.Show(); });
    Reposar();
    auto& lienzo = widget<VistaDeLienzo>("FrmMapa2", "lienzo");
    const auto pintados = [&] {
        const QImage imagen = lienzo.grab().toImage();
        int cuantos = 0;
        for (int x = 0; x < imagen.width(); ++x) {
            for (int y = 0; y < imagen.height(); ++y) {
                cuantos += ColorDe(imagen.pixelColor(x, y)) == FrmMapa::colorDeFondo ? 0 : 1;
            }
        }
        return cuantos;
    };
    const int antes = pintados();
    segunda.lienzo.linea(0, 0, 10, 10);
    segunda.avisarDibujo();
    EXPECT_GT(pintados(), antes + 50);
    cerrar("FrmMapa2");
    EXPECT_FALSE(segunda.Visible());
    EXPECT_EQ(modelo("FrmMapa2"), &segunda);
}

TEST_F(ElMapa, CerrarLaVentanaAMitadDeUnArrastreNoDejaNada) {
    pulsar(sobre(mapa().LbTitulo));
    llevar(punto(3, 5));
    cerrar("FrmMapa");
    Reposar();
    EXPECT_EQ(modelo("FrmMapa"), nullptr);
}

} // namespace varo::prueba
