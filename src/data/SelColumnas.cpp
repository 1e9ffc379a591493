#include "data/SelColumnas.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

namespace varo {

namespace {

using Leyendas = std::vector<PapelesDeColumnas::Papel>;

Leyendas ConExtremos(const Leyendas& copa) {
    Leyendas papeles{{"Coordenada X", "Coordenada X: ", "X"}, {"Coordenada Y", "Coordenada Y: ", "Y"}};
    papeles.insert(papeles.end(), copa.begin(), copa.end());
    papeles.push_back({"Indice", "Indice: ", "Indice"});
    papeles.push_back({"Código de Arbol", "Código de árbol: ", "Código de árbol"});
    return papeles;
}

bool Contiene(const std::string& texto, std::string_view palabra) {
    return texto.find(palabra) != std::string::npos;
}

} // namespace

SelColRM::SelColRM(Programa& programa)
    : SelColumnas{programa,
                  {"SelColRM", DatosDeCopa::RadioMedio,
                   ConExtremos({{"Radio medio", "Radio Medio: ", "Radio Medio"}}), "Quitar todo"}} {}

SelCol4R::SelCol4R(Programa& programa)
    : SelColumnas{programa,
                  {"SelCol4R", DatosDeCopa::CuatroRadios,
                   ConExtremos({{"Radio Norte", "Radio Norte: ", "Norte"},
                                {"Radio Este", "Radio Este: ", "Este"},
                                {"Radio Sur", "Radio Sur: ", "Sur"},
                                {"Radio Oeste", "Radio Oeste: ", "Oeste"}}),
                   "QuitarTodo", true}} {}

SelCol2D::SelCol2D(Programa& programa)
    : SelColumnas{programa,
                  {"SelCol2D", DatosDeCopa::DosDiametros,
                   ConExtremos({{"Diámetro Norte-Sur", "Diametro Norte-Sur: ", "Norte"},
                                {"Diámetro  Este-Oeste", "Diametro Este-Oeste: ", "Este"}}),
                   "Quitar todo"}} {}

SelColumnas::SelColumnas(Programa& programa, PapelesDeColumnas papeles)
    : Formulario{programa, papeles.nombreVentana, TipoVentana::Hija, "Selección de columnas"},
      CmdQuitarTodo{*this, "CmdQuitarTodo", papeles.leyendaQuitarTodo}, programa_{programa},
      papeles_{std::move(papeles)} {
    int indice = 0;
    for (const auto& papel : papeles_.papeles) {
        Command1.crear(indice, papel.leyenda).Click = [this, indice] { Command1_Click(indice); };
        ++indice;
    }
    CmdDibujar.Enabled = false;
    CmdDAP.Click = [this] { CmdDAP_Click(); };
    CmdQuitar.Click = [this] { CmdQuitar_Click(); };
    CmdQuitarTodo.Click = [this] { CmdQuitarTodo_Click(); };
    CmdDibujar.Click = [this] { CmdDibujar_Click(); };
}

void SelColumnas::anadirLinea(const std::string& prefijo, int columna) {
    const auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    List1.AddItem(prefijo + "Columna: " + ATexto(columna + 1) + " (" + rejilla.TextMatrix(0, columna) + ")");
}

void SelColumnas::comprobarRepeticion(Boton& boton, int columna) {
    const std::string buscada = "Columna: " + ATexto(columna + 1);
    const int lineas = List1.ListCount();
    // Meant: the walk goes on after a hit, so the last comparison decides the button.
    for (int i = 0; i <= lineas - 2; ++i) {
        const std::string& linea = List1.List(i);
        // Meant: 11 characters are compared, so only the first two digits of a number count.
        const bool repetida = Recortar(Medio(linea, Posicion(linea, "Columna"), 11)) == buscada;
        if (repetida) {
            programa_.servicios().mensaje("Has introducido dos veces la misma columna", "Columna repetida",
                                          mensaje::exclamacion);
            List1.RemoveItem(List1.ListCount() - 1);
        }
        boton.Enabled = repetida;
    }
}

void SelColumnas::comprobarComplecion() {
    const int papeles = programa_.sesion.UltimaColumna.valor() + 1;
    CmdDibujar.Enabled = List1.ListCount() == papeles + (CmdDAP.Enabled() ? 0 : 1);
}

void SelColumnas::Command1_Click(int Index) {
    const int columna = programa_.tocar<Hojadedatos>().MSFlexGrid1.ColSel;
    anadirLinea(papeles_.papeles[static_cast<std::size_t>(Index)].prefijo, columna);
    programa_.sesion.Columnas(Index) = columna;
    Command1(Index).Enabled = false;
    comprobarRepeticion(Command1(Index), columna);
    comprobarComplecion();
}

void SelColumnas::CmdDAP_Click() {
    const int columna = programa_.tocar<Hojadedatos>().MSFlexGrid1.ColSel;
    // Meant: the enabled state, not the value; nothing ever disables OptCAP.
    anadirLinea(programa_.tocar<OpcionesPrograma>().OptCAP.Enabled() ? "CAP: " : "DAP: ", columna);
    programa_.sesion.ColumnaDAP = columna;
    CmdDAP.Enabled = false;
    comprobarRepeticion(CmdDAP, columna);
}

void SelColumnas::habilitarSegunLinea(const std::string& linea) {
    // Meant: the whole line is searched, the field name in the brackets too.
    int indice = 0;
    for (const auto& papel : papeles_.papeles) {
        if (Contiene(linea, papel.palabra)) {
            Command1(indice).Enabled = true;
            return;
        }
        ++indice;
    }
    if (Contiene(linea, "DAP") || Contiene(linea, "CAP")) {
        CmdDAP.Enabled = true;
    }
}

void SelColumnas::CmdQuitar_Click() {
    int ultima = List1.ListCount() - 1;
    for (int i = 0; i <= ultima; ++i) {
        if (List1.Selected(i)) {
            habilitarSegunLinea(List1.List(i));
            List1.RemoveItem(i);
            --ultima;
            --i;
        }
        comprobarComplecion();
    }
}

void SelColumnas::CmdQuitarTodo_Click() {
    List1.Clear();
    for (int i = 0; i <= programa_.sesion.UltimaColumna.valor(); ++i) {
        Command1(i).Enabled = true;
    }
    CmdDibujar.Enabled = false;
    CmdDAP.Enabled = true;
}

void SelColumnas::CmdDibujar_Click() {
    auto& sesion = programa_.sesion;
    if (sesion.VecesFormato == 0) {
        programa_.tocar<FrmFormato>().Show();
        ++sesion.VecesFormato;
    } else {
        if (sesion.CambiosCodigo.valor() % 2 != 0) {
            programa_.descargar<FrmFormato>();
        }
        programa_.tocar<FrmFormato>().Show();
    }
    sesion.CambiosCodigo = 0;
    Hide();
    auto& marco = programa_.tocar<VAROMAIN>();
    marco.mnuMapa.Enabled = false;
    marco.mnuOpciones.Enabled = false;
}

void SelColumnas::Form_Activate() {
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    const bool conCodigo = opciones.ChCodigo.Value() == 1;
    CmdDAP.Caption = opciones.OptCAP.Enabled() ? "CAP" : "DAP";
    programa_.sesion.UltimaColumna = conCodigo ? PapelCodigo(papeles_.copa) : PapelIndice(papeles_.copa);

    int lineaCodigo = -1;
    for (int i = 0; i < List1.ListCount(); ++i) {
        if (Contiene(List1.List(i), "Código")) {
            lineaCodigo = i;
        }
    }
    if (lineaCodigo < 0) {
        botonCodigo().Enabled = conCodigo;
        if (conCodigo && papeles_.activarInhabilitaDibujar) {
            CmdDibujar.Enabled = false;
        }
    } else {
        if (!conCodigo) {
            List1.RemoveItem(lineaCodigo);
        }
        botonCodigo().Enabled = false;
    }
    programa_.sesion.Columnas.redimensionarConservando(programa_.sesion.UltimaColumna.valor());
}

void SelColumnas::Form_Unload() {
    auto& marco = programa_.tocar<VAROMAIN>();
    marco.mnuOpciones.Enabled = true;
    marco.mnuMapa.Enabled = true;
}

} // namespace varo
