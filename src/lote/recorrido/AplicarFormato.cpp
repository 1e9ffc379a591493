#include "lote/recorrido/AplicarFormato.h"

#include "map/FrmFormato.h"

#include <algorithm>
#include <iterator>

namespace varo {

namespace {

class Formateador {
public:
    explicit Formateador(PuestoDeTrabajo& puesto)
        : puesto_{puesto}, ventana_{puesto.programa.tocar<FrmFormato>()} {}

    void aplicar(const FormatoPedido& formato) {
        escribir(ventana_.TxtTitName, formato.titulo);
        elegir(ventana_.CboTitFont, formato.fuente);
        elegir(ventana_.CboTitColor, formato.color);
        for (const auto& codigo : formato.codigos) {
            const int fila = filaDe(codigo);
            escribir(ventana_.TxtCodigo(fila), codigo.texto);
            elegir(ventana_.CboCodFont(fila), codigo.fuente);
            elegir(ventana_.CboCodColor(fila), codigo.linea);
            elegir(ventana_.CboCodBackColor(fila), codigo.fondo);
        }
    }

private:
    [[nodiscard]] int filaDe(const CodigoPedido& pedido) const {
        const auto& codigos = puesto_.programa.sesion.Codigos;
        const int cuantos = puesto_.programa.sesion.NumCodigos.valor();
        if (cuantos == 0) {
            puesto_.rechazar(pedido.lugar, "el mapa no distingue códigos: hacen falta ChCodigo = 1 y una "
                                           "columna Codigo que los tenga");
        }
        const auto fin = std::next(codigos.begin(), cuantos);
        const auto hallado = std::find(codigos.begin(), fin, pedido.codigo);
        if (hallado == fin) {
            puesto_.rechazar(pedido.lugar, "la hoja no tiene el código " + CitaLarga(pedido.codigo) +
                                               "; tiene " + Enumerar({codigos.begin(), fin}));
        }
        return static_cast<int>(std::distance(codigos.begin(), hallado));
    }

    void escribir(CajaTexto& caja, const std::optional<Pedido<std::string>>& pedido) {
        if (pedido) {
            puesto_.hacer(pedido->lugar.con(pedido->valor),
                          [&] { puesto_.usuario.escribir(caja, pedido->valor); });
        }
    }

    void elegir(Desplegable& lista, const std::optional<Pedido<FuentePedida>>& pedido) {
        if (pedido) {
            puesto_.servicios.prepararFuente(pedido->valor.sobre(lista.Font));
            puesto_.hacer(pedido->lugar, [&] { puesto_.usuario.desplegar(lista); });
        }
    }

    void elegir(Desplegable& lista, const std::optional<Pedido<Color>>& pedido) {
        if (pedido) {
            puesto_.servicios.prepararColor(pedido->valor);
            puesto_.hacer(pedido->lugar, [&] { puesto_.usuario.desplegar(lista); });
        }
    }

    PuestoDeTrabajo& puesto_;
    FrmFormato& ventana_;
};

} // namespace

void AplicarFormato(PuestoDeTrabajo& puesto) {
    if (puesto.trabajo.formato) {
        Formateador{puesto}.aplicar(*puesto.trabajo.formato);
    }
}

} // namespace varo
