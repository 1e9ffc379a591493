"""The parameters of a job: the sweeps as the fields leave them, the entries of the lists and how they are read back."""
from numeros import Fallo, a_numero, a_texto, dividir, exponencial, formato, medio, potencia, val


def texto_de(valor):
    return valor if isinstance(valor, str) else a_texto(valor)


def sucesion(p, m):
    """First, last and step of a sweep, typed one after another: each field left corrects the others."""
    de_fabrica = "1" if m % 2 == 1 else "0,00"
    campos = {n: de_fabrica for n in (1, 2, 3)}
    if (pedido := p.opciones.get(f"TxtBAF1({m})")) is not None:
        campos[1] = texto_de(pedido)
        if not a_numero(campos[2]) > a_numero(campos[1]):
            campos[2], campos[3] = campos[1], "1"
        else:
            campos[3] = a_texto(a_numero(campos[2]) - a_numero(campos[1]))
    if (pedido := p.opciones.get(f"TxtBAF2({m})")) is not None:
        campos[2] = texto_de(pedido)
        if a_numero(campos[2]) < a_numero(campos[1]):
            campos[2] = campos[1]
        elif a_numero(campos[1]) < a_numero(campos[2]):
            campos[3] = a_texto(a_numero(campos[2]) - a_numero(campos[1]))
        else:
            campos[3] = "1"
    if (pedido := p.opciones.get(f"TxtBAF3({m})")) is not None:
        campos[3] = texto_de(pedido)
        largo = a_numero(campos[2]) - a_numero(campos[1])
        if largo == 0:
            campos[3] = "1"
        elif a_numero(campos[3]) == 0:
            campos[3] = a_texto(largo)
    desde, hasta, paso = (a_numero(campos[n]) for n in (1, 2, 3))
    if paso == 0 and hasta == desde:
        paso = 1.0
    return desde, hasta, paso


def valores(desde, hasta, paso):
    """The values of a sweep: the counter grows by addition, so it can pass the last value by a hair."""
    v = desde
    while v <= hasta if paso >= 0 else v >= hasta:
        yield v
        v = v + paso


def escrito(entrada, letra, decimales):
    return formato(a_numero(texto_de(entrada.get(letra, 0))), decimales)


def parametros(entrada, letras, decimales):
    return "; ".join(f"{letra}: {escrito(entrada, letra, decimales)}" for letra in letras)


def lista_aoi(p):
    return [parametros(entrada, "abcde", 4) for entrada in p.opciones.get("LstAOI", [])]


def lista_dist(p):
    """A hyperbola without denominator is refused, and leaves a blank entry all the same."""
    textos = []
    for entrada in p.opciones.get("LstDist", []):
        nulo = all(a_numero(escrito(entrada, letra, 4)) == 0 for letra in "abd")
        if entrada["tipo"] == "HIP" and nulo:
            textos.append("")
        else:
            textos.append(f"{entrada['tipo']}, " + parametros(entrada, "abcde", 4))
    return textos


def lista_rich(p, x):
    return [parametros(entrada, "Akm" if "m" in entrada else "Akabcde", 2)
            for entrada in p.opciones.get(f"LstRich({x})", [])]


def cuatro_decimales(texto):
    if texto == "":
        raise Fallo(13)
    return a_numero(formato(a_numero(texto), 4))


def lugar(texto, letra):
    return texto.find(letra) + 1


def leer_aoi(texto):
    b, c, d, e = (lugar(texto, letra) for letra in "bcde")
    partes = [medio(texto, 4, b - 6), medio(texto, b + 3, c - b - 5), medio(texto, c + 3, d - c - 5),
              medio(texto, d + 3, e - d - 5), medio(texto, e + 3, len(texto) - e - 2)]
    return [cuatro_decimales(parte) for parte in partes]


def leer_dist(texto):
    a, b, c, d, e = (lugar(texto, letra) for letra in "abcde")
    partes = [medio(texto, a + 3, b - a - 5), medio(texto, b + 3, c - b - 5), medio(texto, c + 3, d - c - 5),
              medio(texto, d + 3, e - d - 5), medio(texto, e + 3, len(texto) - e - 2)]
    return [cuatro_decimales(parte) for parte in partes]


def limite_de_funcion(texto, diametro):
    """Limit distance of a tree of this diameter in metres."""
    if lugar(texto, "e") != 0:
        k, a, b, c, d, e = (lugar(texto, letra) for letra in "kabcde")
        partes = [medio(texto, 4, k - 6), medio(texto, k + 3, a - k - 5), medio(texto, a + 3, b - a - 5),
                  medio(texto, b + 3, c - b - 5), medio(texto, c + 3, d - c - 5), medio(texto, d + 3, e - d - 5),
                  medio(texto, e + 3, len(texto) - e - 2)]
        A, k, a, b, c, d, e = (cuatro_decimales(parte) for parte in partes)
        denominador = a + b * potencia(diametro, c) + d * potencia(diametro, e)
        return A - k * dividir(1, denominador)
    k, m = lugar(texto, "k"), lugar(texto, "m")
    A = a_numero(formato(val(medio(texto, 4, k - 6)), 4))  # read up to the comma: the decimals are lost
    k, m = cuatro_decimales(medio(texto, k + 3, m - k - 5)), cuatro_decimales(
        medio(texto, m + 3, len(texto) - m - 2))
    return A * potencia(1 - exponencial(-k * diametro), dividir(1, 1 - m))
