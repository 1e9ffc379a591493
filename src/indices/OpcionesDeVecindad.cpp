#include "indices/OpcionesDeVecindad.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"

namespace varo {

namespace {

double Numero(const CajaTexto& caja) {
    try {
        return ANumero(caja.Text());
    } catch (ErrorEjecucion& error) {
        error.en("campo " + caja.nombreCompleto());
        throw;
    }
}

} // namespace

ReglaDeSeleccion ReglaElegida(const OpcionesPrograma& opciones, int familia) {
    if (opciones.OptBAF(familia).Value()) {
        return ReglaDeSeleccion::BAF;
    }
    if (opciones.OptNumFijo(familia).Value()) {
        return ReglaDeSeleccion::NumeroFijo;
    }
    return opciones.OptFunc(familia).Value() ? ReglaDeSeleccion::Funcion : ReglaDeSeleccion::Distancia;
}

Intervalo LeerIntervalo(const OpcionesPrograma& opciones, int i) {
    Intervalo intervalo;
    intervalo.Desde = Numero(opciones.TxtBAF1(i));
    intervalo.Hasta = Numero(opciones.TxtBAF2(i));
    intervalo.Paso = Numero(opciones.TxtBAF3(i));
    return SinDegenerar(intervalo);
}

Intervalo IntervaloDeSeleccion(const OpcionesPrograma& opciones, int familia) {
    const ReglaDeSeleccion regla = ReglaElegida(opciones, familia);
    if (regla == ReglaDeSeleccion::Funcion) {
        return {0, static_cast<double>(opciones.LstRich(familia).ListCount() - 1), 1};
    }
    const bool deNumero = opciones.OptBAF(familia).Value() || opciones.OptRadioFijo(familia).Value();
    return LeerIntervalo(opciones, 2 * familia + (deNumero ? 0 : 1));
}

double CuantosParametros(const OpcionesPrograma& opciones, int familia, const Intervalo& intervalo) {
    return ReglaElegida(opciones, familia) == ReglaDeSeleccion::Funcion
               ? opciones.LstRich(familia).ListCount()
               : CuantosCaben(intervalo);
}

int Pasadas(const Casilla& una, const Casilla& otra) {
    return una.Value() == 1 && otra.Value() == 1 ? 2 : 1;
}

} // namespace varo
