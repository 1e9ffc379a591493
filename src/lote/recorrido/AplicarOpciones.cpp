#include "lote/recorrido/AplicarOpciones.h"

#include "basico/Texto.h"
#include "lote/recorrido/Estorbo.h"
#include "lote/recorrido/FuncionesEnLista.h"
#include "options/OpcionesPrograma.h"
#include "shell/VAROMAIN.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <initializer_list>
#include <map>
#include <optional>
#include <tuple>

namespace varo {

namespace {

struct OpcionConControl {
    const OpcionPedida* pedida;
    Control* control;
};

/// The groups of options in the order in which a person needs them.
enum class Turno {
    DatosDeCopa,
    Unidades,
    FormaDeCopa,
    Interruptores,
    Casillas,
    Opciones,
    ClasesDeFuncion, ///< on show only once OptFunc is on
    Campos,
    Listas
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

/// The state that a check is to take; nothing for a value that is no such state.
std::optional<int> ValorDeCasilla(const ValorPedido& valor) {
    if (const auto* const logico = std::get_if<bool>(&valor)) {
        return *logico ? 1 : 0;
    }
    const auto* const entero = std::get_if<std::int64_t>(&valor);
    if (entero == nullptr || *entero < 0 || *entero > 1) {
        return std::nullopt;
    }
    return static_cast<int>(*entero);
}

bool EsUnoDe(const Control& control, std::initializer_list<const Control*> controles) {
    return std::find(controles.begin(), controles.end(), &control) != controles.end();
}

class Aplicador {
public:
    explicit Aplicador(PuestoDeTrabajo& puesto)
        : puesto_{puesto}, opciones_{puesto.programa.tocar<OpcionesPrograma>()} {}

    void aplicar() {
        assert(opciones_.Visible());
        std::vector<OpcionConControl> pedidas;
        for (const auto& pedida : puesto_.trabajo.opciones) {
            pedidas.push_back({&pedida, &control(pedida)});
        }
        exigirUnaPorGrupo(pedidas);
        std::stable_sort(pedidas.begin(), pedidas.end(), [this](const auto& a, const auto& b) {
            return orden(*a.control) < orden(*b.control);
        });
        for (const auto& [pedida, control] : pedidas) {
            exigirOpcion(*pedida, *control);
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

    /// Two options of one group that are to be on: the one that is chosen last would win.
    void exigirUnaPorGrupo(const std::vector<OpcionConControl>& pedidas) const {
        std::map<const GrupoOpciones*, const OpcionPedida*> encendidas;
        for (const auto& [pedida, control] : pedidas) {
            if (control->tipo() != TipoControl::Opcion || pedida->valor != ValorPedido{true}) {
                continue;
            }
            const auto [otra, esPrimera] =
                encendidas.emplace(&static_cast<const Opcion*>(control)->grupo(), pedida);
            if (!esPrimera) {
                rechazarDosDeUnGrupo(*otra->second, *pedida);
            }
        }
    }

    [[noreturn]] void rechazarDosDeUnGrupo(const OpcionPedida& una, const OpcionPedida& otra) const {
        const auto& [primera, segunda] =
            std::minmax(una, otra, [](const auto& a, const auto& b) { return a.linea < b.linea; });
        puesto_.rechazar(segunda.lugar(), "está encendida y " + primera.lugar().clave +
                                              ", de su mismo grupo, también (línea " +
                                              std::to_string(primera.linea) + "): deje encendida una sola");
    }

    /// By group; inside it the fields of a sweep stand together, first, last, step.
    [[nodiscard]] std::tuple<Turno, int, std::string> orden(const Control& control) const {
        return {turno(control), control.Index(), control.Name()};
    }

    [[nodiscard]] Turno turno(const Control& control) const {
        const auto& o = opciones_;
        if (EsUnoDe(control, {&o.Opt4R, &o.Opt2D, &o.OptRM})) {
            return Turno::DatosDeCopa;
        }
        if (EsUnoDe(control, {&o.Optcirc, &o.OptElipse})) {
            return Turno::FormaDeCopa;
        }
        if (FichaDe(o, control) == 0) {
            return Turno::Unidades;
        }
        if (EsUnoDe(control, {&o.ChSupCopa, &o.ChAOIActivar, &o.ChIDPActivar, &o.ChDRActivar, &o.ChAPA})) {
            return Turno::Interruptores;
        }
        return turnoEnFamilia(control);
    }

    static Turno turnoEnFamilia(const Control& control) {
        switch (control.tipo()) {
        case TipoControl::Casilla:
            return Turno::Casillas;
        case TipoControl::Opcion:
            return control.Name() == "OptRichard" || control.Name() == "OptHiper" ? Turno::ClasesDeFuncion
                                                                                  : Turno::Opciones;
        case TipoControl::CajaTexto:
            return Turno::Campos;
        default:
            return Turno::Listas;
        }
    }

    void exigirOpcion(const OpcionPedida& pedida, const Control& control) const {
        switch (control.tipo()) {
        case TipoControl::Casilla:
        case TipoControl::Opcion:
        case TipoControl::CajaTexto:
        case TipoControl::Lista:
            return;
        default:
            puesto_.rechazar(pedida.lugar(), "no es una opción: es un control de otra clase (" +
                                                 std::string{NombreTipo(control.tipo())} + ")");
        }
    }

    /// An option that is to be off may be disabled: another one of its group turns it off.
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
            break; // refused before
        }
    }

    void marcar(const OpcionPedida& pedida, Casilla& casilla) {
        const auto valor = ValorDeCasilla(pedida.valor);
        if (!valor) {
            puesto_.rechazar(pedida.lugar(), "es una casilla: se espera 0, 1, false o true");
        }
        if (casilla.Value() != *valor) {
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
                           "el programa ha cambiado " + Cita(*texto) + " por " + Cita(caja.Text()));
        }
    }

    /// Leaves a field. One that takes the focus back, as after the message about its interval, is left by way
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
