#include "motor/sql/Resumen.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"

#include <algorithm>
#include <utility>

namespace varo::sql {

Resumen::Resumen(Agregado agregado, Evaluador evaluador)
    : agregado_{agregado}, evaluador_{std::move(evaluador)} {}

void Resumen::anadir(FilaDeTabla fila) {
    const auto operando = evaluador_(fila);
    if (operando.esNulo()) {
        return;
    }
    if (agregado_ != Agregado::Cuenta) {
        AlFallar([this](ErrorEjecucion& error) { evaluador_.situar(error); },
                 [&] { acumular(NumeroExigido(operando)); });
    }
    ++cuenta_;
}

void Resumen::acumular(double numero) {
    if (agregado_ == Agregado::Suma || agregado_ == Agregado::Media) {
        acumulado_ = ExigirFinito(acumulado_ + numero);
    } else if (cuenta_ == 0) {
        acumulado_ = numero;
    } else if (agregado_ == Agregado::Maximo) {
        acumulado_ = std::max(acumulado_, numero);
    } else {
        acumulado_ = std::min(acumulado_, numero);
    }
}

Valor Resumen::resultado() const {
    const auto cuenta = static_cast<double>(cuenta_);
    if (agregado_ == Agregado::Cuenta) {
        return cuenta;
    }
    if (cuenta_ == 0) {
        return Nulo{};
    }
    return agregado_ == Agregado::Media ? Dividir(acumulado_, cuenta) : acumulado_;
}

} // namespace varo::sql
