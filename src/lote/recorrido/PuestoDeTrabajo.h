// Where a job is done: the job, the program and the acts of a person.
#pragma once

#include "basico/Avance.h"
#include "formularios/Usuario.h"
#include "lote/recorrido/ServiciosDeTrabajo.h"
#include "lote/trabajo/ErrorTrabajo.h"
#include "lote/trabajo/Trabajo.h"
#include "shell/Programa.h"

#include <chrono>
#include <functional>
#include <string>

namespace varo {

/// Hears how far a running job is, and its warnings. Stages and warnings are one line without its end.
struct Seguimiento {
    std::function<void(const std::string&)> etapa = [](const std::string&) {};
    std::function<void(const std::string&)> aviso = [](const std::string&) {};
    /// Some times a second while something long is computed: how far it is, and the trees of the grid. Left
    /// out where nobody wants to know.
    std::function<void(const Marcha&, int)> marcha = {};
};

class PuestoDeTrabajo {
public:
    PuestoDeTrabajo(const Trabajo& trabajo_, const Seguimiento& seguimiento);

    const Trabajo& trabajo;
    ServiciosDeTrabajo servicios;
    Programa programa{servicios};
    Usuario usuario{programa};

    /// Does a piece of the job. An act that is refused, a message box without a prepared answer and a
    /// run-time fault end the job with an ErrorTrabajo that names `lugar`; a fault ends it with `siFalla`.
    void hacer(const Lugar& lugar, const std::function<void()>& acto,
               Estado siFalla = Estado::FalloDeCalculo);

    [[nodiscard]] ErrorTrabajo error(const Lugar& lugar, const std::string& motivo,
                                     Estado estado = Estado::Rechazado) const {
        return {trabajo.ruta, lugar, motivo, estado};
    }
    [[noreturn]] void rechazar(const Lugar& lugar, const std::string& motivo) const {
        throw error(lugar, motivo);
    }
    void avisar(const Lugar& lugar, const std::string& texto) const;
    /// A line as it stands.
    void decir(const std::string& linea) const { seguimiento_.aviso(linea); }
    void empezar(const std::string& etapa) const;

private:
    /// Passes on what it hears, not more often than anybody can read it.
    class Oyente : public OyenteDeAvance {
    public:
        explicit Oyente(PuestoDeTrabajo& puesto) : puesto_{puesto} {}

    protected:
        bool oir(const Marcha& marcha) override;

    private:
        PuestoDeTrabajo& puesto_;
        std::chrono::steady_clock::time_point dicho_;
    };

    const Seguimiento& seguimiento_;
    Oyente oyente_{*this};
};

} // namespace varo
