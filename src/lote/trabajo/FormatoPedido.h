// What a job says of the format of the map.
#pragma once

#include "lienzo/Color.h"
#include "lienzo/Fuente.h"
#include "lote/trabajo/ErrorTrabajo.h"

#include <optional>
#include <string>
#include <vector>

namespace varo {

/// A value and where the job gives it.
template <class T>
struct Pedido {
    T valor;
    Lugar lugar;
};

/// Traits that are not given are those of the font in their place.
struct FuentePedida {
    std::optional<std::string> nombre;
    std::optional<float> tamano; ///< points
    std::optional<bool> negrita;
    std::optional<bool> cursiva;
    std::optional<bool> tachado;
    std::optional<bool> subrayado;

    [[nodiscard]] Fuente sobre(const Fuente& fuente) const {
        return {nombre.value_or(fuente.nombre),   tamano.value_or(fuente.tamano),
                negrita.value_or(fuente.negrita), cursiva.value_or(fuente.cursiva),
                tachado.value_or(fuente.tachado), subrayado.value_or(fuente.subrayado)};
    }
};

struct CodigoPedido {
    std::string codigo;
    Lugar lugar;
    std::optional<Pedido<std::string>> texto;
    std::optional<Pedido<FuentePedida>> fuente;
    std::optional<Pedido<Color>> linea;
    std::optional<Pedido<Color>> fondo;
};

struct FormatoPedido {
    std::optional<Pedido<std::string>> titulo;
    std::optional<Pedido<FuentePedida>> fuente;
    std::optional<Pedido<Color>> color;
    std::vector<CodigoPedido> codigos;
};

} // namespace varo
