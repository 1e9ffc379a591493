#include "plot/calculo/MuestrasDeCopa.h"

#include <algorithm>

namespace varo {

bool CajasCruzadas(const Copa& a, const Copa& b) {
    if (a.x < b.x && a.y > b.y) {
        return a.x + a.E > b.x - b.W && a.y - a.S < b.y + b.N;
    }
    if (a.x < b.x && a.y < b.y) {
        return a.x + a.E > b.x - b.W && a.y + a.N > b.y - b.S;
    }
    if (a.x > b.x && a.y > b.y) {
        return a.x - a.W < b.x + b.E && a.y - a.S < b.y + b.N;
    }
    return a.x - a.W < b.x + b.E && a.y + a.N > b.y - b.S;
}

MuestrasDeCopa::MuestrasDeCopa(const Copa& copa, const Escala& superficie)
    : malla_{SobreLaSuperficie(MallaDe(copa, paso), superficie)}, cobertura_{malla_} {
    cobertura_.poner(Pintada(copa));
    suyas_.reserve(malla_.x.size());
    for (std::size_t columna = 0; columna < malla_.x.size(); ++columna) {
        suyas_.push_back(cobertura_.en(columna));
        cuantas_ += suyas_.back().cuantas();
    }
}

double MuestrasDeCopa::tapadasPor(const Copa& otra) {
    cobertura_.poner(Pintada(otra));
    std::size_t tapadas = 0;
    for (std::size_t columna = 0; columna < suyas_.size(); ++columna) {
        tapadas += FilasComunes(suyas_[columna], cobertura_.en(columna)).cuantas();
    }
    return static_cast<double>(tapadas);
}

void MuestrasDeCopa::limitar(const std::vector<FilasTapadas>& filas) {
    cuantas_ = 0;
    for (std::size_t columna = 0; columna < suyas_.size(); ++columna) {
        suyas_[columna] = FilasComunes(suyas_[columna], filas[columna]);
        cuantas_ += suyas_[columna].cuantas();
    }
}

} // namespace varo
