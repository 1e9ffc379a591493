// The values of fields, out of their bytes.
#pragma once

#include "basico/Valor.h"
#include "motor/lectores/FilaJet.h"
#include "motor/lectores/LimitesDeLectura.h"
#include "motor/lectores/TextosJet.h"

#include <string>

namespace varo {

/// What stands for a picture, a document or other bytes, which are not read.
inline constexpr const char* datosBinarios = "(datos binarios)";

class ValoresJet {
public:
    /// Both must outlive it.
    ValoresJet(const ArchivoJet& archivo, LimitesDeLectura& limites)
        : archivo_{archivo}, textos_{archivo}, limites_{limites} {}

    /// True for the types of columns whose values it reads.
    static bool sabeLeer(const ColumnaJet& columna);

    /// The value of a field: texts and memos as text, currency and decimals as the number next to them, a
    /// single as the number that its shortest digits spell, dates as dates. A number that is none is null.
    [[nodiscard]] Valor leer(const FilaJet& fila, const ColumnaJet& columna);

private:
    [[nodiscard]] Valor valorDe(const ColumnaJet& columna, Bytes campo);
    [[nodiscard]] std::string texto(Bytes campo);
    [[nodiscard]] std::string memo(Bytes campo);

    const ArchivoJet& archivo_;
    TextosJet textos_;
    LimitesDeLectura& limites_;
};

} // namespace varo
