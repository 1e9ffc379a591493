#include "desktop/Intentar.h"
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "desktop/widgets/SelectorDeArchivo.h"
#include "indices/archivo/FrmCrearArchivo.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QVBoxLayout>

namespace varo {

namespace {

/// Hands folder and name to the model, which has the last word.
class DondeGuardar : public ContenidoDeDialogo {
public:
    DondeGuardar(FrmCrearArchivo& ventana, Vinculos& vinculos);

protected:
    void showEvent(QShowEvent* suceso) override;

private:
    void enlazarCarpeta();
    void enlazarNombre();
    QPushButton* crearAceptar();
    void llevarCarpeta();
    void tomarNombre(const QString& texto);
    void aceptar();
    bool irA(const QString& carpeta);
    bool seguirRuta();

    FrmCrearArchivo& ventana_;
    Vinculos& vinculos_;
    SelectorDeArchivo* selector_;
};

DondeGuardar::DondeGuardar(FrmCrearArchivo& ventana, Vinculos& vinculos)
    : ventana_{ventana}, vinculos_{vinculos}, selector_{new SelectorDeArchivo{
                                                  {QStringLiteral("Archivos de texto (*.txt)"),
                                                   QStringLiteral("Todos los archivos (*)")}}} {
    auto* const columna = new QVBoxLayout{this};
    columna->addWidget(selector_);
    selector_->layout()->setContentsMargins(0, 0, 0, 0);
    enlazarCarpeta();
    enlazarNombre();
    QPushButton* const botonAceptar = crearAceptar();
    QPushButton* const botonCancelar = vinculos.crearBoton(ventana.CmdCancelar);
    columna->addLayout(crearPie(botonAceptar, botonCancelar));
    selector_->alAceptar = [botonAceptar] { botonAceptar->click(); };
    selector_->alRechazar = [botonCancelar] { botonCancelar->click(); };
    vinculos.alSoltar(*selector_, [this, botonAceptar] {
        botonAceptar->disconnect(this);
        selector_->alCambiarDeCarpeta = {};
        selector_->nombre().disconnect(this);
    });
}

/// Begins in the name: typing replaces what is proposed.
void DondeGuardar::showEvent(QShowEvent* suceso) {
    ContenidoDeDialogo::showEvent(suceso);
    selector_->nombre().setFocus();
    selector_->nombre().selectAll();
}

void DondeGuardar::enlazarCarpeta() {
    vinculos_.seguirEstado(*selector_, ventana_.DirLista);
    vinculos_.seguirEstado(selector_->lista(), ventana_.FilLista);
    vinculos_.seguir(ventana_.DirLista, [this] { selector_->carpeta(AQt(ventana_.DirLista.Path())); });
    selector_->alCambiarDeCarpeta = [this] { llevarCarpeta(); };
}

void DondeGuardar::llevarCarpeta() {
    irA(selector_->carpeta());
    selector_->carpeta(AQt(ventana_.DirLista.Path())); // a folder that cannot be read was told
}

/// False when the folder cannot be read.
bool DondeGuardar::irA(const QString& carpeta) {
    const std::string ruta = DeQt(QDir::cleanPath(carpeta));
    Intentar([&] { vinculos_.usuario().irA(ventana_.DirLista, ruta); });
    return ventana_.DirLista.Path() == ruta;
}

void DondeGuardar::enlazarNombre() {
    QLineEdit& nombre = selector_->nombre();
    vinculos_.enlazarCaja(nombre, ventana_.TxtLista);
    connect(&nombre, &QLineEdit::textChanged, this, [this](const QString& texto) { tomarNombre(texto); });
}

/// Takes what Qt writes into the field: the name of the file that was chosen in the list, or a completion.
void DondeGuardar::tomarNombre(const QString& texto) {
    QLineEdit& nombre = selector_->nombre();
    const QString anterior = AQt(ventana_.TxtLista.Text());
    if (texto == anterior) {
        return;
    }
    if (window()->focusWidget() == &nombre && !nombre.hasFocus()) {
        // The list of completions has taken the focus for a moment, and Qt writes a name over a typed path.
        nombre.setText(anterior);
        return;
    }
    Intentar([&] {
        for (int linea = 0; linea < ventana_.FilLista.ListCount() && !nombre.hasFocus(); ++linea) {
            if (ventana_.FilLista.List(linea) == DeQt(texto)) {
                vinculos_.usuario().elegir(ventana_.FilLista, linea);
                return;
            }
        }
        vinculos_.usuario().escribir(ventana_.TxtLista, DeQt(texto));
    });
}

QPushButton* DondeGuardar::crearAceptar() {
    auto* const boton = new QPushButton;
    boton->setAutoDefault(false); // Qt hands no ring out: the window does
    vinculos_.seguirEstado(*boton, ventana_.CmdAceptar);
    vinculos_.seguir(ventana_.CmdAceptar,
                     [this, boton] { boton->setText(AQt(ventana_.CmdAceptar.Caption())); });
    connect(boton, &QPushButton::clicked, this, [this] { aceptar(); });
    return boton;
}

void DondeGuardar::aceptar() {
    if (seguirRuta()) {
        Intentar([this] { vinculos_.usuario().clic(ventana_.CmdAceptar); });
    }
}

/// Goes where a path in the name leads, and leaves the bare name. False when there is nothing to save yet:
/// the path is that of a folder, or leads nowhere.
bool DondeGuardar::seguirRuta() {
    QString texto = AQt(ventana_.TxtLista.Text());
    if (texto == '~' || texto.startsWith(QStringLiteral("~/"))) {
        texto.replace(0, 1, QDir::homePath());
    }
    const QDir carpeta{AQt(ventana_.DirLista.Path())};
    const QFileInfo pedido{carpeta.absoluteFilePath(texto)};
    const auto ponerNombre = [this](const QString& nombre) {
        Intentar([&] { vinculos_.usuario().escribir(ventana_.TxtLista, DeQt(nombre)); });
    };
    if (!texto.isEmpty() && pedido.isDir()) {
        if (irA(pedido.filePath())) {
            ponerNombre({});
        }
        return false;
    }
    if (texto.contains('/')) {
        if (!irA(pedido.path())) {
            return false;
        }
        ponerNombre(pedido.fileName());
    }
    return true;
}

} // namespace

QWidget* DisponerCrearArchivo(FrmCrearArchivo& ventana, Vinculos& vinculos) {
    return new DondeGuardar{ventana, vinculos};
}

} // namespace varo
