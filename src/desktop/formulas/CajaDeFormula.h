// A formula as nested boxes: rows, scripts, fractions, brackets and sums. A box is measured and painted from
// the left end of its baseline, in logical pixels, so it is sharp at every scale.
#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

class QPainter;

namespace varo {

class CajaDeFormula {
public:
    struct Medidas {
        double ancho = 0;
        double sobre = 0; ///< above the baseline
        double bajo = 0;  ///< below it
    };

    CajaDeFormula() = default;
    CajaDeFormula(const CajaDeFormula&) = delete;
    CajaDeFormula& operator=(const CajaDeFormula&) = delete;
    virtual ~CajaDeFormula() = default;

    [[nodiscard]] virtual Medidas medir(const QFont& letra) const = 0;
    virtual void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const = 0;
    /// The formula on one line: "a + b (DBH)^c".
    [[nodiscard]] virtual QString texto() const = 0;
    /// The same line as it reads before another factor.
    [[nodiscard]] virtual QString comoFactor() const { return texto(); }
    /// True when the text needs no brackets beside an operation sign.
    [[nodiscard]] virtual bool suelta() const { return false; }
};

using Parte = std::shared_ptr<const CajaDeFormula>;

namespace formula {

/// The height of operation signs and fraction bars over the baseline, in pixels: the middle of a formula.
double Eje(const QFont& letra);

/// The letter of a quantity, in italics.
Parte Letra(const QString& texto);
/// Numbers, signs and names of more than one letter, upright.
Parte Recto(const QString& texto);
Parte Fila(std::vector<Parte> partes);
Parte Indexada(Parte base, Parte indice, Parte exponente = nullptr);
Parte Potencia(Parte base, Parte exponente);
Parte Fraccion(Parte numerador, Parte denominador);
Parte Parentesis(Parte contenido);
Parte Corchetes(Parte contenido);
/// A sum sign with its limits. The terms follow it.
Parte Suma(Parte desde, Parte hasta);

} // namespace formula

} // namespace varo
