#include "plot/calculo/SolaparCirculos.h"

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "plot/calculo/AreaInterseccionCirculos.h"
#include "plot/calculo/Cuadricula.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace varo {

namespace {

using ConTamano = Cuadricula::Fila; ///< a tree with a size, numbered from 0

/// The mean radius in metres, rounded to a 32-bit float.
float RadioMedio(const FilaDeCopa& fila, const FilasDeCopas& copas) {
    const auto medida = [&](std::size_t n, int divisor) {
        return Dividir(fila.medidas[n].numero(), divisor);
    };
    const auto media = [](double r1, double r2, double r3, double r4) {
        return ASimple((((r2 + r1) + r3) + r4) / 4.0);
    };
    const int factor = copas.FactorRadios;
    switch (copas.datos) {
    case DatosDeCopa::CuatroRadios:
        return media(medida(0, factor), medida(1, factor), medida(2, factor), medida(3, factor));
    case DatosDeCopa::DosDiametros: {
        const double r1 = medida(0, 2 * factor);
        const double r2 = medida(1, 2 * factor);
        return media(r1, r2, r1, r2);
    }
    case DatosDeCopa::RadioMedio:
        break;
    }
    return media(Dividir(fila.medidas[0].numero() * 4.0, factor), 0, 0, 0);
}

/// The trees with a size, in the order of the rows.
class Circulos {
public:
    explicit Circulos(const FilasDeCopas& copas) {
        for (std::size_t i = 0; i < copas.filas.size(); ++i) {
            if (!copas.filas[i].sinTamano) {
                anadir(copas.filas[i], copas, i + 1);
            }
        }
    }

    [[nodiscard]] ConTamano cuantos() const { return static_cast<ConTamano>(fila_.size()); }
    /// Row of the grid.
    [[nodiscard]] double fila(ConTamano i) const { return static_cast<double>(fila_[i]); }
    [[nodiscard]] double x(ConTamano i) const { return x_[i]; }
    [[nodiscard]] double y(ConTamano i) const { return y_[i]; }
    /// Without it, all areas with that tree fault.
    [[nodiscard]] bool tieneSitio(ConTamano i) const { return !std::isnan(x_[i]); }

    /// In metres, in the role of the first tree of a pair.
    [[nodiscard]] double radioDePrimera(ConTamano i) const {
        return conRadio_[i] ? radio_[*conRadio_[i]] : 0;
    }
    /// The same of the second one, in the walk of the trees behind i. Meant: where none of them up to j has a
    /// radius, that of the last row in the walk before serves; the first walk starts at 0.
    [[nodiscard]] double radioDeSegunda(ConTamano i, ConTamano j) const {
        const auto propio = conRadio_[j];
        if (propio && *propio > i) {
            return radio_[*propio];
        }
        const auto ultimo = conRadio_.back();
        return i > 0 && ultimo && *ultimo > 0 ? radio_[*ultimo] : 0;
    }
    /// The largest one that any tree takes in any role.
    [[nodiscard]] double mayorRadio() const { return mayorRadio_; }

private:
    void anadir(const FilaDeCopa& fila, const FilasDeCopas& copas, std::size_t numero) {
        const bool situado = fila.x.esNumero() && fila.y.esNumero();
        constexpr double ninguno = std::numeric_limits<double>::quiet_NaN();
        fila_.push_back(numero);
        x_.push_back(situado ? fila.x.numero() : ninguno);
        y_.push_back(situado ? fila.y.numero() : ninguno);
        float radio = 0;
        const bool falla = Saltando([&] { radio = RadioMedio(fila, copas); }).has_value();
        radio_.push_back(static_cast<double>(radio));
        mayorRadio_ = std::max(mayorRadio_, radio_.back());
        const auto anterior = conRadio_.empty() ? std::nullopt : conRadio_.back();
        conRadio_.push_back(falla ? anterior : std::optional{static_cast<ConTamano>(radio_.size() - 1)});
    }

    std::vector<std::size_t> fila_;
    std::vector<double> x_, y_;
    std::vector<double> radio_;                      ///< 0 where the row has none
    std::vector<std::optional<ConTamano>> conRadio_; ///< the last row up to this one that has a radius
    double mayorRadio_ = 0;
};

/// Finds the trees whose circle may meet that of one of them, or fault with it.
class Cercanas {
public:
    explicit Cercanas(const Circulos& circulos) : circulos_{circulos} {
        std::vector<ConTamano> situadas;
        for (ConTamano i = 0; i < circulos.cuantos(); ++i) {
            if (circulos.tieneSitio(i)) {
                situadas.push_back(i);
                mesuradas_ = mesuradas_ && esMesurada(circulos.x(i)) && esMesurada(circulos.y(i));
            }
        }
        if (mesuradas_) {
            cuadricula_ = Cuadricula{circulos, std::move(situadas)};
        } else {
            todas_ = std::move(situadas);
        }
    }

    /// Those behind i, in their order. The areas of the others with i are 0.
    std::span<const ConTamano> detrasDe(ConTamano i) {
        if (!mesuradas_) {
            return {std::upper_bound(todas_.begin(), todas_.end(), i), todas_.end()};
        }
        halladas_.clear();
        const double x = circulos_.x(i);
        const double y = circulos_.y(i);
        const double radio = circulos_.radioDePrimera(i);
        const double alcance = conHolgura(std::max(radio + circulos_.mayorRadio(), 0.0));
        cuadricula_.recorrerCuadro(x, y, alcance, [&](std::size_t lugar) {
            const double dx = cuadricula_.x(lugar) - x;
            const double dy = cuadricula_.y(lugar) - y;
            if (cuadricula_.fila(lugar) > i && dx * dx + dy * dy <= alcance * alcance) {
                halladas_.push_back(cuadricula_.fila(lugar));
            }
        });
        std::sort(halladas_.begin(), halladas_.end());
        return halladas_;
    }

private:
    /// No distance between such coordinates overflows.
    static bool esMesurada(double coordenada) { return std::abs(coordenada) < 1E+100; }
    /// Beyond what rounding can move a distance.
    static double conHolgura(double distancia) { return distancia * (1 + 1E-9); }

    const Circulos& circulos_;
    bool mesuradas_ = true;
    Cuadricula cuadricula_;
    std::vector<ConTamano> todas_, halladas_;
};

/// The walk over all pairs: the trees behind the first one, those behind the second one, and so on. Pairs
/// that do nothing are not visited.
class Recorrido {
public:
    Recorrido(const FilasDeCopas& copas, SolapeDeCopas& solape)
        : circulos_{copas}, cercanas_{circulos_}, solape_{solape} {}

    void recorrer(const Avance& avance) {
        avance.empezar(circulos_.cuantos());
        for (ConTamano i = 0; i + 1 < circulos_.cuantos(); ++i) {
            avance.paso();
            siguiente_ = i + 1;
            arrastrar(i);
            if (circulos_.tieneSitio(i)) {
                recorrerCercanas(i);
            }
        }
    }

private:
    void recorrerCercanas(ConTamano i) {
        const double ri = circulos_.radioDePrimera(i);
        for (const ConTamano j : cercanas_.detrasDe(i)) {
            if (j > siguiente_) {
                area_ = 0; // that of the far pair before it
            }
            Saltando([&] {
                area_ = AreaInterseccionCirculos(circulos_.x(i), circulos_.y(i), circulos_.x(j),
                                                 circulos_.y(j), ri, circulos_.radioDeSegunda(i, j));
            });
            guardar(i, j);
            siguiente_ = j + 1;
            arrastrar(i);
        }
        if (siguiente_ < circulos_.cuantos()) {
            area_ = 0;
        }
    }

    /// Passes over the next pairs whose area faults for want of a place. An area of 0 stays 0 through them.
    void arrastrar(ConTamano i) {
        while (area_ != 0 && siguiente_ < circulos_.cuantos() &&
               !(circulos_.tieneSitio(i) && circulos_.tieneSitio(siguiente_))) {
            guardar(i, siguiente_);
            ++siguiente_;
        }
    }

    void guardar(ConTamano i, ConTamano j) {
        if (area_ != 0) {
            ++solape_.NumParesCopas;
            solape_.ParesCopas.push_back({circulos_.fila(i), circulos_.fila(j), area_});
        }
    }

    Circulos circulos_;
    Cercanas cercanas_;
    SolapeDeCopas& solape_;
    ConTamano siguiente_ = 0; ///< the pairs of the walk up to here are done
    double area_ = 0;         ///< of the last of them
};

} // namespace

void SolaparCirculos(const FilasDeCopas& copas, SolapeDeCopas& solape, const Avance& avance) {
    solape.NumParesCopas = -1;
    solape.ParesCopas.clear();
    Recorrido{copas, solape}.recorrer(avance);
    solape.AreaIntersecCopas = 0;
    for (const ParDeCopas& par : solape.ParesCopas) {
        solape.AreaIntersecCopas += par.area;
    }
}

} // namespace varo
