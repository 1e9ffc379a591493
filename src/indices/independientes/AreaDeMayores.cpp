#include "indices/independientes/AreaDeMayores.h"

#include "basico/Aritmetica.h"
#include "basico/EnLugar.h"
#include "basico/Numeros.h"
#include "basico/Texto.h"
#include "plot/calculo/AreaBasimetrica.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <map>
#include <optional>

namespace varo {

namespace {

/// The rows of the table that count as numbers, in its order: size and basal area (m2).
struct Tallos {
    std::vector<double> tamano;
    std::vector<double> area;
    double mayor = -std::numeric_limits<double>::infinity();
    bool desmedidos = false; ///< some size is so large that its basal area may overflow
};

/// Nothing for null and for a text that is no number: neither compares as larger, so neither enters a sum.
std::optional<double> Tamano(const Valor& valor) {
    const auto* const texto = std::get_if<std::string>(&valor);
    if (EsNulo(valor) || (texto != nullptr && !EsNumerico(*texto))) {
        return std::nullopt;
    }
    return ANumero(valor);
}

Tallos LeerTallos(const BaseDatos& base, const std::string& campo, const std::string& tabla,
                  const UnidadesTallo& unidades) {
    constexpr double desmedido = 1E+150;
    Tallos tallos;
    auto filas = base.OpenRecordset("SELECT [" + campo + "] FROM [" + tabla + "]");
    for (; !filas.Eof(); filas.MoveNext()) {
        const auto tamano = Tamano(filas.Fields(0).Value);
        if (!tamano) {
            continue;
        }
        if (std::abs(*tamano) > desmedido) {
            tallos.desmedidos = true;
            return tallos;
        }
        tallos.tamano.push_back(*tamano);
        tallos.area.push_back(TerminoAreaBasimetrica(*tamano, unidades));
        tallos.mayor = std::max(tallos.mayor, *tamano);
    }
    return tallos;
}

/// A text that the query language reads as one number: digits, one point between digits, an exponent.
bool EsLiteral(const std::string& texto) {
    const bool soloCifras = texto.find_first_not_of("0123456789.") == std::string::npos;
    return soloCifras && std::count(texto.begin(), texto.end(), '.') <= 1 && texto.front() != '.' &&
           texto.back() != '.';
}

/// So many bounds at a time, in ascending order, and their sums.
constexpr std::size_t aLaVez = 16;
using Bloque = std::array<double, aLaVez>;

void SumarATodas(std::span<const double> areas, Bloque& sumas) {
    Bloque s = sumas;
    for (const double area : areas) {
        for (double& suma : s) {
            suma += area;
        }
    }
    sumas = s;
}

/// Adds up the rows that are larger than each of some bounds. Each sum keeps the order of the rows; those
/// that do not enter it would add 0, which changes no bit.
class SumasDeMayores {
public:
    explicit SumasDeMayores(const Tallos& tallos) : tallos_{tallos}, areas_(tallos.area.size() + 1) {}

    Bloque sumar(const Bloque& cotas) {
        apartar(cotas.front(), cotas.back());
        Bloque sumas{};
        std::size_t desde = 0;
        for (const auto& [puesto, tamano] : deAlguna_) {
            SumarATodas({&areas_[desde], puesto - desde}, sumas);
            for (std::size_t k = 0; k < aLaVez; ++k) {
                sumas[k] += tamano > cotas[k] ? areas_[puesto] : 0.0;
            }
            desde = puesto + 1;
        }
        SumarATodas({&areas_[desde], cuantas_ - desde}, sumas);
        return sumas;
    }

private:
    struct DeAlguna {
        std::size_t puesto; ///< in areas_
        double tamano;
    };

    /// The rows that enter some sum: nearly all of them enter each one.
    void apartar(double menor, double mayor) {
        cuantas_ = 0;
        deAlguna_.clear();
        for (std::size_t j = 0; j < tallos_.tamano.size(); ++j) {
            const double tamano = tallos_.tamano[j];
            areas_[cuantas_] = tallos_.area[j];
            if (tamano > menor && !(tamano > mayor)) {
                deAlguna_.push_back({cuantas_, tamano});
            }
            cuantas_ += tamano > menor ? 1 : 0;
        }
    }

    const Tallos& tallos_;
    std::vector<double> areas_; ///< of the rows that enter some sum, in their order; one more at the end
    std::size_t cuantas_ = 0;
    std::vector<DeAlguna> deAlguna_; ///< those of them that do not enter all
};

/// The sum for each different size, absent where no tree is larger.
using SumaPorTamano = std::map<double, std::optional<double>>;

void SumarTodos(const Tallos& tallos, SumaPorTamano& sumas, const Avance& avance) {
    SumasDeMayores deMayores{tallos};
    for (auto primera = sumas.begin(); primera != sumas.end();) {
        Bloque cotas{};
        auto siguiente = primera;
        for (double& cota : cotas) {
            cota = siguiente == sumas.end() ? std::prev(siguiente)->first : siguiente->first;
            siguiente = siguiente == sumas.end() ? siguiente : std::next(siguiente);
        }
        const Bloque bloque = deMayores.sumar(cotas);
        for (std::size_t k = 0; primera != siguiente; ++k, ++primera) {
            if (tallos.mayor > primera->first) {
                primera->second = bloque[k];
            }
            avance.paso();
        }
    }
}

/// The text of a size cell as it goes into the query.
std::string ConPunto(const std::string& celda) {
    return Reemplazar(celda, ",", ".");
}

/// A size that is empty, no number or 0 has no larger trees.
bool Cuenta(const std::string& texto) {
    return EsNumerico(texto) && ANumero(texto) != 0;
}

/// The sums for all sizes that need no query.
SumaPorTamano SumasSinConsulta(const Tallos& tallos, std::span<const std::string> celdas,
                               const Avance& avance) {
    SumaPorTamano sumas;
    if (tallos.desmedidos) {
        avance.empezar(celdas.size());
        return sumas;
    }
    for (const std::string& celda : celdas) {
        const std::string texto = ConPunto(celda);
        if (Cuenta(texto) && EsLiteral(texto)) {
            sumas.emplace(Val(texto), std::nullopt);
        }
    }
    avance.empezar(sumas.size() + celdas.size());
    SumarTodos(tallos, sumas, avance);
    return sumas;
}

} // namespace

std::string ConsultaMayores(const std::string& campo, const std::string& tabla, const UnidadesTallo& unidades,
                            const std::string& tamano) {
    return ConsultaAreaBasimetrica(campo, tabla, unidades) + "] WHERE [" + campo + "] > " + tamano;
}

std::vector<double> CalcularABj(const BaseDatos& base, const std::string& campo, const std::string& tabla,
                                const UnidadesTallo& unidades, std::span<const std::string> celdas,
                                double supPoligono, const Padron& padron, const Avance& avance) {
    const SumaPorTamano sumas = SumasSinConsulta(LeerTallos(base, campo, tabla, unidades), celdas, avance);
    const auto suma = [&](const std::string& texto) -> std::optional<double> {
        const auto calculada = EsLiteral(texto) ? sumas.find(Val(texto)) : sumas.end();
        if (calculada != sumas.end()) {
            return calculada->second;
        }
        const auto consulta = base.OpenRecordset(ConsultaMayores(campo, tabla, unidades, texto));
        const Valor& valor = consulta.Fields(0).Value;
        return EsNulo(valor) ? std::nullopt : std::optional{ANumero(valor)};
    };

    std::vector<double> indices(celdas.size());
    for (std::size_t i = 0; i < celdas.size(); ++i) {
        avance.paso();
        const std::string texto = ConPunto(celdas[i]);
        if (!Cuenta(texto)) {
            continue;
        }
        const auto situar = [&](ErrorEjecucion& error) {
            if (!error.fila()) {
                padron.situar(error, i);
            }
        };
        AlFallar(situar, [&] {
            if (const auto mayores = suma(texto)) {
                indices[i] = Dividir(*mayores, supPoligono) * 10000;
            }
        });
    }
    return indices;
}

} // namespace varo
