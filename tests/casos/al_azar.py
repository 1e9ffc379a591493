#!/usr/bin/python3
"""Compares the plot data of plots at random: those of varo-lote with those of datos.py.

    al_azar.py VARO_LOTE [CUANTAS [SEMILLA]]

tells each plot that differs and leaves its folder in al_azar/ of the working directory; the exit status is 1 then.
"""
import random
import shutil
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
import hacer_casos
from parcelas import COPA, COPA_EN, Caso, arbol

CODIGOS = (["PS", "QI", "FS"], ["PS"], [1, 2, 30], ["a", "A", "b", 4, "4"], ["PS", None], [None])
REDONDEOS = {"metro": lambda v: round(v), "medio": lambda v: round(v * 2) / 2, "cm": lambda v: round(v, 2),
             "todo": lambda v: v}


def arbol_al_azar(azar, i, caso, modo):
    """Empty crown cells stand in the first half of the sheet, where few trees are on the boundary."""
    redondear = REDONDEOS[modo["redondeo"]]
    x, y = (redondear(azar.uniform(0, modo[eje])) + modo["origen"] for eje in ("ancho", "alto"))
    tamano = None if azar.random() < modo["sin_tamano"] else round(azar.uniform(5, 90), 1)
    copa = {}
    for c in COPA[caso.tipo]:
        copa[c] = round(azar.uniform(0.2, modo["copa"]) * COPA_EN[caso.copa_en][1], 1)
        if azar.random() < modo["ceros"]:
            copa[c] = 0
        if modo["vacias"] and 2 * i < modo["arboles"] and azar.random() < 0.2:
            copa[c] = None
    return arbol(i, x, y, tamano, azar.choice(modo["codigos"]), **copa)


def caso_al_azar(nombre):
    azar = random.Random(nombre)
    modo = {"redondeo": azar.choice([*REDONDEOS, "cm", "cm"]), "origen": azar.choice([0, 0, 0, 450123]),
            "ancho": azar.choice([6, 12, 20, 30]), "alto": azar.choice([6, 12, 20, 30]),
            "arboles": azar.choice([3, 4, 5, 8, 12, 18, 25]), "sin_tamano": azar.choice([0, 0, 0.15]),
            "copa": azar.choice([1.5, 3, 3, 8]), "ceros": azar.choice([0, 0, 0.15]), "vacias": azar.random() < 0.3,
            "codigos": azar.choice(CODIGOS)}
    caso = Caso(nombre, [], [], tipo=azar.choice([*COPA]), copa_en=azar.choice([*COPA_EN]), datos=True,
                tamano=f"{azar.choice(['CAP', 'DAP'])} {azar.choice(['cm', 'dm', 'm'])}",
                codigo=azar.random() < 0.6, opciones=azar.choice([{}, {"Optcirc": True}]))
    caso.arboles = [arbol_al_azar(azar, i, caso, modo) for i in range(1, modo["arboles"] + 1)]
    if azar.random() < 0.5:  # the boundary last, so that more circles are clipped
        caso.arboles.sort(key=lambda a: max(abs(a["X"] - modo["origen"] - modo["ancho"] / 2),
                                            abs(a["Y"] - modo["origen"] - modo["alto"] / 2)))
        caso.arboles = [{**a, "Indice": i} for i, a in enumerate(caso.arboles, start=1)]
    if azar.random() < 0.2:
        caso.arboles.insert(1, {})
    if azar.random() < 0.2:
        azar.shuffle(caso.arboles)
    return caso


def difiere(programa, carpeta):
    trabajo = carpeta / "trabajo.toml"
    trabajo.write_text(trabajo.read_text("utf-8").replace('resultados = "indices.txt"\n', ""), "utf-8")
    orden = subprocess.run([programa, str(trabajo)], capture_output=True, text=True, check=False)
    escritos, esperados = carpeta / "datos.txt", carpeta / "esperado-datos.txt"
    if esperados.exists():
        return not escritos.exists() or escritos.read_bytes() != esperados.read_bytes()
    fallo = (carpeta / "esperado-fallo-de-datos.txt").read_text("utf-8").split()[0]
    return orden.returncode != 3 or f"Error {fallo}:" not in orden.stderr + orden.stdout or escritos.exists()


def main():
    programa, cuantas, semilla = (sys.argv[1:] + ["200", "1"][len(sys.argv) - 2:])[:3]
    distintas = 0
    for n in range(int(cuantas)):
        carpeta = Path("al_azar") / f"{semilla}_{n}"
        hacer_casos.hacer(caso_al_azar(carpeta.name), carpeta)
        if difiere(programa, carpeta):
            distintas += 1
            print(carpeta)
        else:
            shutil.rmtree(carpeta)
    print(f"{cuantas} parcelas, {distintas} distintas")
    return int(distintas > 0)


if __name__ == "__main__":
    if not 2 <= len(sys.argv) <= 4:
        sys.exit(__doc__)
    sys.exit(main())
