#include "memoria/MemoriaPermitida.h"

#include "basico/ErrorEjecucion.h"
#include "memoria/MemoriaContada.h"

#include <cstdlib>
#include <iostream>
#include <string>

namespace varo::prueba {

testing::AssertionResult CabeEnLaMemoria(std::size_t tamano,
                                         const std::function<std::vector<Tabla>()>& leer) {
    constexpr std::size_t veces = 10;
    constexpr std::size_t mega = std::size_t{1024} * 1024;
    std::string respuesta;
    const auto pico = tamano + PicoDeMemoria([&] {
                          try {
                              respuesta = std::to_string(leer().size()) + " tablas";
                          } catch (const ErrorMotor& error) {
                              respuesta = error.what();
                          }
                      });
    const auto dicho = std::to_string(pico / mega) + " MB para " + std::to_string(tamano / mega) + " MB, " +
                       std::to_string(static_cast<double>(pico) / static_cast<double>(tamano)) +
                       " veces: " + respuesta;
    if (std::getenv("VARO_MEMORIA") != nullptr) {
        std::cout << dicho << '\n';
    }
    return (pico <= veces * tamano + 64 * mega ? testing::AssertionSuccess() : testing::AssertionFailure())
           << dicho;
}

std::string Repetido(std::string_view trozo, std::size_t veces) {
    std::string texto;
    texto.reserve(trozo.size() * veces);
    for (; veces > 0; --veces) {
        texto += trozo;
    }
    return texto;
}

} // namespace varo::prueba
