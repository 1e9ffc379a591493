// How the competitors of a tree are chosen (what shows for each of the four rules and the two functions of
// stem size), and the intervals, whose three fields are kept consistent as each is left.
#include "basico/Aritmetica.h"
#include "basico/Numeros.h"
#include "options/OpcionesPrograma.h"

namespace varo {

void OpcionesPrograma::conectarCompetidores() {
    conectarClics(OptBAF, &OpcionesPrograma::OptBAF_Click);
    conectarClics(OptRadioFijo, &OpcionesPrograma::OptRadioFijo_Click);
    conectarClics(OptNumFijo, &OpcionesPrograma::OptNumFijo_Click);
    conectarClics(OptFunc, &OpcionesPrograma::OptFunc_Click);
    conectarClics(OptRichard, &OpcionesPrograma::OptRichard_Click);
    conectarClics(OptHiper, &OpcionesPrograma::OptHiper_Click);
}

OpcionesPrograma::Controles OpcionesPrograma::camposDeIntervalo(int miembro) {
    return {&TxtBAF1(miembro), &TxtBAF2(miembro), &TxtBAF3(miembro)};
}

OpcionesPrograma::Controles OpcionesPrograma::controlesDeFuncion(int i) {
    return {&FramFunc(i),      &FramRICH(i),      &FramHIPER(i),    &LstRich(i),
            &CmdAñadirRich(i), &CmdQuitarRich(i), &CmdVaciarRich(i)};
}

void OpcionesPrograma::mostrar(const Controles& controles, bool visibles) {
    for (Control* control : controles) {
        control->Visible = visibles;
    }
}

void OpcionesPrograma::mostrarIntervalo(int i, const char* leyenda, int miembro, int gemelo) {
    FramBAF(i).Caption = leyenda;
    mostrar(camposDeIntervalo(gemelo), false);
    FramBAF(i).Visible = true;
    mostrar(camposDeIntervalo(miembro), true);
    mostrar(controlesDeFuncion(i), false);
}

void OpcionesPrograma::OptBAF_Click(int i) {
    mostrarIntervalo(i, "BAF (m2/ha)", ParametroDe(i), PiesDe(i));
}

void OpcionesPrograma::OptRadioFijo_Click(int i) {
    mostrarIntervalo(i, "Distancia Fija (m)", ParametroDe(i), PiesDe(i));
}

void OpcionesPrograma::OptNumFijo_Click(int i) {
    mostrarIntervalo(i, "Número de pies", PiesDe(i), ParametroDe(i));
    habilitar(camposDeIntervalo(PiesDe(i)), true); // the switch of the family leaves them alone
}

void OpcionesPrograma::OptFunc_Click(int i) {
    mostrar(camposDeIntervalo(ParametroDe(i)), false); // those of the stems go with their frame
    FramBAF(i).Visible = false;
    FramFunc(i).Visible = true;
    OptRichard(i).Value = true;
    mostrar({&FramRICH(i), &LstRich(i), &CmdAñadirRich(i), &CmdQuitarRich(i), &CmdVaciarRich(i)}, true);
}

void OpcionesPrograma::OptRichard_Click(int i) {
    FramRICH(i).Visible = true;
    FramHIPER(i).Visible = false;
}

void OpcionesPrograma::OptHiper_Click(int i) {
    FramRICH(i).Visible = false;
    FramHIPER(i).Visible = true;
}

void OpcionesPrograma::TxtBAF1_LostFocus(int i) {
    CajaTexto& primero = TxtBAF1(i);
    CajaTexto& ultimo = TxtBAF2(i);
    CajaTexto& paso = TxtBAF3(i);
    if (!admite(primero, ReparoAExtremo(primero.Text(), i))) {
        return;
    }
    if (!EsNumerico(ultimo.Text()) || !EsNumerico(paso.Text()) || ReparoACaracteres(ultimo.Text(), i)) {
        return;
    }
    if (numero(ultimo) > numero(primero)) {
        paso.Text = ATextoCorto(recorrido(i));
    } else {
        ultimo.Text = primero.Text();
        paso.Text = "1";
    }
}

void OpcionesPrograma::TxtBAF2_LostFocus(int i) {
    const CajaTexto& primero = TxtBAF1(i);
    CajaTexto& ultimo = TxtBAF2(i);
    CajaTexto& paso = TxtBAF3(i);
    if (!admite(ultimo, ReparoAExtremo(ultimo.Text(), i))) {
        return;
    }
    if (!EsNumerico(primero.Text()) || !EsNumerico(paso.Text()) || ReparoACaracteres(primero.Text(), i)) {
        return;
    }
    if (numero(ultimo) < numero(primero)) {
        ultimo.Text = primero.Text(); // Meant: the step stays as it was.
    } else if (numero(primero) < numero(ultimo)) {
        paso.Text = ATextoCorto(recorrido(i));
    } else {
        paso.Text = "1";
    }
}

void OpcionesPrograma::TxtBAF3_LostFocus(int i) {
    comprobarPaso(i);
    completarPaso(i); // whatever the check has found
}

void OpcionesPrograma::comprobarPaso(int i) {
    CajaTexto& paso = TxtBAF3(i);
    if (admite(paso, ReparoAExtremo(paso.Text(), i)) && numero(paso) != 0) {
        exigirPasosEnteros(i);
    }
}

void OpcionesPrograma::completarPaso(int i) {
    CajaTexto& paso = TxtBAF3(i);
    if (!EsNumerico(TxtBAF1(i).Text()) || !EsNumerico(TxtBAF2(i).Text())) {
        return;
    }
    if (ReparoACaracteres(TxtBAF1(i).Text(), i)) {
        exigirPasosEnteros(i); // Meant: once more, and a step of 0 divides here.
        return;
    }
    const bool sinPaso = paso.Text().empty() || (EsNumerico(paso.Text()) && numero(paso) == 0);
    if (recorrido(i) == 0) {
        paso.Text = "1";
    } else if (sinPaso) {
        paso.Text = ATextoCorto(recorrido(i));
    }
}

void OpcionesPrograma::exigirPasosEnteros(int i) {
    const double pasos = Dividir(recorrido(i), numero(TxtBAF3(i)));
    if (RedondearPar(pasos) != pasos) {
        avisar({"El intervalo no es correcto", "Intervalo incorrecto"}, TxtBAF3(i));
    }
}

double OpcionesPrograma::recorrido(int i) const {
    return ExigirFinito(numero(TxtBAF2(i)) - numero(TxtBAF1(i)));
}

} // namespace varo
