#include "desktop/Aplicacion.h"
#include "desktop/Escritorio.h"
#include "desktop/OrdenDeArranque.h"
#include "desktop/ServiciosQt.h"
#include "desktop/Texto.h"
#include "desktop/comodidades/Comodidades.h"
#include "desktop/comodidades/Recientes.h"
#include "libros/RegistrarLibros.h"

#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int ordenIncorrecta = 2;

/// Tells help, version or what is wrong; the exit status.
int Responder(const varo::OrdenDeArranque& orden) {
    const bool rechazada = orden.clase == varo::OrdenDeArranque::Clase::Rechazar;
    (rechazada ? std::cerr : std::cout) << orden.texto << std::flush;
    return rechazada ? ordenIncorrecta : EXIT_SUCCESS;
}

std::vector<std::string> SinElPrograma(const QStringList& argumentos) {
    std::vector<std::string> textos;
    for (const QString& argumento : argumentos.mid(1)) {
        textos.push_back(varo::DeQt(argumento));
    }
    return textos;
}

} // namespace

int main(int argc, char** argv) {
    varo::RegistrarLibros();
    const std::vector<std::string> escritos{argv + 1, argv + argc};
    if (varo::SoloPregunta(escritos)) {
        return Responder(varo::LeerOrden(escritos));
    }
    varo::Aplicacion aplicacion{argc, argv};
    const varo::OrdenDeArranque orden = varo::LeerOrden(SinElPrograma(QApplication::arguments()));
    if (orden.clase != varo::OrdenDeArranque::Clase::Abrir) {
        return Responder(orden);
    }
    varo::ServiciosQt servicios;
    varo::Escritorio escritorio{servicios};
    varo::Recientes recientes;
    varo::Comodidades comodidades{escritorio, servicios, recientes};
    if (!orden.texto.empty()) {
        QMetaObject::invokeMethod(
            &comodidades, [&] { comodidades.abrir(varo::AQt(orden.texto)); }, Qt::QueuedConnection);
    }
    return QApplication::exec();
}
