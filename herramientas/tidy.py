#!/usr/bin/env python3
"""clang-tidy over the sources of src and tests, or over the ones named. A source that passed once is not read again
until something that clang-tidy sees of it changes: its preprocessed text, its flags, the checks, the tool.

    herramientas/tidy.py [SOURCE ...]
"""
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
TIDY, CLANG = "clang-tidy-14", "clang++-14"
PASADAS = Path(os.environ.get("XDG_CACHE_HOME", Path.home() / ".cache")) / "varo" / "tidy"
SEMANAS_SIN_USO = 4


def salida_de(orden, **opciones):
    return subprocess.run(orden, stdout=subprocess.PIPE, check=True, **opciones).stdout


def comprobaciones(fuente):
    """The .clang-tidy files that hold for a source."""
    carpetas = [c for c in fuente.parents if c.is_relative_to(RAIZ)]
    return b"".join(a.read_bytes() for c in carpetas if (a := c / ".clang-tidy").exists())


def clave(unidad, version):
    """What clang-tidy sees of a source, as a hash that is the same in every checkout."""
    orden = shlex.split(unidad["command"])
    salida = orden.index("-o")
    preproceso = [CLANG, *orden[1:salida], *orden[salida + 2:], "-E", "-C"]
    texto = salida_de(preproceso, cwd=unidad["directory"]).replace(f'"{RAIZ}/'.encode(), b'"')
    opciones = " ".join(orden).replace(str(RAIZ), "").encode()
    partes = (version, opciones, comprobaciones(Path(unidad["file"])), texto)
    return hashlib.sha256(b"\0".join(partes)).hexdigest()


def revisar(unidad, version):
    """Whether a source passes. What clang-tidy finds goes to standard output in one piece."""
    pasada = PASADAS / clave(unidad, version)
    if pasada.exists():
        pasada.touch()
        return True
    orden = [TIDY, "-p", RAIZ / "build" / "tidy", "--quiet", unidad["file"]]
    hecho = subprocess.run(orden, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if hecho.returncode == 0:
        pasada.touch()
        return True
    dicho = re.sub(r"^\d+ warnings? .*generated.*\n|^Suppressed .*\n", "", hecho.stdout, flags=re.MULTILINE)
    print(dicho.strip(), flush=True)
    return False


def olvidar_las_viejas():
    limite = time.time() - SEMANAS_SIN_USO * 7 * 86400
    for pasada in PASADAS.iterdir():
        if pasada.stat().st_mtime < limite:
            pasada.unlink(missing_ok=True)


def unidades(pedidas):
    salida_de(["cmake", "--fresh", "--preset", "tidy"], cwd=RAIZ)
    todas = json.loads((RAIZ / "build" / "tidy" / "compile_commands.json").read_text())
    propias = [u for u in todas if Path(u["file"]).relative_to(RAIZ).parts[0] != "build"]
    nombradas = {str(Path(p).resolve()) for p in pedidas}
    if desconocidas := nombradas - {u["file"] for u in propias}:
        sys.exit(f"tidy.py: no son fuentes del preset tidy: {', '.join(sorted(desconocidas))}")
    elegidas = [u for u in propias if not nombradas or u["file"] in nombradas]
    # The longest first, so that no core is left alone with one at the end.
    return sorted(elegidas, key=lambda u: -Path(u["file"]).stat().st_size)


def principal(pedidas):
    PASADAS.mkdir(parents=True, exist_ok=True)
    olvidar_las_viejas()
    version = salida_de([TIDY, "--version"])
    with ThreadPoolExecutor(os.cpu_count()) as corro:
        resultados = list(corro.map(lambda u: revisar(u, version), unidades(pedidas)))
    print(f"clang-tidy: {len(resultados)} fuentes, {resultados.count(False)} con reparos")
    return 0 if resultados and all(resultados) else 1


if __name__ == "__main__":
    sys.exit(principal(sys.argv[1:]))
