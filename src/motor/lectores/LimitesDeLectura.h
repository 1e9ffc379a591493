// How much memory a reader may fill with what it makes out of a file: in proportion to the file's size, so
// that a small hostile file cannot fill all of it.
#pragma once

#include <cstddef>

namespace varo {

/// Counts the memory of tables, cells and texts while a file is read; too much of it throws ErrorMotor.
class LimitesDeLectura {
public:
    explicit LimitesDeLectura(std::size_t bytesDeArchivo);

    /// More of the file is there than was known. What is more than any plot has does not count.
    void crecer(std::size_t bytesDeArchivo);

    /// Call before making them. Tables are counted all at once, so that what is too much for one of them is
    /// no defect of that one.
    void contarTablas(std::size_t cuantas);
    /// A table that cannot be read.
    void contarDefecto();
    void contarCeldas(std::size_t cuantas);
    /// Texts that are kept as they are.
    void contarTexto(std::size_t bytes);
    /// The text of a cell: a short one stands in the cell, and a long one once for all the cells that have
    /// it. What all cells show is bounded too, for whoever writes it out.
    void contarTextoDeCelda(std::size_t bytes);

private:
    static void gastar(std::size_t& quedan, std::size_t cuantos, std::size_t bytesDeUno, const char* que);

    std::size_t quedan_;    // bytes
    std::size_t letras_;    // that cells may show
    std::size_t porContar_; // bytes of the file that may still let them grow
};

} // namespace varo
