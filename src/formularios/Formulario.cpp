#include "formularios/Formulario.h"

#include "formularios/Ventanas.h"

#include <algorithm>
#include <iterator>

namespace varo {

Formulario::Formulario(Ventanas& ventanas, std::string nombre, TipoVentana tipo, std::string leyenda)
    : Caption{*this, std::move(leyenda)}, ventanas_{ventanas}, nombre_{std::move(nombre)}, tipo_{tipo} {}

void Formulario::Show() {
    ventanas_.mostrar(*this);
}

void Formulario::Hide() {
    ventanas_.ocultar(*this);
}

void Formulario::pulsarCierre() {
    ventanas_.descargar(*this);
}

void Formulario::darFoco(Control& control) {
    ventanas_.darFoco(control);
}

void Formulario::anunciar(Control& control) {
    if (anunciada_ && ventanas_.alCrearControl) {
        ventanas_.alCrearControl(control);
    }
}

void Formulario::retirar(Control& control) {
    if (anunciada_ && ventanas_.alQuitarControl) {
        ventanas_.alQuitarControl(control);
    }
    ventanas_.olvidarFoco(control);
    const auto lugar = std::find(controles_.rbegin(), controles_.rend(), &control);
    controles_.erase(std::next(lugar).base());
}

Control* Formulario::buscarControl(const std::string& nombre, int indice) const {
    const auto encontrado = std::find_if(controles_.begin(), controles_.end(), [&](const Control* control) {
        return control->Index() == indice && control->Name() == nombre;
    });
    return encontrado == controles_.end() ? nullptr : *encontrado;
}

Control& Formulario::control(const std::string& nombre, int indice) const {
    Control* const encontrado = buscarControl(nombre, indice);
    if (encontrado == nullptr) {
        FaltaMiembro(nombre_ + "." + nombre, indice);
    }
    return *encontrado;
}

void Formulario::redimensionar(float ancho, float alto) {
    Width = ancho;
    Height = alto;
    Form_Resize();
}

} // namespace varo
