#include "desktop/ventanas/Disposiciones.h"
#include "desktop/ventanas/PaginasDeOpciones.h"
#include "desktop/ventanas/PiezasDeOpciones.h"
#include "desktop/widgets/ContenidoDeDialogo.h"
#include "desktop/widgets/Desplazable.h"
#include "desktop/widgets/FichasLaterales.h"

#include <QPushButton>
#include <QTabWidget>

namespace varo {

namespace {

constexpr int parametrosDePotencias = 5;  ///< a to e
constexpr int parametrosDeRichards = 3;   ///< A, k, m
constexpr int parametrosHiperbolicos = 7; ///< A, k, a to e

/// Enter in a field of a function adds the function.
void PonerBotonesDeFunciones(ContenidoDeDialogo& contenido, const OpcionesPrograma& ventana,
                             const Vinculos& vinculos) {
    const auto poner = [&](const Matriz<CajaTexto>& campos, int primero, int cuantos, const Boton& boton) {
        auto* const pulsado = qobject_cast<QPushButton*>(vinculos.widgetDe(boton));
        for (int campo = primero; campo < primero + cuantos; ++campo) {
            contenido.ponerBotonDe(*vinculos.widgetDe(campos(campo)), *pulsado);
        }
    };
    poner(ventana.TxtRm, 0, parametrosDePotencias, ventana.CmdAñadir);
    poner(ventana.TxtEXP, 0, parametrosDePotencias, ventana.CmdAñadirDist);
    for (const int i : {seleccionIDP, seleccionDR}) {
        poner(ventana.TxtRich, parametrosDeRichards * i, parametrosDeRichards, ventana.CmdAñadirRich(i));
        poner(ventana.TxtHIP, parametrosHiperbolicos * i, parametrosHiperbolicos, ventana.CmdAñadirRich(i));
    }
}

} // namespace

QWidget* DisponerOpciones(OpcionesPrograma& ventana, Vinculos& vinculos) {
    auto* const contenido = new ContenidoDeDialogo;
    auto* const columna = new QVBoxLayout{contenido};
    const PiezasDeOpciones piezas{ventana, vinculos};
    QTabWidget* const fichas = vinculos.crearFichas(
        ventana.SSTab1,
        {new Desplazable{CrearPaginaDeUnidades(piezas)}, new Desplazable{CrearPaginaDeIndependientes(piezas)},
         new Desplazable{CrearPaginaDeISC(piezas)}, new Desplazable{CrearPaginaDeAOI(piezas)},
         new Desplazable{CrearPaginaDeDP(piezas)}, new Desplazable{CrearPaginaDeDR(piezas)},
         new Desplazable{CrearPaginaDeAPA(piezas)}});
    PonerFichasAlLado(*fichas);
    columna->addWidget(fichas);

    columna->addLayout(contenido->crearPie(vinculos.crearBoton(ventana.CmdAceptar),
                                           vinculos.crearBoton(ventana.CmdCancelar)));
    PonerBotonesDeFunciones(*contenido, ventana, vinculos);
    return contenido;
}

} // namespace varo
