#include "arquitectura/Piezas.h"

#include <algorithm>
#include <cstddef>

namespace varo::arquitectura {

namespace {

bool EsLetra(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           static_cast<unsigned char>(c) >= 0x80;
}

class Troceador {
public:
    explicit Troceador(std::string_view texto) : texto_{texto} {}

    std::vector<Pieza> trocear() {
        while (lugar_ < texto_.size()) {
            const char c = texto_[lugar_];
            if (c == '\n') {
                ++linea_;
                ++lugar_;
                alPrincipio_ = true;
            } else if (c == ' ' || c == '\t') {
                ++lugar_;
            } else if (c == '#' && alPrincipio_) {
                pasar(finDeLinea());
            } else {
                alPrincipio_ = false;
                pieza(c);
            }
        }
        return std::move(piezas_);
    }

private:
    [[nodiscard]] bool sigue(std::string_view comienzo) const {
        return texto_.substr(lugar_).starts_with(comienzo);
    }

    /// The place behind the next `marca`, or the end.
    [[nodiscard]] std::size_t tras(std::string_view marca, std::size_t desde) const {
        const auto hallada = texto_.find(marca, desde);
        return hallada == std::string_view::npos ? texto_.size() : hallada + marca.size();
    }

    [[nodiscard]] std::size_t finDeLinea() const {
        return std::min(texto_.find('\n', lugar_), texto_.size());
    }

    [[nodiscard]] std::size_t finDePalabra() const {
        auto fin = lugar_;
        // A ' between digits groups them.
        while (fin < texto_.size() && (EsLetra(texto_[fin]) || (texto_[fin] == '\'' && esNumero()))) {
            ++fin;
        }
        return fin;
    }

    [[nodiscard]] bool esNumero() const { return texto_[lugar_] >= '0' && texto_[lugar_] <= '9'; }

    [[nodiscard]] std::size_t finDeLiteral(char comilla) const {
        auto fin = lugar_ + 1;
        while (fin < texto_.size() && texto_[fin] != comilla) {
            fin += texto_[fin] == '\\' ? 2U : 1U;
        }
        return std::min(fin + 1, texto_.size());
    }

    [[nodiscard]] std::size_t finDeLiteralCrudo() const {
        const auto abre = std::min(texto_.find('(', lugar_), texto_.size());
        const auto marca = ")" + std::string{texto_.substr(lugar_ + 2, abre - lugar_ - 2)} + "\"";
        return tras(marca, abre);
    }

    void pieza(char c) {
        if (sigue("//")) {
            comentario();
        } else if (sigue("/*")) {
            poner(Pieza::Clase::Comentario, tras("*/", lugar_ + 2));
        } else if (sigue("R\"")) {
            poner(Pieza::Clase::Literal, finDeLiteralCrudo());
        } else if (c == '"' || c == '\'') {
            poner(Pieza::Clase::Literal, finDeLiteral(c));
        } else if (EsLetra(c)) {
            poner(Pieza::Clase::Palabra, finDePalabra());
        } else {
            poner(Pieza::Clase::Signo, lugar_ + (sigue("::") || sigue("->") ? 2U : 1U));
        }
    }

    void comentario() {
        const bool sigueAOtro = !piezas_.empty() && piezas_.back().clase == Pieza::Clase::Comentario &&
                                ultimaDeComentario_ + 1 == linea_;
        ultimaDeComentario_ = linea_;
        const auto fin = finDeLinea();
        if (sigueAOtro) {
            piezas_.back().texto += "\n" + std::string{texto_.substr(lugar_, fin - lugar_)};
            pasar(fin);
        } else {
            poner(Pieza::Clase::Comentario, fin);
        }
    }

    void poner(Pieza::Clase clase, std::size_t fin) {
        const auto texto = texto_.substr(lugar_, fin - lugar_);
        piezas_.push_back(
            {clase, clase == Pieza::Clase::Literal ? std::string{} : std::string{texto}, linea_});
        pasar(fin);
    }

    void pasar(std::size_t fin) {
        linea_ += static_cast<int>(std::ranges::count(texto_.substr(lugar_, fin - lugar_), '\n'));
        lugar_ = fin;
    }

    std::string_view texto_;
    std::size_t lugar_ = 0;
    int linea_ = 1;
    bool alPrincipio_ = true; ///< nothing but blanks stands before on the line
    int ultimaDeComentario_ = -1;
    std::vector<Pieza> piezas_;
};

} // namespace

std::vector<Pieza> Trocear(std::string_view texto) {
    return Troceador{texto}.trocear();
}

} // namespace varo::arquitectura
