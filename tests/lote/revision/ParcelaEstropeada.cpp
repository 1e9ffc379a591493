#include "lote/revision/ParcelaEstropeada.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <random>
#include <utility>

namespace varo::prueba {

namespace {

constexpr std::size_t columnaNumero = 0, columnaX = 1, columnaY = 2, primeraCopa = 3, columnaCodigo = 7,
                      columnaTamano = 8, columnas = 10;

class Azar {
public:
    explicit Azar(std::uint32_t semilla) : motor_{semilla} {}

    std::size_t hasta(std::size_t cuantos) { return motor_() % cuantos; }
    bool una(std::size_t deCada) { return hasta(deCada) == 0; }
    double entre(double menor, double mayor) {
        return menor + (mayor - menor) * static_cast<double>(motor_() % 100'001) / 100'000;
    }
    template <std::size_t n>
    std::string uno(const std::array<const char*, n>& textos) {
        return textos[hasta(n)];
    }

private:
    std::mt19937 motor_;
};

double ConDecimales(double numero, double potencia) {
    return std::round(numero * potencia) / potencia;
}

Filas Sana(Azar& azar) {
    constexpr std::array<const char*, 3> especies{"PS", "QP", "FS"};
    const std::size_t arboles = azar.una(8) ? 1 + azar.hasta(4) : 5 + azar.hasta(30);
    const double lado = azar.entre(5, 60);
    const double grano = azar.una(4) ? 1 : azar.una(3) ? 10 : 10'000;
    const double medida = azar.entre(1, 40);
    Filas filas = CuadradoConCentro();
    filas.resize(1);
    for (std::size_t i = 0; i < arboles; ++i) {
        std::vector<Valor> fila(columnas);
        fila[columnaNumero] = static_cast<double>(i + 1);
        fila[columnaX] = ConDecimales(azar.entre(0, lado), grano);
        fila[columnaY] = ConDecimales(azar.entre(0, lado), grano);
        for (std::size_t medidas = 0; medidas < 4; ++medidas) {
            fila[primeraCopa + medidas] = ConDecimales(azar.entre(0.1, 1) * medida, 10);
        }
        fila[columnaCodigo] = azar.uno(especies);
        fila[columnaTamano] = ConDecimales(azar.entre(5, 120), 10);
        fila[columnas - 1] = std::string{"nota"};
        filas.push_back(fila);
    }
    return filas;
}

Valor CeldaRara(Azar& azar) {
    constexpr std::array<const char*, 16> textos{"",      " ",     "12.5", "1.234,5", "12 cm",   "Total",
                                                 "0",     "0,0",   "-3",   "0,130",   "O'Neill", "pñ",
                                                 "1.2.3", "12,50", "1E3",  "7"};
    constexpr std::array numeros{0.0, -1.0, 1E-9, 1E7, 1E15, 1E150, 1E308, 45000.25, 3.0, 0.1};
    if (azar.una(3)) {
        return Valor{};
    }
    return azar.una(2) ? Valor{azar.uno(textos)} : Valor{numeros[azar.hasta(numeros.size())]};
}

void EstropearUna(Filas& filas, Azar& azar) {
    const std::size_t arbol = 1 + azar.hasta(filas.size() - 1);
    const std::size_t otro = 1 + azar.hasta(filas.size() - 1);
    switch (azar.hasta(9)) {
    case 0:
        filas[arbol][columnaX] = filas[otro][columnaX];
        break;
    case 1:
        filas[arbol][columnaY] = filas[otro][columnaY];
        break;
    case 2:
        filas[arbol][columnaX] = filas[otro][columnaX];
        filas[arbol][columnaY] = filas[otro][columnaY];
        break;
    case 3: {
        std::vector<Valor> suma(columnas);
        suma[columnaTamano] = 1234.5;
        suma[columnaNumero] = std::string{"Total"};
        filas.push_back(suma);
        break;
    }
    case 4: {
        const std::size_t columna = azar.hasta(columnas - 1);
        for (std::size_t i = 1; i < filas.size(); ++i) {
            if (!azar.una(4)) {
                filas[i][columna] = Valor{};
            }
        }
        break;
    }
    case 5: {
        const std::size_t columna = azar.hasta(columnas - 1);
        const Valor igual = CeldaRara(azar);
        for (std::size_t i = 1; i < filas.size(); ++i) {
            filas[i][columna] = igual;
        }
        break;
    }
    default:
        filas[arbol][azar.hasta(columnas - 1)] = CeldaRara(azar);
        break;
    }
}

std::string Casilla(const char* nombre, bool marcada) {
    return std::string{nombre} + (marcada ? " = 1\n" : " = 0\n");
}

std::string Barrido(Azar& azar, int miembro) {
    constexpr std::array<const char*, 12> desde{"0", "1",  "2", "0,5", "1", "2",
                                                "1", "-1", "3", "1",   "2", "4"};
    constexpr std::array<const char*, 8> hasta{"1", "2", "3", "4", "2", "1", "5", "0"};
    constexpr std::array<const char*, 6> paso{"1", "1", "0,5", "1", "2", "0"};
    const std::string m = "(" + std::to_string(miembro) + ")\" = \"";
    const std::string primero = azar.uno(desde);
    const bool soloUno = azar.una(2);
    return "\"TxtBAF1" + m + primero + "\"\n\"TxtBAF2" + m + (soloUno ? primero : azar.uno(hasta)) +
           "\"\n\"TxtBAF3" + m + azar.uno(paso) + "\"\n";
}

std::string Lista(Azar& azar, const std::string& nombre, const std::vector<std::string>& lineas) {
    std::string lista;
    for (const auto& linea : lineas) {
        if (!azar.una(3)) {
            lista += (lista.empty() ? "" : ", ") + linea;
        }
    }
    return lista.empty() && azar.una(2) ? "" : "\"" + nombre + "\" = [" + lista + "]\n";
}

std::string Competidores(Azar& azar, int familia) {
    constexpr std::array<const char*, 4> reglas{"OptBAF", "OptNumFijo", "OptRadioFijo", "OptFunc"};
    const std::string regla = azar.uno(reglas);
    const std::string f = std::to_string(familia);
    std::string texto = "\"" + regla + "(" + f + ")\" = true\n";
    if (regla == "OptFunc") {
        return texto + Lista(azar, "LstRich(" + f + ")",
                             {"{ A = 11.0, k = 5.0, m = 0.5 }",
                              "{ A = 6.5, k = 0.75, a = 1.0, b = 2.0, c = 1.0, d = 0.5, e = 2.0 }",
                              "{ A = 0.75, k = 0.1, m = 1.0 }"});
    }
    return texto + Barrido(azar, 2 * familia + (regla == "OptNumFijo" ? 1 : 0));
}

/// The kinds of crown data, and the columns of their roles.
constexpr std::array<std::pair<const char*, const char*>, 3> copas{
    {{"Opt4R", "N = 4\nE = 5\nS = 6\nO = 7\n"}, {"Opt2D", "NS = 4\nEO = 5\n"}, {"OptRM", "Radio = 4\n"}}};

std::string Opciones(Azar& azar, bool conCodigo) {
    std::string texto = azar.una(2) ? "Optcirc = true\n" : "OptElipse = true\n";
    texto += azar.una(3) ? "Optmetro = true\n" : "Optdecim = true\n";
    texto += azar.una(2) ? "OptDAP = true\n" : "OptCAP = true\n";
    texto += Casilla("ChCodigo", conCodigo);
    for (const char* const casilla :
         {"ChN", "ChAB", "ChABj", "ChDmed", "ChDmax", "ChDdom", "ChBmed", "ChBmax", "ChBdom", "ChAPDmed",
          "ChAPDmax", "ChAPDsum", "ChAPBmed", "ChAPBmax", "ChAPBsum"}) {
        texto += azar.una(5) ? Casilla(casilla, true) : "";
    }
    const auto lados = [&](const std::string& familia) {
        const bool bilateral = !azar.una(3);
        return Casilla(("Ch" + familia + "Bil").c_str(), bilateral) +
               Casilla(("Ch" + familia + "Uni").c_str(), !bilateral || azar.una(3));
    };
    if (azar.una(3)) {
        texto += "ChSupCopa = 1\n" + lados("ISC");
    }
    if (azar.una(3)) {
        texto += "ChAOIActivar = 1\n" + lados("AOI") + Barrido(azar, 6) +
                 Lista(azar, "LstAOI",
                       {"{ a = 0.5, b = 0.05, c = 1.0, d = 0.0, e = 0.0 }",
                        "{ a = 1.0, b = 0.02, c = 1.5, d = 0.1, e = 0.5 }"});
    }
    if (azar.una(3)) {
        texto += "ChIDPActivar = 1\n" + lados("IDP") + Casilla("ChIDPSi", !azar.una(3)) +
                 Casilla("ChIDPNo", azar.una(2)) + Competidores(azar, 0);
    }
    if (azar.una(3)) {
        texto += "ChDRActivar = 1\n" + lados("DR") + Barrido(azar, 4) + Competidores(azar, 1) +
                 Lista(azar, "LstDist",
                       {"{ tipo = \"HIP\", a = 1.0, b = 0.5, c = 1.2, d = 0.1, e = 2.0 }",
                        "{ tipo = \"EXP\", a = 0.0, b = 0.25, c = 1.0, d = 0.0, e = 0.0 }",
                        "{ tipo = \"HIP\", a = 0.0, b = 1.0, c = 1.0, d = 0.0, e = 0.0 }"});
    }
    if (azar.una(4)) {
        texto += "ChAPA = 1\n" + Barrido(azar, 8);
    }
    return texto;
}

} // namespace

ParcelaEstropeada Estropear(std::uint32_t semilla, std::size_t masDefectos) {
    Azar azar{semilla};
    ParcelaEstropeada parcela{Sana(azar), {}};
    for (std::size_t defectos = azar.hasta(masDefectos + 1); defectos > 0; --defectos) {
        EstropearUna(parcela.filas, azar);
    }
    if (masDefectos > 0 && azar.una(20)) {
        constexpr std::array<const char*, 4> cabeceras{"Cod arbol", "R-N", "1", "Ø"};
        parcela.filas[0][azar.una(2) ? columnaCodigo : primeraCopa] = azar.uno(cabeceras);
    }
    const bool conCodigo = azar.una(2);
    const auto& [datos, papeles] = copas[azar.una(2) ? 0 : azar.hasta(copas.size())];
    parcela.trabajo.columnas = std::string{"X = 2\nY = 3\nIndice = 1\nDAP = 9\n"} + papeles;
    parcela.trabajo.columnas += conCodigo ? "Codigo = 8\n" : "";
    parcela.trabajo.opciones = std::string{datos} + " = true\n" + Opciones(azar, conCodigo);
    parcela.trabajo.salida = azar.una(2) ? "resultados = \"indices.txt\"\ndatos = \"datos.txt\"\n"
                                         : "resultados = \"indices.txt\"\n";
    return parcela;
}

} // namespace varo::prueba
