#include "avisos/ReunirColumnas.h"

#include "basico/Numeros.h"
#include "data/Hojadedatos.h"
#include "data/Papeles.h"
#include "motor/sql/Lexico.h"
#include "options/Unidades.h"
#include "shell/Programa.h"

#include <cstddef>

namespace varo {

namespace {

int UltimoPapel(const OpcionesPrograma& opciones) {
    const DatosDeCopa copa = DatosDeLaCopa(opciones);
    return opciones.ChCodigo.Value() == 1 ? PapelCodigo(copa) : PapelIndice(copa);
}

class LectorDeColumnas {
public:
    explicit LectorDeColumnas(Hojadedatos& hoja)
        : rejilla_{hoja.MSFlexGrid1}, tabla_{hoja.Data1.Recordset().filas()} {}

    [[nodiscard]] const Tabla& tabla() const { return tabla_; }

    [[nodiscard]] std::vector<FilaPorRevisar> filas() const {
        std::vector<FilaPorRevisar> filas;
        filas.reserve(tabla_.filas.size());
        for (std::size_t i = 0; i < tabla_.filas.size(); ++i) {
            filas.push_back({tabla_.numeroDeFila(i), false});
        }
        for (int fila = 1; fila < rejilla_.Rows(); ++fila) {
            if (const std::string& registro = rejilla_.TextMatrix(fila, 0); !registro.empty()) {
                filas[static_cast<std::size_t>(ANumero(registro)) - 1].enRejilla = true;
            }
        }
        return filas;
    }

    [[nodiscard]] ColumnaPorRevisar columna(Entero16 numero) const {
        const int suya = numero.valor();
        ColumnaPorRevisar columna;
        columna.cabecera = rejilla_.TextMatrix(0, suya);
        columna.numero = suya + 1;
        columna.unaPalabra = suya > 0 && sql::EsNombreSinCorchetes(columna.cabecera);
        // The data of the last field never arrive in the grid.
        if (suya + 1 < rejilla_.Cols() || suya == 0) {
            columna.celdas = celdas(suya);
        }
        return columna;
    }

private:
    /// Column 0 numbers the records.
    [[nodiscard]] std::vector<Valor> celdas(int columna) const {
        std::vector<Valor> celdas;
        celdas.reserve(tabla_.filas.size());
        for (std::size_t i = 0; i < tabla_.filas.size(); ++i) {
            celdas.push_back(columna == 0 ? Valor{static_cast<double>(i + 1)}
                                          : Valor{tabla_.filas[i][static_cast<std::size_t>(columna) - 1]});
        }
        return celdas;
    }

    const Rejilla& rejilla_;
    const Tabla& tabla_;
};

} // namespace

bool HayColumnasParaTodo(Programa& programa) {
    const auto& columnas = programa.sesion.Columnas;
    const int ultimo = UltimoPapel(programa.tocar<OpcionesPrograma>());
    const int cuantas = programa.tocar<Hojadedatos>().MSFlexGrid1.Cols();
    bool hay = columnas.limite() >= ultimo && programa.sesion.ColumnaDAP < cuantas;
    for (int papel = 0; hay && papel <= ultimo; ++papel) {
        hay = columnas(papel) < cuantas;
    }
    return hay;
}

ParcelaPorRevisar ReunirColumnas(Programa& programa) {
    const auto& sesion = programa.sesion;
    const auto& opciones = programa.tocar<OpcionesPrograma>();
    const DatosDeCopa copa = DatosDeLaCopa(opciones);
    const LectorDeColumnas lector{programa.tocar<Hojadedatos>()};
    ParcelaPorRevisar parcela;
    parcela.tabla = lector.tabla().Name;
    parcela.filas = lector.filas();
    parcela.x = lector.columna(sesion.Columnas(papelX));
    parcela.y = lector.columna(sesion.Columnas(papelY));
    for (int medida = 0; medida < MedidasDeCopa(copa); ++medida) {
        parcela.copa.push_back(lector.columna(sesion.Columnas(PapelDeCopa(medida))));
    }
    parcela.numero = lector.columna(sesion.Columnas(PapelIndice(copa)));
    if (opciones.ChCodigo.Value() == 1) {
        parcela.codigo = lector.columna(sesion.Columnas(PapelCodigo(copa)));
    }
    if (sesion.ColumnaDAP > 0) {
        parcela.tamano = lector.columna(sesion.ColumnaDAP);
    }
    return parcela;
}

} // namespace varo
