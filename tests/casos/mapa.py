#!/usr/bin/python3
"""Works out the expected map of a job by hand, so to speak: its shapes, one a line, in the order of the drawing.

    mapa.py PARCELA.xls TRABAJO.toml CARPETA

writes CARPETA/esperado-mapa.txt. Like literal.py, whose table, grid and boundary it takes, it shares nothing with
the program.
"""
import sys
import tomllib
from pathlib import Path

sys.dont_write_bytecode = True
import literal
from numeros import a_numero, a_texto, es_numerico, simple

TRAZO = 0x00400040
COLORES = ("#400040", "#0072B2", "#D55E00", "#009E73", "#8C510A", "#CC3399", "#1A1A1A", "#4575B4")
ANCHO_DE_LA_VENTANA, ALTO_DE_LA_VENTANA = 15000, 10851
CUARTO, MEDIA, TRES_CUARTOS = simple(1.57), simple(3.14), simple(4.712)


def color_de(texto):
    """0x00BBGGRR from "#RRGGBB"."""
    r, g, b = (int(texto[i:i + 2], 16) for i in (1, 3, 5))
    return b * 65536 + g * 256 + r


def linea(nombre, *campos):
    textos = [campo if isinstance(campo, str) else a_texto(float(campo)) for campo in campos]
    return "\t".join([nombre, *textos]) + "\n"


def ocho(color):
    return "-" if color is None else f"{color:08X}"


class Mapa:
    def __init__(self, archivo, trabajo):
        self.p = literal.Parcela(archivo, trabajo)
        self.formato = trabajo.get("formato", {})
        self.hoja = trabajo["hoja"]
        self.texto = ""

    def poner(self, *campos):
        self.texto += linea(*campos)

    # -------------------------------------------------------------------------------------------------- grid

    def listar_codigos(self):
        p = self.p
        self.codigos = []
        if not p.marcada("ChCodigo") or p.columna["Codigo"] == p.columna["X"]:
            return
        c = p.columna["Codigo"]
        literal.ordenar(p.rejilla, c)
        columna = [p.campos[c - 1]] + [fila[c] for fila in p.rejilla]  # the header counts as the row before
        for antes, ahora in zip(columna, columna[1:]):
            if ahora != antes and ahora != "":
                self.codigos.append(ahora)
        literal.ordenar(p.rejilla, 1)

    def limpiar(self):
        x, y = self.p.columna["X"], self.p.columna["Y"]
        literal.quitar_filas(self.p.rejilla, lambda fila: fila[x] == "" and fila[y] == "")

    # ------------------------------------------------------------------------------------------------- scale

    def leer_columna(self, c):
        return [a_numero(fila[c]) if es_numerico(fila[c]) else -1.0 for fila in self.p.rejilla]

    def calcular_escala(self):
        xs, ys = self.leer_columna(self.p.columna["X"]), self.leer_columna(self.p.columna["Y"])
        xmax, xmin, ymax, ymin = max(xs), min(xs), max(ys), min(ys)
        rx, ry = xmax - xmin, ymax - ymin
        if ry < rx:
            izquierda = xmin - rx * (15 / 70)
            derecha = xmax + rx * (15 / 70)
            exceso = ((100 / 85) * 0.7234 * (xmax - izquierda) - ry) / 2
            abajo, arriba = ymin - exceso, ymax + exceso
        else:
            abajo = ymin - ry * (15 / 70)
            arriba = ymax + ry * (15 / 70)
            exceso = ((1 / 0.7234) * (100 / 85) * (ymax - abajo) - rx) / 2
            izquierda, derecha = xmin - exceso, xmax + exceso
        self.izquierda, self.derecha, self.abajo, self.arriba = izquierda, derecha, abajo, arriba
        self.marco_izquierda = izquierda + 0.1 * (derecha - izquierda)
        self.marco_abajo = abajo + 0.1 * (arriba - abajo)
        self.marco_derecha = izquierda + 0.9 * (derecha - izquierda)
        self.marco_arriba = abajo + 0.9 * (arriba - abajo)
        # A metre is as long in x as in y, and the whole canvas has room in the window.
        self.por_twip = max((derecha - izquierda) / ANCHO_DE_LA_VENTANA, (arriba - abajo) / ALTO_DE_LA_VENTANA)

    def medir(self, texto, tamano):
        """Width and height of a label in metres."""
        ancho = len(texto) * (75 * tamano / 8) if texto else 300
        return ancho * self.por_twip, 24 * tamano * self.por_twip

    # ----------------------------------------------------------------------------------------------- drawing

    def marco(self):
        izquierda, abajo, derecha, arriba = (self.marco_izquierda, self.marco_abajo, self.marco_derecha,
                                             self.marco_arriba)
        self.poner("linea", izquierda, abajo, derecha, abajo, ocho(TRAZO))
        self.poner("linea", derecha, abajo, derecha, arriba, ocho(TRAZO))
        self.poner("linea", derecha, arriba, izquierda, arriba, ocho(TRAZO))
        self.poner("linea", izquierda, arriba, izquierda, abajo, ocho(TRAZO))

    def etiqueta(self, nombre, izquierda, arriba, color, texto):
        limpio = texto.replace("\r\n", " ").translate(str.maketrans("\t\r\n", "   "))
        self.poner("etiqueta", nombre, izquierda, arriba, ocho(color), limpio)

    def titulo(self):
        texto = self.formato.get("titulo", "Parcela " + self.hoja).strip(" ")
        tamano = simple(self.formato.get("fuente", {}).get("tamano", 8))
        ancho, alto = self.medir(texto, tamano)
        arriba = (self.arriba - self.marco_arriba) / 2 + self.marco_arriba + alto / 2
        izquierda = (self.izquierda + self.derecha) / 2 - ancho / 2
        self.etiqueta("LbTitulo", izquierda, arriba, color_de(self.formato.get("color", COLORES[0])), texto)

    def de_codigo(self, i):
        return self.formato.get("codigos", {}).get(self.codigos[i], {})

    def color_de_linea(self, i):
        return color_de(self.de_codigo(i).get("linea", COLORES[i % 8]))

    def leyenda(self):
        n, ancho_de_marco = len(self.codigos), self.marco_derecha - self.marco_izquierda
        for i in range(n):
            texto = self.de_codigo(i).get("texto", "").strip(" ")
            tamano = simple(self.de_codigo(i).get("fuente", {}).get("tamano", 8))
            alto = self.medir(texto, tamano)[1]
            color = self.color_de_linea(i)
            izquierda = ((i + 0.1) * ancho_de_marco) / n + self.marco_izquierda
            self.etiqueta(f"LbLeyenda({i})", izquierda, self.marco_abajo, color, texto)
            self.poner("circulo", ((i + 0.05) * ancho_de_marco) / n + self.marco_izquierda,
                       self.marco_abajo - alto / 2, (ancho_de_marco * 0.04) / 6, ocho(color), "-")
            self.color = color

    def radios(self, fila):
        def metros(c):
            radio = 0.0 if fila[c] == "" else a_numero(fila[c])
            if self.p.opciones["Optdecim"]:
                return radio / 10
            return radio / 100 if self.p.opciones["Optcm"] else radio

        medidas = [metros(c) for c in self.p.copa]
        if self.p.tipo == "Opt2D":
            ns, eo = medidas[0] / 2, medidas[1] / 2
            return ns, eo, ns, eo
        return medidas if self.p.tipo == "Opt4R" else medidas * 4

    def copa(self, x, y, r1, r2, r3, r4, color, relleno):
        r1, r2, r3, r4 = (r if r != 0 else 0.5 for r in (r1, r2, r3, r4))
        for inicio, fin, vertical, horizontal in ((0, CUARTO, r1, r2), (TRES_CUARTOS, 0, r3, r2),
                                                  (MEDIA, TRES_CUARTOS, r3, r4), (CUARTO, MEDIA, r1, r4)):
            self.poner("arco", x, y, max(vertical, horizontal), inicio, fin, vertical / horizontal,
                       ocho(color), ocho(relleno))
        self.poner("punto", x, y, ocho(color))

    def arbol(self, r, fila):
        p = self.p
        x, y = a_numero(fila[p.columna["X"]]), a_numero(fila[p.columna["Y"]])
        radios = self.radios(fila)
        color_de_etiqueta, relleno = TRAZO, None
        if p.marcada("ChCodigo"):
            codigo = fila[p.columna["Codigo"]]
            if codigo in self.codigos:
                i = self.codigos.index(codigo)
                self.color = color_de_etiqueta = self.color_de_linea(i)
                if p.tipo == "Opt4R" and "fondo" in self.de_codigo(i):
                    relleno = color_de(self.de_codigo(i)["fondo"])
            else:
                self.color = 0
        if p.opciones["OptElipse"]:
            self.copa(x, y, *radios, self.color, relleno)
        else:
            self.poner("circulo", x, y, sum(radios) / 4, ocho(self.color), ocho(relleno))
            self.poner("punto", x, y, ocho(self.color))
        self.etiqueta(f"Lbcodigo({r})", x, y + 2, color_de_etiqueta, fila[p.columna["Indice"]])

    def contorno(self):
        literal.construir_poligono(self.p)
        if self.p.opciones.get("ChPolExt", 1) == 1:
            for (x1, y1, _), (x2, y2, _) in zip(self.p.poligono, self.p.poligono[1:]):
                self.poner("linea", x1, y1, x2, y2, ocho(self.color))

    def dibujar(self):
        self.listar_codigos()
        self.limpiar()
        self.calcular_escala()
        self.color = TRAZO
        self.poner("escala", self.izquierda, self.arriba, self.derecha - self.izquierda,
                   self.abajo - self.arriba)
        self.marco()
        self.titulo()
        self.leyenda()
        for r, fila in enumerate(self.p.rejilla, start=1):
            self.arbol(r, fila)
        self.contorno()
        return self.texto.encode()


def responder(archivo, trabajo):
    """Bytes of the expected map."""
    return Mapa(archivo, trabajo).dibujar()


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    contenido = responder(sys.argv[1], tomllib.loads(Path(sys.argv[2]).read_text("utf-8")))
    (Path(sys.argv[3]) / "esperado-mapa.txt").write_bytes(contenido)
