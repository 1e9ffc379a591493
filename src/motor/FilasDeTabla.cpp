#include "motor/FilasDeTabla.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <utility>

namespace varo {

const Valor& FilaDeTabla::operator[](std::size_t columna) const {
    static const Valor nada{};
    // Without gaps a cell stands at the place of its column.
    if (columna < celdas_.size() && celdas_[columna].columna == columna) {
        return celdas_[columna].valor;
    }
    const auto celda = std::ranges::lower_bound(celdas_, columna, {}, &CeldaDeFila::columna);
    return celda != celdas_.end() && celda->columna == columna ? celda->valor : nada;
}

FilasDeTabla::FilasDeTabla(std::vector<std::vector<Valor>> filas) {
    for (auto& fila : filas) {
        anadir(std::move(fila));
    }
}

FilaDeTabla FilasDeTabla::operator[](std::size_t fila) const {
    assert(fila < cuantas_);
    // Without empty rows a row stands at the place of its number.
    const auto llena = fila < llenas_.size() && llenas_[fila].fila == fila
                           ? llenas_.begin() + static_cast<std::ptrdiff_t>(fila)
                           : std::ranges::lower_bound(llenas_, fila, {}, &FilaLlena::fila);
    if (llena == llenas_.end() || llena->fila != fila) {
        return FilaDeTabla{{}};
    }
    const auto siguiente = std::next(llena);
    const auto fin = siguiente == llenas_.end() ? celdas_.size() : siguiente->comienzo;
    return FilaDeTabla{std::span{celdas_}.subspan(llena->comienzo, fin - llena->comienzo)};
}

void FilasDeTabla::alargar(std::size_t cuantas) {
    cuantas_ = std::max(cuantas_, cuantas);
}

void FilasDeTabla::anadir(std::vector<Valor> valores) {
    const auto fila = cuantas_;
    alargar(fila + 1);
    for (std::size_t columna = 0; columna < valores.size(); ++columna) {
        poner(fila, columna, std::move(valores[columna]));
    }
}

void FilasDeTabla::poner(std::size_t fila, std::size_t columna, Valor valor) {
    assert(llenas_.empty() || llenas_.back().fila <= fila);
    alargar(fila + 1);
    if (!llenas_.empty() && llenas_.back().fila == fila && celdas_.back().columna == columna) {
        celdas_.pop_back();
        if (llenas_.back().comienzo == celdas_.size()) {
            llenas_.pop_back();
        }
    }
    if (EsNulo(valor)) {
        return;
    }
    if (llenas_.empty() || llenas_.back().fila != fila) {
        llenas_.push_back({fila, celdas_.size()});
    }
    celdas_.push_back({static_cast<std::uint16_t>(columna), std::move(valor)});
}

bool operator==(const FilasDeTabla& una, const FilasDeTabla& otra) {
    if (una.size() != otra.size()) {
        return false;
    }
    for (std::size_t fila = 0; fila < una.size(); ++fila) {
        if (!std::ranges::equal(una[fila].celdas(), otra[fila].celdas())) {
            return false;
        }
    }
    return true;
}

} // namespace varo
