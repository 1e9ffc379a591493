// A window that counts its activations instead of doing its work.
#pragma once

#include "shell/Programa.h"

namespace varo::prueba {

template <class Ventana>
class Sonda : public Ventana {
public:
    explicit Sonda(Programa& programa) : Ventana{programa} {}

    int activadas = 0;
    int desactivadas = 0;

    void Form_Activate() override { ++activadas; }
    void Form_Deactivate() override { ++desactivadas; }

    void olvidar() { activadas = desactivadas = 0; }
};

} // namespace varo::prueba
