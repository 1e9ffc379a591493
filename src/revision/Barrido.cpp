#include "revision/Barrido.h"

#include "basico/Numeros.h"

namespace varo {

std::optional<BarridoLeido> LeerBarrido(const BarridoPorRevisar& barrido) {
    if (!EsNumerico(barrido.desde) || !EsNumerico(barrido.hasta) || !EsNumerico(barrido.paso)) {
        return std::nullopt;
    }
    constexpr std::size_t masColumnas = 32'767;
    BarridoLeido leido;
    leido.desde = ANumero(barrido.desde);
    leido.hasta = ANumero(barrido.hasta);
    leido.paso = ANumero(barrido.paso);
    if (leido.paso == 0 && leido.hasta == leido.desde) {
        leido.paso = 1;
    }
    if (leido.paso == 0) {
        leido.avanza = false;
        return leido;
    }
    leido.caben = (leido.hasta - leido.desde) / leido.paso + 1;
    const auto dentro = [&](double valor) {
        return leido.paso > 0 ? valor <= leido.hasta : valor >= leido.hasta;
    };
    // As the loop of a run does: each value the one before plus the step.
    double valor = leido.desde;
    while (dentro(valor) && leido.valores <= masColumnas && leido.avanza) {
        ++leido.valores;
        leido.avanza = valor + leido.paso != valor;
        valor += leido.paso;
    }
    return leido;
}

} // namespace varo
