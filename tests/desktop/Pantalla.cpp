#include "desktop/Pantalla.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

namespace varo::prueba {

void Reposar() {
    constexpr int vueltas = 6;
    for (int i = 0; i < vueltas; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Clic(QWidget& widget) {
    const auto* const boton = qobject_cast<QAbstractButton*>(&widget);
    const QPoint medio = widget.rect().center();
    Clic(widget, boton != nullptr && boton->isCheckable() ? QPoint{8, medio.y()} : medio);
}

void Clic(QWidget& widget, QPoint punto) {
    if (!widget.isVisible()) {
        throw std::runtime_error{"no está a la vista: " + widget.objectName().toStdString()};
    }
    if (!widget.window()->isActiveWindow()) {
        widget.window()->activateWindow();
        Reposar();
    }
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, punto);
    Reposar();
}

void Escribir(QWidget& campo, const QString& texto) {
    Clic(campo);
    QTest::keyClick(&campo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&campo, texto);
    Reposar();
}

Puesto::Puesto() {
    escritorio.alTerminar = [this] { ++terminaciones; };
    Reposar();
}

Formulario* Puesto::modelo(const std::string& ventana) const {
    for (Formulario* const cargada : programa.todas()) {
        if (cargada->nombre() == ventana) {
            return cargada;
        }
    }
    return nullptr;
}

bool Puesto::alaVista(const std::string& ventana) const {
    const Formulario* const cargada = modelo(ventana);
    return cargada != nullptr && escritorio.ventanaDe(*cargada)->isVisible();
}

std::vector<std::string> Puesto::ventanasALaVista() const {
    std::vector<std::string> nombres;
    for (const Formulario* const cargada : programa.todas()) {
        if (escritorio.ventanaDe(*cargada)->isVisible()) {
            nombres.push_back(cargada->nombre());
        }
    }
    return nombres;
}

QWidget& Puesto::ventana(const std::string& ventana) const {
    const Formulario* const cargada = modelo(ventana);
    if (cargada == nullptr) {
        throw std::runtime_error{"no está cargada: " + ventana};
    }
    return *escritorio.ventanaDe(*cargada);
}

QAction& Puesto::menu(const std::string& nombre) const {
    auto* const accion = ventana("VAROMAIN").findChild<QAction*>(QString::fromStdString(nombre));
    if (accion == nullptr) {
        throw std::runtime_error{"no hay menú " + nombre};
    }
    return *accion;
}

std::string Puesto::menusHabilitados() const {
    std::string nombres;
    for (const char* nombre : {"mnuAbrir", "mnuCerrar", "mnuMapa", "mnuOpciones"}) {
        if (menu(nombre).isEnabled()) {
            nombres += (nombres.empty() ? "" : " ") + std::string{nombre};
        }
    }
    return nombres;
}

void Puesto::clicMenu(const std::string& ventana, const std::string& nombre) const {
    QAction& accion = menu(nombre);
    QWidget& donde = this->ventana(ventana);
    auto* const marco = qobject_cast<QMainWindow*>(&donde);
    QMenuBar& barra = marco == nullptr ? *donde.findChild<QMenuBar*>() : *marco->menuBar();
    for (QAction* const arriba : barra.actions()) {
        if (arriba == &accion) {
            Clic(barra, barra.actionGeometry(arriba).center());
            return;
        }
        if (arriba->menu() != nullptr && arriba->menu()->actions().contains(&accion)) {
            Clic(barra, barra.actionGeometry(arriba).center());
            QTest::mouseClick(arriba->menu(), Qt::LeftButton, Qt::NoModifier,
                              arriba->menu()->actionGeometry(&accion).center());
            Reposar();
            return;
        }
    }
    throw std::runtime_error{nombre + " no está en la barra de " + ventana};
}

void Puesto::clicFicha(int ficha) const {
    QTabBar& barra = *widget<QTabWidget>("OpcionesPrograma", "SSTab1").tabBar();
    Clic(barra, barra.tabRect(ficha).center());
}

void Puesto::activar(const std::string& ventana) const {
    QWidget& donde = this->ventana(ventana);
    donde.window()->activateWindow();
    Reposar();
    if (auto* const hija = qobject_cast<QMdiSubWindow*>(&donde)) {
        QTest::mouseClick(hija, Qt::LeftButton, Qt::NoModifier, {hija->width() / 2, 8});
        Reposar();
    }
}

void Puesto::cerrar(const std::string& ventana) const {
    this->ventana(ventana).close();
    Reposar();
}

void Puesto::abrirArchivo() {
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = filas;
    EscribirArchivoXls(carpeta / "parcela.xls", {hoja});
    const QString ruta = QString::fromStdString(carpeta.archivo("parcela.xls"));
    contestador.preparar([ruta](QWidget& dialogo) {
        ASSERT_EQ(dialogo.objectName(), "DlogoAbrir");
        auto* const campo = dialogo.findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(campo, ruta);
        QTest::keyClick(campo, Qt::Key_Return);
    });
    clicMenu("VAROMAIN", "mnuAbrir");
}

void Puesto::aceptarHoja() const {
    Escribir(*widget<QComboBox>("FrmSeleccion", "CboHoja").lineEdit(), "Parcela1$");
    clic("FrmSeleccion", "CmdAceptar");
}

void Puesto::clicColumna(int columna) const {
    QTableView& tabla = rejilla();
    const QModelIndex celda = tabla.model()->index(1, columna);
    tabla.scrollTo(celda);
    Clic(*tabla.viewport(), tabla.visualRect(celda).center());
}

void Puesto::darPapeles() const {
    const auto elegir = [this](int columna, const std::string& boton) {
        clicColumna(columna);
        clic("SelCol4R", boton);
    };
    for (int papel = 0; papel <= 5; ++papel) {
        elegir(papel + 2, "Command1(" + std::to_string(papel) + ")");
    }
    elegir(1, "Command1(6)");
    elegir(8, "Command1(7)");
    elegir(9, "CmdDAP");
}

void Puesto::elegirColumnas() const {
    darPapeles();
    clic("SelCol4R", "CmdDibujar");
}

void Puesto::llegarA(Etapa etapa) {
    if (etapa >= Etapa::Seleccion) {
        abrirArchivo();
    }
    if (etapa >= Etapa::Hoja) {
        aceptarHoja();
    }
    if (etapa == Etapa::Opciones) {
        clicMenu("VAROMAIN", "mnuOpciones");
        return;
    }
    if (etapa >= Etapa::Columnas) {
        clicMenu("VAROMAIN", "mnuMapa");
    }
    if (etapa >= Etapa::Formato) {
        elegirColumnas();
    }
    if (etapa >= Etapa::Mapa) {
        clic("FrmFormato", "CmdAceptar");
    }
    if (etapa >= Etapa::CrearArchivo) {
        clicMenu("FrmMapa", "mnuIndices");
    }
}

} // namespace varo::prueba
