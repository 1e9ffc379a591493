#include "lote/recorrido/FuncionesEnLista.h"

#include "options/OpcionesPrograma.h"

#include <algorithm>
#include <vector>

namespace varo {

namespace {

/// How a function gets into its list: the class to choose, the fields to fill, the button to press.
struct Ficha {
    Opcion* clase = nullptr;
    std::vector<std::string> parametros;
    Matriz<CajaTexto>* campos = nullptr;
    int primero = 0; ///< the member of `campos` for the first parameter
    Boton* anadir = nullptr;
    bool conTipo = false; ///< `tipo` is a parameter too; it chooses the class
};

const std::vector<std::string> deDistancia{"a", "b", "c", "d", "e"};
const std::vector<std::string> deRichards{"A", "k", "m"};
const std::vector<std::string> deHiperbola{"A", "k", "a", "b", "c", "d", "e"};

class Anotador {
public:
    Anotador(PuestoDeTrabajo& puesto, const FuncionPedida& funcion, const Lugar& lugar)
        : puesto_{puesto}, funcion_{funcion}, lugar_{lugar}, opciones_{
                                                                 puesto.programa.tocar<OpcionesPrograma>()} {}

    void anadir(const Lista& lista) {
        const Ficha ficha = fichaDe(lista);
        exigirParametros(ficha);
        const Lugar lugar = lugar_.con(textoDeLaFuncion(ficha));
        if (ficha.clase != nullptr && !ficha.clase->Value()) {
            puesto_.hacer(lugar, [&] { puesto_.usuario.clic(*ficha.clase); });
        }
        int campo = ficha.primero;
        for (const auto& parametro : ficha.parametros) {
            teclear((*ficha.campos)(campo), parametro);
            ++campo;
        }
        const int lineas = lista.ListCount();
        puesto_.hacer(lugar, [&] { puesto_.usuario.clic(*ficha.anadir); });
        if (lista.ListCount() != lineas + 1) {
            puesto_.rechazar(lugar, "la lista no admite la función");
        }
    }

private:
    void teclear(CajaTexto& campo, const std::string& parametro) {
        const std::string& texto = funcion_.find(parametro)->second;
        const Lugar lugar{lugar_.clave + ": " + parametro, lugar_.linea, texto};
        puesto_.hacer(lugar, [&] {
            puesto_.usuario.escribir(campo, texto);
            puesto_.usuario.dejarFoco();
        });
    }

    /// "tipo = HIP; a = 1; b = 2,5": the parameters in the order of their fields.
    [[nodiscard]] std::string textoDeLaFuncion(const Ficha& ficha) const {
        std::string texto = ficha.conTipo ? "tipo = " + funcion_.find("tipo")->second : "";
        for (const auto& parametro : ficha.parametros) {
            texto += (texto.empty() ? "" : "; ") + parametro + " = " + funcion_.find(parametro)->second;
        }
        return texto;
    }

    Ficha fichaDe(const Lista& lista) {
        if (&lista == &opciones_.LstAOI) {
            return {nullptr, deDistancia, &opciones_.TxtRm, 0, &opciones_.CmdAñadir};
        }
        if (&lista == &opciones_.LstDist) {
            return {claseDeDistancia(), deDistancia, &opciones_.TxtEXP, 0, &opciones_.CmdAñadirDist, true};
        }
        const int i = lista.Index();
        Boton& anadir = opciones_.CmdAñadirRich(i);
        if (funcion_.contains("m")) {
            return {&opciones_.OptRichard(i), deRichards, &opciones_.TxtRich, 3 * i, &anadir};
        }
        return {&opciones_.OptHiper(i), deHiperbola, &opciones_.TxtHIP, 7 * i, &anadir};
    }

    Opcion* claseDeDistancia() {
        const auto tipo = funcion_.find("tipo");
        if (tipo != funcion_.end() && tipo->second == "HIP") {
            return &opciones_.OptDistHiper;
        }
        if (tipo != funcion_.end() && tipo->second == "EXP") {
            return &opciones_.OptDistExp;
        }
        puesto_.rechazar(lugar_, "a la función le falta tipo = \"HIP\" o tipo = \"EXP\"");
    }

    void exigirParametros(const Ficha& ficha) const {
        for (const auto& parametro : ficha.parametros) {
            if (!funcion_.contains(parametro)) {
                puesto_.rechazar(lugar_, "a la función le falta el parámetro " + parametro);
            }
        }
        for (const auto& [nombre, texto] : funcion_) {
            const auto& conocidos = ficha.parametros;
            const bool esTipo = ficha.conTipo && nombre == "tipo";
            if (!esTipo && std::find(conocidos.begin(), conocidos.end(), nombre) == conocidos.end()) {
                puesto_.rechazar(lugar_, "la función no tiene ningún parámetro " + nombre);
            }
        }
    }

    PuestoDeTrabajo& puesto_;
    const FuncionPedida& funcion_;
    const Lugar& lugar_;
    OpcionesPrograma& opciones_;
};

} // namespace

void AnadirFuncion(PuestoDeTrabajo& puesto, const Lista& lista, const FuncionPedida& funcion,
                   const Lugar& lugar) {
    Anotador{puesto, funcion, lugar}.anadir(lista);
}

} // namespace varo
