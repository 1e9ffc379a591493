// The options of the program. The window is the options record: each option is the control of that name, and
// every reader asks the control at the moment of need. What a person changes holds at once.
#pragma once

#include "formularios/Control.h"
#include "formularios/Formulario.h"
#include "options/Miembros.h"
#include "options/Validacion.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace varo {

class Programa;

/// Miembros.h names the members of the arrays of competitor selection and of the intervals.
class OpcionesPrograma : public Formulario {
public:
    explicit OpcionesPrograma(Programa& programa);

    Fichas SSTab1{*this,
                  "SSTab1",
                  {"Unidades", "IND: Independientes de la distancia", "IND: Superposición de copas (ISC)",
                   "IND: Superposición de Areas de Influencia (AOI)", "IND:Densidad puntual (DP)",
                   "IND: Distancias ponderadas por dimensiones (DR)",
                   "IND: Area Potencialmente Disponible (APA)"},
                  fichaIDP};
    Boton CmdAceptar{*this, "CmdAceptar", "Aceptar"};
    Boton CmdCancelar{*this, "CmdCancelar", "Cancelar"};

    // What the columns of the plot file mean, and in which units.
    Marco Frame3{*this, "Frame3", "Unidades de radios de copa "};
    GrupoOpciones unidadesDeRadios;
    Opcion Optcm{*this, "Optcm", "Centímetros", unidadesDeRadios};
    Opcion Optdecim{*this, "Optdecim", "Decímetros", unidadesDeRadios, true};
    Opcion Optmetro{*this, "Optmetro", "Metros", unidadesDeRadios};

    Marco Frame4{*this, "Frame4", "Datos de radios de copa"};
    GrupoOpciones datosDeCopa;
    Opcion Opt4R{*this, "Opt4R", "Cuatro radios", datosDeCopa, true};
    Opcion Opt2D{*this, "Opt2D", "Dos diámetros", datosDeCopa};
    Opcion OptRM{*this, "OptRM", "Radio medio", datosDeCopa};

    Marco Frame1{*this, "Frame1", "Forma de copa"};
    GrupoOpciones formaDeCopa;
    Opcion OptElipse{*this, "OptElipse", "Elipse", formaDeCopa, true};
    Opcion Optcirc{*this, "Optcirc", "Circulo", formaDeCopa};

    Marco Frame6{*this, "Frame6", "Dimensiones del árbol"};
    GrupoOpciones dimensionDelArbol;
    Opcion OptCAP{*this, "OptCAP", "Circunferencia", dimensionDelArbol, true};
    Opcion OptDAP{*this, "OptDAP", "Diámetro", dimensionDelArbol};

    Marco Frame7{*this, "Frame7", "Unidades de Circunferencia o Diámetro"};
    GrupoOpciones unidadesDeDimension;
    Opcion OptCMDIA{*this, "OptCMDIA", "Centímetros", unidadesDeDimension, true};
    Opcion OptDMDIA{*this, "OptDMDIA", "Decímetros", unidadesDeDimension};
    Opcion OptMDIA{*this, "OptMDIA", "Metros", unidadesDeDimension};

    Marco Frame2{*this, "Frame2", "Código de especie"};
    Casilla ChCodigo{*this, "ChCodigo",
                     "El Archivo tiene un campo que diferencia las especies o tipos de árboles", 1};
    Marco Frame5{*this, "Frame5", "Area de la parcela"};
    Casilla ChPolExt{*this, "ChPolExt", "Dibujar polígono exterior", 1};

    // Distance-independent indices.
    Marco FrIndep{*this, "FrIndep", "Independientes de la distancia"};
    Casilla ChN{*this, "ChN", "N (pies/ha)"};
    Casilla ChAB{*this, "ChAB", "AB (m2/ha)"};
    Casilla ChABj{*this, "ChABj", "AB (m2/ha) (solo dj>di)"};
    Etiqueta LbDiam{*this, "LbDiam", "Razón de diámetros (Rd):"};
    Casilla ChDmed{*this, "ChDmed", "Rdmi=di/dmed"};
    Casilla ChDmax{*this, "ChDmax", "Rdmaxi=di/dmax"};
    Casilla ChDdom{*this, "ChDdom", "Rddom=di/ddom"};
    Etiqueta LbAB{*this, "LbAB", "Razón de sección normal (Rb):"};
    Casilla ChBmed{*this, "ChBmed", "Rbmi=bi/bmed"};
    Casilla ChBmax{*this, "ChBmax", "Rbmaxi=bi/bmax"};
    Casilla ChBdom{*this, "ChBdom", "Rbdomi=bi/bdom"};
    Etiqueta LbAreaPropD{*this, "LbAreaPropD", "Area ocupada  proporcional al diámetro (APDi):"};
    Casilla ChAPDmed{*this, "ChAPDmed", "Rdmi"};
    Casilla ChAPDmax{*this, "ChAPDmax", "Rdmaxi"};
    Casilla ChAPDsum{*this, "ChAPDsum", "Rdsumi=di/dsum"};
    Etiqueta LbAreaPropB{*this, "LbAreaPropB", "Area ocupada  proporcional a sección normal (APBi):"};
    Casilla ChAPBmed{*this, "ChAPBmed", "Rbmi"};
    Casilla ChAPBmax{*this, "ChAPBmax", "Rbmaxi"};
    Casilla ChAPBsum{*this, "ChAPBsum", "Rbsumi=bi/bsum"};

    // Crown overlap (ISC).
    Marco FramICC{*this, "FramICC", "Indice de superposición de copas"};
    Casilla ChSupCopa{*this, "ChSupCopa", "Activar"};
    Marco FramISC{*this, "FramISC"};
    Casilla ChISCBil{*this, "ChISCBil", "Bilateral", 1};
    Casilla ChISCUni{*this, "ChISCUni", "Unilateral"};

    // Overlap of the areas of influence (AOI).
    Marco FrAOI{*this, "FrAOI", "Superposición de Areas de Influencia"};
    Casilla ChAOIActivar{*this, "ChAOIActivar", "Activar"};
    Imagen Image1{*this, "Image1"};
    Marco FramAOIBilUni{*this, "FramAOIBilUni"};
    Casilla ChAOIBil{*this, "ChAOIBil", "Bilateral", 1};
    Casilla ChAOIUni{*this, "ChAOIUni", "Unilateral"};
    Marco FramRazon{*this, "FramRazon", "Rsij: Razón de dimensiones"};
    GrupoOpciones razonDeAOI;
    Opcion OptAOIDjDi{*this, "OptAOIDjDi", "dj/di", razonDeAOI, true};
    GrupoOpciones alturasDeAOI; // It lies over the frame, not in it: the two do not exclude each other.
    Opcion OptHjHi{*this, "OptHjHi", "hj/hi", alturasDeAOI};
    Marco FramAOIk{*this, "FramAOIk", "k: Exponente de la razón de dimensiones"};
    Etiqueta Label1{*this, "Label1", "Entre"};
    Etiqueta Label2{*this, "Label2", "y"};
    Etiqueta Label3{*this, "Label3", "con intervalos de"};
    Marco FramInflu{*this, "FramInflu", "Radio de influencia"};
    Etiqueta LbA{*this, "LbA", "a:"};
    Etiqueta LbB{*this, "LbB", "b:"};
    Etiqueta LbC{*this, "LbC", "c:"};
    Etiqueta LbD{*this, "LbD", "d:"};
    Etiqueta LbE{*this, "LbE", "e:"};
    Matriz<CajaTexto> TxtRm{*this, "TxtRm"};
    Imagen ImgRm{*this, "ImgRm"};
    Etiqueta LbRm{*this, "LbRm", "[DBH en cm, Rm en m]"};
    Lista LstAOI{*this, "LstAOI"};
    Boton CmdAñadir{*this, "CmdAñadir", "Añadir"};
    Boton CmdQuitar2{*this, "CmdQuitar2", "Quitar"};
    Boton CmdQuitarTodo{*this, "CmdQuitarTodo", "Quitar Todo"};

    // Point density (DP).
    Marco Frame11{*this, "Frame11", "Indice de densidad puntual (Spurr, 1962)"};
    Casilla ChIDPActivar{*this, "ChIDPActivar", "Activar"};
    Marco FramIDPBilUni{*this, "FramIDPBilUni"};
    Casilla ChIDPBil{*this, "ChIDPBil", "Bilateral", 1};
    Casilla ChIDPUni{*this, "ChIDPUni", "Unilateral"};
    Etiqueta Label8{*this, "Label8", "Incluir al árbol central:"};
    Casilla ChIDPSi{*this, "ChIDPSi", "Sí:", 1};
    Casilla ChIDPNo{*this, "ChIDPNo", "No:"};
    Imagen Image4{*this, "Image4"};
    Imagen Image3{*this, "Image3"};

    // Size ratios weighted by distance (DR).
    Marco FramDR{*this, "FramDR", "Distancias ponderadas por dimensiones"};
    Casilla ChDRActivar{*this, "ChDRActivar", "Activar"};
    Imagen Image7{*this, "Image7"};
    Marco FramDRBilUni{*this, "FramDRBilUni"};
    Casilla ChDRBil{*this, "ChDRBil", "Bilateral", 1};
    Casilla ChDRUni{*this, "ChDRUni", "Unilateral"};
    Marco FramRsij{*this, "FramRsij", "Rsij"};
    GrupoOpciones razonDeDR;
    Opcion OptDRDjDi{*this, "OptDRDjDi", "dj/di", razonDeDR, true};
    Opcion OptDRHjHi{*this, "OptDRHjHi", "hj/hi", razonDeDR};
    Marco FramDRk{*this, "FramDRk", " k"};
    Marco FramDist{*this, "FramDist", "Función de distancia"};
    GrupoOpciones funcionDeDistancia;
    Opcion OptDistHiper{*this, "OptDistHiper", "Hiperbólica", funcionDeDistancia, true};
    Opcion OptDistExp{*this, "OptDistExp", "Exponencial", funcionDeDistancia};
    Imagen ImgHiper2{*this, "ImgHiper2"};
    Imagen ImgExp2{*this, "ImgExp2"};
    Matriz<CajaTexto> TxtEXP{*this, "TxtEXP"};
    Lista LstDist{*this, "LstDist"};
    Boton CmdAñadirDist{*this, "CmdAñadirDist", "Añadir"};
    Boton CmdQuitarDist{*this, "CmdQuitarDist", "Quitar"};
    Boton CmdVaciarDist{*this, "CmdVaciarDist", "Vaciar"};

    // Area potentially available (APA).
    Marco FramAPA{*this, "FramAPA", "Area Potencialmente Disponible"};
    Casilla ChAPA{*this, "ChAPA", "Activar"};
    Etiqueta Label4{*this, "Label4", "Factor de ponderación de distancias:"};
    Imagen ImgAPA{*this, "ImgAPA"};
    Marco FramAPAk{*this, "FramAPAk", " k"};

    // The selection of competitors of DP and DR, and the intervals of all families.
    Matriz<Marco> FramSelCom{*this, "FramSelCom"};
    std::array<GrupoOpciones, 2> seleccionDeCompetidores;
    Matriz<Opcion> OptBAF{*this, "OptBAF"};
    Matriz<Opcion> OptNumFijo{*this, "OptNumFijo"};
    Matriz<Opcion> OptRadioFijo{*this, "OptRadioFijo"};
    Matriz<Opcion> OptFunc{*this, "OptFunc"};
    Matriz<Marco> FramBAF{*this, "FramBAF"};
    Matriz<Etiqueta> Label7{*this, "Label7"}; ///< before TxtBAF1
    Matriz<Etiqueta> Label6{*this, "Label6"}; ///< before TxtBAF2
    Matriz<Etiqueta> Label5{*this, "Label5"}; ///< before TxtBAF3
    Matriz<CajaTexto> TxtBAF1{*this, "TxtBAF1"};
    Matriz<CajaTexto> TxtBAF2{*this, "TxtBAF2"};
    Matriz<CajaTexto> TxtBAF3{*this, "TxtBAF3"};

    // The functions of stem size that select competitors: Richards or hyperbolic.
    Matriz<Marco> FramFunc{*this, "FramFunc"};
    std::array<GrupoOpciones, 2> claseDeFuncion;
    Matriz<Opcion> OptRichard{*this, "OptRichard"};
    Matriz<Opcion> OptHiper{*this, "OptHiper"};
    Matriz<Marco> FramRICH{*this, "FramRICH"};
    Matriz<Imagen> Image5{*this, "Image5"};
    Matriz<Etiqueta> Label9{*this, "Label9"};
    Matriz<Etiqueta> Label10{*this, "Label10"};
    Matriz<Etiqueta> Label11{*this, "Label11"};
    Matriz<CajaTexto> TxtRich{*this, "TxtRich"}; ///< A, k, m from 3i on
    Matriz<Marco> FramHIPER{*this, "FramHIPER"};
    Matriz<Imagen> Image6{*this, "Image6"};
    Matriz<Etiqueta> Label12{*this, "Label12"};
    Matriz<Etiqueta> Label13{*this, "Label13"};
    Matriz<Etiqueta> Label14{*this, "Label14"}; ///< members 2 of Label14 to Label18: before TxtEXP
    Matriz<Etiqueta> Label15{*this, "Label15"};
    Matriz<Etiqueta> Label16{*this, "Label16"};
    Matriz<Etiqueta> Label17{*this, "Label17"};
    Matriz<Etiqueta> Label18{*this, "Label18"};
    Matriz<CajaTexto> TxtHIP{*this, "TxtHIP"}; ///< A, k, a, b, c, d, e from 7i on
    Matriz<Lista> LstRich{*this, "LstRich"};
    Matriz<Boton> CmdAñadirRich{*this, "CmdAñadirRich"};
    Matriz<Boton> CmdQuitarRich{*this, "CmdQuitarRich"};
    Matriz<Boton> CmdVaciarRich{*this, "CmdVaciarRich"};

    void CmdAceptar_Click();
    void CmdCancelar_Click();
    void ChCodigo_Click();
    void OptRM_Click();
    void Opt2D_Click();
    void Opt4R_Click();

    // The numeric fields. A refused text stays, a message tells why, and its field takes the focus back.
    void TxtEXP_Change(int i);
    void TxtEXP_LostFocus(int i);
    void TxtHIP_Change(int i);
    void TxtHIP_LostFocus(int i);
    void TxtRm_Change(int i);
    void TxtRm_LostFocus(int i);
    void TxtRich_Change(int i);
    void TxtRich_LostFocus(int i);
    void TxtBAF1_Change(int i);
    void TxtBAF2_Change(int i);
    void TxtBAF3_Change(int i);
    // Leaving a field of an interval also mends the other two.
    void TxtBAF1_LostFocus(int i);
    void TxtBAF2_LostFocus(int i);
    /// F and L that are no numbers throw 13; a step that cannot divide where F has a character that its
    /// member does not take throws 11 or 13.
    void TxtBAF3_LostFocus(int i);

    // What shows for each rule of competitor selection i and for each function of stem size.
    void OptBAF_Click(int i);
    void OptRadioFijo_Click(int i);
    void OptNumFijo_Click(int i);
    void OptFunc_Click(int i);
    void OptRichard_Click(int i);
    void OptHiper_Click(int i);

    // The lists of functions. A field that holds no number throws 13 when its function is added.
    void CmdAñadir_Click();
    void CmdQuitar2_Click();
    void CmdQuitarTodo_Click();
    void CmdAñadirDist_Click();
    void CmdQuitarDist_Click();
    void CmdVaciarDist_Click();
    void CmdAñadirRich_Click(int i);
    void CmdQuitarRich_Click(int i);
    void CmdVaciarRich_Click(int i);
    void OptDistHiper_Click();
    void OptDistExp_Click();

    // The switches of the families.
    void ChSupCopa_Click();
    void ChAOIActivar_Click();
    void ChIDPActivar_Click();
    void ChDRActivar_Click();
    void ChAPA_Click();

    void Form_Activate() override;
    void Form_Deactivate() override;
    /// The close box hides the dialog as "Cancelar" does, so that its values stay and the menus come back.
    void pulsarCierre() override { CmdCancelar_Click(); }

private:
    static constexpr int fichaIDP = 4; ///< the one on show at first

    using Controles = std::vector<Control*>;
    using DeMiembro = void (OpcionesPrograma::*)(int); ///< a handler of an array of controls

    // The design state, tab by tab.
    void disponerUnidades();
    void disponerIndependientes();
    void disponerISC();
    void disponerAOI();
    void disponerIDP();
    void disponerDR();
    void disponerDistancia();
    void disponerAPA();
    /// The controls of competitor selection i, in a frame; the place of FramBAF(i) itself is left open.
    void crearSeleccion(int i, const std::array<const char*, 4>& leyendas, Marco& marco);
    void crearFunciones(int i, Marco& marco);
    void crearRichards(int i);
    void crearHiperbolica(int i);
    void crearRotulosDeFuncion(int indice, Marco& marco);
    void crearIntervalo(int miembro, const char* texto, Marco& marco);
    void crearRotulosDeIntervalo(int indice, const char* leyendaPaso, Marco& marco);

    void conectar();
    void conectarCampos();
    void conectarCompetidores();
    void conectarFunciones();
    void conectarInterruptores();
    template <class C>
    void conectarClics(const Matriz<C>& controles, DeMiembro alPulsar) {
        for (const auto& [indice, control] : controles.miembros()) {
            control->Click = [this, alPulsar, i = indice] { (this->*alPulsar)(i); };
        }
    }

    void avisar(const Aviso& aviso);
    /// The same, and the focus goes to a field.
    void avisar(const Aviso& aviso, CajaTexto& campo);
    /// True when there is no objection to what a field holds; otherwise tells it.
    bool admite(CajaTexto& campo, const std::optional<Aviso>& reparo);
    /// What a field holds; a text that is no number throws 13.
    static double numero(const CajaTexto& campo);

    // The intervals.
    Controles camposDeIntervalo(int miembro);
    void comprobarPaso(int i);
    void completarPaso(int i);
    void exigirPasosEnteros(int i);
    /// From the first value of an interval to its last one.
    [[nodiscard]] double recorrido(int i) const;

    // The competitor selections.
    Controles controlesDeFuncion(int i);
    static void mostrar(const Controles& controles, bool visibles);
    /// Shows the interval of selection i in the fields of `miembro`, which lie over those of its twin.
    void mostrarIntervalo(int i, const char* leyenda, int miembro, int gemelo);

    // The lists of functions.
    void anadirRichards(int i);
    void anadirHiperbola(int i);
    /// The values of some fields in a row, each written in a number format.
    static std::vector<std::string> escritos(const Matriz<CajaTexto>& campos, int primero, int cuantos,
                                             const char* formato);
    /// Adds a line to a list, and takes it off again when it is there already.
    void anotar(Lista& lista, const std::string& linea);

    // What the switch of each family enables and disables.
    Controles controlesISC();
    Controles controlesAOI();
    Controles controlesIDP();
    Controles controlesDR();
    Controles controlesAPA();
    static void habilitar(const Controles& controles, bool habilitados);

    void cerrar();
    void habilitarMenus();
    void habilitarBotonesDeCodigo();
    [[nodiscard]] bool cambioElTipoDeDatos() const;
    void descargarSeleccionAntigua();

    Programa& programa_;
    bool avisoAbierto_ = false; ///< a message box of this window is open

    // The kind of crown data while it is being edited.
    bool TipoRMAlActivar = false;
    bool Tipo2DAlActivar = false;
    bool Tipo4RAlActivar = false;
    bool TipoRMAlDesactivar = false;
    bool Tipo2DAlDesactivar = false;
    bool Tipo4RAlDesactivar = false;
};

} // namespace varo
