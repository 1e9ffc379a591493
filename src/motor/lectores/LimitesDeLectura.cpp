#include "motor/lectores/LimitesDeLectura.h"

#include "motor/lectores/Bytes.h"

#include <algorithm>
#include <string>

namespace varo {
namespace {

// All that reading holds stays below ten times the file and 64 MB: the file and the stream in it, one sheet
// that is being read, and this. A dense table takes six bytes of file per cell or more; the fixed part lets a
// small file be sparse.
constexpr std::size_t memoriaDeTodoArchivo = 40'000'000;
constexpr std::size_t memoriaPorByte = 5;

constexpr std::size_t bytesDeCelda = 17;   // and a part of what its block takes
constexpr std::size_t bytesDeTabla = 4096; // without its cells, or with the words of its defect
constexpr std::size_t textoEnLaCelda = 8;
constexpr std::size_t textoAparte = 24; // from here on it stands once
constexpr std::size_t longitudDeTexto = 4;

} // namespace

LimitesDeLectura::LimitesDeLectura(std::size_t bytesDeArchivo) : quedan_{memoriaDeTodoArchivo} {
    crecer(bytesDeArchivo);
}

void LimitesDeLectura::crecer(std::size_t bytesDeArchivo) {
    quedan_ += bytesDeArchivo * memoriaPorByte;
}

void LimitesDeLectura::contarTablas(std::size_t cuantas) {
    gastar(cuantas, bytesDeTabla, "sus tablas ocupan");
}

void LimitesDeLectura::contarCeldas(std::size_t cuantas) {
    gastar(cuantas, bytesDeCelda, "sus tablas ocupan");
}

void LimitesDeLectura::contarTexto(std::size_t bytes) {
    gastar(bytes, 1, "sus textos ocupan");
}

void LimitesDeLectura::contarTextoDeCelda(std::size_t bytes) {
    if (bytes > textoEnLaCelda) {
        contarTexto(std::min(bytes, textoAparte) + longitudDeTexto);
    }
}

void LimitesDeLectura::gastar(std::size_t cuantos, std::size_t bytesDeUno, const char* que) {
    if (cuantos > quedan_ / bytesDeUno) {
        ArchivoDanado(std::string{que} + " demasiado para su tamaño");
    }
    quedan_ -= cuantos * bytesDeUno;
}

} // namespace varo
