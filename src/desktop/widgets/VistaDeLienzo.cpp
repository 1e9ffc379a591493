#include "desktop/widgets/VistaDeLienzo.h"

#include "pintura/Colores.h"

#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace varo {

namespace {

constexpr qint64 tardanzaQueSeNota = 25;      ///< of a picture, in milliseconds
constexpr int pausaDeLaMano = 90;             ///< in milliseconds
constexpr double mayorAumento = 5000;         ///< of the whole canvas
constexpr int masEtiquetas = 2500;            ///< more are a grey mass, and slow
constexpr double menosPixelesPorPunto = 1.15; ///< so that letters can be read in a small window

} // namespace

VistaDeLienzo::VistaDeLienzo(Dibujo dibujo) : dibujo_{std::move(dibujo)} {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    reposo_.setSingleShot(true);
    reposo_.setInterval(pausaDeLaMano);
    connect(&reposo_, &QTimer::timeout, this, [this] {
        encuadreDeImagen_.reset();
        update();
    });
}

void VistaDeLienzo::ponerAlDia() {
    encuadreDeImagen_.reset();
    update();
}

void VistaDeLienzo::verTodo() {
    movido_.reset();
    ponerAlDia();
}

void VistaDeLienzo::soltar() {
    dibujo_.reset();
    reposo_.stop();
}

QSize VistaDeLienzo::sizeHint() const {
    return {1000, 723};
}

Encuadre VistaDeLienzo::encuadreEntero() const {
    return dibujo_ ? Encuadre::entero(dibujo_->lienzo.escala(), size()) : Encuadre{};
}

Encuadre VistaDeLienzo::encuadre() const {
    Encuadre encuadre = movido_ ? *movido_ : encuadreEntero();
    encuadre.origen = QPointF{width() / 2.0, height() / 2.0};
    return encuadre;
}

Pluma VistaDeLienzo::pluma() const {
    const double ancho =
        dibujo_ ? encuadreEntero().porMetro * dibujo_->lienzo.escala().ancho() : static_cast<double>(width());
    Pluma pluma = Pluma::para(ancho);
    pluma.grosor = 1;
    pluma.porPunto = std::max(pluma.porPunto, menosPixelesPorPunto);
    pluma.conCurvas = false;
    pluma.masEtiquetas = masEtiquetas;
    return pluma;
}

void VistaDeLienzo::pintarImagen() {
    QElapsedTimer reloj;
    reloj.start();
    const double densidad = devicePixelRatioF();
    imagen_ = QPixmap{(QSizeF{size()} * densidad).toSize()};
    imagen_.setDevicePixelRatio(densidad);
    QPainter pintor{&imagen_};
    Pintar(pintor, *dibujo_, encuadre(), pluma(), QRectF{rect()});
    pintor.end();
    encuadreDeImagen_ = encuadre();
    tardanza_ = reloj.elapsed();
}

void VistaDeLienzo::paintEvent(QPaintEvent* /*suceso*/) {
    QPainter pintor{this};
    if (!dibujo_) {
        pintor.fillRect(rect(), palette().window());
        return;
    }
    const bool otraPantalla = imagen_.devicePixelRatio() != devicePixelRatioF();
    const bool alDia = !otraPantalla && encuadreDeImagen_ == encuadre() &&
                       imagen_.deviceIndependentSize().toSize() == size();
    if (alDia || otraPantalla || !encuadreDeImagen_ || tardanza_ < tardanzaQueSeNota) {
        if (!alDia) {
            pintarImagen();
        }
        pintor.drawPixmap(QPoint{}, imagen_);
        return;
    }
    // What lay at the corner of the last picture lies elsewhere now.
    const QPointF esquina{};
    const Encuadre ahora = encuadre();
    const QPointF lugar = ahora.enPapel(encuadreDeImagen_->xDe(esquina), encuadreDeImagen_->yDe(esquina));
    const double aumento = ahora.porMetro / encuadreDeImagen_->porMetro;
    pintor.fillRect(rect(), ColorQt(dibujo_->lienzo.BackColor));
    pintor.drawPixmap(QRectF{lugar, imagen_.deviceIndependentSize() * aumento}, imagen_,
                      QRectF{imagen_.rect()});
    reposo_.start();
}

void VistaDeLienzo::resizeEvent(QResizeEvent* suceso) {
    QWidget::resizeEvent(suceso);
    update();
}

/// The view never shows less than the whole, nor loses the canvas out of sight.
void VistaDeLienzo::mover(const Encuadre& nuevo) {
    const Encuadre entero = encuadreEntero();
    if (nuevo.porMetro <= entero.porMetro) {
        movido_.reset();
        update();
        return;
    }
    const Escala& escala = dibujo_->lienzo.escala();
    Encuadre movido = nuevo;
    movido.porMetro = std::min(nuevo.porMetro, entero.porMetro * mayorAumento);
    movido.x0 = std::clamp(nuevo.x0, escala.izquierda, escala.derecha);
    movido.y0 = std::clamp(nuevo.y0, escala.abajo, escala.arriba);
    movido_ = movido;
    update();
}

void VistaDeLienzo::wheelEvent(QWheelEvent* suceso) {
    constexpr double unPaso = 120; // of a common wheel, in eighths of a degree
    constexpr double porPaso = 1.25;
    if (!dibujo_ || dibujo_->lienzo.escala().sinExtension()) {
        return;
    }
    const Encuadre antes = encuadre();
    Encuadre despues = antes;
    despues.porMetro = std::min(antes.porMetro * std::pow(porPaso, suceso->angleDelta().y() / unPaso),
                                encuadreEntero().porMetro * mayorAumento);
    // The point under the pointer stays under it.
    despues.x0 =
        antes.xDe(suceso->position()) - (suceso->position().x() - despues.origen.x()) / despues.porMetro;
    despues.y0 =
        antes.yDe(suceso->position()) + (suceso->position().y() - despues.origen.y()) / despues.porMetro;
    mover(despues);
    suceso->accept();
}

void VistaDeLienzo::mousePressEvent(QMouseEvent* suceso) {
    if (suceso->button() == Qt::MiddleButton && dibujo_) {
        agarre_ = suceso->position();
        setCursor(Qt::ClosedHandCursor);
    }
}

void VistaDeLienzo::mouseMoveEvent(QMouseEvent* suceso) {
    if (!agarre_ || !dibujo_ || !movido_) {
        return; // the whole canvas has nowhere to go
    }
    Encuadre nuevo = encuadre();
    nuevo.x0 -= (suceso->position().x() - agarre_->x()) / nuevo.porMetro;
    nuevo.y0 += (suceso->position().y() - agarre_->y()) / nuevo.porMetro;
    agarre_ = suceso->position();
    mover(nuevo);
}

void VistaDeLienzo::mouseReleaseEvent(QMouseEvent* suceso) {
    if (suceso->button() == Qt::MiddleButton) {
        agarre_.reset();
        unsetCursor();
    }
}

} // namespace varo
