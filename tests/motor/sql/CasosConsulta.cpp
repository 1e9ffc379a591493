#include "motor/sql/CasosConsulta.h"

#include <charconv>
#include <optional>
#include <span>
#include <stdexcept>
#include <utility>

namespace varo::prueba {

namespace {

struct Linea {
    int numero = 0;
    std::string_view texto;
};
using Bloque = std::span<const Linea>;

[[noreturn]] void NoSeEntiende(const Linea& linea, const std::string& motivo) {
    throw std::runtime_error{"línea " + std::to_string(linea.numero) + ", «" + std::string{linea.texto} +
                             "»: " + motivo};
}

std::string_view SinBlancos(std::string_view texto) {
    const auto primero = texto.find_first_not_of(' ');
    return primero == std::string_view::npos
               ? std::string_view{}
               : texto.substr(primero, texto.find_last_not_of(' ') - primero + 1);
}

/// Takes the text up to the separator, or all of it, off the front.
std::string_view Cortar(std::string_view& texto, char separador) {
    const auto corte = texto.find(separador);
    const auto trozo = texto.substr(0, corte);
    texto = corte == std::string_view::npos ? std::string_view{} : texto.substr(corte + 1);
    return trozo;
}

std::vector<std::string_view> Columnas(std::string_view texto) {
    std::vector<std::string_view> columnas;
    do {
        columnas.push_back(SinBlancos(Cortar(texto, '|')));
    } while (!texto.empty());
    return columnas;
}

template <class Numero>
std::optional<Numero> LeerNumero(std::string_view texto) {
    Numero numero = 0;
    const char* const final = texto.data() + texto.size();
    const auto [donde, error] = std::from_chars(texto.data(), final, numero);
    return error == std::errc{} && donde == final ? std::optional{numero} : std::nullopt;
}

Valor LeerValor(std::string_view celda, const Linea& linea) {
    constexpr std::string_view fecha = "fecha ";
    if (celda == "nulo") {
        return Nulo{};
    }
    if (celda == "verdadero" || celda == "falso") {
        return celda == "verdadero";
    }
    if (celda.size() >= 2 && celda.front() == '\'' && celda.back() == '\'') {
        return std::string{celda.substr(1, celda.size() - 2)};
    }
    const bool esFecha = celda.starts_with(fecha);
    const auto numero = LeerNumero<double>(esFecha ? celda.substr(fecha.size()) : celda);
    if (!numero) {
        NoSeEntiende(linea, "«" + std::string{celda} + "» no es un valor");
    }
    return esFecha ? Valor{Fecha{*numero}} : Valor{*numero};
}

Tabla LeerTabla(std::string_view nombre, const Linea& cabecera, Bloque lineas) {
    if (lineas.empty()) {
        NoSeEntiende(cabecera, "faltan los campos");
    }
    std::vector<Campo> campos;
    for (const auto columna : Columnas(lineas.front().texto)) {
        campos.push_back({std::string{columna}});
    }
    Tabla tabla{std::string{nombre}, Coleccion<Campo>{campos}, {}};
    for (const auto& linea : lineas.subspan(1)) {
        std::vector<Valor> fila;
        for (const auto celda : Columnas(linea.texto)) {
            fila.push_back(LeerValor(celda, linea));
        }
        if (fila.size() != campos.size()) {
            NoSeEntiende(linea, "no tiene un valor por campo");
        }
        tabla.filas.anadir(std::move(fila));
    }
    return tabla;
}

void LeerFallo(CasoConsulta& caso, std::string_view numero, const Linea& cabecera, Bloque lineas) {
    caso.fallo = LeerNumero<int>(numero).value_or(0);
    if (caso.fallo <= 0) {
        NoSeEntiende(cabecera, "falta el número del fallo");
    }
    for (const auto& linea : lineas) {
        auto resto = linea.texto;
        if (Cortar(resto, ' ') != "dice" || resto.empty()) {
            NoSeEntiende(linea, "se esperaba «dice»");
        }
        caso.dice.emplace_back(resto);
    }
}

CasoConsulta LeerConsulta(Bloque bloque) {
    if (bloque.size() < 3) {
        NoSeEntiende(bloque.front(), "faltan la consulta o lo que da");
    }
    CasoConsulta caso;
    caso.linea = bloque.front().numero;
    caso.sql = bloque[1].texto;
    const auto& cabecera = bloque[2];
    auto resto = cabecera.texto;
    const auto clave = Cortar(resto, ' ');
    if (clave == "da" && resto.empty()) {
        caso.esperado = LeerTabla("", cabecera, bloque.subspan(3));
    } else if (clave == "falla") {
        LeerFallo(caso, resto, cabecera, bloque.subspan(3));
    } else {
        NoSeEntiende(cabecera, "se esperaba «da» o «falla» con su número");
    }
    return caso;
}

void LeerBloque(Bloque bloque, CasosConsulta& leidos) {
    const auto& primera = bloque.front();
    auto resto = primera.texto;
    const auto clave = Cortar(resto, ' ');
    if (clave == "tabla" && !resto.empty()) {
        leidos.tablas.push_back(LeerTabla(resto, primera, bloque.subspan(1)));
    } else if (clave == "consulta" && resto.empty()) {
        leidos.casos.push_back(LeerConsulta(bloque));
    } else {
        NoSeEntiende(primera, "se esperaba «tabla» con su nombre o «consulta»");
    }
}

} // namespace

CasosConsulta LeerCasosConsulta(std::string_view texto) {
    CasosConsulta leidos;
    std::vector<Linea> bloque;
    const auto cerrarBloque = [&] {
        if (!bloque.empty()) {
            LeerBloque(bloque, leidos);
        }
        bloque.clear();
    };
    for (int numero = 1; !texto.empty(); ++numero) {
        const auto linea = Cortar(texto, '\n');
        if (linea.empty()) {
            cerrarBloque();
        } else if (linea.front() != '#') {
            bloque.push_back({numero, linea});
        }
    }
    cerrarBloque();
    if (leidos.casos.empty()) {
        throw std::runtime_error{"no hay ningún caso"};
    }
    return leidos;
}

} // namespace varo::prueba
