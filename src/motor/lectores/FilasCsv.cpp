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
    cierraEnMedio_ = false;
    deVariasLineas_.clear();
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
    constexpr std::string_view fines = "\r\n";
    const auto finDeLaPrimera = celda.find_first_of(fines);
    if (finDeLaPrimera == std::string_view::npos) {
        cierraEnMedio_ = cierraEnMedio_ || (sigue && celdasDe(celda) > 1);
        return;
    }
    deVariasLineas_.push_back({celdas_.size(), celdasDe(celda.substr(0, finDeLaPrimera)),
                               celdasDe(celda.substr(celda.find_last_of(fines) + 1))});
    if (sigue) {
        celdasTragadas_ = celdasDeUnaHoja; // what closes it opens another cell
    }
    while (!celda.empty()) {
        const auto linea = celda.substr(0, celda.find_first_of(fines));
        celdasTragadas_ = std::max(celdasTragadas_, celdasDe(linea));
        celda.remove_prefix(std::min(celda.size(), linea.size() + 1));
    }
}

std::size_t FilasCsv::celdasDe(std::string_view linea) const {
    return 1 + static_cast<std::size_t>(std::ranges::count(linea, separador_));
}

bool FilasCsv::juntaFilas(std::size_t celdasDeUna) const {
    return std::ranges::any_of(deVariasLineas_, [&](const DeVariasLineas& celda) {
        const auto detras = celdas_.size() - celda.antes - 1;
        return celda.antes + celda.enLaPrimera >= celdasDeUna && celda.enLaUltima + detras >= celdasDeUna;
    });
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
