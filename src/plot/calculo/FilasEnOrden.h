// Trees found in any order, given back in the order of the rows. It takes the place of a sort: a row is a
// bit, and a second level of bits tells which words hold any.
#pragma once

#include "plot/calculo/Cuadricula.h"

#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace varo {

class FilasEnOrden {
public:
    using Fila = Cuadricula::Fila;

    /// For the rows below `filas`.
    explicit FilasEnOrden(std::size_t filas)
        : palabras_(filas / bits + 1), conBits_(palabras_.size() / bits + 1), halladas_(filas + 1) {}

    /// Takes a tree in where `entra`, without a jump. None is asked about twice between two calls of
    /// `vaciarEn`.
    void tomarSi(bool entra, Fila fila) {
        assert(cuantas_ < halladas_.size());
        halladas_[cuantas_] = fila;
        cuantas_ += entra ? 1 : 0;
    }

    /// Replaces `filas` by the trees that were taken in, but one, in ascending order. None is left.
    void vaciarEn(std::vector<Fila>& filas, Fila menosEsta);

private:
    using Palabra = std::uint64_t;
    static constexpr std::size_t bits = 64;

    void tomar(Fila fila) {
        const std::size_t palabra = fila / bits;
        palabras_[palabra] |= Palabra{1} << fila % bits;
        conBits_[palabra / bits] |= Palabra{1} << palabra % bits;
    }

    std::vector<Palabra> palabras_, conBits_;
    std::vector<Fila> halladas_; ///< not yet among the bits
    std::size_t cuantas_ = 0;    ///< of those
};

} // namespace varo
