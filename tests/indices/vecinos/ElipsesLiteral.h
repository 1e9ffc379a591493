// ISC of ellipses step by step, as it is defined: every crown is painted, every sample asks the surface for
// its colour. The faster procedure must give the same bits and the same faults.
#pragma once

#include "indices/vecinos/VecindadLiteral.h"
#include "lienzo/Lienzo.h"

#include <algorithm>

namespace varo::prueba {

class ElipsesLiteral : public VecindadLiteral {
public:
    ElipsesLiteral(const ParcelaLiteral& parcela, const Escala& escala) : VecindadLiteral{parcela} {
        superficie_.escala(escala);
        superficie_.BackColor = 0x00C0E0FF;
    }

    Columna ISC(Lado lado) {
        return columna([&](std::size_t i) { return isc(i, lado); });
    }
    /// What is painted at the end.
    Lienzo& superficie() { return superficie_; }

private:
    [[nodiscard]] Copa copa(std::size_t i) const {
        std::vector<double> metros;
        for (const auto& medida : p_.copa) {
            const bool radios = p_.datosDeCopa == DatosDeCopa::CuatroRadios;
            metros.push_back(Dividir(ANumero(medida[i]), radios ? p_.factorRadios : 2 * p_.factorRadios));
        }
        if (p_.datosDeCopa == DatosDeCopa::DosDiametros) {
            metros = {metros[0], metros[1], metros[0], metros[1]};
        }
        const double x = ANumero(p_.x[i]);
        const double y = ANumero(p_.y[i]);
        return {x, y, metros[0], metros[1], metros[2], metros[3]};
    }

    double isc(std::size_t i, Lado lado) {
        superficie_.Cls();
        if (vacia(i)) {
            return -3;
        }
        const double tamano = cm(i);
        if (vertice(i)) {
            return -1;
        }
        const Copa suya = copa(i);
        const double mayor = std::max({suya.N, suya.E, suya.S, suya.W});
        for (std::size_t k = 0; k + 1 < p_.contornoX.size(); ++k) {
            if (altura(i, k) < mayor) {
                pintar(suya, 0);
                if (algunaMuestraFuera(suya)) {
                    return -2;
                }
            }
        }
        pintar(suya, 0);
        const double A = negras(suya);
        double suma = 0;
        for (std::size_t j = 0; j < filas(); ++j) {
            if (j == i || vacia(j)) {
                continue;
            }
            vecino_ = j;
            if (cm(j) < tamano && lado == Lado::Unilateral) {
                continue;
            }
            const Copa otra = copa(j);
            if (sePuedenTocar(suya, otra)) {
                pintar(suya, 0);
                pintar(otra, 0xFF0000);
                suma = suma + (A - negras(suya));
            }
        }
        vecino_.reset();
        return Dividir(suma, A);
    }

    void pintar(const Copa& copa, Color color) {
        superficie_.ForeColor = color;
        superficie_.copa(copa);
    }

    [[nodiscard]] bool algunaMuestraFuera(const Copa& c) const {
        for (double x = c.x - c.W; x <= c.x + c.E; x += 0.5) {
            for (double y = c.y - c.S; y <= c.y + c.N; y += 0.5) {
                if (!PuntoEnPoligono(p_.contorno(), x, y)) {
                    return true;
                }
            }
        }
        return false;
    }

    double negras(const Copa& c) {
        int cuenta = 0;
        for (double x = c.x - c.W; x <= c.x + c.E; x += 0.1) {
            for (double y = c.y - c.S; y <= c.y + c.N; y += 0.1) {
                cuenta += superficie_.Point(x, y) == 0 ? 1 : 0;
            }
        }
        return cuenta;
    }

    static bool sePuedenTocar(const Copa& i, const Copa& j) {
        if (i.x < j.x && i.y > j.y) {
            return i.x + i.E > j.x - j.W && i.y - i.S < j.y + j.N;
        }
        if (i.x < j.x && i.y < j.y) {
            return i.x + i.E > j.x - j.W && i.y + i.N > j.y - j.S;
        }
        if (i.x > j.x && i.y > j.y) {
            return i.x - i.W < j.x + j.E && i.y - i.S < j.y + j.N;
        }
        return i.x - i.W < j.x + j.E && i.y + i.N > j.y - j.S;
    }

    Lienzo superficie_;
};

} // namespace varo::prueba
