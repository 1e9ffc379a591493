"""Numbers and texts as the expected answers need them: Spanish notation, run-time faults, 32 bits."""
import math
import re
import struct
from decimal import ROUND_HALF_UP, Decimal

PI = 3.1415927

DESCRIPCIONES = {
    5: "argumento no válido",
    6: "desbordamiento",
    9: "subíndice fuera de rango",
    11: "división por cero",
    13: "no coinciden los tipos",
    94: "uso no válido de Null",
    1004: "argumento fuera del dominio de la función de la hoja de cálculo",
    3021: "no hay ningún registro activo",
    3075: "error de sintaxis en la consulta",
    3265: "elemento no encontrado en la colección",
    3464: "no coinciden los tipos de datos en la consulta",
}


class Fallo(Exception):
    """A run-time fault: it ends the run at once."""

    def __init__(self, numero):
        super().__init__(f"{numero} {DESCRIPCIONES[numero]}")


def dividir(a, b):
    if a is None or b is None:
        raise Fallo(94)
    if b == 0:
        raise Fallo(11)
    return a / b


def raiz(x):
    if x < 0:
        raise Fallo(5)
    return math.sqrt(x)


def potencia(base, exponente):
    if base == 0 and exponente < 0:
        raise Fallo(11)
    if base < 0 and exponente != math.floor(exponente):
        raise Fallo(5)
    try:
        return math.pow(base, exponente)
    except OverflowError:
        raise Fallo(6) from None


def exponencial(x):
    try:
        return math.exp(x)
    except OverflowError:
        raise Fallo(6) from None


def arco_seno(x):
    if not -1 <= x <= 1:
        raise Fallo(1004)
    return math.asin(x)


def arco_coseno(x):
    if not -1 <= x <= 1:
        raise Fallo(1004)
    return math.acos(x)


def simple(x):
    """The nearest number of 32 bits."""
    return struct.unpack("f", struct.pack("f", x))[0]


def entero16(n):
    if not -32768 <= n <= 32767:
        raise Fallo(6)
    return n


def a_numero(texto):
    """Spanish notation: blanks around, a sign, dots anywhere in the whole part, one comma, an exponent."""
    partes = re.fullmatch(r"([+-]?)([\d.]*)(?:,(\d*))?(?:[eE]([+-]?\d+))?", texto.strip(" "), re.ASCII)
    if not partes:
        raise Fallo(13)
    signo, entera, decimales, exponente = partes.groups(default="")
    entera = entera.replace(".", "")
    if not entera + decimales:
        raise Fallo(13)
    return float(f"{signo}{entera or '0'}.{decimales or '0'}e{exponente or '0'}")


def es_numerico(texto):
    try:
        a_numero(texto)
    except Fallo:
        return False
    return True


def val(texto):
    """The number that the text begins with, with a decimal point; 0 where there is none."""
    numero = re.match(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", texto.replace(" ", ""), re.ASCII)
    return float(numero.group()) if numero else 0.0


def quince_digitos(x):
    return Decimal(f"{x:.14e}")


def a_texto(valor):
    """The text of a table value in the grid."""
    if valor is None or isinstance(valor, str):
        return valor or ""
    if valor == 0:
        return "0"
    numero = quince_digitos(valor).normalize()
    orden = numero.adjusted()
    if -5 < orden < 15:
        return format(numero, "f").replace(".", ",")
    return format(numero.scaleb(-orden), "f").replace(".", ",") + f"E{orden:+03d}"


def formato(x, decimales=2):
    """The number format "##0.00" or "##0.0000": halves go away from zero; what is negative and shows as 0 keeps
    its sign."""
    paso = Decimal(1).scaleb(-decimales)
    if x == 0:
        return format(Decimal(0).quantize(paso), "f").replace(".", ",")
    return format(quince_digitos(x).quantize(paso, ROUND_HALF_UP), "f").replace(".", ",")


def medio(texto, desde, largo):
    """Part of a text from a place, which counts from 1."""
    if desde < 1 or largo < 0:
        raise Fallo(5)
    return texto[desde - 1:desde - 1 + largo]
