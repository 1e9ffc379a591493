#include "desktop/comodidades/BarraDeEstado.h"

#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "desktop/Texto.h"
#include "desktop/widgets/RotuloRecortado.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <QFileInfo>
#include <QLocale>
#include <QStatusBar>

namespace varo {

namespace {

constexpr int letrasDeArchivo = 28; ///< the longest texts that are shown whole
constexpr int letrasDeHoja = 20;
constexpr int letrasDeCuenta = 16;
constexpr int letrasDeColumna = 64;

QString CuantosArboles(int cuantos) {
    return QLocale{}.toString(cuantos) +
           (cuantos == 1 ? QStringLiteral(" árbol") : QStringLiteral(" árboles"));
}

/// The header of the last column where the grid hides it; empty elsewhere.
QString UltimaOculta(const Rejilla& rejilla) {
    const int ultima = rejilla.Cols() - 1;
    return rejilla.ColWidth(ultima) == 0 ? AQt(rejilla.TextMatrix(0, ultima)) : QString{};
}

} // namespace

BarraDeEstado::BarraDeEstado(QStatusBar& barra) : barra_{barra} {
    barra_.setSizeGripEnabled(false);
    mensaje_ = new RotuloRecortado;
    mensaje_->setObjectName(QStringLiteral("EstadoMensaje"));
    barra_.addWidget(mensaje_, 1);
    archivo_ = crearRotulo(QStringLiteral("EstadoArchivo"), letrasDeArchivo);
    hoja_ = crearRotulo(QStringLiteral("EstadoHoja"), letrasDeHoja);
    arboles_ = crearRotulo(QStringLiteral("EstadoArboles"), letrasDeCuenta);
    ultimaColumna_ = crearRotulo(QStringLiteral("EstadoColumna"), letrasDeColumna);
}

RotuloRecortado* BarraDeEstado::crearRotulo(const QString& nombre, int letras) {
    auto* const rotulo = new RotuloRecortado{letras};
    rotulo->setObjectName(nombre);
    barra_.addPermanentWidget(rotulo);
    return rotulo;
}

void BarraDeEstado::decir(const QString& texto) {
    mensaje_->poner(texto.simplified());
}

void BarraDeEstado::mostrar(const Programa& programa) {
    const auto* const marco = programa.cargada<VAROMAIN>();
    const auto* const datos = programa.cargada<Hojadedatos>();
    const auto* const seleccion = programa.cargada<FrmSeleccion>();
    const QString ruta = datos == nullptr ? QString{} : AQt(datos->Data1.DatabaseName());
    archivo_->poner(QFileInfo{ruta}.fileName(), ruta);
    const bool conHoja =
        marco != nullptr && marco->mnuCerrar.Enabled() && datos != nullptr && seleccion != nullptr;
    const QString hoja = conHoja ? AQt(seleccion->CboHoja.Text()) : QString{};
    if (hoja != hoja_->texto()) {
        mensaje_->poner({}); // what was said is about what was open before
    }
    hoja_->poner(hoja);
    arboles_->poner(conHoja ? CuantosArboles(datos->MSFlexGrid1.Rows() - 1) : QString{});
    mostrarUltimaColumna(conHoja ? UltimaOculta(datos->MSFlexGrid1) : QString{});
}

void BarraDeEstado::mostrarUltimaColumna(const QString& cabecera) {
    if (cabecera.isEmpty()) {
        ultimaColumna_->poner({});
        return;
    }
    ultimaColumna_->poner(
        QStringLiteral("No se ve «%1»: la última columna no se lee").arg(cabecera),
        QStringLiteral(
            "La última columna de la hoja, «%1», no se ve ni se puede elegir: el programa nunca lee los "
            "datos "
            "de la última columna. Si hacen falta, ponga en la hoja otra columna con cabecera detrás.")
            .arg(cabecera));
}

} // namespace varo
