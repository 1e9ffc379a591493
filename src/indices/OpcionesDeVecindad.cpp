#include "indices/OpcionesDeVecindad.h"

#include "basico/EnLugar.h"
#include "basico/Numeros.h"

namespace varo {

namespace {

double Numero(const CajaTexto& caja) {
    return EnLugar([&] { return "campo " + caja.nombreCompleto(); }, [&] { return ANumero(caja.Text()); });
}

} // namespace

ReglaDeSeleccion ReglaElegida(const OpcionesPrograma& opciones, FamiliaConSeleccion familia) {
    if (opciones.OptBAF(familia).Value()) {
        return ReglaDeSeleccion::BAF;
    }
    if (opciones.OptNumFijo(familia).Value()) {
        return ReglaDeSeleccion::NumeroFijo;
    }
    return opciones.OptFunc(familia).Value() ? ReglaDeSeleccion::Funcion : ReglaDeSeleccion::Distancia;
}

Intervalo LeerIntervalo(const OpcionesPrograma& opciones, int miembro) {
    Intervalo intervalo;
    intervalo.Desde = Numero(opciones.TxtBAF1(miembro));
    intervalo.Hasta = Numero(opciones.TxtBAF2(miembro));
    intervalo.Paso = Numero(opciones.TxtBAF3(miembro));
    return SinDegenerar(intervalo);
}

int MiembroDeSeleccion(const OpcionesPrograma& opciones, FamiliaConSeleccion familia) {
    const bool conDecimales = opciones.OptBAF(familia).Value() || opciones.OptRadioFijo(familia).Value();
    return conDecimales ? ParametroDe(familia) : PiesDe(familia);
}

Intervalo IntervaloDeSeleccion(const OpcionesPrograma& opciones, FamiliaConSeleccion familia) {
    if (ReglaElegida(opciones, familia) == ReglaDeSeleccion::Funcion) {
        return {0, static_cast<double>(opciones.LstRich(familia).ListCount() - 1), 1};
    }
    return LeerIntervalo(opciones, MiembroDeSeleccion(opciones, familia));
}

double CuantosParametros(const OpcionesPrograma& opciones, FamiliaConSeleccion familia,
                         const Intervalo& intervalo) {
    return ReglaElegida(opciones, familia) == ReglaDeSeleccion::Funcion
               ? opciones.LstRich(familia).ListCount()
               : CuantosCaben(intervalo);
}

} // namespace varo
