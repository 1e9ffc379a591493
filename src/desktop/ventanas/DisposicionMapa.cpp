#include "desktop/Vinculos.h"
#include "desktop/ventanas/Disposiciones.h"
#include "desktop/ventanas/SacarMapa.h"
#include "desktop/ventanas/VistaDeMapa.h"
#include "map/FrmMapa.h"

#include <QAction>
#include <QMenuBar>
#include <QVBoxLayout>

namespace varo {

namespace {

constexpr QSize minimo{480, 320};

/// What a person can do with the picture, by key or with the right button.
void PonerAcciones(VistaDeMapa& vista, const FrmMapa& ventana) {
    const auto poner = [&vista](const QString& leyenda, const QKeySequence& teclas, const auto& acto) {
        auto* const accion = new QAction{leyenda, &vista};
        accion->setShortcut(teclas);
        accion->setShortcutContext(Qt::WindowShortcut);
        QObject::connect(accion, &QAction::triggered, &vista, acto);
        vista.addAction(accion);
    };
    poner(QStringLiteral("Ver &todo"), QKeySequence{Qt::CTRL | Qt::Key_0}, [&vista] { vista.verTodo(); });
    poner(QStringLiteral("&Guardar imagen..."), QKeySequence{Qt::CTRL | Qt::Key_S}, [&vista, &ventana] {
        if (vista.dibujo()) {
            GuardarMapa(vista, *vista.dibujo(), ventana.Caption());
        }
    });
    poner(QStringLiteral("&Imprimir..."), QKeySequence{Qt::CTRL | Qt::Key_P}, [&vista, &ventana] {
        if (vista.dibujo()) {
            ImprimirMapa(vista, *vista.dibujo(), ventana.Caption());
        }
    });
    vista.setContextMenuPolicy(Qt::ActionsContextMenu);
}

} // namespace

QWidget* DisponerMapa(FrmMapa& ventana, Vinculos& vinculos) {
    auto* const contenido = new QWidget;
    auto* const columna = new QVBoxLayout{contenido};
    columna->setContentsMargins(0, 0, 0, 0);
    auto* const barra = new QMenuBar;
    barra->setNativeMenuBar(false); // a system-wide bar has room for the menus of the frame alone
    vinculos.crearMenus(*barra, ventana);
    columna->setMenuBar(barra);
    auto* const vista = new VistaDeMapa{ventana, vinculos.usuario()};
    vista->setObjectName("lienzo");
    PonerAcciones(*vista, ventana);
    columna->addWidget(vista, 1);
    vinculos.seguir(ventana, [vista] { vista->ponerAlDia(); });
    vinculos.alSoltar(*vista, [vista] { vista->soltar(); });
    contenido->setMinimumSize(minimo);
    return contenido;
}

QWidget* DisponerMapa2(FrmMapa2& ventana, Vinculos& vinculos) {
    const auto sinEtiquetas = [](const EtiquetaMostrada& /*mostrada*/) { return AspectoDeEtiqueta{}; };
    auto* const vista = new VistaDeLienzo{{ventana.lienzo, sinEtiquetas}};
    vista->setObjectName("lienzo");
    vista->setMinimumSize(minimo);
    vinculos.seguir(ventana, [vista] { vista->ponerAlDia(); });
    vinculos.alSoltar(*vista, [vista] { vista->soltar(); });
    return vista;
}

} // namespace varo
