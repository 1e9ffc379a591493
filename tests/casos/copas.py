"""The half of the plot data run in which a statement that fails is passed over, for datos.py.

Area of the crowns, clipping at the boundary, overlap and cover. Each formula is one statement: when it fails, its
variable keeps what it held. A test that fails lets its block run.
"""
from math import sin
from types import SimpleNamespace

from geometria import (altura_triangulo, angulo_vertice, area_interseccion_circulos, area_triangulo_lados,
                       area_triangulo_puntos, distancia, punto_en_poligono)
from literal import numero_en_consulta, sin_corchetes
from numeros import PI, Fallo, a_numero, a_texto, arco_coseno, arco_seno, dividir, simple
from superficie import AZUL, NEGRO, Superficie, muestras


class Variables(SimpleNamespace):
    """What the statements of a procedure set."""

    def sea(self, nombre, formula):
        try:
            setattr(self, nombre, formula())
        except Fallo:
            pass


def se_entra(prueba):
    """Whether the block behind a test runs."""
    try:
        return prueba()
    except Fallo:
        return True


# ------------------------------------------------------------------------------------------------------------- crowns


def divisor(p, en_m, en_dm, en_cm):
    return en_m if p.opciones["Optmetro"] else en_dm if p.opciones["Optdecim"] else en_cm


def radio_de_vertice(p, fila):
    """Mean radius as the boundary keeps it."""
    medidas, factor = [a_numero(fila[c]) for c in p.copa], divisor(p, 1, 10, 100)
    if p.tipo == "Opt4R":
        return ((medidas[0] + medidas[1] + medidas[2] + medidas[3]) / 4) / factor
    if p.tipo == "Opt2D":
        return ((medidas[0] + medidas[1]) / 4) / factor
    return medidas[0] / factor


def radio_medio(p, fila):
    """Mean radius as the overlap of circles takes it."""
    medidas, factor = [a_numero(fila[c]) for c in p.copa], divisor(p, 1, 10, 100)
    if p.tipo == "Opt4R":
        r1, r2, r3, r4 = (medida / factor for medida in medidas)
    elif p.tipo == "Opt2D":
        r1 = r3 = medidas[0] / (2 * factor)
        r2 = r4 = medidas[1] / (2 * factor)
    else:
        r1, r2, r3, r4 = (medidas[0] * 4.0) / factor, 0.0, 0.0, 0.0
    return simple((((r2 + r1) + r3) + r4) / 4.0)


def radio_para_recortar(p, fila):
    """Mean radius as the clipping of circles takes it."""
    medidas, factor = [a_numero(fila[c]) for c in p.copa], divisor(p, 1, 10, 100)
    if p.tipo == "Opt4R":
        r1, r2, r3, r4 = (medida / factor for medida in medidas)
        return simple((((r2 + r1) + r3) + r4) / 4.0)
    if p.tipo == "Opt2D":
        return simple((medidas[0] / factor + medidas[1] / factor) / 4.0)
    return simple(medidas[0] / factor)


def leer_cuatro_radios(p, fila, v):
    """The four radii of an ellipse; the one whose cell is no number keeps its value."""
    factor = divisor(p, 1, 10, 100)
    if p.tipo == "Opt2D":
        ns, eo = p.copa
        v.sea("n", lambda: a_numero(fila[ns]) / (2 * factor))
        v.sea("e", lambda: a_numero(fila[eo]) / (2 * factor))
        v.sea("s", lambda: a_numero(fila[ns]) / (2 * factor))
        v.sea("w", lambda: a_numero(fila[eo]) / (2 * factor))
    else:
        n, e, s, w = p.copa
        v.sea("n", lambda: a_numero(fila[n]) / factor)
        v.sea("e", lambda: a_numero(fila[e]) / factor)
        v.sea("s", lambda: a_numero(fila[s]) / factor)
        v.sea("w", lambda: a_numero(fila[w]) / factor)


def sin_radios():
    return Variables(n=0.0, e=0.0, s=0.0, w=0.0)


def cuatro(v):
    return v.n, v.e, v.s, v.w


def consultar_copas(p):
    """The area of each record of the sheet; a name that is no single word and a text that is no number end the run."""
    for c in p.copa:
        sin_corchetes(p.campos[c - 1])
    medidas = []
    for registro in p.registros:
        medidas.append([numero_en_consulta(registro[c - 1]) for c in p.copa])
    return [None if None in fila else area_de_registro(p, fila) for fila in medidas]


def area_de_registro(p, medidas):
    if p.opciones["Optcirc"]:
        if p.tipo == "Opt4R":
            n, e, s, o = medidas
            return (PI / divisor(p, 16, 1600, 160000)) * (n + e + s + o) ** 2
        if p.tipo == "Opt2D":
            ns, eo = medidas
            return (PI / divisor(p, 16, 1600, 160000)) * (ns + eo) ** 2
        return (PI / divisor(p, 4, 400, 40000)) * (medidas[0] * medidas[0])
    if p.tipo == "Opt4R":
        n, e, s, o = medidas
        return (PI / divisor(p, 4, 400, 40000)) * (n * e + e * s + s * o + o * n)
    ns, eo = medidas
    return (PI / divisor(p, 16, 1600, 160000)) * (ns * eo)


def mas(a, b):
    if a is None or b is None:
        raise Fallo(94)
    return a + b


# ---------------------------------------------------------------------------------------------------------------- run


class FigurasDeCopas:
    """Works them out when it is made; the faults of the query come out of it."""

    def __init__(self, p):
        self.p = p
        self.poligono = [(x, y) for x, y, _ in p.poligono]
        self.n = len(self.poligono)
        self.texto_x = [a_texto(x) for x, _ in self.poligono]
        self.radio = [radio_de_vertice(p, fila) for fila in p.filas_de_vertice]
        self.xs = [fila[p.columna["X"]] for fila in p.rejilla]
        self.ys = [fila[p.columna["Y"]] for fila in p.rejilla]
        self.superficie = Superficie(p)
        self.v = Variables(total=0.0, fuera=0.0, vertices=0.0, interseccion=0.0, fcc=0.0)
        self.areas = consultar_copas(p)
        for area in self.areas:
            self.v.sea("total", lambda: mas(self.v.total, area))
        if p.opciones["Optcirc"]:
            self.recortar_circulos()
            self.v.sea("interseccion", self.area_total_inters_copas)
        else:
            self.recortar_elipses()
            self.solapar_elipses()
        self.pintar_copas()
        self.v.sea("fcc", self.calcular_fcc)

    def lugar(self, fila):
        p = self.p
        return a_numero(fila[p.columna["X"]]), a_numero(fila[p.columna["Y"]])

    def sin_tamano(self, fila):
        return fila[self.p.columna["DAP"]] == ""

    # ------------------------------------------------------------------------------------------ clipping of circles

    def recortar_circulos(self):
        p, v = self.p, self.v
        for i in range(self.n - 1):
            v.vertices = v.vertices + ((PI * self.radio[i] ** 2) * (360.0 - p.interior[i])) / 360
        v.r = 0.0
        v.h = v.dQ = v.dR = v.aQ = v.aX = v.aC = v.lado = v.w = v.cuerda = v.recorte = 0.0
        self.centro_de_vertice = (0.0, 0.0)
        for fila in p.rejilla:
            v.sea("r", lambda: radio_para_recortar(p, fila))
            vertice = -1
            for i in range(self.n - 1):
                if fila[p.columna["X"]] == self.texto_x[i]:
                    vertice = i
                    self.recortar_vertice(vertice)
            if vertice != -1:
                break
            for k in range(self.n - 1):
                self.recortar_lado(self.lugar(fila), self.poligono[k], self.poligono[k + 1], v.r)

    def recortar_vertice(self, vertice):
        self.centro_de_vertice = self.poligono[vertice]
        for j in range(self.n - 1):
            if vertice - j > 1 or vertice - j < 0:
                self.recortar_lado(self.poligono[vertice], self.poligono[j], self.poligono[j + 1],
                                   self.radio[vertice])

    def recortar_lado(self, C, Q, R, rr):
        """One edge; for a vertex the stale centre is its own place."""
        v = self.v
        v.sea("h", lambda: altura_triangulo(*C, *Q, *R))
        if not v.h < rr:
            return
        v.sea("dQ", lambda: distancia(*C, *Q))
        v.sea("dR", lambda: distancia(*C, *R))
        if v.dQ < rr and v.dR < rr:
            v.sea("recorte", lambda: ((rr ** 2 * 0.5) * angulo_vertice(*C, *Q, *R))
                  - area_triangulo_puntos(*C, *Q, *R))
        elif v.dQ < rr and v.dR > rr:
            self.recortar_extremo(C, Q, R, rr, C)
        elif v.dQ > rr and v.dR < rr:
            self.recortar_extremo(C, R, Q, rr, self.centro_de_vertice)
        elif se_entra(lambda: angulo_vertice(*C, *Q, *R) > PI / 2.0):
            v.sea("w", lambda: arco_coseno(v.h / rr))
            v.sea("cuerda", lambda: (2 * rr) * sin(arco_coseno(v.h / rr)))
            v.sea("recorte", lambda: (v.w * rr ** 2) - area_triangulo_lados(rr, rr, v.cuerda))
        else:
            v.recorte = 0.0
        v.fuera = v.fuera + v.recorte

    def recortar_extremo(self, C, dentro, fuera, rr, centro_del_lado):
        """The end `dentro` lies within the crown, the other one out of it."""
        v = self.v
        v.sea("aQ", lambda: angulo_vertice(*dentro, *C, *fuera))
        v.sea("aX", lambda: arco_seno(distancia(*dentro, *C)
                                      * sin(dividir(angulo_vertice(*dentro, *C, *fuera), rr))))
        v.sea("aC", lambda: (PI - v.aX) - v.aQ)
        v.sea("lado", lambda: dividir(distancia(*dentro, *centro_del_lado) * sin(v.aC), sin(v.aX)))
        v.sea("recorte", lambda: ((rr ** 2 * 0.5) * v.aC)
              - area_triangulo_lados(rr, v.lado, distancia(*dentro, *C)))

    # ------------------------------------------------------------------------------------------- overlap of circles

    def area_total_inters_copas(self):
        p, v = self.p, Variables(ri=0.0, rj=0.0, area=0.0)
        pares = []
        for i in range(len(p.rejilla) - 1):
            una = p.rejilla[i]
            if self.sin_tamano(una):
                continue
            v.sea("ri", lambda: radio_medio(p, una))
            for otra in p.rejilla[i + 1:]:
                if self.sin_tamano(otra):
                    continue
                v.sea("rj", lambda: radio_medio(p, otra))
                v.sea("area", lambda: area_interseccion_circulos(*self.lugar(una), *self.lugar(otra), v.ri, v.rj))
                if v.area != 0:
                    if len(pares) == 32768:
                        raise Fallo(6)
                    pares.append(v.area)
        return self.sumar(pares)

    def sumar(self, pares):
        total = 0.0
        for area in pares:
            total = total + area
        return total

    # ----------------------------------------------------------------------------------------- clipping of ellipses

    def recortar_elipses(self):
        p, v, radios = self.p, self.v, sin_radios()
        for t, fila in enumerate(p.rejilla):
            self.superficie.cls()
            if self.sin_tamano(fila):
                continue
            leer_cuatro_radios(p, fila, radios)
            for k in range(self.n - 1):
                if se_entra(lambda: self.altura(fila, k) < max(cuatro(radios))):
                    x, y = self.lugar(fila)
                    self.superficie.pintar(x, y, cuatro(radios), NEGRO)
                    total, fuera = self.contar(x, y, cuatro(radios), lambda dentro: not dentro)
                    v.sea("fuera", lambda: mas(v.fuera, self.parte(fuera, total, t)))
                    break

    def altura(self, fila, k):
        return altura_triangulo(*self.lugar(fila), *self.poligono[k], *self.poligono[k + 1])

    def parte(self, fuera, total, t):
        fraccion = dividir(fuera, total)
        if t >= len(self.areas):
            raise Fallo(3021)
        if self.areas[t] is None:
            raise Fallo(94)
        return fraccion * self.areas[t]

    def contar(self, x, y, radios, cuenta):
        """Black samples of a box, and how many of them count by being within the boundary or not."""
        negras = contadas = 0
        for px, py in muestras(x, y, radios, 0.1):
            if self.superficie.point(px, py) == NEGRO:
                negras += 1
                if se_entra(lambda: cuenta(punto_en_poligono(self.poligono, px, py))):
                    contadas += 1
        return negras, contadas

    # ------------------------------------------------------------------------------------------ overlap of ellipses

    def solapar_elipses(self):
        p, a, pares = self.p, sin_radios(), []
        for i, una in enumerate(p.rejilla):
            self.superficie.cls()
            if self.sin_tamano(una):
                continue
            leer_cuatro_radios(p, una, a)
            xa, ya = self.lugar(una)
            self.superficie.pintar(xa, ya, cuatro(a), NEGRO)
            puntos = self.contar(xa, ya, cuatro(a), lambda dentro: dentro)[0]
            b, v = sin_radios(), Variables(area=0.0)
            for otra in p.rejilla[i + 1:]:
                if self.sin_tamano(otra):
                    continue
                leer_cuatro_radios(p, otra, b)
                xb, yb = self.lugar(otra)
                if not enfrentadas(xa, ya, a, xb, yb, b):
                    continue
                self.area_del_par(v, una, a, otra, b, puntos)
                if v.area != 0:
                    pares.append(v.area)
        self.v.interseccion = self.sumar(pares)

    def area_del_par(self, v, una, a, otra, b, puntos):
        xa, ya = self.lugar(una)
        elipse = a.n * a.e + a.e * a.s + a.s * a.w + a.w * a.n
        for k in range(self.n - 1):
            if se_entra(lambda: self.altura(otra, k) < max(cuatro(b))):
                self.superficie.pintar(xa, ya, cuatro(a), NEGRO)
                c1 = self.contar(xa, ya, cuatro(a), lambda dentro: dentro)[1]
                self.superficie.pintar(*self.lugar(otra), cuatro(b), AZUL)
                c2 = self.contar(xa, ya, cuatro(a), lambda dentro: dentro)[1]
                v.sea("area", lambda: (dividir(c1 - c2, puntos) * PI * elipse) / 4)
                return
        self.superficie.pintar(xa, ya, cuatro(a), NEGRO)
        self.superficie.pintar(*self.lugar(otra), cuatro(b), AZUL)
        c2 = self.contar(xa, ya, cuatro(a), lambda dentro: dentro)[0]
        v.sea("area", lambda: ((1 - dividir(c2, puntos)) * PI * elipse) / 4)

    # ---------------------------------------------------------------------------------------------------------- cover

    def pintar_copas(self):
        p = self.p
        self.superficie.cls()
        for fila in p.rejilla:
            medidas = [a_numero(fila[c] or "0") for c in p.copa]
            if p.opciones["Optdecim"]:
                medidas = [m / 10 for m in medidas]
            elif p.opciones["Optcm"]:
                medidas = [m / 100 for m in medidas]
            if p.tipo == "Opt2D":
                medidas = [medidas[0] / 2, medidas[1] / 2, medidas[0] / 2, medidas[1] / 2]
            if p.tipo == "OptRM":
                self.superficie.pintar_circulo(*self.lugar(fila), medidas[0], NEGRO)
            elif p.opciones["Optcirc"]:
                media = (medidas[0] + medidas[1] + medidas[2] + medidas[3]) / 4
                self.superficie.pintar_circulo(*self.lugar(fila), media, NEGRO)
            else:
                self.superficie.pintar(*self.lugar(fila), medidas, NEGRO)

    def calcular_fcc(self):
        """A point whose place in the plot cannot be told ends the count, and the old cover stands."""
        xs, ys = [x for x, _ in self.poligono[:-1]], [y for _, y in self.poligono[:-1]]
        dentro = cubierto = 0
        x = self.poligono[0][0]
        while x <= max(xs):
            y = min(ys)
            while y <= max(ys):
                if punto_en_poligono(self.poligono, x, y):
                    dentro += 1
                    if self.superficie.point(x, y) == NEGRO:
                        cubierto += 1
                y = y + 1.0
            x = x + 1.0
        return simple(dividir(cubierto, dentro))


def enfrentadas(xa, ya, a, xb, yb, b):
    """The facing radii of two crowns reach each other."""
    if xa < xb and ya > yb:
        return xa + a.e > xb - b.w and ya - a.s < yb + b.n
    if xa < xb and ya < yb:
        return xa + a.e > xb - b.w and ya + a.n > yb - b.s
    if xa > xb and ya > yb:
        return xa - a.w < xb + b.e and ya - a.s < yb + b.n
    return xa - a.w < xb + b.e and ya + a.n > yb - b.s
