#!/usr/bin/python3
"""Works out the expected plot data of a job by hand, so to speak: stems, basal area, crowns and cover.

    datos.py PARCELA.xls TRABAJO.toml CARPETA

writes CARPETA/esperado-datos.txt, one caption a line, or CARPETA/esperado-fallo-de-datos.txt, the fault that ends the
run. Like literal.py, whose table, grid, boundary and queries it takes, it shares nothing with the program. copas.py
holds the half of the run in which a statement that fails is passed over.
"""
import re
import sys
import tomllib
from decimal import ROUND_HALF_UP, Decimal
from pathlib import Path

sys.dont_write_bytecode = True
import literal
from copas import FigurasDeCopas
from mapa import Mapa
from numeros import Fallo, dividir, es_numerico, formato

BLANCO = " "  # the design text of the members of the four arrays

# ------------------------------------------------------------------------------------------ stems and basal area


def de_codigo(p, codigo):
    """The records of a code, as the condition of the query tells them."""
    columna = p.columna["Codigo"] - 1
    literal.sin_corchetes(p.campos[columna])
    if es_numerico(codigo):
        if not re.fullmatch(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", codigo, re.ASCII):
            raise Fallo(3075)
        buscado = (1, float(codigo))
    else:
        if "'" in codigo:
            raise Fallo(3075)
        buscado = (2, codigo)
    return [registro for registro in p.registros
            if registro[columna] is not None and literal.comparable(registro[columna]) == buscado]


def pies_de_codigos(p, codigos):
    pies, en_borde = [], 0
    for codigo in codigos:
        cuenta = len(de_codigo(p, codigo))
        for fila in p.filas_de_vertice[:-1]:
            if fila[p.columna["Codigo"]] == codigo:
                en_borde += 1  # it runs on from code to code
        pies.append(dividir(cuenta - en_borde / 2.0, p.superficie) * 10000.0)
    return pies


def areas_basimetricas_de_codigos(p, codigos):
    areas, quitar = [], 0.0
    for codigo in codigos:
        area = literal.suma([registro[p.campo_dap()] for registro in de_codigo(p, codigo)],
                            literal.expresion_de_seccion(p))
        if area is None:
            raise Fallo(94)
        for i, fila in enumerate(p.filas_de_vertice[:-1]):
            if fila[p.columna["Codigo"]] == codigo:
                quitar = quitar + p.poligono[i][2] * (1.0 - p.interior[i] / 360.0)  # on from code to code
        areas.append(dividir(area - quitar, p.superficie) * 10000.0)
    return areas


def en_suma(valores):
    total = 0.0
    for valor in valores:
        total = total + valor
    return total


# ------------------------------------------------------------------------------------------------------ captions


def escrito(x, decimales=1):
    """"###0.0": one digit before the comma at least."""
    return formato(x, decimales)


def sin_negativos(x):
    """"##.0;;0": nothing before the comma where there is no whole part, nothing for what is negative."""
    if x < 0:
        return ""
    if x == 0:
        return "0"
    return re.sub("^0,", ",", formato(x, 1))


def sin_negativos_con_cero(x):
    """"#0.0;;0"."""
    if x < 0:
        return ""
    return "0" if x == 0 else formato(x, 1)


def escrito_simple(x):
    """"0.00" of a number of 32 bits, by its 7 digits."""
    return format(Decimal(f"{x:.6e}").quantize(Decimal("0.01"), ROUND_HALF_UP), "f").replace(".", ",")


def tablas_de_codigos(codigos, pies, areas):
    """Codes and captions of both tables; without codes the design texts stay."""
    if not codigos:
        return [(BLANCO, BLANCO)], [(BLANCO, BLANCO)]
    de_pies = [(codigo, sin_negativos(valor)) for codigo, valor in zip(codigos, pies)]
    de_area = [(codigo, escrito(valor)) for codigo, valor in zip(codigos, areas)]
    return (de_pies + [("Total", sin_negativos(en_suma(pies)))],
            de_area + [("Total", escrito(en_suma(areas)))])


def lineas_de_tabla(nombre, tabla):
    for c, (codigo, valor) in enumerate(tabla):
        yield f"{nombre}Codigo({c})", codigo
        yield f"{nombre}Valor({c})", valor


def datos_de_parcela(archivo, trabajo):
    mapa = Mapa(archivo, trabajo)
    mapa.dibujar()
    p = mapa.p
    p.superficie = literal.area_poligono(p.poligono)
    if p.marcada("ChCodigo"):
        pies = pies_de_codigos(p, mapa.codigos)
        areas = areas_basimetricas_de_codigos(p, mapa.codigos)
        de_pies, de_area = tablas_de_codigos(mapa.codigos, pies, areas)
    else:
        de_pies = [("Total", sin_negativos(literal.npies_ha(p)))]
        de_area = [("Total", sin_negativos_con_cero(literal.ab_ha(p)))]
    v = FigurasDeCopas(p).v
    interior = (v.total - v.fuera) - v.vertices
    return [
        *lineas_de_tabla("LbPiesHa", de_pies), *lineas_de_tabla("LbAbHa", de_area),
        ("LbParcela", trabajo.get("formato", {}).get("titulo", "Parcela " + trabajo["hoja"])),
        ("LbAreaTotal", f"Area: {escrito(p.superficie)} m2"),
        ("LbAreaCopas", f"Area total de copas: {escrito(v.total)} m2"),
        ("LbAreaCopasInterior", f"Area total de copas dentro de parcela: {escrito(interior)} m2"),
        ("LbAreaIntersecCopas", f"Area total de intersección de copas: {escrito(v.interseccion)} m2"),
        ("LbFcc", f"Fcc: {escrito_simple(v.fcc)}"),
    ]


def responder(archivo, trabajo):
    """Name and bytes of the expected file."""
    try:
        lineas = datos_de_parcela(archivo, trabajo)
    except Fallo as fallo:
        return "esperado-fallo-de-datos.txt", f"{fallo}\n".encode()
    return "esperado-datos.txt", "".join(f"{nombre}\t{texto}\n" for nombre, texto in lineas).encode()


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    nombre, contenido = responder(sys.argv[1], tomllib.loads(Path(sys.argv[2]).read_text("utf-8")))
    (Path(sys.argv[3]) / nombre).write_bytes(contenido)
