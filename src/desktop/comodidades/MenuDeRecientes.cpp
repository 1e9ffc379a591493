#include "desktop/comodidades/MenuDeRecientes.h"

#include "desktop/comodidades/Recientes.h"
#include "desktop/widgets/Pista.h"

#include <QFileInfo>
#include <QMenu>

#include <algorithm>

namespace varo {

namespace {

/// "&1 parcela.xls  (/home/ana/datos)"; an & of a name stands for itself, and a long folder is cut.
QString Leyenda(int numero, const QString& archivo, const QFontMetrics& letras) {
    constexpr int anchoDeCarpeta = 320; // in pixels
    const QFileInfo info{archivo};
    QString texto = info.fileName() + QStringLiteral("  (") +
                    letras.elidedText(info.path(), Qt::ElideMiddle, anchoDeCarpeta) + ')';
    return QStringLiteral("&%1 ").arg(numero) + texto.replace('&', QStringLiteral("&&"));
}

} // namespace

MenuDeRecientes::MenuDeRecientes(QMenu& menu, const Recientes& recientes)
    : recientes_{recientes}, raya_{menu.addSeparator()} {
    menu.setToolTipsVisible(true);
    for (int i = 0; i < Recientes::cuantos; ++i) {
        QAction* const entrada = menu.addAction(QString{});
        entrada->setObjectName(QStringLiteral("Reciente%1").arg(i + 1));
        connect(entrada, &QAction::triggered, this, [this, entrada] {
            if (alElegir) {
                alElegir(entrada->data().toString());
            }
        });
        entradas_.push_back(entrada);
    }
}

void MenuDeRecientes::mostrar(bool sePuedeAbrir) {
    const QStringList archivos = recientes_.archivos();
    raya_->setVisible(!archivos.isEmpty());
    for (int i = 0; i < static_cast<int>(entradas_.size()); ++i) {
        QAction& entrada = *entradas_[static_cast<std::size_t>(i)];
        const QString archivo = archivos.value(i);
        entrada.setVisible(!archivo.isEmpty());
        entrada.setEnabled(sePuedeAbrir);
        if (entrada.data().toString() != archivo) {
            entrada.setText(Leyenda(i + 1, archivo, QFontMetrics{entrada.font()}));
            entrada.setToolTip(TextoDePista(archivo));
            entrada.setData(archivo);
        }
    }
}

} // namespace varo
