// Something that looks wrong in a plot: how grave it is, where it stands, what it does and what to do about
// it.
#pragma once

#include <string>

namespace varo {

/// The gravest first.
enum class Gravedad {
    Fallo,   ///< a run will end, or may end, in a fault
    Numeros, ///< a run ends well and its numbers would be wrong
    Mirar    ///< worth a look
};

/// What is wrong, one enumerator for each kind of finding.
enum class Sospecha {
    // Rows.
    SinArboles,
    DemasiadasFilas,
    FilaSinSitio,
    FilaConMediaCoordenada,
    FilaDeSuma,
    FilaDeCabecera,
    FilasDesordenadas,
    ArbolSinCodigo,
    CuentaConFallo,
    PiesNoPositivos,
    // Cells.
    ColumnaSinDatos,
    ColumnaCasiVacia,
    CeldaEnBlanco,
    TextoVacio,
    TextoConUnidad,
    TextoQueNoEsNumero,
    CeldaDeOtraClase,
    NumeroDesmedido,
    TextoConPunto,
    TextoConGrupos,
    NumeroComoTexto,
    TamanoVacio,
    TamanoCero,
    TamanoNegativo,
    CopaVacia,
    CopaNegativa,
    // Places.
    MismoSitio,
    MismaX,
    MismaY,
    CasiMismaX,
    CasiMismaY,
    EnLinea,
    PocosVecinos,
    TamanosDesproporcionados,
    ContornoConFallo,
    LadoVertical,
    SobreUnLado,
    DibujoConFallo,
    SinSuperficie,
    SuperficieRara,
    ArbolLejano,
    EnGrados,
    DensidadRara,
    SignoRaro,
    // Measures.
    TroncoEnorme,
    TroncosDiminutos,
    CopaEnorme,
    CopasDiminutas,
    CopaDesigual,
    CopasDesproporcionadas,
    AreaBasimetricaRara,
    ArbolSinCopa,
    NingunaCopa,
    CopaEntreMuestras,
    CirculosIguales,
    CirculosTangentes,
    DemasiadosSolapes,
    // Tree numbers and codes.
    NumeroVacio,
    NumeroRepetido,
    CodigosParecidos,
    CodigoSinConsulta,
    CodigoSinTamano,
    CabeceraSinConsulta,
    CabeceraDeOtroPapel,
    // Options.
    SinColumnaDelTamano,
    BafNoPositivo,
    BarridoIlegible,
    BarridoSinValores,
    BarridoQueNoCabe,
    BarridoConColumnaDeSobra,
    FamiliaSinFuncion,
    FuncionQueFalla,
    FuncionCortada,
    RotuloEquivocado,
    ColumnasIguales
};

/// Whole Spanish sentences for someone who never saw the program. The row and the column stand in fields of
/// their own, for tables.
struct Hallazgo {
    Gravedad gravedad = Gravedad::Mirar;
    Sospecha sospecha = Sospecha::SinArboles;
    int fila = 0;            ///< of the sheet, as the spreadsheet numbers it; 0 without one
    std::string arbol;       ///< the number of the tree, as the sheet has it
    std::string columna;     ///< the header of the column, or the name of the option
    int numeroDeColumna = 0; ///< as ColumnaPorRevisar::numero; 0 without one
    std::string texto;       ///< the text at fault
    std::string que;         ///< what is wrong
    std::string efecto;      ///< what it does, to which index or figure
    std::string remedio;     ///< what to do in the sheet or in the options
};

} // namespace varo
