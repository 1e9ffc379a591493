#include "memoria/MemoriaContada.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

constexpr std::size_t cabecera = 8; // of each piece, in the C library's allocator

std::atomic<std::size_t>
    tenidos; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): the program's memory
std::atomic<std::size_t> pico; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void* Tomar(std::size_t bytes) {
    void* const trozo = std::malloc(std::max<std::size_t>(bytes, 1)); // NOLINT: this is what `new` is made of
    if (trozo == nullptr) {
        throw std::bad_alloc{};
    }
    const std::size_t ahora = tenidos += malloc_usable_size(trozo) + cabecera;
    for (auto hasta = pico.load(); ahora > hasta && !pico.compare_exchange_weak(hasta, ahora);) {
    }
    return trozo;
}

void Dejar(void* trozo) noexcept {
    if (trozo != nullptr) {
        tenidos -= malloc_usable_size(trozo) + cabecera;
        std::free(trozo); // NOLINT: this is what `delete` is made of
    }
}

void* TomarSiHay(std::size_t bytes) noexcept {
    try {
        return Tomar(bytes);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

void* operator new(std::size_t bytes) {
    return Tomar(bytes);
}
void* operator new[](std::size_t bytes) {
    return Tomar(bytes);
}
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
    return TomarSiHay(bytes);
}
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept {
    return TomarSiHay(bytes);
}
void operator delete(void* trozo) noexcept {
    Dejar(trozo);
}
void operator delete[](void* trozo) noexcept {
    Dejar(trozo);
}
void operator delete(void* trozo, std::size_t) noexcept {
    Dejar(trozo);
}
void operator delete[](void* trozo, std::size_t) noexcept {
    Dejar(trozo);
}
void operator delete(void* trozo, const std::nothrow_t&) noexcept {
    Dejar(trozo);
}
void operator delete[](void* trozo, const std::nothrow_t&) noexcept {
    Dejar(trozo);
}

std::size_t varo::prueba::PicoDeMemoria(const std::function<void()>& accion) {
    const std::size_t antes = tenidos;
    pico = antes;
    accion();
    return pico - antes;
}
