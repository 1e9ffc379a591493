#include "desktop/formulas/Formulas.h"

#include <QFontInfo>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varo {

namespace {

constexpr double aumento = 1.15; ///< of the font over that of the dialog
constexpr int margen = 2;        ///< in pixels

} // namespace

CuadroDeFormula::CuadroDeFormula(Parte formula, QWidget* padre)
    : QWidget{padre}, formula_{std::move(formula)} {
    setAccessibleName(formula_->texto());
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont CuadroDeFormula::letra() const {
    QFont suya{font()};
    suya.setFamilies({"Times New Roman", "Liberation Serif", "Nimbus Roman", "DejaVu Serif"});
    suya.setStyleHint(QFont::Serif);
    suya.setPointSizeF(QFontInfo{font()}.pointSizeF() * aumento);
    return suya;
}

/// The larger of the heights above and below the axis, in pixels.
double CuadroDeFormula::medioAlto() const {
    const CajaDeFormula::Medidas medidas = formula_->medir(letra());
    const double eje = formula::Eje(letra());
    return std::max(medidas.sobre - eje, medidas.bajo + eje);
}

QSize CuadroDeFormula::sizeHint() const {
    return {static_cast<int>(std::ceil(formula_->medir(letra()).ancho)) + 2 * margen,
            2 * (static_cast<int>(std::ceil(medioAlto())) + margen)};
}

void CuadroDeFormula::paintEvent(QPaintEvent* /*suceso*/) {
    QPainter pintor{this};
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(palette().color(foregroundRole()));
    formula_->pintar(pintor, {margen, std::round(height() / 2.0 + formula::Eje(letra()))}, letra());
}

namespace formula {

namespace {

/// A quantity with an index, D_ij, and perhaps an exponent, d_i^k.
Parte Subindice(const QString& base, const QString& indice, Parte exponente = nullptr) {
    return Indexada(Letra(base), Letra(indice), std::move(exponente));
}

/// An index of the results: its name has more than one letter, PD_k1.
Parte Nombre(const QString& nombre, const Parte& indice) {
    return Indexada(Recto(nombre), indice);
}

/// a + b x^c + d x^e, the polynomial of all functions. `x` makes a power of the variable.
template <class P>
Parte Polinomio(const P& x) {
    return Fila({Letra("a"), Recto(" + "), Letra("b"), Recto(" "), x(Letra("c")), Recto(" + "), Letra("d"),
                 Recto(" "), x(Letra("e"))});
}

Parte Tamano() {
    return Recto("DBH");
}

Parte PolinomioDeTamano() {
    return Polinomio([](const Parte& exponente) { return Potencia(Tamano(), exponente); });
}

Parte PolinomioDeDistancia() {
    return Polinomio([](const Parte& exponente) { return Subindice("D", "ij", exponente); });
}

Parte PesoDe() {
    return Fila({Letra("f"), Parentesis(Subindice("D", "ij"))});
}

Parte Densidad(const QString& numero, const QString& signo) {
    return Fila(
        {Nombre("PD", Fila({Letra("k"), Recto(numero)})), Recto(" = "), Fraccion(Recto("2500"), Letra("m")),
         Recto(" "),
         Corchetes(
             Fila({Suma(Fila({Letra("i"), Recto(" = 1")}), Letra("m")),
                   Parentesis(Fila({Letra("i"), Recto(signo), Fraccion(Recto("1"), Recto("2"))})), Recto(" "),
                   Potencia(Parentesis(Fraccion(Subindice("d", "j"), Subindice("D", "ij"))), Recto("2"))}))});
}

Parte SumaDeCompetidores() {
    return Suma(Fila({Letra("j"), Recto(" = 1")}), Letra("n"));
}

Parte RazonElevada() {
    return Potencia(Parentesis(Subindice("R", "sij")), Letra("k"));
}

} // namespace

Parte SuperposicionDeAreas() {
    return Fila({Nombre("AO", Letra("msk")), Recto(" = "), SumaDeCompetidores(),
                 Fraccion(Nombre("aO", Letra("mij")), Nombre("AI", Letra("mi"))), Recto(" "),
                 RazonElevada()});
}

Parte DensidadSinCentral() {
    return Densidad("1", " − ");
}

Parte DensidadConCentral() {
    return Densidad("2", " + ");
}

Parte RazonPonderada() {
    return Fila({Nombre("DR", Letra("ksf")), Recto(" = "), SumaDeCompetidores(), RazonElevada(), Recto(" "),
                 PesoDe()});
}

Parte RadioDeInfluencia() {
    return Fila({Recto("Rm = "), Polinomio([](const Parte& exponente) {
                     return Potencia(Parentesis(Tamano()), exponente);
                 })});
}

Parte DistanciaDeRichards() {
    const Parte crecimiento = Parentesis(
        Fila({Recto("1 − "), Potencia(Letra("e"), Fila({Recto("−"), Letra("k"), Recto(" "), Tamano()}))}));
    const Parte exponente = Fraccion(Recto("1"), Fila({Recto("1 − "), Letra("m")}));
    return Fila({Recto("dist = "), Letra("A"), Recto(" "), Potencia(crecimiento, exponente)});
}

Parte DistanciaHiperbolica() {
    return Fila({Recto("dist = "), Letra("A"), Recto(" − "), Letra("k"), Recto(" "),
                 Parentesis(Fraccion(Recto("1"), PolinomioDeTamano()))});
}

Parte PesoExponencial() {
    const Parte exponente = Fila({Recto("−"), Parentesis(PolinomioDeDistancia())});
    return Fila({PesoDe(), Recto(" = "), Potencia(Letra("e"), exponente)});
}

Parte PesoHiperbolico() {
    return Fila({PesoDe(), Recto(" = "), Fraccion(Recto("1"), PolinomioDeDistancia())});
}

Parte FactorDePonderacion() {
    const Parte propia = Subindice("d", "i", Letra("k"));
    const Parte ajena = Subindice("d", "j", Letra("k"));
    return Fila({Subindice("W", "k"), Recto(" = "), Fraccion(propia, Fila({propia, Recto(" + "), ajena}))});
}

} // namespace formula

} // namespace varo
