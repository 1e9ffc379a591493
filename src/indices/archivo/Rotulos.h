// The labels of the columns of the families of neighbours: "DR(k:0,5;BAF:2;Fdis:1;Bil.)".
#pragma once

#include "indices/vecinos/Lado.h"
#include "indices/vecinos/Seleccion.h"

#include <string>

namespace varo {

/// What stands before the selection parameter: "BAF:", "n:", "Ec:" or "R:".
std::string PrefijoDeRegla(ReglaDeSeleccion regla);

std::string RotuloISC(Lado lado);
/// List entries count from 1.
std::string RotuloAOI(double k, int entrada, Lado lado);
std::string RotuloIDP(const std::string& prefijo, double parametro, Lado lado, bool conArbolCentral);
std::string RotuloDR(double k, const std::string& prefijo, double parametro, int entrada, Lado lado);
std::string RotuloAPA(double k);

} // namespace varo
