#include "indices/archivo/TextoResultados.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "indices/ResultadosIndices.h"
#include "indices/archivo/CabecerasDeVecindad.h"
#include "options/OpcionesPrograma.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <vector>

namespace varo {

namespace {

const char* const tabulador = "\t";
const char* const finDeFila = "\r";

/// The columns whose checks are on, in the order of the file.
template <class Columnas>
auto Pedidas(const OpcionesPrograma& opciones, const Columnas& columnas) {
    std::vector<const typename Columnas::value_type*> pedidas;
    for (const auto& columna : columnas) {
        if (static_cast<const Casilla&>(opciones.control(columna.casilla)).Value() == 1) {
            pedidas.push_back(&columna);
        }
    }
    return pedidas;
}

} // namespace

void TextoResultados::componerCabecera(std::string& cabecera, const Sentencia& sentencia) const {
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    sentencia([&] { cabecera = std::string{"NºOrden"} + tabulador + "NºArbol"; });
    for (const auto* const columna : Pedidas(opciones, columnasIndependientes)) {
        sentencia([&] { cabecera += std::string{tabulador} + columna->encabezado; });
    }
    for (const auto* const grupo : Pedidas(opciones, gruposDeVecindad)) {
        sentencia([&] {
            ContarDesdeUno(*grupo, opciones, programa_.resultados); // it holds even if the labels fail
            for (const auto& rotulo : grupo->rotulos(opciones, programa_.resultados)) {
                cabecera += tabulador + rotulo;
            }
        });
    }
}

void TextoResultados::componerFilas(std::string& filas, const Sentencia& sentencia) const {
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    const auto& resultados = programa_.resultados;
    const auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    const auto independientes = Pedidas(opciones, columnasIndependientes);
    const auto grupos = Pedidas(opciones, gruposDeVecindad);
    const int papel = PapelIndice(DatosDeLaCopa(opciones));
    const auto celda = [&](double valor, const char* formato) {
        filas += tabulador + Formato(valor, formato);
    };
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        sentencia([&] {
            const std::string& numero = rejilla.TextMatrix(fila, programa_.sesion.Columnas(papel).valor());
            filas += ATexto(fila) + tabulador + numero;
        });
        for (const auto* const columna : independientes) {
            sentencia([&] { celda((resultados.*columna->indice)(fila - 1), "##0.00"); });
        }
        for (const auto* const grupo : grupos) {
            for (int c = 0; c < grupo->columnas(resultados); ++c) {
                sentencia([&] { celda((resultados.*grupo->indice)(c, fila - 1), grupo->formato); });
            }
        }
        sentencia([&] { filas += finDeFila; });
    }
}

} // namespace varo
