#include "motor/lectores/LimitesDeLectura.h"

#include "motor/lectores/Bytes.h"

#include <string>

namespace varo {
namespace {

// A dense table takes six bytes of file per cell or more, and a text that many cells share is rarely longer
// than a note: the proportions leave room, and the fixed parts let a small file be sparse.
constexpr std::size_t celdasDeTodoArchivo = 1'000'000;
constexpr std::size_t bytesPorCelda = 2;
constexpr std::size_t textoDeTodoArchivo = 64'000'000;
constexpr std::size_t textoPorByte = 16;

void Gastar(std::size_t& queda, std::size_t gasto, const char* que) {
    if (gasto > queda) {
        ArchivoDanado(std::string{que} + " demasiado para su tamaño");
    }
    queda -= gasto;
}

} // namespace

LimitesDeLectura::LimitesDeLectura(std::size_t bytesDeArchivo)
    : celdasQueQuedan_{celdasDeTodoArchivo}, textoQueQueda_{textoDeTodoArchivo} {
    crecer(bytesDeArchivo);
}

void LimitesDeLectura::crecer(std::size_t bytesDeArchivo) {
    celdasQueQuedan_ += bytesDeArchivo / bytesPorCelda;
    textoQueQueda_ += bytesDeArchivo * textoPorByte;
}

void LimitesDeLectura::contarCeldas(std::size_t cuantas) {
    Gastar(celdasQueQuedan_, cuantas, "sus tablas ocupan");
}

void LimitesDeLectura::contarTexto(std::size_t bytes) {
    Gastar(textoQueQueda_, bytes, "sus textos ocupan");
}

} // namespace varo
