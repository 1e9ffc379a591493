#include "motor/Recordset.h"

#include <cassert>
#include <utility>

namespace varo {

Recordset::Recordset(std::shared_ptr<const Tabla> filas) : filas_{std::move(filas)} {
    assert(filas_ != nullptr);
}

void Recordset::MoveFirst() {
    if (filas_->filas.empty()) {
        throw ErrorMotor{fallo::sinRegistroActual};
    }
    actual_ = 0;
}

void Recordset::MoveLast() {
    MoveFirst();
    actual_ = filas_->filas.size() - 1;
}

void Recordset::MoveNext() {
    if (Eof()) {
        throw ErrorMotor{fallo::sinRegistroActual};
    }
    ++actual_;
}

bool Recordset::Eof() const {
    return actual_ == filas_->filas.size();
}

int Recordset::RecordCount() const {
    return static_cast<int>(filas_->filas.size());
}

Recordset::CampoActual Recordset::Fields(int posicion) const {
    const auto& campo = filas_->Fields(posicion);
    if (Eof()) {
        throw ErrorMotor{fallo::sinRegistroActual};
    }
    return {campo.Name, filas_->filas[actual_][static_cast<std::size_t>(posicion)]};
}

} // namespace varo
