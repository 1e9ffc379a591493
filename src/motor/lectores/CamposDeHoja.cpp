#include "motor/lectores/CamposDeHoja.h"

#include "basico/Texto.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace varo {
namespace {

constexpr std::size_t longitudDeNombre = 64;

std::string NombreEscrito(const Valor& celda) {
    if (EsNulo(celda)) {
        return {};
    }
    auto nombre = Izquierda(ATexto(celda), longitudDeNombre);
    for (char& letra : nombre) {
        switch (letra) {
        case '.':
            letra = '#';
            break;
        case '[':
            letra = '(';
            break;
        case ']':
            letra = ')';
            break;
        case '!':
            letra = '_';
            break;
        default:
            break;
        }
    }
    return Recortar(nombre).empty() ? std::string{} : nombre;
}

/// The names given so far.
class NombresDados {
public:
    std::string nuevo(const std::string& nombre) {
        if (dados_.insert(Minusculas(nombre)).second) {
            return nombre;
        }
        // Repetitions go on where the last one of the same name stopped, so that many of them cost little.
        int& numero = repeticiones_[Minusculas(nombre)];
        for (;;) {
            const auto cifra = std::to_string(++numero);
            auto distinto = Izquierda(nombre, longitudDeNombre - cifra.size()) + cifra;
            if (dados_.insert(Minusculas(distinto)).second) {
                return distinto;
            }
        }
    }

private:
    std::set<std::string> dados_;
    std::map<std::string, int> repeticiones_;
};

} // namespace

std::vector<Campo> CamposDeHoja(const std::vector<Valor>& cabecera) {
    NombresDados dados;
    std::vector<Campo> campos;
    for (const auto& celda : cabecera) {
        auto nombre = NombreEscrito(celda);
        if (nombre.empty()) {
            nombre = "F" + std::to_string(campos.size() + 1);
        }
        campos.push_back({dados.nuevo(nombre)});
    }
    return campos;
}

} // namespace varo
