#include "motor/lectores/TrazaCsv.h"

#include "basico/ErrorEjecucion.h"
#include "motor/lectores/Bytes.h"
#include "motor/lectores/FilasCsv.h"
#include "motor/lectores/MarcasCsv.h"
#include "motor/lectores/SeparadorCsv.h"
#include "motor/lectores/ValoresCsv.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace varo {
namespace {

// The largest sheet that spreadsheets have.
constexpr std::size_t filasMaximas = 1'048'576;
/// A note of several lines may have a separator in one of them.
constexpr std::size_t celdasDeUnaNota = 3;
/// A table of 32,766 rows and 300 columns.
constexpr std::size_t celdasMaximas = 10'000'000;

[[noreturn]] void NoSeAdmite(const std::string& motivo) {
    throw ErrorMotor{fallo::tablaNoAdmitida, motivo};
}

class Trazador {
public:
    void mirar(const FilasCsv& filas) {
        const auto& celdas = filas.celdas();
        comprobarTamano(filas);
        const auto llenas = CeldasConAlgo(celdas);
        if (llenas == 0) {
            return;
        }
        for (std::size_t i = 0; i < llenas; ++i) {
            if (TieneValor(celdas[i])) {
                ++cuantasCeldas_;
                traza_.primeraColumna = traza_.columnas == 0 ? i : std::min(traza_.primeraColumna, i);
                traza_.columnas = std::max(traza_.columnas, i + 1);
            }
        }
        if (traza_.filaDeNombres == 0) {
            traza_.filaDeNombres = filas.numero();
            nombres_.assign(celdas.begin(), celdas.end());
        } else {
            mirarDatos(celdas, llenas, filas.numero());
        }
    }

    [[nodiscard]] TrazaDeTabla traza(char separador) {
        if (unaDeMas_ > 0 && unaDeMas_ * 10 >= cuantas_ * 9) {
            NoSeAdmite(
                "las filas tienen una celda más que la de los nombres: si es la primera columna la que no "
                "tiene nombre, como en las tablas de R, ponga un separador delante del primer nombre; "
                "si es la última, dele un nombre. Si la primera fila es un título, quítelo");
        }
        if (sonNumeros(nombres_)) {
            NoSeAdmite("la primera fila lleva números: escriba encima los nombres de las columnas");
        }
        if (buenas_ * 2 < cuantas_) {
            NoEsUnaTabla(
                "la primera fila ha de llevar los nombres de las columnas, y las demás, tantas celdas "
                "como ella. Quite lo que haya encima, o guárdela desde la hoja de cálculo como libro de "
                "Excel 97-2003 (.xls)");
        }
        if (traza_.columnas == 0) {
            NoEsUnaTabla("no tiene más que errores de una hoja de cálculo");
        }
        if (larga_) {
            NoSeAdmite("la fila " + std::to_string(larga_->first) + " tiene " +
                       std::to_string(larga_->second) + " celdas, y la de los nombres, " +
                       std::to_string(nombres_.size()) +
                       ": quite el separador que sobra, o ponga entre comillas la celda que lo lleva");
        }
        indicios_.resize(traza_.columnas);
        traza_.marcas = MarcasDeColumnas(indicios_, nombres_, separador);
        return traza_;
    }

private:
    /// True for two decimal numbers, for one among more numbers than texts, and for nothing else but numbers.
    static bool sonNumeros(const std::vector<std::string>& nombres) {
        using Fuerza = HuellaDeMarca::Fuerza;
        const auto con = [&](auto condicion) {
            return static_cast<std::size_t>(std::ranges::count_if(
                nombres, [&](const std::string& nombre) { return condicion(HuellaDe(nombre).fuerza); }));
        };
        const auto llenos = CeldasConAlgo({nombres.begin(), nombres.end()});
        const auto numeros = con([](Fuerza fuerza) { return fuerza != Fuerza::Ninguna; });
        const auto decimales =
            con([](Fuerza fuerza) { return fuerza == Fuerza::Decimal || fuerza == Fuerza::Dudosa; });
        return decimales > 1 || (decimales > 0 && 2 * numeros > llenos) || (numeros > 0 && numeros == llenos);
    }

    void comprobarTamano(const FilasCsv& filas) const {
        const auto fila = [&filas] { return "la fila " + std::to_string(filas.numero()); };
        if (filas.sinCerrar()) {
            ArchivoDanado(fila() + " abre unas comillas que nadie cierra: ciérrelas o quítelas");
        }
        if (filas.cierraEnMedio()) {
            ArchivoDanado(fila() + " cierra unas comillas en medio de una celda: ciérrelas donde acaba la "
                                   "celda, o quítelas");
        }
        const auto deUnaFila = nombres_.empty() ? filas.celdas().size() : nombres_.size();
        if (filas.celdasTragadas() >= std::max(celdasDeUnaNota, deUnaFila) ||
            (deUnaFila > 1 && filas.juntaFilas(deUnaFila))) {
            ArchivoDanado(fila() +
                          " tiene una celda entre comillas con otras filas dentro: cierre las comillas "
                          "donde acaba la celda, o quítelas");
        }
        if (filas.numero() > filasMaximas || filas.celdas().size() > FilasCsv::celdasDeUnaHoja ||
            cuantasCeldas_ > celdasMaximas) {
            NoSeAdmite("en " + fila() + " pasa de lo que cabe en una hoja (" + std::to_string(filasMaximas) +
                       " filas, " + std::to_string(FilasCsv::celdasDeUnaHoja) + " columnas, " +
                       std::to_string(celdasMaximas) + " celdas): reparta las parcelas en varios archivos");
        }
    }

    void mirarDatos(const std::vector<std::string_view>& celdas, std::size_t llenas, std::size_t fila) {
        indicios_.resize(std::max(indicios_.size(), llenas));
        for (std::size_t i = 0; i < llenas; ++i) {
            if (TieneValor(celdas[i])) {
                indicios_[i].mirar(celdas[i], fila);
                traza_.diaAntesQueMes = traza_.diaAntesQueMes && !LlevaElMesDelante(celdas[i]);
            }
        }
        ++cuantas_;
        buenas_ += celdas.size() > 1 && llenas <= nombres_.size() ? 1 : 0;
        unaDeMas_ += llenas == nombres_.size() + 1 ? 1 : 0;
        if (llenas > nombres_.size() && !larga_) {
            larga_ = {fila, llenas};
        }
    }

    TrazaDeTabla traza_;
    std::vector<IndiciosDeColumna> indicios_;
    std::vector<std::string> nombres_; ///< the row of names, empty ones too
    std::size_t cuantas_ = 0;          ///< rows that hold something
    std::size_t buenas_ = 0;           ///< those of them with cells enough and not too many
    std::size_t unaDeMas_ = 0;         ///< those with one cell too many
    std::size_t cuantasCeldas_ = 0;
    std::optional<std::pair<std::size_t, std::size_t>> larga_; ///< the first row with too many, and how many
};

} // namespace

void NoEsUnaTabla(const std::string& motivo) {
    throw ErrorMotor{fallo::formatoNoReconocido,
                     "es un archivo de texto y no se ve en él una tabla: " + motivo};
}

TrazaDeTabla Trazar(std::string_view texto, char separador, const Avance& avance) {
    Trazador trazador;
    FilasCsv filas{texto, separador};
    std::size_t leidos = 0;
    while (filas.siguiente()) {
        trazador.mirar(filas);
        avance.paso(filas.leidos() - std::exchange(leidos, filas.leidos()));
    }
    return trazador.traza(separador);
}

} // namespace varo
