#!/usr/bin/python3
"""Makes the workbooks of tests/datos/comprimidos: those of tests/datos/libros as LibreOffice (Debian: libreoffice-calc-nogui)
and Gnumeric's ssconvert (gnumeric) write them in the formats of today. Run it after a change of those. LibreOffice loses truth values
when it reads an .xls, so that workbooks with them come from Gnumeric alone."""

import subprocess
import tempfile
from pathlib import Path

AQUI = Path(__file__).parent
LIBROS = AQUI / "libros"
CARPETA = AQUI / "comprimidos"

DE_LIBREOFFICE = ["textos", "nombres"]
DE_GNUMERIC = {"xlsx": "Gnumeric_Excel:xlsx2", "ods": "Gnumeric_OpenCalc:odf"}
LIBROS_DE_GNUMERIC = ["gnumeric_97", "huecos"]


def main():
    CARPETA.mkdir(exist_ok=True)
    for extension in DE_GNUMERIC:
        with tempfile.TemporaryDirectory() as carpeta:
            libros = [LIBROS / f"{libro}.xls" for libro in DE_LIBREOFFICE]
            subprocess.run(["soffice", "--headless", "--convert-to", extension, "--outdir", carpeta, *libros],
                           check=True, stdout=subprocess.DEVNULL)
            for libro in DE_LIBREOFFICE:
                hecho = Path(carpeta) / f"{libro}.{extension}"
                (CARPETA / f"libreoffice_{libro}.{extension}").write_bytes(hecho.read_bytes())
        for libro in LIBROS_DE_GNUMERIC:
            subprocess.run(["ssconvert", "-T", DE_GNUMERIC[extension], LIBROS / f"{libro}.xls",
                            CARPETA / f"gnumeric_{libro.removeprefix('gnumeric_')}.{extension}"],
                           check=True, stderr=subprocess.DEVNULL)


main()
