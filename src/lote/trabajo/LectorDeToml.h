// Takes values of the expected type from the tree of a job; another one ends the job with its key and line.
#pragma once

#include "lote/trabajo/ErrorTrabajo.h"

#include <toml++/toml.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace varo {

class LectorDeToml {
public:
    explicit LectorDeToml(std::filesystem::path trabajo) : trabajo_{std::move(trabajo)} {}

    /// The line of a node in its file.
    [[nodiscard]] static int lineaDe(const toml::node& nodo) {
        return static_cast<int>(nodo.source().begin.line);
    }

    [[noreturn]] void rechazar(const Lugar& lugar, const std::string& motivo) const {
        throw ErrorTrabajo{trabajo_, lugar, motivo};
    }
    [[noreturn]] void rechazarTipo(const toml::node& nodo, const std::string& clave,
                                   const std::string& esperado) const;
    /// Every key of the table has to be one of these; `prefijo` stands before it in the message.
    void rechazarAjenas(const toml::table& tabla, const std::string& prefijo,
                        std::initializer_list<std::string_view> conocidas) const;

    /// A text that may be empty.
    [[nodiscard]] std::string textoLibre(const toml::node& nodo, const std::string& clave) const;
    [[nodiscard]] std::string texto(const toml::node& nodo, const std::string& clave) const;
    [[nodiscard]] const toml::table& tabla(const toml::node& nodo, const std::string& clave) const;

private:
    std::filesystem::path trabajo_;
};

} // namespace varo
