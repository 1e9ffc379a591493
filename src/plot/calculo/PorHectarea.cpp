#include "plot/calculo/PorHectarea.h"

#include "basico/Aritmetica.h"

namespace varo {

double PiesPorHectarea(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                       int numPuntosPoligono, double supPoligono) {
    const auto consulta =
        base.OpenRecordset("SELECT Count ( " + campo + " ) as [variablecodigo] FROM [" + hoja + "] ");
    const double cuenta = ANumero(consulta.Fields(0).Value);
    return Dividir(cuenta - (numPuntosPoligono - 1) / 2.0, supPoligono) * 10000;
}

Valor SumaAreaBasimetrica(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                          const UnidadesTallo& unidades) {
    return base.OpenRecordset(ConsultaAreaBasimetrica(campo, hoja, unidades) + "] ").Fields(0).Value;
}

double AreaBasimetricaDeBorde(const TablaPoligono& poligono, int columna, int numPuntosPoligono,
                              const MatrizDinamica<double>& anguloInterior) {
    double quitar = 0;
    for (int i = 0; i <= numPuntosPoligono - 2; ++i) {
        const double angulo = anguloInterior(i);
        quitar = quitar + ANumero(poligono(columna, i)) * (1.0 - angulo / 360.0);
    }
    return quitar;
}

double AreaBasimetricaPorHectarea(const Valor& suma, double quitar, double supPoligono) {
    return Dividir(ANumero(suma) - quitar, supPoligono) * 10000;
}

} // namespace varo
