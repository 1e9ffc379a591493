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

    std::vector<Pieza> trocear();

private:
    Pieza siguiente();
    Pieza palabra();
    Pieza nombre();
    Pieza numero();
    Pieza texto();
    Pieza signo();

    /// Bytes of the letter that stands here, 0 when no letter does.
    [[nodiscard]] std::size_t letra() const;
    /// The character further on, or a character that no piece holds.
    [[nodiscard]] char mirar(std::size_t adelante = 0) const {
        return lugar_ + adelante < consulta_.size() ? consulta_[lugar_ + adelante] : '\0';
    }
    void pasarCifras() {
        while (EsCifra(mirar())) {
            ++lugar_;
        }
    }
    [[nodiscard]] std::string desdeHastaAqui(std::size_t comienzo) const {
        return std::string{consulta_.substr(comienzo, lugar_ - comienzo)};
    }

    std::string_view consulta_;
    std::size_t lugar_ = 0;
};

std::vector<Pieza> Cortador::trocear() {
    std::vector<Pieza> piezas;
    do {
        lugar_ = std::min(consulta_.find_first_not_of(blancos, lugar_), consulta_.size());
        const auto comienzo = lugar_;
        piezas.push_back(siguiente());
        piezas.back().comienzo = comienzo;
    } while (piezas.back().clase != Pieza::Clase::Fin);
    return piezas;
}

Pieza Cortador::siguiente() {
    if (lugar_ == consulta_.size()) {
        return Pieza{};
    }
    if (letra() > 0) {
        return palabra();
    }
    if (EsCifra(mirar()) || (mirar() == '.' && EsCifra(mirar(1)))) {
        return numero();
    }
    if (mirar() == '[') {
        return nombre();
    }
    return mirar() == '\'' ? texto() : signo();
}

std::size_t Cortador::letra() const {
    auto resto = consulta_.substr(lugar_);
    return !resto.empty() && EsLetra(SacarUtf8(resto)) ? consulta_.size() - lugar_ - resto.size() : 0;
}

Pieza Cortador::palabra() {
    const auto comienzo = lugar_;
    while (letra() > 0 || EsCifra(mirar()) || mirar() == '_') {
        lugar_ += std::max<std::size_t>(letra(), 1);
    }
    return {.clase = Pieza::Clase::Palabra, .texto = desdeHastaAqui(comienzo)};
}

Pieza Cortador::nombre() {
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
    return {.clase = Pieza::Clase::Nombre, .texto = std::move(nombre)};
}

Pieza Cortador::numero() {
    const auto comienzo = lugar_;
    pasarCifras();
    if (mirar() == '.') {
        ++lugar_;
        pasarCifras();
    }
    const std::size_t signo = mirar(1) == '+' || mirar(1) == '-' ? 1 : 0;
    if ((mirar() == 'E' || mirar() == 'e') && EsCifra(mirar(1 + signo))) {
        lugar_ += 1 + signo;
        pasarCifras();
    }
    if (letra() > 0) {
        throw SintaxisRota(consulta_, comienzo, "un número no puede llevar letras detrás");
    }
    auto escrito = desdeHastaAqui(comienzo);
    const double valor = Val(escrito);
    return {.clase = Pieza::Clase::Numero, .texto = std::move(escrito), .numero = valor};
}

Pieza Cortador::texto() {
    const auto comienzo = lugar_;
    std::string texto;
    for (;;) {
        const auto comilla = consulta_.find('\'', lugar_ + 1);
        if (comilla == std::string_view::npos) {
            throw SintaxisRota(consulta_, comienzo, "falta la comilla que cierra el texto");
        }
        texto += consulta_.substr(lugar_ + 1, comilla - lugar_ - 1);
        lugar_ = comilla + 1;
        if (mirar() != '\'') {
            return {.clase = Pieza::Clase::Texto, .texto = std::move(texto)};
        }
        texto += '\'';
    }
}

Pieza Cortador::signo() {
    const auto comienzo = lugar_;
    const auto dos = consulta_.substr(lugar_, 2);
    if (std::ranges::find(signosDeDosLetras, dos) != signosDeDosLetras.end()) {
        lugar_ += 2;
    } else if (signosDeUnaLetra.find(mirar()) != std::string_view::npos) {
        lugar_ += 1;
    } else {
        throw SintaxisRota(consulta_, comienzo, "aquí no puede haber este signo");
    }
    return {.clase = Pieza::Clase::Signo, .texto = desdeHastaAqui(comienzo)};
}

} // namespace

std::vector<Pieza> Trocear(std::string_view consulta) {
    return Cortador{consulta}.trocear();
}

bool EsPalabraReservada(std::string_view palabra) {
    return std::ranges::any_of(palabrasReservadas,
                               [&](std::string_view reservada) { return MismoNombre(palabra, reservada); });
}

bool EsNombreSinCorchetes(std::string_view nombre) {
    bool esPalabra = !nombre.empty() && !EsPalabraReservada(nombre);
    for (auto resto = nombre; esPalabra && !resto.empty();) {
        const bool esLaPrimera = resto.size() == nombre.size();
        const char32_t c = SacarUtf8(resto);
        esPalabra = EsLetra(c) || (!esLaPrimera && ((c >= U'0' && c <= U'9') || c == U'_'));
    }
    return esPalabra;
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
