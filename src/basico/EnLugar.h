// What a layer adds to a run-time fault on its way out: where it happened.
#pragma once

#include "basico/ErrorEjecucion.h"

#include <type_traits>
#include <utility>

namespace varo {

/// Runs `acto` and hands on what it gives. A run-time fault is shown to `reaccion`, then goes on its way.
template <class Reaccion, class Acto>
decltype(auto) AlFallar(Reaccion&& reaccion, Acto&& acto) {
    try {
        return std::forward<Acto>(acto)();
    } catch (ErrorEjecucion& error) {
        std::forward<Reaccion>(reaccion)(error);
        throw;
    }
}

/// The same; the fault gets a place. `lugar` is a text, or a callable that makes one only when it is needed.
template <class Lugar, class Acto>
decltype(auto) EnLugar(const Lugar& lugar, Acto&& acto) {
    const auto situar = [&lugar](ErrorEjecucion& error) {
        if constexpr (std::is_invocable_v<const Lugar&>) {
            error.en(lugar());
        } else {
            error.en(lugar);
        }
    };
    return AlFallar(situar, std::forward<Acto>(acto));
}

/// The same; a fault with this number gets its cause in words. `causa` is a callable that makes the text.
template <class Causa, class Acto>
decltype(auto) Porque(int numero, const Causa& causa, Acto&& acto) {
    const auto explicar = [&](ErrorEjecucion& error) {
        if (error.numero() == numero) {
            error.porque(causa());
        }
    };
    return AlFallar(explicar, std::forward<Acto>(acto));
}

} // namespace varo
