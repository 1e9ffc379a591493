#include "lote/trabajo/LeerFormato.h"

#include <charconv>

namespace varo {

namespace {

/// "#RRGGBB" as 0x00BBGGRR; nothing for another text.
std::optional<Color> ColorEscrito(const std::string& texto) {
    constexpr std::size_t letras = 7;
    constexpr int base = 16;
    unsigned rgb = 0;
    const char* const fin = texto.data() + texto.size();
    if (texto.size() != letras || texto.front() != '#') {
        return std::nullopt;
    }
    const auto leido = std::from_chars(texto.data() + 1, fin, rgb, base);
    if (leido.ec != std::errc{} || leido.ptr != fin) {
        return std::nullopt;
    }
    return static_cast<Color>((rgb & 0xFFU) << 16U | (rgb & 0xFF00U) | rgb >> 16U);
}

class LectorDeFormato {
public:
    explicit LectorDeFormato(const LectorDeToml& lector) : lector_{lector} {}

    FormatoPedido leer(const toml::node& nodo) {
        const auto& tabla = lector_.tabla(nodo, "formato");
        const std::string prefijo = "formato.";
        lector_.rechazarAjenas(tabla, prefijo, {"titulo", "fuente", "color", "codigos"});
        FormatoPedido formato;
        formato.titulo = texto(tabla, prefijo, "titulo");
        formato.fuente = fuente(tabla, prefijo);
        formato.color = color(tabla, prefijo, "color");
        if (const auto* const codigos = tabla.get("codigos")) {
            for (const auto& [codigo, valor] : lector_.tabla(*codigos, "formato.codigos")) {
                formato.codigos.push_back(codigoPedido(std::string{codigo.str()}, valor));
            }
        }
        return formato;
    }

private:
    CodigoPedido codigoPedido(const std::string& codigo, const toml::node& nodo) {
        const std::string clave = "formato.codigos." + codigo;
        const auto& tabla = lector_.tabla(nodo, clave);
        const std::string prefijo = clave + ".";
        lector_.rechazarAjenas(tabla, prefijo, {"texto", "fuente", "linea", "fondo"});
        CodigoPedido pedido{codigo, {clave, LectorDeToml::lineaDe(nodo)}, {}, {}, {}, {}};
        pedido.texto = texto(tabla, prefijo, "texto");
        pedido.fuente = fuente(tabla, prefijo);
        pedido.linea = color(tabla, prefijo, "linea");
        pedido.fondo = color(tabla, prefijo, "fondo");
        return pedido;
    }

    std::optional<Pedido<std::string>> texto(const toml::table& tabla, const std::string& prefijo,
                                             const char* nombre) {
        const auto* const nodo = tabla.get(nombre);
        if (nodo == nullptr) {
            return std::nullopt;
        }
        const std::string clave = prefijo + nombre;
        return Pedido<std::string>{lector_.textoLibre(*nodo, clave), {clave, LectorDeToml::lineaDe(*nodo)}};
    }

    std::optional<Pedido<Color>> color(const toml::table& tabla, const std::string& prefijo,
                                       const char* nombre) {
        const auto* const nodo = tabla.get(nombre);
        if (nodo == nullptr) {
            return std::nullopt;
        }
        const std::string clave = prefijo + nombre;
        const std::string escrito = lector_.texto(*nodo, clave);
        const Lugar lugar{clave, LectorDeToml::lineaDe(*nodo)};
        const auto color = ColorEscrito(escrito);
        if (!color) {
            lector_.rechazar(lugar.con(escrito), "un color se escribe \"#RRGGBB\", como \"#1B7837\"");
        }
        return Pedido<Color>{*color, lugar};
    }

    std::optional<Pedido<FuentePedida>> fuente(const toml::table& padre, const std::string& prefijo) {
        const auto* const nodo = padre.get("fuente");
        if (nodo == nullptr) {
            return std::nullopt;
        }
        const std::string clave = prefijo + "fuente";
        const auto& tabla = lector_.tabla(*nodo, clave);
        lector_.rechazarAjenas(tabla, clave + ".",
                               {"nombre", "tamano", "negrita", "cursiva", "tachado", "subrayado"});
        FuentePedida fuente;
        if (const auto* const nombre = tabla.get("nombre")) {
            fuente.nombre = nombreDeFuente(*nombre, clave + ".nombre");
        }
        fuente.tamano = tamano(tabla, clave + ".tamano");
        fuente.negrita = logico(tabla, clave, "negrita");
        fuente.cursiva = logico(tabla, clave, "cursiva");
        fuente.tachado = logico(tabla, clave, "tachado");
        fuente.subrayado = logico(tabla, clave, "subrayado");
        return Pedido<FuentePedida>{fuente, {clave, LectorDeToml::lineaDe(*nodo)}};
    }

    std::string nombreDeFuente(const toml::node& nodo, const std::string& clave) {
        std::string nombre = lector_.texto(nodo, clave);
        if (nombre.find_first_not_of(" \t\r\n") == std::string::npos) {
            lector_.rechazar({clave, LectorDeToml::lineaDe(nodo)}, "está vacío");
        }
        return nombre;
    }

    std::optional<float> tamano(const toml::table& tabla, const std::string& clave) {
        constexpr double maximo = 512; // what the font dialog of the desktop takes
        const auto* const nodo = tabla.get("tamano");
        if (nodo == nullptr) {
            return std::nullopt;
        }
        const auto numero = nodo->value<double>();
        if (!nodo->is_number() || !numero) {
            lector_.rechazarTipo(*nodo, clave, "un número de puntos");
        }
        const auto puntos = *numero <= maximo ? static_cast<float>(*numero) : 0.0F;
        if (!(puntos > 0)) {
            lector_.rechazar({clave, LectorDeToml::lineaDe(*nodo)},
                             "el tamaño de una letra, en puntos, es mayor que 0 y no pasa de 512");
        }
        return puntos;
    }

    std::optional<bool> logico(const toml::table& tabla, const std::string& prefijo, const char* nombre) {
        const auto* const nodo = tabla.get(nombre);
        if (nodo == nullptr) {
            return std::nullopt;
        }
        const auto* const valor = nodo->as_boolean();
        if (valor == nullptr) {
            lector_.rechazarTipo(*nodo, prefijo + "." + nombre, "true o false");
        }
        return valor->get();
    }

    const LectorDeToml& lector_;
};

} // namespace

FormatoPedido LeerFormato(const toml::node& nodo, const LectorDeToml& lector) {
    return LectorDeFormato{lector}.leer(nodo);
}

} // namespace varo
