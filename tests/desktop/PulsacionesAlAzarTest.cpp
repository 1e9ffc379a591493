// Random presses over all windows: each comes to what it comes to without a screen, so no button is ever
// dead.
#include "desktop/Pantalla.h"
#include "formularios/Rejilla.h"
#include "formularios/Usuario.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <QApplication>
#include <QTest>

#include <rapidcheck/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace varo::prueba {

namespace {

/// A platform without a screen on which a person answers No where they can, and goes on; keeps what was
/// answered.
class ServiciosComplacientes : public Servicios {
public:
    std::string archivo;
    std::vector<std::string> respuestas; ///< the captions of the buttons pressed

    int mensaje(const std::string& /*texto*/, const std::string& /*titulo*/, int opciones) override {
        const bool conNo = (opciones & 15) == mensaje::siNo || (opciones & 15) == mensaje::siNoCancelar;
        respuestas.emplace_back(conNo ? "No" : "Aceptar");
        return conNo ? mensaje::respondeNo : mensaje::respondeAceptar;
    }
    void fallo(const ErrorEjecucion& /*error*/) override { respuestas.emplace_back("Aceptar"); }
    void elegirArchivo(DialogoAbrir& dialogo) override { dialogo.FileName = archivo; }
    std::optional<Fuente> elegirFuente(const Fuente& /*actual*/) override { return std::nullopt; }
    std::optional<Color> elegirColor(Color /*actual*/) override { return std::nullopt; }
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& /*ruta*/) override {
        RC_FAIL("nadie escribe un archivo aquí");
    }
};

/// What a control shows, in one text.
std::string Estado(const Control& control) {
    std::ostringstream estado;
    estado << control.nombreCompleto() << " " << control.Enabled() << control.Visible() << " "
           << control.Caption();
    if (const auto* const casilla = dynamic_cast<const Casilla*>(&control)) {
        estado << " " << casilla->Value();
    } else if (const auto* const opcion = dynamic_cast<const Opcion*>(&control)) {
        estado << " " << opcion->Value();
    } else if (const auto* const caja = dynamic_cast<const CajaTexto*>(&control)) {
        estado << " «" << caja->Text() << "»";
    } else if (const auto* const fichas = dynamic_cast<const Fichas*>(&control)) {
        estado << " " << fichas->Tab();
    } else if (const auto* const rejilla = dynamic_cast<const Rejilla*>(&control)) {
        estado << " " << rejilla->ColSel() << " " << rejilla->Cols() << "x" << rejilla->Rows();
    } else if (const auto* const lineas = dynamic_cast<const Lista*>(&control)) {
        for (int i = 0; i < lineas->ListCount(); ++i) {
            estado << " «" << lineas->List(i) << "»" << lineas->Selected(i);
        }
    }
    return estado.str();
}

/// All loaded windows with their controls, one a line.
std::string Estado(const Programa& programa) {
    std::map<std::string, std::string> ventanas;
    for (const Formulario* const ventana : programa.todas()) {
        std::string& estado = ventanas[ventana->nombre()];
        estado = ventana->nombre() + (ventana->Visible() ? " a la vista\n" : " oculta\n");
        for (const Control* const control : ventana->controles()) {
            estado += "  " + Estado(*control) + "\n";
        }
    }
    std::string todo = programa.activa() == nullptr ? "ninguna activa\n" : programa.activa()->nombre() + "\n";
    for (const auto& [nombre, estado] : ventanas) {
        todo += estado;
    }
    return todo;
}

/// What two states differ in.
std::string Diferencia(const std::string& esperado, const std::string& real) {
    std::istringstream uno{esperado};
    std::istringstream otro{real};
    std::string linea;
    std::string suya;
    while (std::getline(uno, linea) && std::getline(otro, suya)) {
        if (linea != suya) {
            return "se esperaba «" + linea + "» y hay «" + suya + "»";
        }
    }
    return esperado == real ? "" : "sobran o faltan ventanas";
}

/// One press: of a control of a window, or of a column of the grid.
struct Pulsacion {
    std::string ventana;
    std::string control;
    int columna = -1;
};

/// The program on its screen and the same program without one.
class Gemelos {
public:
    Gemelos() {
        real_.abrirArchivo();
        real_.aceptarHoja();
        programa_.alCargar = [this](Formulario& ventana) {
            if (auto* const crear = dynamic_cast<FrmCrearArchivo*>(&ventana)) {
                crear->DirLista.Path(real_.carpeta.ruta().string()); // where the desktop begins: by the plot
            }
        };
        servicios_.archivo = real_.carpeta.archivo("parcela.xls");
        programa_.tocar<VAROMAIN>().Show();
        usuario_.clic(programa_.tocar<VAROMAIN>().mnuAbrir);
        usuario_.escribir(static_cast<Desplegable&>(control("FrmSeleccion", "CboHoja")), "Parcela1$");
        usuario_.clic(control("FrmSeleccion", "CmdAceptar"));
        comparar("al empezar");
    }

    /// Goes on from the sheet to one of the windows behind it.
    void llegarA(int etapa) {
        const auto tipo = static_cast<std::size_t>(etapa % 3);
        const std::string dialogo = std::array{"SelCol4R", "SelCol2D", "SelColRM"}.at(tipo);
        if (etapa % 3 != 0) {
            pulsar({"VAROMAIN", "mnuOpciones"}, false);
            pulsar({"OpcionesPrograma", etapa % 3 == 1 ? "Opt2D" : "OptRM"}, false);
            pulsar({"OpcionesPrograma", "CmdAceptar"}, false);
        }
        pulsar({"VAROMAIN", "mnuMapa"}, false);
        if (etapa < 3) {
            return;
        }
        for (int papel = 0; papel <= 8 - std::array{1, 3, 4}.at(tipo); ++papel) {
            pulsar({"Hojadedatos", "MSFlexGrid1", papel + 1}, false);
            pulsar({dialogo, "Command1(" + std::to_string(papel) + ")"}, false);
        }
        for (const auto& [ventana, boton] :
             {std::pair{dialogo, "CmdDibujar"}, {"FrmFormato", "CmdAceptar"}, {"FrmMapa", "mnuIndices"}}) {
            if (etapa < 6 && ventana == "FrmMapa") {
                return;
            }
            if (buscar(ventana) != nullptr && !Usuario::impedimento(control(ventana, boton))) {
                pulsar({ventana, boton}, false);
            }
        }
    }

    /// All that a person could press now, in a fixed order.
    std::vector<Pulsacion> posibles() const {
        std::vector<Pulsacion> todas;
        for (const Formulario* const ventana : programa_.todas()) {
            for (const Control* const control : ventana->controles()) {
                anotar(*ventana, *control, todas);
            }
        }
        std::sort(todas.begin(), todas.end(), [](const Pulsacion& a, const Pulsacion& b) {
            return std::tie(a.ventana, a.control, a.columna) < std::tie(b.ventana, b.control, b.columna);
        });
        return todas;
    }

    void pulsar(const Pulsacion& pulsacion, bool conEspacio) {
        servicios_.respuestas.clear();
        mostrarSuFicha(pulsacion);
        Control& sinPantalla = control(pulsacion.ventana, pulsacion.control);
        const bool esMenu = sinPantalla.tipo() == TipoControl::Menu; // the press may end its window
        if (pulsacion.columna >= 0) {
            usuario_.seleccionarColumna(static_cast<Rejilla&>(sinPantalla), pulsacion.columna);
        } else {
            usuario_.clic(sinPantalla);
        }
        for (const std::string& boton : servicios_.respuestas) {
            real_.contestador.pulsar(QString::fromStdString(boton));
        }
        if (pulsacion.columna >= 0) {
            real_.clicColumna(pulsacion.columna);
        } else if (esMenu) {
            real_.clicMenu(pulsacion.ventana, pulsacion.control);
        } else if (conEspacio) {
            pulsarConEspacio(pulsacion);
        } else {
            real_.clic(pulsacion.ventana, pulsacion.control);
        }
        comparar(pulsacion.ventana + "." + pulsacion.control + " " + std::to_string(pulsacion.columna) +
                 (conEspacio ? " con la barra" : " con el ratón"));
    }

private:
    void anotar(const Formulario& ventana, const Control& control, std::vector<Pulsacion>& todas) const {
        // These close the file, write one, or open it.
        static const std::set<std::string> ajenas{"mnuAbrir", "mnuCerrar", "mnuSalir", "mnuArchivo"};
        const bool escribe = ventana.nombre() == "FrmCrearArchivo" && control.Name() == "CmdAceptar";
        if (Usuario::impedimento(control) || ajenas.contains(control.Name()) || escribe) {
            return;
        }
        switch (control.tipo()) {
        case TipoControl::Boton:
        case TipoControl::Casilla:
        case TipoControl::Opcion:
        case TipoControl::Menu:
            todas.push_back({ventana.nombre(), control.nombreCompleto()});
            break;
        case TipoControl::Rejilla:
            for (int columna = 0; columna < static_cast<const Rejilla&>(control).Cols() - 1; ++columna) {
                todas.push_back({ventana.nombre(), control.nombreCompleto(), columna});
            }
            break;
        default:
            break;
        }
    }

    void pulsarConEspacio(const Pulsacion& pulsacion) {
        QWidget& widget = real_.widget(pulsacion.ventana, pulsacion.control);
        real_.activar(pulsacion.ventana);
        widget.setFocus();
        Reposar();
        QTest::keyClick(&widget, Qt::Key_Space);
        Reposar();
    }

    /// A person shows the tab first.
    void mostrarSuFicha(const Pulsacion& pulsacion) {
        if (pulsacion.ventana != "OpcionesPrograma") {
            return;
        }
        auto& fichas = static_cast<Fichas&>(control("OpcionesPrograma", "SSTab1"));
        const Control* exterior = &control(pulsacion.ventana, pulsacion.control);
        while (exterior->contenedor != nullptr) {
            exterior = exterior->contenedor;
        }
        for (int ficha = 0; ficha < fichas.Tabs(); ++ficha) {
            const auto& contenido = fichas.contenido(ficha);
            if (ficha != fichas.Tab() &&
                std::find(contenido.begin(), contenido.end(), exterior) != contenido.end()) {
                usuario_.mostrarFicha(fichas, ficha);
                real_.clicFicha(ficha);
                return;
            }
        }
    }

    Formulario* buscar(const std::string& ventana) const {
        for (Formulario* const cargada : programa_.todas()) {
            if (cargada->nombre() == ventana) {
                return cargada;
            }
        }
        return nullptr;
    }

    Control& control(const std::string& ventana, const std::string& nombre) const {
        for (Control* const control : buscar(ventana)->controles()) {
            if (control->nombreCompleto() == nombre) {
                return *control;
            }
        }
        throw std::runtime_error{"no hay " + ventana + "." + nombre};
    }

    void comparar(const std::string& tras) const {
        const std::string diferencia = Diferencia(Estado(programa_), Estado(real_.programa));
        if (!diferencia.empty()) {
            RC_FAIL(tras + ": " + diferencia);
        }
        if (!real_.contestador.todoPedido()) {
            RC_FAIL(tras + ": falta una caja");
        }
        for (const Formulario* const ventana : real_.programa.todas()) {
            for (const Control* const control : ventana->controles()) {
                const QWidget* const widget = real_.escritorio.widgetDe(*control);
                if (widget != nullptr && (widget->isEnabledTo(widget->parentWidget()) != control->Enabled() ||
                                          widget->isHidden() == control->Visible())) {
                    RC_FAIL(tras + ": " + control->nombreCompleto() + " no se ve como es");
                }
            }
        }
    }

    Puesto real_;
    ServiciosComplacientes servicios_;
    Programa programa_{servicios_};
    Usuario usuario_{programa_};
};

} // namespace

RC_GTEST_PROP(PulsacionesAlAzar, LaPantallaHaceLoMismoQueElModelo, ()) {
    constexpr int etapas = 9;
    constexpr int cuantas = 24;
    const int etapa = *rc::gen::inRange(0, etapas).as("etapa");
    const auto presiones = *rc::gen::resize(cuantas, rc::gen::arbitrary<std::vector<std::uint16_t>>());
    Gemelos gemelos;
    gemelos.llegarA(etapa);
    for (const std::uint16_t presion : presiones) {
        const std::vector<Pulsacion> posibles = gemelos.posibles();
        if (posibles.empty()) {
            return;
        }
        gemelos.pulsar(posibles[presion % posibles.size()], presion % 3 == 0);
    }
}

} // namespace varo::prueba
