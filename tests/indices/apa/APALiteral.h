// APA step by step: every search over all rows, every table rebuilt for each subject, nothing
// left out. The judge of the fast one.
#pragma once

#include "basico/Aritmetica.h"
#include "basico/Saltando.h"
#include "indices/apa/APA.h"
#include "indices/vecinos/Arboles.h"
#include "plot/calculo/Module1.h"

#include <cstddef>
#include <vector>

namespace varo::literal {

struct Trazo {
    std::size_t arbol = 0;
    TrazoAPA lado;
    bool operator==(const Trazo&) const = default;
};

/// What a column gives as far as it comes: it may end in a fault.
struct Columna {
    std::vector<double> indices;
    std::vector<Trazo> trazos;
    int fallo = 0;
    double CentroCircX = 0, CentroCircY = 0; // of the last circle, 0 before there is one
    bool operator==(const Columna&) const = default;
};

class APA {
public:
    APA(const Arboles& arboles, const ContornoXY& contorno, double k)
        : arboles_{arboles}, contorno_{contorno}, k_{k}, FilasGrid_{arboles.cuantos() + 1} {}

    Columna columna() {
        const auto error = Saltando([&] {
            for (std::size_t i = 1; i <= FilasGrid_ - 1; ++i) {
                columna_.indices.push_back(indice(i));
            }
        });
        columna_.fallo = error ? error->numero() : 0;
        return columna_;
    }

private:
    struct Bisectriz {
        std::size_t vecino = 0;
        double mx = 0, my = 0, pendiente = 0, intercepto = 0;
    };
    struct Vertice {
        double x = 0, y = 0;
    };

    // Rows count from 1 here, as in the grid.
    [[nodiscard]] double X(std::size_t r) const { return arboles_.x(r - 1); }
    [[nodiscard]] double Y(std::size_t r) const { return arboles_.y(r - 1); }
    [[nodiscard]] double d(std::size_t r) const { return arboles_.d(r - 1); }
    [[nodiscard]] bool vacia(std::size_t r) const { return arboles_.sinTamano(r - 1); }

    double indice(std::size_t i) {
        if (vacia(i)) {
            return -3;
        }
        static_cast<void>(d(i));
        if (arboles_.esVertice(i - 1)) {
            return -1;
        }
        colocarVecinos(i);
        primerLado(i);
        girar(i);
        Bisectrices_.push_back(Bisectrices_[0]);
        const std::size_t E = Bisectrices_.size() - 1;
        calcularVertices(E);
        const bool cortada = probarBorde(i, E);
        const double area = cortada ? -2 : medirArea(E);
        columna_.trazos.insert(columna_.trazos.end(), dibujo_.begin(), dibujo_.end());
        return area;
    }

    [[nodiscard]] double medirArea(std::size_t E) const {
        double area = 0;
        for (std::size_t v = 1; v + 2 <= E; ++v) {
            area += AreaTrianguloPuntos(Vertices_[0].x, Vertices_[0].y, Vertices_[v].x, Vertices_[v].y,
                                        Vertices_[v + 1].x, Vertices_[v + 1].y);
        }
        return area;
    }

    void colocarVecinos(std::size_t i) {
        ax_.assign(FilasGrid_, 0);
        ay_.assign(FilasGrid_, 0);
        ad_.assign(FilasGrid_, 0);
        for (std::size_t j = 1; j <= FilasGrid_ - 1; ++j) {
            if (vacia(j)) {
                continue;
            }
            if (j == i) {
                ax_[j] = X(i);
                ay_[j] = Y(i);
                ad_[j] = d(i);
                continue;
            }
            const double dj = d(j);
            const double L = Distancia(X(i), Y(i), X(j), Y(j));
            const double pi = Potencia(d(i), k_);
            const double Lw = 2.0 * Dividir(pi, ExigirFinito(pi + Potencia(dj, k_))) * L;
            const double s = Dividir(Y(j) - Y(i), X(j) - X(i));
            const double dx = Lw * Raiz(Dividir(1, s * s + 1));
            const double dy = Lw * Raiz(Dividir(s * s, s * s + 1));
            if (X(j) < X(i) && Y(j) > Y(i)) {
                ax_[j] = X(i) - dx;
                ay_[j] = Y(i) + dy;
            } else if (X(j) < X(i) && Y(j) < Y(i)) {
                ax_[j] = X(i) - dx;
                ay_[j] = Y(i) - dy;
            } else if (X(j) > X(i) && Y(j) < Y(i)) {
                ax_[j] = X(i) + dx;
                ay_[j] = Y(i) - dy;
            } else {
                ax_[j] = X(i) + dx;
                ay_[j] = Y(i) + dy;
            }
            ad_[j] = dj;
        }
    }

    void anadirLado(std::size_t i, std::size_t j) {
        const double mx = (X(i) + ax_[j]) / 2;
        const double my = (Y(i) + ay_[j]) / 2;
        const double s = Dividir(ay_[j] - Y(i), ax_[j] - X(i));
        const double pendiente = Dividir(-1, s);
        Bisectrices_.push_back({j, mx, my, pendiente, my - pendiente * mx});
    }

    void primerLado(std::size_t i) {
        double mejor = 999999;
        ceros_ = 0;
        a_ = 0;
        for (std::size_t j = 1; j <= FilasGrid_ - 1; ++j) {
            if (j == i) {
                continue;
            }
            if (ad_[j] == 0) {
                ++ceros_;
            } else if (const double distancia = Distancia(X(i), Y(i), ax_[j], ay_[j]); distancia < mejor) {
                mejor = distancia;
                a_ = j;
            }
        }
        Bisectrices_.clear();
        if (a_ == 0) {
            throw ErrorEjecucion{fallo::divisionPorCero};
        }
        anadirLado(i, a_);
        taken_ = 1;
        visitado_.assign(FilasGrid_, false);
        visitado_[i] = true;
        visitado_[a_] = true;
    }

    std::size_t buscar(std::size_t i, double a0) const {
        double menor = 370;
        std::size_t b = 0;
        for (std::size_t c = 1; c <= FilasGrid_ - 1; ++c) {
            if (ad_[c] == 0 || visitado_[c]) {
                continue;
            }
            const double a = AnguloDireccion(X(i), Y(i), ax_[c], ay_[c]);
            const double diferencia = a < a0 ? 360.0 - (a0 - a) : a - a0;
            if (diferencia < menor) {
                menor = diferencia;
                b = c;
            }
        }
        return b;
    }

    void girar(std::size_t i) {
        for (std::size_t vez = 1; vez <= FilasGrid_ - 1; ++vez) {
            const double a0 = AnguloDireccion(X(i), Y(i), ax_[a_], ay_[a_]);
            std::size_t b = 0;
            while (true) {
                b = buscar(i, a0);
                ++taken_;
                if (FilasGrid_ - ceros_ - 1 == taken_) {
                    return;
                }
                visitado_[b] = true;
                const auto circulo = RadioCircunscrito(X(i), Y(i), ax_[a_], ay_[a_], ax_[b], ay_[b]);
                columna_.CentroCircX = circulo.CentroCircX;
                columna_.CentroCircY = circulo.CentroCircY;
                if (vacio(i, b, circulo)) {
                    break;
                }
            }
            anadirLado(i, b);
            a_ = b;
        }
    }

    bool vacio(std::size_t i, std::size_t b, const CirculoCircunscrito& circulo) const {
        for (std::size_t t = 1; t <= FilasGrid_ - 1; ++t) {
            if (t == i || t == a_ || t == b || ad_[t] == 0) {
                continue;
            }
            if (Distancia(ax_[t], ay_[t], circulo.CentroCircX, circulo.CentroCircY) < circulo.radio) {
                return false;
            }
        }
        return true;
    }

    void calcularVertices(std::size_t E) {
        Vertices_.assign(E + 1, {});
        for (std::size_t v = 0; v + 1 <= E; ++v) {
            const Bisectriz& p = Bisectrices_[v];
            const Bisectriz& q = Bisectrices_[v + 1];
            Vertices_[v].x = Dividir(q.intercepto - p.intercepto, p.pendiente - q.pendiente);
            Vertices_[v].y = p.pendiente * Vertices_[v].x + p.intercepto;
        }
        Vertices_[E] = Vertices_[0];
    }

    bool probarBorde(std::size_t i, std::size_t E) {
        dibujo_.clear();
        bool cortada = false;
        for (std::size_t v = 0; v + 1 <= E; ++v) {
            const Vertice& p = Vertices_[v];
            const Vertice& q = Vertices_[v + 1];
            const bool A = PuntoEnPoligono(contorno_, p.x, p.y);
            const bool B = PuntoEnPoligono(contorno_, q.x, q.y);
            if (A && B) {
                dibujo_.push_back({i - 1, {p.x, p.y, q.x, q.y}});
            } else if (A) {
                cortada = true;
                cruzar(i, p, q);
            } else if (B) {
                cortada = true;
                cruzar(i, q, p);
            }
        }
        return cortada;
    }

    void cruzar(std::size_t i, const Vertice& p, const Vertice& q) {
        const auto px = contorno_.x;
        const auto py = contorno_.y;
        for (std::size_t k = 0; k + 1 < px.size(); ++k) {
            bool hallado = false;
            Saltando([&] {
                const double m = Dividir(q.y - p.y, q.x - p.x);
                const double b = p.y - m * p.x;
                const double mk = Dividir(py[k + 1] - py[k], px[k + 1] - px[k]);
                const double bk = py[k + 1] - mk * px[k + 1];
                const double x = Dividir(bk - b, m - mk);
                const double y = m * x + b;
                const bool enX = (px[k] < x && x < px[k + 1]) || (px[k + 1] < x && x < px[k]);
                const bool enY = (py[k] < y && y < py[k + 1]) || (py[k + 1] < y && y < py[k]);
                const bool alla = (p.x < q.x && p.x < x) || (q.x < p.x && x < p.x) ||
                                  (p.y < q.y && p.y < y) || (q.y < p.y && y < p.y);
                if ((enX || enY) && alla) {
                    dibujo_.push_back({i - 1, {p.x, p.y, x, y}});
                    hallado = true;
                }
            });
            if (hallado) {
                return;
            }
        }
    }

    const Arboles& arboles_;
    const ContornoXY& contorno_;
    double k_;
    std::size_t FilasGrid_;
    std::vector<double> ax_, ay_, ad_;
    std::vector<Bisectriz> Bisectrices_;
    std::vector<bool> visitado_;
    std::vector<Vertice> Vertices_;
    std::vector<Trazo> dibujo_;
    std::size_t ceros_ = 0, taken_ = 0, a_ = 0;
    Columna columna_;
};

} // namespace varo::literal
