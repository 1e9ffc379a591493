// Run-time faults: the number, a Spanish description and the trail of where it happened.
#pragma once

#include <cstddef>
#include <exception>
#include <optional>
#include <string>

namespace varo {

/// The Spanish description of a fault number ("División por cero" for 11).
std::string DescripcionError(int numero);

/// A fault of arithmetic, conversion or the platform. It ends the run that meets it.
class ErrorEjecucion : public std::exception {
public:
    explicit ErrorEjecucion(int numero);
    ErrorEjecucion(int numero, std::string descripcion);

    [[nodiscard]] int numero() const noexcept { return numero_; }
    [[nodiscard]] const std::string& descripcion() const noexcept { return descripcion_; }

    /// Adds where it happened. Each layer calls it on the way out, the innermost one first; `lugar()` tells
    /// the outermost place first: "familia di/dmed, fila 12 de «Parcela1$», árbol 7, columna «CAP»".
    ErrorEjecucion& en(const std::string& lugar);
    /// The same for a place that is a row of the sheet, which has this number there.
    ErrorEjecucion& enFila(int fila, const std::string& lugar);
    /// Tells more of that row, which is known, right behind it. The first one stays.
    ErrorEjecucion& precisarFila(const std::string& detalle);
    /// The row of the sheet at fault, once it is known.
    [[nodiscard]] const std::optional<int>& fila() const noexcept { return fila_; }
    [[nodiscard]] const std::string& lugar() const noexcept { return lugar_; }

    /// Adds the cause in words behind the description. The first one stays: it stood nearest to the fault.
    ErrorEjecucion& porque(const std::string& causa);
    /// Empty when nobody has told it.
    [[nodiscard]] const std::string& causa() const noexcept { return causa_; }

    /// "Error 11: División por cero (familia di/dmed, fila 12)".
    [[nodiscard]] const char* what() const noexcept override { return mensaje_.c_str(); }

private:
    void componerMensaje();

    int numero_;
    std::string descripcion_;
    std::string causa_;
    std::string lugar_;
    std::optional<int> fila_;
    std::size_t detrasDeLaFila_ = 0; ///< how much of `lugar_` stands behind the row
    bool filaPrecisada_ = false;
    std::string mensaje_;
};

/// A fault of the data engine: a file, a table, a field or a query that is not right. The description names
/// it.
class ErrorMotor : public ErrorEjecucion {
public:
    using ErrorEjecucion::ErrorEjecucion;
};

/// The fault numbers in use.
namespace fallo {
inline constexpr int argumentoNoValido = 5;
inline constexpr int desbordamiento = 6;
inline constexpr int fueraDeIndice = 9;
inline constexpr int divisionPorCero = 11;
inline constexpr int tiposDistintos = 13;
inline constexpr int nombreDeArchivo = 52;
inline constexpr int archivoNoEncontrado = 53;
inline constexpr int discoLleno = 61;
inline constexpr int dispositivoNoDisponible = 68;
inline constexpr int permisoDenegado = 70;
inline constexpr int accesoAlArchivo = 75;
inline constexpr int rutaNoEncontrada = 76;
inline constexpr int objetoNoEstablecido = 91;
inline constexpr int usoDeNulo = 94;
inline constexpr int accionNoAdmitida = 445;
inline constexpr int funcionDeHoja = 1004;
inline constexpr int sinRegistroActual = 3021;
inline constexpr int formatoNoReconocido = 3343;
inline constexpr int archivoDanado = 3049;
inline constexpr int archivoCifrado = 3031;
inline constexpr int elementoNoEncontrado = 3265;
inline constexpr int nombreDesconocido = 3061;
inline constexpr int tablaDesconocida = 3078;
inline constexpr int tablaNoAdmitida = 3251;
inline constexpr int sintaxisDeConsulta = 3075;
inline constexpr int elementoRepetido = 3367;
inline constexpr int tiposDistintosEnConsulta = 3464;
} // namespace fallo

} // namespace varo
