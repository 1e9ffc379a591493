#include "desktop/ventanas/SacarMapa.h"

#include "basico/ErrorEjecucion.h"
#include "desktop/Texto.h"
#include "desktop/widgets/ArchivosEnEspanol.h"
#include "pintura/Imagenes.h"
#include "sistema/ArchivoEntero.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

namespace varo {

namespace {

/// The file that a person chooses; empty when they cancel.
std::string ElegirImagen(QWidget& padre, const std::string& titulo) {
    QFileDialog ventana{&padre, QStringLiteral("Guardar la imagen del mapa"), QString{},
                        QStringLiteral("Dibujo SVG (*.svg);;Documento PDF (*.pdf);;Imagen PNG (*.png)")};
    ventana.setObjectName("DlogoGuardarMapa");
    ventana.setAcceptMode(QFileDialog::AcceptSave);
    ventana.setDefaultSuffix("svg");
    PonerArchivosEnEspanol(ventana);
    ventana.selectFile(AQt(titulo));
    QObject::connect(&ventana, &QFileDialog::filterSelected, &ventana, [&ventana](const QString& filtro) {
        ventana.setDefaultSuffix(filtro.section("*.", 1, 1).section(')', 0, 0));
    });
    const bool elegido = ventana.exec() == QDialog::Accepted && !ventana.selectedFiles().isEmpty();
    return elegido ? DeQt(ventana.selectedFiles().front()) : std::string{};
}

void Decir(QWidget& padre, const std::string& texto) {
    QMessageBox caja{QMessageBox::Critical, QStringLiteral("Mapa no escrito"), AQt(texto),
                     QMessageBox::NoButton, &padre};
    caja.setObjectName("CajaDeMensaje");
    caja.addButton(QStringLiteral("Aceptar"), QMessageBox::AcceptRole);
    caja.exec();
}

} // namespace

void GuardarMapa(QWidget& padre, const Dibujo& dibujo, const std::string& titulo) {
    const std::string ruta = ElegirImagen(padre, titulo);
    if (ruta.empty()) {
        return;
    }
    const auto formato = FormatoDe(ruta);
    if (!formato) {
        Decir(padre,
              "«" + ruta + "» no termina en .svg, .pdf ni .png: el mapa se guarda en uno de esos formatos.");
        return;
    }
    try {
        ArchivoEntero archivo{ruta};
        archivo.escribir(ImagenDe(dibujo, *formato));
        archivo.publicar();
    } catch (const ErrorEjecucion& error) {
        Decir(padre, error.descripcion());
    }
}

void ImprimirMapa(QWidget& padre, const Dibujo& dibujo, const std::string& titulo) {
    QPrinter impresora{QPrinter::HighResolution};
    impresora.setPageOrientation(QPageLayout::Landscape);
    impresora.setDocName(AQt(titulo));
    QPrintDialog ventana{&impresora, &padre};
    ventana.setObjectName("DlogoImprimir");
    if (ventana.exec() != QDialog::Accepted) {
        return;
    }
    QPainter pintor;
    if (!pintor.begin(&impresora)) {
        Decir(padre, "La impresora no admite el trabajo: compruebe que está encendida y que tiene papel.");
        return;
    }
    PintarEntero(pintor, dibujo, impresora.pageLayout().paintRectPixels(impresora.resolution()).size());
}

} // namespace varo
