// The options dialog at a screen: what a person sees who types into its fields.
#include "recorrido/Pasos.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>

#include <gtest/gtest.h>

#include <initializer_list>

namespace varo::prueba {

namespace {

const QString opciones = "OpcionesPrograma";
const QString caja = "CajaDeMensaje";

struct Mensaje {
    QString texto;
    QString titulo;

    friend bool operator==(const Mensaje&, const Mensaje&) = default;
    friend void PrintTo(const Mensaje& mensaje, std::ostream* salida) {
        *salida << mensaje.titulo.toStdString() << ": " << mensaje.texto.toStdString();
    }
};

const Mensaje ninguno{};
const Mensaje noEsNumero{"El valor debe ser numérico", "Valor erróneo"};
const Mensaje conPunto{"La separación decimal es ,", "Error en la separación decimal"};
const Mensaje negativo{"No se admiten valores negativos", "Error en el valor introducido"};
const Mensaje noNatural{"Sólo se admiten números naturales", "Error en la introducción de datos"};

/// Answers the message box that is there, if any, and gives its words.
Mensaje Responder(const Manos& manos) {
    const auto leer = [&](const auto& parte) {
        return manos.leer(caja, "",
                          [&](QWidget& widget) { return parte(dynamic_cast<QMessageBox&>(widget)); });
    };
    Mensaje mensaje{leer([](QMessageBox& widget) { return widget.text(); }),
                    leer([](QMessageBox& widget) { return widget.windowTitle(); })};
    if (!(mensaje == ninguno)) {
        manos.esperarVentana(caja);
        manos.tecla("Return");
        manos.esperarQueSeVaya(caja);
        manos.esperarVentana(opciones);
    }
    return mensaje;
}

QString TextoDe(QWidget* campo) {
    return dynamic_cast<QLineEdit&>(*campo).text();
}

/// Replaces the text of a field key by key and answers each box that comes up. Gives the box of the last key.
Mensaje Escribir(const Manos& manos, const QString& campo, const QString& texto) {
    manos.clic(opciones, campo);
    manos.tecla("ctrl+a");
    Mensaje ultimo;
    const auto anotar = [&](const QString& hasta) {
        // The change shows its box at once: with the text there, the box is there or never will be.
        manos.esperar("«" + hasta.toStdString() + "» en " + campo.toStdString(),
                      [&] { return TextoDe(ControlDe(opciones, campo)) == hasta; });
        ultimo = Responder(manos);
    };
    if (texto.isEmpty()) {
        manos.tecla("Delete");
        anotar(texto);
    }
    for (int letras = 1; letras <= texto.size(); ++letras) {
        manos.teclear(texto.mid(letras - 1, 1).toStdString());
        anotar(texto.left(letras));
    }
    manos.esperar("el foco en " + campo.toStdString(),
                  [&] { return ControlDe(opciones, campo) == QApplication::focusWidget(); });
    return ultimo;
}

struct Caso {
    QString texto;
    Mensaje mensaje;
};

void Comprobar(const Manos& manos, const QString& campo, std::initializer_list<Caso> casos) {
    for (const auto& [texto, mensaje] : casos) {
        EXPECT_EQ(Escribir(manos, campo, texto), mensaje)
            << campo.toStdString() << " = " << texto.toStdString();
    }
}

/// Leaves a field with Tab and answers the box of that; the field has the focus again.
void ComprobarAlDejar(const Manos& manos, const QString& campo, const Mensaje& mensaje) {
    manos.tecla("Tab");
    if (!(mensaje == ninguno)) {
        manos.esperarVentana(caja);
    }
    EXPECT_EQ(Responder(manos), mensaje) << campo.toStdString();
    manos.esperar("el foco de vuelta en " + campo.toStdString(),
                  [&] { return ControlDe(opciones, campo) == QApplication::focusWidget(); });
}

void Activar(const Manos& manos, int ficha, const QString& casilla) {
    manos.clic(opciones, "SSTab1", EnLaFicha(ficha));
    manos.foto("opciones-" + std::to_string(ficha) + "-apagada");
    manos.clic(opciones, casilla, EnLaMarca);
    manos.esperar(casilla.toStdString() + " encendida",
                  [&] { return dynamic_cast<QCheckBox&>(*ControlDe(opciones, casilla)).isChecked(); });
    manos.foto("opciones-" + std::to_string(ficha) + "-encendida");
    EXPECT_EQ(manos.leer(opciones, "", LoQueNoCabe), "") << ficha;
}

void EscribirEnAOI(const Manos& manos) {
    Activar(manos, 3, "ChAOIActivar");
    Comprobar(manos, "TxtRm(0)",
              {{"1.5", conPunto}, {"1,5", ninguno}, {"-1", ninguno}, {"", noEsNumero}, {"abc", noEsNumero}});
    ComprobarAlDejar(manos, "TxtRm(0)", noEsNumero);
    manos.foto("opciones-3-sin-numero");
    EXPECT_EQ(Escribir(manos, "TxtRm(0)", "1,5"), ninguno);
    manos.clic(opciones, "CmdAñadir");
    manos.esperar("la función en la lista",
                  [&] { return dynamic_cast<QListWidget&>(*ControlDe(opciones, "LstAOI")).count() == 1; });
    manos.foto("opciones-3-con-funcion");
}

void EscribirEnDP(const Manos& manos) {
    Activar(manos, 4, "ChIDPActivar");
    Comprobar(manos, "TxtBAF1(0)",
              {{"1.5", conPunto}, {"1,5", ninguno}, {"-1", ninguno}, {"", ninguno}, {"abc", noEsNumero}});
    ComprobarAlDejar(manos, "TxtBAF1(0)", noEsNumero);
    EXPECT_EQ(Escribir(manos, "TxtBAF1(0)", "1"), ninguno);
    manos.clic(opciones, "OptNumFijo(0)", EnLaMarca);
    manos.foto("opciones-4-numero-fijo");
    Comprobar(
        manos, "TxtBAF1(1)",
        {{"1.5", noNatural}, {"1,5", noNatural}, {"-1", noNatural}, {"", ninguno}, {"abc", noEsNumero}});
    EXPECT_EQ(Escribir(manos, "TxtBAF1(1)", "1"), ninguno);
    manos.clic(opciones, "OptRadioFijo(0)", EnLaMarca);
    manos.foto("opciones-4-distancia");
    manos.clic(opciones, "OptFunc(0)", EnLaMarca);
    manos.foto("opciones-4-richards");
    Comprobar(manos, "TxtRich(0)",
              {{"1.5", conPunto}, {"1,5", ninguno}, {"-1", negativo}, {"", noEsNumero}, {"abc", noEsNumero}});
    ComprobarAlDejar(manos, "TxtRich(0)", noEsNumero);
    EXPECT_EQ(Escribir(manos, "TxtRich(0)", "1,5"), ninguno);
    manos.clic(opciones, "OptHiper(0)", EnLaMarca);
    manos.foto("opciones-4-hiperbolica");
}

void ActivarLasOtras(const Manos& manos) {
    Activar(manos, 2, "ChSupCopa");
    Activar(manos, 5, "ChDRActivar");
    manos.clic(opciones, "OptDistExp", EnLaMarca);
    manos.clic(opciones, "OptFunc(1)", EnLaMarca);
    manos.foto("opciones-5-funciones");
    Activar(manos, 6, "ChAPA");
}

/// Closes the dialog and opens it again: it stands where it stood.
void Reabrir(const Manos& manos) {
    const auto lugar = [&] {
        return manos.leer(opciones, "", [](QWidget& dialogo) {
            const QRect marco = dialogo.frameGeometry();
            return QStringLiteral("%1 %2").arg(marco.x()).arg(marco.y());
        });
    };
    const QString antes = lugar();
    for (int vez = 0; vez < 3; ++vez) {
        manos.tecla("Escape");
        manos.esperarQueSeVaya(opciones);
        manos.tecla("alt+o");
        manos.esperarVentana(opciones);
        EXPECT_EQ(lugar(), antes) << vez;
    }
}

} // namespace

TEST(OpcionesEnPantalla, QuienEscribeVeLoQueNoVale) {
    const Programado programado;
    ConLasManos([&](const Manos& manos) {
        AbrirArchivo(manos, Ejemplos() / "parcela.xls");
        ElegirHoja(manos);
        manos.tecla("alt+o");
        manos.esperarVentana(opciones);
        Reabrir(manos);
        EscribirEnAOI(manos);
        EscribirEnDP(manos);
        ActivarLasOtras(manos);
        manos.tecla("Escape");
        manos.esperarQueSeVaya(opciones);
    });
}

} // namespace varo::prueba
