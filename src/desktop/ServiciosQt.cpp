#include "desktop/ServiciosQt.h"

#include "desktop/Letra.h"
#include "desktop/Texto.h"
#include "desktop/widgets/ArchivosEnEspanol.h"
#include "desktop/widgets/VentanasReales.h"
#include "pintura/Colores.h"
#include "shell/VAROMAIN.h"
#include "sistema/ArchivoEntero.h"

#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace varo {

namespace {

constexpr int mascaraDeBotones = 15;
constexpr int mascaraDeIcono = 112;
constexpr QSize medidasAlAbrir{800, 500}; ///< of the file dialog, in pixels

QMessageBox::Icon Icono(int opciones) {
    switch (opciones & mascaraDeIcono) {
    case mensaje::critico:
        return QMessageBox::Critical;
    case mensaje::pregunta:
        return QMessageBox::Question;
    case mensaje::exclamacion:
        return QMessageBox::Warning;
    case mensaje::informacion:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

struct BotonDeMensaje {
    const char* leyenda;
    QMessageBox::ButtonRole papel;
    int respuesta;
};

std::vector<BotonDeMensaje> Botones(int opciones) {
    const BotonDeMensaje cancelar{"Cancelar", QMessageBox::RejectRole, mensaje::respondeCancelar};
    const BotonDeMensaje si{"&Sí", QMessageBox::YesRole, mensaje::respondeSi};
    const BotonDeMensaje no{"&No", QMessageBox::NoRole, mensaje::respondeNo};
    switch (opciones & mascaraDeBotones) {
    case mensaje::siNoCancelar:
        return {si, no, cancelar};
    case mensaje::siNo:
        return {si, no};
    case mensaje::reintentarCancelar:
        return {{"&Reintentar", QMessageBox::AcceptRole, mensaje::respondeReintentar}, cancelar};
    default:
        return {{"Aceptar", QMessageBox::AcceptRole, mensaje::respondeAceptar}};
    }
}

using BotonesYRespuestas = std::vector<std::pair<QAbstractButton*, int>>;

/// What Escape and the close box press: No where there is one, as nothing happens then, else the last one.
BotonesYRespuestas::const_iterator BotonDeSalida(const BotonesYRespuestas& botones) {
    const auto no = std::find_if(botones.begin(), botones.end(),
                                 [](const auto& boton) { return boton.second == mensaje::respondeNo; });
    return no == botones.end() ? std::prev(no) : no;
}

/// A pattern of the program, and those of the later formats of its kind, which open as well.
QString ConLosPosteriores(const QString& patron) {
    if (patron == "*.xls") {
        return patron + " *.xlsx *.ods *.csv";
    }
    return patron == "*.mdb" ? patron + " *.accdb" : patron;
}

/// Takes pairs of name and pattern, "Hoja de cálculo (*.xls)|*.xls|...". Qt reads the patterns from the last
/// brackets, which it does not show.
QStringList Filtros(const std::string& filtro) {
    const QStringList partes = AQt(filtro).split('|', Qt::SkipEmptyParts);
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < partes.size(); i += 2) {
        filtros << partes[i] + " (" + ConLosPosteriores(partes[i + 1]) + ")";
    }
    return filtros;
}

void Avisar(const std::function<void(const std::string&)>& aviso, const std::string& texto) {
    if (aviso) {
        aviso(texto);
    }
}

/// Tells when it has taken its place.
class ArchivoAnunciado : public ArchivoEntero {
public:
    ArchivoAnunciado(const std::string& ruta, std::function<void()> alPublicar)
        : ArchivoEntero{ruta}, alPublicar_{std::move(alPublicar)} {}

    void publicar() override {
        ArchivoEntero::publicar();
        alPublicar_();
    }

private:
    std::function<void()> alPublicar_;
};

QFont FuenteDelDialogo(const Fuente& fuente) {
    QFont letra = FuenteQt(fuente);
    // The font dialog finds a style by name, and each font spells that differently.
    letra.setStyleName(QFontInfo{letra}.styleName());
    return letra;
}

} // namespace

QWidget* ServiciosQt::padre() {
    avance_.ocultar();
    QWidget* const activa = QApplication::activeWindow();
    return activa != nullptr ? activa : ventana_;
}

int ServiciosQt::mensaje(const std::string& texto, const std::string& titulo, int opciones) {
    Avisar(alDecir, texto);
    QMessageBox caja{Icono(opciones), AQt(titulo), AQt(texto), QMessageBox::NoButton, padre()};
    caja.setTextFormat(Qt::PlainText);
    caja.setObjectName("CajaDeMensaje");
    BotonesYRespuestas botones;
    for (const auto& boton : Botones(opciones)) {
        botones.emplace_back(caja.addButton(QString::fromUtf8(boton.leyenda), boton.papel), boton.respuesta);
    }
    caja.setDefaultButton(qobject_cast<QPushButton*>(botones.front().first));
    const auto salida = BotonDeSalida(botones);
    caja.setEscapeButton(salida->first);
    caja.exec();
    for (const auto& [boton, respuesta] : botones) {
        if (caja.clickedButton() == boton) {
            return respuesta;
        }
    }
    return salida->second;
}

void ServiciosQt::fallo(const ErrorEjecucion& error) {
    mostrarFallo(error, QString{});
}

void ServiciosQt::falloFatal(const ErrorEjecucion& error) {
    mostrarFallo(error, QStringLiteral("\n\nEl programa se cerrará."));
}

void ServiciosQt::mostrarFallo(const ErrorEjecucion& error, const QString& cierre) {
    Avisar(alDecir, error.descripcion());
    QMessageBox caja{QMessageBox::Critical, tituloDelPrograma, QString{}, QMessageBox::NoButton, padre()};
    caja.setObjectName("CajaDeFallo");
    caja.setTextFormat(Qt::PlainText);
    QString texto = QString::fromUtf8("Error %1 en tiempo de ejecución:\n\n%2")
                        .arg(error.numero())
                        .arg(AQt(error.descripcion()));
    if (!error.lugar().empty()) {
        texto += QString::fromUtf8("\n\nDónde: ") + AQt(error.lugar());
    }
    texto += cierre;
    caja.setText(texto);
    caja.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* const aceptar = caja.addButton("Aceptar", QMessageBox::AcceptRole);
    caja.setDefaultButton(aceptar);
    caja.setEscapeButton(aceptar);
    auto* const copiar = caja.addButton("&Copiar", QMessageBox::ActionRole);
    copiar->disconnect(); // copying leaves the box open
    QObject::connect(copiar, &QPushButton::clicked, &caja,
                     [&texto] { QApplication::clipboard()->setText(texto); });
    caja.exec();
}

void ServiciosQt::elegirArchivo(DialogoAbrir& dialogo) {
    if (!preparado_.empty()) {
        dialogo.FileName = std::exchange(preparado_, {});
        return;
    }
    QFileDialog ventana{padre(), AQt(dialogo.DialogTitle)};
    ventana.setOption(QFileDialog::HideNameFilterDetails);
    ventana.setNameFilters(Filtros(dialogo.Filter));
    ventana.setObjectName("DlogoAbrir");
    ventana.setFileMode(QFileDialog::ExistingFile);
    ventana.setDefaultSuffix(AQt(dialogo.DefaultExt));
    PonerArchivosEnEspanol(ventana);
    const QString carpeta = carpetaAlAbrir ? AQt(carpetaAlAbrir()) : QString{};
    if (!carpeta.isEmpty() && QDir{carpeta}.isReadable()) {
        ventana.setDirectory(carpeta);
    }
    ventana.resize(medidasAlAbrir.boundedTo(SitioEnPantalla(ventana)));
    const bool elegido = ventana.exec() == QDialog::Accepted && !ventana.selectedFiles().isEmpty();
    dialogo.FileName = elegido ? DeQt(ventana.selectedFiles().front()) : std::string{};
}

std::optional<Fuente> ServiciosQt::elegirFuente(const Fuente& actual) {
    bool elegida = false;
    const QFont letra = QFontDialog::getFont(&elegida, FuenteDelDialogo(actual), padre());
    if (!elegida) {
        return std::nullopt;
    }
    return Fuente{DeQt(letra.family()), static_cast<float>(letra.pointSizeF()),
                  letra.bold(),         letra.italic(),
                  letra.strikeOut(),    letra.underline()};
}

std::optional<Color> ServiciosQt::elegirColor(Color actual) {
    const QColor color = QColorDialog::getColor(ColorQt(actual), padre());
    if (!color.isValid()) {
        return std::nullopt;
    }
    return ColorDe(color);
}

std::unique_ptr<ArchivoNuevo> ServiciosQt::crearArchivo(const std::string& ruta) {
    return std::make_unique<ArchivoAnunciado>(ruta, [this, ruta] { Avisar(alEscribir, ruta); });
}

} // namespace varo
