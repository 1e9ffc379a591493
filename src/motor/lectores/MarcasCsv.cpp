#include "motor/lectores/MarcasCsv.h"

#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"

#include <algorithm>
#include <compare>

namespace varo {
namespace {

constexpr std::array letras{'.', ','};

void Anotar(std::optional<PruebaDeMarca>& prueba, std::string_view celda, std::size_t fila) {
    if (!prueba) {
        prueba = {fila, std::string{celda}};
    }
}

/// "9" and "10", "99" and "100".
bool SonNuevesYDiez(std::string_view antes, std::string_view ahora) {
    return !antes.empty() && ahora.size() == antes.size() + 1 &&
           antes.find_first_not_of('9') == std::string_view::npos && ahora[0] == '1' &&
           ahora.find_first_not_of('0', 1) == std::string_view::npos;
}

/// "8" and "10", where 9 is missing: as decimals of the same whole number the second would be less.
bool SaltanElDiez(std::string_view antes, std::string_view ahora) {
    return antes.size() < ahora.size() && ahora < antes;
}

/// As whole numbers.
std::strong_ordering Comparar(std::string_view una, std::string_view otra) {
    const auto largo = una.size() <=> otra.size();
    return largo != std::strong_ordering::equal ? largo : una <=> otra;
}

/// What people write where nothing was measured: it does not make a column one of texts.
bool EsFaltaDeDato(std::string_view celda) {
    constexpr std::array<std::string_view, 15> faltas{"na",  "n/a",  "n.a.", "nan", "nd", "n/d", "n.d.", "sd",
                                                      "s/d", "s.d.", "null", "-",   "--", ".",   "?"};
    constexpr std::size_t masLarga = 4;
    return celda.size() <= masLarga && std::ranges::find(faltas, Minusculas(celda)) != faltas.end();
}

std::string EnLaFila(const PruebaDeMarca& prueba) {
    return "la fila " + std::to_string(prueba.fila) + " tiene " + Cita(prueba.celda);
}

/// Decides column by column, with what the whole file says at hand.
class Arbitro {
public:
    Arbitro(const std::vector<IndiciosDeColumna>& columnas, const std::vector<std::string>& nombres,
            char separador)
        : columnas_{columnas}, nombres_{nombres}, separador_{separador} {
        for (const auto& columna : columnas_) {
            for (std::size_t marca = 0; marca < letras.size(); ++marca) {
                const bool laDice = columna.decimal().at(marca) && !columna.decimal().at(1 - marca);
                conDecimal_.at(marca) +=
                    laDice && columna.conDecimales() && !columna.sonCodigos() && !columna.esDeTextos() ? 1
                                                                                                       : 0;
            }
        }
        const auto [punto, coma] = conDecimal_;
        if (punto != coma) {
            delArchivo_ = punto > coma ? 0 : 1;
        } else if (punto > 0) {
            delArchivo_ = separador == ',' ? 0 : 1;
        }
    }

    [[nodiscard]] char marcaDe(std::size_t i) const {
        const auto& columna = columnas_[i];
        if (columna.malEscrita() && !columna.esDeTextos()) {
            noAdmitir(i, EnLaFila(*columna.malEscrita()) +
                             ", que no es un número bien escrito: corríjalo. Si es un código, sepárelo con "
                             "guiones");
        }
        if (columna.sonCodigos()) {
            return marcaNinguna;
        }
        for (std::size_t marca = 0; marca < letras.size(); ++marca) {
            if (columna.decimal().at(marca)) {
                return deDecimal(i, marca);
            }
        }
        for (std::size_t marca = 0; marca < letras.size(); ++marca) {
            if (columna.grupos().at(marca)) {
                return deGrupos(i, marca);
            }
        }
        for (std::size_t marca = 0; marca < letras.size(); ++marca) {
            if (columna.dudosa().at(marca)) {
                return deDudosa(i, marca);
            }
        }
        return letras.at(delArchivo_.value_or(0));
    }

private:
    [[nodiscard]] char deDecimal(std::size_t i, std::size_t marca) const {
        const auto& columna = columnas_[i];
        const auto otra = 1 - marca;
        if (columna.decimal().at(otra)) {
            return dosMarcas(i, *columna.decimal().at(marca), *columna.decimal().at(otra));
        }
        if (columna.grupos().at(otra)) {
            return dosMarcas(i, *columna.decimal().at(marca), *columna.grupos().at(otra));
        }
        if (columna.dudosa().at(otra) && !columna.agrupa(marca)) {
            return puedeSerDos(i, otra);
        }
        const bool esOtra = delArchivo_.value_or(marca) != marca;
        if (esOtra && columna.esDeTextos()) {
            return marcaNinguna;
        }
        if (esOtra && columna.ceroDeMas()) {
            noAdmitir(i,
                      EnLaFila(*columna.ceroDeMas()) +
                          ", que puede ser un código o un número. Si es un código, sepárelo con un guion; si "
                          "es un número, escríbalo como los de las otras columnas, con " +
                          (marca == 0 ? "coma" : "punto"));
        }
        return letras.at(marca);
    }

    [[nodiscard]] char deGrupos(std::size_t i, std::size_t marca) const {
        const auto& columna = columnas_[i];
        if (conDecimal_.at(1 - marca) > 0 && columna.dudosa().at(marca)) {
            return dosMarcas(i, *columna.grupos().at(marca), *columna.dudosa().at(marca));
        }
        if (conDecimal_.at(1 - marca) > 0 || (columna.esDeTextos() && delArchivo_ != marca)) {
            return marcaNinguna;
        }
        return columna.grupos().at(1 - marca)
                   ? dosMarcas(i, *columna.grupos().at(marca), *columna.grupos().at(1 - marca))
                   : letras.at(marca);
    }

    [[nodiscard]] char deDudosa(std::size_t i, std::size_t marca) const {
        const auto& columna = columnas_[i];
        const auto otra = 1 - marca;
        if (columna.dudosa().at(otra)) {
            return dosMarcas(i, *columna.dudosa().at(marca), *columna.dudosa().at(otra));
        }
        const bool otrasDudan = std::ranges::any_of(columnas_, [&](const auto& vecina) {
            return !vecina.esDeTextos() &&
                   (vecina.grupos().at(otra) || (!delArchivo_ && vecina.dudosa().at(otra)));
        });
        return otrasDudan || delArchivo_.value_or(marca) != marca || sonGruposTalVez(columna, marca)
                   ? puedeSerDos(i, marca)
                   : letras.at(marca);
    }

    /// What speaks for thousands where the file's mark does not speak against them.
    [[nodiscard]] bool sonGruposTalVez(const IndiciosDeColumna& columna, std::size_t marca) const {
        const bool esPunto = marca == 0;
        const bool laPideElSeparador = separador_ == (esPunto ? ',' : ';');
        const bool hayDeEstos = conDecimal_.at(marca) > 0;
        const bool hayDeOtros = conDecimal_.at(1 - marca) > 0;
        return !laPideElSeparador && ((columna.puedeAgrupar() && (!hayDeEstos || hayDeOtros)) ||
                                      (esPunto && hayDeOtros) || (separador_ == ',' && !hayDeEstos));
    }

    /// Of a column of texts nothing is computed: what is in doubt stays as it is written.
    [[nodiscard]] char dosMarcas(std::size_t i, const PruebaDeMarca& una, const PruebaDeMarca& otra) const {
        if (!columnas_[i].esDeTextos()) {
            noAdmitir(i, "unos números llevan punto y otros coma: " + EnLaFila(una) + " y " + EnLaFila(otra) +
                             ". Escriba todos los números de la columna de la misma manera");
        }
        return marcaNinguna;
    }

    [[nodiscard]] char puedeSerDos(std::size_t i, std::size_t marca) const {
        const auto& prueba = *columnas_[i].dudosa().at(marca);
        if (!columnas_[i].esDeTextos()) {
            const std::string una = marca == 0 ? "el punto" : "la coma";
            noAdmitir(i,
                      EnLaFila(prueba) + ", y no se sabe si " + una +
                          " separa decimales o millares. Quite las separaciones de millares y escriba todos "
                          "los decimales del archivo con la misma");
        }
        return marcaNinguna;
    }

    [[noreturn]] void noAdmitir(std::size_t i, const std::string& motivo) const {
        const auto& nombre = i < nombres_.size() ? nombres_[i] : std::string{};
        throw ErrorMotor{fallo::tablaNoAdmitida, "en la columna " +
                                                     (nombre.empty() ? std::to_string(i + 1) : Cita(nombre)) +
                                                     " " + motivo};
    }

    const std::vector<IndiciosDeColumna>& columnas_;
    const std::vector<std::string>& nombres_;
    char separador_;
    std::array<std::size_t, 2> conDecimal_{}; ///< how many columns have decimals with this mark alone
    std::optional<std::size_t> delArchivo_;   ///< the mark that most of them have
};

} // namespace

void IndiciosDeColumna::mirar(std::string_view escrita, std::size_t fila) {
    using Fuerza = HuellaDeMarca::Fuerza;
    constexpr std::size_t cifrasDeUnGrupo = 3;
    const auto celda = SinBlancosEnLosExtremos(escrita);
    const auto huella = HuellaDe(celda);
    const bool esNumero = huella.fuerza != Fuerza::Ninguna;
    numeros_ += esNumero ? 1 : 0;
    textos_ += esNumero || EsFaltaDeDato(celda) ? 0 : 1;
    conMarca_ += esNumero && huella.fuerza != Fuerza::SinMarca ? 1 : 0;
    switch (huella.fuerza) {
    case Fuerza::Ninguna:
        if (celda.find('.') != std::string_view::npos && EsNumerico(celda)) {
            Anotar(malEscrita_, celda, fila);
        }
        return;
    case Fuerza::SinMarca:
        conEnterosCortos_ = conEnterosCortos_ || huella.enteras.size() <= cifrasDeUnGrupo;
        conEnterosLargos_ = conEnterosLargos_ || huella.enteras.size() > cifrasDeUnGrupo;
        return;
    case Fuerza::Decimal:
        Anotar(decimal_.at(huella.marca), celda, fila);
        agrupa_.at(huella.marca) = agrupa_.at(huella.marca) || huella.conGrupos;
        break;
    case Fuerza::Grupos:
        Anotar(grupos_.at(huella.marca), celda, fila);
        return;
    case Fuerza::Dudosa:
        Anotar(dudosa_.at(huella.marca), celda, fila);
        break;
    }
    mirarDecimales(huella, celda, fila);
}

const std::optional<PruebaDeMarca>& IndiciosDeColumna::ceroDeMas() const {
    static const std::optional<PruebaDeMarca> nada;
    return menosDecimales_ == masDecimales_ ? nada : conCero_;
}

void IndiciosDeColumna::mirarDecimales(const HuellaDeMarca& huella, std::string_view celda,
                                       std::size_t fila) {
    if (sube_) {
        const auto enteras = Comparar(huella.enteras, enteras_);
        const auto decimales = Comparar(huella.decimales, decimales_);
        pasaDeNueve_ = pasaDeNueve_ || (std::is_eq(enteras) && SonNuevesYDiez(decimales_, huella.decimales));
        saltaElDiez_ = saltaElDiez_ || (std::is_eq(enteras) && SaltanElDiez(decimales_, huella.decimales));
        sube_ = std::is_gt(std::is_eq(enteras) ? decimales : enteras);
        enteras_ = huella.enteras;
        decimales_ = huella.decimales;
    }
    const auto cuantos = huella.decimales.size();
    menosDecimales_ = menosDecimales_ == 0 ? cuantos : std::min(menosDecimales_, cuantos);
    masDecimales_ = std::max(masDecimales_, cuantos);
    if (cuantos > 1 && huella.decimales.ends_with('0')) {
        Anotar(conCero_, celda, fila);
    }
}

std::vector<char> MarcasDeColumnas(const std::vector<IndiciosDeColumna>& columnas,
                                   const std::vector<std::string>& nombres, char separador) {
    const Arbitro arbitro{columnas, nombres, separador};
    std::vector<char> marcas;
    marcas.reserve(columnas.size());
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        marcas.push_back(arbitro.marcaDe(i));
    }
    return marcas;
}

} // namespace varo
