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
// What is packed may be longer. All that is read stays below 2 GB then.
constexpr std::size_t bytesQueCuentan = std::size_t{192} << 20U;

constexpr std::size_t bytesDeCelda = 17;     // and a part of what its block takes
constexpr std::size_t bytesDeTabla = 512;    // without its cells
constexpr std::size_t bytesDeDefecto = 3584; // its words
constexpr std::size_t textoEnLaCelda = 8;
constexpr std::size_t textoAparte = 24; // from here on it stands once
constexpr std::size_t longitudDeTexto = 4;

// A text that many cells share is rarely longer than a note.
constexpr std::size_t letrasDeTodoArchivo = 64'000'000;
constexpr std::size_t letrasPorByte = 16;

} // namespace

LimitesDeLectura::LimitesDeLectura(std::size_t bytesDeArchivo)
    : quedan_{memoriaDeTodoArchivo}, letras_{letrasDeTodoArchivo}, porContar_{bytesQueCuentan} {
    crecer(bytesDeArchivo);
}

void LimitesDeLectura::crecer(std::size_t bytesDeArchivo) {
    const auto cuentan = std::min(bytesDeArchivo, porContar_);
    porContar_ -= cuentan;
    quedan_ += cuentan * memoriaPorByte;
    letras_ += cuentan * letrasPorByte;
}

void LimitesDeLectura::contarTablas(std::size_t cuantas) {
    gastar(quedan_, cuantas, bytesDeTabla, "sus tablas ocupan");
}

void LimitesDeLectura::contarDefecto() {
    gastar(quedan_, 1, bytesDeDefecto, "lo dañado en él ocupa");
}

void LimitesDeLectura::contarCeldas(std::size_t cuantas) {
    gastar(quedan_, cuantas, bytesDeCelda, "sus tablas ocupan");
}

void LimitesDeLectura::contarTexto(std::size_t bytes) {
    gastar(quedan_, bytes, 1, "sus textos ocupan");
}

void LimitesDeLectura::contarTextoDeCelda(std::size_t bytes) {
    gastar(letras_, bytes, 1, "sus textos ocupan");
    if (bytes > textoEnLaCelda) {
        contarTexto(std::min(bytes, textoAparte) + longitudDeTexto);
    }
}

void LimitesDeLectura::gastar(std::size_t& quedan, std::size_t cuantos, std::size_t bytesDeUno,
                              const char* que) {
    if (cuantos > quedan / bytesDeUno) {
        ArchivoDanado(std::string{que} + " demasiado para su tamaño");
    }
    quedan -= cuantos * bytesDeUno;
}

} // namespace varo
