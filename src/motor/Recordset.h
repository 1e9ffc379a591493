// A snapshot of rows with a cursor.
#pragma once

#include "motor/Tabla.h"

#include <cstddef>
#include <memory>
#include <string>

namespace varo {

/// Rows that do not change. It opens on its first row, or at the end when there is none.
class Recordset {
public:
    /// A field of the current row.
    struct CampoActual {
        const std::string& Name;
        Valor Value;
    };

    explicit Recordset(std::shared_ptr<const Tabla> filas);

    /// With no rows both throw ErrorMotor 3021.
    void MoveFirst();
    void MoveLast();
    /// At the end it throws ErrorMotor 3021.
    void MoveNext();

    [[nodiscard]] bool Eof() const;
    [[nodiscard]] int RecordCount() const;

    /// Field `posicion`, from 0, of the current row: 3265 when there is no such field, 3021 at the end.
    [[nodiscard]] CampoActual Fields(int posicion) const;
    /// All the rows and their numbers in the sheet.
    [[nodiscard]] const Tabla& filas() const { return *filas_; }
    /// The number of the current row, which is there, in its sheet.
    [[nodiscard]] int numeroDeFila() const { return filas_->numeroDeFila(actual_); }
    [[nodiscard]] const Coleccion<Campo>& campos() const { return filas_->Fields; }

private:
    std::shared_ptr<const Tabla> filas_;
    std::size_t actual_ = 0;
};

} // namespace varo
