"""The cases of the plot data: stems, basal area, crown area, clipping at the boundary, overlap and cover.

Most plots are the ring of casos_de_familias.py, smaller and behind the trees inside it: the clipping of circles ends
at the first tree on the boundary.
"""
import random

from casos_de_familias import ANILLO
from parcelas import Caso, arbol, bosque, cambiar, en_orden

CIRCULOS = {"Optcirc": True}
COPA_VACIA = {"N": None, "E": None, "S": None, "O": None}


# ------------------------------------------------------------------------------------------------------ trees

def dentro_y_anillo(lugares, tamanos, otros=None, mitad=0.5, por_cm=1):
    """A tree on each place, then the ring, half as wide as it is told: from 0 to 20 each way, about (10, 10)."""
    anillo = [(round(x * mitad, 3), round(y * mitad, 3)) for x, y in ANILLO]
    todos = list(zip([*lugares, *anillo], [*tamanos, 52, 61, 47, 70, 58, 64]))
    arboles = [arbol(i, x, y, round(tamano * por_cm, 3), ("PS", "QI", "FS")[i % 3])
               for i, ((x, y), tamano) in enumerate(todos, start=1)]
    for i, cambios in (otros or {}).items():
        arboles[i].update(cambios)
    return arboles


def azares(nombre, n=9, por_cm=1, otros=None):
    """n trees at random, some of them near the boundary, and the ring."""
    azar = random.Random(nombre)
    lugares = [(round(azar.uniform(2.5, 17.5), 2), round(azar.uniform(3, 17.5), 2)) for _ in range(n)]
    return dentro_y_anillo(lugares, [round(azar.uniform(15, 60), 1) for _ in range(n)], otros, por_cm=por_cm)


def con_copa(arboles, **copas):
    return [{**a, **copas} for a in arboles]


def con_codigos(arboles, codigos):
    return [{**a, "Codigo": codigos[i % len(codigos)]} for i, a in enumerate(arboles)]


def vertice_primero(v):
    """A tree of the ring comes first, with a crown that reaches many sides."""
    return cambiar(cambiar(azares(f"vertice_{v}"), "Indice", {9 + v: 0}), "Radio", {9 + v: 12.5})


def en_cuadrado(lugares, lado=12):
    esquinas = [(0, 0), (0, lado), (lado, lado), (lado, 0)]
    return [arbol(i, x, y, 40 + i, ("PS", "QI")[i % 2]) for i, (x, y) in enumerate([*lugares, *esquinas], start=1)]


def caso(nombre, arboles, indices=(), **lo_demas):
    return Caso(nombre, arboles, list(indices), datos=True, **lo_demas)


# ------------------------------------------------------------------------------------------------------ cases

def de_tipos():
    """Circles and ellipses, three data types, with and without codes; sizes and crowns in all units."""
    n_ab = ["N", "AB"]
    return [
        caso("datos_4r_elipses", azares("4r_elipses"), n_ab),
        caso("datos_4r_elipses_nocod", azares("4r_elipses_nocod", por_cm=0.1), n_ab, codigo=False, tamano="DAP dm",
             copa_en="m", por_numero=True),
        caso("datos_4r_circulos", azares("4r_circulos"), n_ab, tamano="DAP cm", copa_en="cm", opciones=CIRCULOS),
        caso("datos_4r_circulos_nocod", azares("4r_circulos_nocod", por_cm=0.01), n_ab, codigo=False,
             tamano="CAP m", opciones=CIRCULOS),
        caso("datos_2d_elipses", azares("2d_elipses", por_cm=0.1), n_ab, tipo="2D", tamano="CAP dm", copa_en="cm"),
        caso("datos_2d_elipses_nocod", azares("2d_elipses_nocod", por_cm=0.01), n_ab, tipo="2D", codigo=False,
             tamano="DAP m"),
        caso("datos_2d_circulos", azares("2d_circulos"), n_ab, tipo="2D", copa_en="m", opciones=CIRCULOS),
        caso("datos_2d_circulos_nocod", azares("2d_circulos_nocod"), n_ab, tipo="2D", codigo=False, tamano="DAP cm",
             opciones=CIRCULOS),
        caso("datos_rm", azares("rm", por_cm=0.01), n_ab, tipo="RM", tamano="DAP m", copa_en="m"),
        caso("datos_rm_nocod", azares("rm_nocod", por_cm=0.1), n_ab, tipo="RM", codigo=False, tamano="CAP dm",
             copa_en="cm", por_numero=True),
    ]


def de_contornos():
    cuadrado = en_cuadrado([(5, 7), (1.5, 6.25), (10.75, 4.5), (6.5, 11), (3.5, 1.25), (11, 11)])
    igual_x = azares("x_de_vertice", otros={3: {"X": 4.5, "Y": 9.25}})
    igual_y = dentro_y_anillo([(17, 12), (16, 11), (15.5, 10.5), (6, 17), (6.5, 18.25)], range(30, 35),
                              {i: {"Radio": radio} for i, radio in enumerate((4, 5, 6.5, 3, 4))})
    rejilla = [(3 * i + 4, 3 * j + 4.5) for i in range(1, 4) for j in range(1, 4)]
    alineado = dentro_y_anillo([(8, 8), (12, 13)], [30, 40]) + [arbol(20, 30, 35.2, 45), arbol(21, 2.25, 13.375, 38)]
    triangulo = [arbol(i, x, y, 40 + i) for i, (x, y) in enumerate([(0, 0), (6, 11), (13, 2)], start=1)]
    return [
        caso("datos_lado_vertical_elipses", cuadrado),
        caso("datos_lado_vertical_circulos", cuadrado, opciones=CIRCULOS),
        caso("datos_lado_vertical_lejos", en_cuadrado([(5, 7), (7, 6), (6.5, 4)]), tipo="2D"),
        caso("datos_x_de_vertice", igual_x, opciones=CIRCULOS),
        caso("datos_x_de_dos_vertices", en_cuadrado([(5, 7), (2, 3.5), (0, 6.25), (9, 4)]), opciones=CIRCULOS),
        *(caso(f"datos_primera_fila_vertice_{v}", vertice_primero(v), tipo="RM", copa_en="m") for v in (0, 2, 5)),
        caso("datos_rejilla", con_copa(dentro_y_anillo(rejilla, range(30, 39)), Radio=2), tipo="RM", copa_en="m"),
        caso("datos_alineado_con_un_lado", alineado, tipo="RM"),
        caso("datos_alineado_con_un_lado_elipses", alineado),
        caso("datos_extensa", dentro_y_anillo([(150, 160), (240, 210), (230, 250)], [30, 40, 50], mitad=12), tipo="RM"),
        caso("datos_y_de_vertice", igual_y, tipo="RM", copa_en="m"),
        caso("datos_tres_arboles", triangulo),
        caso("datos_tres_arboles_circulos", triangulo, opciones=CIRCULOS),
        caso("datos_vertice_doble", [*azares("vertice_doble"), arbol(30, 4.5, 18.25, 33)]),
        caso("datos_vertice_doble_circulos", [*azares("vertice_doble"), arbol(30, 4.5, 18.25, 33)],
             opciones=CIRCULOS),
        caso("datos_en_linea", [arbol(i, 3 * i, 4 * i, 50) for i in range(1, 4)]),
        caso("datos_un_arbol", [arbol(1, 3, 4, 50)], tipo="RM"),
        caso("datos_utm_circulos", bosque("datos_utm_c", 12, 30, 24, origen=(452133, 4481207)), opciones=CIRCULOS),
        caso("datos_utm_elipses", bosque("datos_utm_e", 12, 18, 24, origen=(452133, 4481207)), ["N", "AB"]),
    ]


def de_copas():
    grandes = azares("grandes", 8)
    radios = random.Random("radios grandes")
    grandes = [{**a, "Radio": round(radios.uniform(30, 75), 1)} for a in grandes]
    de_4 = [{**a, **{c: round(radios.uniform(20, 60), 1) for c in "NESO"}} for a in grandes]
    ceros_4 = {1: dict.fromkeys("NESO", 0), 3: {"N": 0, "O": 0}, 5: {"E": 0}, 8: dict.fromkeys("NESO", 0)}
    ceros_rm = {1: {"Radio": 0}, 4: {"Radio": 0}}
    vacias_4 = {0: {"N": None}, 2: {"E": None, "O": None}, 4: COPA_VACIA, 7: {"S": None}}
    vacias_2d = {0: {"NS": None, "EO": None}, 3: {"NS": None}, 6: {"EO": None}}
    vacias_rm = {0: {"Radio": None}, 3: {"Radio": None}, 4: {"Radio": None}}
    pares = dentro_y_anillo([(7, 7), (8.5, 7), (7, 7), (12, 9), (12, 9), (9.5, 12)], [20, 30, 40, 50, 45, 25])
    ultimo = dentro_y_anillo([(7, 7), (12, 9), (12, 9)], [20, 30, 40]) + [arbol(99, 8, 8.5, 35)]
    vacias = azares("vacias_en_otro_orden", otros={i: {"NESO"[i % 4]: None} for i in range(9)})
    al_borde = dentro_y_anillo([(3, 12), (17, 14), (10, 10), (10, 3)], [20, 30, 40, 50],
                               {0: {"Radio": 25}, 1: {"Radio": None}, 2: {"Radio": 30}, 3: {"Radio": None}})
    dentro = dentro_y_anillo([(9, 9), (9.5, 9.25), (12, 12), (11.5, 12.5), (10, 11)], [20, 30, 40, 50, 45])
    dentro_4 = [{**a, **dict.fromkeys("NESO", (30, 8)[i % 2])} if i < 5 else a for i, a in enumerate(dentro)]
    tangentes = dentro_y_anillo([(7, 9), (10, 9), (7.5, 9), (7, 12), (14, 9), (10, 13)], [20, 30, 40, 50, 35, 45],
                                {0: {"Radio": 20}, 1: {"Radio": 10}, 2: {"Radio": 15}, 3: {"Radio": 10},
                                 4: {"Radio": 30}, 5: {"Radio": 30}})
    vacia_s = cambiar(azares("columna_vacia"), "S", dict.fromkeys(range(9)))
    return [
        caso("datos_copas_grandes", grandes, tipo="RM"),
        caso("datos_copas_grandes_circulos", de_4, opciones=CIRCULOS),
        caso("datos_copas_grandes_elipses", de_4),
        caso("datos_radios_cero_elipses", azares("ceros_e", otros=ceros_4)),
        caso("datos_radios_cero_circulos", azares("ceros_c", otros=ceros_4), opciones=CIRCULOS),
        caso("datos_radios_cero", azares("ceros_rm", otros=ceros_rm), tipo="RM"),
        caso("datos_copa_vacia_elipses", azares("vacias_e", otros=vacias_4)),
        caso("datos_copa_vacia_2d", azares("vacias_dos", otros=vacias_2d), tipo="2D", codigo=False),
        caso("datos_copa_vacia_circulos", azares("vacias_c", otros=vacias_4), opciones=CIRCULOS),
        caso("datos_copa_vacia_rm", azares("vacias_rm", otros=vacias_rm), tipo="RM", copa_en="m"),
        caso("datos_columna_de_copa_vacia", vacia_s),
        caso("datos_columna_de_copa_vacia_circulos", vacia_s, opciones=CIRCULOS),
        caso("datos_columna_contada_vacia", cambiar(azares("columna_norte"), "N", dict.fromkeys(range(9))), ["N"],
             codigo=False),
        caso("datos_copa_vacia_junto_al_borde", al_borde, tipo="RM"),
        caso("datos_copa_vacia_otro_orden", en_orden(vacias, [7, 2, 11, 0, 14, 5, 9, 1, 10, 3, 13, 8, 12, 4, 6])),
        caso("datos_lente_que_falla", con_copa(pares, Radio=20), tipo="RM"),
        caso("datos_lente_que_falla_la_primera", con_copa(ultimo, Radio=20), tipo="RM"),
        caso("datos_dentro_de_otra", con_copa(dentro_4, Radio=10), opciones=CIRCULOS),
        caso("datos_dentro_de_otra_elipses", dentro_4),
        caso("datos_iguales_en_un_lugar_elipses", con_copa(pares, N=20, E=18, S=15, O=21)),
        caso("datos_copas_tangentes", tangentes, tipo="RM"),
        caso("datos_fcc_de_32_bits", azares("fcc785"), tipo="RM"),
        caso("datos_copa_con_palabra", azares("palabra", otros={4: {"E": "seca"}})),
        caso("datos_copa_con_palabra_sin_sitio", azares("palabra") + [arbol(30, None, None, 20, E="seca")]),
        caso("datos_copa_sin_sitio", azares("sin_sitio") + [arbol(30, None, None, 20)]),
        caso("datos_copa_texto_numero", azares("texto_numero", otros={2: {"N": "12,5", "E": " 20 "}})),
        caso("datos_copa_con_blancos", azares("blancos"), ["AB"], nombres={"E": "Radio este"}),
    ]


def de_tamanos():
    vacios = {0: {"DAP": None}, 3: {"DAP": None}, 5: {"DAP": 0}, 10: {"DAP": None}}
    nulos = [{**a, "DAP": None if a["Codigo"] == "QI" else a["DAP"]} for a in azares("suma_nula")]
    palabra = cambiar(azares("tamano_palabra"), "DAP", {2: "tocón"})
    return [
        caso("datos_tamano_vacio_elipses", azares("vacios_e", otros=vacios), ["N", "AB"]),
        caso("datos_tamano_vacio_circulos", azares("vacios_c", otros=vacios), ["N", "AB"], opciones=CIRCULOS),
        caso("datos_suma_nula", nulos, ["N", "AB"]),
        caso("datos_sin_tamanos", con_copa(azares("sin_tamanos"), DAP=None), codigo=False),
        caso("datos_tamano_palabra", palabra),
        caso("datos_tamano_palabra_sin_codigo", cambiar(palabra, "Codigo", {2: None})),
        caso("datos_tamano_palabra_nocod", palabra, codigo=False),
        caso("datos_tamanos_cero", con_copa(azares("tamanos_cero"), DAP=0), codigo=False),
    ]


def de_codigos():
    base = azares("codigos")
    sin_vertice = [{**a, "Codigo": "ZZ" if i in (1, 4, 6) else "AA"} for i, a in enumerate(base)]
    negativos = [{**a, "Codigo": "B" if i == 2 else "A"} for i, a in enumerate(base)]
    cuarenta = [{**a, "Codigo": f"C{(i * 7) % 40:02d}"} for i, a in enumerate(azares("cuarenta", 36))]
    return [
        caso("datos_un_codigo", con_codigos(base, ["Pinus"])),
        caso("datos_codigo_sin_vertice", sin_vertice),
        caso("datos_pies_negativos", negativos, tipo="RM"),
        caso("datos_cuarenta_codigos", cuarenta, tipo="2D"),
        caso("datos_codigos_numero", con_codigos(base, [3, 21, "7", -2.0])),
        caso("datos_codigos_mixtos", con_codigos(base, ["a", 10, None, "Ñ", "A", "10"])),
        caso("datos_codigo_con_coma", con_codigos(base, ["PS", 12.5])),
        caso("datos_codigo_con_comilla", con_codigos(base, ["PS", "L'Alt"])),
        caso("datos_codigo_con_punto_de_grupo", con_codigos(base, ["PS", "1.000"])),
        caso("datos_codigo_como_la_cabecera", con_codigos(base, ["Especie", "PS"])),
        caso("datos_codigos_vacios", con_codigos(base, [None]), ["AB"]),
        caso("datos_cabecera_de_codigo_con_blancos", base, ["AB"], nombres={"Codigo": "Especie forestal"}),
        caso("datos_codigo_sin_sitio", base + [arbol(30, None, None, 20, "ZA")]),
    ]


def de_filas():
    base = azares("orden")
    orden = [7, 2, 11, 0, 14, 5, 9, 1, 10, 3, 13, 8, 12, 4, 6]
    sueltas = [arbol(None, None, None, None, None, Nota="sin medir"), {}]
    con_huecos = base[:2] + [{}, {}] + base[2:6] + sueltas + base[6:] + [{}]
    return [
        caso("datos_otro_orden_elipses", en_orden(base, orden), tipo="2D"),
        caso("datos_otro_orden_circulos", en_orden(base, orden), opciones=CIRCULOS),
        caso("datos_indice_repetido", cambiar(base, "Indice", dict(enumerate([3, 2, 3, 1, 2, 3, 1, 3, 1]))), tipo="RM"),
        caso("datos_filas_vacias_elipses", con_huecos, ["N", "AB"]),
        caso("datos_filas_vacias_circulos", con_huecos, opciones=CIRCULOS),
        caso("datos_titulo", base, formato={"titulo": " Parcela nº 12, ladera norte "}),
        caso("datos_sin_titulo", base, tipo="RM", formato={"titulo": ""}),
    ]


def casos_de_datos():
    return de_tipos() + de_contornos() + de_copas() + de_tamanos() + de_codigos() + de_filas()
