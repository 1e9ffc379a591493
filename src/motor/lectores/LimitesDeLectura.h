// How much a reader may make out of a file: in proportion to the file's size, so that a small hostile file
// cannot fill the memory.
#pragma once

#include <cstddef>

namespace varo {

/// Counts cells of tables and bytes of texts while a file is read; too many of them throw ErrorMotor.
class LimitesDeLectura {
public:
    explicit LimitesDeLectura(std::size_t bytesDeArchivo);

    /// More of the file is there than was known.
    void crecer(std::size_t bytesDeArchivo);

    /// Call before making them.
    void contarCeldas(std::size_t cuantas);
    void contarTexto(std::size_t bytes);

private:
    std::size_t celdasQueQuedan_;
    std::size_t textoQueQueda_;
};

} // namespace varo
