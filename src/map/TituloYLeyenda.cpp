#include "map/TituloYLeyenda.h"

#include "basico/Texto.h"
#include "map/Escala.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "map/ValoresDeFormato.h"
#include "shell/Programa.h"

namespace varo {

namespace {

/// The format values of a code that nobody has chosen.
void CompletarCodigo(Programa& programa, int codigo) {
    auto& sesion = programa.sesion;
    const auto& formato = programa.tocar<FrmFormato>();
    if (sesion.CodColor(codigo).empty()) {
        sesion.CodColor(codigo) = TextoDeColor(formato.CboCodColor(codigo).BackColor);
    }
    if (sesion.CodColorFondo(codigo).empty()) {
        sesion.CodColorFondo(codigo) = TextoDeColor(programa.tocar<FrmMapa>().lienzo.BackColor);
    }
    RasgosDelCodigo(sesion, codigo).completar(formato.CboCodFont(codigo).Font);
}

} // namespace

void DibujarMarco(Lienzo& lienzo) {
    const Escala marco = MarcoDe(lienzo.escala());
    lienzo.linea(marco.izquierda, marco.abajo, marco.derecha, marco.abajo);
    lienzo.linea(marco.derecha, marco.abajo, marco.derecha, marco.arriba);
    lienzo.linea(marco.derecha, marco.arriba, marco.izquierda, marco.arriba);
    lienzo.linea(marco.izquierda, marco.arriba, marco.izquierda, marco.abajo);
}

void DibujarContorno(Lienzo& lienzo, const ContornoXY& contorno) {
    for (std::size_t i = 0; i + 1 < contorno.x.size(); ++i) {
        lienzo.linea(contorno.x[i], contorno.y[i], contorno.x[i + 1], contorno.y[i + 1]);
    }
}

void PonerTitulo(Programa& programa) {
    auto& sesion = programa.sesion;
    const auto& formato = programa.tocar<FrmFormato>();
    auto& mapa = programa.tocar<FrmMapa>();
    if (sesion.TituloColor.empty()) {
        sesion.TituloColor = TextoDeColor(formato.CboTitColor.BackColor);
    }
    RasgosDelTitulo(sesion).completar(formato.CboTitFont.Font);

    // Meant: the title has no background, whatever TituloColorFondo says.
    Etiqueta& titulo = mapa.LbTitulo;
    titulo.Caption = Recortar(formato.TxtTitName.Text());
    titulo.Font = RasgosDelTitulo(sesion).leer();
    titulo.ForeColor = ColorDeTexto(sesion.TituloColor);
    const Escala& escala = mapa.lienzo.escala();
    const Escala marco = MarcoDe(escala);
    titulo.Top = (escala.arriba - marco.arriba) / 2 + marco.arriba + titulo.Height() / 2;
    titulo.Left = (escala.izquierda + escala.derecha) / 2 - titulo.Width() / 2;
    mapa.mostrar(titulo);
}

void PonerLeyenda(Programa& programa) {
    auto& sesion = programa.sesion;
    const auto& formato = programa.tocar<FrmFormato>();
    auto& mapa = programa.tocar<FrmMapa>();
    const Escala marco = MarcoDe(mapa.lienzo.escala());
    const int cuantos = sesion.NumCodigos.valor();
    ExtenderFormatoDeCodigos(sesion);
    for (int i = 0; i < cuantos; ++i) {
        CompletarCodigo(programa, i);
        const Color color = ColorDeTexto(sesion.CodColor(i));
        Etiqueta& leyenda = i > 0 ? mapa.crearLeyenda(i) : mapa.LbLeyenda(0);
        leyenda.ForeColor = color;
        leyenda.Font = RasgosDelCodigo(sesion, i).leer();
        leyenda.Top = marco.abajo;
        leyenda.Left = ((i + 0.1) * marco.ancho()) / cuantos + marco.izquierda;
        leyenda.Caption = Recortar(formato.TxtCodigo(i).Text());
        mapa.mostrar(leyenda);
        mapa.lienzo.ForeColor = color;
        mapa.lienzo.circulo(((i + 0.05) * marco.ancho()) / cuantos + marco.izquierda,
                            marco.abajo - leyenda.Height() / 2, (marco.ancho() * 0.04) / 6);
    }
}

} // namespace varo
