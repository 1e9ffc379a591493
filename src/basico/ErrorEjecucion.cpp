#include "basico/ErrorEjecucion.h"

#include <utility>

namespace varo {

std::string DescripcionError(int numero) {
    switch (numero) {
    case fallo::argumentoNoValido:
        return "Argumento o llamada a procedimiento no válida";
    case fallo::desbordamiento:
        return "Desbordamiento";
    case fallo::fueraDeIndice:
        return "El subíndice está fuera del intervalo";
    case fallo::divisionPorCero:
        return "División por cero";
    case fallo::tiposDistintos:
        return "No coinciden los tipos";
    case fallo::nombreDeArchivo:
        return "Nombre o número de archivo incorrecto";
    case fallo::archivoNoEncontrado:
        return "No se encontró el archivo";
    case fallo::discoLleno:
        return "Disco lleno";
    case fallo::permisoDenegado:
        return "Permiso denegado";
    case fallo::accesoAlArchivo:
        return "Error de acceso a la ruta o al archivo";
    case fallo::rutaNoEncontrada:
        return "No se encontró la ruta de acceso";
    case fallo::objetoNoEstablecido:
        return "Variable de objeto no establecida";
    case fallo::usoDeNulo:
        return "Uso no válido de Null";
    case fallo::funcionDeHoja:
        return "El argumento está fuera del dominio de la función de la hoja de cálculo";
    case fallo::sinRegistroActual:
        return "No hay ningún registro activo";
    case fallo::formatoNoReconocido:
        return "Formato de base de datos no reconocido";
    case fallo::archivoDanado:
        return "No se puede abrir el archivo de datos: está dañado";
    case fallo::archivoCifrado:
        return "No se puede abrir el archivo de datos: está cifrado o protegido con contraseña";
    case fallo::elementoNoEncontrado:
        return "No se encontró el elemento en esta colección";
    case fallo::nombreDesconocido:
        return "Nombre desconocido en la consulta";
    case fallo::tablaDesconocida:
        return "No se encuentra la tabla de la consulta";
    case fallo::sintaxisDeConsulta:
        return "Error de sintaxis en la consulta";
    case fallo::tiposDistintosEnConsulta:
        return "No coinciden los tipos de datos en la consulta";
    default:
        return "Error definido por la aplicación o el objeto";
    }
}

ErrorEjecucion::ErrorEjecucion(int numero) : ErrorEjecucion{numero, DescripcionError(numero)} {}

ErrorEjecucion::ErrorEjecucion(int numero, std::string descripcion)
    : numero_{numero}, descripcion_{std::move(descripcion)} {
    componerMensaje();
}

ErrorEjecucion& ErrorEjecucion::en(const std::string& lugar) {
    lugar_ = lugar_.empty() ? lugar : lugar + ", " + lugar_;
    componerMensaje();
    return *this;
}

void ErrorEjecucion::componerMensaje() {
    mensaje_ = "Error " + std::to_string(numero_) + ": " + descripcion_;
    if (!lugar_.empty()) {
        mensaje_ += " (" + lugar_ + ")";
    }
}

} // namespace varo
