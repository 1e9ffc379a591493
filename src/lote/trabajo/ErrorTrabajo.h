// How a job ends, and the error that ends it early.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace varo {

/// How a job, or the whole command, ends. The values are the exit statuses of varo-lote.
enum class Estado {
    Hecho = 0,
    ErrorInterno = 1,
    Rechazado = 2, ///< the job or the command line is wrong
    FalloDeCalculo = 3,
    ErrorDeArchivo = 4,   ///< a file cannot be read or written
    CifrasEquivocadas = 5 ///< of a revision alone: a run would end well, with wrong numbers
};

/// A place in a job: its key ("opciones.ChN"), its line in the job file, 0 when it has none, and the value
/// that is being typed, if any.
struct Lugar {
    std::string clave;
    int linea = 0;
    std::optional<std::string> valor = {};

    [[nodiscard]] Lugar con(std::string valorTecleado) const {
        return {clave, linea, std::move(valorTecleado)};
    }
};

/// The text up to 120 characters: long enough for a function with its parameters, and for every message of
/// the program.
std::string Acortado(const std::string& texto);
/// The same between «».
std::string CitaLarga(const std::string& texto);
/// "X, Y, Z"; of a long list the first forty and how many more there are.
std::string Enumerar(const std::vector<std::string>& nombres);

/// "trabajo.toml: línea 3: opciones.TxtRm(0) = «1.5»: texto", in one line whatever the parts hold.
std::string LineaDeAviso(const std::filesystem::path& trabajo, const Lugar& lugar, const std::string& texto);

/// Ends a job; `what()` is the line that a person reads.
class ErrorTrabajo : public std::runtime_error {
public:
    ErrorTrabajo(const std::filesystem::path& trabajo, const Lugar& lugar, const std::string& motivo,
                 Estado estado = Estado::Rechazado, std::optional<int> fallo = std::nullopt)
        : std::runtime_error{LineaDeAviso(trabajo, lugar, motivo)}, motivo_{motivo}, estado_{estado},
          fallo_{fallo} {}

    /// What happened, without the job and the place in it.
    [[nodiscard]] const std::string& motivo() const { return motivo_; }
    [[nodiscard]] Estado estado() const { return estado_; }
    /// The number of the run-time fault behind it, when there is one.
    [[nodiscard]] const std::optional<int>& fallo() const { return fallo_; }

private:
    std::string motivo_;
    Estado estado_;
    std::optional<int> fallo_;
};

} // namespace varo
