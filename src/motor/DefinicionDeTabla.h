// A table that is being defined, in memory: no file is ever written.
#pragma once

#include "motor/Tabla.h"

#include <string>
#include <utility>
#include <vector>

namespace varo {

/// Data types of fields, by their numbers in the engine.
enum class TipoDeCampo { Doble = 7 };

struct CampoDefinido {
    std::string Name;
    TipoDeCampo Type = TipoDeCampo::Doble;
};

/// It starts without fields, and belongs to no database until somebody appends it.
class DefinicionDeTabla {
public:
    explicit DefinicionDeTabla(std::string nombre) : Name{std::move(nombre)} {}

    std::string Name;

    [[nodiscard]] static CampoDefinido CreateField(std::string nombre, TipoDeCampo tipo) {
        return {std::move(nombre), tipo};
    }
    /// A name that is there already throws ErrorMotor 3367.
    void Append(CampoDefinido campo);
    [[nodiscard]] const std::vector<CampoDefinido>& Fields() const { return campos_; }

private:
    std::vector<CampoDefinido> campos_;
};

} // namespace varo
