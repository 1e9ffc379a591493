#include "desktop/widgets/VistaDeRejilla.h"

#include "desktop/Texto.h"
#include "desktop/widgets/MedidaDeTextos.h"
#include "desktop/widgets/TextoParaHojas.h"

#include <QApplication>
#include <QClipboard>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStatusTipEvent>
#include <QStyledItemDelegate>

#include <algorithm>

namespace varo {

namespace {

/// The style of the program with narrow margins in cells and headers: a column is hardly wider than its
/// widest text.
class EstiloDeRejilla : public QProxyStyle {
public:
    EstiloDeRejilla() : QProxyStyle{QApplication::style()->name()} {}

    int pixelMetric(PixelMetric medida, const QStyleOption* opcion, const QWidget* widget) const override {
        switch (medida) {
        case PM_HeaderMargin:
        case PM_FocusFrameHMargin:
            return 1;
        default:
            return QProxyStyle::pixelMetric(medida, opcion, widget);
        }
    }
};

/// A cell that is pointed out is seen in the chosen column too.
class DelegadoDeRejilla : public QStyledItemDelegate {
public:
    DelegadoDeRejilla(const ModeloDeRejilla& modelo, QObject* padre)
        : QStyledItemDelegate{padre}, modelo_{modelo} {}

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& celda) const override {
        QStyledItemDelegate::paint(pintor, opcion, celda);
        if (modelo_.esLaSenalada(celda)) {
            pintor->save();
            pintor->setPen(opcion.palette.color(QPalette::Text));
            pintor->drawRect(opcion.rect.adjusted(0, 0, -1, -1));
            pintor->restore();
        }
    }

protected:
    void initStyleOption(QStyleOptionViewItem* opcion, const QModelIndex& celda) const override {
        QStyledItemDelegate::initStyleOption(opcion, celda);
        if (modelo_.esLaSenalada(celda)) {
            opcion->state.setFlag(QStyle::State_Selected, false);
        }
    }

private:
    const ModeloDeRejilla& modelo_;
};

} // namespace

VistaDeRejilla::VistaDeRejilla(const Rejilla& rejilla)
    : rejilla_{rejilla}, modelo_{new ModeloDeRejilla{rejilla, this}} {
    auto* const estilo = new EstiloDeRejilla;
    estilo->setParent(this);
    setStyle(estilo);
    horizontalHeader()->setStyle(estilo);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setModel(modelo_);
    setItemDelegate(new DelegadoDeRejilla{*modelo_, this});
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectColumns);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideNone);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false); // Tab leaves the grid
    seguirLosAnchosAMano();
    connect(selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
            [this](const QModelIndex& actual) {
                todoElegido_ = false;
                if (actual.isValid() && actual.column() != rejilla_.ColSel() && alElegirColumna) {
                    alElegirColumna(actual.column());
                    // Qt selects the clicked column after this, even a refused one.
                    QMetaObject::invokeMethod(
                        this, [this] { mostrarSeleccion(); }, Qt::QueuedConnection);
                }
            });
}

void VistaDeRejilla::mostrar() {
    if (!rejilla_.Visible()) {
        quitarSenal();
        anchos_.clear();
        aMano_.clear();
        return; // a grid is hidden while it is filled
    }
    if (apoyoDeLaSenal() != apoyo_) {
        quitarSenal();
    }
    modelo_->ponerAlDia();
    medirSiHaCambiado();
    mostrarAnchos();
    mostrarSeleccion();
}

void VistaDeRejilla::mostrarSeleccion() {
    if (model() == nullptr) {
        return; // the window is unloaded
    }
    const int columna = rejilla_.ColSel();
    if (columna < rejilla_.Cols() &&
        (currentIndex().column() != columna || !selectionModel()->isColumnSelected(columna))) {
        selectColumn(columna);
    }
}

void VistaDeRejilla::senalar(const LugarSenalado& lugar) {
    const bool conFila = lugar.fila && *lugar.fila >= 1 && *lugar.fila < rejilla_.Rows();
    const bool conColumna = lugar.columna && *lugar.columna >= 0 && *lugar.columna < rejilla_.Cols();
    if (model() == nullptr || !rejilla_.Visible() || !(conFila || conColumna)) {
        quitarSenal();
        return;
    }
    modelo_->senalar(lugar);
    apoyo_ = apoyoDeLaSenal();
    const bool seVe = conColumna && !isColumnHidden(*lugar.columna);
    const int fila = conFila ? *lugar.fila - 1 : std::max(0, rowAt(0));
    scrollTo(modelo_->index(fila, seVe ? *lugar.columna : std::max(0, columnAt(0))));
}

void VistaDeRejilla::quitarSenal() {
    modelo_->senalar({});
}

VistaDeRejilla::Apoyo VistaDeRejilla::apoyoDeLaSenal() const {
    const auto& fila = modelo_->senalado().fila;
    return {rejilla_.Rows(), rejilla_.Cols(), rejilla_.ColSel(),
            fila && *fila < rejilla_.Rows() ? rejilla_.TextMatrix(*fila, 0) : std::string{}};
}

QItemSelectionModel::SelectionFlags VistaDeRejilla::selectionCommand(const QModelIndex& celda,
                                                                     const QEvent* /*suceso*/) const {
    return celda.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns
                           : QItemSelectionModel::NoUpdate;
}

/// The grid does not tell which cell changes: its texts are measured when it comes to view or to another
/// shape.
void VistaDeRejilla::medirSiHaCambiado() {
    if (static_cast<int>(anchos_.size()) != rejilla_.Cols() || filasMedidas_ != rejilla_.Rows()) {
        if (static_cast<int>(anchos_.size()) != rejilla_.Cols()) {
            aMano_.clear();
        }
        anchos_ = MedirColumnas(rejilla_, QFontMetricsF{font()});
        filasMedidas_ = rejilla_.Rows();
    }
}

int VistaDeRejilla::anchoDe(int columna) const {
    const auto aMano = aMano_.find(columna);
    return aMano == aMano_.end() ? anchos_[static_cast<std::size_t>(columna)] : aMano->second;
}

void VistaDeRejilla::mostrarAnchos() {
    const QScopedValueRollback nuestros{ponemosAnchos_, true};
    for (int columna = 0; columna < rejilla_.Cols(); ++columna) {
        const bool oculta = rejilla_.ColWidth(columna) == 0;
        const int ancho = oculta ? 0 : anchoDe(columna);
        if (isColumnHidden(columna) != (ancho == 0)) {
            setColumnHidden(columna, ancho == 0);
        }
        if (ancho > 0 && columnWidth(columna) != ancho) {
            setColumnWidth(columna, ancho);
        }
    }
}

/// A double click on the edge gives the column the width of its texts back.
void VistaDeRejilla::seguirLosAnchosAMano() {
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int columna, int /*antes*/, int ancho) {
                if (!ponemosAnchos_ && ancho > 0) {
                    aMano_[columna] = ancho;
                }
            });
    connect(horizontalHeader(), &QHeaderView::sectionPressed, this, [this] {
        todoElegido_ = false;
        quitarSenal();
    });
    connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this, [this](int columna) {
        aMano_.erase(columna);
        mostrarAnchos();
    });
}

void VistaDeRejilla::decir(const QString& texto) {
    QStatusTipEvent aviso{texto};
    QCoreApplication::sendEvent(this, &aviso);
}

void VistaDeRejilla::copiar() {
    if (model() == nullptr) {
        return; // the window is unloaded
    }
    const int columna = rejilla_.ColSel();
    const int filas = rejilla_.Rows() - 1;
    if (todoElegido_) {
        QGuiApplication::clipboard()->setText(AQt(RejillaParaHojas(rejilla_)));
        decir(QStringLiteral("Copiada toda la hoja, con sus cabeceras: %1 filas.").arg(filas));
    } else if (columna < rejilla_.Cols()) {
        QGuiApplication::clipboard()->setText(AQt(ColumnaParaHojas(rejilla_, columna)));
        decir(QStringLiteral("Copiada la columna «%1», con su cabecera: %2 filas.")
                  .arg(AQt(rejilla_.TextMatrix(0, columna)))
                  .arg(filas));
    }
}

void VistaDeRejilla::keyPressEvent(QKeyEvent* suceso) {
    if (suceso->matches(QKeySequence::SelectAll)) {
        todoElegido_ = true;
        decir(QStringLiteral("Ctrl+C copia ahora toda la hoja."));
    } else if (suceso->matches(QKeySequence::Copy)) {
        copiar();
    } else {
        todoElegido_ = todoElegido_ && suceso->key() == Qt::Key_Control;
        QTableView::keyPressEvent(suceso);
    }
}

void VistaDeRejilla::mousePressEvent(QMouseEvent* suceso) {
    todoElegido_ = false;
    quitarSenal();
    QTableView::mousePressEvent(suceso);
}

void VistaDeRejilla::focusOutEvent(QFocusEvent* suceso) {
    todoElegido_ = false;
    QTableView::focusOutEvent(suceso);
}

} // namespace varo
