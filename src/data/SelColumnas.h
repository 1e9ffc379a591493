// The choice of columns: which grid column plays which role. Three near-identical windows, one for each kind
// of crown data.
#pragma once

#include "data/Papeles.h"
#include "formularios/Control.h"
#include "formularios/Formulario.h"

#include <string>
#include <vector>

namespace varo {

class Programa;

/// What sets one of the three windows apart.
struct PapelesDeColumnas {
    struct Papel {
        std::string leyenda; ///< caption of its button
        std::string prefijo; ///< how its line in the list begins
        std::string palabra; ///< what CmdQuitar looks for in a line to find the button again
    };
    std::string nombreVentana;
    DatosDeCopa copa = DatosDeCopa::RadioMedio;
    std::vector<Papel> papeles; ///< by index of Command1 (Papeles.h)
    std::string leyendaQuitarTodo;
    bool activarInhabilitaDibujar = false; ///< on activation with ChCodigo checked and no code on the list
};

/// `List1` is the working state: the completeness test and the removal work on its lines and on the enabled
/// state of the buttons, never on Sesion::Columnas.
class SelColumnas : public Formulario {
public:
    Etiqueta Label1{*this, "Label1", "Selecciona las columnas y pulsa el botón correspondiente"};
    Matriz<Boton> Command1{*this, "Command1"};
    Boton CmdDAP{*this, "CmdDAP"};
    Lista List1{*this, "List1"};
    Boton CmdQuitar{*this, "CmdQuitar", "Quitar"};
    Boton CmdQuitarTodo;
    Boton CmdDibujar{*this, "CmdDibujar", "Dibujar"};

    void Command1_Click(int Index);
    void CmdDAP_Click();
    void CmdQuitar_Click();
    void CmdQuitarTodo_Click();
    void CmdDibujar_Click();

    void Form_Activate() override;
    void Form_Unload() override;

    /// The button of the tree code role.
    [[nodiscard]] Boton& botonCodigo() const { return Command1(PapelCodigo(papeles_.copa)); }
    [[nodiscard]] const PapelesDeColumnas& papeles() const { return papeles_; }

protected:
    SelColumnas(Programa& programa, PapelesDeColumnas papeles);

private:
    void anadirLinea(const std::string& prefijo, int columna);
    void comprobarRepeticion(Boton& boton, int columna);
    void comprobarComplecion();
    void habilitarSegunLinea(const std::string& linea);

    Programa& programa_;
    PapelesDeColumnas papeles_;
};

/// For one mean crown radius.
class SelColRM final : public SelColumnas {
public:
    explicit SelColRM(Programa& programa);
};

/// For four crown radii.
class SelCol4R final : public SelColumnas {
public:
    explicit SelCol4R(Programa& programa);
};

/// For two crown diameters.
class SelCol2D final : public SelColumnas {
public:
    explicit SelCol2D(Programa& programa);
};

} // namespace varo
