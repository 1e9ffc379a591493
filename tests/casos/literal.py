#!/usr/bin/python3
"""Works out the expected answer of a job by hand, so to speak: all the indices of a plot.

    literal.py PARCELA.xls TRABAJO.toml CARPETA

writes CARPETA/esperado-indices.txt, the results file byte for byte, or CARPETA/esperado-fallo.txt, one line
with the number of the run-time fault that ends the run and what it is. It shares no code with the program:
every step is written out in the plainest way, however slow, so that a difference is worth a look.

numeros.py holds the numbers and texts, geometria.py, parametros.py and familias.py the families of indices with
parameters, superficie.py the surface on which crowns of ellipse are sampled. Needs python 3.11 and xlrd.
"""
import math
import re
import sys
import tomllib
from pathlib import Path

import xlrd

sys.dont_write_bytecode = True
from familias import FAMILIAS
from numeros import PI, Fallo, a_numero, a_texto, dividir, entero16, es_numerico, formato, raiz, val

# ----------------------------------------------------------------------------------------------- table and grid

def nombres_de_campo(cabecera):
    campos = []
    for c, valor in enumerate(cabecera, start=1):
        nombre = a_texto(valor).translate(str.maketrans(".[]!", "#()_")) or f"F{c}"
        libre, n = nombre, 0
        while libre in campos:
            n += 1
            libre = f"{nombre}{n}"
        campos.append(libre)
    return campos


def valor_de_celda(celda):
    if celda.ctype in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
        return None
    if celda.ctype not in (xlrd.XL_CELL_NUMBER, xlrd.XL_CELL_TEXT):
        raise SystemExit(f"esta clase de celda no se espera en un caso: {celda}")
    return celda.value


def leer_tabla(archivo, tabla):
    """Field names and records of the sheet; its first used row holds the names."""
    hoja = xlrd.open_workbook(archivo).sheet_by_name(tabla.removesuffix("$"))
    filas = [[valor_de_celda(celda) for celda in hoja.row(r)] for r in range(hoja.nrows)]
    while not any(valor is not None for valor in filas[0]):
        del filas[0]
    return nombres_de_campo(filas[0]), filas[1:]


def llenar_rejilla(campos, registros):
    """Data rows of the grid: column 0 counts the records, and the last field has no data."""
    rejilla = []
    for numero, registro in enumerate(registros, start=1):
        rejilla.append([str(numero)] + [a_texto(valor) for valor in registro[:-1]] + [""])
    quitar_filas(rejilla, lambda fila: not any(fila[1:]))
    return rejilla


def quitar_filas(rejilla, sobra):
    """Takes rows out from the top down; a grid never loses its last row, and there the pass ends."""
    r = 0
    while r < len(rejilla):
        if not sobra(rejilla[r]):
            r += 1
        elif len(rejilla) == 1:
            return
        else:
            del rejilla[r]


def ordenar(rejilla, columna):
    """The grid's ascending sort: empty cells, then numbers by value, then texts; equals keep their order."""

    def clave(fila):
        texto = fila[columna]
        if texto == "":
            return (0, 0)
        return (1, a_numero(texto)) if es_numerico(texto) else (2, texto)

    rejilla.sort(key=clave)


# --------------------------------------------------------------------------------------------------------- job

DE_FABRICA = {
    "Optcm": 0, "Optdecim": 1, "Optmetro": 0, "Opt4R": 1, "Opt2D": 0, "OptRM": 0, "OptCAP": 1, "OptDAP": 0,
    "OptCMDIA": 1, "OptDMDIA": 0, "OptMDIA": 0, "ChCodigo": 1, "OptElipse": 1, "Optcirc": 0,
    "ChISCBil": 1, "ChAOIBil": 1, "ChIDPBil": 1, "ChIDPSi": 1, "ChDRBil": 1,
    "OptBAF(0)": 1, "OptNumFijo(0)": 0, "OptRadioFijo(0)": 0, "OptFunc(0)": 0,
    "OptBAF(1)": 1, "OptNumFijo(1)": 0, "OptRadioFijo(1)": 0, "OptFunc(1)": 0,
}
GRUPOS = (("Optcm", "Optdecim", "Optmetro"), ("Opt4R", "Opt2D", "OptRM"), ("OptCAP", "OptDAP"),
          ("OptCMDIA", "OptDMDIA", "OptMDIA"), ("OptElipse", "Optcirc"),
          *(tuple(f"Opt{regla}({x})" for regla in ("BAF", "NumFijo", "RadioFijo", "Func")) for x in (0, 1)))
PAPELES = {
    "Opt4R": ["X", "Y", "N", "E", "S", "O", "Indice", "Codigo"],
    "Opt2D": ["X", "Y", "NS", "EO", "Indice", "Codigo"],
    "OptRM": ["X", "Y", "Radio", "Indice", "Codigo"],
}


def leer_opciones(pedidas):
    opciones = dict(DE_FABRICA)
    for grupo in GRUPOS:
        for elegida in (nombre for nombre in grupo if pedidas.get(nombre)):
            opciones.update({nombre: int(nombre == elegida) for nombre in grupo})
    opciones.update({nombre: int(valor) for nombre, valor in pedidas.items() if nombre.startswith("Ch")})
    opciones.update({nombre: valor for nombre, valor in pedidas.items() if nombre.startswith(("Txt", "Lst"))})
    if opciones["OptRM"]:  # a mean radius knows no ellipse
        opciones.update({"Optcirc": 1, "OptElipse": 0})
    return opciones


class Parcela:
    """One plot on its way through the run."""

    def __init__(self, archivo, trabajo):
        self.opciones = leer_opciones(trabajo.get("opciones", {}))
        self.tipo = next(nombre for nombre in PAPELES if self.opciones[nombre])
        self.campos, self.registros = leer_tabla(archivo, trabajo["hoja"])
        self.rejilla = llenar_rejilla(self.campos, self.registros)
        self.columna = {papel: self.numero_de_columna(dada) for papel, dada in trabajo["columnas"].items()}
        self.columna.setdefault("DAP", 0)  # nobody chose it: column 0 of the grid stays
        self.copa = [self.columna[papel] for papel in PAPELES[self.tipo][2:-2]]

    def numero_de_columna(self, dada):
        return dada if isinstance(dada, int) else self.campos.index(dada) + 1

    def campo_dap(self):
        """Number of the stem size field, as the queries name it."""
        if self.columna["DAP"] == 0:
            raise Fallo(3265)
        return self.columna["DAP"] - 1

    def tamanos(self):
        """The stem size of every record of the sheet."""
        campo = self.campo_dap()
        return [registro[campo] for registro in self.registros]

    def marcada(self, casilla):
        return self.opciones.get(casilla, 0) == 1


# --------------------------------------------------------------------------------------------- map and boundary

def dibujar_mapa(p):
    """What leaves a trace in the results: order of the grid, its cleaning, faults of the conversions."""
    x, y = p.columna["X"], p.columna["Y"]
    if p.marcada("ChCodigo") and p.columna["Codigo"] != x:
        ordenar(p.rejilla, p.columna["Codigo"])
        ordenar(p.rejilla, 1)
    quitar_filas(p.rejilla, lambda fila: fila[x] == "" and fila[y] == "")
    for fila in p.rejilla:
        a_numero(fila[x]), a_numero(fila[y])
        for c in p.copa:
            a_numero(fila[c] or "0")
    construir_poligono(p)
    p.superficie = area_poligono(p.poligono)


def segun_unidad(p, en_cm, en_dm, en_m):
    return en_cm if p.opciones["OptCMDIA"] else en_dm if p.opciones["OptDMDIA"] else en_m


def seccion_del_arbol(p, texto):
    """Basal area of one tree in square metres."""
    v = a_numero(texto) if texto != "" else 0.0
    if p.opciones["OptCAP"]:
        return v ** 2 / segun_unidad(p, 125663.708, 1256.63708, 12.5663708)
    return (v ** 2 * PI) / segun_unidad(p, 40000.0, 400.0, 4.0)


def vertice(p, fila):
    """x, y and basal area of a tree on the boundary. Its crown is read too: an empty crown cell is a fault."""
    for c in p.copa:
        a_numero(fila[c])
    x, y = a_numero(fila[p.columna["X"]]), a_numero(fila[p.columna["Y"]])
    return x, y, seccion_del_arbol(p, fila[p.columna["DAP"]])


def direccion(dx, dy):
    """Degrees clockwise from +y."""
    if dy == 0:
        return 90.0 if dx > 0 else 270.0
    if dx == 0:
        return 0.0 if dy > 0 else 180.0
    t = (180.0 / PI) * math.atan(dx / dy)
    if dy < 0:
        return t + 180.0
    return t + 360.0 if dx < 0 else t


def media_vuelta(t):
    return t + 180.0 if t < 180.0 else t - 180.0


def construir_poligono(p):
    """Walks the hull clockwise from the first tree of least x, always to the least direction."""
    ordenar(p.rejilla, p.columna["X"])
    x = [a_numero(fila[p.columna["X"]]) for fila in p.rejilla]
    y = [a_numero(fila[p.columna["Y"]]) for fila in p.rejilla]
    candidato = [0.0] * len(x)
    p.poligono, lado = [vertice(p, p.rejilla[0])], []
    p.filas_de_vertice = [p.rejilla[0]]
    actual, de_vuelta = 0, False
    while True:
        for s in range(len(x)):
            dx, dy = x[s] - x[actual], y[s] - y[actual]
            if s == actual:
                candidato[s] = 999.0
            elif dx != 0 or dy != 0:  # a second tree on this place keeps what its slot held
                t = direccion(dx, dy)
                candidato[s] = media_vuelta(t) if de_vuelta else t
        elegido = candidato.index(min(candidato))
        t = media_vuelta(candidato[elegido]) if de_vuelta else candidato[elegido]
        lado.append(360.0 if de_vuelta and t == 0 else t)  # a closing edge straight up ends the full turn
        p.poligono.append(vertice(p, p.rejilla[elegido]))
        p.filas_de_vertice.append(p.rejilla[elegido])
        entero16(len(p.poligono))
        dx, dy = x[elegido] - x[actual], y[elegido] - y[actual]
        de_vuelta = dx < 0 or (dx == 0 and dy < 0)
        actual = elegido
        if actual == 0:
            break
    p.interior = [(lado[-1] - lado[0]) - 180.0]
    p.interior += [180.0 - (lado[i] - lado[i - 1]) for i in range(1, len(lado))]
    ordenar(p.rejilla, 1)


def area_triangulo(p1, p2, p3):
    """Heron, factors in this order."""
    a = raiz((p2[0] - p1[0]) ** 2 + (p2[1] - p1[1]) ** 2)
    b = raiz((p3[0] - p2[0]) ** 2 + (p3[1] - p2[1]) ** 2)
    c = raiz((p1[0] - p3[0]) ** 2 + (p1[1] - p3[1]) ** 2)
    s = ((b + a) + c) / 2.0
    return raiz((((s - a) * s) * (s - b)) * (s - c))


def area_poligono(poligono):
    total = 0.0
    for i in range(1, len(poligono) - 2):
        total += area_triangulo(poligono[0], poligono[i], poligono[i + 1])
    return total


# ----------------------------------------------------------------------------------------------------- queries

def numero_en_consulta(valor):
    """A value inside arithmetic or an aggregate: Null stays, a text must read as a number."""
    if isinstance(valor, str):
        if not es_numerico(valor):
            raise Fallo(3464)
        return a_numero(valor)
    return valor


def comparable(valor):
    """Rank for comparing and sorting: a text that reads as a number is that number, other texts come after."""
    if isinstance(valor, str):
        return (1, a_numero(valor)) if es_numerico(valor) else (2, valor)
    return (1, valor)


def no_cero(valor):
    return valor is not None and comparable(valor) != (1, 0)


def mayor_que(valor, numero):
    return valor is not None and comparable(valor)[0] == 1 and comparable(valor)[1] > numero


def numeros(valores, expresion):
    return [expresion(n) for n in map(numero_en_consulta, valores) if n is not None]


def suma(valores, expresion=lambda n: n):
    sumandos = numeros(valores, expresion)
    if not sumandos:
        return None
    total = 0.0
    for sumando in sumandos:
        total += sumando
    return total


def media(valores, expresion=lambda n: n):
    total = suma(valores, expresion)
    return None if total is None else total / len(numeros(valores, expresion))


def maximo(valores, expresion=lambda n: n):
    return max(numeros(valores, expresion), default=None)


def cuadrado(n):
    return n ** 2


def expresion_de_seccion(p):
    """The basal area as the query computes it, record by record."""
    if p.opciones["OptCAP"]:
        divisor = segun_unidad(p, 4 * PI * 10000, 4 * PI * 100, 4 * PI)
        return lambda n: n ** 2 / divisor
    divisor = segun_unidad(p, 4 * 10000, 4 * 100, 4)
    return lambda n: n ** 2 * PI / divisor


def primeros(valores, n):
    """TOP n of the non-zero sizes in descending order, with the ties of the last one."""
    ordenados = sorted(filter(no_cero, valores), key=comparable, reverse=True)
    if n == 0 or not ordenados:
        return []
    ultimo = comparable(ordenados[:n][-1])
    return [valor for valor in ordenados if comparable(valor) >= ultimo]


# ----------------------------------------------------------------------------------------------------- indices

def sin_corchetes(campo):
    """A field that a query names without brackets must be a single word."""
    if not re.fullmatch(r"[^\W\d]\w*", campo):
        raise Fallo(3075)


def npies_ha(p):
    """Stems per hectare, half a stem less for each vertex. The query names the field without brackets."""
    columna = p.columna["Codigo"] if p.marcada("ChCodigo") else p.copa[0]
    sin_corchetes(p.campos[columna - 1])
    cuenta = sum(registro[columna - 1] is not None for registro in p.registros)
    return dividir(cuenta - ((len(p.poligono) - 1) / 2.0), p.superficie) * 10000


def ab_ha(p):
    """Basal area per hectare; of a tree on a vertex only the part inside the boundary counts."""
    total = suma(p.tamanos(), expresion_de_seccion(p))
    quitar = 0.0
    for i, (_, _, seccion) in enumerate(p.poligono[:-1]):
        quitar += seccion * (1.0 - p.interior[i] / 360.0)
    if total is None:
        raise Fallo(94)
    return dividir(total - quitar, p.superficie) * 10000


def textos(p):
    """The size cells of the grid with a decimal point."""
    return [fila[p.columna["DAP"]].replace(",", ".") for fila in p.rejilla]


def ab_mayores(p):
    """Basal area of the larger trees: the text of the cell is the number that the query compares with."""
    valores, seccion, resultado = p.tamanos(), expresion_de_seccion(p), []
    for texto in textos(p):
        if texto == "" or not es_numerico(texto) or a_numero(texto) == 0:
            resultado.append(0.0)
            continue
        if not re.fullmatch(r"-?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", texto.strip(" "), re.ASCII):
            raise Fallo(3075)
        q = suma([valor for valor in valores if mayor_que(valor, float(texto))], seccion)
        resultado.append(0.0 if q is None else dividir(q, p.superficie) * 10000)
    return resultado


def media_cuadratica_dominante(p):
    """Mean of the squares of the dominant sizes: 100 trees a hectare."""
    n = entero16(round(p.superficie / 100))
    if n > len(p.rejilla):
        n = len(p.rejilla)
    dominantes = primeros(p.tamanos(), n)
    if not dominantes:
        raise Fallo(3021)
    total = 0.0
    for valor in dominantes:
        total += (a_numero(valor) if isinstance(valor, str) else valor) ** 2
    return total / len(dominantes)


def razones(p, q, potencia):
    return [dividir(val(texto) ** potencia, q) for texto in textos(p)]


def areas(p, pies, q, potencia):
    return [dividir(10000, pies) * dividir(val(texto) ** potencia, q) for texto in textos(p)]


def sin_ceros(p):
    return list(filter(no_cero, p.tamanos()))


# What divides the size, or its square, in each ratio.
DIVISORES = {
    "Dmed": (lambda p: media(sin_ceros(p)), 1),
    "Dmax": (lambda p: maximo(p.tamanos()), 1),
    "Ddom": (lambda p: raiz(media_cuadratica_dominante(p)), 1),
    "Bmed": (lambda p: media(sin_ceros(p), cuadrado), 2),
    "Bmax": (lambda p: maximo(p.tamanos(), cuadrado), 2),
    "Bdom": (media_cuadratica_dominante, 2),
    "APDmed": (lambda p: media(sin_ceros(p)), 1),
    "APDmax": (lambda p: maximo(p.tamanos()), 1),
    "APDsum": (lambda p: suma(p.tamanos()), 1),
    "APBmed": (lambda p: media(sin_ceros(p), cuadrado), 2),
    "APBmax": (lambda p: maximo(sin_ceros(p), cuadrado), 2),
    "APBsum": (lambda p: suma(sin_ceros(p), cuadrado), 2),
}
ORDEN_DE_CALCULO = ["N", "AB", "ABj", *DIVISORES]


def calcular_indice(p, indice):
    if indice == "N":
        return [npies_ha(p)] * len(p.rejilla)
    if indice == "AB":
        return [ab_ha(p)] * len(p.rejilla)
    if indice == "ABj":
        return ab_mayores(p)
    divisor, potencia = DIVISORES[indice]
    if not indice.startswith("AP"):
        return razones(p, divisor(p), potencia)
    pies = npies_ha(p)
    return areas(p, pies, divisor(p), potencia)


# ------------------------------------------------------------------------------------------------ results file

COLUMNAS_DEL_ARCHIVO = {
    "N": "Pies/ha", "AB": "ABha", "ABj": "ABha(dj>di)", "Dmed": "di/dmed", "Ddom": "di/ddom", "Dmax": "di/dmax",
    "Bmed": "bi/bmed", "Bdom": "bi/bdom", "Bmax": "bi/bmax", "APDmed": "AP(di/dmed)", "APDmax": "AP(di/dmax)",
    "APDsum": "AP(di/dsum)", "APBmed": "AP(bi/bmed)", "APBmax": "AP(bi/bmax)", "APBsum": "AP(bi/bsum)",
}


def archivo_de_resultados(p, indices, familias):
    """The families with parameters bring their columns and, perhaps fewer, their headers."""
    columnas = [indice for indice in COLUMNAS_DEL_ARCHIVO if indice in indices]
    texto = "\t".join(["NºOrden", "NºArbol", *(COLUMNAS_DEL_ARCHIVO[i] for i in columnas),
                       *(nombre for nombres, _, _ in familias for nombre in nombres)]) + "\r\n"
    for r, fila in enumerate(p.rejilla):
        valores = [formato(indices[indice][r]) for indice in columnas]
        valores += [formato(columna[r], decimales) for _, tabla, decimales in familias for columna in tabla]
        texto += "\t".join([str(r + 1), fila[p.columna["Indice"]], *valores]) + "\r"
    return (texto + "\r\n").encode("cp1252")


def responder(archivo, trabajo):
    """Name and bytes of the expected file."""
    p = Parcela(archivo, trabajo)
    try:
        dibujar_mapa(p)
        indices = {i: calcular_indice(p, i) for i in ORDEN_DE_CALCULO if p.marcada("Ch" + i)}
        tablas = [(calcular(p), cabeceras, decimales) for casilla, calcular, cabeceras, decimales in FAMILIAS
                  if p.marcada(casilla)]
    except Fallo as fallo:
        return "esperado-fallo.txt", f"{fallo}\n".encode()
    familias = [(cabeceras(p), tabla, decimales) for tabla, cabeceras, decimales in tablas]
    return "esperado-indices.txt", archivo_de_resultados(p, indices, familias)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    nombre, contenido = responder(sys.argv[1], tomllib.loads(Path(sys.argv[2]).read_text("utf-8")))
    (Path(sys.argv[3]) / nombre).write_bytes(contenido)
