#include "indices/independientes/Razones.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/Entero16.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>

namespace varo {

namespace {

/// The share of the plot that a tree has on average, in m2; 1 for a family that gives a plain ratio.
double Reparto(const RasgosDeFamilia& familia, double piesHa) {
    return familia.clase == ClaseDeFamilia::AreaProporcional ? Dividir(10000, piesHa) : 1;
}

const char* EstadisticoDe(Independiente familia) {
    switch (familia) {
    case Independiente::Dmax:
    case Independiente::Bmax:
    case Independiente::APDmax:
    case Independiente::APBmax:
        return "el máximo";
    case Independiente::APDsum:
    case Independiente::APBsum:
        return "la suma";
    default:
        return "la media";
    }
}

/// Why a size cannot be compared with the statistic of its column.
std::string SinComparacion(Independiente familia, const std::string& campo, const Valor& estadistico) {
    return EsNulo(estadistico) ? "ningún árbol tiene un tamaño distinto de 0 en la columna «" + campo + "»"
                               : std::string{EstadisticoDe(familia)} + " de la columna «" + campo +
                                     "» es 0: revise los tamaños";
}

/// How many trees are dominant.
Entero16 CuantosDominantes(double supPoligono, int arboles) {
    const auto cuantos = Porque(
        fallo::desbordamiento,
        [] { return "la parcela es demasiado grande: sus árboles dominantes, 100 por hectárea, no caben"; },
        [&] { return Entero16{supPoligono / 100}; });
    return std::min(cuantos, Entero16{arboles});
}

} // namespace

double TamanoDeCelda(const std::string& celda) {
    return Val(Reemplazar(celda, ",", "."));
}

std::string ConsultaEstadistico(Independiente familia, const std::string& campo, const std::string& tabla) {
    const std::string origen = "FROM [" + tabla + "]";
    const std::string conTamano = origen + " WHERE [" + campo + "] <> 0";
    switch (familia) {
    case Independiente::Dmed:
    case Independiente::APDmed:
        return "SELECT Avg( [" + campo + "] ) as [DMED] " + conTamano;
    case Independiente::Dmax:
    case Independiente::APDmax:
        return "SELECT Max( [" + campo + "] ) as [DMAX] " + origen;
    case Independiente::Bmed:
    case Independiente::APBmed:
        return "SELECT Avg( [" + campo + "]^2) as [BMED] " + conTamano;
    case Independiente::Bmax:
        return "SELECT Max( [" + campo + "]^2) as [BMAX] " + origen;
    case Independiente::APDsum:
        return "SELECT Sum( [" + campo + "] ) as [Dsum] " + origen;
    case Independiente::APBmax:
        return "SELECT Max( [" + campo + "]^2) as [BMAX] " + conTamano;
    case Independiente::APBsum:
        return "SELECT Sum( [" + campo + "]^2) as [BSUM] " + conTamano;
    default:
        throw ErrorEjecucion{fallo::argumentoNoValido};
    }
}

double TamanoDominante(const BaseDatos& base, const std::string& campo, const std::string& tabla,
                       double supPoligono, int arboles, bool conRaiz) {
    const Entero16 n = CuantosDominantes(supPoligono, arboles);
    auto mayores = base.OpenRecordset("SELECT top " + ATexto(n.valor()) + " [" + campo + "] as Ddom FROM [" +
                                      tabla + "] WHERE [" + campo + "] <> 0 order by [" + campo + "] desc");
    const auto sinDominantes = [&] {
        return n == 0 ? "en " + Formato(supPoligono, "###0.0") +
                            " m2 no cabe ningún árbol dominante: son 100 por hectárea"
                      : "ningún árbol tiene un tamaño distinto de 0 en la columna «" + campo + "»";
    };
    Porque(fallo::sinRegistroActual, sinDominantes, [&] { mayores.MoveFirst(); });
    double suma = 0;
    while (!mayores.Eof()) {
        const auto situar = [&](ErrorEjecucion& error) {
            error.en("columna «" + campo + "»");
            error.enFila(mayores.numeroDeFila(),
                         "fila " + std::to_string(mayores.numeroDeFila()) + " de «" + tabla + "»");
        };
        suma = suma + AlFallar(situar, [&] { return Potencia(ANumero(mayores.Fields(0).Value), 2); });
        mayores.MoveNext();
    }
    const double media = Dividir(suma, mayores.RecordCount());
    return conRaiz ? Raiz(media) : media;
}

std::vector<double> CalcularRazones(Independiente familia, const BaseDatos& base, const std::string& campo,
                                    const std::string& tabla, std::span<const double> tamanos,
                                    double supPoligono, double piesHa, const Padron& padron) {
    const bool dominantes = familia == Independiente::Ddom || familia == Independiente::Bdom;
    const RasgosDeFamilia& rasgos = RasgosDe(familia);
    const Valor estadistico =
        dominantes ? Valor{TamanoDominante(base, campo, tabla, supPoligono, static_cast<int>(tamanos.size()),
                                           familia == Independiente::Ddom)}
                   : base.OpenRecordset(ConsultaEstadistico(familia, campo, tabla)).Fields(0).Value;
    std::vector<double> razones;
    razones.reserve(tamanos.size());
    for (const double d : tamanos) {
        const auto razon = [&] {
            const double reparto = Porque(
                fallo::divisionPorCero, [] { return "los pies por hectárea son 0"; },
                [&] { return Reparto(rasgos, piesHa); });
            const double tamano = rasgos.dimension == Dimension::Cuadrado ? Potencia(d, 2) : d;
            return reparto * Dividir(tamano, ANumero(estadistico));
        };
        const auto situar = [&](ErrorEjecucion& error) {
            if (error.numero() == fallo::divisionPorCero || error.numero() == fallo::usoDeNulo) {
                error.porque(SinComparacion(familia, campo, estadistico));
            }
            padron.situar(error, razones.size());
        };
        razones.push_back(AlFallar(situar, razon));
    }
    return razones;
}

} // namespace varo
