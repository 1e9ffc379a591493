#include "motor/sql/Resumen.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"

#include <algorithm>
#include <utility>

namespace varo::sql {

Resumen::Resumen(Agregado agregado, Evaluador evaluador)
    : agregado_{agregado}, evaluador_{std::move(evaluador)} {}

void Resumen::Anadir(const std::vector<Valor>& fila) {
    const auto operando = evaluador_(fila);
    if (operando.EsNulo()) {
        return;
    }
    if (agregado_ != Agregado::cuenta) {
        AlFallar([this](ErrorEjecucion& error) { evaluador_.Situar(error); },
                 [&] { Acumular(NumeroExigido(operando)); });
    }
    ++cuenta_;
}

void Resumen::Acumular(double numero) {
    if (agregado_ == Agregado::suma || agregado_ == Agregado::media) {
        acumulado_ = ExigirFinito(acumulado_ + numero);
    } else if (cuenta_ == 0) {
        acumulado_ = numero;
    } else if (agregado_ == Agregado::maximo) {
        acumulado_ = std::max(acumulado_, numero);
    } else {
        acumulado_ = std::min(acumulado_, numero);
    }
}

Valor Resumen::Resultado() const {
    const auto cuenta = static_cast<double>(cuenta_);
    if (agregado_ == Agregado::cuenta) {
        return cuenta;
    }
    if (cuenta_ == 0) {
        return Nulo{};
    }
    return agregado_ == Agregado::media ? Dividir(acumulado_, cuenta) : acumulado_;
}

} // namespace varo::sql
