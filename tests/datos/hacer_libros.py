#!/usr/bin/python3
"""Makes the small workbooks of tests/datos/libros with python3-xlwt. Run it in this folder after a change.

What xlwt cannot write (results of formulas, names) is put into its workbooks as records of the format's own
documentation."""

import struct
from pathlib import Path

import xlwt
from xlwt import BIFFRecords

CARPETA = Path(__file__).parent / "libros"


class Registro(BIFFRecords.BiffRecord):
    def __init__(self, tipo, datos):
        self._REC_ID = tipo
        self._rec_data = datos


class Formula:
    """A cell with the formula =0 and a result of our choice, as the sheet program would have kept it."""

    def __init__(self, fila, columna, resultado, estilo=0):
        self.fila, self.columna, self.resultado, self.estilo = fila, columna, resultado, estilo

    def get_biff_data(self):
        valor, texto = self.resultado, b""
        if isinstance(valor, bool):
            bits = struct.pack("<BBBBBBH", 1, 0, valor, 0, 0, 0, 0xFFFF)
        elif isinstance(valor, str):
            bits = struct.pack("<BBBBBBH", 0 if valor else 3, 0, 0, 0, 0, 0, 0xFFFF)
            if valor:
                unidades = valor.encode("utf-16-le")
                texto = Registro(0x0207, struct.pack("<HB", len(unidades) // 2, 1) + unidades).get()
        elif isinstance(valor, bytes):  # the code of an error
            bits = struct.pack("<BBBBBBH", 2, 0, valor[0], 0, 0, 0, 0xFFFF)
        else:
            bits = struct.pack("<d", valor)
        cero = struct.pack("<HBH", 3, 0x1E, 0)
        datos = struct.pack("<HHH", self.fila, self.columna, self.estilo) + bits + struct.pack("<HI", 0, 0) + cero
        return Registro(0x0006, datos).get() + texto


class LibroConNombres(xlwt.Workbook):
    """A workbook with extra records where the links and names stand."""

    def __init__(self, registros):
        super().__init__(encoding="utf-8")
        self.registros = registros

    def _Workbook__all_links_rec(self):
        return b"".join(registro.get() for registro in self.registros)


def estilo(formato):
    return xlwt.easyxf(num_format_str=formato)


def llenar(hoja, filas):
    for f, fila in enumerate(filas):
        for c, valor in enumerate(fila):
            if valor is not None:
                hoja.write(f, c, valor)


def valores():
    libro = xlwt.Workbook(encoding="utf-8")
    hoja = libro.add_sheet("Valores")
    llenar(hoja, [
        ["Árbol", "X", "Y", "Vivo", "Mezcla", "Error"],
        ["Encina", 1, 0.1, True, 5, None],
        ["Piñón €", -2, 12.34, False, "cinco", None],
        ["", 1073741823, 1e-300, None, True, None],
        ["漢字 😀", -536870912, 123456789012.25, True, -0.5, "sano"],
    ])
    for fila, error in enumerate(["#DIV/0!", "#N/A!", "#VALUE!"], 1):
        hoja.row(fila).set_cell_error(5, error)

    hoja = libro.add_sheet("Formulas")
    llenar(hoja, [["Número", "Texto", "Vacío", "Verdad", "Error", "Fecha"]])
    for c, resultado in enumerate([0.30000000000000004, "año €", "", True, b"\x07"]):
        hoja.row(1).insert_cell(c, Formula(1, c, resultado))
    hoja.row(1).insert_cell(5, Formula(1, 5, 43831.0, libro.add_style(estilo("D-MMM-YY"))))
    for c, resultado in enumerate([-7, "x" * 3000, "", False, b"\x2a"]):
        hoja.row(2).insert_cell(c, Formula(2, c, resultado))
    libro.save(str(CARPETA / "valores.xls"))


def fechas(nombre, de_1904):
    libro = xlwt.Workbook(encoding="utf-8")
    libro.dates_1904 = de_1904
    hoja = libro.add_sheet("Fechas")
    llenar(hoja, [["Serie", "Fecha"]])
    for f, serie in enumerate([0, 0.25, 1, 59, 60, 61, 43831.5, 2958465, 2958466, -1], 1):
        hoja.write(f, 0, serie)
        hoja.write(f, 1, serie, estilo("M/D/YY"))

    hoja = libro.add_sheet("Formatos")
    for f, formato in enumerate(["dd/mm/yyyy", "h:mm", "[h]:mm", "[ss]", "[$-40A]d mmmm yyyy", "MMM-YY", "General",
                                 "[Red]0.00", '0 "días"', "0.0\\h", "_d0", "*s0", "0.00%", "#,##0.00 [$€-C0A]",
                                 "@", "[>100]0;[Blue]0.0"], 1):
        hoja.write(f, 0, formato)
        hoja.write(f, 1, 100.5, estilo(formato))
    llenar(hoja, [["Formato", "Valor"]])
    libro.save(str(CARPETA / nombre))


def huecos():
    libro = xlwt.Workbook(encoding="utf-8")
    gris = xlwt.easyxf("pattern: pattern solid, fore_colour gray25")

    hoja = libro.add_sheet("Huecos")
    llenar(hoja, [["Arbol", "X"], [1, 2], [None, None], [None, None], [3, None], [None, 4]])
    for fila in range(6, 20):  # blank cells with a colour, in rows that the sheet's own size includes
        hoja.write(fila, 0, None, gris)
    hoja.write(2, 1, None, gris)
    hoja.write(0, 7, None, gris)

    hoja = libro.add_sheet("Nombres raros")
    llenar(hoja, [
        ["A", None, "a", "x.y[z]!", 12.5, True, "A", "  ", "Año", "F2", "A1", "n" * 70, "n" * 70],
        list(range(1, 15)),
    ])

    hoja = libro.add_sheet("Empieza en C3")
    for fila, valores_fila in enumerate([["Uno", "Dos"], [1, 2]], 2):
        for columna, valor in enumerate(valores_fila, 2):
            hoja.write(fila, columna, valor)

    libro.add_sheet("Vacía")
    oculta = libro.add_sheet("Oculta")
    oculta.visibility = 1
    llenar(oculta, [["Secreto"], ["sí"]])
    llenar(libro.add_sheet("Año 2004 – nº 漢"), [["Solo cabecera", "Ñandú"]])
    libro.save(str(CARPETA / "huecos.xls"))


def texto_largo(i):
    """Lengths and widths of all kinds, so that the borders of the records fall everywhere."""
    letras = "abcdefghij" if i % 3 else "áéíóú€ñçü漢"
    return "".join(letras[(i + k) % 10] for k in range(i * 37 % 401))


def textos():
    libro = xlwt.Workbook(encoding="utf-8")
    hoja = libro.add_sheet("Textos")
    llenar(hoja, [["N", "Texto"]] + [[i, texto_largo(i)] for i in range(1, 121)])
    hoja.write(121, 0, 121)
    hoja.write(121, 1, "a" * 9000)
    hoja.write(122, 0, 122)
    hoja.write(122, 1, "a€" * 4500)
    hoja.write(123, 0, 123)
    negrita = xlwt.easyfont("bold true")
    hoja.write_rich_text(123, 1, (("roble ", negrita), "albar ", ("€", negrita)))
    hoja.write(124, 0, 124)
    hoja.write(124, 1, "detrás")
    libro.save(str(CARPETA / "textos.xls"))


def nombre(texto, formula, de_hoja=0, banderas=0):
    unidades = texto.encode("utf-16-le")
    return Registro(0x0018, struct.pack("<HBBHHHI", banderas, 0, len(unidades) // 2, len(formula), 0, de_hoja, 0)
                    + b"\x01" + unidades + formula)


def zona(referencia, f1, f2, c1, c2):
    return struct.pack("<BHHHHH", 0x3B, referencia, f1, f2, c1, c2)


def nombres():
    libro_externo = "\x01otro.xls".encode("utf-16-le")
    hoja_externa = "Hoja1".encode("utf-16-le")
    externo = (struct.pack("<HHB", 1, len(libro_externo) // 2, 1) + libro_externo
               + struct.pack("<HB", len(hoja_externa) // 2, 1) + hoja_externa)
    referencias = [(0, 0, 0), (0, 1, 1), (0, 0, 1), (1, 0, 0)]
    libro = LibroConNombres([
        Registro(0x01AE, struct.pack("<HBB", 2, 1, 4)),
        Registro(0x01AE, externo),
        Registro(0x0017, struct.pack("<H", len(referencias)) + b"".join(struct.pack("<HHH", *r) for r in referencias)),
        nombre("Zócalo", zona(1, 1, 2, 1, 2)),
        nombre("Arboles", zona(0, 0, 2, 0, 1)),
        nombre("Celda", struct.pack("<BHHH", 0x5A, 1, 2, 2)),
        nombre("Columnas", zona(0, 0, 65535, 0, 2)),
        nombre("Amplia", zona(0, 1, 9, 1, 20)),
        nombre("Fuera", zona(0, 100, 110, 0, 2)),
        nombre("DeUnaHoja", zona(0, 0, 2, 0, 1), de_hoja=1),
        nombre("\x06", zona(0, 0, 2, 0, 1), banderas=0x20),  # Print_Area
        nombre("Constante", struct.pack("<BH", 0x1E, 5)),
        nombre("Relativa", zona(0, 0, 2, 0xC000, 0xC001)),
        nombre("DosHojas", zona(2, 0, 2, 0, 1)),
        nombre("DeOtroLibro", zona(3, 0, 2, 0, 1)),
        nombre("SinReferencia", zona(9, 0, 2, 0, 1)),
        nombre("Suma", zona(0, 0, 2, 0, 1) + zona(0, 3, 4, 0, 1) + b"\x10"),
    ])
    llenar(libro.add_sheet("Parcela"), [["Arbol", "DAP", "Nota"], [1, 10.5, "a"], [2, 20.5, None], [3, 30.5, "c"]])
    llenar(libro.add_sheet("Otra"), [[None, None, None], [None, "P", "Q"], [None, 7, 8]])
    libro.save(str(CARPETA / "nombres.xls"))


if __name__ == "__main__":
    CARPETA.mkdir(exist_ok=True)
    valores()
    fechas("fechas_1900.xls", False)
    fechas("fechas_1904.xls", True)
    huecos()
    textos()
    nombres()
