#include "desktop/comodidades/VentanaDeAvisos.h"

#include "basico/Texto.h"
#include "desktop/Texto.h"
#include "desktop/comodidades/PuntoDeGravedad.h"
#include "desktop/widgets/Pista.h"
#include "desktop/widgets/TextoParaHojas.h"
#include "revision/CuentaDeHallazgos.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTableWidget>
#include <QTextCursor>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <string>
#include <utility>

namespace varo {

namespace {

constexpr int columnaDeGravedad = 0;
constexpr int columnaDeFrase = 5;

QString QueSignifica(Gravedad gravedad) {
    switch (gravedad) {
    case Gravedad::Fallo:
        return QStringLiteral("El cálculo acaba, o puede acabar, en un fallo y sin resultados.");
    case Gravedad::Numeros:
        return QStringLiteral("El cálculo acaba bien y da cifras equivocadas.");
    case Gravedad::Mirar:
        break;
    }
    return QStringLiteral("Puede estar bien, y conviene mirarlo.");
}

/// Gravity, row, tree, column and text.
std::vector<std::string> LugarDeHallazgo(const Hallazgo& hallazgo) {
    return {PalabraDe(hallazgo.gravedad), hallazgo.fila > 0 ? std::to_string(hallazgo.fila) : std::string{},
            hallazgo.arbol, hallazgo.columna, hallazgo.texto};
}

bool MismoHallazgo(const Hallazgo& uno, const Hallazgo& otro) {
    return uno.sospecha == otro.sospecha && uno.fila == otro.fila && uno.columna == otro.columna;
}

void AnadirFrase(QTextCursor& cursor, const QString& titulo, const std::string& frase) {
    if (frase.empty()) {
        return;
    }
    if (!cursor.atStart()) {
        cursor.insertBlock();
    }
    QTextCharFormat negrita;
    negrita.setFontWeight(QFont::Bold);
    cursor.insertText(titulo + QStringLiteral(": "), negrita);
    cursor.insertText(AQt(EnUnaLinea(frase)), QTextCharFormat{});
}

} // namespace

VentanaDeAvisos::VentanaDeAvisos(QWidget& marco)
    : QDialog{&marco}, resumen_{new QLabel}, tabla_{new QTableWidget}, frases_{new QTextEdit} {
    constexpr QSize medidas{760, 340};
    constexpr int altoDeTabla = 200;
    setObjectName(QStringLiteral("Avisos"));
    setWindowTitle(QStringLiteral("Avisos de la hoja"));
    resumen_->setObjectName(QStringLiteral("ResumenDeAvisos"));
    resumen_->setTextFormat(Qt::PlainText);
    resumen_->setWordWrap(true);
    frases_->setObjectName(QStringLiteral("FrasesDelAviso"));
    frases_->setReadOnly(true);
    frases_->setTabChangesFocus(true);
    frases_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    crearTabla();
    auto* const partes = new QSplitter{Qt::Vertical};
    partes->addWidget(tabla_);
    partes->addWidget(frases_);
    partes->setChildrenCollapsible(false);
    partes->setSizes({altoDeTabla, medidas.height() - altoDeTabla});
    auto* const columna = new QVBoxLayout{this};
    columna->addWidget(resumen_);
    columna->addWidget(partes, 1);
    resize(medidas);
}

void VentanaDeAvisos::crearTabla() {
    tabla_->setObjectName(QStringLiteral("TablaDeAvisos"));
    tabla_->setColumnCount(columnaDeFrase + 1);
    tabla_->setHorizontalHeaderLabels({QStringLiteral("Gravedad"), QStringLiteral("Fila"),
                                       QStringLiteral("Árbol"), QStringLiteral("Columna"),
                                       QStringLiteral("Texto"), QStringLiteral("Qué pasa")});
    tabla_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    tabla_->horizontalHeader()->setHighlightSections(false);
    tabla_->horizontalHeader()->setStretchLastSection(true);
    tabla_->verticalHeader()->hide();
    tabla_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    tabla_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabla_->setSelectionMode(QAbstractItemView::SingleSelection);
    tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabla_->setWordWrap(false);
    tabla_->setShowGrid(false);
    tabla_->setTabKeyNavigation(false);
    auto* const copiarlo = new QAction{QStringLiteral("Copiar el aviso"), tabla_};
    copiarlo->setShortcut(QKeySequence::Copy);
    copiarlo->setShortcutContext(Qt::WidgetShortcut);
    connect(copiarlo, &QAction::triggered, this, [this] { copiar(); });
    tabla_->addAction(copiarlo);
    tabla_->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(tabla_, &QTableWidget::currentCellChanged, this, [this] { alCambiarDeFila(); });
    connect(tabla_, &QTableWidget::cellClicked, this, [this] { avisarDelElegido(); });
}

void VentanaDeAvisos::poner(const QString& resumen, std::vector<Hallazgo> hallazgos) {
    const QScopedValueRollback nuestro{poniendo_, true};
    const Hallazgo* const antes = elegido();
    int fila = 0;
    if (antes != nullptr) {
        const auto igual = std::ranges::find_if(
            hallazgos, [antes](const Hallazgo& otro) { return MismoHallazgo(*antes, otro); });
        fila = igual == hallazgos.end() ? 0 : static_cast<int>(igual - hallazgos.begin());
    }
    hallazgos_ = std::move(hallazgos);
    resumen_->setText(resumen);
    llenarTabla();
    tabla_->setCurrentCell(fila, columnaDeGravedad);
    tabla_->parentWidget()->setVisible(!hallazgos_.empty());
    alCambiarDeFila();
}

void VentanaDeAvisos::llenarTabla() {
    constexpr int anchoMayor = 160;
    constexpr int holgura = 12;
    tabla_->setRowCount(static_cast<int>(hallazgos_.size()));
    int fila = 0;
    for (const Hallazgo& hallazgo : hallazgos_) {
        int columna = 0;
        std::vector<std::string> celdas = LugarDeHallazgo(hallazgo);
        celdas.push_back(hallazgo.que);
        for (const std::string& celda : celdas) {
            const QString texto = AQt(EnUnaLinea(celda));
            auto* const item = new QTableWidgetItem{texto};
            item->setToolTip(TextoDePista(texto));
            tabla_->setItem(fila, columna++, item);
        }
        tabla_->item(fila, columnaDeGravedad)->setIcon(PuntoDeGravedad(hallazgo.gravedad));
        tabla_->item(fila, columnaDeGravedad)->setToolTip(QueSignifica(hallazgo.gravedad));
        ++fila;
    }
    for (int columna = 0; columna < columnaDeFrase; ++columna) {
        tabla_->resizeColumnToContents(columna);
        tabla_->setColumnWidth(columna, std::min(tabla_->columnWidth(columna) + holgura, anchoMayor));
    }
}

void VentanaDeAvisos::elegirElPrimero() {
    {
        const QScopedValueRollback nuestro{poniendo_, true};
        tabla_->setCurrentCell(0, columnaDeGravedad);
    }
    tabla_->setFocus();
    avisarDelElegido();
}

void VentanaDeAvisos::alCambiarDeFila() {
    frases_->clear();
    if (const Hallazgo* const hallazgo = elegido()) {
        QTextCursor cursor{frases_->document()};
        AnadirFrase(cursor, QStringLiteral("Qué pasa"), hallazgo->que);
        AnadirFrase(cursor, QStringLiteral("Qué efecto tiene"), hallazgo->efecto);
        AnadirFrase(cursor, QStringLiteral("Qué hacer"), hallazgo->remedio);
    }
    if (!poniendo_) {
        avisarDelElegido();
    }
}

void VentanaDeAvisos::avisarDelElegido() const {
    const Hallazgo* const hallazgo = elegido();
    if (hallazgo != nullptr && alElegir) {
        alElegir(*hallazgo);
    }
}

const Hallazgo* VentanaDeAvisos::elegido() const {
    const int fila = tabla_->currentRow();
    return fila < 0 || static_cast<std::size_t>(fila) >= hallazgos_.size()
               ? nullptr
               : &hallazgos_[static_cast<std::size_t>(fila)];
}

void VentanaDeAvisos::copiar() const {
    const Hallazgo* const hallazgo = elegido();
    if (hallazgo == nullptr) {
        return;
    }
    std::vector<std::string> celdas = LugarDeHallazgo(*hallazgo);
    celdas.insert(celdas.end(), {hallazgo->que, hallazgo->efecto, hallazgo->remedio});
    QGuiApplication::clipboard()->setText(AQt(LineaParaHojas(celdas)));
    if (alDecir) {
        alDecir(QStringLiteral("Copiado el aviso, con sus frases."));
    }
}

} // namespace varo
