#include "indices/vecinos/Intervalo.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/Numeros.h"

namespace varo {

Intervalo SinDegenerar(Intervalo intervalo) {
    if (intervalo.Paso == 0 && intervalo.Hasta == intervalo.Desde) {
        intervalo.Paso = 1;
    }
    return intervalo;
}

double CuantosCaben(const Intervalo& intervalo) {
    const auto pasoNulo = [&] {
        return "el paso del barrido de " + ATexto(intervalo.Desde) + " a " + ATexto(intervalo.Hasta) +
               " es 0";
    };
    return Porque(fallo::divisionPorCero, pasoNulo,
                  [&] { return Dividir(intervalo.Hasta - intervalo.Desde, intervalo.Paso); }) +
           1;
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
            throw ErrorEjecucion{fallo::fueraDeIndice}.porque(
                "el paso " + ATexto(intervalo.Paso) + " es demasiado pequeño para avanzar desde " +
                ATexto(valor)); // the columns run out before the values do
        }
        valor = siguiente;
    }
    return valores;
}

} // namespace varo
