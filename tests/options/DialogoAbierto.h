// The options dialog on show, with a person's hands and a prepared platform.
#pragma once

#include "formularios/ServiciosPreparados.h"
#include "formularios/Usuario.h"
#include "options/OpcionesPrograma.h"
#include "shell/Programa.h"
#include "shell/VAROMAIN.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace varo::prueba {

inline const Aviso avisoNumerico{"El valor debe ser numérico", "Valor erróneo"};
inline const Aviso avisoSeparacion{"La separación decimal es ,", "Error en la separación decimal"};
inline const Aviso avisoNegativo{"No se admiten valores negativos", "Error en el valor introducido"};
inline const Aviso avisoNatural{"Sólo se admiten números naturales", "Error en la introducción de datos"};
inline const Aviso avisoIntervalo{"El intervalo no es correcto", "Intervalo incorrecto"};

class DialogoAbierto : public testing::Test {
protected:
    DialogoAbierto() {
        principal.Show();
        opciones.Show();
    }
    void TearDown() override { EXPECT_TRUE(servicios.todoPedido()); }

    /// An act shows exactly these message boxes, with the exclamation icon and one button.
    template <class Acto>
    void conAvisos(const std::vector<Aviso>& avisos, Acto&& acto) {
        const auto antes = static_cast<std::ptrdiff_t>(servicios.mensajes().size());
        std::vector<ServiciosPreparados::Mensaje> esperados;
        for (const Aviso& aviso : avisos) {
            servicios.esperarMensaje(aviso.texto);
            esperados.push_back({aviso.texto, aviso.titulo, 48});
        }
        std::forward<Acto>(acto)();
        EXPECT_EQ(std::vector(servicios.mensajes().begin() + antes, servicios.mensajes().end()), esperados);
    }

    void encenderTodas() {
        for (Casilla* interruptor : {&opciones.ChSupCopa, &opciones.ChAOIActivar, &opciones.ChIDPActivar,
                                     &opciones.ChDRActivar, &opciones.ChAPA}) {
            usuario.clic(*interruptor);
        }
    }
    void teclear(CajaTexto& campo, const std::string& texto) { usuario.escribir(campo, texto); }
    void dejar() { usuario.dejarFoco(); }
    /// Leaves a field that keeps the focus, through another window.
    void salirPorOtraVentana() {
        usuario.activar(principal);
        usuario.activar(opciones);
    }
    static std::vector<std::string> lineas(const Lista& lista) {
        std::vector<std::string> textos;
        for (int i = 0; i < lista.ListCount(); ++i) {
            textos.push_back(lista.List(i));
        }
        return textos;
    }

    ServiciosPreparados servicios;
    Programa programa{servicios};
    Usuario usuario{programa};
    VAROMAIN& principal = programa.tocar<VAROMAIN>();
    OpcionesPrograma& opciones = programa.tocar<OpcionesPrograma>();
};

using Lineas = std::vector<std::string>;

} // namespace varo::prueba
