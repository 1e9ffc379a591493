// The program as a process at a screen.
#include "apoyo/CarpetaTemporal.h"
#include "apoyo/Lugares.h"
#include "recorrido/Manos.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include <gtest/gtest.h>

namespace varo::prueba {

namespace {

constexpr int plazo = 30'000; ///< in milliseconds

/// How many visible windows have this title.
qsizetype VentanasCon(const QString& titulo) {
    QProcess proceso;
    proceso.start("xdotool", {"search", "--onlyvisible", "--name", "^" + titulo + "$"});
    proceso.waitForFinished(plazo);
    return proceso.readAllStandardOutput().split('\n').size() - 1;
}

void EsperarVentanas(const QString& titulo, qsizetype cuantas) {
    const QDeadlineTimer limite{plazo};
    while (VentanasCon(titulo) != cuantas) {
        ASSERT_FALSE(limite.hasExpired()) << titulo.toStdString();
        QThread::msleep(20);
    }
}

/// Keys go to the active window: one that is only in sight loses them.
void EsperarActiva(const QString& titulo) {
    const QDeadlineTimer limite{plazo};
    QString activa;
    while (activa != titulo) {
        ASSERT_FALSE(limite.hasExpired()) << titulo.toStdString() << " no llega a estar activa";
        QThread::msleep(20);
        QProcess proceso;
        proceso.start("xdotool", {"getactivewindow", "getwindowname"});
        proceso.waitForFinished(plazo);
        activa = QString::fromUtf8(proceso.readAllStandardOutput()).trimmed();
    }
}

/// Types the path until the dialog takes it: one that has just become active may lose the first keys, and
/// tells of a file that is not there.
bool ElegirArchivo(const Manos& manos, const std::filesystem::path& archivo) {
    constexpr int intentos = 8;
    constexpr int espera = 4'000; // in milliseconds
    for (int intento = 0; intento < intentos; ++intento) {
        manos.tecla("ctrl+a");
        manos.teclear(archivo.string());
        manos.tecla("Return");
        const QDeadlineTimer limite{espera};
        while (!limite.hasExpired()) {
            if (VentanasCon("Abrir fichero de datos") == 0) {
                return true;
            }
            QThread::msleep(20);
        }
    }
    return false;
}

/// The environment of a person whose settings are in this folder.
QProcessEnvironment ConAjustesEn(const CarpetaTemporal& carpeta) {
    auto entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert("XDG_CONFIG_HOME", QString::fromStdString(carpeta.ruta().string()));
    return entorno;
}

} // namespace

TEST(Programa, UnArchivoQueNoSePuedeLeerSeDiceYElProgramaAcabaSinPreguntar) {
    const CarpetaTemporal carpeta;
    const auto roto = carpeta.Escribir("roto.xls", "esto no es un libro de cálculo");
    QProcess varo;
    varo.setProcessEnvironment(ConAjustesEn(carpeta));
    varo.start(QString::fromStdString(ProgramaEscritorio().string()), QStringList{});
    ASSERT_TRUE(varo.waitForStarted(plazo));
    const Manos manos;
    EsperarActiva("VARO 1.0");
    manos.tecla("alt+a");
    manos.tecla("a");
    EsperarActiva("Abrir fichero de datos");
    ASSERT_TRUE(ElegirArchivo(manos, roto));
    EsperarVentanas("VARO 1.0", 2); // the frame and the box of the fault
    EsperarActiva("VARO 1.0");
    manos.tecla("Return");
    EXPECT_TRUE(varo.waitForFinished(plazo));
    EXPECT_EQ(varo.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(varo.exitCode(), 1);
}

} // namespace varo::prueba
