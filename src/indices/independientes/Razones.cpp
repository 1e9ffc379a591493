#include "indices/independientes/Razones.h"

#include "basico/Aritmetica.h"
#include "basico/Entero16.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>

namespace varo {

namespace {

bool UsaSeccion(Independiente familia) {
    switch (familia) {
    case Independiente::Bmed:
    case Independiente::Bmax:
    case Independiente::Bdom:
    case Independiente::APBmed:
    case Independiente::APBmax:
    case Independiente::APBsum:
        return true;
    default:
        return false;
    }
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
    const Entero16 n = std::min(Entero16{supPoligono / 100}, Entero16{arboles});
    auto mayores = base.OpenRecordset("SELECT top " + ATexto(n.valor()) + " [" + campo + "] as Ddom FROM [" +
                                      tabla + "] WHERE [" + campo + "] <> 0 order by [" + campo + "] desc");
    mayores.MoveFirst();
    double suma = 0;
    while (!mayores.Eof()) {
        suma = suma + Potencia(ANumero(mayores.Fields(0).Value), 2);
        mayores.MoveNext();
    }
    const double media = Dividir(suma, mayores.RecordCount());
    return conRaiz ? Raiz(media) : media;
}

std::vector<double> CalcularRazones(Independiente familia, const BaseDatos& base, const std::string& campo,
                                    const std::string& tabla, std::span<const double> tamanos,
                                    double supPoligono, double piesHa) {
    const bool dominantes = familia == Independiente::Ddom || familia == Independiente::Bdom;
    const bool areaProporcional = familia >= Independiente::APDmed;
    const Valor estadistico =
        dominantes ? Valor{TamanoDominante(base, campo, tabla, supPoligono, static_cast<int>(tamanos.size()),
                                           familia == Independiente::Ddom)}
                   : base.OpenRecordset(ConsultaEstadistico(familia, campo, tabla)).Fields(0).Value;
    std::vector<double> razones;
    razones.reserve(tamanos.size());
    for (const double d : tamanos) {
        try {
            const double parte = areaProporcional ? Dividir(10000, piesHa) : 1;
            const double tamano = UsaSeccion(familia) ? Potencia(d, 2) : d;
            razones.push_back(parte * Dividir(tamano, ANumero(estadistico)));
        } catch (ErrorEjecucion& error) {
            error.en("fila " + std::to_string(razones.size() + 1));
            throw;
        }
    }
    return razones;
}

} // namespace varo
