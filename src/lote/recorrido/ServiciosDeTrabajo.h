// The platform of a job: prepared answers, the one message box that does not end a job, and its file.
#pragma once

#include "formularios/ServiciosPreparados.h"

#include <memory>
#include <string>
#include <vector>

namespace varo {

/// Keeps the message about an interval that is no whole number of steps as a warning: the desktop too keeps
/// such an interval, and binary rounding brings the message to a sweep from 0,1 to 0,3 by 0,1.
class ServiciosDeTrabajo : public ServiciosPreparados {
public:
    int mensaje(const std::string& texto, const std::string& titulo, int opciones) override;

    /// The warnings since the last call, each text once.
    std::vector<std::string> recogerAvisos();

    /// The file waits for `publicarArchivo`: a fault that the window passes over ends a job.
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) override;
    /// Puts the last file in its place.
    void publicarArchivo();

    /// Who hears the job; nobody where it is null.
    OyenteDeAvance* oyente = nullptr;
    Avance avance() override { return oyente != nullptr ? Avance{*oyente} : Avance{}; }
    /// Who helps it to compute.
    Cuadrilla* ayuda = nullptr;
    Cuadrilla* cuadrilla() override { return ayuda; }

private:
    std::shared_ptr<ArchivoNuevo> archivo_;
    std::vector<std::string> avisos_;
};

} // namespace varo
