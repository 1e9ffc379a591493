#include "plot/calculo/Padron.h"

#include "basico/ErrorEjecucion.h"

namespace varo {

namespace {

std::string ArbolDe(const Padron& padron, std::size_t i) {
    return i < padron.numeros.size() && !padron.numeros[i].empty() ? "árbol " + padron.numeros[i] : "";
}

} // namespace

int Padron::fila(std::size_t i) const {
    return i < filas.size() ? filas[i] : static_cast<int>(i) + 1;
}

std::string Padron::breve(std::size_t i) const {
    const std::string arbol = ArbolDe(*this, i);
    return "fila " + std::to_string(fila(i)) + (arbol.empty() ? "" : ", " + arbol);
}

void Padron::situar(ErrorEjecucion& error, std::size_t i) const {
    error.enFila(fila(i), "fila " + std::to_string(fila(i)) + (hoja.empty() ? "" : " de «" + hoja + "»"));
    if (const std::string arbol = ArbolDe(*this, i); !arbol.empty()) {
        error.precisarFila(arbol);
    }
}

} // namespace varo
