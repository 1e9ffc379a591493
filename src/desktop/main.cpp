#include "desktop/Aplicacion.h"
#include "desktop/Escritorio.h"
#include "desktop/ServiciosQt.h"

int main(int argc, char** argv) {
    varo::Aplicacion aplicacion{argc, argv};
    varo::ServiciosQt servicios;
    const varo::Escritorio escritorio{servicios};
    return QApplication::exec();
}
