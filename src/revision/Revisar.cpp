#include "revision/Revisar.h"

#include "revision/Cuaderno.h"
#include "revision/Lectura.h"
#include "revision/RevisarCodigos.h"
#include "revision/RevisarFilas.h"
#include "revision/RevisarMedidas.h"
#include "revision/RevisarNumeros.h"
#include "revision/RevisarOpciones.h"
#include "revision/RevisarSitios.h"

#include <utility>

namespace varo {

std::vector<Hallazgo> Revisar(const ParcelaPorRevisar& parcela, std::size_t porClase) {
    const Lectura lectura{parcela};
    Cuaderno cuaderno{porClase};
    RevisarFilas(lectura, cuaderno);
    RevisarNumeros(lectura, cuaderno);
    RevisarFaltas(lectura, cuaderno);
    RevisarContorno(lectura, cuaderno);
    RevisarSitios(lectura, cuaderno);
    RevisarAlineados(lectura, cuaderno);
    RevisarTroncos(lectura, cuaderno);
    RevisarCopas(lectura, cuaderno);
    RevisarSolapes(lectura, cuaderno);
    RevisarNumerosDeArbol(lectura, cuaderno);
    RevisarCodigos(lectura, cuaderno);
    RevisarCabeceras(lectura, cuaderno);
    RevisarOpciones(lectura, cuaderno);
    RevisarFunciones(lectura, cuaderno);
    return std::move(cuaderno).cerrar();
}

} // namespace varo
