#include "desktop/comodidades/Ayuda.h"

#include "desktop/OrdenDeArranque.h"
#include "desktop/Texto.h"
#include "desktop/widgets/VentanasReales.h"

#include <QDialog>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace varo {

Ayuda::Ayuda(QMainWindow& marco) : marco_{marco} {
    QMenu* const menu = marco.menuBar()->addMenu(QStringLiteral("A&yuda"));
    menu->menuAction()->setObjectName(QStringLiteral("Ayuda"));
    QAction* const manual = menu->addAction(QStringLiteral("&Manual"), this, [this] { mostrarManual(); });
    manual->setObjectName(QStringLiteral("AyudaManual"));
    manual->setShortcut(QKeySequence{Qt::Key_F1});
    manual->setShortcutContext(Qt::ApplicationShortcut);
    QAction* const avisos = menu->addAction(QStringLiteral("A&visos de la hoja"), this, [this] {
        if (alPedirAvisos) {
            alPedirAvisos();
        }
    });
    avisos->setObjectName(QStringLiteral("AyudaAvisos"));
    QAction* const acerca =
        menu->addAction(QStringLiteral("&Acerca de VARO"), this, [this] { mostrarAcercaDe(); });
    acerca->setObjectName(QStringLiteral("AyudaAcercaDe"));
}

void Ayuda::mostrarManual() {
    constexpr QSize medidas{760, 620};
    if (manual_ == nullptr) {
        manual_ = new QDialog{&marco_};
        manual_->setObjectName(QStringLiteral("Manual"));
        manual_->setWindowTitle(QStringLiteral("Manual de VARO"));
        auto* const columna = new QVBoxLayout{manual_};
        columna->setContentsMargins(0, 0, 0, 0);
        auto* const texto = new QTextBrowser;
        texto->document()->setDocumentMargin(16);
        texto->setSource(QUrl{QStringLiteral("qrc:/ayuda/manual.html")});
        columna->addWidget(texto);
        manual_->resize(medidas.boundedTo(SitioEnPantalla(marco_)));
    }
    manual_->show();
    manual_->raise();
    manual_->activateWindow();
}

void Ayuda::mostrarAcercaDe() {
    constexpr int lado = 64; // of the icon, in pixels
    QMessageBox caja{QMessageBox::NoIcon, QStringLiteral("Acerca de VARO"),
                     QStringLiteral("VARO, versión %1").arg(AQt(VersionDelPrograma())), QMessageBox::NoButton,
                     &marco_};
    caja.setObjectName(QStringLiteral("AcercaDe"));
    caja.setIconPixmap(QIcon{QStringLiteral(":/iconos/varo.svg")}.pixmap(lado));
    caja.setInformativeText(
        QStringLiteral("Mapa de copas, datos de parcela e índices de competencia de una parcela forestal."));
    caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    caja.exec();
}

} // namespace varo
