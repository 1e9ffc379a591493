// The choosers of the format window.
#include "formularios/Reloj.h"
#include "map/FrmFormato.h"
#include "map/ValoresDeFormato.h"
#include "shell/Programa.h"

#include <utility>

namespace varo {

namespace {

/// True at the first opening of a kind of chooser.
bool PrimeraVez(bool& pedidas) {
    return !std::exchange(pedidas, true);
}

} // namespace

Fuente FrmFormato::preguntarFuente(Desplegable& control) {
    const auto reloj = PonerReloj(*this);
    const Fuente actual = control.Font;
    Fuente elegida = programa_.servicios().elegirFuente(actual).value_or(actual);
    control.Font = elegida;
    control.Text = elegida.nombre;
    return elegida;
}

FrmFormato::ColorElegido FrmFormato::preguntarColor(Desplegable& control) {
    const auto reloj = PonerReloj(*this);
    const Color actual = control.BackColor;
    const auto elegido = programa_.servicios().elegirColor(actual);
    control.BackColor = elegido.value_or(actual);
    return {control.BackColor, elegido.has_value()};
}

void FrmFormato::CboTitFont_DropDown() {
    RasgosDelTitulo(programa_.sesion).guardar(preguntarFuente(CboTitFont));
}

void FrmFormato::CboTitColor_DropDown() {
    programa_.sesion.TituloColor = TextoDeColor(preguntarColor(CboTitColor).color);
}

void FrmFormato::CboTitBackColor_DropDown() {
    programa_.sesion.TituloColorFondo = TextoDeColor(preguntarColor(CboTitBackColor).color);
}

void FrmFormato::CboCodFont_DropDown(int Index) {
    auto& sesion = programa_.sesion;
    if (PrimeraVez(fuentesPedidas_)) {
        VaciarFuentesDeCodigos(sesion);
    }
    RasgosDelCodigo(sesion, Index).guardar(preguntarFuente(CboCodFont(Index)));
}

void FrmFormato::CboCodColor_DropDown(int Index) {
    auto& sesion = programa_.sesion;
    if (PrimeraVez(coloresPedidos_)) {
        VaciarColoresDeCodigos(sesion);
    }
    sesion.CodColor(Index) = TextoDeColor(preguntarColor(CboCodColor(Index)).color);
}

void FrmFormato::CboCodBackColor_DropDown(int Index) {
    auto& sesion = programa_.sesion;
    if (PrimeraVez(fondosPedidos_)) {
        VaciarFondosDeCodigos(sesion);
    }
    const ColorElegido elegido = preguntarColor(CboCodBackColor(Index));
    sesion.CodColorFondo(Index) = TextoDeColor(elegido.color);
    if (elegido.porPersona) {
        ElegirFondo(sesion, Index);
    }
}

} // namespace varo
