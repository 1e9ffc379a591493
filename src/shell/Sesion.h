// The variables that all windows share. They live as long as the process and start at zero, empty or
// unallocated.
#pragma once

#include "basico/Entero16.h"
#include "basico/MatrizDinamica.h"
#include "plot/calculo/Poligono.h"

#include <string>
#include <vector>

namespace varo {

/// Fields are read and written directly. A grid column number counts from 0, the column "Nº de punto"; grid
/// column c holds field c - 1 of the table.
struct Sesion {
    // The column choice: for each role the grid column. Entries outlive their removal from the list.
    MatrizDinamica<Entero16> Columnas;
    Entero16 UltimaColumna; ///< highest index of Columnas; 0 before a column dialog is first activated
    Entero16 ColumnaDAP;    ///< column of the stem size; 0 when never chosen

    // Tree codes and the life of the format window.
    std::vector<std::string> Codigos;
    Entero16 NumCodigos;
    Entero16 CambiosCodigo;  ///< clicks on ChCodigo since the last "Dibujar"; its parity counts
    Entero16 VecesFormato;   ///< 0 until the format window shows for the open file
    Entero16 CierresConMapa; ///< closings in a row of files that reached the format window
    Entero16 AltoFormato;    ///< design height of the format window, in twips
    std::string NombreArchivoDatos;

    // The format of the map. A value that nobody has chosen yet is empty; the next drawing fills it. The
    // values outlive the format window and the file.
    std::string TituloFuente;
    std::string TituloNegrita; ///< "Verdadero" or "Falso", like the other three traits
    std::string TituloCursiva;
    std::string TituloTachado;
    std::string TituloSubrayado;
    std::string TituloTamano; ///< in points
    std::string TituloColor;  ///< a colour is the number 0x00BBGGRR in decimal
    std::string TituloColorFondo;
    MatrizDinamica<std::string> CodColor; ///< by code, as all that follow
    MatrizDinamica<std::string> CodColorFondo;
    MatrizDinamica<std::string> CodFuente;
    MatrizDinamica<std::string> CodNegrita;
    MatrizDinamica<std::string> CodCursiva;
    MatrizDinamica<std::string> CodTachado;
    MatrizDinamica<std::string> CodSubrayado;
    MatrizDinamica<std::string> CodTamano;
    MatrizDinamica<std::string> CodFondoElegido; ///< "Verdadero" where somebody chose the background

    // The plot boundary.
    Entero16 FactorRadios; ///< divisor from the unit of crown radii to metres
    TablaPoligono Poligono;
    Entero16 NumPuntosPoligono;
    double SupPoligono = 0;            ///< plot area, in squared units of the coordinates
    MatrizDinamica<double> AnguloLado; ///< direction of each side, degrees clockwise from +y
    MatrizDinamica<double>
        AnguloInterior;     ///< at each vertex, degrees; that of the last walk that came to an end
    double CentroCircX = 0; ///< of the last circle of APA, as the coordinates
    double CentroCircY = 0;
    double XMaxPoligono = 0; ///< the extent of the boundary, of the last plot data
    double YMaxPoligono = 0;
    double YMinPoligono = 0;

    // Results of the last computation.
    double AreaTotalCopas = 0; ///< sum of the crown areas, in m2
    float Fcc = 0;             ///< canopy cover, a fraction of the plot
    double AbHaActual = 0;     ///< basal area, m2/ha
    double PiesHaActual = 0;   ///< stems/ha

    // Field names for the queries over a copy of the sheet.
    std::string CampoRadio;
    std::string CampoDiamNS, CampoDiamEO;
    std::string CampoRadioN, CampoRadioE, CampoRadioS, CampoRadioO;
    std::string CampoSupCopa; ///< the computed crown area
    std::string TablaCopia;   ///< Meant: nothing ever sets it.

    /// Resets what belongs to the open file. The column choice, the boundary and the results stay.
    void reiniciarAlCerrar() {
        if (VecesFormato == 0) {
            CierresConMapa = 0;
        } else {
            ++CierresConMapa;
        }
        CambiosCodigo = 0;
        NumCodigos = 0;
        VecesFormato = 0;
    }
};

} // namespace varo
