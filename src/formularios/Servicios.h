// What a window asks of its platform.
#pragma once

#include "basico/Avance.h"
#include "basico/ErrorEjecucion.h"
#include "lienzo/Color.h"
#include "lienzo/Fuente.h"

#include <memory>
#include <optional>
#include <string>

namespace varo {

class Cuadrilla;

/// Buttons, icons and answers of a message box, as numbers that add up to its flags.
namespace mensaje {
inline constexpr int aceptar = 0;
inline constexpr int siNoCancelar = 3;
inline constexpr int siNo = 4;
inline constexpr int reintentarCancelar = 5;
inline constexpr int critico = 16;
inline constexpr int pregunta = 32;
inline constexpr int exclamacion = 48;
inline constexpr int informacion = 64;

inline constexpr int respondeAceptar = 1;
inline constexpr int respondeCancelar = 2;
inline constexpr int respondeReintentar = 4;
inline constexpr int respondeSi = 6;
inline constexpr int respondeNo = 7;
} // namespace mensaje

/// The settings of an open-file dialog.
struct DialogoAbrir {
    std::string DialogTitle;
    std::string FileName; ///< the chosen path; empty when the person cancels
    std::string DefaultExt;
    std::string Filter;
    int Flags = 0;
};

/// A file that is being written. It takes its place whole with `publicar`; until then what stood there stays
/// as it is, and without it nothing is left behind.
class ArchivoNuevo {
public:
    ArchivoNuevo() = default;
    ArchivoNuevo(const ArchivoNuevo&) = delete;
    ArchivoNuevo& operator=(const ArchivoNuevo&) = delete;
    virtual ~ArchivoNuevo() = default;

    virtual void escribir(const std::string& bytes) = 0;
    /// Call once, with all written.
    virtual void publicar() = 0;
};

/// The platform of the windows: the desktop implements it with its toolkit, tests and jobs with prepared
/// answers.
class Servicios {
public:
    Servicios() = default;
    Servicios(const Servicios&) = delete;
    Servicios& operator=(const Servicios&) = delete;
    virtual ~Servicios() = default;

    /// Shows a modal message box and hands back the answer.
    virtual int mensaje(const std::string& texto, const std::string& titulo, int opciones) = 0;
    /// Tells a person of the run-time fault that ended their act.
    virtual void fallo(const ErrorEjecucion& error) = 0;
    /// Tells of the fault after which the program ends. Where nobody looks on it is told like any other.
    virtual void falloFatal(const ErrorEjecucion& error) { fallo(error); }
    /// Lets a person choose a file: sets `FileName`, to the empty text when they cancel.
    virtual void elegirArchivo(DialogoAbrir& dialogo) = 0;
    /// Nothing when the person cancels, for both.
    virtual std::optional<Fuente> elegirFuente(const Fuente& actual) = 0;
    virtual std::optional<Color> elegirColor(Color actual) = 0;
    /// Begins the file that is to stand at `ruta`. This, and each step of the writing, throws the fault
    /// whose description tells a person what was not written and why.
    virtual std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) = 0;
    /// What a long computation tells how far it is. Who hears it may cancel: that ends the act.
    [[nodiscard]] virtual Avance avance() { return {}; }
    /// The threads that help the one of the windows to compute; null where it is alone.
    [[nodiscard]] virtual Cuadrilla* cuadrilla() { return nullptr; }
};

} // namespace varo
