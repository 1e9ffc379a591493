// The format of the map under the mouse, with more codes than the screen is high.
#include "desktop/Pantalla.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "pintura/Colores.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QImage>
#include <QScrollArea>
#include <QScrollBar>

namespace varo::prueba {

class ElFormatoEnPantalla : public Pantalla {
protected:
    static constexpr int ultimoCodigo = 79; ///< of C00 to C79; PS and QP of the corners come behind

    ElFormatoEnPantalla() {
        const auto delMedio = filas.back();
        for (int i = 0; i <= ultimoCodigo; ++i) { // all of them inside the square
            auto fila = delMedio;
            fila[0] = i + 6.0;
            fila[1] = 1 + i * 0.1;
            fila[2] = 1.0 + i % 7;
            fila[7] = std::string{"C"} + static_cast<char>('0' + i / 10) + static_cast<char>('0' + i % 10);
            filas.push_back(fila);
        }
        llegarA(Etapa::Formato);
        Reposar();
    }
    [[nodiscard]] FrmFormato& formato() const { return dynamic_cast<FrmFormato&>(*modelo("FrmFormato")); }
    [[nodiscard]] static std::string nombre(const std::string& control) {
        return control + "(" + std::to_string(ultimoCodigo) + ")";
    }
    [[nodiscard]] QScrollArea& pagina() const { return *ventana("FrmFormato").findChild<QScrollArea*>(); }
    /// Presses the arrow of a drop-down of the last code.
    void desplegar(const std::string& control) const {
        QWidget& suyo = widget("FrmFormato", nombre(control));
        Clic(suyo, {suyo.width() - 8, suyo.height() / 2});
        Reposar();
    }
    void irAlFinal() const {
        pagina().verticalScrollBar()->setValue(pagina().verticalScrollBar()->maximum());
        Reposar();
    }
};

TEST_F(ElFormatoEnPantalla, ConMasCodigosQueAlturaSeDesplazaYSusBotonesSeVen) {
    QWidget& real = ventana("FrmFormato");
    EXPECT_TRUE(real.parentWidget()->rect().contains(real.geometry()));
    for (const char* boton : {"CmdAceptar", "CmdCancelar"}) {
        const QWidget& suyo = widget("FrmFormato", boton);
        EXPECT_TRUE(real.rect().contains(QRect{suyo.mapTo(&real, QPoint{}), suyo.size()})) << boton;
    }
    EXPECT_TRUE(widget("FrmFormato", nombre("TxtCodigo")).visibleRegion().isEmpty());
    irAlFinal();
    Escribir(widget("FrmFormato", nombre("TxtCodigo")), "el ultimo");
    clic("FrmFormato", "CmdAceptar");
    EXPECT_EQ(dynamic_cast<FrmMapa&>(*modelo("FrmMapa")).LbLeyenda(ultimoCodigo).Caption(), "el ultimo");
}

TEST_F(ElFormatoEnPantalla, LaFuenteYElColorSeEligenEnSusDialogos) {
    irAlFinal();
    contestador.preparar([](QWidget& modal) {
        auto& dialogo = dynamic_cast<QColorDialog&>(modal);
        dialogo.setCurrentColor(QColor{0x1B, 0x78, 0x37});
        dialogo.accept();
    });
    desplegar("CboCodColor");
    EXPECT_EQ(formato().CboCodColor(ultimoCodigo).BackColor(), 0x37781B);
    EXPECT_EQ(programa.sesion.CodColor(ultimoCodigo), "3635227"); // 0x37781B
    const QImage pintado = widget("FrmFormato", nombre("CboCodColor")).grab().toImage();
    EXPECT_EQ(ColorDe(pintado.pixelColor(pintado.width() / 4, pintado.height() / 2)), 0x37781B);

    contestador.preparar([](QWidget& modal) {
        auto& dialogo = dynamic_cast<QFontDialog&>(modal);
        QFont letra{QStringLiteral("DejaVu Sans"), 12};
        letra.setItalic(true);
        dialogo.setCurrentFont(letra);
        dialogo.accept();
    });
    desplegar("CboCodFont");
    EXPECT_EQ(formato().CboCodFont(ultimoCodigo).Text(), "DejaVu Sans");
    EXPECT_EQ(programa.sesion.CodTamano(ultimoCodigo), "12");
    EXPECT_EQ(programa.sesion.CodCursiva(ultimoCodigo), "Verdadero");
    EXPECT_EQ(widget<QComboBox>("FrmFormato", nombre("CboCodFont")).currentText(), "DejaVu Sans");
}

} // namespace varo::prueba
