#include "indices/FasesIndependientes.h"

#include "basico/EnLugar.h"
#include "data/FilasDeArboles.h"
#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/PadronDeArboles.h"
#include "formularios/Reloj.h"
#include "indices/independientes/AreaDeMayores.h"
#include "indices/independientes/Razones.h"
#include "map/FrmMapa.h"
#include "options/Unidades.h"
#include "plot/CamposDeLaHoja.h"
#include "plot/CausasDeFallos.h"
#include "shell/Programa.h"

#include <algorithm>
#include <optional>

namespace varo {

namespace {

/// What the families work on.
struct DatosDeCorrida {
    const BaseDatos& base;
    std::string campo; ///< field of the stem size
    std::string tabla;
    UnidadesTallo unidades;
    std::vector<std::string> celdas; ///< stem size of each tree, as the grid shows it
    Padron padron;
};

DatosDeCorrida Reunir(Programa& programa) {
    auto& hoja = programa.tocar<Hojadedatos>();
    const int columnaDAP = programa.sesion.ColumnaDAP.valor();
    return {hoja.Data1.Database(),
            CampoDelTallo(programa),
            programa.tocar<FrmSeleccion>().CboHoja.Text,
            UnidadesDelTallo(programa.tocar<OpcionesPrograma>()),
            TextosDeColumna(hoja.MSFlexGrid1, columnaDAP),
            PadronDeLaRejilla(programa)};
}

/// The column of the results file that shows a family.
const ColumnaIndependiente& ColumnaDe(Independiente familia) {
    return *std::find_if(
        columnasIndependientes.begin(), columnasIndependientes.end(),
        [familia](const ColumnaIndependiente& columna) { return columna.familia == familia; });
}

/// Cells are read and converted once, when the first family needs them.
class FasesIndependientes {
public:
    explicit FasesIndependientes(Programa& programa)
        : programa_{programa}, opciones_{programa.tocar<OpcionesPrograma>()},
          mapa_{programa.tocar<FrmMapa>()}, filasGrid_{programa.tocar<Hojadedatos>().MSFlexGrid1.Rows()},
          avance_{programa.servicios().avance()} {}

    void correr() {
        for (const auto& familia : familiasIndependientes) {
            const auto& columna = ColumnaDe(familia.familia);
            if (activa(columna)) {
                const auto reloj = PonerReloj(mapa_);
                fase(familia, columna);
            }
        }
    }

private:
    [[nodiscard]] bool activa(const ColumnaIndependiente& columna) const {
        return static_cast<const Casilla&>(opciones_.control(columna.casilla)).Value() == 1;
    }

    void fase(const RasgosDeFamilia& familia, const ColumnaIndependiente& columna) {
        auto& indice = programa_.resultados.*columna.indice;
        indice.redimensionar(filasGrid_ - 1);
        const auto situar = [&](ErrorEjecucion& error) {
            ExplicarSuperficie(error, programa_);
            PonerArbol(error, programa_);
            error.en(std::string{"familia "} + columna.encabezado);
        };
        AlFallar(situar, [&] { guardar(calcular(familia), indice); });
    }

    std::vector<double> calcular(const RasgosDeFamilia& familia) {
        switch (familia.clase) {
        case ClaseDeFamilia::DeParcela:
            return std::vector<double>(static_cast<std::size_t>(filasGrid_ - 1), deParcela(familia.familia));
        case ClaseDeFamilia::AreaDeMayores:
            avance_.etapa(ColumnaDe(familia.familia).encabezado);
            return CalcularABj(datos().base, datos().campo, datos().tabla, datos().unidades, datos().celdas,
                               programa_.sesion.SupPoligono, datos().padron, avance_);
        case ClaseDeFamilia::AreaProporcional:
            if (!activa(ColumnaDe(Independiente::N))) {
                mapa_.Npies_ha();
            }
            break;
        case ClaseDeFamilia::Razon:
            break;
        }
        return CalcularRazones(familia.familia, datos().base, datos().campo, datos().tabla, tamanos(),
                               programa_.sesion.SupPoligono, programa_.sesion.PiesHaActual, datos().padron);
    }

    double deParcela(Independiente familia) {
        if (familia == Independiente::N) {
            mapa_.Npies_ha();
            return programa_.sesion.PiesHaActual;
        }
        mapa_.Ab_ha();
        return programa_.sesion.AbHaActual;
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
        for (std::size_t i = tamanos_.size(); i < datos().celdas.size(); ++i) {
            const auto situar = [&](ErrorEjecucion& error) { datos().padron.situar(error, i); };
            tamanos_.push_back(AlFallar(situar, [&] { return TamanoDeCelda(datos().celdas[i]); }));
        }
        return tamanos_;
    }

    Programa& programa_;
    const OpcionesPrograma& opciones_;
    FrmMapa& mapa_;
    int filasGrid_;
    Avance avance_;
    std::optional<DatosDeCorrida> datos_;
    std::vector<double> tamanos_;
};

} // namespace

void CorrerFasesIndependientes(Programa& programa) {
    FasesIndependientes{programa}.correr();
}

} // namespace varo
