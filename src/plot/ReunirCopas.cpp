#include "plot/ReunirCopas.h"

#include "data/FilasDeArboles.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

namespace varo {

FilasDeCopas ReunirCopas(Programa& programa) {
    const auto& sesion = programa.sesion;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    const auto& rejilla = programa.tocar<Hojadedatos>().MSFlexGrid1;
    FilasDeCopas copas;
    copas.datos = DatosDeLaCopa(opciones);
    if (copas.datos == DatosDeCopa::RadioMedio && opciones.OptElipse.Value) {
        copas.datos = DatosDeCopa::DosDiametros;
    }
    copas.FactorRadios = sesion.FactorRadios.valor();
    const auto columna = [&](int papel) { return sesion.Columnas(papel).valor(); };
    copas.filas = PorArbol(rejilla, [&](int fila) {
        const auto celda = [&](int numero) { return CeldaLeida{rejilla.TextMatrix(fila, numero)}; };
        FilaDeCopa copa;
        copa.x = celda(columna(papelX));
        copa.y = celda(columna(papelY));
        copa.sinTamano = rejilla.TextMatrix(fila, sesion.ColumnaDAP.valor()).empty();
        for (int medida = 0; medida < MedidasDeCopa(copas.datos); ++medida) {
            copa.medidas[static_cast<std::size_t>(medida)] = celda(columna(PapelDeCopa(medida)));
        }
        return copa;
    });
    return copas;
}

} // namespace varo
