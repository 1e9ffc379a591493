// The families of neighbours step by step, as they are defined: every cell is converted where it is needed,
// every tree is looked at for every subject, every rank is counted. The faster procedures must give the same
// bits and the same faults.
#pragma once

#include "basico/Aritmetica.h"
#include "basico/ErrorEjecucion.h"
#include "basico/Numeros.h"
#include "indices/vecinos/Arboles.h"
#include "indices/vecinos/FuncionesDeLista.h"
#include "indices/vecinos/IDP.h"
#include "indices/vecinos/Lado.h"
#include "plot/calculo/AreaInterseccionCirculos.h"
#include "plot/calculo/Module1.h"
#include "plot/calculo/Unidades.h"

#include <cmath>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace varo::prueba {

/// A plot as texts of cells, and its boundary.
struct ParcelaLiteral {
    std::vector<std::string> x, y, tamano;
    std::vector<std::vector<std::string>> copa; ///< by measure, then by tree
    UnidadesTallo unidades;
    DatosDeCopa datosDeCopa = DatosDeCopa::RadioMedio;
    int factorRadios = 1;
    std::vector<double> contornoX, contornoY;

    [[nodiscard]] ContornoXY contorno() const { return {contornoX, contornoY}; }
};

/// The same plot as the program holds it.
inline Arboles ArbolesDe(const ParcelaLiteral& parcela) {
    CeldasDeArboles celdas;
    celdas.x = {"X", parcela.x};
    celdas.y = {"Y", parcela.y};
    celdas.tamano = {"CAP", parcela.tamano};
    for (const auto& medida : parcela.copa) {
        celdas.copa.emplace_back("R", medida);
    }
    return {std::move(celdas), parcela.unidades, parcela.contorno()};
}

/// What a column came to: its values, or the fault with the pair at which it happened.
struct Columna {
    std::vector<double> valores;
    int fallo = 0;
    std::size_t sujeto = 0;
    std::optional<std::size_t> vecino;
};

class VecindadLiteral {
public:
    explicit VecindadLiteral(const ParcelaLiteral& parcela) : p_{parcela} {}

    Columna ISC(Lado lado) {
        return columna([&](std::size_t i) { return isc(i, lado); });
    }
    Columna AOI(Lado lado, const SumaDePotencias& radio, double k) {
        return columna([&](std::size_t i) { return aoi(i, lado, radio, k); });
    }

    /// The rule, and its parameter or entry.
    struct Regla {
        ReglaDeSeleccion regla = ReglaDeSeleccion::BAF;
        double p = 0;
        std::string entrada;
    };
    Columna IDP(const Regla& regla, Lado lado, FormaIDP forma) {
        return columna([&](std::size_t i) { return idp(i, regla, lado, forma); });
    }
    Columna DR(const Regla& regla, Lado lado, const std::string& entrada, double k) {
        return columna([&](std::size_t i) { return dr(i, regla, lado, entrada, k); });
    }

protected:
    enum class Juicio { Rechazado, Borde, Aceptado };

    Columna columna(const std::function<double(std::size_t)>& indice) {
        Columna c;
        try {
            for (std::size_t i = 0; i < filas(); ++i) {
                c.sujeto = i;
                vecino_.reset();
                c.valores.push_back(indice(i));
            }
        } catch (const ErrorEjecucion& error) {
            c.fallo = error.numero();
            c.vecino = vecino_;
        }
        return c;
    }

    [[nodiscard]] std::size_t filas() const { return p_.tamano.size(); }
    [[nodiscard]] bool vacia(std::size_t i) const { return p_.tamano[i].empty(); }

    [[nodiscard]] double cm(std::size_t i) const {
        const auto dap =
            static_cast<double>(p_.unidades.circunferencia ? static_cast<float>(1.0 / 3.1415927) : 1.0F);
        const double unidad = p_.unidades.unidad == UnidadLongitud::Centimetros  ? 1
                              : p_.unidades.unidad == UnidadLongitud::Decimetros ? 10
                                                                                 : 100;
        return ExigirFinito(ANumero(p_.tamano[i]) * dap * unidad);
    }
    [[nodiscard]] double d(std::size_t i) const { return cm(i) / 100; }

    [[nodiscard]] double L(std::size_t i, std::size_t j) const {
        const double xi = ANumero(p_.x[i]);
        const double yi = ANumero(p_.y[i]);
        const double xj = ANumero(p_.x[j]);
        const double yj = ANumero(p_.y[j]);
        return Distancia(xi, yi, xj, yj);
    }

    [[nodiscard]] bool vertice(std::size_t i) const {
        for (std::size_t k = 0; k + 1 < p_.contornoX.size(); ++k) {
            if (ATexto(p_.contornoX[k]) == p_.x[i] && ATexto(p_.contornoY[k]) == p_.y[i]) {
                return true;
            }
        }
        return false;
    }

    [[nodiscard]] double altura(std::size_t i, std::size_t k) const {
        const double xi = ANumero(p_.x[i]);
        const double yi = ANumero(p_.y[i]);
        return AlturaTriangulo(xi, yi, p_.contornoX[k], p_.contornoY[k], p_.contornoX[k + 1],
                               p_.contornoY[k + 1]);
    }
    [[nodiscard]] bool bordeMenor(std::size_t i, double limite) const {
        for (std::size_t k = 0; k + 1 < p_.contornoX.size(); ++k) {
            if (altura(i, k) < limite) {
                return true;
            }
        }
        return false;
    }
    [[nodiscard]] bool bordeMenorOIgual(std::size_t i, double limite) const {
        for (std::size_t k = 0; k + 1 < p_.contornoX.size(); ++k) {
            if (altura(i, k) <= limite) {
                return true;
            }
        }
        return false;
    }

    static float simple(double numero) {
        const auto f = static_cast<float>(numero);
        ExigirFinito(static_cast<double>(f));
        return f;
    }

    [[nodiscard]] float radioMedio(std::size_t i) const {
        std::vector<double> metros;
        for (const auto& medida : p_.copa) {
            metros.push_back(Dividir(ANumero(medida[i]), p_.factorRadios));
        }
        if (p_.datosDeCopa == DatosDeCopa::CuatroRadios) {
            return simple((metros[0] + metros[1] + metros[2] + metros[3]) / 4);
        }
        return simple(p_.datosDeCopa == DatosDeCopa::DosDiametros ? (metros[0] + metros[1]) / 4 : metros[0]);
    }

    double isc(std::size_t i, Lado lado) {
        if (vacia(i)) {
            return -3;
        }
        const double tamano = cm(i);
        const double ri = radioMedio(i);
        if (ri == 0) {
            return -3;
        }
        if (vertice(i)) {
            return -1;
        }
        if (bordeMenor(i, ri)) {
            return -2;
        }
        float suma = 0;
        for (std::size_t j = 0; j < filas(); ++j) {
            if (j == i || vacia(j)) {
                continue;
            }
            vecino_ = j;
            if (cm(j) < tamano && lado == Lado::Unilateral) {
                continue;
            }
            const double rj = radioMedio(j);
            suma = simple(static_cast<double>(suma) + interseccion(i, j, ri, rj));
        }
        vecino_.reset();
        return Dividir(static_cast<double>(suma), 3.1415927 * (ri * ri));
    }

    [[nodiscard]] double interseccion(std::size_t i, std::size_t j, double ri, double rj) const {
        const double xi = ANumero(p_.x[i]);
        const double yi = ANumero(p_.y[i]);
        const double xj = ANumero(p_.x[j]);
        const double yj = ANumero(p_.y[j]);
        return AreaInterseccionCirculos(xi, yi, xj, yj, ri, rj);
    }

    double aoi(std::size_t i, Lado lado, const SumaDePotencias& radio, double k) {
        if (vacia(i) || p_.tamano[i] == "0") {
            return -3;
        }
        const double Di = cm(i);
        const double Ri = radio.en(Di);
        if (vertice(i)) {
            return -1;
        }
        if (bordeMenorOIgual(i, Ri)) {
            return -2;
        }
        double suma = 0;
        for (std::size_t j = 0; j < filas(); ++j) {
            if (j == i || vacia(j)) {
                continue;
            }
            vecino_ = j;
            const double Dj = cm(j);
            if (Dj < Di && lado == Lado::Unilateral) {
                continue;
            }
            const double w = Potencia(Dividir(ANumero(p_.tamano[j]), ANumero(p_.tamano[i])), k);
            const double Rj = radio.en(Dj);
            const double area = interseccion(i, j, Ri, Rj);
            suma = ExigirFinito(suma + Dividir(area, ExigirFinito(3.1415927 * (Ri * Ri))) * w);
        }
        return suma;
    }

    double idp(std::size_t i, const Regla& regla, Lado lado, FormaIDP forma) {
        if (vacia(i)) {
            return -3;
        }
        const double di = d(i);
        if (vertice(i)) {
            return -1;
        }
        double suma = 0;
        int m = 0;
        for (std::size_t j = 0; j < filas(); ++j) {
            if (j == i || vacia(j)) {
                continue;
            }
            vecino_ = j;
            const double dj = d(j);
            if (dj < di && lado == Lado::Unilateral) {
                continue;
            }
            int rango = 1;
            const Juicio juicio = juzgar(i, j, regla, true, rango);
            if (juicio == Juicio::Borde) {
                return -2;
            }
            if (juicio == Juicio::Aceptado) {
                const double razon = Dividir(dj, L(i, j));
                suma = ExigirFinito(suma + (rango + (forma == FormaIDP::ConArbolCentral ? 0.5 : -0.5)) *
                                               (razon * razon));
                ++m;
            }
        }
        vecino_.reset();
        return m > 0 ? ExigirFinito(Dividir(2500, m) * suma) : 0;
    }

    double dr(std::size_t i, const Regla& regla, Lado lado, const std::string& entrada, double k) {
        if (vacia(i) || p_.tamano[i] == "0") {
            return -3;
        }
        const double di = d(i);
        if (vertice(i)) {
            return -1;
        }
        double suma = 0;
        for (std::size_t j = 0; j < filas(); ++j) {
            if (j == i || vacia(j)) {
                continue;
            }
            vecino_ = j;
            const double dj = d(j);
            if (dj < di && lado == Lado::Unilateral) {
                continue;
            }
            const FuncionDeDistancia funcion = LeerFuncionDeDistancia(entrada);
            const double f = funcion.en(L(i, j));
            int rango = 1;
            const Juicio juicio = juzgar(i, j, regla, false, rango);
            if (juicio == Juicio::Borde) {
                return -2;
            }
            if (juicio == Juicio::Aceptado) {
                suma = ExigirFinito(suma + f * Potencia(Dividir(dj, di), k));
            }
        }
        return suma;
    }

    /// One candidate; `deIDP` tells the two families apart.
    Juicio juzgar(std::size_t i, std::size_t j, const Regla& regla, bool deIDP, int& rango) {
        switch (regla.regla) {
        case ReglaDeSeleccion::BAF:
            return porAngulo(i, j, regla.p, deIDP, rango);
        case ReglaDeSeleccion::NumeroFijo:
            return porNumero(i, j, regla.p, deIDP, rango);
        case ReglaDeSeleccion::Funcion:
            return porLimite(i, j, LeerFuncionDeLimite(regla.entrada).en(d(i)), deIDP, rango);
        default:
            return porLimite(i, j, regla.p, deIDP, rango);
        }
    }

    [[nodiscard]] double angulo(std::size_t i, std::size_t j) const {
        const double dj = d(j);
        return Dividir(dj, L(i, j));
    }

    [[nodiscard]] bool mejorAngulo(std::size_t i, std::size_t m, std::size_t j) const {
        const double suyo = angulo(i, m);
        return suyo > angulo(i, j);
    }

    Juicio porAngulo(std::size_t i, std::size_t j, double baf, bool deIDP, int& rango) {
        const double vista = angulo(i, j);
        const double raiz = Raiz(baf);
        if (!(vista > raiz / 50)) {
            return Juicio::Rechazado;
        }
        if (bordeMenor(i, Dividir(d(j) * 50, raiz))) {
            return Juicio::Borde;
        }
        for (std::size_t m = 0; m < filas() && deIDP; ++m) {
            if (m != i && m != j && !vacia(m) && mejorAngulo(i, m, j)) {
                ++rango;
            }
        }
        return Juicio::Aceptado;
    }

    Juicio porNumero(std::size_t i, std::size_t j, double n, bool deIDP, int& rango) {
        for (std::size_t m = 0; m < filas(); ++m) {
            if (m == i || m == j || vacia(m)) {
                continue;
            }
            const bool mejor = deIDP ? mejorAngulo(i, m, j) : L(i, m) < L(i, j);
            if (mejor) {
                ++rango;
                if (rango > n) {
                    return Juicio::Rechazado;
                }
            }
        }
        return bordeMenor(i, L(i, j)) ? Juicio::Borde : Juicio::Aceptado;
    }

    Juicio porLimite(std::size_t i, std::size_t j, double limite, bool deIDP, int& rango) {
        if (bordeMenor(i, limite)) {
            return Juicio::Borde;
        }
        if (!(L(i, j) <= limite)) {
            return Juicio::Rechazado;
        }
        for (std::size_t m = 0; m < filas() && deIDP; ++m) {
            if (m != i && m != j && !vacia(m) && L(i, m) <= limite && mejorAngulo(i, m, j)) {
                ++rango;
            }
        }
        return Juicio::Aceptado;
    }

    const ParcelaLiteral& p_;
    std::optional<std::size_t> vecino_;
};

} // namespace varo::prueba
