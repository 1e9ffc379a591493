// A journey by the keyboard: files by key and from the list of recent ones, the grid copied, the manual.
#include "recorrido/Pasos.h"

#include <QApplication>
#include <QClipboard>

#include <gtest/gtest.h>

namespace varo::prueba {

namespace {

QString Portapapeles(const Manos& manos) {
    return manos.leer("VAROMAIN", "", [](QWidget&) { return QGuiApplication::clipboard()->text(); });
}

void EsperarPortapapeles(const Manos& manos, const std::string& que,
                         const std::function<bool(const QString&)>& condicion) {
    manos.esperar(que, [condicion] { return condicion(QGuiApplication::clipboard()->text()); });
}

void CopiarDeLaHoja(const Manos& manos) {
    manos.clic("Hojadedatos", "MSFlexGrid1", EnLaCabecera("CAP"));
    manos.tecla("ctrl+c");
    EsperarPortapapeles(manos, "la columna copiada",
                        [](const QString& texto) { return texto.startsWith("CAP\n"); });
    EXPECT_EQ(Portapapeles(manos).count('\n'), 61); // the header and sixty trees
    manos.foto("c1-columna-copiada");
    manos.tecla("ctrl+a");
    manos.tecla("ctrl+c");
    EsperarPortapapeles(manos, "la hoja copiada", [](const QString& texto) {
        return texto.startsWith(
            QString::fromUtf8("Nº de punto\tArbol\tX\tY\tEspecie\tCAP\tRN\tRE\tRS\tRO\n1\t"));
    });
    manos.foto("c2-hoja-copiada");
}

void VerLaAyuda(const Manos& manos) {
    manos.tecla("alt+y");
    manos.tecla("a");
    manos.esperarVentana("AcercaDe");
    manos.foto("c3-acerca-de");
    manos.tecla("Return");
    manos.esperarQueSeVaya("AcercaDe");
    manos.esperarVentana("VAROMAIN");
    manos.tecla("F1");
    manos.esperarVentana("Manual");
    manos.foto("c3-manual");
    manos.tecla("Escape");
    manos.esperarQueSeVaya("Manual");
}

} // namespace

TEST(ComodidadesEnPantalla, ConElTeclado) {
    Programado programado;
    ConLasManos([](const Manos& manos) {
        manos.esperarVentana("VAROMAIN");
        manos.tecla("ctrl+o");
        manos.esperarVentana("DlogoAbrir");
        manos.escribir("DlogoAbrir", "fileNameEdit", (Ejemplos() / "parcela.xls").string());
        manos.tecla("Return");
        ElegirHoja(manos);
        CopiarDeLaHoja(manos);
        VerLaAyuda(manos);
        manos.esperarVentana("Hojadedatos");
        manos.tecla("ctrl+w");
        manos.esperarQueSeVaya("Hojadedatos");
        manos.esperarVentana("VAROMAIN");
        manos.tecla("alt+a");
        manos.esperar("el menú Archivo", [] { return QApplication::activePopupWidget() != nullptr; });
        manos.fotoEnMarcha("c4-recientes");
        manos.tecla("1");
        ElegirHoja(manos);
        manos.tecla("ctrl+q");
        manos.esperarVentana("CajaDeMensaje");
        manos.tecla("Return");
        manos.esperarQueSeVaya("CajaDeMensaje");
    });
    EXPECT_TRUE(programado.terminado);
}

} // namespace varo::prueba
