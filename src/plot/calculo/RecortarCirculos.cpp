#include "plot/calculo/RecortarCirculos.h"

#include "basico/Aritmetica.h"
#include "basico/Numeros.h"
#include "basico/Saltando.h"
#include "plot/calculo/Module1.h"

#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace varo {

namespace {

struct Sitio {
    double x = 0, y = 0;
};

/// A cell that is no number faults in each statement that reads it.
template <class T>
const T& Exigir(const std::optional<T>& leido) {
    if (!leido) {
        throw ErrorEjecucion{fallo::tiposDistintos};
    }
    return *leido;
}

/// A crown as its cells give it; the radius is in metres.
class CirculoRecortado {
public:
    CirculoRecortado(std::optional<Sitio> centro, std::optional<double> radio)
        : centro_{centro}, radio_{radio} {}

    [[nodiscard]] const Sitio& centro() const { return Exigir(centro_); }
    [[nodiscard]] double rr() const { return Exigir(radio_); }

private:
    std::optional<Sitio> centro_;
    std::optional<double> radio_;
};

double Separacion(const Sitio& a, const Sitio& b) {
    return Distancia(a.x, a.y, b.x, b.y);
}
double AnguloEn(const Sitio& a, const Sitio& b, const Sitio& c) {
    return AnguloVertice(a.x, a.y, b.x, b.y, c.x, c.y);
}

/// Cuts circles by one edge after another. Its variables are those of the whole run.
class Tijera {
public:
    /// Adds the piece that the edge from Q to R cuts off to `SupFuera`.
    void cortar(const CirculoRecortado& circulo, const Sitio& Q, const Sitio& R, double& SupFuera) {
        Saltando([&] {
            const Sitio& C = circulo.centro();
            h_ = AlturaTriangulo(C.x, C.y, Q.x, Q.y, R.x, R.y);
        });
        if (PruebaSaltando([&] { return h_ < circulo.rr(); })) {
            Saltando([&] { dQ_ = Separacion(circulo.centro(), Q); });
            Saltando([&] { dR_ = Separacion(circulo.centro(), R); });
            medir(circulo, Q, R);
            Saltando([&] { SupFuera = ExigirFinito(SupFuera + recorte_); });
        }
    }

    /// The last vertex that a crown was cut about.
    void centroDeVertice(const Sitio& P) { ultimoVertice_ = P; }

private:
    void medir(const CirculoRecortado& circulo, const Sitio& Q, const Sitio& R) {
        const auto hasta = [&](double dentro, double fuera) {
            return PruebaSaltando([&] { return dentro < circulo.rr() && fuera > circulo.rr(); });
        };
        if (PruebaSaltando([&] { return dQ_ < circulo.rr() && dR_ < circulo.rr(); })) {
            Saltando([&] {
                const Sitio& C = circulo.centro();
                recorte_ = ExigirFinito(((circulo.rr() * circulo.rr()) * 0.5) * AnguloEn(C, Q, R) -
                                        AreaTrianguloPuntos(C.x, C.y, Q.x, Q.y, R.x, R.y));
            });
        } else if (hasta(dQ_, dR_)) {
            // The centre: a tree or the vertex in hand.
            esquina(circulo, Q, R, [&] { return Separacion(Q, circulo.centro()); });
        } else if (hasta(dR_, dQ_)) {
            // Meant: from the last vertex that was a centre, not from the tree.
            esquina(circulo, R, Q, [&] { return Separacion(R, ultimoVertice_); });
        } else if (PruebaSaltando([&] { return AnguloEn(circulo.centro(), Q, R) > numeroPi / 2.0; })) {
            segmento(circulo);
        } else {
            recorte_ = 0;
        }
    }

    /// One end of the edge inside of the circle. `delLado` is the length that `lado` starts from.
    template <class Longitud>
    void esquina(const CirculoRecortado& circulo, const Sitio& dentro, const Sitio& fuera, Longitud delLado) {
        Saltando([&] { aQ_ = AnguloEn(dentro, circulo.centro(), fuera); });
        Saltando([&] {
            // Meant: the sine of the quotient.
            const double seno = std::sin(Dividir(AnguloEn(dentro, circulo.centro(), fuera), circulo.rr()));
            aX_ = Asin(Separacion(dentro, circulo.centro()) * seno);
        });
        aC_ = (numeroPi - aX_) - aQ_;
        Saltando([&] { lado_ = Dividir(delLado() * std::sin(aC_), std::sin(aX_)); });
        Saltando([&] {
            recorte_ =
                ExigirFinito(((circulo.rr() * circulo.rr()) * 0.5) * aC_ -
                             AreaTrianguloLados(circulo.rr(), lado_, Separacion(dentro, circulo.centro())));
        });
    }

    /// The edge passes through the circle, both ends outside.
    void segmento(const CirculoRecortado& circulo) {
        Saltando([&] { w_ = Acos(Dividir(h_, circulo.rr())); });
        Saltando(
            [&] { cuerda_ = ExigirFinito((2 * circulo.rr()) * std::sin(Acos(Dividir(h_, circulo.rr())))); });
        Saltando([&] {
            const double rr = circulo.rr();
            recorte_ = ExigirFinito(w_ * (rr * rr) - AreaTrianguloLados(rr, rr, cuerda_));
        });
    }

    double h_ = 0, dQ_ = 0, dR_ = 0;
    double aQ_ = 0, aX_ = 0, aC_ = 0, lado_ = 0;
    double w_ = 0, cuerda_ = 0;
    double recorte_ = 0;
    Sitio ultimoVertice_;
};

/// The mean radius in metres, rounded to a 32-bit float.
float RadioMedio(const FilaDeCopa& fila, const FilasDeCopas& copas) {
    const auto metros = [&](std::size_t n) { return Dividir(fila.medidas[n].numero(), copas.FactorRadios); };
    switch (copas.datos) {
    case DatosDeCopa::CuatroRadios: {
        const double r1 = metros(0);
        return ASimple((((metros(1) + r1) + metros(2)) + metros(3)) / 4.0);
    }
    case DatosDeCopa::DosDiametros: {
        const double d1 = metros(0);
        return ASimple((d1 + metros(1)) / 4.0);
    }
    case DatosDeCopa::RadioMedio:
        break;
    }
    return ASimple(metros(0));
}

/// The boundary with what the clipping reads of each row.
struct Contorno {
    Contorno(const TablaPoligono& Poligono, int colR) : lados{Poligono.filas() - 1} {
        for (int i = 0; i < Poligono.filas(); ++i) {
            vertice.push_back({ANumero(Poligono(0, i)), ANumero(Poligono(1, i))});
            textoX.push_back(ATexto(Poligono(0, i)));
            radio.emplace_back();
            // The boundary may be from before the codes were switched on or off.
            Saltando([&] { radio.back() = ANumero(Poligono(colR, i)); });
        }
    }

    int lados; ///< as many as vertices; the last row repeats the first
    std::vector<Sitio> vertice;
    std::vector<std::string> textoX;
    std::vector<std::optional<double>> radio;
};

class Recortador {
public:
    Recortador(const FilasDeCopas& copas, const Contorno& contorno) : copas_{copas}, contorno_{contorno} {}

    /// Meant: the rows behind the first one on a vertex are not looked at.
    double supFuera(const Avance& avance) {
        avance.empezar(copas_.filas.size());
        for (const FilaDeCopa& fila : copas_.filas) {
            avance.paso();
            Saltando([&] { r_ = static_cast<double>(RadioMedio(fila, copas_)); });
            if (recortarEnVertices(fila.x.texto())) {
                break;
            }
            recortarArbol(fila);
        }
        return supFuera_;
    }

private:
    /// Whether the tree counts as some vertex. Meant: x alone decides, as text, and a tree may be several.
    bool recortarEnVertices(const std::string& xt) {
        bool esVertice = false;
        for (int vertice = 0; vertice < contorno_.lados; ++vertice) {
            if (xt == contorno_.textoX[static_cast<std::size_t>(vertice)]) {
                esVertice = true;
                recortarVertice(vertice);
            }
        }
        return esVertice;
    }

    void recortarVertice(int vertice) {
        const auto i = static_cast<std::size_t>(vertice);
        tijera_.centroDeVertice(contorno_.vertice[i]);
        const CirculoRecortado circulo{contorno_.vertice[i], contorno_.radio[i]};
        for (int j = 0; j < contorno_.lados; ++j) {
            // Meant: the two edges that meet there are left out, but for the closing one at vertex 0.
            if (vertice - j > 1 || vertice - j < 0) {
                cortar(circulo, j);
            }
        }
    }

    void recortarArbol(const FilaDeCopa& fila) {
        std::optional<Sitio> centro;
        if (fila.x.esNumero() && fila.y.esNumero()) {
            centro = {fila.x.numero(), fila.y.numero()};
        }
        const CirculoRecortado circulo{centro, r_};
        for (int k = 0; k < contorno_.lados; ++k) {
            cortar(circulo, k);
        }
    }

    void cortar(const CirculoRecortado& circulo, int lado) {
        const auto k = static_cast<std::size_t>(lado);
        tijera_.cortar(circulo, contorno_.vertice[k], contorno_.vertice[k + 1], supFuera_);
    }

    const FilasDeCopas& copas_;
    const Contorno& contorno_;
    Tijera tijera_;
    double r_ = 0; ///< mean radius of the last row that has one
    double supFuera_ = 0;
};

} // namespace

RecorteDeCopas RecortarCirculos(const FilasDeCopas& copas, const TablaPoligono& Poligono,
                                const MatrizDinamica<double>& AnguloInterior, bool conCodigo,
                                const Avance& avance) {
    const Contorno contorno{Poligono, conCodigo ? 4 : 3};
    RecorteDeCopas recorte;
    for (int i = 0; i < contorno.lados; ++i) {
        Saltando([&] {
            const double r = Exigir(contorno.radio[static_cast<std::size_t>(i)]);
            recorte.SupVertices = ExigirFinito(recorte.SupVertices +
                                               ((numeroPi * (r * r)) * (360.0 - AnguloInterior(i))) / 360);
        });
    }
    recorte.SupFuera = Recortador{copas, contorno}.supFuera(avance);
    return recorte;
}

} // namespace varo
