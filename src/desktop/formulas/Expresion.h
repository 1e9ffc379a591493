// A formula as nested boxes: rows, scripts, fractions, brackets and sums. A box is measured and painted from
// the left end of its baseline, in logical pixels, so it is sharp at any scale.
#pragma once

#include <QFont>
#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

class QPainter;

namespace varo {

class Expresion {
public:
    struct Medidas {
        double ancho = 0;
        double sobre = 0; ///< above the baseline
        double bajo = 0;  ///< below it
    };

    Expresion() = default;
    Expresion(const Expresion&) = delete;
    Expresion& operator=(const Expresion&) = delete;
    virtual ~Expresion() = default;

    [[nodiscard]] virtual Medidas medir(const QFont& letra) const = 0;
    virtual void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const = 0;
    /// The same on one line: "a + b (DBH)^c".
    [[nodiscard]] virtual QString texto() const = 0;
    /// The same with a factor behind it.
    [[nodiscard]] virtual QString comoFactor() const { return texto(); }
    /// True when no brackets are needed around the text beside a sign of operation.
    [[nodiscard]] virtual bool suelta() const { return false; }
};

using Parte = std::shared_ptr<const Expresion>;

namespace formula {

/// The height over the baseline of signs of operation and of the bars of fractions: the middle of a formula.
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
/// A sum with its limits; what is added up stands behind it.
Parte Suma(Parte desde, Parte hasta);

} // namespace formula

} // namespace varo
