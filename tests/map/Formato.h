// The way to the format window, with a small plot behind it.
#pragma once

#include "apoyo/Jornada.h"
#include "data/Hojadedatos.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"

#include <string>
#include <utility>
#include <vector>

namespace varo::prueba {

using Textos = std::vector<std::string>;

inline Valor TextoDeCelda(const std::string& texto) {
    return Valor{texto};
}

/// Trees at the corners of a square and inside it, with these codes in the sheet's order; fields Arbol, X, Y,
/// R, Cod, Nota.
inline Filas ConCodigos(const std::vector<Valor>& codigos) {
    const auto texto = TextoDeCelda;
    Filas filas{{texto("Arbol"), texto("X"), texto("Y"), texto("R"), texto("Cod"), texto("Nota")}};
    const std::vector<std::pair<double, double>> lugares{{0, 0}, {0, 10}, {10, 10}, {10, 0}, {5, 5}, {4, 3}};
    for (std::size_t i = 0; i < codigos.size(); ++i) {
        filas.push_back(
            {static_cast<double>(i + 1), lugares[i].first, lugares[i].second, 10.0, codigos[i], texto("n")});
    }
    return filas;
}

/// The same with codes that are texts.
inline Filas ConCodigos(const Textos& codigos) {
    std::vector<Valor> celdas;
    for (const auto& codigo : codigos) {
        celdas.push_back(TextoDeCelda(codigo));
    }
    return ConCodigos(celdas);
}

/// The columns of ConCodigos chosen and "Dibujar" pressed.
struct Formato : Jornada {
    explicit Formato(const Filas& filas, bool conCodigo = true) {
        abrirParcela(filas);
        cambiarOpciones([&](OpcionesPrograma& opciones) {
            usuario.clic(opciones.OptRM);
            if (!conCodigo) {
                usuario.clic(opciones.ChCodigo);
            }
        });
        elegirColumnas(conCodigo);
    }
    void elegirColumnas(bool conCodigo) {
        pedirColumnas();
        auto& dialogo = programa.tocar<SelColRM>();
        usuario.clic(dialogo.CmdQuitarTodo);
        elegirPapel(dialogo, 0, 2);
        elegirPapel(dialogo, 1, 3);
        elegirPapel(dialogo, 2, 4);
        elegirPapel(dialogo, 3, 1);
        if (conCodigo) {
            elegirPapel(dialogo, 4, 5);
        }
        usuario.clic(dialogo.CmdDibujar);
    }
    /// Closes the file and comes back to the format window with another one.
    void abrirOtraParcela(const Filas& filas) {
        usuario.clic(marco().mnuCerrar);
        abrirParcela(filas);
        cambiarOpciones([&](OpcionesPrograma& opciones) {
            servicios.esperarMensaje(
                "Cambiaste el tipo de datos de entrada. Debes seleccionar de nuevo las columnas de entrada");
            usuario.clic(opciones.OptRM);
        });
        elegirColumnas(true);
    }
    /// Closes the window with "Cancelar" and has it made anew. The menus stay off: a person would have to
    /// close the file.
    FrmFormato& rehacer() {
        usuario.clic(ventana().CmdCancelar);
        ventana().Show();
        return ventana();
    }
    FrmFormato& ventana() { return programa.tocar<FrmFormato>(); }
    void aceptar() { usuario.clic(ventana().CmdAceptar); }
    FrmMapa& mapa() { return programa.tocar<FrmMapa>(); }
    Textos columna(int numero) {
        const auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
        Textos textos;
        textos.reserve(static_cast<std::size_t>(rejilla.Rows()));
        for (int fila = 1; fila < rejilla.Rows(); ++fila) {
            textos.push_back(rejilla.TextMatrix(fila, numero));
        }
        return textos;
    }
};

} // namespace varo::prueba
