#!/usr/bin/python3
"""Makes the workbooks of tests/datos/libros that other programs write: Gnumeric's ssconvert (Debian: gnumeric) and
Spreadsheet::WriteExcel (libspreadsheet-writeexcel-perl, in libro_de_perl.pl). Run it after a change; the bytes are the
same each time with the same versions of both (1.12.55 and 2.40)."""

import subprocess
import tempfile
from pathlib import Path
from xml.sax.saxutils import escape

AQUI = Path(__file__).parent
CARPETA = AQUI / "libros"

# What Gnumeric calls the kinds of values.
LOGICO, NUMERO, ERROR, TEXTO = 20, 40, 50, 60

# A single one, since several come out in any order.
FORMATO = "dd/mm/yyyy hh:mm"


def celda(fila, columna, clase, valor, formato=None):
    con_formato = f' ValueFormat="{formato}"' if formato else ""
    return f'<gnm:Cell Row="{fila}" Col="{columna}" ValueType="{clase}"{con_formato}>{escape(valor)}</gnm:Cell>'


def formula(fila, columna, texto, de_matriz=False):
    matriz = ' Rows="1" Cols="1"' if de_matriz else ""
    return f'<gnm:Cell Row="{fila}" Col="{columna}"{matriz}>{escape(texto)}</gnm:Cell>'


def hoja(nombre, celdas, estilos="", oculta=False):
    visible = "GNM_SHEET_VISIBILITY_" + ("HIDDEN" if oculta else "VISIBLE")
    return (f'<gnm:Sheet Visibility="{visible}"><gnm:Name>{escape(nombre)}</gnm:Name>'
            f'<gnm:Styles>{estilos}</gnm:Styles><gnm:Cells>{"".join(celdas)}</gnm:Cells></gnm:Sheet>')


def parcela():
    cabecera = ["Árbol €", "X", "Día", "Vivo", "Doble", "Grito", "Mayor", "Error", "Vacío", "Mezcla", "Largo"]
    celdas = [celda(0, c, TEXTO, titulo) for c, titulo in enumerate(cabecera)]
    filas = [
        (1, "encina", "0.5", "43831", "TRUE", "=1/0", (NUMERO, "5"), "L" * 400),
        (2, "piñón", "-1.25", "43832.5", "FALSE", "=NA()", (TEXTO, "cinco"), "k"),
        (4, "chopo", "20.25", "36526", "TRUE", "=-0.5", (LOGICO, "FALSE"), "k"),
    ]
    for f, arbol, x, dia, vivo, error, mezcla, largo in filas:
        celdas += [celda(f, 0, TEXTO, arbol), celda(f, 1, NUMERO, x), celda(f, 2, NUMERO, dia, FORMATO),
                   celda(f, 3, LOGICO, vivo),
                   formula(f, 4, f"=B{f + 1}*2"), formula(f, 5, f'=A{f + 1}&"!"', de_matriz=f == 2),
                   formula(f, 6, f"=B{f + 1}>0"), formula(f, 7, error), formula(f, 8, '=""'),
                   celda(f, 9, *mezcla), celda(f, 10, TEXTO, largo)]
    celdas.append(celda(5, 9, ERROR, "#REF!"))
    return celdas


def libro_de_gnumeric():
    hojas = [("Parcela d'aquí", hoja("Parcela d'aquí", parcela())),
             ("Vacía", hoja("Vacía", [])),
             ("Oculta", hoja("Oculta", [celda(2, 1, TEXTO, "Secreto"), celda(3, 1, TEXTO, "sí")], oculta=True))]
    indice = "".join(f'<gnm:SheetName>{escape(nombre)}</gnm:SheetName>' for nombre, _ in hojas)
    return ('<?xml version="1.0" encoding="UTF-8"?>'
            '<gnm:Workbook xmlns:gnm="http://www.gnumeric.org/v10.dtd">'
            # Without dates of its own the workbook would get those of today.
            '<office:document-meta xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"'
            ' xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0"'
            ' office:version="1.2"><office:meta><dc:date>2004-02-29T12:00:00Z</dc:date>'
            '<meta:creation-date>2004-02-29T12:00:00Z</meta:creation-date></office:meta></office:document-meta>'
            f'<gnm:SheetNameIndex>{indice}</gnm:SheetNameIndex>'
            "<gnm:Names><gnm:Name><gnm:name>Zona</gnm:name>"
            r"<gnm:value>'Parcela d\'aquí'!$A$1:$B$3</gnm:value><gnm:position>A1</gnm:position></gnm:Name></gnm:Names>"
            f'<gnm:Sheets>{"".join(texto for _, texto in hojas)}</gnm:Sheets></gnm:Workbook>')


def de_gnumeric():
    with tempfile.TemporaryDirectory() as carpeta:
        origen = Path(carpeta) / "libro.gnumeric"
        origen.write_text(libro_de_gnumeric(), encoding="utf-8")
        for version, nombre in [("biff7", "gnumeric_95"), ("biff8", "gnumeric_97"), ("dsf", "gnumeric_95_y_97")]:
            subprocess.run(["ssconvert", "-T", f"Gnumeric_Excel:excel_{version}", origen, CARPETA / f"{nombre}.xls"],
                           check=True, stderr=subprocess.DEVNULL)


def de_gnumeric_con_otra_pagina():
    """From a workbook for Excel 97 Gnumeric keeps the code page, UTF-16, and writes plain texts in bytes all the same."""
    subprocess.run(["ssconvert", "-T", "Gnumeric_Excel:excel_biff7", CARPETA / "gnumeric_97.xls",
                    CARPETA / "gnumeric_95_de_97.xls"], check=True, stderr=subprocess.DEVNULL)


if __name__ == "__main__":
    CARPETA.mkdir(exist_ok=True)
    de_gnumeric()
    de_gnumeric_con_otra_pagina()
    subprocess.run(["perl", AQUI / "libro_de_perl.pl", CARPETA / "perl.xls"], check=True)
