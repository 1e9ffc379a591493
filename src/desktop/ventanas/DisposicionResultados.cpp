#include "desktop/Texto.h"
#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/ventanas/HojaDeEtiquetas.h"
#include "plot/FrmResultados.h"
#include "plot/TextoDeResultados.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

namespace varo {

QWidget* DisponerResultados(FrmResultados& ventana, Vinculos& vinculos) {
    auto* const hoja = new HojaDeEtiquetas{ventana, vinculos, ventana.LbParcela};
    const auto copiarTodo = [&ventana] {
        QGuiApplication::clipboard()->setText(AQt(TextoDeResultados(ventana)));
    };
    auto* const copiar = new QAction{QStringLiteral("&Copiar"), hoja};
    copiar->setShortcut(QKeySequence::Copy);
    copiar->setShortcutContext(Qt::WindowShortcut);
    QObject::connect(copiar, &QAction::triggered, hoja, [hoja, copiarTodo] {
        const QString seleccion = hoja->seleccion();
        if (seleccion.isEmpty()) {
            copiarTodo();
        } else {
            QGuiApplication::clipboard()->setText(seleccion);
        }
    });
    auto* const todo = new QAction{QStringLiteral("Copiar &todo"), hoja};
    QObject::connect(todo, &QAction::triggered, hoja, copiarTodo);
    hoja->addActions({copiar, todo});
    hoja->setContextMenuPolicy(Qt::ActionsContextMenu);
    vinculos.alSoltar(*hoja, [copiar, todo] {
        for (QAction* const accion : {copiar, todo}) {
            accion->setEnabled(false); // it reads the window
        }
    });
    return hoja;
}

} // namespace varo
