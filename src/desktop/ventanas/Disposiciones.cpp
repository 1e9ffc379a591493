#include "desktop/ventanas/Disposiciones.h"

#include "data/FrmSeleccion.h"
#include "data/Hojadedatos.h"
#include "data/SelColumnas.h"
#include "indices/archivo/FrmCrearArchivo.h"
#include "map/FrmFormato.h"
#include "map/FrmMapa.h"
#include "options/OpcionesPrograma.h"
#include "plot/FrmResultados.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace varo {

namespace {

/// What the desktop knows of one kind of window.
struct Disposicion {
    bool (*esDe)(const Formulario& ventana);
    QWidget* (*disponer)(Formulario& ventana, Vinculos& vinculos);
    bool sePuedeAgrandar;
};

constexpr bool fija = false;
constexpr bool agrandable = true;

/// Windows derived from F count as F.
template <class F, QWidget* (*disponer)(F&, Vinculos&)>
constexpr Disposicion De(bool sePuedeAgrandar) {
    return {
        [](const Formulario& ventana) { return dynamic_cast<const F*>(&ventana) != nullptr; },
        [](Formulario& ventana, Vinculos& vinculos) { return disponer(dynamic_cast<F&>(ventana), vinculos); },
        sePuedeAgrandar};
}

constexpr std::array disposiciones{
    De<FrmSeleccion, DisponerSeleccion>(fija),       De<Hojadedatos, DisponerHoja>(agrandable),
    De<SelColumnas, DisponerColumnas>(fija),         De<OpcionesPrograma, DisponerOpciones>(fija),
    De<FrmFormato, DisponerFormato>(agrandable),     De<FrmMapa, DisponerMapa>(agrandable),
    De<FrmMapa2, DisponerMapa2>(agrandable),         De<FrmResultados, DisponerResultados>(agrandable),
    De<FrmCrearArchivo, DisponerCrearArchivo>(fija),
};

const Disposicion& DisposicionDe(const Formulario& ventana) {
    const auto* const hallada =
        std::find_if(disposiciones.begin(), disposiciones.end(),
                     [&](const Disposicion& disposicion) { return disposicion.esDe(ventana); });
    if (hallada == disposiciones.end()) {
        throw std::logic_error{"la ventana " + ventana.nombre() + " no tiene disposición"};
    }
    return *hallada;
}

} // namespace

QWidget* Disponer(Formulario& ventana, Vinculos& vinculos) {
    return DisposicionDe(ventana).disponer(ventana, vinculos);
}

bool SePuedeAgrandar(const Formulario& ventana) {
    return DisposicionDe(ventana).sePuedeAgrandar;
}

} // namespace varo
