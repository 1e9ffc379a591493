#!/usr/bin/python3
"""Makes the plots of this folder that are ours, their jobs and, with literal.py, their expected answers.

    hacer_casos.py [CARPETA]

Every plot is drawn from a seeded generator, so the same files come out each time. The plots that came with the
project are not touched. Needs python 3.11, xlrd and xlwt.
"""
import random
import sys
import tomllib
from pathlib import Path

import xlwt

sys.dont_write_bytecode = True
import datos
import literal
import mapa
from casos_de_datos import casos_de_datos
from casos_de_familias import casos_de_familias
from parcelas import (COPA, COPA_EN, NOMBRES, SIN_DOMINANTES, UNIDADES, Caso, arbol, bosque, cambiar, en_lugares,
                      en_marco, en_orden)

# ------------------------------------------------------------------------------------------------------ cases

def de_tipos_y_unidades():
    return [
        Caso("4r_cap_cm", bosque("4r_cap_cm", 14, 25, 25)),
        Caso("2d_cap_dm_nocod", bosque("2d_cap_dm", 12, 25, 18, (2.0, 9.5), decimales=2), tipo="2D",
             tamano="CAP dm", codigo=False, copa_en="m", por_numero=True),
        Caso("rm_cap_m", bosque("rm_cap_m", 13, 18, 25, (0.2, 0.95), decimales=3), tipo="RM", tamano="CAP m"),
        Caso("4r_dap_cm_nocod", bosque("4r_dap_cm", 12, 25, 25), tamano="DAP cm", codigo=False, copa_en="cm"),
        Caso("2d_dap_dm", bosque("2d_dap_dm", 15, 30, 20, (0.8, 4.5), decimales=2), tipo="2D",
             tamano="DAP dm"),
        Caso("rm_dap_m_nocod", bosque("rm_dap_m", 12, 22, 22, (0.08, 0.45), decimales=3), tipo="RM",
             tamano="DAP m", codigo=False, por_numero=True),
    ]


def de_codigos_e_indices():
    numeros = [{**a, "Codigo": (3, 1, 2)[i % 3]} for i, a in enumerate(bosque("codigos_numero", 12, 20, 20))]
    izquierda = [(0, 4), (0, 9), (0, 1), (0, 14), (0, 7), (0, 11), (12, 2), (15, 8), (13, 13)]
    mixtos = [arbol(5, x, y, 40 + 5 * i, c) for i, ((x, y), c) in
              enumerate(zip(izquierda, ["a", 10, None, "Ñ", 9, "A", "a", "10", 9]))]
    desorden = en_orden(bosque("indice_desordenado", 12, 20, 20), [7, 2, 11, 0, 5, 9, 1, 10, 3, 8, 4, 6])
    repetidos = [3, 2, 3, 1, 2, 3, 1, 3, 1, 2]
    textos = ["A10", "A2", "a1", 10, "9", "Ñ1", "Z", None, "B-7", 9.5, "12,25", "árbol"]
    return [
        Caso("codigos_numero", numeros),
        Caso("codigos_mixtos", mixtos, tipo="RM"),
        Caso("codigos_escasos", cambiar(bosque("codigos_escasos", 10, 20, 20), "Codigo",
                                        {i: None for i in range(10) if i != 4})),
        Caso("copa_vacia_nocod", cambiar(en_marco([50, 60, 70, 80, 30, 35, 40]), "N", {4: None, 6: None}),
             codigo=False),
        Caso("indice_desordenado", desorden, codigo=False),
        Caso("indice_repetido", cambiar(bosque("indice_repetido", 10, 20, 20), "Indice",
                                        dict(enumerate(repetidos)))),
        Caso("indice_texto", cambiar(bosque("indice_texto", 12, 20, 20), "Indice", dict(enumerate(textos))),
             tipo="2D"),
        Caso("indice_no_primero", [{**a, "Rodal": ("Sur", "Norte")[i % 2]} for i, a in enumerate(desorden)],
             columnas=["Rodal", "X", "Y", "Radio", "DAP", "Codigo", "Indice", "Nota"], tipo="RM"),
    ]


def de_tamanos():
    empates = [90, 80, 70, 70, 60, 70, 55, 70, 30]
    de_mas = [arbol(90 + i, None, None, tamano) for i, tamano in enumerate((35, 75, 30))]
    tercios = [100 / 3, 200 / 3, 50 / 3, 400 / 7, 100 / 7, 200 / 3, 1000 / 9]
    diminutos = [0.00005, 0.000025, 0.9, 0.0001, 0.00015, 0.000000125]
    numeros = ["12,5", 30, "95,25", 40, "30", 22.5, " 61,75 "]
    textos = [50, 60, 70, 80, "seco", 45, "tocón", 52]
    vacios = [50, None, 70, 0, 45, None, 0, 62.5, 38, None]
    return [
        Caso("empates_dominantes", en_marco(empates, 15, 20)),
        Caso("dominantes_a_par", en_marco([40, 50, 60, 70, 80, 90], 10, 25)),
        Caso("dominantes_sin_sitio", en_marco([40, 50, 60, 70, 45, 55], 40, 40) + de_mas),
        Caso("tamanos_vacios_y_ceros", en_marco(vacios)),
        Caso("tamanos_mitades", en_marco([100, 0.5, 1.5, 12.5, 37.5, 62.5, 2.5], 25, 10), codigo=False),
        Caso("tamanos_tercios", cambiar(en_marco(tercios), "X", {4: 10 / 3, 5: 20 / 3})),
        Caso("tamanos_diminutos", en_marco(diminutos), tamano="CAP m"),
        Caso("tamano_texto_numero", cambiar(en_marco(numeros), "X", {4: "10,5", 6: "3,25"})),
        Caso("tamano_texto", en_marco(textos), ["N", "ABj"]),
        Caso("tamano_texto_media", en_marco(textos), ["N", "ABj", "Dmed"]),
        Caso("tamano_texto_dominante", en_marco(textos), ["N", "ABj", "Ddom"]),
        Caso("tamano_texto_en_contorno", en_marco([50, 60, "seco", 80, 45, 52]), ["N"]),
        Caso("tamanos_cero", en_marco([0] * 6), ["N", "AB", "ABj"]),
        Caso("tamanos_cero_todas", en_marco([0] * 6)),
        Caso("tamanos_cero_maximo", en_marco([0] * 6), ["N", "Dmax"]),
        Caso("tamanos_cero_media", en_marco([0] * 6), ["N", "Dmed"]),
        Caso("tamanos_cero_dominante", en_marco([0] * 6), ["N", "Ddom"]),
        Caso("sin_tamanos", en_marco([None] * 6), ["N", "ABj"]),
        Caso("sin_tamanos_ab", en_marco([None] * 6), ["N", "AB"]),
    ]


def de_filas():
    base = bosque("filas_vacias", 9, 20, 20)
    sueltas = [arbol(None, None, None, None, None, Nota="sin medir"), {}]
    sin_xy = [arbol(20, None, None, 120), arbol(21, None, None, 33.3, None), arbol(None, None, None, 15)]
    return [
        Caso("filas_vacias", base[:2] + [{}, {}] + base[2:6] + sueltas + base[6:] + [{}, {}, {}]),
        Caso("filas_sin_coordenadas", sin_xy[:1] + base[:5] + sin_xy[1:] + base[5:]),
        Caso("fila_sin_y", base[:4] + [arbol(20, 3, None, 40)] + base[4:], ["N"]),
        Caso("copa_vacia_en_contorno", cambiar(en_marco([50, 60, 70, 80, 30]), "S", {2: None}), ["N"]),
        Caso("cabecera_en_fila_3", base, primera_fila=2),
        Caso("segunda_hoja", base, hoja="Parcela2", otra_hoja=True),
    ]


def de_cabeceras():
    base = bosque("cabeceras", 9, 20, 20)
    repetida = [{**a, "Medida": a["DAP"] * 2} for a in base]
    return [
        Caso("cabecera_con_blancos", base, nombres={"DAP": "CAP medida (cm)"}),
        Caso("cabecera_con_punto", base, nombres={"DAP": "Circ. [cm]"}, por_numero=True),
        Caso("cabecera_con_acento", base, nombres={"DAP": "Diámetro", "Codigo": "Código"}, tamano="DAP cm"),
        Caso("cabecera_repetida", repetida, nombres={"DAP": "Medida", "Codigo": "X"}, por_numero=True,
             tipo="RM", columnas=["Indice", "X", "Y", "Radio", "Medida", "Codigo", "DAP", "Nota"]),
        Caso("cabecera_sin_nombre", base, nombres={"DAP": None, "Codigo": None}, por_numero=True),
        Caso("codigo_con_blancos", base, nombres={"Codigo": "Especie forestal"}),
        Caso("codigo_con_blancos_sin_n", base, ["AB", "ABj", "Dmed", "Bdom"],
             nombres={"Codigo": "Especie forestal"}),
        Caso("codigo_empieza_en_cifra", base, ["APBmax"], nombres={"Codigo": "2especie"}),
        Caso("copa_con_blancos_nocod", base, ["N"], nombres={"N": "Radio norte"}, codigo=False),
    ]


def de_contorno():
    cuadrado = [(0, 0), (0, 12), (12, 12), (12, 0), (5, 7)]
    rejilla = [(6 * i, 6 * j) for i in range(3) for j in range(3)]
    hexagono = [(0, 8), (5, 14), (12, 15), (18, 9), (13, 2), (6, 1), (9, 8)]
    dobles = hexagono + [(9, 8), (8, 6)]
    cinco = [50, 60, 70, 80, 45]
    return [
        Caso("un_arbol", en_lugares([(3, 4)]), ["N"]),
        Caso("dos_arboles", en_lugares([(3, 4), (8, 9)]), ["N"]),
        Caso("alineados", en_lugares([(0, 0), (3, 4), (6, 8)]), ["N"]),
        Caso("alineados_raiz", en_lugares([(0, 0), (0.7, 2.1), (2.1, 6.3)]), ["N"]),
        Caso("cuadrado_desde_abajo", en_lugares(cuadrado)),
        Caso("cuadrado_desde_arriba", en_lugares(en_orden(cuadrado, [1, 2, 3, 0, 4]))),
        Caso("cuadrado_desde_derecha", en_lugares(en_orden(cuadrado, [2, 3, 1, 0, 4])), codigo=False),
        Caso("rejilla", en_lugares(rejilla)),
        Caso("rejilla_desde_el_medio", en_lugares(en_orden(rejilla, [4, 1, 7, 6, 8, 2, 0, 5, 3]))),
        Caso("dobles_dentro", en_lugares(dobles)),
        Caso("doble_primero", en_lugares(hexagono + [hexagono[0]])),
        Caso("doble_arriba", en_lugares(hexagono + [hexagono[2]])),
        Caso("doble_abajo", en_lugares(hexagono + [hexagono[4]])),
        Caso("doble_al_final", en_lugares(hexagono + [hexagono[5]])),
        Caso("utm", bosque("utm", 14, 35, 28, origen=(450000, 4600000))),
        Caso("negativas", bosque("negativas", 10, 30, 30, origen=(-22, -14))),
        Caso("pequena", en_marco(cinco, 6, 7)),
        Caso("pequena_sin_dominantes", en_marco(cinco, 6, 7), SIN_DOMINANTES),
        Caso("pequena_justa", en_marco(cinco, 5, 10), ["Ddom"]),
        Caso("extensa", cambiar(en_marco(cinco, 10000, 10000), "Codigo", dict.fromkeys(range(4))),
             SIN_DOMINANTES),
        Caso("extensa_dominantes", en_marco(cinco, 10000, 10000)),
    ]


def de_casillas():
    base = bosque("casillas", 10, 20, 20)
    return [
        Caso("casillas_ninguna", base, []),
        Caso("casillas_algunas", base, ["ABj", "Dmax", "Ddom", "APDsum", "APBmax"]),
        Caso("sin_columna_de_tamano", base, ["N"], sin_dap=True),
        Caso("sin_columna_de_tamano_ab", base, ["N", "AB"], sin_dap="cero"),
    ]


def de_mapas():
    rubios = {"texto": "Pinus sylvestris", "linea": "#1B7837", "fondo": "#D9F0D3",
              "fuente": {"nombre": "Arial", "tamano": 10, "cursiva": True}}
    con_ceros = cambiar(bosque("mapa_elipses", 9, 40, 25), "S", {2: 0, 5: 0})
    con_ceros = cambiar(con_ceros, "N", {2: 3, 5: 0, 7: None})
    con_ceros = cambiar(cambiar(con_ceros, "E", {2: 2, 5: 0}), "O", {2: 1, 5: 0})
    barajados = en_orden(cambiar(bosque("mapa_codigos", 10, 18, 30), "Codigo",
                                 {0: "Especie", 3: None, 6: 12, 8: "12,5"}), [7, 2, 9, 0, 5, 1, 8, 3, 6, 4])
    sueltas = [arbol(None, None, None, None, None, Nota="sin medir"), arbol(30, None, None, 44)]
    return [
        Caso("mapa_4r_elipses", en_marco([50, 60, 70, 80], 40, 25) + con_ceros[4:] + con_ceros[:3], [],
             formato={"titulo": " Parcela nº 12,\tladera norte ", "color": "#0A141E",
                      "fuente": {"nombre": "Arial", "tamano": 14, "negrita": True},
                      "codigos": {"PS": rubios, "QI": {"texto": "Quercus ilex"}, "FS": {"linea": "#A6761D"}}}),
        Caso("mapa_2d_sin_contorno", bosque("mapa_2d", 8, 20, 20), [], tipo="2D", copa_en="cm",
             opciones={"ChPolExt": 0},
             formato={"codigos": {"FS": {"fondo": "#FFFFFF", "texto": "haya"}}}),
        Caso("mapa_rm_circulos", bosque("mapa_rm", 9, 35, 20), [], tipo="RM", copa_en="m", formato={}),
        Caso("mapa_4r_circulos_utm", bosque("mapa_utm", 9, 25, 45, origen=(450123.45, 4600678.9)), [],
             codigo=False, opciones={"Optcirc": True}, formato={"titulo": ""}),
        Caso("mapa_codigo_ajeno", barajados[:3] + [{}, {}] + barajados[3:6] + sueltas + barajados[6:] + [{}], [],
             opciones={"Optcirc": True},
             formato={"codigos": {"PS": {"fondo": "#F0E442", "texto": "pino"}, "12": {"linea": "#CC79A7"}}}),
    ]


# ------------------------------------------------------------------------------------------------------ files

def columnas_de(caso):
    return caso.columnas or ["Indice", "X", "Y", *COPA[caso.tipo], "Codigo", "DAP", "Nota"]


def cabecera_de(caso):
    return [caso.nombres.get(c, NOMBRES.get(c, c)) for c in columnas_de(caso)]


def filas_de(caso):
    """The trees with a crown at random where the case left it open; a row without index or place has none."""
    azar = random.Random(caso.nombre + " copas")
    por_metro = COPA_EN[caso.copa_en][1]
    for a in caso.arboles:
        copa = {c: round(azar.uniform(0.8, 2.9) * por_metro, 1) for c in COPA[caso.tipo]}
        if a.get("X") is None and a.get("Indice") is None:
            yield a
        else:
            yield {**copa, "Nota": "nota", **a}


def escribir_libro(caso, archivo):
    libro = xlwt.Workbook(encoding="utf-8")
    if caso.otra_hoja:
        notas = libro.add_sheet("Notas")
        for r, fila in enumerate([["X", "Y", "Tam"], [1, 2, 3], ["a", "b", "c"]]):
            for c, valor in enumerate(fila):
                notas.write(r, c, valor)
    hoja = libro.add_sheet(caso.hoja)
    filas = [dict(zip(columnas_de(caso), cabecera_de(caso))), *filas_de(caso)]
    for r, fila in enumerate(filas, start=caso.primera_fila):
        for c, columna in enumerate(columnas_de(caso)):
            if fila.get(columna) is not None:
                hoja.write(r, c, fila[columna])
            elif not fila:
                hoja.write(r, c)  # a blank cell: the row belongs to the used range
    libro.save(str(archivo))


def toml(valor):
    if isinstance(valor, list):
        return "[ " + ", ".join(map(toml, valor)) + " ]"
    if isinstance(valor, dict):
        return "{ " + ", ".join(f"{nombre} = {toml(v)}" for nombre, v in valor.items()) + " }"
    return '"' + valor.replace("\t", "\\t") + '"' if isinstance(valor, str) else str(valor).lower()


def clave(nombre):
    return f'"{nombre}"' if "(" in nombre else nombre


def formato_de(caso):
    if not caso.formato:
        return []
    codigos = caso.formato.get("codigos", {})
    lineas = ["", "[formato]", *(f"{k} = {toml(v)}" for k, v in caso.formato.items() if k != "codigos")]
    for codigo, valores in codigos.items():
        lineas += [f"[formato.codigos.{codigo}]", *(f"{k} = {toml(v)}" for k, v in valores.items())]
    return lineas


def trabajo_de(caso):
    papeles = ["X", "Y", *COPA[caso.tipo], "Indice"] + ["Codigo"] * caso.codigo + ["DAP"] * (not caso.sin_dap)
    columnas, cabecera = columnas_de(caso), cabecera_de(caso)
    tamano, unidad = caso.tamano.split()
    elegidas = (COPA_EN[caso.copa_en][0], "Opt" + caso.tipo, "Opt" + tamano, UNIDADES[unidad])
    opciones = {**dict.fromkeys(elegidas, True), "ChCodigo": int(caso.codigo)}
    opciones |= {"Ch" + indice: 1 for indice in caso.indices} | caso.opciones
    lineas = ['archivo = "parcela.xls"', f'hoja = "{caso.hoja}$"', "", "[columnas]"]
    for papel in papeles:
        c = columnas.index(papel)
        lineas.append(f"{papel} = {toml(c + 1 if caso.por_numero else cabecera[c])}")
    if caso.sin_dap == "cero":
        lineas.append("DAP = 0")
    lineas += ["", "[opciones]", *(f"{clave(nombre)} = {toml(valor)}" for nombre, valor in opciones.items())]
    lineas += [*formato_de(caso), "", "[salida]", 'resultados = "indices.txt"']
    lineas += ['datos = "datos.txt"'] * caso.datos + ['mapa = "mapa.txt"'] * (caso.formato is not None)
    return "\n".join([*lineas, ""])


def hacer(caso, carpeta):
    carpeta.mkdir(parents=True, exist_ok=True)
    for viejo in carpeta.glob("esperado-*.txt"):
        viejo.unlink()
    escribir_libro(caso, carpeta / "parcela.xls")
    trabajo = trabajo_de(caso)
    (carpeta / "trabajo.toml").write_text(trabajo, "utf-8")
    pedidos = [literal] + [datos] * caso.datos
    for nombre, contenido in (programa.responder(str(carpeta / "parcela.xls"), tomllib.loads(trabajo))
                              for programa in pedidos):
        (carpeta / nombre).write_bytes(contenido)
    if caso.formato is not None:
        mapa_esperado = mapa.responder(str(carpeta / "parcela.xls"), tomllib.loads(trabajo))
        (carpeta / "esperado-mapa.txt").write_bytes(mapa_esperado)


def main():
    raiz = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parent)
    familias = (de_tipos_y_unidades, de_codigos_e_indices, de_tamanos, de_filas, de_cabeceras, de_contorno,
                de_casillas, de_mapas, casos_de_familias, casos_de_datos)
    for caso in (caso for familia in familias for caso in familia()):
        hacer(caso, raiz / caso.nombre)


if __name__ == "__main__":
    main()
