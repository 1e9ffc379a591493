#include "revision/RevisarMedidas.h"

#include "revision/Efectos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <vector>

namespace varo {

namespace {

constexpr double ancha = 15;       // m
constexpr double inmensa = 10'000; // m
constexpr double diminuta = 0.2;   // m
constexpr double desigual = 10;
constexpr std::size_t pocos = 3;

/// Of one tree, in metres: to the north, east, south and west.
using Radios = std::array<double, 4>;

/// Where the samples of a box stand along one axis, seen from the tree (m). The sums are those of the
/// drawing. Of a wide box those near the tree are enough.
std::vector<double> MuestrasCercanas(double arbol, double atras, double adelante) {
    constexpr double paso = 0.1;
    constexpr double cerca = 2;
    constexpr int bastantes = 50;
    double muestra = arbol - atras;
    if (atras > cerca) {
        muestra += std::floor((atras - cerca) / paso) * paso;
    }
    const double ultima = arbol + std::min(adelante, cerca);
    std::vector<double> muestras;
    for (int n = 0; n < bastantes && muestra <= ultima; ++n) {
        muestras.push_back(muestra - arbol);
        muestra += paso;
    }
    return muestras;
}

/// Whether a crown covers one at least of the samples of its box, one each 0.1 m from its lower left corner.
bool CubreAlgunaMuestra(const Radios& radios, double x, double y) {
    constexpr double masAncha = 0.5; // a wider box has samples without a doubt
    const auto [norte, este, sur, oeste] = radios;
    if (std::min(norte + sur, este + oeste) > masAncha) {
        return true;
    }
    const auto pintado = [](double radio) { return radio == 0 ? 0.5 : radio; };
    for (const double dx : MuestrasCercanas(x, oeste, este)) {
        for (const double dy : MuestrasCercanas(y, sur, norte)) {
            const double parteX = dx / pintado(dx >= 0 ? este : oeste);
            const double parteY = dy / pintado(dy >= 0 ? norte : sur);
            if (parteX * parteX + parteY * parteY <= 1) {
                return true;
            }
        }
    }
    return false;
}

class RevisorDeCopas {
public:
    RevisorDeCopas(const Lectura& lectura, Cuaderno& cuaderno)
        : lectura_{lectura}, cuaderno_{cuaderno}, gravedad_{IndicesDeLaCopa(lectura.opciones()).empty()
                                                                ? Gravedad::Mirar
                                                                : Gravedad::Numeros} {
        for (const std::size_t i : lectura.arboles()) {
            if (std::ranges::all_of(lectura.copa(), [&](const auto& medida) {
                    return medida.esNumero(i) && medida.numero(i) >= 0;
                })) {
                medidos_.push_back(i);
            }
        }
    }

    void revisar() {
        std::vector<double> mayores;
        for (const std::size_t i : medidos_) {
            mayores.push_back(std::ranges::max(lectura_.radios(i)));
        }
        const auto con = [&](const auto& prueba) {
            return static_cast<std::size_t>(std::ranges::count_if(mayores, prueba));
        };
        const std::size_t conCopa = con([](double radio) { return radio > 0; });
        const std::size_t anchas = con([](double radio) { return radio > ancha; });
        const std::size_t diminutas = con([](double radio) { return radio > 0 && radio < diminuta; });
        if (conCopa == 0 && medidos_.size() >= pocos) {
            anotarNinguna();
            return;
        }
        const bool todasAnchas = conCopa >= pocos && anchas * 5 > conCopa;
        if (todasAnchas) {
            anotarTodas(Sospecha::CopaEnorme, "Muchas copas pasan de 15 m de radio.");
        } else if (conCopa >= pocos && diminutas == conCopa) {
            anotarTodas(Sospecha::CopasDiminutas, "Ninguna copa llega a 0,2 m de radio.");
        } else {
            revisarProporcion(mayores);
        }
        for (std::size_t n = 0; n < medidos_.size(); ++n) {
            revisarCopa(medidos_[n], mayores[n], todasAnchas);
        }
    }

private:
    /// Crowns against stems: a unit one step wrong.
    void revisarProporcion(const std::vector<double>& mayores) {
        constexpr std::size_t bastantes = 10;
        constexpr double estrecha = 5;
        constexpr double anchisima = 80;
        std::vector<double> razones;
        for (std::size_t n = 0; n < medidos_.size(); ++n) {
            const double d = lectura_.conTamano(medidos_[n]) ? lectura_.diametro(medidos_[n]) : 0;
            if (d > 0 && mayores[n] > 0) {
                razones.push_back(2 * lectura_.radioMedio(medidos_[n]) * 100 / d);
            }
        }
        if (razones.size() < bastantes) {
            return;
        }
        const auto mitad = razones.begin() + static_cast<std::ptrdiff_t>(razones.size() / 2);
        std::ranges::nth_element(razones, mitad);
        if (*mitad >= estrecha && *mitad <= anchisima) {
            return;
        }
        Hallazgo hallazgo =
            EnColumna(Gravedad::Mirar, Sospecha::CopasDesproporcionadas, lectura_.copa().front().columna());
        hallazgo.que = "Las copas son " + std::string{*mitad < estrecha ? "muy estrechas" : "muy anchas"} +
                       " para sus troncos: la copa de en medio mide " +
                       NumeroDicho(std::round(*mitad * 10) / 10) + " veces el diámetro de su tronco.";
        hallazgo.efecto = "Si una unidad no es la de la hoja, salen mal las copas o las áreas basimétricas.";
        hallazgo.remedio =
            "Compruebe en las opciones las unidades de las copas y de los troncos, y si el tamaño es "
            "circunferencia o diámetro.";
        cuaderno_.anotar(hallazgo);
    }

    void revisarCopa(std::size_t i, double mayor, bool todasAnchas) {
        if (mayor > ancha && !todasAnchas) {
            anotar(Gravedad::Mirar, Sospecha::CopaEnorme, i,
                   "Un radio de la copa mide " + NumeroDicho(std::round(mayor * 10) / 10) + " m, más de 15.",
                   "Si no es verdad, la superficie de las copas, su cubierta e ISC salen mal.",
                   "Compruebe la coma del número y la unidad.");
        }
        if (mayor == 0) {
            anotar(Gravedad::Mirar, Sospecha::ArbolSinCopa, i,
                   "El árbol no tiene copa: todas sus medidas son 0.",
                   lectura_.opciones().copasCirculares
                       ? "No cubre nada, y ISC le pone la marca -3 (sin copa)."
                       : "Solo cubre un círculo de medio metro, con el que se dibuja.",
                   "Si tiene copa, escriba sus medidas; si es un tocón, puede quedar así.");
        } else if (esDesigual(i, mayor)) {
            anotar(Gravedad::Mirar, Sospecha::CopaDesigual, i,
                   "Una medida de la copa es diez veces otra del mismo árbol, o más.",
                   "Puede ser verdad; si no, la copa sale deformada en el mapa y en las cuentas.",
                   "Compruebe la coma de las medidas.");
        }
        revisarMuestras(i);
    }

    [[nodiscard]] bool esDesigual(std::size_t i, double mayor) const {
        return std::ranges::any_of(lectura_.radios(i),
                                   [&](double radio) { return radio > 0 && mayor >= desigual * radio; });
    }

    /// The samples of ISC of ellipses.
    void revisarMuestras(std::size_t i) {
        const auto& opciones = lectura_.opciones();
        const auto radios = lectura_.radios(i);
        if (!opciones.ISC.activa || opciones.copasCirculares || lectura_.esVertice(i) || radios.size() < 2 ||
            !lectura_.conTamano(i) || !lectura_.x().esNumero(i) || !lectura_.y().esNumero(i)) {
            return;
        }
        const bool dos = radios.size() == 2;
        if (std::ranges::max(radios) >= inmensa) {
            anotar(Gravedad::Fallo, Sospecha::CopaEnorme, i, "Un radio de la copa mide kilómetros.",
                   "ISC recorre la elipse paso a paso, y el cálculo no acaba o termina en un fallo.",
                   "Compruebe el número y, en las opciones, la unidad de los radios de copa.");
            return;
        }
        const Radios cuatro{radios[0], radios[1], radios[dos ? 0 : 2], radios[dos ? 1 : 3]};
        if (!CubreAlgunaMuestra(cuatro, lectura_.x().numero(i), lectura_.y().numero(i))) {
            anotar(Gravedad::Fallo, Sospecha::CopaEntreMuestras, i,
                   "La copa es tan estrecha que no cubre ninguna de las muestras con que se mide, una cada "
                   "0,1 m.",
                   "ISC divide por las muestras cubiertas, y puede terminar en un fallo.",
                   "Compruebe las medidas y su unidad, o calcule ISC con copas de círculo.");
        }
    }

    void anotar(Gravedad gravedad, Sospecha sospecha, std::size_t i, const std::string& que,
                const std::string& efecto, const std::string& remedio) {
        const auto& columna = deMayorRadio(i);
        cuaderno_.anotarFila(gravedad, sospecha, 0, lectura_.parcela().filas[i].numero, [&] {
            Hallazgo hallazgo = lectura_.enCelda(gravedad, sospecha, i, columna);
            hallazgo.que = que;
            hallazgo.efecto = efecto;
            hallazgo.remedio = remedio;
            return hallazgo;
        });
    }

    [[nodiscard]] const ColumnaRevisada& deMayorRadio(std::size_t i) const {
        return *std::ranges::max_element(lectura_.copa(), {},
                                         [&](const ColumnaRevisada& medida) { return medida.numero(i); });
    }

    void anotarNinguna() {
        anotarDeTodas(
            Sospecha::NingunaCopa, "Ningún árbol tiene copa: todas las medidas son 0.",
            lectura_.opciones().copasCirculares
                ? "La superficie de las copas y su cubierta salen 0, e ISC no vale para ninguno."
                : "La superficie de las copas sale 0 y su cubierta casi 0, e ISC no vale para ninguno.",
            "Elija las columnas de las copas, o no pida esas cifras.");
    }

    void anotarTodas(Sospecha sospecha, const std::string& que) {
        anotarDeTodas(
            sospecha, que,
            "Si la unidad no es la de la hoja, el mapa, la superficie de las copas, su cubierta e ISC "
            "salen mal.",
            "Compruebe en las opciones la unidad de los radios de copa.");
    }

    void anotarDeTodas(Sospecha sospecha, const std::string& que, const std::string& efecto,
                       const std::string& remedio) {
        Hallazgo hallazgo = EnColumna(gravedad_, sospecha, lectura_.copa().front().columna());
        hallazgo.que = que;
        hallazgo.efecto = efecto;
        hallazgo.remedio = remedio;
        cuaderno_.anotar(hallazgo);
    }

    const Lectura& lectura_;
    Cuaderno& cuaderno_;
    Gravedad gravedad_;
    std::vector<std::size_t> medidos_;
};

} // namespace

void RevisarCopas(const Lectura& lectura, Cuaderno& cuaderno) {
    if (!lectura.copa().empty()) {
        RevisorDeCopas{lectura, cuaderno}.revisar();
    }
}

} // namespace varo
