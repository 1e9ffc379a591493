#include "data/FrmSeleccion.h"

#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "basico/Texto.h"
#include "data/Hojadedatos.h"
#include "formularios/Reloj.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>

namespace varo {

namespace {

/// The width of a column that holds the text, in twips: the same on every screen, and within 16 bits.
int AnchoConMargen(const std::string& texto) {
    constexpr std::size_t twipsPorLetra = 75;
    constexpr std::size_t anchoMaximo = 32667;
    constexpr int margen = 100;
    const auto letras = static_cast<std::size_t>(Longitud(texto));
    return static_cast<int>(std::min(letras * twipsPorLetra, anchoMaximo)) + margen;
}

/// Removes the rows without data. Meant: the bound is taken once, so after a removal the walk runs past the
/// end of the grid; that fault, like the one of removing the last row, ends the walk.
void QuitarFilasVacias(Rejilla& rejilla, const Avance& avance) {
    Saltando([&] {
        const int ultima = rejilla.Rows() - 1;
        for (int fila = 1; fila <= ultima; ++fila) {
            avance.paso();
            bool vacia = true;
            for (int columna = 1; vacia && columna < rejilla.Cols(); ++columna) {
                vacia = rejilla.TextMatrix(fila, columna).empty();
            }
            if (vacia) {
                rejilla.RemoveItem(fila);
                --fila;
            }
        }
    });
}

/// Hides the columns without data; their header stays.
void OcultarColumnasVacias(Rejilla& rejilla) {
    Saltando([&] {
        for (int columna = 1; columna < rejilla.Cols(); ++columna) {
            bool vacia = true;
            for (int fila = 1; vacia && fila < rejilla.Rows(); ++fila) {
                vacia = rejilla.TextMatrix(fila, columna).empty();
            }
            if (vacia) {
                rejilla.ColWidth(columna, 0);
            }
        }
    });
}

constexpr int filasQueCaben = 32766;

/// "32.767", for a sheet of a thousand rows or more.
std::string ConMiles(int numero) {
    std::string texto = ATexto(numero);
    return texto.insert(texto.size() - 3, 1, '.');
}

/// Why a sheet is too long: its rows, and where the last one stands when most of them are empty.
std::string PorQueNoCabe(const Tabla& tabla) {
    const auto cuantas = tabla.filas.size();
    std::string causa = "la hoja tiene " + ConMiles(static_cast<int>(cuantas)) + " filas; el límite es " +
                        ConMiles(filasQueCaben);
    const auto ultimaFila = tabla.filas[cuantas - 1];
    if (tabla.filas.conContenido() <= filasQueCaben && ultimaFila.celdas() > 0) {
        const auto celda = ultimaFila.ultima();
        causa += ". Solo " + ATexto(static_cast<int>(tabla.filas.conContenido())) +
                 " tienen algo: mire si sobra la última, la fila " +
                 std::to_string(tabla.numeroDeFila(cuantas - 1)) + ", con " +
                 Cita(ATexto(Valor{celda.valor})) + " en la columna «" + tabla.Fields(celda.columna).Name +
                 "»";
    }
    return causa;
}

} // namespace

FrmSeleccion::FrmSeleccion(Programa& programa)
    : Formulario{programa, "FrmSeleccion", TipoVentana::Libre, "Localización de los datos"}, programa_{
                                                                                                 programa} {
    CmdAceptar.Click = [this] { CmdAceptar_Click(); };
    CmdCancelar.Click = [this] { CmdCancelar_Click(); };
}

void FrmSeleccion::CmdAceptar_Click() {
    const auto reloj = PonerReloj(*this);
    try {
        abrirHoja();
        ultimoFallo_.reset();
    } catch (const ErrorEjecucion& error) {
        ultimoFallo_ = error;
        MousePointer = punteroNormal;
        programa_.servicios().mensaje(hojaNoEncontrada, "Hoja no encontrada", mensaje::exclamacion);
        CboHoja.SetFocus();
    }
}

void FrmSeleccion::abrirHoja() {
    RellenarGrid(CboHoja.Text);
    auto& hoja = programa_.tocar<Hojadedatos>();
    auto& marco = programa_.tocar<VAROMAIN>();
    const std::filesystem::path archivo{marco.DlogoAbrir.FileName};
    hoja.Caption = CboHoja.Text() + " " + archivo.filename().string();
    hoja.Form_Resize(); // the grid takes the inside of the window
    hoja.MSFlexGrid1.Visible = true;
    hoja.Show();
    Hide();
    MousePointer = punteroNormal;
    marco.mnuCerrar.Enabled = true;
    marco.mnuAbrir.Enabled = false;
    marco.mnuMapa.Enabled = true;
    marco.mnuOpciones.Enabled = true;
}

void FrmSeleccion::RellenarGrid(const std::string& hoja) {
    auto& ventana = programa_.tocar<Hojadedatos>();
    const auto dejarComoEstaba = [&, datos = ventana.Data1, celdas = ventana.MSFlexGrid1.contenido()] {
        ventana.Data1 = datos;
        ventana.MSFlexGrid1.reponer(celdas);
    };
    AlCancelar(dejarComoEstaba, [&] { copiarTabla(hoja, programa_.servicios().avance()); });
}

void FrmSeleccion::copiarTabla(const std::string& hoja, const Avance& avance) {
    auto& ventana = programa_.tocar<Hojadedatos>();
    auto& datos = ventana.Data1;
    auto& rejilla = ventana.MSFlexGrid1;
    datos.RecordSource = hoja;
    const Entero16 campos = datos.Database().TableDefs()(hoja).Fields.Count();
    rejilla.Cols(campos.valor() + 1);
    datos.Refresh();
    Porque(
        fallo::sinRegistroActual, [] { return "la hoja no tiene ninguna fila debajo de la cabecera"; },
        [&] { datos.Recordset().MoveLast(); });
    rejilla.Rows(datos.Recordset().RecordCount() + 1);
    datos.Recordset().MoveFirst();
    escribirEncabezados(hoja);
    avance.etapa("Hoja «" + hoja + "»");
    avance.empezar(2 * static_cast<std::size_t>(rejilla.Rows()));
    copiarFilas(hoja, avance);
    QuitarFilasVacias(rejilla, avance);
    OcultarColumnasVacias(rejilla);
    rejilla.ColSel = 0;
}

void FrmSeleccion::escribirEncabezados(const std::string& hoja) {
    auto& ventana = programa_.tocar<Hojadedatos>();
    auto& rejilla = ventana.MSFlexGrid1;
    const auto& campos = ventana.Data1.Database().TableDefs()(hoja).Fields;
    rejilla.Row(0);
    for (int columna = rejilla.Cols() - 1; columna >= 1; --columna) {
        rejilla.Col(columna);
        rejilla.Text(campos(columna - 1).Name);
        rejilla.ColWidth(columna, AnchoConMargen(rejilla.Text()));
    }
    rejilla.TextMatrix(0, 0, "Nº de punto");
    // Meant: column 0 takes its width from the current cell, which is still the first field's header.
    rejilla.ColWidth(0, AnchoConMargen(rejilla.Text()));
}

void FrmSeleccion::copiarFilas(const std::string& hoja, const Avance& avance) {
    auto& ventana = programa_.tocar<Hojadedatos>();
    auto& rejilla = ventana.MSFlexGrid1;
    auto& filas = ventana.Data1.Recordset();
    const int campos = ventana.Data1.Database().TableDefs()(hoja).Fields.Count();
    Entero16 contador = 1;
    for (; !filas.Eof(); filas.MoveNext()) {
        avance.paso();
        rejilla.Row(rejilla.Row() + 1);
        const auto situar = [&](ErrorEjecucion& error) {
            if (rejilla.Row() > filasQueCaben) {
                error.porque(PorQueNoCabe(filas.filas()));
                return;
            }
            error.en("columna «" + rejilla.TextMatrix(0, rejilla.Col()) + "»");
            const auto registro = static_cast<std::size_t>(rejilla.Row()) - 1;
            error.enFila(filas.numeroDeFila(), filas.filas().lugarDeFila(registro));
        };
        AlFallar(situar, [&] { copiarFila(filas, campos, contador); });
    }
}

void FrmSeleccion::copiarFila(const Recordset& filas, int campos, Entero16& contador) {
    auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    // Meant: the loop ends one short, so the last field of a table gets a header and no data.
    for (int columna = 0; columna < campos; ++columna) {
        rejilla.Col(columna);
        if (columna == 0) {
            rejilla.Text(ATexto(contador.valor()));
            ++contador;
            continue;
        }
        const Valor& valor = filas.Fields(columna - 1).Value;
        rejilla.Text(EsNulo(valor) ? std::string{} : ATexto(valor));
        const int ancho = AnchoConMargen(rejilla.Text());
        if (ancho > rejilla.ColWidth(columna)) {
            rejilla.ColWidth(columna, ancho);
        }
    }
}

void FrmSeleccion::CmdCancelar_Click() {
    auto& datos = programa_.tocar<Hojadedatos>().Data1;
    datos.RecordSource.clear();
    datos.DatabaseName("");
    programa_.descargar(*this);
}

} // namespace varo
