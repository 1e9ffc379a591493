#!/usr/bin/python3
"""Makes parcela.xls, a made-up plot of sixty trees in 40 x 40 m (needs python3-xlwt).

Pines stand over younger oaks. No two trees come closer than their size asks for, the crown grows with the stem,
and a crown radius shortens towards a near neighbour. The seed fixes the plot: running it again gives the same
sheet, which is committed.
"""

import math
import random
from pathlib import Path

import xlwt

LADO = 40.0  # m
ARBOLES = 60

# Species: code, share of the stems, mean and spread of the girth (cm), crown radius (m) = a + b * girth.
ESPECIES = [
    ("Ps", 0.45, 92.0, 22.0, 0.50, 0.017),  # Pinus sylvestris
    ("Pp", 0.25, 104.0, 25.0, 0.45, 0.016),  # Pinus pinaster
    ("Qp", 0.30, 55.0, 16.0, 0.60, 0.027),  # Quercus pyrenaica
]
RUMBOS = [(0, 1), (1, 0), (0, -1), (-1, 0)]  # N, E, S, O
OBSERVACIONES = ["Bifurcado a 2 m", "Copa dañada por la nieve", "Inclinado al sur", "Puntisecado", "Con nido"]
CABECERAS = ["Arbol", "X", "Y", "Especie", "CAP", "RN", "RE", "RS", "RO", "Observaciones"]


def nuevo_arbol(azar):
    codigo, _, media, dispersion, a, b = azar.choices(ESPECIES, weights=[parte for _, parte, *_ in ESPECIES])[0]
    cap = round(max(22.0, azar.gauss(media, dispersion)), 1)
    x, y = (round(azar.uniform(0, LADO), 2) for _ in "xy")
    return {"x": x, "y": y, "especie": codigo, "cap": cap, "copa": a + b * cap}


def cabe(nuevo, arboles):
    """Far enough from the others, and no coordinate twice."""
    return all(
        nuevo["x"] != otro["x"]
        and nuevo["y"] != otro["y"]
        and math.dist((nuevo["x"], nuevo["y"]), (otro["x"], otro["y"])) > 0.55 * (nuevo["copa"] + otro["copa"])
        for otro in arboles
    )


def radios(arbol, arboles, azar):
    """The four radii in dm: shorter on the sides where a neighbour presses."""
    medidos = []
    for este, norte in RUMBOS:
        libre = 1.0
        for otro in arboles:
            dx, dy = otro["x"] - arbol["x"], otro["y"] - arbol["y"]
            distancia = math.hypot(dx, dy)
            if otro is arbol or distancia > arbol["copa"] + otro["copa"]:
                continue
            hacia = max(0.0, (dx * este + dy * norte) / distancia)
            libre -= 0.45 * hacia * (1 - distancia / (arbol["copa"] + otro["copa"]))
        metros = arbol["copa"] * max(0.45, libre) * azar.uniform(0.85, 1.15)
        medidos.append(round(10 * metros))
    return medidos


def inventario():
    azar = random.Random(1999)
    arboles = []
    while len(arboles) < ARBOLES:
        nuevo = nuevo_arbol(azar)
        if cabe(nuevo, arboles):
            arboles.append(nuevo)
    arboles.sort(key=lambda arbol: (arbol["x"] // 10, arbol["y"]))  # numbered strip by strip, as one walks
    filas = []
    for numero, arbol in enumerate(arboles, start=1):
        nota = azar.choice(OBSERVACIONES) if azar.random() < 0.12 else None
        medidas = [arbol[campo] for campo in ("x", "y", "especie", "cap")]
        filas.append([numero, *medidas, *radios(arbol, arboles, azar), nota])
    return filas


def main():
    libro = xlwt.Workbook(encoding="utf-8")
    hoja = libro.add_sheet("Parcela1")
    for fila, valores in enumerate([CABECERAS, *inventario()]):
        for columna, valor in enumerate(valores):
            if valor is not None:
                hoja.write(fila, columna, valor)
    libro.save(str(Path(__file__).with_name("parcela.xls")))


if __name__ == "__main__":
    main()
