#include "indices/archivo/Rotulos.h"

#include "basico/Numeros.h"

namespace varo {

namespace {

const char* Nombre(Lado lado) {
    return lado == Lado::Bilateral ? "Bil." : "Uni.";
}

} // namespace

std::string PrefijoDeRegla(ReglaDeSeleccion regla) {
    switch (regla) {
    case ReglaDeSeleccion::BAF:
        return "BAF:";
    case ReglaDeSeleccion::NumeroFijo:
        return "n:";
    case ReglaDeSeleccion::Funcion:
        return "Ec:";
    case ReglaDeSeleccion::Distancia:
        break;
    }
    return "R:";
}

std::string RotuloISC(Lado lado) {
    return std::string{"ISC("} + Nombre(lado) + ")";
}

std::string RotuloAOI(double k, int entrada, Lado lado) {
    return "AOI(k:" + ATexto(k) + ";Ec:" + ATexto(entrada) + ";" + Nombre(lado) + ")";
}

std::string RotuloIDP(const std::string& prefijo, double parametro, Lado lado, bool conArbolCentral) {
    return "IDP(" + prefijo + ATexto(parametro) + ";" + Nombre(lado) + (conArbolCentral ? ";Sí)" : ";No)");
}

std::string RotuloDR(double k, const std::string& prefijo, double parametro, int entrada, Lado lado) {
    return "DR(k:" + ATexto(k) + ";" + prefijo + ATexto(parametro) + ";Fdis:" + ATexto(entrada) + ";" +
           Nombre(lado) + ")";
}

std::string RotuloAPA(double k) {
    return "APA(k:" + ATexto(k) + ")";
}

} // namespace varo
