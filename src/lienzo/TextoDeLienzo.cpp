#include "lienzo/TextoDeLienzo.h"

#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <initializer_list>
#include <string_view>

namespace varo {

namespace {

std::string Hexadecimal(Color color) {
    constexpr std::string_view cifras = "0123456789ABCDEF";
    auto resto = static_cast<std::uint32_t>(color);
    std::string texto(8, '0');
    for (auto cifra = texto.rbegin(); cifra != texto.rend(); ++cifra) {
        *cifra = cifras[resto % 16];
        resto /= 16;
    }
    return texto;
}

std::string Hexadecimal(const Relleno& relleno) {
    return relleno ? Hexadecimal(*relleno) : "-";
}

std::string NombreCompleto(const EtiquetaMostrada& etiqueta) {
    const bool suelta = etiqueta.indice == EtiquetaMostrada::sinIndice;
    return suelta ? etiqueta.nombre : etiqueta.nombre + '(' + ATexto(etiqueta.indice) + ')';
}

/// Writes the lines of the shapes, one call each.
class Escribano {
public:
    explicit Escribano(const LeerAspecto& aspecto) : aspecto_{aspecto} {}

    void operator()(const Escala& escala) {
        linea("escala", {escala.izquierda, escala.arriba, escala.ancho(), escala.alto()}, {});
    }
    void operator()(const Linea& l) { linea("linea", {l.x1, l.y1, l.x2, l.y2}, {Hexadecimal(l.color)}); }
    void operator()(const Arco& a) {
        linea("arco", {a.x, a.y, a.radio, a.inicio, a.fin, a.aspecto},
              {Hexadecimal(a.color), Hexadecimal(a.relleno)});
    }
    void operator()(const Circulo& c) {
        linea("circulo", {c.x, c.y, c.radio}, {Hexadecimal(c.color), Hexadecimal(c.relleno)});
    }
    void operator()(const Punto& p) { linea("punto", {p.x, p.y}, {Hexadecimal(p.color)}); }
    void operator()(const CopaLlena& llena) {
        const Copa& c = llena.copa;
        linea("copa", {c.x, c.y, c.N, c.E, c.S, c.W}, {Hexadecimal(llena.color)});
    }
    void operator()(const EtiquetaMostrada& etiqueta) {
        const AspectoDeEtiqueta aspecto = aspecto_(etiqueta);
        linea("etiqueta\t" + NombreCompleto(etiqueta), {aspecto.izquierda, aspecto.arriba},
              {Hexadecimal(aspecto.color), EnUnaLinea(aspecto.texto)});
    }

    std::string texto;

private:
    void linea(const std::string& nombre, std::initializer_list<double> numeros,
               std::initializer_list<std::string> resto) {
        texto += nombre;
        for (const double numero : numeros) {
            texto += '\t' + ATexto(numero);
        }
        for (const auto& campo : resto) {
            texto += '\t' + campo;
        }
        texto += '\n';
    }

    const LeerAspecto& aspecto_;
};

} // namespace

std::string TextoDeLienzo(const Lienzo& lienzo, const LeerAspecto& aspecto) {
    Escribano escribano{aspecto};
    escribano(lienzo.escala());
    for (const Figura& figura : lienzo.figuras()) {
        std::visit(escribano, figura);
    }
    return std::move(escribano.texto);
}

} // namespace varo
