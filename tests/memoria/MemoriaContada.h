// Counts the memory of this program: all that it asks of `new`, with what the allocator takes for itself.
#pragma once

#include <cstddef>
#include <functional>

namespace varo::prueba {

/// The most bytes that the action holds at one time beyond those held before it.
std::size_t PicoDeMemoria(const std::function<void()>& accion);

} // namespace varo::prueba
