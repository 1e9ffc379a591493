// The platform of a job: prepared answers, and the one message box that does not end a job.
#pragma once

#include "formularios/ServiciosPreparados.h"

#include <string>
#include <vector>

namespace varo {

/// A message about an interval that is no whole number of steps is kept as a warning: the desktop too keeps
/// what was typed, and a sweep from 0,1 to 0,3 by 0,1 meets it through binary rounding.
class ServiciosDeTrabajo : public ServiciosPreparados {
public:
    int mensaje(const std::string& texto, const std::string& titulo, int opciones) override;

    /// The warnings since the last call, each text once.
    std::vector<std::string> recogerAvisos();

private:
    std::vector<std::string> avisos_;
};

} // namespace varo
