// The format of the map: its title and, for each tree code, the text, font and colours of the legend.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "map/Escala.h"

#include <vector>

namespace varo {

class Programa;

/// It stays hidden, not unloaded, while the map is up.
class FrmFormato : public Formulario {
public:
    explicit FrmFormato(Programa& programa);

    Etiqueta Label1{*this, "Label1", " Título"};
    Etiqueta Label2{*this, "Label2", "Texto:"};
    CajaTexto TxtTitName{*this, "TxtTitName"};
    Etiqueta Label3{*this, "Label3", "Tipo de letra:"};
    Desplegable CboTitFont{*this, "CboTitFont"};
    Etiqueta Label4{*this, "Label4", "Color letra:"};
    Desplegable CboTitColor{*this, "CboTitColor"};
    Etiqueta Label8{*this, "Label8", "Color fondo:"};
    Desplegable CboTitBackColor{*this, "CboTitBackColor"};

    Etiqueta LbCod{*this, "LbCod", " Códigos"};
    Etiqueta Label10{*this, "Label10", "Código:"};
    Matriz<Etiqueta> LbCodigo{*this, "LbCodigo"};
    Etiqueta Label7{*this, "Label7", "Texto:"};
    Matriz<CajaTexto> TxtCodigo{*this, "TxtCodigo"};
    Etiqueta Label6{*this, "Label6", "Tipo de letra:"};
    Matriz<Desplegable> CboCodFont{*this, "CboCodFont"};
    Etiqueta Label5{*this, "Label5", "Color linea:"};
    Matriz<Desplegable> CboCodColor{*this, "CboCodColor"};
    Etiqueta Label9{*this, "Label9", "Color fondo:"};
    Matriz<Desplegable> CboCodBackColor{*this, "CboCodBackColor"};

    Boton CmdAceptar{*this, "CmdAceptar", "Aceptar"};
    Boton CmdCancelar{*this, "CmdCancelar", "Cancelar"};

    /// The design colour of the crowns of a code, by turns: codes are told apart before anyone has chosen.
    static Color colorDeLinea(int codigo);

    void Form_Load() override;
    void CboTitFont_DropDown();
    void CboTitColor_DropDown();
    void CboTitBackColor_DropDown();
    void CboCodFont_DropDown(int Index);
    void CboCodColor_DropDown(int Index);
    void CboCodBackColor_DropDown(int Index);
    void CmdAceptar_Click();
    void CmdCancelar_Click();

    /// The distinct tree codes of the sorted grid, into Sesion::Codigos.
    void ListaCodigos();
    /// One row of controls for each code; the dialog grows with them.
    void FilasCodigos();

private:
    void crearFila(int codigo);
    /// What the controls of a code's row answer to, and how they start.
    void prepararFila(int codigo);
    /// What a chooser hands back. One that a person cancels gives what the control shows.
    Fuente preguntarFuente(Desplegable& control);
    struct ColorElegido {
        Color color = 0;
        bool porPersona = false;
    };
    ColorElegido preguntarColor(Desplegable& control);
    void limpiarRejilla();
    void guardarCampoDelRadio();
    /// A numeric cell gives its number, any other -1.
    [[nodiscard]] std::vector<double> LeerColumna(int columna) const;
    /// Empties both surfaces and gives them their scale.
    Escala prepararSuperficies();
    void dibujarMapa();
    /// Tells those who look at the surfaces, also of a drawing that a fault has ended.
    void avisarDibujo();
    /// Draws the map, builds the boundary and measures its area.
    void dibujarYMedir();
    void explicarDesbordamiento(ErrorEjecucion& error) const;
    void mostrarFilas(bool visibles);

    Programa& programa_;
    // Which choosers of the codes have been opened since the window was loaded.
    bool fuentesPedidas_ = false;
    bool coloresPedidos_ = false;
    bool fondosPedidos_ = false;
};

} // namespace varo
