#include "motor/sql/Lexico.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>
#include <array>
#include <utility>

namespace varo::sql {

namespace {

constexpr std::size_t letrasCercanas = 20;
constexpr std::string_view blancos = " \t\r\n";
constexpr std::string_view signosDeUnaLetra = "+-*/^=<>(),";
constexpr std::array<std::string_view, 3> signosDeDosLetras{"<>", "<=", ">="};
constexpr std::array<std::string_view, 13> palabrasReservadas{
    "SELECT", "FROM", "WHERE", "AND", "OR", "NOT", "ORDER", "BY", "AS", "ASC", "DESC", "TOP", "NULL"};

bool EsCifra(char c) {
    return c >= '0' && c <= '9';
}

/// The Latin letters with their accents, ª and º.
bool EsLetra(char32_t c) {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || c == U'ª' || c == U'º' ||
           (c >= U'À' && c <= U'ɏ' && c != U'×' && c != U'÷');
}

class Cortador {
public:
    explicit Cortador(std::string_view consulta) : consulta_{consulta} {}

    std::vector<Pieza> Trocear();

private:
    Pieza Siguiente();
    Pieza Palabra();
    Pieza Nombre();
    Pieza Numero();
    Pieza Texto();
    Pieza Signo();

    /// Bytes of the letter that stands here, 0 when no letter does.
    [[nodiscard]] std::size_t Letra() const;
    /// The character further on, or a character that no piece holds.
    [[nodiscard]] char Mirar(std::size_t adelante = 0) const {
        return lugar_ + adelante < consulta_.size() ? consulta_[lugar_ + adelante] : '\0';
    }
    void PasarCifras() {
        while (EsCifra(Mirar())) {
            ++lugar_;
        }
    }
    [[nodiscard]] std::string DesdeHastaAqui(std::size_t comienzo) const {
        return std::string{consulta_.substr(comienzo, lugar_ - comienzo)};
    }

    std::string_view consulta_;
    std::size_t lugar_ = 0;
};

std::vector<Pieza> Cortador::Trocear() {
    std::vector<Pieza> piezas;
    do {
        lugar_ = std::min(consulta_.find_first_not_of(blancos, lugar_), consulta_.size());
        const auto comienzo = lugar_;
        piezas.push_back(Siguiente());
        piezas.back().comienzo = comienzo;
    } while (piezas.back().clase != Pieza::Clase::fin);
    return piezas;
}

Pieza Cortador::Siguiente() {
    if (lugar_ == consulta_.size()) {
        return Pieza{};
    }
    if (Letra() > 0) {
        return Palabra();
    }
    if (EsCifra(Mirar()) || (Mirar() == '.' && EsCifra(Mirar(1)))) {
        return Numero();
    }
    if (Mirar() == '[') {
        return Nombre();
    }
    return Mirar() == '\'' ? Texto() : Signo();
}

std::size_t Cortador::Letra() const {
    auto resto = consulta_.substr(lugar_);
    return !resto.empty() && EsLetra(SacarUtf8(resto)) ? consulta_.size() - lugar_ - resto.size() : 0;
}

Pieza Cortador::Palabra() {
    const auto comienzo = lugar_;
    while (Letra() > 0 || EsCifra(Mirar()) || Mirar() == '_') {
        lugar_ += std::max<std::size_t>(Letra(), 1);
    }
    return {.clase = Pieza::Clase::palabra, .texto = DesdeHastaAqui(comienzo)};
}

Pieza Cortador::Nombre() {
    const auto comienzo = lugar_;
    const auto cierre = consulta_.find(']', lugar_);
    if (cierre == std::string_view::npos) {
        throw SintaxisRota(consulta_, comienzo, "falta el corchete «]» que cierra el nombre");
    }
    std::string nombre{consulta_.substr(comienzo + 1, cierre - comienzo - 1)};
    if (nombre.empty()) {
        throw SintaxisRota(consulta_, comienzo, "no hay ningún nombre entre los corchetes");
    }
    lugar_ = cierre + 1;
    return {.clase = Pieza::Clase::nombre, .texto = std::move(nombre)};
}

Pieza Cortador::Numero() {
    const auto comienzo = lugar_;
    PasarCifras();
    if (Mirar() == '.') {
        ++lugar_;
        PasarCifras();
    }
    const std::size_t signo = Mirar(1) == '+' || Mirar(1) == '-' ? 1 : 0;
    if ((Mirar() == 'E' || Mirar() == 'e') && EsCifra(Mirar(1 + signo))) {
        lugar_ += 1 + signo;
        PasarCifras();
    }
    if (Letra() > 0) {
        throw SintaxisRota(consulta_, comienzo, "un número no puede llevar letras detrás");
    }
    auto escrito = DesdeHastaAqui(comienzo);
    const double valor = Val(escrito);
    return {.clase = Pieza::Clase::numero, .texto = std::move(escrito), .numero = valor};
}

Pieza Cortador::Texto() {
    const auto comienzo = lugar_;
    std::string texto;
    for (;;) {
        const auto comilla = consulta_.find('\'', lugar_ + 1);
        if (comilla == std::string_view::npos) {
            throw SintaxisRota(consulta_, comienzo, "falta la comilla que cierra el texto");
        }
        texto += consulta_.substr(lugar_ + 1, comilla - lugar_ - 1);
        lugar_ = comilla + 1;
        if (Mirar() != '\'') {
            return {.clase = Pieza::Clase::texto, .texto = std::move(texto)};
        }
        texto += '\'';
    }
}

Pieza Cortador::Signo() {
    const auto comienzo = lugar_;
    const auto dos = consulta_.substr(lugar_, 2);
    if (std::ranges::find(signosDeDosLetras, dos) != signosDeDosLetras.end()) {
        lugar_ += 2;
    } else if (signosDeUnaLetra.find(Mirar()) != std::string_view::npos) {
        lugar_ += 1;
    } else {
        throw SintaxisRota(consulta_, comienzo, "aquí no puede haber este signo");
    }
    return {.clase = Pieza::Clase::signo, .texto = DesdeHastaAqui(comienzo)};
}

} // namespace

std::vector<Pieza> Trocear(std::string_view consulta) {
    return Cortador{consulta}.Trocear();
}

bool EsPalabraReservada(std::string_view palabra) {
    return std::ranges::any_of(palabrasReservadas,
                               [&](std::string_view reservada) { return MismoNombre(palabra, reservada); });
}

ErrorMotor SintaxisRota(std::string_view consulta, std::size_t byte, const std::string& motivo) {
    const auto lugar = std::min(byte, consulta.size());
    const auto resto = consulta.substr(lugar);
    const auto posicion = std::to_string(Longitud(consulta.substr(0, lugar)) + 1);
    const auto cerca =
        resto.empty() ? std::string{"al final"} : "cerca de «" + Izquierda(resto, letrasCercanas) + "»";
    return ErrorMotor{fallo::sintaxisDeConsulta, DescripcionError(fallo::sintaxisDeConsulta) + ", posición " +
                                                     posicion + ", " + cerca + ": " + motivo};
}

} // namespace varo::sql
