// The figures of crowns of ellipse step by step, as they are defined: every crown is painted, every sample
// asks the surface for its colour, every statement that fails is passed over. The faster procedures must give
// the same bits.
#pragma once

#include "basico/Saltando.h"
#include "basico/Valor.h"
#include "lienzo/Lienzo.h"
#include "plot/calculo/FilasDeCopas.h"
#include "plot/calculo/Module1.h"
#include "plot/calculo/SolapeDeCopas.h"

#include <algorithm>
#include <span>
#include <vector>

namespace varo::prueba {

class ElipsesDePlotLiteral {
public:
    ElipsesDePlotLiteral(const FilasDeCopas& filas, const ContornoXY& contorno, const Escala& escala)
        : f_{filas}, contorno_{contorno} {
        superficie_.escala(escala);
        superficie_.BackColor = 0x00C0E0FF;
    }

    SolapeDeCopas solape() {
        SolapeDeCopas solape{{}, -1, 0};
        Copa A;
        for (std::size_t i = 0; i < f_.filas.size(); ++i) {
            superficie_.Cls();
            if (pasada(i)) {
                continue;
            }
            leer(A, i);
            pintar(A, 0);
            const double puntosA = contar(A, [](double, double) { return true; });
            double area = 0;
            Copa B;
            for (std::size_t j = i + 1; j < f_.filas.size(); ++j) {
                if (pasada(j)) {
                    continue;
                }
                leer(B, j);
                if (!sePuedenTocar(A, B)) {
                    continue;
                }
                Saltando([&] { area = areaDelPar(A, B, puntosA); });
                if (area != 0) {
                    guardar(solape, i, j, area);
                }
            }
        }
        for (int r = 0; r <= solape.NumParesCopas.valor(); ++r) {
            solape.AreaIntersecCopas += solape.ParesCopas[static_cast<std::size_t>(r)].area;
        }
        return solape;
    }

    double recorte(const std::vector<Valor>& areas) {
        double SupFuera = 0;
        Copa copa;
        for (std::size_t t = 0; t < f_.filas.size(); ++t) {
            superficie_.Cls();
            if (pasada(t)) {
                continue;
            }
            leer(copa, t);
            if (!cerca(copa)) {
                continue;
            }
            pintar(copa, 0);
            const double total = contar(copa, [](double, double) { return true; });
            const double fuera = contar(copa, [&](double x, double y) {
                return PruebaSaltando([&] { return !PuntoEnPoligono(contorno_, x, y); });
            });
            Saltando([&] {
                const double area = t < areas.size() ? ANumero(areas[t]) : throw ErrorEjecucion{3021};
                SupFuera = SupFuera + Dividir(fuera, total) * area;
            });
        }
        return SupFuera;
    }

private:
    [[nodiscard]] bool pasada(std::size_t r) const {
        const FilaDeCopa& fila = f_.filas[r];
        return fila.sinTamano || !EsNumerico(fila.x.texto()) || !EsNumerico(fila.y.texto());
    }

    void leer(Copa& copa, std::size_t r) const {
        const FilaDeCopa& fila = f_.filas[r];
        copa.x = ANumero(fila.x.texto());
        copa.y = ANumero(fila.y.texto());
        const auto celda = [&](std::size_t medida) { return ANumero(fila.medidas[medida].texto()); };
        if (f_.datos == DatosDeCopa::CuatroRadios) {
            Saltando([&] { copa.N = Dividir(celda(0), f_.FactorRadios); });
            Saltando([&] { copa.E = Dividir(celda(1), f_.FactorRadios); });
            Saltando([&] { copa.S = Dividir(celda(2), f_.FactorRadios); });
            Saltando([&] { copa.W = Dividir(celda(3), f_.FactorRadios); });
        } else {
            Saltando([&] { copa.N = Dividir(celda(0), 2 * f_.FactorRadios); });
            Saltando([&] { copa.S = Dividir(celda(0), 2 * f_.FactorRadios); });
            Saltando([&] { copa.E = Dividir(celda(1), 2 * f_.FactorRadios); });
            Saltando([&] { copa.W = Dividir(celda(1), 2 * f_.FactorRadios); });
        }
    }

    void pintar(const Copa& copa, Color color) {
        superficie_.ForeColor = color;
        superficie_.copa(copa);
    }

    /// The black samples of the box that pass a test.
    template <class Prueba>
    double contar(const Copa& c, Prueba prueba) {
        constexpr double paso = 0.1;
        double cuenta = 0;
        if (c.x - c.W + paso == c.x - c.W || c.y - c.S + paso == c.y - c.S || c.E + c.W > 1E5 ||
            c.N + c.S > 1E5) {
            return 0; // this walk would not end
        }
        for (double x = c.x - c.W; x <= c.x + c.E; x += paso) {
            for (double y = c.y - c.S; y <= c.y + c.N; y += paso) {
                if (superficie_.Point(x, y) == 0 && prueba(x, y)) {
                    cuenta += 1;
                }
            }
        }
        return cuenta;
    }

    [[nodiscard]] bool cerca(const Copa& c) const {
        const std::span<const double> px = contorno_.x;
        const std::span<const double> py = contorno_.y;
        for (std::size_t k = 0; k + 1 < px.size(); ++k) {
            const bool bloque = PruebaSaltando([&] {
                return AlturaTriangulo(c.x, c.y, px[k], py[k], px[k + 1], py[k + 1]) <
                       std::max({c.N, c.E, c.S, c.W});
            });
            if (bloque) {
                return true;
            }
        }
        return false;
    }

    double areaDelPar(const Copa& A, const Copa& B, double puntosA) {
        const double cuartos = A.N * A.E + A.E * A.S + A.S * A.W + A.W * A.N;
        if (cerca(B)) {
            const auto dentro = [&](double x, double y) {
                return PruebaSaltando([&] { return PuntoEnPoligono(contorno_, x, y); });
            };
            pintar(A, 0);
            const double c1 = contar(A, dentro);
            pintar(B, 0xFF0000);
            const double c2 = contar(A, dentro);
            return (Dividir(c1 - c2, puntosA) * 3.1415927 * cuartos) / 4;
        }
        pintar(A, 0);
        pintar(B, 0xFF0000);
        const double c2 = contar(A, [](double, double) { return true; });
        return ((1 - Dividir(c2, puntosA)) * 3.1415927 * cuartos) / 4;
    }

    static void guardar(SolapeDeCopas& solape, std::size_t i, std::size_t j, double area) {
        Saltando([&] { ++solape.NumParesCopas; });
        const auto fila = static_cast<std::size_t>(solape.NumParesCopas.valor());
        solape.ParesCopas.resize(fila + 1);
        solape.ParesCopas[fila] = {static_cast<double>(i + 1), static_cast<double>(j + 1), area};
    }

    static bool sePuedenTocar(const Copa& a, const Copa& b) {
        if (a.x < b.x && a.y > b.y) {
            return a.x + a.E > b.x - b.W && a.y - a.S < b.y + b.N;
        }
        if (a.x < b.x && a.y < b.y) {
            return a.x + a.E > b.x - b.W && a.y + a.N > b.y - b.S;
        }
        if (a.x > b.x && a.y > b.y) {
            return a.x - a.W < b.x + b.E && a.y - a.S < b.y + b.N;
        }
        return a.x - a.W < b.x + b.E && a.y + a.N > b.y - b.S;
    }

    const FilasDeCopas& f_;
    ContornoXY contorno_;
    Lienzo superficie_;
};

} // namespace varo::prueba
