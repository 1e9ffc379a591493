#include "lote/trabajo/LectorDeToml.h"

#include <algorithm>

namespace varo {

namespace {

std::string NombreDeTipo(const toml::node& nodo) {
    switch (nodo.type()) {
    case toml::node_type::table:
        return "una tabla";
    case toml::node_type::array:
        return "una lista";
    case toml::node_type::string:
        return "un texto";
    case toml::node_type::integer:
        return "un número entero";
    case toml::node_type::floating_point:
        return "un número con decimales";
    case toml::node_type::boolean:
        return "un valor lógico";
    default:
        return "una fecha o una hora";
    }
}

} // namespace

void LectorDeToml::rechazarTipo(const toml::node& nodo, const std::string& clave,
                                const std::string& esperado) const {
    rechazar({clave, lineaDe(nodo)}, "se espera " + esperado + " y hay " + NombreDeTipo(nodo));
}

void LectorDeToml::rechazarAjenas(const toml::table& tabla, const std::string& prefijo,
                                  std::initializer_list<std::string_view> conocidas) const {
    for (const auto& [clave, nodo] : tabla) {
        if (std::find(conocidas.begin(), conocidas.end(), clave.str()) == conocidas.end()) {
            rechazar({prefijo + std::string{clave.str()}, lineaDe(nodo)}, "clave desconocida");
        }
    }
}

std::string LectorDeToml::textoLibre(const toml::node& nodo, const std::string& clave) const {
    const auto* const valor = nodo.as_string();
    if (valor == nullptr) {
        rechazarTipo(nodo, clave, "un texto");
    }
    if (valor->get().find('\0') != std::string::npos) {
        rechazar({clave, lineaDe(nodo)}, "contiene un carácter nulo");
    }
    return valor->get();
}

std::string LectorDeToml::texto(const toml::node& nodo, const std::string& clave) const {
    std::string valor = textoLibre(nodo, clave);
    if (valor.empty()) {
        rechazar({clave, lineaDe(nodo)}, "está vacío");
    }
    return valor;
}

const toml::table& LectorDeToml::tabla(const toml::node& nodo, const std::string& clave) const {
    const auto* const valor = nodo.as_table();
    if (valor == nullptr) {
        rechazarTipo(nodo, clave, "una tabla");
    }
    return *valor;
}

} // namespace varo
