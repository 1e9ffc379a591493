#include "plot/calculo/AreaBasimetrica.h"

#include "basico/Aritmetica.h"

namespace varo {

double AreaBasimetrica(double tamano, const UnidadesTallo& unidades) {
    const double cuadrado = Potencia(tamano, 2);
    switch (unidades.unidad) {
    case UnidadLongitud::Centimetros:
        return unidades.circunferencia ? cuadrado / 125663.708 : (cuadrado * numeroPi) / 40000.0;
    case UnidadLongitud::Decimetros:
        return unidades.circunferencia ? cuadrado / 1256.63708 : (cuadrado * numeroPi) / 400.0;
    case UnidadLongitud::Metros:
        break;
    }
    return unidades.circunferencia ? cuadrado / 12.5663708 : (cuadrado * numeroPi) / 4.0;
}

namespace {

/// The query up to the name of the table. The divisors are those of diameters in cm and in dm.
std::string Cabeza(const std::string& campo, const std::string& hoja, const UnidadesTallo& unidades,
                   const std::string& enCentimetros, const std::string& enDecimetros) {
    std::string expresion;
    switch (unidades.unidad) {
    case UnidadLongitud::Centimetros:
        expresion = unidades.circunferencia ? "]^2/(4*3.1415927*10000)" : "]^2*3.1415927/" + enCentimetros;
        break;
    case UnidadLongitud::Decimetros:
        expresion = unidades.circunferencia ? "]^2/(4*3.1415927*100)" : "]^2*3.1415927/" + enDecimetros;
        break;
    case UnidadLongitud::Metros:
        expresion = unidades.circunferencia ? "]^2/(4*3.1415927)" : "]^2*3.1415927/4";
        break;
    }
    return "SELECT Sum ( [" + campo + expresion + " ) as [AB] FROM [" + hoja;
}

} // namespace

std::string ConsultaAreaBasimetrica(const std::string& campo, const std::string& hoja,
                                    const UnidadesTallo& unidades) {
    return Cabeza(campo, hoja, unidades, "(4*10000)", "(4*100)");
}

std::string ConsultaAreaBasimetrica(const std::string& campo, const std::string& hoja,
                                    const UnidadesTallo& unidades, const std::string& condicion) {
    return Cabeza(campo, hoja, unidades, "40000", "400") + "] WHERE " + condicion;
}

double TerminoAreaBasimetrica(double tamano, const UnidadesTallo& unidades) {
    const double cuadrado = Potencia(tamano, 2);
    switch (unidades.unidad) {
    case UnidadLongitud::Centimetros:
        return unidades.circunferencia ? cuadrado / (4 * numeroPi * 10000)
                                       : cuadrado * numeroPi / (4 * 10000);
    case UnidadLongitud::Decimetros:
        return unidades.circunferencia ? cuadrado / (4 * numeroPi * 100) : cuadrado * numeroPi / (4 * 100);
    case UnidadLongitud::Metros:
        break;
    }
    return unidades.circunferencia ? cuadrado / (4 * numeroPi) : cuadrado * numeroPi / 4;
}

} // namespace varo
