#include "indices/vecinos/Intervalo.h"

#include "basico/Aritmetica.h"
#include "basico/ErrorEjecucion.h"

namespace varo {

Intervalo SinDegenerar(Intervalo intervalo) {
    if (intervalo.Paso == 0 && intervalo.Hasta == intervalo.Desde) {
        intervalo.Paso = 1;
    }
    return intervalo;
}

double CuantosCaben(const Intervalo& intervalo) {
    return Dividir(intervalo.Hasta - intervalo.Desde, intervalo.Paso) + 1;
}

std::vector<double> ValoresDe(const Intervalo& intervalo) {
    std::vector<double> valores;
    const auto dentro = [&](double valor) {
        return intervalo.Paso >= 0 ? valor <= intervalo.Hasta : valor >= intervalo.Hasta;
    };
    for (double valor = intervalo.Desde; dentro(valor);) {
        valores.push_back(valor);
        const double siguiente = valor + intervalo.Paso;
        if (siguiente == valor) {
            throw ErrorEjecucion{fallo::fueraDeIndice}; // the columns run out before the values do
        }
        valor = siguiente;
    }
    return valores;
}

} // namespace varo
