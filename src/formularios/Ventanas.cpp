#include "formularios/Ventanas.h"

#include "basico/AlSalir.h"

#include <algorithm>
#include <cassert>

namespace varo {

Ventanas::~Ventanas() {
    assert(!atendiendo() && "the windows outlive every act");
}

Formulario* Ventanas::buscar(std::type_index clase) const {
    const auto encontrada = std::find_if(cargadas_.begin(), cargadas_.end(),
                                         [&](const Cargada& cargada) { return cargada.clase == clase; });
    return encontrada == cargadas_.end() ? nullptr : encontrada->ventana.get();
}

Formulario& Ventanas::cargar(std::type_index clase, std::unique_ptr<Formulario> ventana) {
    assert(buscar(clase) == nullptr && "a window is loaded once");
    Formulario& nueva = *ventana;
    cargadas_.push_back({clase, std::move(ventana)});
    try {
        nueva.Form_Load();
    } catch (...) {
        quitar(nueva); // drop the half-loaded window; the next touch starts afresh
        throw;
    }
    nueva.anunciada_ = true;
    if (alCargar) {
        alCargar(nueva);
    }
    return nueva;
}

bool Ventanas::estaCargada(const Formulario* ventana) const {
    return std::any_of(cargadas_.begin(), cargadas_.end(),
                       [&](const Cargada& cargada) { return cargada.ventana.get() == ventana; });
}

std::vector<Formulario*> Ventanas::todas() const {
    std::vector<Formulario*> ventanas;
    ventanas.reserve(cargadas_.size());
    for (const auto& cargada : cargadas_) {
        ventanas.push_back(cargada.ventana.get());
    }
    return ventanas;
}

bool Ventanas::descargar(Formulario& ventana) {
    if (!estaCargada(&ventana) ||
        std::find(descargando_.begin(), descargando_.end(), &ventana) != descargando_.end()) {
        return true;
    }
    descargando_.push_back(&ventana);
    const AlSalir borrar{[&] { std::erase(descargando_, &ventana); }};
    if (!ventana.Form_QueryUnload()) {
        return false;
    }
    if (ventana.tipo() == TipoVentana::Marco && !descargarHijas()) {
        return false;
    }
    ventana.Form_Unload();
    if (alDescargar) {
        alDescargar(ventana);
    }
    quitar(ventana);
    if (ventana.tipo() == TipoVentana::Marco) {
        terminado_ = true;
    }
    return true;
}

bool Ventanas::descargarHijas() {
    // Unloading one child may unload others.
    const auto ventanas = todas();
    return std::all_of(ventanas.begin(), ventanas.end(), [this](Formulario* ventana) {
        return !estaCargada(ventana) || ventana->tipo() != TipoVentana::Hija || descargar(*ventana);
    });
}

void Ventanas::quitar(Formulario& ventana) {
    olvidarFoco(ventana);
    ventana.visible_ = false;
    const auto lugar = std::find_if(cargadas_.begin(), cargadas_.end(), [&](const Cargada& cargada) {
        return cargada.ventana.get() == &ventana;
    });
    assert(lugar != cargadas_.end() && "only a loaded window goes");
    retiradas_.push_back(std::move(lugar->ventana));
    cargadas_.erase(lugar);
    std::erase(recientes_, &ventana);
    if (activa_ == &ventana) {
        cederActivacion(ventana, false);
    }
}

void Ventanas::mostrar(Formulario& ventana) {
    if (!estaCargada(&ventana)) {
        throw ErrorEjecucion{364, "La ventana " + ventana.nombre() + " ya está descargada"};
    }
    ventana.visible_ = true;
    activar(ventana);
}

void Ventanas::ocultar(Formulario& ventana) {
    soltarFoco(ventana);
    ventana.visible_ = false;
    if (activa_ == &ventana) {
        cederActivacion(ventana, true);
    }
}

void Ventanas::activar(Formulario& ventana) {
    if (activa_ != nullptr && activa_ != &ventana) {
        soltarFoco(*activa_);
    }
    // LostFocus may move the activation already, or take the window away.
    if (activa_ == &ventana || !ventana.Visible()) {
        return;
    }
    std::erase(recientes_, &ventana);
    recientes_.push_back(&ventana);
    Formulario* const antigua = activa_;
    hacerActiva(&ventana);
    if (antigua != nullptr) {
        antigua->Form_Deactivate();
    }
    if (activa_ == &ventana) {
        ventana.Form_Activate();
    }
}

void Ventanas::hacerActiva(Formulario* ventana) {
    activa_ = ventana;
    if (ventana != nullptr && alActivar) {
        alActivar(*ventana);
    }
}

void Ventanas::cederActivacion(Formulario& antigua, bool avisarAntigua) {
    const auto siguiente = std::find_if(recientes_.rbegin(), recientes_.rend(), [&](const Formulario* otra) {
        return otra != &antigua && otra->Visible();
    });
    hacerActiva(siguiente == recientes_.rend() ? nullptr : *siguiente);
    Formulario* const nueva = activa_;
    if (avisarAntigua) {
        antigua.Form_Deactivate();
    }
    if (nueva != nullptr && activa_ == nueva) {
        nueva->Form_Activate();
    }
}

void Ventanas::darFoco(Control& control) {
    if (foco_ == &control) {
        return;
    }
    if (foco_ != nullptr) {
        quitarFoco(*foco_);
    }
    // LostFocus may give the focus back to its control, or take the window away.
    if (foco_ == nullptr && control.ventana().Visible()) {
        foco_ = &control;
    }
}

void Ventanas::quitarFoco(Control& control) {
    if (foco_ != &control) {
        return;
    }
    foco_ = nullptr;
    Lanzar(control.LostFocus);
}

void Ventanas::soltarFoco(const Formulario& ventana) {
    if (foco_ != nullptr && &foco_->ventana() == &ventana) {
        quitarFoco(*foco_);
    }
    olvidarFoco(ventana); // no control takes the focus back to a window that was left
}

void Ventanas::olvidarFoco(const Control& control) {
    if (foco_ == &control) {
        foco_ = nullptr;
    }
}

void Ventanas::olvidarFoco(const Formulario& ventana) {
    if (foco_ != nullptr && &foco_->ventana() == &ventana) {
        foco_ = nullptr;
    }
}

void Ventanas::atender(const std::function<void()>& acto) {
    const std::exception_ptr ajena = correr(acto);
    if (!atendiendo() && alTerminarActo) {
        alTerminarActo();
    }
    if (ajena) {
        std::rethrow_exception(ajena);
    }
}

/// Tells a run-time fault; hands back any other exception, for whoever set the act off.
std::exception_ptr Ventanas::correr(const std::function<void()>& acto) {
    ++profundidad_;
    const AlSalir salir{[this] {
        if (--profundidad_ == 0) {
            retiradas_.clear();
        }
    }};
    try {
        acto();
    } catch (const ErrorFatal& error) {
        terminado_ = true;
        conFalloFatal_ = true;
        servicios_.falloFatal(error);
    } catch (const ErrorEjecucion& error) {
        servicios_.fallo(error);
    } catch (const Cancelado&) {
        return nullptr; // who cancelled knows
    } catch (...) {
        return std::current_exception();
    }
    return nullptr;
}

} // namespace varo
