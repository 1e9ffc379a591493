#include "desktop/ventanas/HojaDeEtiquetas.h"

#include "desktop/Letra.h"
#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "formularios/Formulario.h"

#include <QLabel>
#include <QResizeEvent>
#include <QScrollBar>

namespace varo {

namespace {

QRect DisenoDe(const Etiqueta& etiqueta) {
    const auto puntos = [](double twips) { return APuntos(static_cast<int>(twips)); };
    return {puntos(etiqueta.Left), puntos(etiqueta.Top), puntos(etiqueta.Width), puntos(etiqueta.Height)};
}

} // namespace

HojaDeEtiquetas::HojaDeEtiquetas(Formulario& ventana, Vinculos& vinculos, const Etiqueta& titulo)
    : ventana_{&ventana}, vinculos_{vinculos}, titulo_{&titulo} {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(new QWidget);
    for (Control* const control : ventana.controles()) {
        if (auto* const etiqueta = dynamic_cast<Etiqueta*>(control)) {
            anadir(*etiqueta);
        }
    }
    vinculos.alCrearControl = [this](Control& control) {
        if (auto* const etiqueta = dynamic_cast<Etiqueta*>(&control)) {
            anadir(*etiqueta);
        }
    };
    vinculos.alSoltar(*this, [this] { ventana_ = nullptr; });
    repartir();
}

void HojaDeEtiquetas::anadir(Etiqueta& etiqueta) {
    QLabel* const widget = vinculos_.crearEtiqueta(etiqueta);
    widget->setParent(this->widget());
    widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
    widget->setContextMenuPolicy(Qt::NoContextMenu); // that of the window serves
    widget->installEventFilter(this);
    widget->setVisible(etiqueta.Visible());
    vinculos_.seguir(etiqueta, [this, widget, &etiqueta] {
        widget->setFont(FuenteQt(etiqueta.Font));
        pedirReparto();
    });
}

QLabel& HojaDeEtiquetas::widgetDe(const Etiqueta& etiqueta) const {
    return static_cast<QLabel&>(*vinculos_.widgetDe(etiqueta));
}

/// Those in sight.
std::vector<Etiqueta*> HojaDeEtiquetas::etiquetas() const {
    std::vector<Etiqueta*> vistas;
    if (ventana_ == nullptr) {
        return vistas;
    }
    for (Control* const control : ventana_->controles()) {
        auto* const etiqueta = dynamic_cast<Etiqueta*>(control);
        if (etiqueta != nullptr && etiqueta->Visible() && vinculos_.widgetDe(*etiqueta) != nullptr) {
            vistas.push_back(etiqueta);
        }
    }
    return vistas;
}

Reparto HojaDeEtiquetas::reparto(int anchoALaVista) const {
    std::vector<EtiquetaPorRepartir> porRepartir;
    for (const Etiqueta* const etiqueta : etiquetas()) {
        const QSize texto = etiqueta->Caption().empty() ? QSize{} : widgetDe(*etiqueta).sizeHint();
        porRepartir.push_back({DisenoDe(*etiqueta), texto, etiqueta->Index(), etiqueta == titulo_});
    }
    return Repartir(porRepartir, anchoALaVista);
}

void HojaDeEtiquetas::pedirReparto() {
    if (!pedido_) {
        pedido_ = true;
        QMetaObject::invokeMethod(
            this, [this] { repartir(); }, Qt::QueuedConnection);
    }
}

void HojaDeEtiquetas::repartir() {
    pedido_ = false;
    if (ventana_ == nullptr) {
        return;
    }
    const Reparto reparto = this->reparto(viewport()->width());
    std::size_t i = 0;
    for (const Etiqueta* const etiqueta : etiquetas()) {
        widgetDe(*etiqueta).setGeometry(reparto.lugares[i++]);
    }
    widget()->setMinimumSize(reparto.total);
}

QString HojaDeEtiquetas::seleccion() const {
    for (const QLabel* const etiqueta : widget()->findChildren<QLabel*>()) {
        if (etiqueta->hasSelectedText()) {
            return etiqueta->selectedText();
        }
    }
    return {};
}

/// With room for the bars: one that comes up makes no second one necessary.
QSize HojaDeEtiquetas::sizeHint() const {
    const QSize barras{verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height()};
    return reparto(0).total + barras;
}

QSize HojaDeEtiquetas::minimumSizeHint() const {
    constexpr QSize minimo{240, 160};
    return minimo;
}

bool HojaDeEtiquetas::eventFilter(QObject* objeto, QEvent* suceso) {
    auto* const etiqueta = qobject_cast<QLabel*>(objeto);
    if (etiqueta != nullptr && suceso->type() == QEvent::MouseButtonDblClick) {
        etiqueta->setSelection(0, static_cast<int>(etiqueta->text().size()));
        return true;
    }
    return QScrollArea::eventFilter(objeto, suceso);
}

void HojaDeEtiquetas::resizeEvent(QResizeEvent* suceso) {
    QScrollArea::resizeEvent(suceso);
    repartir();
}

} // namespace varo
