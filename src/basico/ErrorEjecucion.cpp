#include "basico/ErrorEjecucion.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

namespace varo {

namespace {

struct Descrito {
    int numero;
    const char* descripcion;
};

constexpr std::array<Descrito, 24> descritos{{
    {fallo::argumentoNoValido, "Argumento o llamada a procedimiento no válida"},
    {fallo::desbordamiento, "Desbordamiento"},
    {fallo::fueraDeIndice, "El subíndice está fuera del intervalo"},
    {fallo::divisionPorCero, "División por cero"},
    {fallo::tiposDistintos, "No coinciden los tipos"},
    {fallo::nombreDeArchivo, "Nombre o número de archivo incorrecto"},
    {fallo::archivoNoEncontrado, "No se encontró el archivo"},
    {fallo::discoLleno, "Disco lleno"},
    {fallo::permisoDenegado, "Permiso denegado"},
    {fallo::accesoAlArchivo, "Error de acceso a la ruta o al archivo"},
    {fallo::rutaNoEncontrada, "No se encontró la ruta de acceso"},
    {fallo::objetoNoEstablecido, "Variable de objeto no establecida"},
    {fallo::usoDeNulo, "Uso no válido de Null"},
    {fallo::funcionDeHoja, "El argumento está fuera del dominio de la función de la hoja de cálculo"},
    {fallo::sinRegistroActual, "No hay ningún registro activo"},
    {fallo::formatoNoReconocido, "Formato de base de datos no reconocido"},
    {fallo::archivoDanado, "No se puede abrir el archivo de datos: está dañado"},
    {fallo::archivoCifrado, "No se puede abrir el archivo de datos: está cifrado o protegido con contraseña"},
    {fallo::elementoNoEncontrado, "No se encontró el elemento en esta colección"},
    {fallo::nombreDesconocido, "Nombre desconocido en la consulta"},
    {fallo::tablaDesconocida, "No se encuentra la tabla de la consulta"},
    {fallo::tablaNoAdmitida, "Operación no admitida para este tipo de tabla"},
    {fallo::sintaxisDeConsulta, "Error de sintaxis en la consulta"},
    {fallo::tiposDistintosEnConsulta, "No coinciden los tipos de datos en la consulta"},
}};

} // namespace

std::string DescripcionError(int numero) {
    const auto* const descrito = std::ranges::find(descritos, numero, &Descrito::numero);
    return descrito == descritos.end() ? "Error definido por la aplicación o el objeto"
                                       : descrito->descripcion;
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

ErrorEjecucion& ErrorEjecucion::enFila(int fila, const std::string& lugar) {
    detrasDeLaFila_ = lugar_.empty() ? 0 : lugar_.size() + 2; // a comma and a blank
    fila_ = fila;
    return en(lugar);
}

ErrorEjecucion& ErrorEjecucion::precisarFila(const std::string& detalle) {
    assert(fila_);
    if (!filaPrecisada_) {
        lugar_.insert(lugar_.size() - detrasDeLaFila_, ", " + detalle);
        filaPrecisada_ = true;
        componerMensaje();
    }
    return *this;
}

ErrorEjecucion& ErrorEjecucion::porque(const std::string& causa) {
    if (causa_.empty()) {
        causa_ = causa;
        descripcion_ += ": " + causa;
        componerMensaje();
    }
    return *this;
}

void ErrorEjecucion::componerMensaje() {
    mensaje_ = "Error " + std::to_string(numero_) + ": " + descripcion_;
    if (!lugar_.empty()) {
        mensaje_ += " (" + lugar_ + ")";
    }
}

} // namespace varo
