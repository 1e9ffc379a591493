// Arrays whose bounds are checked: an index outside them faults.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <cstddef>
#include <vector>

namespace varo {

/// An array with indices 0 to `limite()`, unallocated at first. An index out of bounds, or redimensioning to
/// no element at all, throws 9.
template <class T>
class MatrizDinamica {
public:
    /// Sizes the array to 0..limite and clears it.
    void redimensionar(int limite) { elementos_.assign(cuantos(limite), T{}); }
    /// Sizes the array to 0..limite and keeps what still has a place.
    void redimensionarConservando(int limite) { elementos_.resize(cuantos(limite)); }

    /// -1 while unallocated.
    [[nodiscard]] int limite() const { return static_cast<int>(elementos_.size()) - 1; }

    T& operator()(int indice) { return elementos_[comprobado(indice)]; }
    const T& operator()(int indice) const { return elementos_[comprobado(indice)]; }

private:
    [[nodiscard]] static std::size_t cuantos(int limite) {
        if (limite < 0) {
            throw ErrorEjecucion{fallo::fueraDeIndice};
        }
        return static_cast<std::size_t>(limite) + 1;
    }

    [[nodiscard]] std::size_t comprobado(int indice) const {
        if (indice < 0 || indice > limite()) {
            throw ErrorEjecucion{fallo::fueraDeIndice};
        }
        return static_cast<std::size_t>(indice);
    }

    std::vector<T> elementos_;
};

/// The same with two indices, 0 to `limite1` and 0 to `limite2`. The first one has to have room for
/// something; the second one may have none, as with a plot that has no trees.
template <class T>
class TablaDinamica {
public:
    void redimensionar(int limite1, int limite2) {
        filas_.redimensionar(limite1);
        for (int i = 0; i <= limite1 && limite2 >= 0; ++i) {
            filas_(i).redimensionar(limite2);
        }
    }

    /// -1 while unallocated.
    [[nodiscard]] int limite() const { return filas_.limite(); }
    [[nodiscard]] int limite2() const { return limite() < 0 ? -1 : filas_(0).limite(); }

    T& operator()(int i, int j) { return filas_(i)(j); }
    const T& operator()(int i, int j) const { return filas_(i)(j); }

private:
    MatrizDinamica<MatrizDinamica<T>> filas_;
};

} // namespace varo
