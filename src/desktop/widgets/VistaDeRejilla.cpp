#include "desktop/widgets/VistaDeRejilla.h"

#include "desktop/Texto.h"
#include "desktop/widgets/MedidaDeTextos.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QHeaderView>
#include <QProxyStyle>

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

} // namespace

VistaDeRejilla::VistaDeRejilla(const Rejilla& rejilla)
    : rejilla_{rejilla}, modelo_{new ModeloDeRejilla{rejilla, this}} {
    auto* const estilo = new EstiloDeRejilla;
    estilo->setParent(this);
    setStyle(estilo);
    horizontalHeader()->setStyle(estilo);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setMinimumSectionSize(1);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    setModel(modelo_);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectColumns);
    setSelectionMode(SingleSelection);
    setTextElideMode(Qt::ElideNone);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false); // Tab leaves the grid
    connect(selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
            [this](const QModelIndex& actual) {
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
        anchos_.clear();
        return; // a grid is hidden while it is filled
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

QItemSelectionModel::SelectionFlags VistaDeRejilla::selectionCommand(const QModelIndex& celda,
                                                                     const QEvent* /*suceso*/) const {
    return celda.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Columns
                           : QItemSelectionModel::NoUpdate;
}

/// The grid does not tell which cell changes: its texts are measured when it comes to view or to another
/// shape.
void VistaDeRejilla::medirSiHaCambiado() {
    if (static_cast<int>(anchos_.size()) != rejilla_.Cols() || filasMedidas_ != rejilla_.Rows()) {
        anchos_ = MedirColumnas(rejilla_, QFontMetricsF{font()});
        filasMedidas_ = rejilla_.Rows();
    }
}

void VistaDeRejilla::mostrarAnchos() {
    for (int columna = 0; columna < rejilla_.Cols(); ++columna) {
        const bool oculta = rejilla_.ColWidth(columna) == 0;
        const int ancho = oculta ? 0 : anchos_[static_cast<std::size_t>(columna)];
        if (isColumnHidden(columna) != (ancho == 0)) {
            setColumnHidden(columna, ancho == 0);
        }
        if (ancho > 0 && columnWidth(columna) != ancho) {
            setColumnWidth(columna, ancho);
        }
    }
}

} // namespace varo
