#include "avisos/AvisosDeLaHoja.h"

#include "avisos/CercarParcela.h"
#include "avisos/ReunirColumnas.h"
#include "avisos/ReunirOpciones.h"
#include "data/Hojadedatos.h"
#include "data/SelColumnas.h"
#include "options/Unidades.h"
#include "revision/Revisar.h"
#include "shell/Programa.h"

#include <array>

namespace varo {

namespace {

/// The column dialog for the kind of crown data that is chosen, where it is loaded.
const SelColumnas* DialogoCargado(const Programa& programa, DatosDeCopa copa) {
    const std::array<const SelColumnas*, 3> dialogos{
        programa.cargada<SelCol4R>(), programa.cargada<SelCol2D>(), programa.cargada<SelColRM>()};
    for (const SelColumnas* const dialogo : dialogos) {
        if (dialogo != nullptr && dialogo->papeles().copa == copa) {
            return dialogo;
        }
    }
    return nullptr;
}

} // namespace

bool HayColumnasElegidas(Programa& programa) {
    const auto* const hoja = programa.cargada<Hojadedatos>();
    const auto* const opciones = programa.cargada<OpcionesPrograma>();
    if (hoja == nullptr || opciones == nullptr || !hoja->MSFlexGrid1.Visible()) {
        return false;
    }
    const auto* const dialogo = DialogoCargado(programa, DatosDeLaCopa(*opciones));
    return dialogo != nullptr && dialogo->CmdDibujar.Enabled() && HayColumnasParaTodo(programa);
}

std::vector<Hallazgo> AvisosDeLaHoja(Programa& programa, const LoPedido& pedido) {
    ParcelaPorRevisar parcela = ReunirColumnas(programa);
    parcela.opciones = ReunirOpciones(programa.tocar<OpcionesPrograma>(), pedido);
    Cercar(parcela, programa);
    return Revisar(parcela);
}

} // namespace varo
