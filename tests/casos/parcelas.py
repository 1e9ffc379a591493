"""What a case is made of: the plot, its columns and units, and the ways to make up trees."""
import random
from dataclasses import dataclass, field

import literal

TODAS = literal.ORDEN_DE_CALCULO
SIN_DOMINANTES = [indice for indice in TODAS if indice not in ("Ddom", "Bdom")]
COPA = {"4R": ["N", "E", "S", "O"], "2D": ["NS", "EO"], "RM": ["Radio"]}
NOMBRES = {"Indice": "Arbol", "N": "RN", "E": "RE", "S": "RS", "O": "RO", "NS": "DNS", "EO": "DEO",
           "Codigo": "Especie", "DAP": "Tam"}
UNIDADES = {"cm": "OptCMDIA", "dm": "OptDMDIA", "m": "OptMDIA"}
COPA_EN = {"cm": ("Optcm", 100), "dm": ("Optdecim", 10), "m": ("Optmetro", 1)}


@dataclass
class Caso:
    """A tree is a dictionary from role, or from the header of another column, to value; {} is a blank row."""

    nombre: str
    arboles: list
    indices: list = field(default_factory=lambda: TODAS)
    tipo: str = "4R"
    tamano: str = "CAP cm"
    copa_en: str = "dm"
    codigo: bool = True
    por_numero: bool = False  # the job gives grid columns, not headers
    nombres: dict = field(default_factory=dict)  # headers other than the usual ones
    columnas: list = None  # order of the columns, where it is not the usual one
    sin_dap: bool = False  # no key for it; "cero": the column of the row numbers
    hoja: str = "Parcela1"
    otra_hoja: bool = False  # another sheet stands before the plot
    primera_fila: int = 0
    opciones: dict = field(default_factory=dict)  # other controls of the job, as they stand in it
    datos: bool = False  # the job asks for the plot data too
    formato: dict = None  # the format of the map, which the job writes then; {} asks for the map as it is


# ------------------------------------------------------------------------------------------------------ trees

def arbol(indice, x, y, dap, codigo="PS", **otros):
    return {"Indice": indice, "X": x, "Y": y, "DAP": dap, "Codigo": codigo, **otros}


def bosque(nombre, n, ancho, alto, tamanos=(20.0, 95.0), origen=(0, 0), decimales=1):
    """n trees at random, codes in turn."""
    azar = random.Random(nombre)
    arboles = []
    for i in range(1, n + 1):
        x, y = round(azar.uniform(0, ancho) + origen[0], 2), round(azar.uniform(0, alto) + origen[1], 2)
        arboles.append(arbol(i, x, y, round(azar.uniform(*tamanos), decimales), ("PS", "QI", "FS")[i % 3]))
    return arboles


def en_marco(tamanos, ancho=20, alto=20, **otros):
    """The first four trees at the corners of a rectangle, the others inside, never on the boundary."""
    azar = random.Random(repr(tamanos))
    esquinas = [(0, 0), (0, alto), (ancho, alto), (ancho, 0)]
    arboles = []
    for i, tamano in enumerate(tamanos):
        dentro = round(azar.uniform(1, ancho - 1), 2), round(azar.uniform(1, alto - 1), 2)
        arboles.append(arbol(i + 1, *(esquinas[i] if i < 4 else dentro), tamano, **otros))
    return arboles


def cambiar(arboles, campo, cambios):
    """The same trees with other values in one field: {place in the list: value}."""
    return [{**a, campo: cambios[i]} if i in cambios else a for i, a in enumerate(arboles)]


def en_orden(arboles, orden):
    return [arboles[i] for i in orden]


def en_lugares(lugares, tamanos=(50, 60, 70, 80, 41, 30, 45, 55, 65, 75)):
    return [arbol(i + 1, x, y, tamano) for i, ((x, y), tamano) in enumerate(zip(lugares, tamanos))]
