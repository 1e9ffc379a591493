#include "lote/LineaDeAvance.h"

#include "basico/Texto.h"

#include <algorithm>
#include <ostream>
#include <utility>

namespace varo {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds cadaCuanto{200};
/// To the first column, and nothing behind it.
const char* const lineaVacia = "\r\x1b[K";

/// "32.766".
std::string ConPuntos(int numero) {
    std::string texto = std::to_string(numero);
    for (std::size_t i = texto.size(); i > 3; i -= 3) {
        texto.insert(i - 3, 1, '.');
    }
    return texto;
}

} // namespace

std::string TextoDeAvance(std::size_t hechos, std::size_t trabajos, const TrabajoEnMarcha& trabajo,
                          std::chrono::steady_clock::time_point ahora) {
    std::string texto;
    if (trabajos > 1) {
        texto = std::to_string(hechos) + " de " + std::to_string(trabajos) + " trabajos; ";
    }
    if (trabajo.marcha) {
        constexpr double porCiento = 100;
        texto += trabajo.marcha->etapa + ", " +
                 std::to_string(static_cast<int>(trabajo.marcha->parte() * porCiento)) + " %";
        if (const auto queda = trabajo.marcha->queda(ahora)) {
            texto += ", quedan " + TextoDeDuracion(*queda);
        }
        texto += "; ";
    }
    if (trabajo.arboles > 0) {
        texto += ConPuntos(trabajo.arboles) + (trabajo.arboles == 1 ? " árbol; " : " árboles; ");
    }
    texto += trabajo.etapa;
    const auto esOrden = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; };
    std::replace_if(texto.begin(), texto.end(), esOrden, ' ');
    return texto;
}

LineaDeAvance::LineaDeAvance(std::ostream& terminal, std::size_t ancho, std::size_t trabajos, Reloj reloj)
    : terminal_{terminal}, ancho_{ancho}, trabajos_{trabajos}, reloj_{std::move(reloj)} {}

LineaDeAvance::~LineaDeAvance() {
    borrar();
    terminal_.flush();
}

void LineaDeAvance::etapa(std::size_t trabajo, const std::string& etapa) {
    const std::lock_guard turno{turno_};
    auto& suyo = enMarcha_[trabajo];
    suyo.etapa = etapa;
    suyo.marcha.reset();
    pintar();
}

void LineaDeAvance::marcha(std::size_t trabajo, const Marcha& marcha, int arboles) {
    const std::lock_guard turno{turno_};
    auto& suyo = enMarcha_[trabajo];
    suyo.marcha = marcha;
    suyo.arboles = arboles;
    pintar();
}

void LineaDeAvance::acabado(std::size_t trabajo) {
    const std::lock_guard turno{turno_};
    enMarcha_.erase(trabajo);
    ++hechos_;
    pintar();
}

void LineaDeAvance::decir(const std::string& linea) {
    decir(linea, terminal_);
}

void LineaDeAvance::decir(const std::string& linea, std::ostream& otra) {
    const std::lock_guard turno{turno_};
    borrar();
    terminal_.flush();
    otra << linea << '\n' << std::flush;
}

void LineaDeAvance::pintar() {
    if (!seVe() || enMarcha_.empty()) {
        return;
    }
    const auto ahora = reloj_();
    if (pintada_ && ahora - *pintada_ < cadaCuanto) {
        return;
    }
    pintada_ = ahora;
    aLaVista_ = true;
    // One column stays free: a full line would go on in the next one.
    terminal_ << lineaVacia
              << Izquierda(TextoDeAvance(hechos_, trabajos_, enMarcha_.begin()->second, ahora), ancho_ - 1)
              << std::flush;
}

void LineaDeAvance::borrar() {
    if (aLaVista_) {
        terminal_ << lineaVacia;
        aLaVista_ = false;
    }
}

} // namespace varo
