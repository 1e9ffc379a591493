// Elements that do not depend on each other, done one after the other or side by side: what comes out is the
// same.
#pragma once

#include "basico/Avance.h"

#include <cstddef>
#include <functional>

namespace varo {

class Cuadrilla;

/// How something long is computed: who hears of it, and on which threads; on that of the caller alone where
/// there is no other.
struct Faena {
    Avance avance;
    Cuadrilla* cuadrilla = nullptr;
};

/// Does an element, by its number.
using Hacer = std::function<void(std::size_t)>;

/// Does the elements from 0 to `cuantos` - 1. Each thread does its own by a `Hacer` of its own, which `crear`
/// makes and which may keep a state: nothing else that an element writes may be read for another one.
///
/// `enOrden` hears of each element that is done, in their order and on the caller's thread; a step of the
/// computation follows. Where some elements fail, the first one is what fails: all before it were done and
/// told.
void Repartir(std::size_t cuantos, const Faena& faena, const std::function<Hacer()>& crear,
              const Hacer& enOrden = {});

} // namespace varo
