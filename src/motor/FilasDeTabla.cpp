#include "motor/FilasDeTabla.h"

#include <algorithm>
#include <cassert>

namespace varo {

ValorDeCelda FilaDeTabla::operator[](std::size_t columna) const {
    // Without gaps a cell stands at the place of its column.
    if (columna < celdas() && celdas_->columna(comienzo_ + columna) == columna) {
        return celdas_->valor(comienzo_ + columna);
    }
    if (celdas() == 0) {
        return {};
    }
    const auto i = celdas_->buscar(comienzo_, celdas_->fila(comienzo_), columna);
    return i < fin_ && celdas_->columna(i) == columna ? celdas_->valor(i) : ValorDeCelda{};
}

FilasDeTabla::FilasDeTabla(const std::vector<std::vector<Valor>>& filas) {
    for (const auto& fila : filas) {
        anadir(fila);
    }
}

FilaDeTabla FilasDeTabla::operator[](std::size_t fila) const {
    assert(fila < cuantas_);
    if (!comienzos_) {
        return {celdas_, 0, 0};
    }
    const auto& comienzos = *comienzos_;
    const auto enFila = [this](std::uint32_t comienzo) { return std::size_t{celdas_.fila(comienzo)}; };
    // Without empty rows a row stands at the place of its number.
    auto llena = static_cast<std::ptrdiff_t>(fila);
    if (fila >= comienzos.size() || enFila(comienzos[fila]) != fila) {
        llena = std::ranges::lower_bound(comienzos, fila, {}, enFila) - comienzos.begin();
    }
    const auto lugar = static_cast<std::size_t>(llena);
    if (lugar == comienzos.size() || enFila(comienzos[lugar]) != fila) {
        return {celdas_, 0, 0};
    }
    return {celdas_, comienzos[lugar], lugar + 1 == comienzos.size() ? celdas_.size() : comienzos[lugar + 1]};
}

void FilasDeTabla::alargar(std::size_t cuantas) {
    cuantas_ = std::max(cuantas_, cuantas);
}

void FilasDeTabla::anadir(const std::vector<Valor>& valores) {
    const auto fila = cuantas_;
    alargar(fila + 1);
    for (std::size_t columna = 0; columna < valores.size(); ++columna) {
        poner(fila, columna, valores[columna]);
    }
}

void FilasDeTabla::poner(std::size_t fila, std::size_t columna, const ValorDeCelda& valor) {
    const auto enUltima = [&] { return !celdas_.empty() && celdas_.fila(celdas_.size() - 1) == fila; };
    assert(celdas_.empty() || celdas_.fila(celdas_.size() - 1) <= fila);
    alargar(fila + 1);
    if (enUltima() && celdas_.columna(celdas_.size() - 1) == columna) {
        celdas_.quitarUltima();
        if (comienzos_->back() == celdas_.size()) {
            comienzos_->pop_back();
        }
    }
    if (EsNulo(valor)) {
        return;
    }
    if (!comienzos_) {
        comienzos_.emplace();
    }
    if (!enUltima()) {
        comienzos_->push_back(static_cast<std::uint32_t>(celdas_.size()));
    }
    celdas_.anadir(fila, columna, valor);
}

bool operator==(const FilasDeTabla& una, const FilasDeTabla& otra) {
    if (una.size() != otra.size() || una.celdas_.size() != otra.celdas_.size()) {
        return false;
    }
    for (std::size_t i = 0; i < una.celdas_.size(); ++i) {
        const auto celda = una.celdas_[i];
        const auto suya = otra.celdas_[i];
        if (celda.fila != suya.fila || celda.columna != suya.columna || celda.valor != suya.valor) {
            return false;
        }
    }
    return true;
}

} // namespace varo
