#include "indices/CorridaIndices.h"

#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "formularios/Reloj.h"
#include "indices/FasesDeVecindad.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "indices/independientes/AreaDeMayores.h"
#include "indices/independientes/Razones.h"
#include "map/FrmMapa.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <algorithm>
#include <optional>

namespace varo {

namespace {

/// What the distance-independent families work on.
struct DatosDeCorrida {
    const BaseDatos& base;
    std::string campo; ///< field of the stem size
    std::string tabla;
    UnidadesTallo unidades;
    std::vector<std::string> celdas; ///< stem size of each tree, as the grid shows it
};

DatosDeCorrida Reunir(Programa& programa) {
    auto& hoja = programa.tocar<Hojadedatos>();
    const int columnaDAP = programa.sesion.ColumnaDAP.valor();
    DatosDeCorrida datos{hoja.Data1.Database(),
                         hoja.Data1.Recordset().campos()(columnaDAP - 1).Name,
                         programa.tocar<FrmSeleccion>().CboHoja.Text,
                         UnidadesDelTallo(programa.tocar<OpcionesPrograma>()),
                         {}};
    datos.celdas.reserve(static_cast<std::size_t>(hoja.MSFlexGrid1.Rows()));
    for (int fila = 1; fila < hoja.MSFlexGrid1.Rows(); ++fila) {
        datos.celdas.push_back(hoja.MSFlexGrid1.TextMatrix(fila, columnaDAP));
    }
    return datos;
}

/// The phases of the fifteen distance-independent families, on cells that are read and converted once.
class FasesIndependientes {
public:
    explicit FasesIndependientes(Programa& programa)
        : programa_{programa}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()}, filasGrid_{programa.tocar<Hojadedatos>().MSFlexGrid1.Rows()} {}

    void correr() {
        auto enOrdenDeCalculo = columnasIndependientes;
        std::sort(enOrdenDeCalculo.begin(), enOrdenDeCalculo.end(),
                  [](const auto& a, const auto& b) { return a.familia < b.familia; });
        for (const auto& columna : enOrdenDeCalculo) {
            if (activa(columna.casilla)) {
                const Reloj reloj{mapa_};
                fase(columna);
            }
        }
    }

private:
    [[nodiscard]] bool activa(const char* casilla) const {
        return static_cast<const Casilla&>(opciones_.control(casilla)).Value() == 1;
    }

    void fase(const ColumnaIndependiente& columna) {
        auto& indice = programa_.resultados.*columna.indice;
        indice.redimensionar(filasGrid_ - 1);
        try {
            guardar(calcular(columna.familia), indice);
        } catch (ErrorEjecucion& error) {
            error.en(std::string{"familia "} + columna.encabezado);
            throw;
        }
    }

    std::vector<double> calcular(Independiente familia) {
        const auto& sesion = programa_.sesion;
        const auto arboles = static_cast<std::size_t>(filasGrid_ - 1);
        switch (familia) {
        case Independiente::N:
            mapa_.Npies_ha();
            return std::vector<double>(arboles, sesion.PiesHaActual);
        case Independiente::AB:
            mapa_.Ab_ha();
            return std::vector<double>(arboles, sesion.AbHaActual);
        case Independiente::ABj:
            return CalcularABj(datos().base, datos().campo, datos().tabla, datos().unidades, datos().celdas,
                               sesion.SupPoligono);
        default:
            break;
        }
        const bool areaProporcional = familia >= Independiente::APDmed;
        if (areaProporcional && !activa("ChN")) {
            mapa_.Npies_ha();
        }
        return CalcularRazones(familia, datos().base, datos().campo, datos().tabla, tamanos(),
                               sesion.SupPoligono, sesion.PiesHaActual);
    }

    static void guardar(const std::vector<double>& valores, ResultadosIndices::Indice& indice) {
        for (int i = 0; i < static_cast<int>(valores.size()); ++i) {
            indice(i) = valores[static_cast<std::size_t>(i)];
        }
    }

    const DatosDeCorrida& datos() {
        if (!datos_) {
            datos_.emplace(Reunir(programa_));
        }
        return *datos_;
    }

    std::span<const double> tamanos() {
        if (tamanos_.empty()) {
            std::transform(datos().celdas.begin(), datos().celdas.end(), std::back_inserter(tamanos_),
                           TamanoDeCelda);
        }
        return tamanos_;
    }

    Programa& programa_;
    const OpcionesPrograma& opciones_;
    FrmMapa& mapa_;
    int filasGrid_;
    std::optional<DatosDeCorrida> datos_;
    std::vector<double> tamanos_;
};

} // namespace

void CorrerIndices(Programa& programa) {
    RechazarVecindadPendiente(programa.tocar<OpcionesPrograma>());
    FasesIndependientes{programa}.correr();
    CorrerFasesDeVecindad(programa);
    programa.tocar<FrmCrearArchivo>().Show();
}

} // namespace varo
