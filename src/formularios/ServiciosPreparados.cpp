#include "formularios/ServiciosPreparados.h"

namespace varo {

namespace {

template <class Elemento>
Elemento Siguiente(std::deque<Elemento>& cola, const char* peticion) {
    if (cola.empty()) {
        throw SinRespuestaPreparada{peticion};
    }
    Elemento elemento = std::move(cola.front());
    cola.pop_front();
    return elemento;
}

} // namespace

void ServiciosPreparados::esperarMensaje(std::string texto, int respuesta) {
    respuestas_.push_back({std::move(texto), respuesta});
}

void ServiciosPreparados::esperarFallo(int numero) {
    fallosEsperados_.push_back(numero);
}

void ServiciosPreparados::prepararArchivo(std::string ruta) {
    archivos_.push_back(std::move(ruta));
}

void ServiciosPreparados::prepararFuente(std::optional<Fuente> fuente) {
    fuentes_.push_back(std::move(fuente));
}

void ServiciosPreparados::prepararColor(std::optional<Color> color) {
    colores_.push_back(color);
}

bool ServiciosPreparados::todoPedido() const {
    return respuestas_.empty() && fallosEsperados_.empty() && archivos_.empty() && fuentes_.empty() &&
           colores_.empty();
}

int ServiciosPreparados::mensaje(const std::string& texto, const std::string& titulo, int opciones) {
    mensajes_.push_back({texto, titulo, opciones});
    if (respuestas_.empty() || respuestas_.front().texto != texto) {
        throw MensajeInesperado{texto, titulo};
    }
    const int respuesta = respuestas_.front().respuesta;
    respuestas_.pop_front();
    return respuesta;
}

void ServiciosPreparados::fallo(const ErrorEjecucion& error) {
    fallos_.push_back(error);
    if (fallosEsperados_.empty() || fallosEsperados_.front() != error.numero()) {
        throw FalloInesperado{error};
    }
    fallosEsperados_.pop_front();
}

void ServiciosPreparados::elegirArchivo(DialogoAbrir& dialogo) {
    dialogo.FileName = Siguiente(archivos_, "nadie preparó la elección de un archivo");
    ultimoDialogo_ = dialogo;
}

std::optional<Fuente> ServiciosPreparados::elegirFuente(const Fuente& /*actual*/) {
    return Siguiente(fuentes_, "nadie preparó la elección de una fuente");
}

std::optional<Color> ServiciosPreparados::elegirColor(Color /*actual*/) {
    return Siguiente(colores_, "nadie preparó la elección de un color");
}

std::unique_ptr<ArchivoNuevo> ServiciosPreparados::crearArchivo(const std::string& ruta) {
    throw SinRespuestaPreparada{"nadie preparó la escritura de " + ruta};
}

} // namespace varo
