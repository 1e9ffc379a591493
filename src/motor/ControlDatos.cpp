#include "motor/ControlDatos.h"

#include <cassert>
#include <utility>

namespace varo {

void ControlDatos::DatabaseName(std::string archivo) {
    archivo_ = std::move(archivo);
    porAbrir_ = !archivo_.empty();
    if (!porAbrir_) {
        filas_.reset();
        base_.reset();
    }
}

void ControlDatos::Refresh(const Avance& avance) {
    if (porAbrir_) {
        base_ = BaseDatos::abrir(std::u8string{archivo_.begin(), archivo_.end()}, avance);
        filas_.reset();
        porAbrir_ = false;
    } else if (RecordSource.empty()) {
        filas_.reset();
    } else {
        filas_ = Database().abrirTabla(RecordSource);
    }
}

const BaseDatos& ControlDatos::Database() const {
    if (!base_) {
        throw ErrorEjecucion{fallo::objetoNoEstablecido};
    }
    return *base_;
}

varo::Recordset& ControlDatos::Recordset() {
    if (!filas_) {
        throw ErrorEjecucion{fallo::objetoNoEstablecido};
    }
    assert(base_ && "rows come from an open base");
    return *filas_;
}

} // namespace varo
