// A platform without a screen: prepared answers and a log of the questions.
#pragma once

#include "formularios/Servicios.h"

#include <deque>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace varo {

/// A question to the platform that has no prepared answer.
class SinRespuestaPreparada : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A message box without a prepared answer.
class MensajeInesperado : public SinRespuestaPreparada {
public:
    MensajeInesperado(const std::string& texto, const std::string& titulo)
        : SinRespuestaPreparada{titulo + ": " + texto}, texto_{texto} {}
    [[nodiscard]] const std::string& texto() const { return texto_; }

private:
    std::string texto_;
};

/// A run-time fault that was not expected.
class FalloInesperado : public SinRespuestaPreparada {
public:
    explicit FalloInesperado(const ErrorEjecucion& error)
        : SinRespuestaPreparada{error.what()}, error_{error} {}
    [[nodiscard]] const ErrorEjecucion& error() const { return error_; }

private:
    ErrorEjecucion error_;
};

/// Answers message boxes, faults, files, fonts and colours from queues, in the order of preparation. A
/// question without an answer throws.
class ServiciosPreparados : public Servicios {
public:
    struct Mensaje {
        std::string texto;
        std::string titulo;
        int opciones = 0;

        friend bool operator==(const Mensaje&, const Mensaje&) = default;
    };

    /// The next message box has this text; it gets this answer.
    void esperarMensaje(std::string texto, int respuesta = mensaje::respondeAceptar);
    /// The next run-time fault has this number.
    void esperarFallo(int numero);
    /// The next open-file dialog ends with this path; an empty one cancels it.
    void prepararArchivo(std::string ruta);
    void prepararFuente(std::optional<Fuente> fuente);
    void prepararColor(std::optional<Color> color);
    /// True when no prepared answer is left.
    [[nodiscard]] bool todoPedido() const;

    [[nodiscard]] const std::vector<Mensaje>& mensajes() const { return mensajes_; }
    [[nodiscard]] const std::vector<ErrorEjecucion>& fallos() const { return fallos_; }
    [[nodiscard]] const DialogoAbrir& ultimoDialogo() const { return ultimoDialogo_; }

    int mensaje(const std::string& texto, const std::string& titulo, int opciones) override;
    void fallo(const ErrorEjecucion& error) override;
    void elegirArchivo(DialogoAbrir& dialogo) override;
    std::optional<Fuente> elegirFuente(const Fuente& actual) override;
    std::optional<Color> elegirColor(Color actual) override;
    /// Throws: whoever writes files says how.
    std::unique_ptr<ArchivoNuevo> crearArchivo(const std::string& ruta) override;

private:
    struct Respuesta {
        std::string texto;
        int respuesta = 0;
    };

    std::deque<Respuesta> respuestas_;
    std::deque<int> fallosEsperados_;
    std::deque<std::string> archivos_;
    std::deque<std::optional<Fuente>> fuentes_;
    std::deque<std::optional<Color>> colores_;
    std::vector<Mensaje> mensajes_;
    std::vector<ErrorEjecucion> fallos_;
    DialogoAbrir ultimoDialogo_;
};

} // namespace varo
