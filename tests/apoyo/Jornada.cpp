#include "apoyo/Jornada.h"

#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace varo::prueba {

std::string LeerArchivo(const std::filesystem::path& archivo) {
    std::ifstream entrada{archivo, std::ios::binary};
    if (!entrada) {
        throw std::runtime_error{"no se puede leer " + archivo.string()};
    }
    return {std::istreambuf_iterator<char>{entrada}, {}};
}

Filas CuadradoConCentro() {
    using T = std::string;
    const auto cabecera = [](const char* nombre) { return Valor{T{nombre}}; };
    Filas filas{{cabecera("Arbol"), cabecera("X"), cabecera("Y"), cabecera("RN"), cabecera("RE"),
                 cabecera("RS"), cabecera("RO"), cabecera("Cod"), cabecera("CAP"), cabecera("Nota")}};
    const auto arbol = [&](double numero, double x, double y, const char* codigo, double cap) {
        filas.push_back({numero, x, y, 10.0, 10.0, 10.0, 10.0, T{codigo}, cap, T{"nota"}});
    };
    arbol(1, 0, 0, "PS", 100);
    arbol(2, 0, 10, "QP", 80);
    arbol(3, 10, 10, "PS", 60);
    arbol(4, 10, 0, "QP", 40);
    arbol(5, 4, 6, "PS", 50);
    return filas;
}

Jornada::Jornada() {
    marco().Show();
}

void Jornada::abrirLibro(const std::vector<Hoja>& hojas, const std::string& nombre) {
    EscribirArchivoXls(carpeta.ruta() / nombre, hojas);
    servicios.prepararArchivo(carpeta.archivo(nombre));
    usuario.clic(marco().mnuAbrir);
}

void Jornada::aceptarHoja(const std::string& hoja) {
    auto& seleccion = programa.tocar<FrmSeleccion>();
    usuario.escribir(seleccion.CboHoja, hoja);
    usuario.clic(seleccion.CmdAceptar);
}

void Jornada::abrirParcela(const Filas& filas) {
    Hoja hoja;
    hoja.nombre = "Parcela1";
    hoja.celdas = filas;
    abrirLibro({hoja});
    aceptarHoja("Parcela1$");
}

void Jornada::cambiarOpciones(const std::function<void(OpcionesPrograma&)>& cambio) {
    usuario.clic(marco().mnuOpciones);
    cambio(opciones());
    usuario.clic(opciones().CmdAceptar);
}

void Jornada::seleccionarColumna(int columna) {
    usuario.seleccionarColumna(programa.tocar<Hojadedatos>().MSFlexGrid1, columna);
}

void Jornada::elegirPapel(SelColumnas& dialogo, int papel, int columna) {
    seleccionarColumna(columna);
    usuario.clic(dialogo.Command1(papel));
}

void Jornada::elegirDAP(SelColumnas& dialogo, int columna) {
    seleccionarColumna(columna);
    usuario.clic(dialogo.CmdDAP);
}

void Jornada::dibujarCuadrado() {
    pedirColumnas();
    auto& dialogo = programa.tocar<SelCol4R>();
    const bool conCodigo = opciones().ChCodigo.Value() == 1;
    for (int papel = 0; papel <= 5; ++papel) {
        elegirPapel(dialogo, papel, papel + 2);
    }
    elegirPapel(dialogo, 6, 1);
    if (conCodigo) {
        elegirPapel(dialogo, 7, 8);
    }
    elegirDAP(dialogo, 9);
    usuario.clic(dialogo.CmdDibujar);
    usuario.clic(programa.tocar<FrmFormato>().CmdAceptar);
}

} // namespace varo::prueba
