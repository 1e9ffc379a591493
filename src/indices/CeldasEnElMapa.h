// The cells of APA on the second surface of the map.
#pragma once

#include "indices/apa/APA.h"

namespace varo {

class Programa;

/// Draws the cells of a run as they are finished. The surface comes into sight with the first one; the plot
/// boundary is drawn then too, and not again, which gives the same picture.
class CeldasEnElMapa {
public:
    explicit CeldasEnElMapa(Programa& programa) : programa_{programa} {}

    void dibujar(std::span<const TrazoAPA> trazos);

private:
    Programa& programa_;
    bool conContorno_ = false;
};

} // namespace varo
