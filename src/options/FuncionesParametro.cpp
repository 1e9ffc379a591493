// The lists of model functions. The text of a line is the only form in which its parameters are kept, and it
// is read back by position: its blanks and separators are a format.
#include "basico/Numeros.h"
#include "options/OpcionesPrograma.h"

namespace varo {

namespace {

using Textos = std::vector<std::string>;

const Textos nombresDeCinco{"a", "b", "c", "d", "e"};
const Textos nombresDeRichards{"A", "k", "m"};
const Textos nombresDeHiperbola{"A", "k", "a", "b", "c", "d", "e"};

/// "a: 0,5000; b: 0,2000": each value behind its name.
std::string Linea(const Textos& nombres, const Textos& valores) {
    std::string linea;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        linea += (i == 0 ? "" : "; ") + nombres[i] + ": " + valores[i];
    }
    return linea;
}

/// What counts is the written value: 0,00004 is null where four decimals are written.
bool EsNulo(const std::string& valor) {
    return ANumero(valor) == 0;
}

/// True when a, b and d, which stand from `a` on, leave nothing of a + b x^c + d x^e.
bool SumaNula(const Textos& valores, std::size_t a = 0) {
    return EsNulo(valores[a]) && EsNulo(valores[a + 1]) && EsNulo(valores[a + 3]);
}

void QuitarSeleccionadas(Lista& lista) {
    int fila = 0;
    int filas = lista.ListCount();
    while (fila < filas) {
        if (lista.Selected(fila)) {
            lista.RemoveItem(fila);
            --filas;
        } else {
            ++fila;
        }
    }
}

} // namespace

void OpcionesPrograma::conectarFunciones() {
    CmdAñadir.Click = [this] { CmdAñadir_Click(); };
    CmdQuitar2.Click = [this] { CmdQuitar2_Click(); };
    CmdQuitarTodo.Click = [this] { CmdQuitarTodo_Click(); };
    CmdAñadirDist.Click = [this] { CmdAñadirDist_Click(); };
    CmdQuitarDist.Click = [this] { CmdQuitarDist_Click(); };
    CmdVaciarDist.Click = [this] { CmdVaciarDist_Click(); };
    OptDistHiper.Click = [this] { OptDistHiper_Click(); };
    OptDistExp.Click = [this] { OptDistExp_Click(); };
    conectarClics(CmdAñadirRich, &OpcionesPrograma::CmdAñadirRich_Click);
    conectarClics(CmdQuitarRich, &OpcionesPrograma::CmdQuitarRich_Click);
    conectarClics(CmdVaciarRich, &OpcionesPrograma::CmdVaciarRich_Click);
}

void OpcionesPrograma::CmdAñadir_Click() {
    const Textos valores = escritos(TxtRm, 0, 5, "##0.0000");
    if (SumaNula(valores)) {
        avisar({"El valor de Rm es siempre nulo", "Radio de influencia siempre nulo"});
        return;
    }
    anotar(LstAOI, Linea(nombresDeCinco, valores));
}

void OpcionesPrograma::CmdAñadirDist_Click() {
    const Textos valores = escritos(TxtEXP, 0, 5, "##0.0000");
    std::string linea;
    if (!OptDistHiper.Value()) {
        linea = "EXP, " + Linea(nombresDeCinco, valores);
    } else if (!SumaNula(valores)) {
        linea = "HIP, " + Linea(nombresDeCinco, valores);
    } else {
        avisar({"El denominador es nulo", "Valor no admitido"});
    }
    anotar(LstDist, linea); // Meant: a null denominator adds a blank line.
}

void OpcionesPrograma::CmdAñadirRich_Click(int i) {
    if (OptRichard(i).Value()) {
        anadirRichards(i);
    } else {
        anadirHiperbola(i);
    }
}

void OpcionesPrograma::anadirRichards(int i) {
    const Textos valores = escritos(TxtRich, 3 * i, 3, "##0.00");
    if (EsNulo(valores[0])) {
        avisar({"El radio de influencia es siempre nulo", "Radio de influencia siempre nulo"},
               TxtRich(3 * i));
    } else if (ANumero(valores[2]) == 1) {
        avisar({"El denominador del exponente es nulo", "Denominador nulo"}, TxtRich(3 * i + 2));
    } else {
        anotar(LstRich(i), Linea(nombresDeRichards, valores));
    }
}

void OpcionesPrograma::anadirHiperbola(int i) {
    const Textos valores = escritos(TxtHIP, 7 * i, 7, "##0.00");
    if (SumaNula(valores, 2)) {
        avisar({"El valor del denominador es nulo", "Radio de influencia siempre nulo"}, TxtHIP(7 * i));
    } else {
        anotar(LstRich(i), Linea(nombresDeHiperbola, valores));
    }
}

std::vector<std::string> OpcionesPrograma::escritos(const Matriz<CajaTexto>& campos, int primero, int cuantos,
                                                    const char* formato) {
    Textos valores;
    valores.reserve(static_cast<std::size_t>(cuantos));
    for (int i = primero; i < primero + cuantos; ++i) {
        valores.push_back(Formato(numero(campos(i)), formato));
    }
    return valores;
}

void OpcionesPrograma::anotar(Lista& lista, const std::string& linea) {
    lista.AddItem(linea);
    const int anteriores = lista.ListCount() - 1;
    for (int i = 0; i < anteriores; ++i) {
        if (lista.List(i) == linea) {
            avisar({"Has introducido dos veces los mismos valores", "Valores repetidos"});
            lista.RemoveItem(lista.ListCount() - 1);
        }
    }
}

void OpcionesPrograma::CmdQuitar2_Click() {
    QuitarSeleccionadas(LstAOI);
}

void OpcionesPrograma::CmdQuitarDist_Click() {
    QuitarSeleccionadas(LstDist);
}

void OpcionesPrograma::CmdQuitarRich_Click(int i) {
    QuitarSeleccionadas(LstRich(i));
}

void OpcionesPrograma::CmdQuitarTodo_Click() {
    LstAOI.Clear();
}

void OpcionesPrograma::CmdVaciarDist_Click() {
    LstDist.Clear();
}

void OpcionesPrograma::CmdVaciarRich_Click(int i) {
    LstRich(i).Clear();
}

void OpcionesPrograma::OptDistHiper_Click() {
    ImgHiper2.Visible = true;
    ImgExp2.Visible = false;
}

void OpcionesPrograma::OptDistExp_Click() {
    ImgExp2.Visible = true;
    ImgHiper2.Visible = false;
}

} // namespace varo
