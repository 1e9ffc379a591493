#include "indices/TextoResultados.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "indices/ResultadosIndices.h"
#include "options/OpcionesPrograma.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <vector>

namespace varo {

namespace {

const char* const tabulador = "\t";
const char* const finDeFila = "\r";

/// The columns whose checks are on, in the order of the file.
std::vector<const ColumnaIndependiente*> Pedidas(const OpcionesPrograma& opciones) {
    std::vector<const ColumnaIndependiente*> pedidas;
    for (const auto& columna : columnasIndependientes) {
        if (static_cast<const Casilla&>(opciones.control(columna.casilla)).Value() == 1) {
            pedidas.push_back(&columna);
        }
    }
    return pedidas;
}

/// Role of the tree number for the file.
int PapelDelNumero(FormaDeCopa forma) {
    switch (forma) {
    case FormaDeCopa::CuatroRadios:
        return 6;
    case FormaDeCopa::DosDiametros:
        return 4;
    case FormaDeCopa::RadioMedio:
        break;
    }
    return 3;
}

} // namespace

void TextoResultados::componerCabecera(std::string& cabecera, const Sentencia& sentencia) const {
    sentencia([&] { cabecera = std::string{"NºOrden"} + tabulador + "NºArbol"; });
    for (const auto* const columna : Pedidas(programa_.tocar<OpcionesPrograma>())) {
        sentencia([&] { cabecera += std::string{tabulador} + columna->encabezado; });
    }
}

void TextoResultados::componerFilas(std::string& filas, const Sentencia& sentencia) const {
    const auto& opciones = programa_.tocar<OpcionesPrograma>();
    const auto& rejilla = programa_.tocar<Hojadedatos>().MSFlexGrid1;
    const auto pedidas = Pedidas(opciones);
    const int papel = PapelDelNumero(FormaDeLaCopa(opciones));
    for (int fila = 1; fila < rejilla.Rows(); ++fila) {
        sentencia([&] {
            const std::string& numero = rejilla.TextMatrix(fila, programa_.sesion.Columnas(papel).valor());
            filas += ATexto(fila) + tabulador + numero;
        });
        for (const auto* const columna : pedidas) {
            sentencia([&] {
                const auto& indice = programa_.resultados.*columna->indice;
                filas += tabulador + Formato(indice(fila - 1), "##0.00");
            });
        }
        sentencia([&] { filas += finDeFila; });
    }
}

} // namespace varo
