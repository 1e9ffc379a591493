#include "lote/recorrido/AplicarOpciones.h"

#include "basico/Texto.h"
#include "lote/recorrido/Estorbo.h"
#include "lote/recorrido/FuncionesEnLista.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <tuple>

namespace varo {

namespace {

struct OpcionConControl {
    const OpcionPedida* pedida;
    Control* control;
};

/// "TxtBAF1(6)" is member 6 of TxtBAF1; a name that is not written so is a name alone.
Identidad IdentidadDe(const std::string& nombre) {
    const auto abre = nombre.find('(');
    if (abre == std::string::npos || nombre.back() != ')') {
        return nombre;
    }
    const std::string indice = nombre.substr(abre + 1, nombre.size() - abre - 2);
    const bool esIndice = indice.size() == 1 || (indice.size() == 2 && indice.front() != '0');
    int miembro = 0;
    const char* const fin = indice.data() + indice.size();
    if (!esIndice || std::from_chars(indice.data(), fin, miembro).ptr != fin) {
        return nombre;
    }
    return {nombre.substr(0, abre), miembro};
}

bool EsUnoDe(const Control& control, std::initializer_list<const Control*> controles) {
    return std::find(controles.begin(), controles.end(), &control) != controles.end();
}

class Aplicador {
public:
    explicit Aplicador(PuestoDeTrabajo& puesto)
        : puesto_{puesto}, opciones_{puesto.programa.tocar<OpcionesPrograma>()} {}

    void aplicar() {
        std::vector<OpcionConControl> pedidas;
        for (const auto& pedida : puesto_.trabajo.opciones) {
            pedidas.push_back({&pedida, &control(pedida)});
        }
        std::stable_sort(pedidas.begin(), pedidas.end(), [this](const auto& a, const auto& b) {
            return orden(*a.control) < orden(*b.control);
        });
        for (const auto& [pedida, control] : pedidas) {
            exigirSinEstorbo(*pedida, *control);
            aplicar(*pedida, *control);
        }
        for (const auto& [pedida, control] : pedidas) {
            comprobarApagada(*pedida, *control);
        }
    }

private:
    Control& control(const OpcionPedida& pedida) const {
        const Identidad identidad = IdentidadDe(pedida.control);
        if (Control* const encontrado = opciones_.buscarControl(identidad.nombre, identidad.indice)) {
            return *encontrado;
        }
        for (const Control* parecido : opciones_.controles()) {
            if (MismoNombre(parecido->nombreCompleto(), pedida.control)) {
                puesto_.rechazar(pedida.lugar(), "clave desconocida; ¿" + parecido->nombreCompleto() + "?");
            }
        }
        puesto_.rechazar(pedida.lugar(), "clave desconocida: no hay ningún control con ese nombre");
    }

    /// The turn of a control: its group, and inside it the members of a sweep together, first, last, step.
    [[nodiscard]] std::tuple<int, int, std::string> orden(const Control& control) const {
        return {turno(control), control.Index(), control.Name()};
    }

    [[nodiscard]] int turno(const Control& control) const {
        const auto& datos = opciones_;
        if (EsUnoDe(control, {&datos.Opt4R, &datos.Opt2D, &datos.OptRM})) {
            return 0;
        }
        if (EsUnoDe(control, {&datos.Optcirc, &datos.OptElipse})) {
            return 2;
        }
        if (FichaDe(datos, control) == 0) {
            return 1;
        }
        if (EsUnoDe(control, {&datos.ChSupCopa, &datos.ChAOIActivar, &datos.ChIDPActivar, &datos.ChDRActivar,
                              &datos.ChAPA})) {
            return 3;
        }
        return turnoEnFamilia(control);
    }

    static int turnoEnFamilia(const Control& control) {
        switch (control.tipo()) {
        case TipoControl::Casilla:
            return 4;
        case TipoControl::Opcion: // the class of a function shows only once OptFunc is on
            return control.Name() == "OptRichard" || control.Name() == "OptHiper" ? 6 : 5;
        case TipoControl::CajaTexto:
            return 7;
        default:
            return 8;
        }
    }

    /// An option that is to be off needs no hand of its own: another one of its group turns it off.
    void exigirSinEstorbo(const OpcionPedida& pedida, const Control& control) const {
        const bool sinTocar = control.tipo() == TipoControl::Opcion && pedida.valor == ValorPedido{false};
        const Casilla* const interruptor = InterruptorDe(opciones_, control);
        if (sinTocar && (interruptor == nullptr || interruptor->Value() == 1)) {
            return;
        }
        if (const auto estorbo = Estorbo(opciones_, control)) {
            puesto_.rechazar(pedida.lugar(), *estorbo);
        }
    }

    void aplicar(const OpcionPedida& pedida, Control& control) {
        switch (control.tipo()) {
        case TipoControl::Casilla:
            marcar(pedida, static_cast<Casilla&>(control));
            break;
        case TipoControl::Opcion:
            elegir(pedida, static_cast<Opcion&>(control));
            break;
        case TipoControl::CajaTexto:
            teclear(pedida, static_cast<CajaTexto&>(control));
            break;
        case TipoControl::Lista:
            llenar(pedida, static_cast<Lista&>(control));
            break;
        default:
            puesto_.rechazar(pedida.lugar(), "no es una opción: es un control de otra clase (" +
                                                 std::string{NombreTipo(control.tipo())} + ")");
        }
    }

    void marcar(const OpcionPedida& pedida, Casilla& casilla) {
        int valor = -1;
        if (const auto* const logico = std::get_if<bool>(&pedida.valor)) {
            valor = *logico ? 1 : 0;
        } else if (const auto* const entero = std::get_if<std::int64_t>(&pedida.valor)) {
            valor = *entero == 0 || *entero == 1 ? static_cast<int>(*entero) : -1;
        }
        if (valor < 0) {
            puesto_.rechazar(pedida.lugar(), "es una casilla: se espera 0, 1, false o true");
        }
        if (casilla.Value() != valor) {
            puesto_.hacer(pedida.lugar(), [&] { puesto_.usuario.clic(casilla); });
        }
    }

    void elegir(const OpcionPedida& pedida, Opcion& opcion) {
        const auto* const valor = std::get_if<bool>(&pedida.valor);
        if (valor == nullptr) {
            puesto_.rechazar(pedida.lugar(), "es una opción: se espera true o false");
        }
        if (*valor && !opcion.Value()) {
            puesto_.hacer(pedida.lugar(), [&] { puesto_.usuario.clic(opcion); });
        }
    }

    void teclear(const OpcionPedida& pedida, CajaTexto& caja) {
        const auto texto = TextoTecleado(pedida.valor);
        if (!texto) {
            puesto_.rechazar(pedida.lugar(), "es un campo de texto: se espera un número o un texto");
        }
        puesto_.hacer(pedida.lugar().con(*texto), [&] {
            puesto_.usuario.escribir(caja, *texto);
            dejar(caja);
        });
        if (caja.Text() != *texto) {
            puesto_.avisar(pedida.lugar(),
                           "el programa ha cambiado «" + *texto + "» por «" + caja.Text() + "»");
        }
    }

    /// A field that takes the focus back, as after the message about its interval, lets a person go by way
    /// of another window.
    void dejar(const CajaTexto& caja) {
        puesto_.usuario.dejarFoco();
        if (puesto_.programa.foco() == &caja) {
            puesto_.usuario.activar(puesto_.programa.tocar<VAROMAIN>());
            puesto_.usuario.activar(opciones_);
        }
    }

    void llenar(const OpcionPedida& pedida, Lista& lista) {
        const auto* const funciones = std::get_if<std::vector<FuncionPedida>>(&pedida.valor);
        if (funciones == nullptr) {
            puesto_.rechazar(pedida.lugar(), "es una lista: se espera una lista de tablas");
        }
        for (const auto& funcion : *funciones) {
            AnadirFuncion(puesto_, lista, funcion, pedida.lugar());
        }
    }

    void comprobarApagada(const OpcionPedida& pedida, const Control& control) const {
        if (control.tipo() != TipoControl::Opcion || pedida.valor != ValorPedido{false}) {
            return;
        }
        const auto& opcion = static_cast<const Opcion&>(control);
        if (!opcion.Value()) {
            return;
        }
        std::string otras;
        for (const Opcion* otra : opcion.grupo()) {
            if (otra != &opcion) {
                otras += (otras.empty() ? "" : " o ") + otra->nombreCompleto();
            }
        }
        puesto_.rechazar(pedida.lugar(), "se apaga encendiendo otra de su grupo: " + otras);
    }

    PuestoDeTrabajo& puesto_;
    OpcionesPrograma& opciones_;
};

} // namespace

void AplicarOpciones(PuestoDeTrabajo& puesto) {
    Aplicador{puesto}.aplicar();
}

} // namespace varo
