#include "desktop/formulas/CajaDeFormula.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varo {

double formula::Eje(const QFont& letra) {
    return -QFontMetricsF{letra}.tightBoundingRect(QStringLiteral("−")).center().y();
}

namespace {

using formula::Eje;
using Medidas = CajaDeFormula::Medidas;

constexpr double trazo = 1.1; ///< width of brackets, in pixels

/// All gaps and shifts are multiples of it, in pixels.
double AltoDeX(const QFont& letra) {
    return QFontMetricsF{letra}.xHeight();
}

/// The font of indices, exponents and limits. It stops shrinking while a script of a script is readable.
QFont Menor(const QFont& letra) {
    constexpr double razon = 0.78;
    constexpr double minimo = 7.5; // in points
    QFont menor{letra};
    menor.setPointSizeF(std::min(letra.pointSizeF(), std::max(minimo, letra.pointSizeF() * razon)));
    return menor;
}

QString EntreParentesis(const Parte& parte) {
    return parte->suelta() ? parte->texto() : QStringLiteral("(%1)").arg(parte->texto());
}

class Texto : public CajaDeFormula {
public:
    Texto(QString texto, bool cursiva) : texto_{std::move(texto)}, cursiva_{cursiva} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        const QFontMetricsF medidas{conEstilo(letra)};
        const QRectF tinta = medidas.tightBoundingRect(texto_);
        const double avance = medidas.horizontalAdvance(texto_);
        // A slanted letter may reach past its advance.
        return {cursiva_ ? std::max(avance, tinta.right()) : avance, -tinta.top(), tinta.bottom()};
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        pintor.setFont(conEstilo(letra));
        pintor.drawText(origen, texto_);
    }

    [[nodiscard]] QString texto() const override { return texto_; }
    [[nodiscard]] bool suelta() const override { return !texto_.contains(u' '); }

private:
    [[nodiscard]] QFont conEstilo(QFont letra) const {
        letra.setItalic(cursiva_);
        return letra;
    }

    QString texto_;
    bool cursiva_;
};

class EnFila : public CajaDeFormula {
public:
    explicit EnFila(std::vector<Parte> partes) : partes_{std::move(partes)} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        Medidas total;
        for (const auto& parte : partes_) {
            const Medidas suyas = parte->medir(letra);
            total.ancho += suyas.ancho;
            total.sobre = std::max(total.sobre, suyas.sobre);
            total.bajo = std::max(total.bajo, suyas.bajo);
        }
        return total;
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        for (const auto& parte : partes_) {
            parte->pintar(pintor, origen, letra);
            origen.rx() += parte->medir(letra).ancho;
        }
    }

    [[nodiscard]] QString texto() const override {
        QString todo;
        for (const auto& parte : partes_) {
            todo += &parte == &partes_.back() ? parte->texto() : parte->comoFactor();
        }
        return todo;
    }

private:
    std::vector<Parte> partes_;
};

/// A base with an index at its foot, an exponent at its head, or both, one over the other.
class ConGuiones : public CajaDeFormula {
public:
    ConGuiones(Parte base, Parte indice, Parte exponente)
        : base_{std::move(base)}, indice_{std::move(indice)}, exponente_{std::move(exponente)} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        const Medidas base = base_->medir(letra);
        const Medidas indice = medirGuion(indice_, letra);
        const Medidas exponente = medirGuion(exponente_, letra);
        return {base.ancho + hueco + std::max(indice.ancho, exponente.ancho),
                std::max(base.sobre, subida(letra) + exponente.sobre),
                std::max(base.bajo, bajada(letra) + indice.bajo)};
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        base_->pintar(pintor, origen, letra);
        origen.rx() += base_->medir(letra).ancho + hueco;
        if (indice_) {
            indice_->pintar(pintor, origen + QPointF{0, bajada(letra)}, Menor(letra));
        }
        if (exponente_) {
            exponente_->pintar(pintor, origen - QPointF{0, subida(letra)}, Menor(letra));
        }
    }

    [[nodiscard]] QString texto() const override {
        QString todo = base_->texto();
        if (indice_) {
            todo += u'_' + indice_->texto();
        }
        if (exponente_) {
            todo += u'^' + EntreParentesis(exponente_);
        }
        return todo;
    }
    [[nodiscard]] bool suelta() const override { return base_->suelta(); }

private:
    static constexpr double hueco = 1;

    [[nodiscard]] static Medidas medirGuion(const Parte& guion, const QFont& letra) {
        return guion ? guion->medir(Menor(letra)) : Medidas{};
    }

    /// The exponent keeps near the upper edge of its base and never goes below the middle of a small letter.
    [[nodiscard]] double subida(const QFont& letra) const {
        const double x = AltoDeX(letra);
        return std::max(
            {x, base_->medir(letra).sobre - 0.8 * x, medirGuion(exponente_, letra).bajo + 0.6 * x});
    }

    [[nodiscard]] static double bajada(const QFont& letra) { return 0.4 * AltoDeX(letra); }

    Parte base_;
    Parte indice_;
    Parte exponente_;
};

class EnFraccion : public CajaDeFormula {
public:
    EnFraccion(Parte numerador, Parte denominador)
        : numerador_{std::move(numerador)}, denominador_{std::move(denominador)} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        const Medidas arriba = numerador_->medir(letra);
        const Medidas abajo = denominador_->medir(letra);
        return {std::max(arriba.ancho, abajo.ancho) + 2 * vuelo,
                Eje(letra) + hueco(letra) + arriba.sobre + arriba.bajo,
                hueco(letra) + abajo.sobre + abajo.bajo - Eje(letra)};
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        const Medidas arriba = numerador_->medir(letra);
        const Medidas abajo = denominador_->medir(letra);
        const double ancho = std::max(arriba.ancho, abajo.ancho) + 2 * vuelo;
        // A whole pixel makes the bar one sharp line.
        const double raya = std::round(origen.y() - Eje(letra));
        pintor.fillRect(QRectF{origen.x() + margen, raya, ancho - 2 * margen, 1}, pintor.pen().color());
        numerador_->pintar(
            pintor, {origen.x() + (ancho - arriba.ancho) / 2, raya - hueco(letra) - arriba.bajo}, letra);
        denominador_->pintar(
            pintor, {origen.x() + (ancho - abajo.ancho) / 2, raya + 1 + hueco(letra) + abajo.sobre}, letra);
    }

    [[nodiscard]] QString texto() const override {
        return EntreParentesis(numerador_) + u'/' + EntreParentesis(denominador_);
    }
    [[nodiscard]] QString comoFactor() const override { return u'(' + texto() + u')'; }

private:
    static constexpr double vuelo = 3;  ///< of the box beyond its wider part
    static constexpr double margen = 1; ///< of the bar inside the box

    [[nodiscard]] static double hueco(const QFont& letra) { return 0.4 * AltoDeX(letra); }

    Parte numerador_;
    Parte denominador_;
};

/// Brackets as high as their content.
class Entre : public CajaDeFormula {
public:
    enum class Signo { Parentesis, Corchetes };

    Entre(Parte contenido, Signo signo) : contenido_{std::move(contenido)}, signo_{signo} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        Medidas medidas = contenido_->medir(letra);
        const QRectF signo = QFontMetricsF{letra}.tightBoundingRect(QStringLiteral("("));
        medidas.ancho += 2 * (hueco + anchoDe(medidas, letra));
        medidas.sobre = std::max(-signo.top(), medidas.sobre + 1);
        medidas.bajo = std::max(signo.bottom(), medidas.bajo + 1);
        return medidas;
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        const Medidas medidas = medir(letra);
        const double ancho = anchoDe(contenido_->medir(letra), letra);
        const QRectF lugar{origen.x() + hueco / 2, origen.y() - medidas.sobre, ancho,
                           medidas.sobre + medidas.bajo};
        const double otroLado = 2 * origen.x() + medidas.ancho;
        pintor.setBrush(Qt::NoBrush);
        const QColor color = pintor.pen().color();
        pintor.setPen(QPen{color, trazo});
        pintor.drawPath(trazar(lugar.left(), lugar.right(), lugar.top(), lugar.bottom()));
        pintor.drawPath(
            trazar(otroLado - lugar.left(), otroLado - lugar.right(), lugar.top(), lugar.bottom()));
        pintor.setPen(color);
        contenido_->pintar(pintor, {origen.x() + hueco + ancho, origen.y()}, letra);
    }

    [[nodiscard]] QString texto() const override {
        const auto modelo = signo_ == Signo::Parentesis ? QStringLiteral("(%1)") : QStringLiteral("[%1]");
        return modelo.arg(contenido_->texto());
    }
    [[nodiscard]] bool suelta() const override { return true; }

private:
    static constexpr double hueco = 2;

    [[nodiscard]] static double anchoDe(const Medidas& contenido, const QFont& letra) {
        const double x = AltoDeX(letra);
        return std::min(0.45 * x + 0.06 * (contenido.sobre + contenido.bajo), 0.9 * x);
    }

    /// One bracket. Its back stands at `dorso`; a back at the right makes a closing bracket.
    [[nodiscard]] QPainterPath trazar(double dorso, double punta, double alto, double bajo) const {
        QPainterPath camino{{punta, alto}};
        if (signo_ == Signo::Corchetes) {
            camino.lineTo(dorso, alto);
            camino.lineTo(dorso, bajo);
            camino.lineTo(punta, bajo);
        } else {
            const double cuarto = (bajo - alto) / 4;
            camino.cubicTo(dorso, alto + cuarto, dorso, bajo - cuarto, punta, bajo);
        }
        return camino;
    }

    Parte contenido_;
    Signo signo_;
};

class Sumatorio : public CajaDeFormula {
public:
    Sumatorio(Parte desde, Parte hasta) : desde_{std::move(desde)}, hasta_{std::move(hasta)} {}

    [[nodiscard]] Medidas medir(const QFont& letra) const override {
        const Medidas abajo = desde_->medir(Menor(letra));
        const Medidas arriba = hasta_->medir(Menor(letra));
        const double medioSigno = altoDeSigno(letra) / 2;
        return {std::max({abajo.ancho, arriba.ancho, anchoDeSigno(letra)}) + 2 * vuelo,
                Eje(letra) + medioSigno + hueco + arriba.sobre + arriba.bajo,
                medioSigno - Eje(letra) + hueco + abajo.sobre + abajo.bajo};
    }

    void pintar(QPainter& pintor, QPointF origen, const QFont& letra) const override {
        const Medidas medidas = medir(letra);
        const double centro = origen.x() + medidas.ancho / 2;
        const QRectF signo{centro - anchoDeSigno(letra) / 2, origen.y() - Eje(letra) - altoDeSigno(letra) / 2,
                           anchoDeSigno(letra), altoDeSigno(letra)};
        pintarSigno(pintor, signo);
        const QFont menor = Menor(letra);
        const Medidas arriba = hasta_->medir(menor);
        const Medidas abajo = desde_->medir(menor);
        hasta_->pintar(pintor, {centro - arriba.ancho / 2, signo.top() - hueco - arriba.bajo}, menor);
        desde_->pintar(pintor, {centro - abajo.ancho / 2, signo.bottom() + hueco + abajo.sobre}, menor);
    }

    [[nodiscard]] QString texto() const override {
        return QStringLiteral("Σ(%1..%2) ").arg(desde_->texto(), hasta_->texto());
    }

private:
    static constexpr double hueco = 2.5;
    static constexpr double vuelo = 2;

    [[nodiscard]] static double altoDeSigno(const QFont& letra) { return 3 * AltoDeX(letra); }
    [[nodiscard]] static double anchoDeSigno(const QFont& letra) { return 2.3 * AltoDeX(letra); }

    static void pintarSigno(QPainter& pintor, const QRectF& lugar) {
        const double remate = lugar.height() / 7;
        QPainterPath camino{{lugar.right(), lugar.top() + remate}};
        camino.lineTo(lugar.right() - trazo, lugar.top());
        camino.lineTo(lugar.topLeft());
        camino.lineTo(lugar.left() + 0.55 * lugar.width(), lugar.center().y());
        camino.lineTo(lugar.bottomLeft());
        camino.lineTo(lugar.right() - trazo, lugar.bottom());
        camino.lineTo(lugar.right(), lugar.bottom() - remate);
        const QColor color = pintor.pen().color();
        pintor.setBrush(Qt::NoBrush);
        pintor.setPen(QPen{color, 1.2 * trazo});
        pintor.drawPath(camino);
        pintor.setPen(color);
    }

    Parte desde_;
    Parte hasta_;
};

} // namespace

namespace formula {

Parte Letra(const QString& texto) {
    return std::make_shared<Texto>(texto, true);
}

Parte Recto(const QString& texto) {
    return std::make_shared<Texto>(texto, false);
}

Parte Fila(std::vector<Parte> partes) {
    return std::make_shared<EnFila>(std::move(partes));
}

Parte Indexada(Parte base, Parte indice, Parte exponente) {
    return std::make_shared<ConGuiones>(std::move(base), std::move(indice), std::move(exponente));
}

Parte Potencia(Parte base, Parte exponente) {
    return std::make_shared<ConGuiones>(std::move(base), nullptr, std::move(exponente));
}

Parte Fraccion(Parte numerador, Parte denominador) {
    return std::make_shared<EnFraccion>(std::move(numerador), std::move(denominador));
}

Parte Parentesis(Parte contenido) {
    return std::make_shared<Entre>(std::move(contenido), Entre::Signo::Parentesis);
}

Parte Corchetes(Parte contenido) {
    return std::make_shared<Entre>(std::move(contenido), Entre::Signo::Corchetes);
}

Parte Suma(Parte desde, Parte hasta) {
    return std::make_shared<Sumatorio>(std::move(desde), std::move(hasta));
}

} // namespace formula

} // namespace varo
