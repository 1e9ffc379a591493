#include "avisos/HojaPorRevisar.h"

#include "avisos/ReunirOpciones.h"
#include "data/Hojadedatos.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

namespace varo {

HojaPorRevisar LaHojaPorRevisar(Programa& programa, const LoPedido& pedido) {
    const auto& sesion = programa.sesion;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    auto& datos = programa.tocar<Hojadedatos>().Data1;
    HojaPorRevisar hoja;
    hoja.archivo = datos.DatabaseName();
    hoja.hoja = datos.Recordset().filas().Name;
    hoja.copa = DatosDeLaCopa(opciones);
    hoja.conCodigo = opciones.ChCodigo.Value() == 1;
    for (int papel = 0; papel <= sesion.Columnas.limite(); ++papel) {
        hoja.columnas.push_back(sesion.Columnas(papel).valor());
    }
    hoja.columnaDelTamano = sesion.ColumnaDAP.valor();
    hoja.opciones = ReunirOpciones(opciones, pedido);
    return hoja;
}

} // namespace varo
