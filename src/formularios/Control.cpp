#include "formularios/Control.h"

#include "basico/ErrorEjecucion.h"
#include "formularios/Formulario.h"
#include "formularios/MedidaDeTexto.h"

#include <array>

namespace varo {

std::string_view NombreTipo(TipoControl tipo) {
    static constexpr std::array<std::string_view, 12> nombres{"Etiqueta", "CajaTexto",   "Casilla", "Opcion",
                                                              "Lista",    "Desplegable", "Boton",   "Marco",
                                                              "Imagen",   "Menu",        "Rejilla", "Fichas"};
    return nombres[static_cast<std::size_t>(tipo)];
}

std::string Identidad::completa() const {
    return indice == sinIndice ? nombre : nombre + "(" + std::to_string(indice) + ")";
}

void FaltaMiembro(const std::string& nombre, int indice) {
    throw ErrorEjecucion{340, "No existe el control " + Identidad{nombre, indice}.completa()};
}

void SobraMiembro(const std::string& nombre, int indice) {
    throw ErrorEjecucion{360, "Ya existe el control " + Identidad{nombre, indice}.completa()};
}

void AnunciarMiembro(Control& miembro) {
    miembro.ventana().anunciar(miembro);
}

void RetirarMiembro(Control& miembro) {
    miembro.ventana().retirar(miembro);
}

Control::Control(Formulario& ventana, Identidad identidad, TipoControl tipo, std::string leyenda)
    : Caption{*this, std::move(leyenda)}, ventana_{ventana}, identidad_{std::move(identidad)}, tipo_{tipo} {
    ventana_.registrar(*this);
}

void Control::SetFocus() {
    ventana_.darFoco(*this);
}

void Etiqueta::ajustar() {
    const MedidaDeTexto medida = MedirTexto(Caption(), Font());
    Width = ventana().enUnidades(medida.ancho);
    Height = ventana().enUnidades(medida.alto);
}

void Etiqueta::alCambiar(const void* propiedad) {
    if (AutoSize() && (propiedad == &Caption || propiedad == &Font || propiedad == &AutoSize)) {
        ajustar();
    }
    avisar();
}

void CajaTexto::alCambiar(const void* propiedad) {
    avisar();
    if (propiedad == &Text) {
        Lanzar(Change);
    }
}

void Casilla::alCambiar(const void* propiedad) {
    avisar();
    if (propiedad == &Value) {
        Lanzar(Click);
    }
}

Opcion::Opcion(Formulario& ventana, Identidad identidad, std::string leyenda, GrupoOpciones& grupo,
               bool valor)
    : Control{ventana, std::move(identidad), TipoControl::Opcion, std::move(leyenda)}, Value{*this, valor},
      grupo_{grupo} {
    grupo_.push_back(this);
}

void Opcion::alCambiar(const void* propiedad) {
    const bool encendida = propiedad == &Value && Value();
    if (encendida) {
        for (Opcion* otra : grupo_) {
            if (otra != this) {
                otra->Value = false;
            }
        }
    }
    avisar();
    if (encendida) {
        Lanzar(Click);
    }
}

std::size_t ConLineas::comprobada(int linea) const {
    if (linea < 0 || linea >= ListCount()) {
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
    return static_cast<std::size_t>(linea);
}

void ConLineas::AddItem(std::string texto) {
    lineas_.push_back({std::move(texto), false});
    avisar();
}

void ConLineas::RemoveItem(int linea) {
    lineas_.erase(lineas_.begin() + static_cast<std::ptrdiff_t>(comprobada(linea)));
    avisar();
}

void ConLineas::Clear() {
    lineas_.clear();
    avisar();
}

void ConLineas::lineas(const std::vector<std::string>& textos) {
    lineas_.clear();
    lineas_.reserve(textos.size());
    for (const auto& texto : textos) {
        lineas_.push_back({texto, false});
    }
    avisar();
}

void Lista::Selected(int linea, bool seleccionada) {
    Renglon& elegida = lineas_[comprobada(linea)];
    if (seleccionada && !variasALaVez_) {
        for (Renglon& otra : lineas_) {
            otra.seleccionada = false;
        }
    }
    elegida.seleccionada = seleccionada;
    avisar();
}

void Desplegable::alCambiar(const void* propiedad) {
    avisar();
    if (propiedad == &Text) {
        Lanzar(Change);
    }
}

} // namespace varo
