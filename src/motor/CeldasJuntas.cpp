#include "motor/CeldasJuntas.h"

#include <algorithm>
#include <bit>
#include <string_view>
#include <utility>

namespace varo {
namespace {

using OchoBytes = std::array<char, 8>;

constexpr std::uint8_t textoAparte = 0xFF;

using FilaYColumna = std::pair<std::size_t, std::size_t>;

} // namespace

ValorDeCelda CeldasJuntas::valor(std::size_t i) const {
    const auto& celda = (*celdas_)[i];
    switch (celda.clase) {
    case ValorDeCelda::Clase::Vacia:
        return {};
    case ValorDeCelda::Clase::Texto:
        return ValorDeCelda{celda.longitud == textoAparte
                                ? (*textos_)[std::bit_cast<TextosGuardados::SitioDeTexto>(celda.contenido)]
                                : std::string_view{celda.contenido.data(), celda.longitud}};
    default:
        return {celda.clase, std::bit_cast<double>(celda.contenido)};
    }
}

void CeldasJuntas::anadir(std::size_t fila, std::size_t columna, const ValorDeCelda& valor) {
    Guardada celda;
    celda.fila = static_cast<std::uint32_t>(fila);
    celda.columna = static_cast<std::uint16_t>(columna);
    guardar(celda, valor);
    if (!celdas_) {
        celdas_.emplace();
    }
    celdas_->push_back(celda);
}

void CeldasJuntas::cambiarUltima(const ValorDeCelda& valor) {
    guardar(celdas_->back(), valor);
}

void CeldasJuntas::guardar(Guardada& celda, const ValorDeCelda& valor) {
    celda.clase = valor.clase();
    celda.longitud = 0;
    if (valor.clase() != ValorDeCelda::Clase::Texto) {
        celda.contenido = std::bit_cast<OchoBytes>(valor.numero());
        return;
    }
    const auto texto = valor.texto();
    if (texto.size() <= celda.contenido.size()) {
        celda.longitud = static_cast<std::uint8_t>(texto.size());
        std::ranges::copy(texto, celda.contenido.begin());
        return;
    }
    if (textos_ == nullptr) {
        textos_ = std::make_shared<TextosGuardados>();
    }
    celda.longitud = textoAparte;
    celda.contenido = std::bit_cast<OchoBytes>(textos_->guardar(texto));
}

void CeldasJuntas::ordenar() {
    const auto antes = [](const Guardada& a, const Guardada& b) {
        return FilaYColumna{a.fila, a.columna} < FilaYColumna{b.fila, b.columna};
    };
    if (celdas_ && !std::is_sorted(celdas_->begin(), celdas_->end(), antes)) {
        std::stable_sort(celdas_->begin(), celdas_->end(), antes);
    }
}

std::size_t CeldasJuntas::buscar(std::size_t desde, std::size_t fila, std::size_t columna) const {
    if (!celdas_) {
        return 0;
    }
    const auto hallada =
        std::lower_bound(celdas_->begin() + static_cast<std::ptrdiff_t>(desde), celdas_->end(),
                         FilaYColumna{fila, columna}, [](const Guardada& celda, FilaYColumna sitio) {
                             return FilaYColumna{celda.fila, celda.columna} < sitio;
                         });
    return static_cast<std::size_t>(hallada - celdas_->begin());
}

} // namespace varo
