"""The surface on which crowns are painted and sampled, for familias.py and copas.py.

Nothing is drawn: the colour at a point follows from the crowns painted so far, each a crown of four quarter
ellipses or a circle.
"""
from numeros import a_numero, es_numerico

NEGRO, AZUL = 0, 0xFF0000
FONDO, FUERA = 0x00C0E0FF, -1


class Superficie:
    """FrmMapa2 with the scale of the last drawing."""

    def __init__(self, p):
        xs, ys = extremos(p, "X"), extremos(p, "Y")
        x_min, x_max, y_min, y_max = min(xs), max(xs), min(ys), max(ys)
        rx, ry = x_max - x_min, y_max - y_min
        if ry < rx:
            self.izquierda, self.derecha = x_min - rx * (15 / 70), x_max + rx * (15 / 70)
            exceso = ((100 / 85) * 0.7234 * (x_max - self.izquierda) - ry) / 2
            self.abajo, self.arriba = y_min - exceso, y_max + exceso
        else:
            self.abajo, self.arriba = y_min - ry * (15 / 70), y_max + ry * (15 / 70)
            exceso = ((1 / 0.7234) * (100 / 85) * (y_max - self.abajo) - rx) / 2
            self.izquierda, self.derecha = x_min - exceso, x_max + exceso
        self.pintadas = []

    def cls(self):
        self.pintadas = []

    def pintar(self, x, y, radios, color):
        n, e, s, w = (0.5 if r == 0 else r for r in radios)

        def cubre(dx, dy):
            a = e if dx >= 0 else w
            b = n if dy >= 0 else s
            return (dx / a) * (dx / a) + (dy / b) * (dy / b) <= 1

        self.pintadas.append((x, y, cubre, color))

    def pintar_circulo(self, x, y, radio, color):
        self.pintadas.append((x, y, lambda dx, dy: dx * dx + dy * dy <= radio * radio, color))

    def point(self, px, py):
        if self.izquierda < self.derecha and not (
                self.izquierda <= px <= self.derecha and self.abajo <= py <= self.arriba):
            return FUERA
        for x, y, cubre, color in reversed(self.pintadas):
            if cubre(px - x, py - y):
                return color
        return FONDO


def extremos(p, papel):
    """A column as the scale reads it: what is no number counts as -1."""
    textos = [fila[p.columna[papel]] for fila in p.rejilla]
    return [a_numero(texto) if es_numerico(texto) else -1.0 for texto in textos]


def muestras(x, y, radios, paso):
    """The samples of the box of a crown; each one is the one before plus the step."""
    n, e, s, w = radios
    px = x - w
    while px <= x + e:
        py = y - s
        while py <= y + n:
            yield px, py
            py = py + paso
        px = px + paso
