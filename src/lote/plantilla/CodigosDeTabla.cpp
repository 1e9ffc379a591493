#include "lote/plantilla/CodigosDeTabla.h"

#include "basico/Numeros.h"
#include "basico/Valor.h"

#include <set>
#include <tuple>

namespace varo {

std::vector<std::string> CodigosDeTabla(const Tabla& tabla, const std::string& campo) {
    std::size_t numero = 0;
    for (const auto& otro : tabla.Fields) {
        if (otro.Name == campo) {
            break;
        }
        ++numero;
    }
    std::set<std::tuple<bool, double, std::string>> codigos;
    for (std::size_t fila = 0; fila < tabla.filas.size(); ++fila) {
        const Valor& valor = tabla.filas[fila][numero];
        const std::string texto = EsNulo(valor) ? std::string{} : ATexto(valor);
        if (!texto.empty() && texto != campo) {
            const bool esNumero = EsNumerico(texto);
            codigos.emplace(!esNumero, esNumero ? ANumero(texto) : 0, texto);
        }
    }
    std::vector<std::string> textos;
    textos.reserve(codigos.size());
    for (const auto& codigo : codigos) {
        textos.push_back(std::get<std::string>(codigo));
    }
    return textos;
}

} // namespace varo
