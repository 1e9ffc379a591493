// The line of a terminal that tells how far the jobs are, rewritten in place.
#pragma once

#include "basico/Avance.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace varo {

/// What is known of a job that is running.
struct TrabajoEnMarcha {
    std::string etapa;            ///< "parcela.toml: calculando los índices"
    std::optional<Marcha> marcha; ///< within the stage
    int arboles = 0;              ///< 0 while nobody knows
};

/// The line of the first running job:
/// "2 de 5 trabajos; DR, columna 3 de 4, 62 %, quedan 5 s; 1.000 árboles; p.toml: calculando los índices".
/// Without characters that a terminal takes for orders.
std::string TextoDeAvance(std::size_t hechos, std::size_t trabajos, const TrabajoEnMarcha& trabajo,
                          std::chrono::steady_clock::time_point ahora);

/// Jobs on several threads tell of themselves by their number. It writes some times a second at most, and
/// nothing once it is wiped for good.
class LineaDeAvance {
public:
    using Reloj = std::function<std::chrono::steady_clock::time_point()>;

    /// Without a width nobody sees it: only whole lines are written.
    LineaDeAvance(
        std::ostream& terminal, std::size_t ancho, std::size_t trabajos,
        Reloj reloj = [] { return std::chrono::steady_clock::now(); });
    LineaDeAvance(const LineaDeAvance&) = delete;
    LineaDeAvance& operator=(const LineaDeAvance&) = delete;
    ~LineaDeAvance();

    [[nodiscard]] bool seVe() const { return ancho_ > 0; }
    void etapa(std::size_t trabajo, const std::string& etapa);
    void marcha(std::size_t trabajo, const Marcha& marcha, int arboles);
    void acabado(std::size_t trabajo);
    /// Writes a line that stays, to the terminal or to another stream that may end there.
    void decir(const std::string& linea);
    void decir(const std::string& linea, std::ostream& otra);

private:
    void pintar();
    void borrar();

    std::ostream& terminal_;
    const std::size_t ancho_;
    const std::size_t trabajos_;
    const Reloj reloj_;
    std::mutex turno_;
    std::size_t hechos_ = 0;
    std::map<std::size_t, TrabajoEnMarcha> enMarcha_;
    std::optional<std::chrono::steady_clock::time_point> pintada_;
    bool aLaVista_ = false;
};

} // namespace varo
