#include "plot/calculo/PorHectarea.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/Entero16.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

namespace varo {

double PiesPorHectarea(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                       int numPuntosPoligono, double supPoligono) {
    const auto consulta =
        base.OpenRecordset("SELECT Count ( " + campo + " ) as [variablecodigo] FROM [" + hoja + "] ");
    const double cuenta = ANumero(consulta.Fields(0).Value);
    return Dividir(cuenta - (numPuntosPoligono - 1) / 2.0, supPoligono) * 10000;
}

Valor SumaAreaBasimetrica(const BaseDatos& base, const std::string& campo, const std::string& hoja,
                          const UnidadesTallo& unidades) {
    return base.OpenRecordset(ConsultaAreaBasimetrica(campo, hoja, unidades) + "] ").Fields(0).Value;
}

double AreaBasimetricaDeBorde(const TablaPoligono& poligono, int columna, int numPuntosPoligono,
                              const MatrizDinamica<double>& anguloInterior) {
    double quitar = 0;
    for (int i = 0; i <= numPuntosPoligono - 2; ++i) {
        const double angulo = anguloInterior(i);
        quitar = quitar + ANumero(poligono(columna, i)) * (1.0 - angulo / 360.0);
    }
    return quitar;
}

namespace {

constexpr int columnaDeCodigo = 2;

/// Runs `deCodigo` for each code, with its condition, and says which one failed.
template <class DeCodigo>
void PorCadaCodigo(const FilasPorCodigo& filas, CifrasPorCodigo& cifras, const DeCodigo& deCodigo) {
    cifras = {};
    for (const std::string& codigo : filas.codigos) {
        const auto explicar = [&](ErrorEjecucion& error) {
            if (error.numero() == fallo::sintaxisDeConsulta &&
                codigo.find_first_of("',") != std::string::npos) {
                error.porque("el código " + Cita(codigo) +
                             " lleva una comilla o una coma, que rompe la consulta: cámbielo en la hoja");
            }
            error.en("código " + Cita(codigo));
        };
        const double cifra =
            AlFallar(explicar, [&] { return deCodigo(codigo, CondicionDeCodigo(filas.campo, codigo)); });
        const int ultima = cifras.porHectarea.limite() + 1;
        cifras.porHectarea.redimensionarConservando(ultima);
        cifras.porHectarea(ultima) = cifra;
        cifras.total = cifras.total + cifra;
    }
}

bool EsDelCodigo(const TablaPoligono& poligono, int vertice, const std::string& codigo) {
    return ATexto(poligono(columnaDeCodigo, vertice)) == codigo;
}

Valor CuentaDeCodigo(const FilasPorCodigo& filas, const std::string& condicion) {
    return filas.base
        .OpenRecordset("SELECT Count (" + filas.campo + ") as [variablecodigo] FROM [" + filas.hoja +
                       "] WHERE " + condicion)
        .Fields(0)
        .Value;
}

/// A code that is seen in the grid may be none in the query: a date, a truth value, a number with points.
std::string PorQueNoHaySuma(const FilasPorCodigo& filas, const std::string& condicion,
                            const std::string& campoTamano) {
    if (ANumero(CuentaDeCodigo(filas, condicion)) == 0) {
        return "la consulta no halla ninguno de sus árboles, porque su celda no guarda lo que se lee en ella "
               "(una fecha, un valor lógico o un número con puntos): cambie el código en la hoja por una "
               "palabra";
    }
    return "ninguno de sus árboles tiene tamaño en la columna " + Cita(campoTamano) +
           ": escriba en la hoja el de alguno";
}

} // namespace

std::string CondicionDeCodigo(const std::string& campo, const std::string& codigo) {
    return EsNumerico(codigo) ? campo + " = " + codigo : campo + " = '" + codigo + "'";
}

void PiesDeCodigos(const FilasPorCodigo& filas, const TablaPoligono& poligono, int numPuntosPoligono,
                   double supPoligono, CifrasPorCodigo& cifras) {
    int enBorde = 0; // Meant: it runs on from code to code.
    PorCadaCodigo(filas, cifras, [&](const std::string& codigo, const std::string& condicion) {
        const Entero16 pies{ANumero(CuentaDeCodigo(filas, condicion))};
        for (int v = 0; v <= numPuntosPoligono - 2; ++v) {
            enBorde += EsDelCodigo(poligono, v, codigo) ? 1 : 0;
        }
        return Dividir(pies.valor() - enBorde / 2.0, supPoligono) * 10000.0;
    });
}

void AreaBasimetricaDeCodigos(const FilasPorCodigo& filas, const std::string& campoTamano,
                              const UnidadesTallo& unidades, const TablaPoligono& poligono,
                              int numPuntosPoligono, const MatrizDinamica<double>& anguloInterior,
                              double supPoligono, CifrasPorCodigo& cifras) {
    constexpr int columnaDeArea = 3;
    double quitar = 0; // Meant: it runs on from code to code.
    PorCadaCodigo(filas, cifras, [&](const std::string& codigo, const std::string& condicion) {
        const auto consulta =
            filas.base.OpenRecordset(ConsultaAreaBasimetrica(campoTamano, filas.hoja, unidades, condicion));
        const double suma = Porque(
            fallo::usoDeNulo, [&] { return PorQueNoHaySuma(filas, condicion, campoTamano); },
            [&] { return ANumero(consulta.Fields(0).Value); });
        for (int v = 0; v <= numPuntosPoligono - 2; ++v) {
            if (EsDelCodigo(poligono, v, codigo)) {
                quitar = quitar + ANumero(poligono(columnaDeArea, v)) * (1.0 - anguloInterior(v) / 360.0);
            }
        }
        return Dividir(suma - quitar, supPoligono) * 10000.0;
    });
}

double AreaBasimetricaPorHectarea(const Valor& suma, double quitar, double supPoligono) {
    return Dividir(ANumero(suma) - quitar, supPoligono) * 10000;
}

} // namespace varo
