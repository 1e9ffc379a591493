#include "motor/lectores/FilasCsv.h"

#include <algorithm>

namespace varo {

bool FilasCsv::siguiente() {
    if (lugar_ == texto_.size()) {
        return false;
    }
    ++numero_;
    celdas_.clear();
    compuestas_.clear();
    celdasTragadas_ = 0;
    leerCelda();
    while (lugar_ < texto_.size() && texto_[lugar_] == separador_) {
        ++lugar_;
        leerCelda();
        if (celdas_.size() > celdasDeUnaHoja) {
            lugar_ = texto_.size();
        }
    }
    if (lugar_ < texto_.size()) {
        lugar_ += texto_.substr(lugar_).starts_with("\r\n") ? 2 : 1;
    }
    return true;
}

void FilasCsv::leerCelda() {
    pasarBlancos();
    const bool conComillas = lugar_ < texto_.size() && texto_[lugar_] == '"';
    celdas_.push_back(conComillas ? leerEntreComillas() : leerSuelta());
}

std::string_view FilasCsv::leerEntreComillas() {
    const auto dentro = ++lugar_;
    std::string junta;
    bool esDelTexto = true; // as it stands there
    for (;;) {
        const auto fin = texto_.find('"', lugar_);
        if (fin == std::string_view::npos) {
            sinCerrar_ = true;
            lugar_ = texto_.size();
            return texto_.substr(dentro);
        }
        junta += texto_.substr(lugar_, fin - lugar_);
        lugar_ = fin + 1;
        if (!texto_.substr(lugar_).starts_with('"')) {
            break;
        }
        junta += '"';
        ++lugar_;
        esDelTexto = false;
    }
    const auto largo = lugar_ - 1 - dentro;
    const auto resto = leerSuelta();
    mirarSusLineas(texto_.substr(dentro, largo), !resto.empty());
    if (esDelTexto && resto.empty()) {
        return texto_.substr(dentro, largo);
    }
    return compuestas_.emplace_back(junta.append(resto));
}

void FilasCsv::mirarSusLineas(std::string_view celda, bool sigue) {
    if (celda.find_first_of("\r\n") == std::string_view::npos) {
        return;
    }
    if (sigue) {
        celdasTragadas_ = celdasDeUnaHoja; // what closes it opens another cell
    }
    while (!celda.empty()) {
        const auto linea = celda.substr(0, celda.find_first_of("\r\n"));
        const auto cuantas = 1 + static_cast<std::size_t>(std::ranges::count(linea, separador_));
        celdasTragadas_ = std::max(celdasTragadas_, cuantas);
        celda.remove_prefix(std::min(celda.size(), linea.size() + 1));
    }
}

std::string_view FilasCsv::leerSuelta() {
    const auto comienzo = lugar_;
    while (lugar_ < texto_.size() && texto_[lugar_] != separador_ && texto_[lugar_] != '\n' &&
           texto_[lugar_] != '\r') {
        ++lugar_;
    }
    auto fin = lugar_;
    while (fin > comienzo && esBlanco(texto_[fin - 1])) {
        --fin;
    }
    return texto_.substr(comienzo, fin - comienzo);
}

void FilasCsv::pasarBlancos() {
    while (lugar_ < texto_.size() && esBlanco(texto_[lugar_])) {
        ++lugar_;
    }
}

} // namespace varo
