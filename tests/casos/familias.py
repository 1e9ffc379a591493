"""The five families of indices with parameters, for literal.py: ISC of circles and of ellipses, AOI, IDP, DR and APA.

Each tree is taken against each other tree and each side of the plot, once more for every column; nothing that
was worked out for one column is kept for the next.
"""
from geometria import (altura_triangulo, angulo_direccion, area_interseccion_circulos, area_triangulo_puntos,
                       distancia, punto_en_poligono, radio_circunscrito)
from numeros import PI, Fallo, a_numero, a_texto, dividir, entero16, exponencial, potencia, raiz, simple
from parametros import (leer_aoi, leer_dist, limite_de_funcion, lista_aoi, lista_dist, lista_rich, sucesion,
                        valores)
from superficie import AZUL, NEGRO, Superficie, muestras

SIN_ARBOL, EN_VERTICE, DE_BORDE = -3.0, -1.0, -2.0

# --------------------------------------------------------------------------------------------------- the run


class Corrida:
    """The trees of the grid as the families read them: by row, from the texts of the cells."""

    def __init__(self, p):
        self.p = p
        self.n = len(p.rejilla)
        self.factor_dap = simple(1.0 / PI) if p.opciones["OptCAP"] else 1.0
        self.factor_unidad = 1.0 if p.opciones["OptCMDIA"] else 10.0 if p.opciones["OptDMDIA"] else 100.0
        self.factor_radios = 1 if p.opciones["Optmetro"] else 10 if p.opciones["Optdecim"] else 100

    def xy(self, i):
        fila = self.p.rejilla[i]
        return a_numero(fila[self.p.columna["X"]]), a_numero(fila[self.p.columna["Y"]])

    def celda(self, i):
        return self.p.rejilla[i][self.p.columna["DAP"]]

    def en_cm(self, i):
        return a_numero(self.celda(i)) * self.factor_dap * self.factor_unidad

    def en_m(self, i):
        return a_numero(self.celda(i)) * self.factor_dap * self.factor_unidad / 100

    def es_vertice(self, i):
        fila = self.p.rejilla[i]
        return any(a_texto(x) == fila[self.p.columna["X"]] and a_texto(y) == fila[self.p.columna["Y"]]
                   for x, y, _ in self.p.poligono[:-1])

    def alturas(self, i):
        x, y = self.xy(i)
        for (x0, y0, *_), (x1, y1, *_) in zip(self.p.poligono, self.p.poligono[1:]):
            yield altura_triangulo(x, y, x0, y0, x1, y1)

    def distancia(self, i, j):
        return distancia(*self.xy(i), *self.xy(j))

    def vecinos(self, i):
        """The other trees that have a size."""
        return [j for j in range(self.n) if j != i and self.celda(j) != ""]

    def radio_de_copa(self, i):
        fila = self.p.rejilla[i]
        radios = [a_numero(fila[c]) / self.factor_radios for c in self.p.copa]
        if self.p.opciones["Opt4R"]:
            media = (radios[0] + radios[1] + radios[2] + radios[3]) / 4
        elif self.p.opciones["Opt2D"]:
            media = (radios[0] + radios[1]) / 4
        else:
            media = radios[0]
        return simple(media)

    def cuatro_radios(self, i):
        """North, east, south and west; of two diameters the halves."""
        fila = self.p.rejilla[i]
        if self.p.opciones["Opt4R"]:
            return [a_numero(fila[c]) / self.factor_radios for c in self.p.copa]
        norte_sur, este_oeste = (a_numero(fila[c]) / (2 * self.factor_radios) for c in self.p.copa)
        return [norte_sur, este_oeste, norte_sur, este_oeste]


def pasadas(p, familia):
    """Of each side pass, whether it leaves the smaller trees out."""
    if p.marcada(f"Ch{familia}Bil") and p.marcada(f"Ch{familia}Uni"):
        return [False, True]
    return [p.marcada(f"Ch{familia}Uni")]


def lados_escritos(p, familia, casilla):
    if len(pasadas(p, familia)) == 2:
        return [";Bil.)", ";Uni.)"]
    return [";Bil.)"] if p.marcada(casilla) else [";Uni.)"]


class Tabla:
    """The columns of a family, sized before they are filled: what nobody fills stays 0."""

    def __init__(self, cuenta, n):
        numero = entero16(round(cuenta))
        if numero < 1:
            raise Fallo(9)
        self.columnas = [[0.0] * n for _ in range(numero)]
        self.c = -1

    def siguiente(self):
        self.c += 1
        if self.c >= len(self.columnas):
            raise Fallo(9)
        return self.columnas[self.c]


# --------------------------------------------------------------------------------------------------------- ISC


def isc(p):
    corrida, columnas, superficie = Corrida(p), [], Superficie(p)
    for unilateral in pasadas(p, "ISC"):
        if p.opciones["OptElipse"]:
            columnas.append([isc_de_elipse(corrida, superficie, i, unilateral) for i in range(corrida.n)])
        else:
            columnas.append([isc_de(corrida, i, unilateral) for i in range(corrida.n)])
    return columnas


def isc_de(corrida, i, unilateral):
    if corrida.celda(i) == "":
        return SIN_ARBOL
    tamano, r = corrida.en_cm(i), corrida.radio_de_copa(i)
    if r == 0:
        return SIN_ARBOL
    if corrida.es_vertice(i):
        return EN_VERTICE
    for altura in corrida.alturas(i):
        if altura < r:
            return DE_BORDE
    suma = 0.0
    for j in corrida.vecinos(i):
        if unilateral and corrida.en_cm(j) < tamano:
            continue
        otro = corrida.radio_de_copa(j)
        suma = simple(suma + area_interseccion_circulos(*corrida.xy(i), *corrida.xy(j), r, otro))
    return dividir(suma, PI * r ** 2)


def isc_de_elipse(corrida, superficie, i, unilateral):
    superficie.cls()
    if corrida.celda(i) == "":
        return SIN_ARBOL
    tamano = corrida.en_cm(i)
    if corrida.es_vertice(i):
        return EN_VERTICE
    radios, (x, y) = corrida.cuatro_radios(i), corrida.xy(i)
    for altura in corrida.alturas(i):
        if altura < max(radios):
            superficie.pintar(x, y, radios, NEGRO)
            for px, py in muestras(x, y, radios, 0.5):
                if not punto_en_poligono(corrida.p.poligono, px, py):
                    return DE_BORDE
    superficie.pintar(x, y, radios, NEGRO)
    a = cuenta_de_negros(superficie, x, y, radios)
    suma = 0
    for j in corrida.vecinos(i):
        if unilateral and corrida.en_cm(j) < tamano:
            continue
        otros, (xj, yj) = corrida.cuatro_radios(j), corrida.xy(j)
        if cajas_cruzadas(x, y, radios, xj, yj, otros):
            superficie.pintar(x, y, radios, NEGRO)
            superficie.pintar(xj, yj, otros, AZUL)
            suma = suma + (a - cuenta_de_negros(superficie, x, y, radios))
    return dividir(suma, a)


def cuenta_de_negros(superficie, x, y, radios):
    return sum(superficie.point(px, py) == NEGRO for px, py in muestras(x, y, radios, 0.1))


def cajas_cruzadas(xi, yi, radios_i, xj, yj, radios_j):
    """The facing sides alone, by where j lies; on one x or one y it counts as to the left and above."""
    n, e, s, w = radios_i
    nj, ej, sj, wj = radios_j
    if xi < xj and yi > yj:
        return xi + e > xj - wj and yi - s < yj + nj
    if xi < xj and yi < yj:
        return xi + e > xj - wj and yi + n > yj - sj
    if xi > xj and yi > yj:
        return xi - w < xj + ej and yi - s < yj + nj
    return xi - w < xj + ej and yi + n > yj - sj


def cabeceras_isc(p):
    if len(pasadas(p, "ISC")) == 2:
        return ["ISC(Bil.)", "ISC(Uni.)"]
    return ["ISC(Bil.)"] if p.marcada("ChISCBil") else ["ISC(Uni.)"]


# --------------------------------------------------------------------------------------------------------- AOI


def aoi(p):
    entradas = lista_aoi(p)
    if not entradas:
        return []
    corrida, (desde, hasta, paso) = Corrida(p), sucesion(p, 6)
    tabla = Tabla((dividir(hasta - desde, paso) + 1) * len(entradas) * len(pasadas(p, "AOI")), corrida.n)
    for unilateral in pasadas(p, "AOI"):
        for entrada in entradas:
            coeficientes = leer_aoi(entrada)
            for k in valores(desde, hasta, paso):
                columna = tabla.siguiente()
                for i in range(corrida.n):
                    columna[i] = aoi_de(corrida, i, unilateral, coeficientes, k)
    return tabla.columnas


def radio_de_influencia(coeficientes, diametro):
    a, b, c, d, e = coeficientes
    return a + b * potencia(diametro, c) + d * potencia(diametro, e)


def aoi_de(corrida, i, unilateral, coeficientes, k):
    if corrida.celda(i) in ("", "0"):
        return SIN_ARBOL
    diametro = corrida.en_cm(i)
    r = radio_de_influencia(coeficientes, diametro)
    if corrida.es_vertice(i):
        return EN_VERTICE
    for altura in corrida.alturas(i):
        if altura <= r:
            return DE_BORDE
    suma = 0.0
    for j in corrida.vecinos(i):
        if unilateral and corrida.en_cm(j) < diametro:
            continue
        peso = potencia(dividir(a_numero(corrida.celda(j)), a_numero(corrida.celda(i))), k)
        otro = radio_de_influencia(coeficientes, corrida.en_cm(j))
        area = area_interseccion_circulos(*corrida.xy(i), *corrida.xy(j), r, otro)
        suma = suma + dividir(area, PI * r ** 2) * peso
    return suma


def cabeceras_aoi(p):
    return [f"AOI(k:{a_texto(k)};Ec:{e}{lado}" for lado in lados_escritos(p, "AOI", "ChAOIBil")
            for e in range(1, len(lista_aoi(p)) + 1) for k in valores(*sucesion(p, 6))]


# ------------------------------------------------------------------------------------------ choice of competitors


def parametro_de_seleccion(p, x):
    """Sweep of the selection parameter and how many values it is said to hold."""
    if p.opciones[f"OptFunc({x})"]:
        cuenta = len(lista_rich(p, x))
        return (0, cuenta - 1, 1), cuenta
    decimal = p.opciones[f"OptBAF({x})"] or p.opciones[f"OptRadioFijo({x})"]
    desde, hasta, paso = sucesion(p, 2 * x + (0 if decimal else 1))
    return (desde, hasta, paso), dividir(hasta - desde, paso) + 1


def prefijo_de_seleccion(p, x):
    for opcion, prefijo in (("OptFunc", "Ec:"), ("OptBAF", "BAF:"), ("OptNumFijo", "n:")):
        if p.opciones[f"{opcion}({x})"]:
            return prefijo
    return "R:"


def parametros_escritos(p, x):
    (desde, hasta, paso), _ = parametro_de_seleccion(p, x)
    if p.opciones[f"OptFunc({x})"]:
        desde, hasta = desde + 1, hasta + 1
    return [prefijo_de_seleccion(p, x) + a_texto(v) for v in valores(desde, hasta, paso)]


class Borde(Exception):
    """What a subject needs lies beyond the boundary."""


def comprobar_borde(corrida, i, limite):
    for altura in corrida.alturas(i):
        if altura < limite:
            raise Borde


def razon(corrida, i, j):
    return dividir(corrida.en_m(j), corrida.distancia(i, j))


def terceros(corrida, i, j):
    return [m for m in corrida.vecinos(i) if m != j]


def elegir(corrida, x, i, j, valor):
    """Rank of candidate j, 0 where the family is DR; None where it is rejected."""
    opciones = corrida.p.opciones
    if opciones[f"OptBAF({x})"]:
        return por_baf(corrida, x, i, j, valor)
    if opciones[f"OptNumFijo({x})"]:
        return por_numero(corrida, x, i, j, valor)
    if opciones[f"OptFunc({x})"]:
        return por_distancia(corrida, x, i, j, limite_de_funcion(lista_rich(corrida.p, x)[valor],
                                                                 corrida.en_m(i)))
    return por_distancia(corrida, x, i, j, valor)


def por_baf(corrida, x, i, j, baf):
    if not razon(corrida, i, j) > raiz(baf) / 50:
        return None
    comprobar_borde(corrida, i, dividir(corrida.en_m(j) * 50, raiz(baf)))
    if x == 1:
        return 0
    rango = 1
    for m in terceros(corrida, i, j):
        if razon(corrida, i, m) > razon(corrida, i, j):
            rango += 1
    return rango


def por_numero(corrida, x, i, j, n):
    rango = 1
    for m in terceros(corrida, i, j):
        if x == 0:
            antes = razon(corrida, i, m) > razon(corrida, i, j)
        else:
            antes = corrida.distancia(i, m) < corrida.distancia(i, j)
        if antes:
            rango += 1
            if rango > n:
                return None
    comprobar_borde(corrida, i, corrida.distancia(i, j))
    return rango


def por_distancia(corrida, x, i, j, limite):
    comprobar_borde(corrida, i, limite)
    if not corrida.distancia(i, j) <= limite:
        return None
    if x == 1:
        return 0
    rango = 1
    for m in terceros(corrida, i, j):
        if corrida.distancia(i, m) <= limite and razon(corrida, i, m) > razon(corrida, i, j):
            rango += 1
    return rango


# --------------------------------------------------------------------------------------------------------- IDP


def centrales(p):
    """What is added to the rank in each central pass."""
    if p.marcada("ChIDPSi") and p.marcada("ChIDPNo"):
        return [0.5, -0.5]
    return [-0.5] if p.marcada("ChIDPNo") else [0.5]


def idp(p):
    corrida, (sucesion_p, cuenta) = Corrida(p), parametro_de_seleccion(p, 0)
    tabla = Tabla(len(pasadas(p, "IDP")) * cuenta * len(centrales(p)), corrida.n)
    for unilateral in pasadas(p, "IDP"):
        for h in centrales(p):
            for valor in valores(*sucesion_p):
                columna = tabla.siguiente()
                for i in range(corrida.n):
                    columna[i] = idp_de(corrida, i, unilateral, h, valor)
    return tabla.columnas


def idp_de(corrida, i, unilateral, h, valor):
    if corrida.celda(i) == "":
        return SIN_ARBOL
    diametro = corrida.en_m(i)
    if corrida.es_vertice(i):
        return EN_VERTICE
    suma, cuenta = 0.0, 0
    for j in corrida.vecinos(i):
        if unilateral and corrida.en_m(j) < diametro:
            continue
        try:
            rango = elegir(corrida, 0, i, j, valor)
        except Borde:
            return DE_BORDE
        if rango is not None:
            suma = suma + (rango + h) * potencia(razon(corrida, i, j), 2)
            cuenta += 1
    return (2500 / cuenta) * suma if cuenta > 0 else 0.0


def cabeceras_idp(p):
    if len(centrales(p)) == 2:
        cierres = [";Sí)", ";No)"]
    else:
        cierres = [";Sí)"] if p.marcada("ChIDPSi") else [";No)"]
    return [f"IDP({v}{lado}"[:-1] + cierre for lado in lados_escritos(p, "IDP", "ChIDPBil")
            for cierre in cierres for v in parametros_escritos(p, 0)]


# ---------------------------------------------------------------------------------------------------------- DR


def dr(p):
    corrida, (sucesion_p, cuenta) = Corrida(p), parametro_de_seleccion(p, 1)
    (desde, hasta, paso), entradas = sucesion(p, 4), lista_dist(p)
    tabla = Tabla(len(pasadas(p, "DR")) * cuenta * len(entradas) * (dividir(hasta - desde, paso) + 1), corrida.n)
    for unilateral in pasadas(p, "DR"):
        for k in valores(desde, hasta, paso):
            for entrada in entradas:
                for valor in valores(*sucesion_p):
                    columna = tabla.siguiente()
                    for i in range(corrida.n):
                        columna[i] = dr_de(corrida, i, unilateral, k, entrada, valor)
    return tabla.columnas


def peso_de_distancia(entrada, distancia_ij):
    a, b, c, d, e = leer_dist(entrada)
    s = a * 1 + b * potencia(distancia_ij, c) + d * potencia(distancia_ij, e)
    return exponencial(-s) if "EXP" in entrada else dividir(1, s)


def dr_de(corrida, i, unilateral, k, entrada, valor):
    if corrida.celda(i) in ("", "0"):
        return SIN_ARBOL
    diametro = corrida.en_m(i)
    if corrida.es_vertice(i):
        return EN_VERTICE
    suma = 0.0
    for j in corrida.vecinos(i):
        if unilateral and corrida.en_m(j) < diametro:
            continue
        peso = peso_de_distancia(entrada, corrida.distancia(i, j))
        try:
            rango = elegir(corrida, 1, i, j, valor)
        except Borde:
            return DE_BORDE
        if rango is not None:
            suma = suma + peso * potencia(dividir(corrida.en_m(j), diametro), k)
    return suma


def cabeceras_dr(p):
    return [f"DR(k:{a_texto(k)};{v};Fdis:{e}{lado}" for lado in lados_escritos(p, "DR", "ChIDPBil")
            for k in valores(*sucesion(p, 4)) for e in range(1, len(lista_dist(p)) + 1)
            for v in parametros_escritos(p, 1)]


# --------------------------------------------------------------------------------------------------------- APA


def apa(p):
    corrida, (desde, hasta, paso) = Corrida(p), sucesion(p, 8)
    tabla = Tabla(dividir(hasta - desde, paso) + 1, corrida.n)
    for k in valores(desde, hasta, paso):
        columna = tabla.siguiente()
        for i in range(corrida.n):
            columna[i] = apa_de(corrida, i, k)
    return tabla.columnas


def apa_de(corrida, i, k):
    if corrida.celda(i) == "":
        return SIN_ARBOL
    diametro = corrida.en_m(i)
    if corrida.es_vertice(i):
        return EN_VERTICE
    xi, yi = corrida.xy(i)
    virtuales = [arbol_virtual(corrida, i, j, diametro, k) for j in range(corrida.n)]
    return area_de_celda(corrida.p.poligono, vertices_de_celda(lados_de_celda(xi, yi, i, virtuales)))


def arbol_virtual(corrida, i, j, di, k):
    """The neighbour at twice the distance of the border between both. One straight to the left lands on the
    other side."""
    xi, yi = corrida.xy(i)
    if j == i:
        return xi, yi, di
    if corrida.celda(j) == "":
        return 0.0, 0.0, 0.0
    (xj, yj), dj = corrida.xy(j), corrida.en_m(j)
    largo = distancia(xi, yi, xj, yj)
    propio = potencia(di, k)
    largo = 2 * dividir(propio, propio + potencia(dj, k)) * largo
    s = dividir(yj - yi, xj - xi)
    dx, dy = largo * raiz(dividir(1, s ** 2 + 1)), largo * raiz(dividir(s ** 2, s ** 2 + 1))
    if xj < xi and yj > yi:
        return xi - dx, yi + dy, dj
    if xj < xi and yj < yi:
        return xi - dx, yi - dy, dj
    if xj > xi and yj < yi:
        return xi + dx, yi - dy, dj
    return xi + dx, yi + dy, dj


def bisectriz(xi, yi, punto):
    """Slope and intercept of the line half way to a point."""
    px, py, _ = punto
    s = dividir(py - yi, px - xi)
    pendiente = dividir(-1, s)
    return pendiente, (yi + py) / 2 - pendiente * ((xi + px) / 2)


def mas_cercano(xi, yi, i, virtuales):
    mejor, elegido = 999999.0, None
    for j, (x, y, d) in enumerate(virtuales):
        if j != i and d != 0 and distancia(xi, yi, x, y) < mejor:
            mejor, elegido = distancia(xi, yi, x, y), j
    if elegido is None:
        raise Fallo(11)
    return elegido


def siguiente_en_giro(xi, yi, desde, virtuales, visitados):
    """The tree that comes first turning from a direction; None where all are visited."""
    menor, elegido = 370.0, None
    for c, (x, y, d) in enumerate(virtuales):
        if c in visitados or d == 0:
            continue
        a = angulo_direccion(xi, yi, x, y)
        giro = 360 - (desde - a) if a < desde else a - desde
        if giro < menor:
            menor, elegido = giro, c
    return elegido


def circulo_vacio(xi, yi, fuera, p, q, virtuales):
    r, cx, cy = radio_circunscrito(xi, yi, p[0], p[1], q[0], q[1])
    return not any(distancia(x, y, cx, cy) < r for t, (x, y, d) in enumerate(virtuales)
                   if t not in fuera and d != 0)


def lados_de_celda(xi, yi, i, virtuales):
    """Slopes and intercepts of the sides in turning order, the first once more at the end."""
    ceros = sum(d == 0 for j, (_, _, d) in enumerate(virtuales) if j != i)
    a = mas_cercano(xi, yi, i, virtuales)
    lados, visitados = [bisectriz(xi, yi, virtuales[a])], [i, a]
    filas_grid, tomados, acabado = len(virtuales) + 1, 1, False
    while not acabado:
        p = virtuales[a]
        a0 = angulo_direccion(xi, yi, p[0], p[1])
        while True:
            b = siguiente_en_giro(xi, yi, a0, virtuales, visitados)
            tomados += 1
            if filas_grid - ceros - 1 == tomados:
                acabado = True
                break
            visitados.append(b)
            if circulo_vacio(xi, yi, (i, a, b), p, virtuales[b], virtuales):
                lados.append(bisectriz(xi, yi, virtuales[b]))
                a = b
                break
    return lados + lados[:1]


def vertices_de_celda(lados):
    vertices = []
    for (m0, b0), (m1, b1) in zip(lados, lados[1:]):
        x = dividir(b1 - b0, m0 - m1)
        vertices.append((x, m0 * x + b0))
    return vertices + vertices[:1]


def area_de_celda(poligono, vertices):
    """A side with one end in the plot and one out makes the tree a border tree; a cell all outside does not."""
    de_borde = False
    for uno, otro in zip(vertices, vertices[1:]):
        if punto_en_poligono(poligono, *uno) != punto_en_poligono(poligono, *otro):
            de_borde = True
    if de_borde:
        return DE_BORDE
    area = 0.0
    for v in range(1, len(vertices) - 2):
        area = area + area_triangulo_puntos(*vertices[0], *vertices[v], *vertices[v + 1])
    return area


def cabeceras_apa(p):
    return [f"APA(k:{a_texto(k)})" for k in valores(*sucesion(p, 8))]


# Switch, computation, headers and decimals of each family, in the order of the run and of the file.
FAMILIAS = [("ChSupCopa", isc, cabeceras_isc, 4), ("ChAOIActivar", aoi, cabeceras_aoi, 2),
            ("ChIDPActivar", idp, cabeceras_idp, 2), ("ChDRActivar", dr, cabeceras_dr, 2),
            ("ChAPA", apa, cabeceras_apa, 2)]
