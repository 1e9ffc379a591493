#include "desktop/ventanas/VistaDeMapa.h"

#include "basico/Numeros.h"
#include "desktop/Intentar.h"
#include "desktop/Texto.h"

#include <QCursor>
#include <QHelpEvent>
#include <QIcon>
#include <QMouseEvent>
#include <QToolTip>

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <utility>

namespace varo {

namespace {

constexpr double alcanceDelPunto = 6; ///< around the place of a tree, in pixels

/// The picture of the pointer that the model names.
QCursor Puntero(const std::string& nombre) {
    constexpr int lado = 32;
    const QString sinExtension = AQt(nombre).section('.', 0, 0);
    return QCursor{QIcon{":/punteros/" + sinExtension + ".svg"}.pixmap(lado)};
}

} // namespace

QString DescripcionDe(const ArbolDelMapa& arbol) {
    const auto metros = [](double radio) { return ATexto(radio); };
    const Copa& copa = arbol.copa;
    std::string texto = "Árbol " + arbol.numero;
    if (!arbol.codigo.empty()) {
        texto += "\nCódigo: " + arbol.codigo;
    }
    if (!arbol.tamano.empty()) {
        texto += "\nTamaño: " + arbol.tamano;
    }
    if (copa.N == copa.E && copa.N == copa.S && copa.N == copa.W) {
        texto += "\nRadio: " + metros(copa.N) + " m";
    } else {
        texto += "\nRadios: N " + metros(copa.N) + "  E " + metros(copa.E) + "  S " + metros(copa.S) +
                 "  O " + metros(copa.W) + " m";
    }
    return AQt(texto);
}

VistaDeMapa::VistaDeMapa(FrmMapa& mapa, Usuario& usuario)
    : VistaDeLienzo{{mapa.lienzo, mapa.lectorDeAspectos()}}, mapa_{&mapa}, usuario_{usuario} {}

void VistaDeMapa::soltar() {
    arrastre_.reset();
    arrastrada_ = nullptr;
    mapa_ = nullptr;
    VistaDeLienzo::soltar();
}

Etiqueta* VistaDeMapa::etiquetaEn(QPointF punto) const {
    if (mapa_ == nullptr) {
        return nullptr;
    }
    const Encuadre encuadre = this->encuadre();
    const Pluma pluma = this->pluma();
    const auto& figuras = mapa_->lienzo.figuras();
    std::optional<std::set<std::string>> callados; // counting them takes long too
    const auto sePinta = [&](const EtiquetaMostrada& mostrada) {
        if (!callados) {
            callados = NombresCallados(*dibujo(), encuadre, pluma, QRectF{rect()});
        }
        return !callados->contains(mostrada.nombre);
    };
    for (auto figura = figuras.rbegin(); figura != figuras.rend(); ++figura) {
        const auto* const mostrada = std::get_if<EtiquetaMostrada>(&*figura);
        if (mostrada == nullptr) {
            continue;
        }
        Etiqueta& etiqueta = mapa_->etiqueta(*mostrada);
        const double arriba = encuadre.enPapel(etiqueta.Left, etiqueta.Top).y();
        const double masAlto = 3 * pluma.porPunto * static_cast<double>(etiqueta.Font().tamano);
        if (punto.y() < arriba || punto.y() > arriba + masAlto) {
            continue; // measuring texts takes long
        }
        if (LugarDeEtiqueta(mapa_->aspecto(*mostrada), encuadre, pluma).contains(punto) &&
            sePinta(*mostrada)) {
            return &etiqueta;
        }
    }
    return nullptr;
}

const ArbolDelMapa* VistaDeMapa::arbolEn(QPointF punto) const {
    if (mapa_ == nullptr) {
        return nullptr;
    }
    const Encuadre encuadre = this->encuadre();
    const double x = encuadre.xDe(punto);
    const double y = encuadre.yDe(punto);
    const double cerca = alcanceDelPunto / encuadre.porMetro;
    const ArbolDelMapa* hallado = nullptr;
    double menor = std::numeric_limits<double>::infinity();
    for (const ArbolDelMapa& arbol : mapa_->arboles) {
        const double distancia = std::hypot(x - arbol.copa.x, y - arbol.copa.y);
        if (distancia < menor && (distancia <= cerca || Pintada(arbol.copa).cubre(x, y))) {
            menor = distancia;
            hallado = &arbol;
        }
    }
    return hallado;
}

bool VistaDeMapa::event(QEvent* suceso) {
    if (suceso->type() != QEvent::ToolTip) {
        return VistaDeLienzo::event(suceso);
    }
    const auto& ayuda = dynamic_cast<QHelpEvent&>(*suceso);
    const ArbolDelMapa* const arbol = arbolEn(ayuda.pos());
    if (arbol == nullptr) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(ayuda.globalPos(), DescripcionDe(*arbol), this);
    }
    return true;
}

void VistaDeMapa::mousePressEvent(QMouseEvent* suceso) {
    VistaDeLienzo::mousePressEvent(suceso);
    Etiqueta* const etiqueta = suceso->button() == Qt::LeftButton ? etiquetaEn(suceso->position()) : nullptr;
    if (etiqueta == nullptr || !etiqueta->arrastrable) {
        return;
    }
    Intentar([&] { arrastre_.emplace(usuario_.empezarArrastre(*etiqueta)); });
    if (arrastre_) {
        arrastrada_ = etiqueta;
        setCursor(Puntero(etiqueta->DragIcon));
    }
}

void VistaDeMapa::mouseMoveEvent(QMouseEvent* suceso) {
    if (!arrastre_) {
        VistaDeLienzo::mouseMoveEvent(suceso);
        return;
    }
    arrastre_->sobre(etiquetaEn(suceso->position()));
    if (arrastre_) { // what the pointer passed over may have ended the map
        setCursor(Puntero(arrastrada_->DragIcon));
    }
}

void VistaDeMapa::terminarArrastre(QPointF punto) {
    std::optional<Arrastre> arrastre = std::exchange(arrastre_, std::nullopt);
    arrastrada_ = nullptr;
    unsetCursor();
    if (Etiqueta* const debajo = etiquetaEn(punto)) {
        arrastre->soltar(*debajo);
    } else {
        arrastre->soltar(encuadre().xDe(punto), encuadre().yDe(punto));
    }
    ponerAlDia();
}

void VistaDeMapa::mouseReleaseEvent(QMouseEvent* suceso) {
    VistaDeLienzo::mouseReleaseEvent(suceso);
    if (arrastre_ && suceso->button() == Qt::LeftButton) {
        terminarArrastre(suceso->position());
    }
}

void VistaDeMapa::mouseDoubleClickEvent(QMouseEvent* suceso) {
    Etiqueta* const etiqueta = suceso->button() == Qt::LeftButton ? etiquetaEn(suceso->position()) : nullptr;
    if (etiqueta != nullptr && etiqueta->DblClick) {
        Intentar([&] { usuario_.dobleClic(*etiqueta); });
    } else {
        mousePressEvent(suceso);
    }
}

/// What takes the window away ends the drag without a release.
void VistaDeMapa::hideEvent(QHideEvent* suceso) {
    VistaDeLienzo::hideEvent(suceso);
    arrastre_.reset();
    arrastrada_ = nullptr;
    unsetCursor();
}

} // namespace varo
