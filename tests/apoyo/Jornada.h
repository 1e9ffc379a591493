// A working day without a screen: the program, its prepared platform, a person's hands and a folder for
// files.
#pragma once

#include "apoyo/CarpetaTemporal.h"
#include "apoyo/EscritorXls.h"
#include "data/SelColumnas.h"
#include "formularios/ServiciosPreparados.h"
#include "formularios/Usuario.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"
#include "sistema/ArchivoEntero.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace varo::prueba {

/// The whole content of a file.
std::string LeerArchivo(const std::filesystem::path& archivo);

using Filas = std::vector<std::vector<Valor>>;

/// Four trees at the corners of a square of 10 m and one in the middle, with four crown radii of 10 (dm),
/// girths in cm and two codes; the last field holds nothing that the program sees. Fields: Arbol, X, Y, RN,
/// RE, RS, RO, Cod, CAP, Nota.
Filas CuadradoConCentro();

/// Prepared answers, files as the programs write them, and whoever hears long computations.
struct ServiciosDePrueba : ServiciosPreparados {
    std::function<std::unique_ptr<ArchivoNuevo>(const std::string&)> crear = [](const std::string& ruta) {
        return std::make_unique<ArchivoEntero>(ruta);
    };
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) override { return crear(ruta); }

    OyenteDeAvance* oyente = nullptr;
    Avance avance() override { return oyente != nullptr ? Avance{*oyente} : Avance{}; }

    Cuadrilla* ayuda = nullptr;
    Cuadrilla* cuadrilla() override { return ayuda; }
};

struct Jornada {
    Jornada();

    CarpetaTemporal carpeta;
    ServiciosDePrueba servicios;
    Programa programa{servicios};
    Usuario usuario{programa};

    VAROMAIN& marco() { return programa.tocar<VAROMAIN>(); }
    OpcionesPrograma& opciones() { return programa.tocar<OpcionesPrograma>(); }

    /// Opens a workbook with these sheets up to the choice of the sheet.
    void abrirLibro(const std::vector<Hoja>& hojas, const std::string& nombre = "parcela.xls");
    /// Types the name of the sheet and accepts it.
    void aceptarHoja(const std::string& hoja);
    /// Opens a workbook with one sheet "Parcela1" and accepts it.
    void abrirParcela(const Filas& filas);
    /// Shows the options, lets the test change them, and accepts them.
    void cambiarOpciones(const std::function<void(OpcionesPrograma&)>& cambio);
    /// Shows the column dialog that fits the options.
    void pedirColumnas() { usuario.clic(marco().mnuMapa); }
    void seleccionarColumna(int columna);
    void elegirPapel(SelColumnas& dialogo, int papel, int columna);
    void elegirDAP(SelColumnas& dialogo, int columna);
    /// From the open plot of CuadradoConCentro to the map.
    void dibujarCuadrado();
};

} // namespace varo::prueba
