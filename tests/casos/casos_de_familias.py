"""The cases of the families with parameters: ISC, AOI, IDP, DR and APA.

Most plots are a ring of six trees on the boundary with the others well inside, so that a family has room to give
values; no two of those trees share an X or a Y.
"""
import random

from parcelas import Caso, arbol, bosque, cambiar

ANILLO = [(0, 17), (9, 36.5), (28.5, 41), (40, 22), (33, 3), (12, 1)]
TAMANOS_DEL_ANILLO = [52, 61, 47, 70, 58, 64]
SUJETO = (20, 20)


# ------------------------------------------------------------------------------------------------------ trees

def en_anillo(lugares, tamanos, otros=None, anillo=TAMANOS_DEL_ANILLO, ancho=1):
    """The ring, and inside it a tree on each place; the ring can be made wider, the places stay."""
    todos = [(20 + (x - 20) * ancho, 20 + (y - 20) * ancho) for x, y in ANILLO] + list(lugares)
    arboles = []
    for i, ((x, y), tamano) in enumerate(zip(todos, [*anillo, *tamanos]), start=1):
        arboles.append(arbol(i, x, y, tamano, ("PS", "QI", "FS")[i % 3]))
    for i, cambios in (otros or {}).items():
        arboles[i + 6].update(cambios)
    return arboles


def claro(nombre, n=8, radio=8, tamanos=(15.0, 60.0), ancho=1, por_cm=1):
    """The ring with n trees at random about its middle; sizes are in centimetres times por_cm."""
    azar = random.Random(nombre)
    lugares = [(round(azar.uniform(20 - radio, 20 + radio), 2), round(azar.uniform(20 - radio, 20 + radio), 2))
               for _ in range(n)]
    arboles = en_anillo(lugares, [round(azar.uniform(*tamanos), 1) for _ in range(n)], ancho=ancho)
    return [{**a, "DAP": round(a["DAP"] * por_cm, 3)} for a in arboles]


def en_octavos(nombre, n=8, por_cm=1):
    """As claro, with places that are odd multiples of an eighth of a metre, all different."""
    azar = random.Random(nombre)
    xs, ys = (azar.sample(range(12 * 8 + 1, 28 * 8, 2), n) for _ in range(2))
    arboles = en_anillo([(x / 8, y / 8) for x, y in zip(xs, ys)], [round(azar.uniform(15, 60), 1) for _ in range(n)])
    return [{**a, "DAP": round(a["DAP"] * por_cm, 3)} for a in arboles]


def mover(arboles, dx, dy):
    return [{**a, "X": a["X"] + dx, "Y": a["Y"] + dy} for a in arboles]


def cuadrado(lugares, tamanos, lado=40):
    esquinas = [(0, 0), (0, lado), (lado, lado), (lado, 0)]
    return [arbol(i, x, y, tamano)
            for i, ((x, y), tamano) in enumerate(zip(esquinas + lugares, [50, 60, 55, 65, *tamanos]), start=1)]


# ------------------------------------------------------------------------------------------------------- jobs

def barrido(m, desde, hasta, paso="1"):
    return {f"TxtBAF1({m})": desde, f"TxtBAF2({m})": hasta, f"TxtBAF3({m})": paso}


def funcion(a, b, c, d=0.0, e=0.0, **tipo):
    return {**tipo, "a": float(a), "b": float(b), "c": float(c), "d": float(d), "e": float(e)}


def hip(*coeficientes):
    return funcion(*coeficientes, tipo="HIP")


def exp(*coeficientes):
    return funcion(*coeficientes, tipo="EXP")


def richards(A, k, m):
    return {"A": float(A), "k": float(k), "m": float(m)}


def hiperbola(A, k, *coeficientes):
    return {"A": float(A), "k": float(k), **funcion(*coeficientes)}


def lados(familia, bil, uni):
    return {f"Ch{familia}Bil": bil, f"Ch{familia}Uni": uni}


def central(si, no):
    return {"ChIDPSi": si, "ChIDPNo": no}


def isc(bil=1, uni=0):
    return {"Optcirc": True, **elipses(bil, uni)}


def elipses(bil=1, uni=0):
    """ISC with the crowns as they are when nobody asks for circles."""
    return {"ChSupCopa": 1, **lados("ISC", bil, uni)}


def aoi(lista, bil=1, uni=0, k=("1", "1")):
    return {"ChAOIActivar": 1, **lados("AOI", bil, uni), **barrido(6, *k), **({"LstAOI": lista} if lista else {})}


def regla(x, nombre, *textos, lista=None):
    """Choice of competitors: sweep of its parameter, or the list of functions."""
    m = 2 * x + (1 if nombre == "NumFijo" else 0)
    elegida = {f"Opt{nombre}({x})": True}
    if nombre == "Func":
        return elegida | ({f"LstRich({x})": lista} if lista else {})
    return elegida | barrido(m, *textos)


def idp(nombre, *textos, lista=None, bil=1, uni=0, si=1, no=0):
    return {"ChIDPActivar": 1, **lados("IDP", bil, uni), **central(si, no), **regla(0, nombre, *textos, lista=lista)}


def dr(distancias, nombre, *textos, lista=None, bil=1, uni=0, k=("1", "1")):
    return {"ChDRActivar": 1, **lados("DR", bil, uni), **barrido(4, *k),
            **({"LstDist": distancias} if distancias else {}), **regla(1, nombre, *textos, lista=lista)}


def apa(*k):
    return {"ChAPA": 1, **barrido(8, *k)}


def caso(nombre, arboles, opciones, **otros):
    return Caso(nombre, arboles, otros.pop("indices", []), opciones=opciones, **otros)


HIP, EXP = hip(1, 0.5, 1), exp(0, 0.25, 1)
RICHARDS, HIPERBOLA = richards(14, 6, 0.5), hiperbola(9, 4, 1, 1.5, 1)
AREA = funcion(0.5, 0.05, 1)


# ------------------------------------------------------------------------------------------------------- cases

def de_isc():
    def con_radios(nombre, lugares, radios, tamanos=None, opciones=None, **otros):
        """Mean radii of the inner trees in metres; those of the ring are 1."""
        arboles = en_anillo(lugares, tamanos or [30 + i for i in range(len(lugares))])
        return caso(nombre, [{**a, "Radio": r} for a, r in zip(arboles, [1] * 6 + radios)], opciones or isc(),
                    tipo="RM", copa_en="m", **otros)

    ceros = claro("isc_copas_cero", 6, 3)
    cuadro = cuadrado([(20, 0.7), (20.5, 39.2), (4, 25), (30, 15)], [30, 40, 50, 35])
    return [
        caso("isc_4r_ambas", claro("isc_4r", 10, 4), isc(1, 1), copa_en="cm"),
        caso("isc_2d_uni", claro("isc_2d", 10, 3), isc(0, 1), tipo="2D", codigo=False),
        caso("isc_sin_casillas", claro("isc_sin", 8, 4, por_cm=0.1), isc(0, 0), tamano="DAP dm"),
        con_radios("isc_dentro_de_mayor", [SUJETO, (21, 20.5), (25, 24), (24.5, 23)], [1, 5, 0.8, 1.7],
                   [30, 90, 45, 45], isc(1, 1)),
        con_radios("isc_tangentes", [SUJETO, (22, 20), (19, 24), (14.5, 17)], [3, 1, 1, 2.5]),
        caso("isc_copas_cero", [{**a, "N": 0, "E": 0, "S": 0, "O": 0} if i in (0, 6, 8) else a
                                for i, a in enumerate(ceros)], isc()),
        caso("isc_copas_cero_2d", [{**a, "NS": 0, "EO": 0} if i == 7 else {**a, "NS": 0} if i == 8 else a
                                   for i, a in enumerate(ceros)], isc(1, 1), tipo="2D"),
        con_radios("isc_copas_cero_rm", [SUJETO, (21, 21), (19, 20.5), (20.5, 18)], [2, 0, 1.5, 0]),
        con_radios("isc_tamanos_vacios", [SUJETO, (21, 21), (19, 20.5), (20.5, 18)], [2, 1, 1.5, 2],
                   [30, None, 0, 30], isc(1, 1)),
        caso("isc_radio_de_32_bits", [{**a, "Radio": r} for a, r in
                                      zip(cuadro, [1, 1, 1, 1, 0.7, 0.8, 4, 2])], isc(), tipo="RM", copa_en="m"),
        con_radios("isc_suma_de_32_bits", [SUJETO, (19.5, 20.1), (21.3, 21.7), (19.3, 19.5), (19.5, 17.9)],
                   [1.1, 2.4, 2.9, 2.5, 1.5]),
        con_radios("isc_iguales_en_un_lugar", [SUJETO, (24, 24), (24, 24)], [2, 1.5, 1.5]),
        con_radios("isc_distintas_en_un_lugar", [SUJETO, (24, 24), (24, 24)], [2, 1.5, 1.25]),
        caso("isc_copa_vacia", cambiar(claro("isc_vacia", 5, 4), "S", {8: None}), isc()),
        caso("isc_un_arbol", [arbol(1, 3, 4, 50)], isc()),
        caso("isc_dos_arboles", [arbol(1, 3, 4, 50), arbol(2, 4, 6, 40)], isc(1, 1)),
    ]


def de_isc_de_elipses():
    def con_copas(nombre, lugares, copas, tamanos=None, opciones=None, **otros):
        """Radii N, E, S, W of the inner trees in metres; those of the ring are small."""
        arboles = en_anillo(lugares, tamanos or [30 + i for i in range(len(lugares))])
        for a, radios in zip(arboles, [(1, 1, 1, 1)] * 6 + copas):
            a.update(zip("NESO", radios))
        return caso(nombre, arboles, opciones or elipses(), copa_en="m", **otros)

    redonda = (2, 2, 2, 2)
    cuadro = [{**a, **dict(zip("NESO", radios))} for a, radios in
              zip(cuadrado([(20, 20), (22, 21)], [30, 40]), [(1, 1, 1, 1)] * 4 + [(3, 2, 1, 2), redonda])]
    pegado = [{**a, "X": 1.5} if i == 5 else a for i, a in enumerate(cuadro)]
    return [
        caso("isc_elipses_ambas", claro("isc_elipses", 10, 4), elipses(1, 1), copa_en="dm"),
        caso("isc_elipses_2d_uni", claro("isc_elipses_2d", 10, 3), elipses(0, 1), tipo="2D", codigo=False),
        caso("isc_elipses_sin_casillas", claro("isc_elipses_sin", 8, 4), elipses(0, 0)),
        con_copas("isc_elipses_radios_cero", [SUJETO, (21, 21), (19, 20.5), (20.5, 18), (20, 20.25)],
                  [(0, 2, 1, 1.5), (0, 0, 0, 0), (3, 0, 0, 3), (0, 0, 0, 1.75), redonda], opciones=elipses(1, 1)),
        caso("isc_elipses_2d_cero", [{**a, "NS": 0} if i == 7 else {**a, "NS": 0, "EO": 0} if i == 8 else a
                                     for i, a in enumerate(claro("isc_elipses_2d_cero", 6, 2))], elipses(1, 1),
             tipo="2D"),
        con_copas("isc_elipses_en_el_borde",
                  [(4, 20), (5.5, 24), (24, 36), (33, 20), (36.5, 21), (20, 5.5), (20, 20), (12, 6)],
                  [(1, 1, 1, 3), (2.5, 1, 1, 2.5), (2.25, 3, 1, 1), (1, 3.25, 1, 1), (1, 2, 1, 1), (1, 1, 3, 1),
                   (9, 8, 9.5, 7), (0.5, 6, 0.25, 0.25)], opciones=elipses(1, 1)),
        con_copas("isc_elipses_dentro_de_otra", [SUJETO, (21, 20.5), (20, 24), (24.5, 20)],
                  [(0.5, 0.75, 1, 0.25), (5, 6, 5, 4), (1, 1, 1, 1), (1, 1, 1, 1)], [30, 90, 30, 45], elipses(1, 1)),
        con_copas("isc_elipses_iguales_en_un_lugar", [SUJETO, SUJETO, (20, 23), (23, 20)],
                  [(1.5, 2, 1.25, 1)] * 4, [30, 30, 20, 40], elipses(1, 1)),
        con_copas("isc_elipses_tamanos_vacios", [SUJETO, (21, 21), (19, 20.5), (20.5, 18)],
                  [(2, 1, 1.5, 2), redonda, (1, 2, 1, 2), redonda], [30, None, 0, 30], elipses(1, 1)),
        caso("isc_elipses_utm", mover(claro("isc_elipses_utm", 9, 3), 452133.21, 4481207.05), elipses(1, 1)),
        con_copas("isc_elipses_diminuta", [SUJETO, (21, 21)], [(0.03, 0.03, 0.03, 0.03), redonda]),
        caso("isc_elipses_copa_vacia", cambiar(claro("isc_elipses_vacia", 5, 4), "S", {8: None}), elipses()),
        caso("isc_elipses_lado_vertical", pegado, elipses(), copa_en="m"),
        caso("isc_elipses_lado_vertical_lejos", cuadro, elipses(1, 1), copa_en="m"),
        caso("isc_elipses_un_arbol", [arbol(1, 3, 4, 50)], elipses()),
        caso("isc_elipses_dos_arboles", [arbol(1, 3, 4, 50), arbol(2, 4, 6, 40)], elipses(1, 1)),
    ]


def de_aoi():
    dos = [AREA, funcion(1, 0.02, 1.1, 0.3, 0.4)]
    justa = cuadrado([(4, 15), (9, 16), (20, 30), (21, 17)], [30, 40, 50, 35])
    cerca = [SUJETO, (22, 21), (18, 24), (25, 16)]
    return [
        caso("aoi_ambas_dos_funciones", claro("aoi_ambas", 9, 6), aoi(dos, 1, 1, ("0", "2", "1"))),
        caso("aoi_uni_dap_m", claro("aoi_uni", 9, 5, por_cm=0.01), aoi([AREA], 0, 1, ("-1", "1", "0,5")),
             tamano="DAP m", indices=["N"]),
        caso("aoi_k_ultimo_cero", claro("aoi_k", 7, 4), aoi(dos, k=("0,1", "0,3", "0,1"))),
        caso("aoi_pesos_grandes", en_anillo([SUJETO, (21, 21.5), (18.5, 19)], [2.5, 80, 60]),
             aoi([funcion(1.75, 0, 0)], k=("4", "6", "1"))),
        caso("aoi_sin_casillas", claro("aoi_sin", 7, 4), aoi([AREA], 0, 0), tipo="2D"),
        caso("aoi_igual_a_la_altura", justa, aoi([funcion(4, 0, 0), funcion(3.9999, 0, 0), funcion(9, 0, 0)])),
        caso("aoi_decimales_de_la_lista", claro("aoi_dec", 7, 5),
             aoi([funcion(1, 0.00015, 2), funcion(1, 0.00014, 2), funcion(1.23456, 0.1, 0.99995)])),
        caso("aoi_radio_negativo", en_anillo(cerca, [10, 40, 25, 60]), aoi([funcion(-2, 0.1, 1)], 1, 1),
             tamano="DAP cm"),
        caso("aoi_radio_cero", en_anillo(cerca, [20, 40, 25, 60]), aoi([funcion(-2, 0.1, 1)]), tamano="DAP cm"),
        caso("aoi_radio_cero_sin_competidor", en_anillo(cerca, [20, 12.5, 10, 15], anillo=[8, 11, 9, 12, 10, 7]),
             aoi([funcion(-2, 0.1, 1)], 0, 1), tamano="DAP cm"),
        caso("aoi_tangentes", en_anillo([SUJETO, (25.2, 20), (20, 14)], [30, 40, 35]),
             aoi([funcion(2.6, 0, 0), funcion(3, 0, 0), funcion(2.5999, 0, 0)])),
        caso("aoi_tangentes_que_fallan", en_anillo([SUJETO, (25.134, 20)], [30, 40]), aoi([funcion(2.567, 0, 0)])),
        caso("aoi_cuenta_del_producto", claro("aoi_cuenta", 5, 4),
             aoi([AREA, funcion(1, 0.03, 1)], 1, 1, ("0", "1", "0,4"))),
        caso("aoi_tamanos_cero", en_anillo(cerca, [20, 0, None, 60], {1: {"X": 21}}),
             aoi([funcion(2, 0.02, 1)], 1, 1, ("0", "1", "1"))),
        caso("aoi_cero_con_decimales", en_anillo(cerca, [20, 30, "0,0", 60]), aoi([funcion(2, 0.02, 1)])),
        caso("aoi_lista_vacia", claro("aoi_vacia", 4, 5), aoi([], 1, 1), indices=["N", "Dmed"]),
        caso("aoi_dos_arboles", [arbol(1, 3, 4, 50), arbol(2, 4, 6, None)], aoi([AREA])),
    ]


def de_idp():
    empate = en_anillo([SUJETO, (23, 24), (17, 16), (24.5, 26), (14, 28)], [30, 25, 25, 32, 20])
    critico = en_anillo([SUJETO, (23, 24), (26, 12), (12.5, 27)], [25, 20, 20, 15],
                        anillo=[10, 12, 11, 13, 9, 14])
    texto = cambiar(en_anillo([SUJETO, (23, 25)], [30, 35]), "X", {3: "40,0", 4: "33"})
    return [
        caso("idp_baf_barrido", claro("idp_baf", 8, 5), idp("BAF", "4", "12", "4")),
        caso("idp_baf_uni_no", claro("idp_baf_uni", 8, 5), idp("BAF", "6", "6", bil=0, uni=1, si=0, no=1),
             tipo="2D", codigo=False),
        caso("idp_baf_critico", critico, idp("BAF", "1", "4"), tamano="DAP cm"),
        caso("idp_baf_ultimo_cero", claro("idp_ultimo", 7, 8, (15.0, 40.0), 9),
             idp("BAF", "0,1", "0,3", "0,1"), tamano="DAP cm"),
        caso("idp_baf_cero", claro("idp_baf_0", 4, 5), idp("BAF", "0", "0")),
        caso("idp_num_ambas", claro("idp_num", 9, 5), idp("NumFijo", "1", "3", "1", uni=1, no=1)),
        caso("idp_num_empate", empate, idp("NumFijo", "1", "2", "1", uni=1, no=1), tamano="DAP cm"),
        caso("idp_num_tercero_vacio", cambiar(empate, "DAP", {7: None, 9: 0}), idp("NumFijo", "1", "2", "1"),
             tamano="DAP cm"),
        caso("idp_num_un_competidor", en_anillo([SUJETO, (23, 24)], [30, 20]), idp("NumFijo", "1", "1", si=0, no=1)),
        caso("idp_radio_altura_justa", cuadrado([(4, 15), (9, 16), (6, 18), (12, 14)], [30, 40, 50, 35]),
             idp("RadioFijo", "4", "14", "5")),
        caso("idp_muy_juntos", en_anillo([SUJETO, (20.01, 20.02), (19.97, 20.01)], [30, 45, 60]),
             idp("RadioFijo", "5", "5", uni=1)),
        caso("idp_baf_empate", empate, idp("BAF", "2", "4", no=1), tamano="DAP cm"),
        caso("idp_radio_empate", empate, idp("RadioFijo", "5", "7", uni=1), tamano="DAP cm"),
        caso("idp_radio_cuenta_par", claro("idp_par", 6, 5), idp("RadioFijo", "5", "5,75", "0,5")),
        caso("idp_radio_ambas", claro("idp_radio", 9, 5), idp("RadioFijo", "2,5", "7,5", "2,5", uni=1)),
        caso("idp_radio_negativo", claro("idp_negativo", 5, 5), idp("RadioFijo", "-6", "6", "6")),
        caso("idp_radio_sin_mayores", en_anillo([SUJETO, (23, 25), (17, 24)], [30, 45, 25],
                                                anillo=[10, 12, 11, 13, 9, 14]),
             idp("RadioFijo", "4", "34", "30", uni=1)),
        caso("idp_func_richards_ambas", claro("idp_rich", 8, 5),
             idp("Func", lista=[RICHARDS, richards(9.99, 4.25, 0.25), richards(7, 0.125, 0.005)], uni=1)),
        caso("idp_func_hiperbolas", claro("idp_hiper", 8, 5),
             idp("Func", lista=[HIPERBOLA, hiperbola(7.5, 1.25, 1, 2, 1, 0.5, 2)], no=1), tipo="RM"),
        caso("idp_func_negativa", claro("idp_func_neg", 5, 5),
             idp("Func", lista=[hiperbola(1, 5, 1, 0.5, 1), richards(0.5, 9, 0)])),
        caso("idp_func_vacia", claro("idp_vacia", 4, 5), idp("Func")),
        caso("idp_sin_casillas", claro("idp_sin", 7, 5), idp("RadioFijo", "5", "6", bil=0, si=0)),
        caso("idp_tamanos_cero", en_anillo([SUJETO, (23, 25), (18, 17), (26, 19)], [0, 30, None, 0]),
             idp("RadioFijo", "8", "8", uni=1, no=1)),
        caso("idp_en_un_lugar", en_anillo([SUJETO, (23, 25), (23, 25)], [30, 40, 35]), idp("RadioFijo", "7", "7")),
        caso("idp_desborda", claro("idp_desborda", 4, 5), idp("RadioFijo", "0", "40000")),
        caso("idp_vertice_en_texto", texto, idp("RadioFijo", "6", "6")),
        caso("idp_dos_arboles", [arbol(1, 3, 4, 50), arbol(2, 4, 6, 40)], idp("RadioFijo", "9", "9")),
    ]


def de_dr():
    empate = en_anillo([SUJETO, (23, 24), (17, 16), (24.5, 26), (14, 28)], [30, 25, 45, 32, 20])
    mismo = en_anillo([SUJETO, (23, 25), (23, 25)], [30, 40, 35])
    cerca = [SUJETO, (23, 24), (18, 27), (14, 16)]
    return [
        caso("dr_baf_hip_ambas", claro("dr_baf", 8, 5), dr([HIP], "BAF", "4", "12", "4", uni=1, k=("0", "2", "1"))),
        caso("dr_num_exp_uni", claro("dr_num", 9, 5), dr([EXP], "NumFijo", "1", "3", "1", bil=0, uni=1)),
        caso("dr_radio_dos_pesos", claro("dr_radio", 9, 5),
             dr([HIP, EXP], "RadioFijo", "2,5", "7,5", "2,5", uni=1, k=("1", "2", "1")), tipo="2D", codigo=False),
        caso("dr_func_ambas", claro("dr_func", 8, 5),
             dr([HIP, exp(0.5, 0.1, 1, 0.01, 2)], "Func", lista=[RICHARDS, HIPERBOLA, richards(9.99, 4, 0.3)],
                uni=1, k=("0,5", "1,5", "1"))),
        caso("dr_k_ultimo_cero", claro("dr_k", 7, 5), dr([HIP], "RadioFijo", "5", "6", k=("0,1", "0,3", "0,1"))),
        caso("dr_num_empate", empate, dr([EXP], "NumFijo", "1", "2", "1", uni=1), tamano="DAP cm"),
        caso("dr_num_en_un_lugar", mismo, dr([HIP], "NumFijo", "1", "2", "1")),
        caso("dr_num_en_un_lugar_potencia", mismo, dr([hip(1, 1, -1)], "NumFijo", "1", "2", "1")),
        caso("dr_baf_en_un_lugar", mismo, dr([HIP], "BAF", "4", "4")),
        caso("dr_radio_en_un_lugar", mismo, dr([HIP, EXP], "RadioFijo", "6", "7", "1")),
        caso("dr_tamanos_cero", en_anillo(cerca, [30, 0, None, 24]),
             dr([HIP, EXP], "RadioFijo", "9", "9", uni=1, k=("0", "2", "1"))),
        caso("dr_cero_con_decimales", en_anillo(cerca, [30, "0,00", 40, 24]), dr([HIP], "RadioFijo", "9", "9")),
        caso("dr_hip_nula", en_anillo(cerca, [30, 25, 40, 24]), dr([hip(-1, 0.2, 1)], "RadioFijo", "1", "1")),
        caso("dr_cuenta_del_producto", claro("dr_cuenta", 5, 5),
             dr([HIP], "RadioFijo", "5", "5,75", "0,5", k=("0", "0,75", "0,5"))),
        caso("dr_sin_distancias", claro("dr_sin_dist", 4, 5), dr([], "BAF", "4", "4")),
        caso("dr_func_vacia", claro("dr_vacia", 4, 5), dr([HIP], "Func")),
        caso("dr_sin_casillas", claro("dr_sin", 7, 5), dr([EXP], "NumFijo", "2", "3", bil=0)),
        caso("dr_lado_del_idp", claro("dr_lado", 7, 5),
             dr([EXP], "NumFijo", "2", "2") | idp("NumFijo", "2", "2", bil=0, uni=1)),
        caso("dr_un_arbol", [arbol(1, 3, 4, 50)], dr([HIP], "BAF", "4", "4")),
    ]


def de_apa():
    solo = {i: None for i in range(6)}
    dos_vecinos = cambiar(en_anillo([SUJETO, (24, 23), (18, 26)], [30, 40, 25]), "DAP", solo)
    return [
        caso("apa_k_barrido", claro("apa_k", 9, 9), apa("0", "2", "1")),
        caso("apa_k_negativo", claro("apa_negativo", 7, 8, (30.0, 60.0)), apa("-1", "0,5", "0,5")),
        caso("apa_k_grande", claro("apa_grande", 7, 8, (40.0, 60.0)), apa("6", "30", "12")),
        caso("apa_igual_y_a_la_derecha", en_anillo([SUJETO, (27, 20), (26, 24)], [30, 40, 25]), apa("0", "0")),
        caso("apa_cuenta_par", claro("apa_par", 6, 8), apa("0", "1,25", "0,5")),
        caso("apa_k_ultimo_cero", claro("apa_ultimo", 7, 8), apa("0,1", "0,3", "0,1"), tipo="2D"),
        caso("apa_rm_dap_cm", claro("apa_dap", 12, 10), apa("1", "1"), tamano="DAP cm", codigo=False, tipo="RM"),
        caso("apa_igual_x", en_anillo([SUJETO, (20, 27), (26, 24)], [30, 40, 25]), apa("1", "1")),
        caso("apa_igual_x_vacio", en_anillo([SUJETO, (20, 27), (26, 24)], [30, None, 25]), apa("1", "1")),
        caso("apa_igual_y_a_la_izquierda", en_anillo([SUJETO, (13, 20), (26, 24)], [30, 40, 25]), apa("0", "0")),
        caso("apa_igual_y_cero", en_anillo([(20, 22), (26, 24), (17, 17)], [30, 40, 25],
                                           anillo=[0, 61, 47, 0, 58, 64]), apa("0", "1", "1")),
        caso("apa_sujeto_cero", en_anillo([(20, 23), (26, 25), (17, 18)], [30, 0, 25]), apa("0", "0")),
        caso("apa_sujeto_cero_k_1", en_anillo([(20, 23), (26, 25), (17, 18)], [30, 0, 25]), apa("1", "1")),
        caso("apa_cuadrado", cuadrado([(15, 21), (22, 18)], [30, 40]), apa("0", "0")),
        caso("apa_sin_vecinos", cambiar(en_anillo([SUJETO], [30]), "DAP", solo), apa("1", "1")),
        caso("apa_un_vecino", cambiar(en_anillo([SUJETO, (24, 23)], [30, 40]), "DAP", solo), apa("1", "1")),
        caso("apa_dos_vecinos", dos_vecinos, apa("1", "1")),
        caso("apa_tres_vecinos", cambiar(en_anillo([SUJETO, (24, 23), (18, 26), (19, 13)], [30, 40, 25, 35]),
                                         "DAP", solo), apa("0", "1", "1")),
        caso("apa_alineados", cambiar(en_anillo([SUJETO, (24, 23), (16, 17)], [30, 40, 25]), "DAP", solo),
             apa("0", "0")),
        caso("apa_celda_fuera", [arbol(1, 0, 3, 50), arbol(2, 12, 24, 60), arbol(3, 21, 0, 55), arbol(4, 11, 8, 58)],
             apa("0", "1", "1")),
        caso("apa_dos_arboles", [arbol(1, 3, 4, 50), arbol(2, 4, 6, 40)], apa("1", "1")),
    ]


def de_mezclas():
    todas = (isc(1, 1) | aoi([AREA, funcion(1, 0.03, 1)], 1, 1, ("1", "2", "1"))
             | idp("Func", lista=[RICHARDS, HIPERBOLA], uni=1, no=1)
             | dr([HIP, EXP], "RadioFijo", "4", "8", "2", uni=1, k=("0", "1", "1")) | apa("0", "2", "1"))
    octavos = [{**a, "N": 14, "E": 20.5, "S": 9 + i, "O": 17} for i, a in enumerate(en_octavos("mezcla", 10))]
    return [
        caso("todas_4r", octavos, todas, indices=["N", "AB", "ABj", "Dmed"]),
        caso("todas_4r_movida", mover(octavos, 1024, -2048), todas, indices=["N", "AB", "ABj", "Dmed"]),
        caso("todas_2d_utm", mover(en_octavos("mezcla_utm", 9, 0.1), 450000, 4600000), todas, tipo="2D",
             tamano="DAP dm", codigo=False, indices=["Ddom", "APBsum"]),
        caso("todas_rm_al_azar", bosque("todas_rm", 25, 45, 45), isc(1, 1) | aoi([AREA], 1, 1)
             | idp("BAF", "2", "6", "2", uni=1, no=1) | dr([HIP], "NumFijo", "1", "3", "1", uni=1) | apa("1", "1"),
             tipo="RM"),
        caso("todas_4r_elipses", octavos, {control: valor for control, valor in todas.items() if control != "Optcirc"},
             indices=["N"]),
        caso("todas_un_fallo", cambiar(octavos, "DAP", {9: "seco"}), todas),
    ]


def casos_de_familias():
    return [*de_isc(), *de_isc_de_elipses(), *de_aoi(), *de_idp(), *de_dr(), *de_apa(), *de_mezclas()]
