// The options dialog under hands that click and type without plan: it never crashes, never has two options of
// a group on, never leaves a family half enabled.
#include "formularios/Usuario.h"
#include "options/Familias.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <set>

namespace varo::prueba {

namespace {

/// A platform on which a person accepts whatever is shown.
class ServiciosPacientes : public Servicios {
public:
    std::vector<std::string> mensajes;
    std::vector<int> fallos;

    int mensaje(const std::string& texto, const std::string& /*titulo*/, int opciones) override {
        mensajes.push_back(texto);
        RC_ASSERT(opciones == 48);
        return mensaje::respondeAceptar;
    }
    void fallo(const ErrorEjecucion& error) override { fallos.push_back(error.numero()); }
    void elegirArchivo(DialogoAbrir& /*dialogo*/) override { RC_FAIL("nadie abre un archivo aquí"); }
    std::optional<Fuente> elegirFuente(const Fuente& /*actual*/) override { return std::nullopt; }
    std::optional<Color> elegirColor(Color /*actual*/) override { return std::nullopt; }
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& /*ruta*/) override {
        RC_FAIL("nadie escribe un archivo aquí");
    }
};

/// One thing that a person tries: which control, and what with it.
struct Intento {
    int control = 0;
    std::string texto;
    int numero = 0;              ///< which line, or which tab
    bool porOtraVentana = false; ///< before, the person goes to the main window and comes back
    bool porElCierre = false;    ///< before, the person closes the dialog with its close box
};

void showValue(const Intento& intento, std::ostream& salida) {
    salida << intento.control << " «" << intento.texto << "» " << intento.numero
           << (intento.porOtraVentana ? " <-" : "") << (intento.porElCierre ? " x" : "");
}

rc::Gen<Intento> IntentoAlAzar(int controles) {
    const auto texto = rc::gen::element<std::string>("", "0", "0,00", "1", "2", "2,00", "6", "1,5", "0,5",
                                                     "-1", "1.5", "abc", "-", "1E300", "-1E308", "1E308",
                                                     "1,004", "0,00004", " 3 ", "ñ", "1E400");
    return rc::gen::build<Intento>(
        rc::gen::set(&Intento::control, rc::gen::inRange(0, controles)), rc::gen::set(&Intento::texto, texto),
        rc::gen::set(&Intento::numero, rc::gen::inRange(0, 7)),
        rc::gen::set(&Intento::porOtraVentana, rc::gen::weightedElement<bool>({{9, false}, {1, true}})),
        rc::gen::set(&Intento::porElCierre, rc::gen::weightedElement<bool>({{19, false}, {1, true}})));
}

class Manos {
public:
    Manos() {
        principal.Show();
        opciones.Show();
        for (Control* control : opciones.controles()) {
            if (control->tipo() != TipoControl::Etiqueta && control->tipo() != TipoControl::Marco &&
                control->tipo() != TipoControl::Imagen) {
                controles.push_back(control);
            }
        }
    }

    /// True when a person could do it.
    bool intentar(const Intento& intento) {
        if (intento.porOtraVentana) {
            usuario.activar(principal);
            usuario.activar(opciones);
        }
        if (intento.porElCierre) {
            usuario.cerrar(opciones);
            opciones.Show();
        }
        Control& control = *controles[static_cast<std::size_t>(intento.control)];
        const bool posible = !Usuario::impedimento(control);
        try {
            hacer(control, intento);
        } catch (const ActoImposible&) {
            RC_ASSERT(!posible);
        }
        if (!opciones.Visible()) { // "Aceptar" or "Cancelar": the person opens the dialog again
            opciones.Show();
        }
        return posible;
    }

    ServiciosPacientes servicios;
    Programa programa{servicios};
    Usuario usuario{programa};
    VAROMAIN& principal = programa.tocar<VAROMAIN>();
    OpcionesPrograma& opciones = programa.tocar<OpcionesPrograma>();
    std::vector<Control*> controles;

private:
    void hacer(Control& control, const Intento& intento) {
        if (control.tipo() == TipoControl::CajaTexto) {
            usuario.escribir(static_cast<CajaTexto&>(control), intento.texto);
        } else if (control.tipo() == TipoControl::Fichas) {
            usuario.mostrarFicha(static_cast<Fichas&>(control), intento.numero);
        } else if (control.tipo() == TipoControl::Lista && static_cast<Lista&>(control).ListCount() > 0) {
            auto& lista = static_cast<Lista&>(control);
            const int linea = intento.numero % lista.ListCount();
            usuario.elegir(lista, linea, !lista.Selected(linea));
        } else {
            usuario.clic(control);
        }
    }
};

void ComprobarGrupos(const OpcionesPrograma& opciones) {
    for (const Control* control : opciones.controles()) {
        if (control->tipo() == TipoControl::Opcion) {
            const GrupoOpciones& grupo = static_cast<const Opcion*>(control)->grupo();
            const auto encendidas =
                std::ranges::count_if(grupo, [](const Opcion* opcion) { return opcion->Value(); });
            RC_ASSERT(encendidas == (control == &opciones.OptHjHi ? 0 : 1));
        }
    }
}

void ComprobarFamilias(const OpcionesPrograma& opciones) {
    for (const Familia& familia : familias) {
        const Casilla& interruptor = InterruptorDe(opciones, familia);
        const bool encendida = interruptor.Value() == 1;
        for (const Control* control : ControlesDe(opciones, familia)) {
            RC_ASSERT(control->Enabled() == encendida);
        }
        for (const Control* control : opciones.controles()) {
            const bool decorado = control->tipo() == TipoControl::Marco ||
                                  control->tipo() == TipoControl::Imagen ||
                                  control->tipo() == TipoControl::Etiqueta;
            if (!encendida && !decorado && control != &interruptor &&
                EstaEnFicha(opciones, *control, familia.ficha)) {
                RC_ASSERT(Usuario::impedimento(*control));
            }
        }
    }
}

void ComprobarImagenes(const OpcionesPrograma& opciones) {
    const bool conAOI = opciones.ChAOIActivar.Value() == 1;
    RC_ASSERT(opciones.ImgRm.Visible() == conAOI);
    RC_ASSERT(opciones.LbRm.Visible() == conAOI);
    const bool conDR = opciones.ChDRActivar.Value() == 1;
    RC_ASSERT(opciones.ImgHiper2.Visible() == (conDR && opciones.OptDistHiper.Value()));
    RC_ASSERT(opciones.ImgExp2.Visible() == (conDR && opciones.OptDistExp.Value()));
}

void ComprobarSeleccion(const OpcionesPrograma& opciones, int i) {
    const bool encendida = (i == 0 ? opciones.ChIDPActivar : opciones.ChDRActivar).Value() == 1;
    const auto usable = [](const Control& control) { return !Usuario::impedimento(control); };
    const bool porFuncion = encendida && opciones.OptFunc(i).Value();
    const bool porPies = encendida && opciones.OptNumFijo(i).Value();
    for (const auto* campos : {&opciones.TxtBAF1, &opciones.TxtBAF2, &opciones.TxtBAF3}) {
        RC_ASSERT(usable((*campos)(2 * i)) == (encendida && !porFuncion && !porPies));
        RC_ASSERT(usable((*campos)(2 * i + 1)) == porPies);
    }
    RC_ASSERT(usable(opciones.LstRich(i)) == porFuncion);
    RC_ASSERT(usable(opciones.TxtRich(3 * i)) == (porFuncion && opciones.OptRichard(i).Value()));
    RC_ASSERT(usable(opciones.TxtHIP(7 * i)) == (porFuncion && opciones.OptHiper(i).Value()));
}

void ComprobarListas(const OpcionesPrograma& opciones) {
    for (const Lista* lista : std::initializer_list<const Lista*>{
             &opciones.LstAOI, &opciones.LstDist, &opciones.LstRich(0), &opciones.LstRich(1)}) {
        std::set<std::string> distintas;
        for (int i = 0; i < lista->ListCount(); ++i) {
            distintas.insert(lista->List(i));
        }
        RC_ASSERT(static_cast<int>(distintas.size()) == lista->ListCount());
    }
}

} // namespace

RC_GTEST_PROP(OpcionesPrograma, CualquierSucesionDeClicsYTextosDejaElDialogoEntero, ()) {
    Manos manos;
    const int controles = static_cast<int>(manos.controles.size());
    // Most families have to be on for the rest to be within reach.
    const auto apagadas =
        *rc::gen::container<std::vector<bool>>(5, rc::gen::weightedElement<bool>({{3, false}, {1, true}}));
    for (std::size_t i = 0; i < familias.size(); ++i) {
        if (!apagadas[i]) {
            manos.usuario.clic(InterruptorDe(manos.opciones, familias[i]));
        }
    }
    const auto intentos =
        *rc::gen::resize(200, rc::gen::container<std::vector<Intento>>(IntentoAlAzar(controles)));
    int hechos = 0;
    for (const Intento& intento : intentos) {
        hechos += manos.intentar(intento) ? 1 : 0;
        ComprobarGrupos(manos.opciones);
        ComprobarFamilias(manos.opciones);
        ComprobarImagenes(manos.opciones);
        ComprobarSeleccion(manos.opciones, 0);
        ComprobarSeleccion(manos.opciones, 1);
        ComprobarListas(manos.opciones);
    }
    for (const int numero : manos.servicios.fallos) {
        RC_ASSERT(numero == fallo::desbordamiento || numero == fallo::tiposDistintos ||
                  numero == fallo::divisionPorCero);
    }
    RC_CLASSIFY(hechos > 20);
    RC_CLASSIFY(!manos.servicios.mensajes.empty());
    RC_CLASSIFY(!manos.servicios.fallos.empty());
}

} // namespace varo::prueba
